#include "platform/linux/network/UdevUsbNetworkDevices.h"

#include "tests/support/PrintQt.h"

#include <QTest>

#include <gtest/gtest.h>
#include <umockdev.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// Of vendors that no hardware database lists, so that it does not matter whether the machine has one.
constexpr const char *modems = R"(P: /devices/usb1/1-1
E: SUBSYSTEM=usb
E: DEVTYPE=usb_device
A: idVendor=ffe0\n
A: idProduct=1405\n
A: manufacturer=  Maker  & Co\n
A: product=Stick\n

P: /devices/usb1/1-1/1-1:1.0
E: SUBSYSTEM=usb
E: DEVTYPE=usb_interface
L: driver=../../../../bus/usb/drivers/cdc_ether

P: /devices/usb1/1-1/1-1:1.0/net/enx9
E: SUBSYSTEM=net
A: ifindex=9\n

P: /devices/usb1/1-2
E: SUBSYSTEM=usb
E: DEVTYPE=usb_device
E: ID_MODEL_FROM_DATABASE=Listed Model
A: idVendor=ffe1\n
A: idProduct=00ff\n
A: product=Own Name\n

P: /devices/usb1/1-2/net/enx5
E: SUBSYSTEM=net
A: ifindex=5\n

P: /devices/pci0/net/eth0
E: SUBSYSTEM=net
A: ifindex=2\n
)";

} // namespace

TEST(UdevUsbNetworkDevices, AreListedWithTheirNamesAndFollowed)
{
    const std::unique_ptr<UMockdevTestbed, decltype(&g_object_unref)> testbed(umockdev_testbed_new(), &g_object_unref);
    ASSERT_TRUE(umockdev_testbed_add_from_string(testbed.get(), modems, nullptr));
    umockdev_testbed_set_attribute(testbed.get(), "/sys/devices/usb1/1-1", "product", "St\x1b\u200bick\n");
    UdevUsbNetworkDevices devices;
    const QList<UsbNetworkDevice> found = devices.devices();
    ASSERT_EQ(found.size(), 2) << "the other one is no USB device";
    EXPECT_EQ(found[0], (UsbNetworkDevice{0xffe1, 0xff, {}, u"Listed Model"_s, {}, u"enx5"_s, 5}));
    EXPECT_EQ(found[1], (UsbNetworkDevice{0xffe0, 0x1405, u"Maker & Co"_s, u"Stick"_s, u"cdc_ether"_s, u"enx9"_s, 9}));

    int changes = 0;
    devices.watch([&] { ++changes; });
    umockdev_testbed_uevent(testbed.get(), "/sys/devices/usb1/1-2/net/enx5", "remove");
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes == 1; }, 10'000));
}
