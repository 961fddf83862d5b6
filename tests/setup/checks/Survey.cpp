#include "setup/checks/Survey.h"

#include "platform/StateStore.h"
#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"
#include "simulator/surroundings/SimulatedUsbNetworkDevices.h"
#include "tests/support/PrintQt.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

struct SurveyTest : testing::Test {
    /// Makes @p entries, and the vendor of the device, the user's settings.
    static void write(const QByteArray &entries)
    {
        QDir().mkpath(QFileInfo(userSettingsPath()).path());
        QFile file(userSettingsPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            "<plist><dict><key>device_info</key><dict><key>vendor_ids</key><array><string>1</string></array></dict>"
            + entries + "</dict></plist>");
    }

    Mark mark(const QByteArray &id)
    {
        QEventLoop loop;
        Mark found = Mark::Unknown;
        survey.check([&](const QList<Check> &checks) {
            const auto check = std::ranges::find(checks, id, &Check::id);
            found = check == checks.end() ? Mark::Unknown : check->mark;
            loop.quit();
        });
        loop.exec();
        return found;
    }

    SimulatedModem modem;
    ModemServer server{modem};
    StateStore store;
    SimulatedUsbNetworkDevices devices;
    QString gateway = server.authority();
    Survey survey{{
        .usbDevices = devices,
        .dynamicStore = store,
        .interfaceState =
            [this](int) {
                return InterfaceState{true, {u"10.0.0.2"_s}, gateway};
            },
        .socketBinderFor = [](const UsbNetworkDevice &) { return SocketBinder(); },
        .startCompanion = [] { return true; },
        .readDesktop = [] { return DesktopFacts{.runsApplication = false}; },
        .restartCompanion = [] { return ActionResult::Done; },
        .readProfiles = [] { return ProfileFacts{.wanted = true, .folder = u"/p"_s}; },
    }};
};

} // namespace

TEST_F(SurveyTest, LooksAtProfilesWhereAccessPointsAreSent)
{
    QFile::remove(userSettingsPath());
    EXPECT_EQ(mark("profiles"), Mark::Skipped) << "nothing is known of what is sent";
    const std::pair<QByteArray, Mark> cases[] = {
        {"", Mark::Broken},
        {"<key>ProvisionAccessPoints</key><true/>", Mark::Broken},
        {"<key>ProvisionAccessPoints</key><false/>", Mark::Skipped},
    };
    for (const auto &[entries, expected] : cases) {
        write(entries);
        EXPECT_EQ(mark("profiles"), expected) << entries.toStdString();
    }
}

TEST_F(SurveyTest, AsksTheModemBehindASupportedDeviceThatHasAGateway)
{
    write("");
    EXPECT_EQ(mark("device"), Mark::Broken);
    devices.plug({{.vendor = 1, .interfaceName = u"u1"_s}});
    EXPECT_EQ(mark("page"), Mark::Ok);
    EXPECT_EQ(mark("companion"), Mark::Broken);
    gateway.clear();
    EXPECT_EQ(mark("gateway"), Mark::Broken);
    EXPECT_EQ(mark("page"), Mark::Skipped);
    EXPECT_EQ(modem.requests("logo_data.asp").size(), 2);
}
