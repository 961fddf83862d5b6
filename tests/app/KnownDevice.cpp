#include "app/KnownDevice.h"

#include "app/Services.h"
#include "tests/support/Companion.h"

using namespace tarvo;
using namespace std::chrono_literals;

TEST_F(Companion, AKnownDeviceIsWhatItsInterfaceAndItsReportTell)
{
    const Services services{store, registry, interfaces, workspace, statusBar, clock, systemLog, configured(), {}};
    KnownDevice device(services);
    EXPECT_FALSE(device.location());
    const auto usb = registry.addModem(u"en5"_s, 0x1234, 0xab);
    const ReadyDictionary report{u"10.0.0.1"_s, usb, u"en5"_s, {u"10.0.0.2/24"_s, u"10.0.0.3/24"_s}};
    interfaces.plug(u"en5"_s, {7}, u"Stick"_s);
    EXPECT_TRUE(device.keep(report));
    const DeviceDetails known{u"Stick"_s, u"1234:00ab"_s, u"en5"_s, u"10.0.0.2"_s, u"10.0.0.1"_s, 3};
    EXPECT_TRUE(device.details(3) == known && device.location()->router == u"10.0.0.1"_s);

    device.noteAnswer();
    clock.advance(5s);
    EXPECT_FALSE(device.keep(report)) << "the same";
    EXPECT_TRUE(device.keep({u"10.0.0.9"_s, usb, u"en5"_s}));
    EXPECT_TRUE(device.details(0).lastAnswer.isValid() && device.sinceReport() == 5s) << "the same plug-in goes on";
    interfaces.plug(u"en5"_s, {8});
    EXPECT_TRUE(device.keep({u"10.0.0.9"_s, usb, u"en5"_s})) << "the same report of another plug-in";
    EXPECT_TRUE(device.details(0).lastAnswer.isNull() && device.sinceReport() == 0s);
    EXPECT_TRUE(device.keep({u"x"_s, 0, {}}) && device.details(0) == DeviceDetails{.gateway = u"x"_s});
}
