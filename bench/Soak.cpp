// A day of polling, plugging, sleeping and news on an accelerated clock, with the real controller and a modem on loopback.
// Prints what is kept after the day (ours) beside what was kept after the first hours (floor).
#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "bench/NoLog.h"
#include "platform/StateStore.h"
#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"
#include "simulator/surroundings/ManualClock.h"
#include "simulator/surroundings/OwnSurroundings.h"
#include "simulator/surroundings/SimulatedDeviceRegistry.h"
#include "simulator/surroundings/SimulatedInterfaceFacts.h"
#include "simulator/surroundings/SimulatedNetwork.h"
#include "simulator/surroundings/SimulatedStatusBar.h"
#include "simulator/surroundings/SimulatedWorkspace.h"
#include "ui/look/Translations.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

using namespace tarvo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const QString interfaceName = u"en5"_s;
constexpr int vendorID = 4660;
constexpr int day = 24 * 3600; // seconds
constexpr int warmUp = 2 * 3600;

struct Kept {
    std::size_t heap = 0; // KiB
    qsizetype descriptors = 0;
    qsizetype threads = 0;
};

qsizetype entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

Kept measure()
{
    const struct mallinfo2 heap = mallinfo2();
    return {(heap.uordblks + heap.hblkhd) / 1024, entriesOf(u"/proc/self/fd"_s), entriesOf(u"/proc/self/task"_s)};
}

/// Writes the settings that the controller reads. @return whether that succeeded
bool writeSettings()
{
    const QDir home(qEnvironmentVariable("XDG_CONFIG_HOME"));
    QFile file(home.filePath(u"tarvo/Config.plist"_s));
    return home.mkpath(u"tarvo"_s) && file.open(QIODevice::WriteOnly)
        && file.write("<plist version=\"1.0\"><dict><key>IsDisplayNetStatusInToolBar</key><true/>"
                      "<key>NeedDisplayWhenDeviceRemoved</key><true/><key>device_info</key><dict><key>vendor_ids</key>"
                      "<array><string>4660</string></array></dict></dict></plist>")
        > 0;
}

/// The companion and what surrounds it, a second at a time.
class Day {
public:
    Day()
    {
        m_controller.awakeFromNib();
        m_controller.applicationDidFinishLaunching();
    }

    int polls() const { return m_polls; }

    /// Lives through @p seconds; the modem is not there at the end.
    void live(int seconds)
    {
        for (int i = 0; i < seconds; ++i) {
            happen(m_second % 600);
            if (m_second % 3600 == 1800)
                m_workspace.sleep();
            if (m_second % 3600 == 1810)
                m_workspace.wake();
            pass();
            ++m_second;
        }
        unplug();
        for (int i = 0; i < 60; ++i)
            pass();
    }

private:
    /// What happens in each ten minutes: a modem comes, is used beyond a limit, is offered firmware, and goes.
    void happen(int second)
    {
        if (second == 5)
            plugIn();
        if (second == 60 || second == 300)
            m_modem.change([second](ModemCondition &condition) {
                condition.monthlyReceived = second == 60 ? quint64(11) << 30 : 0;
                condition.firmwarePackage = second == 60 ? u"version_has_new_critical_software"_s : u"version_idle"_s;
            });
        if (second >= 100 && second < 200) // the counters run
            m_modem.change([](ModemCondition &condition) { condition.monthlyReceived += 1 << 20; });
        if (second == 590)
            unplug();
    }

    void plugIn()
    {
        m_device = m_registry.addModem(interfaceName, vendorID, 1);
        m_network.addInterface(interfaceName);
        m_network.setIPv4(interfaceName, m_server.authority());
    }

    void unplug()
    {
        if (m_device == 0)
            return;
        m_network.clearIPv4(interfaceName);
        m_network.removeInterface(interfaceName);
        m_registry.removeDevice(std::exchange(m_device, 0));
    }

    /// One second, with the poll that belongs to it where there is one.
    void pass()
    {
        m_clock.advance(1s);
        if (m_device != 0 && m_modem.waitForRequests(1, "logo_data.asp", 20ms))
            ++m_polls;
        m_clock.waitForSleepers(1, 1ms);
        m_modem.clearRequests();
        QCoreApplication::processEvents();
    }

    NoLog m_log;
    SimulatedModem m_modem;
    ModemServer m_server{m_modem};
    StateStore m_store;
    SimulatedNetwork m_network{m_store};
    SimulatedDeviceRegistry m_registry;
    SimulatedWorkspace m_workspace;
    SimulatedStatusBar m_statusBar;
    ManualClock m_clock;
    SimulatedInterfaceFacts m_interfaces;
    const ConfigManager m_settings;
    MainController m_controller{
        {m_store, m_registry, m_interfaces, m_workspace, m_statusBar, m_clock, m_log, m_settings, {}, nullptr, {}, {}}};
    IOServiceHandle m_device = 0;
    int m_second = 0;
    int m_polls = 0;
};

void print(const char *what, std::size_t ours, std::size_t floor, const char *unit)
{
    std::printf(R"({"what": "%s", "ours": %zu, "floor": %zu, "unit": "%s", "goal": 1.01})"
                "\n",
                what, ours, floor, unit);
}

} // namespace

int main(int argc, char **argv)
{
    const OwnSurroundings surroundings;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!writeSettings())
        return EXIT_FAILURE;
    QApplication application(argc, argv);
    installTranslations(application, QLocale::c());
    Day world;
    world.live(warmUp);
    const Kept before = measure();
    world.live(day - warmUp);
    const Kept after = measure();
    std::fprintf(stderr, "soak: %d polls\n", world.polls());
    print("soak: heap after 24 h, beside 2 h", after.heap, before.heap, "KiB");
    print("soak: descriptors", std::size_t(after.descriptors), std::size_t(before.descriptors), "");
    print("soak: threads", std::size_t(after.threads), std::size_t(before.threads), "");
    return world.polls() > day / 2 ? EXIT_SUCCESS : EXIT_FAILURE;
}
