#include "app/MainController.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/ModemClient.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"

#include <QCoreApplication>

#include <array>
#include <functional>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

MainController::MainController(Services services)
    : m_services(std::move(services))
    , m_monitor([this](const Work &work) { snapshotPublished(work); })
    , m_pages(m_services.workspace, m_monitor.snapshot(), m_mainThread, [this] { return router(); })
    , m_icon(m_services.statusBar, m_services.systemLog, iconActions())
    , m_balloon(m_services.notifications, m_services.isScreenComposited, [this] { return m_icon.frame(); })
    , m_updateAlert(m_pages)
    , m_news({m_monitor.snapshot(), m_pages, m_icon, m_balloon, m_updateAlert, m_mainThread, m_services.clock,
              m_services.systemLog})
    , m_provisioner(m_monitor.snapshot(), m_services.systemLog)
    , m_firmwareCheck(m_monitor.snapshot(), m_services.clock)
    , m_poller(m_services.clock, m_services.systemLog,
               [this](ModemClient &client, const QString &page) { pass(client, page); })
    , m_threads(m_services.systemLog)
{
    log(u"Tarvo init success"_s);
}

MainController::~MainController() = default;

StatusIcon::Actions MainController::iconActions()
{
    return {.click = [this] { m_pages.openHomepage(); },
            .pointerEntered = [this] { m_news.mouseEnteredHandle(m_attachment ? &m_attachment->work() : nullptr); },
            .openModemPage = [this] { m_pages.openWebUI(); },
            .openMessages = [this] { m_pages.openWebUISmsPage(); },
            .quit = [this] { windowShouldClose(); }};
}

void MainController::awakeFromNib()
{
    m_services.workspace.addSleepObserver([this] { machineWillSleep(); }, [this] { machineDidWake(); });
}

void MainController::applicationDidFinishLaunching()
{
    if (!routerObserver_)
        routerObserver_ =
            std::make_unique<RouterObserver>(m_services.dynamicStore, m_services.deviceRegistry, m_services.systemLog);
    m_icon.startToolbarStatus();
    routerObserver_->startWatchNetworkInterface(std::make_shared<const RouterReports>(
        RouterReports{[this](const ReadyDictionary &ready) { procECMReady(ready); },
                      [this](const QString &bsdName) { procInterfaceRemoved(bsdName); }}));
}

bool MainController::windowShouldClose()
{
    if (m_services.terminate)
        m_services.terminate();
    return false;
}

int MainController::applicationShouldTerminate()
{
    routerObserver_.reset();
    return 1;
}

void MainController::applicationWillTerminate() { }

void MainController::machineWillSleep()
{
    log(u"machineWillSleep"_s);
    m_asleep = true;
    stopGetModemStatus();
}

void MainController::machineDidWake()
{
    log(u"machineDidWake"_s);
    m_asleep = false;
    if (!routerObserver_)
        return;
    if (routerObserver_->isInterfaceRouterReady("IOUSBInterface")
        || routerObserver_->isInterfaceRouterReady("IOUSBHostInterface"))
        startGetModemInfo();
}

void MainController::procECMReady(const ReadyDictionary &ready)
{
    if (!ready.router) {
        waitingIPv4Ready();
        return;
    }
    const auto &binderFor = m_services.socketBinderFor;
    m_location = {*ready.router, ready.kOmbraBSDName,
                  binderFor && ready.kOmbraBSDName ? binderFor(*ready.kOmbraBSDName) : SocketBinder()};
    if (m_asleep)
        return; // wake starts with it
    m_attachment.reset(); // what still runs for an earlier device must not see this one's flags
    resetForReadyDevice();
    startGetModemInfo();
    log(u"ECMReady"_s);
    log(*ready.router);
    log(ready.kOmbraBSDName.value_or(u"(null)"_s));
}

void MainController::resetForReadyDevice()
{
    m_pages.reset();
    m_provisioner.reset();
    m_monitor.resetForReadyDevice();
    m_news.resetForReadyDevice();
}

void MainController::procInterfaceRemoved(const QString &bsdName)
{
    log(bsdName);
    stopGetModemStatus();
}

void MainController::waitingIPv4Ready() { }

void MainController::startGetModemInfo()
{
    log(u"startGetModemInfo"_s);
    startGetModemStatus();
}

void MainController::startGetModemStatus()
{
    m_attachment.reset();
    m_icon.showPolling();
    if (!m_location)
        return;
    m_attachment = std::make_unique<Attachment>(*m_location, m_threads);
    m_poller.start(m_attachment->work());
}

void MainController::stopGetModemStatus()
{
    log(u"DeviceRemoved,stopGetModemStatus"_s);
    m_attachment.reset();
    resetForStop();
    if (m_balloon.isShown())
        m_balloon.toggleAttachedWindowAtPoint(qtTrId("DeviceRemovedTip"));
    m_icon.showRemoval();
}

void MainController::resetForStop()
{
    m_poller.stop();
    m_monitor.resetForStop();
    m_pages.reset();
    m_provisioner.reset();
    m_news.resetForStop();
}

void MainController::pass(ModemClient &client, const QString &page)
{
    const std::array<std::function<void()>, 5> steps{
        [&] { m_provisioner.setAllApnFromPC(client); },
        [&] { m_provisioner.setApnReady(client); },
        [&] { m_pages.openWebUIForQX740(client, page); },
        [&] { m_firmwareCheck.checkFotaUpdateWhenDue(client, page); },
        [&] {
            if (configurationFlag(u"IsDisplayNetStatusInToolBar"_s))
                m_monitor.setAllStatusByUrlContents(client.work(), page);
        },
    };
    for (const auto &step : steps) {
        if (client.work().isOver())
            return;
        step();
    }
}

void MainController::snapshotPublished(const Work &work)
{
    const StatusSnapshot snapshot = m_monitor.snapshot().get();
    if (!snapshot.haveNewVersionFlag_ && !snapshot.haveDataLimitFlag_)
        work.post(m_mainThread, [this] { m_icon.setStatusImage(u"online"_s); });
    m_news.startDisPlayUIStatusThread(work);
}

std::optional<QString> MainController::router() const
{
    return m_attachment ? std::optional(m_attachment->work().router()) : std::nullopt;
}

void MainController::log(const QString &line) const
{
    m_services.systemLog.write(line);
}

} // namespace tarvo
