#include "simulator/demo/DemoSetup.h"

#include "apn/ProfileSelection.h"
#include "apn/tool/FolderReport.h"
#include "platform/linux/desktop/DesktopFactsReader.h"
#include "setup/window/SetupWindow.h"
#include "simulator/demo/DemoWorld.h"

#include <QFile>

namespace tarvo {

namespace {

ProfileFacts readProfiles()
{
    const QString folder = QFile::decodeName(APN_ROOT);
    const FolderReport report = reportFolder(folder);
    return {true, folder, true, report.isInOrder ? QStringList() : report.lines};
}

/// @param properties  what the companion of this process tells of itself
DesktopFacts readDesktop(const QVariantMap &properties)
{
    DesktopFacts facts = readDesktopFacts({});
    facts.runsApplication = true;
    facts.applicationProperties = properties;
    return facts;
}

} // namespace

DemoSetup::DemoSetup(DemoWorld &world)
    : m_services{.usbDevices = world.usbDevices(),
                 .dynamicStore = world.dynamicStore(),
                 .interfaceState = [&world](int) { return world.interfaceState(); },
                 .socketBinderFor = [](const UsbNetworkDevice &) { return SocketBinder(); },
                 .startCompanion = [] { return true; },
                 .readDesktop = [&world] { return readDesktop(world.companionProperties()); },
                 .restartCompanion =
                     [&world] {
                         world.restartCompanionSoon();
                         return ActionResult::Done;
                     },
                 .readProfiles = readProfiles}
    , m_survey(m_services)
{
}

DemoSetup::~DemoSetup() = default;

void DemoSetup::open()
{
    if (!m_window)
        m_window = std::make_unique<SetupWindow>(m_services, m_survey);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace tarvo
