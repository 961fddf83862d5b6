#include "app/MainController.h"

#include "RouterObserver/ConfigManager.h"
#include "RouterObserver/SettingsProblem.h"
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
    , m_work(m_services.systemLog)
    , m_device(m_services)
    , m_recentDeeds(m_services.clock)
    , m_provisioner(m_snapshot, m_services.systemLog, m_services.clock)
    , m_firmwareCheck(m_snapshot, m_services.clock)
    , m_menu(menuActions())
    , m_icon(m_services.statusBar, m_services.systemLog, m_services.settings, m_menu.menu(), iconCallbacks())
    , m_balloon(m_services.notifications,
                {m_services.isScreenComposited, [this] { return m_icon.frame(); }, [this] { iconClicked(); }})
    , m_pageFailure(m_services.notifications, {m_services.isScreenComposited, [this] { return m_icon.frame(); }})
    , m_pages(
          m_services.workspace, m_services.settings, m_snapshot, m_mainThread, [this] { return m_work.router(); },
          [this](const QString &page) { couldNotOpen(page); },
          [this] { return m_recentDeeds.claim(RecentDeeds::openedPages); })
    , m_presentation({m_icon, m_menu, m_pages}, {[this] { return device(); }, [this] { tellState(); }})
    , m_updateAlert(m_pages)
    , m_news({m_snapshot, m_pages, m_balloon, m_updateAlert, m_mainThread, m_services.clock, m_services.systemLog,
              m_services.settings},
             {[this](const QString &image) { m_presentation.setImage(image); },
              [this](const StandingNews &news) { m_presentation.addNews(news); }, [this] { m_presentation.refresh(); },
              [this](int type) { return m_recentDeeds.claim(type); }})
    , m_monitor(m_snapshot, m_services.settings,
                {std::bind_front(&MainController::snapshotEvaluated, this),
                 std::bind_front(&MainController::snapshotChanged, this)})
    , m_poller(m_services.settings, m_services.clock, m_services.systemLog,
               {std::bind_front(&MainController::modemAnswered, this), std::bind_front(&MainController::pass, this)})
{
    log(u"Tarvo init success"_s);
}

MainController::~MainController()
{
    m_work.end();
    m_news.resetForStop(); // a balloon that is shown holds nobody up
    m_work.finish(); // the threads use all parts
}

IconMenu::Actions MainController::menuActions()
{
    const bool hasMessages = m_services.settings.text(u"WebUISmsPage"_s).has_value();
    return {.showStatus = [this] { showStatus(); },
            .openModemPage = [this] { m_pages.openWebUI(); },
            .openMessages = hasMessages ? [this] { m_pages.openWebUISmsPage(); } : std::function<void()>(),
            .openPage =
                [this](Page page) {
                    if (!m_pages.open(page))
                        showStatus();
                },
            .openSettings = m_services.openSettings,
            .about = [this] { m_aboutDialog.present(); },
            .quit = [this] { windowShouldClose(); }};
}

StatusIcon::Callbacks MainController::iconCallbacks()
{
    return {.clicked = [this] { iconClicked(); },
            .pointerEntered = [this] { m_news.mouseEnteredHandle(m_work.current()); }};
}

void MainController::iconClicked()
{
    if (m_pages.clickPage() == Page::None)
        showStatus();
    else
        m_pages.openHomepage();
}

void MainController::showStatus()
{
    m_presentation.showWindow();
}

DeviceDetails MainController::device() const
{
    return m_device.details(m_provisioner.accessPointsSent());
}

void MainController::tellState()
{
    if (m_stateChanged)
        m_stateChanged();
}

void MainController::couldNotOpen(const QString &page)
{
    log(u"cannot open "_s + page);
    m_pageFailure.tell(page);
}

void MainController::takeOver(const HandOver &handOver)
{
    m_plugIns.restore(handOver.plugIns);
    m_recentDeeds.restore(handOver.deeds);
}

HandOver MainController::handOver()
{
    endPlugIn();
    return {.plugIns = m_plugIns.all(), .deeds = m_recentDeeds.deeds()};
}

void MainController::awakeFromNib()
{
    m_services.workspace.addSleepObserver([this] { machineWillSleep(); }, [this] { machineDidWake(); });
    m_services.workspace.addActivityObserver([this](bool active) { sessionActivityChanged(active); });
}

void MainController::applicationDidFinishLaunching()
{
    if (!routerObserver_)
        routerObserver_ = std::make_unique<RouterObserver>(m_services.dynamicStore, m_services.deviceRegistry,
                                                           m_services.systemLog, m_services.settings);
    m_presentation.refresh();
    m_icon.startToolbarStatus();
    routerObserver_->startWatchNetworkInterface(std::make_shared<const RouterReports>(
        RouterReports{[this](const ReadyDictionary &ready) { procECMReady(ready); },
                      [this](const QString &bsdName) { procInterfaceRemoved(bsdName); }, [this] { detect(); }}));
    m_unknownModems = std::make_unique<UnknownModems>(m_services.dynamicStore, m_services.deviceRegistry,
                                                      *routerObserver_, [this] { detect(); });
    m_unknownModems->watch();
    const SettingsProblem problem = settingsProblem(m_services.settings);
    const QString line = problem == SettingsProblem::None ? unmatchedVendorLine(m_services.settings) : logLine(problem);
    if (!line.isEmpty())
        log(line);
    m_presentation.setSettingsProblem(problem);
    detect();
}

void MainController::detect()
{
    const bool supported = routerObserver_ && routerObserver_->hasSupportedInterface();
    const auto unknown = m_unknownModems ? m_unknownModems->first() : std::nullopt;
    if (m_work.router())
        m_presentation.setDetection(Detection::Attached);
    else if (supported && isResting())
        m_presentation.setDetection(Detection::LeftAlone);
    else if (supported)
        waitForModem();
    else if (unknown)
        m_presentation.setDetection(Detection::NotSetUp, *unknown);
    else
        m_presentation.setDetection(Detection::NoModem);
}

void MainController::waitForModem()
{
    m_presentation.setDetection(m_hasNoGateway ? Detection::NoGateway : Detection::WaitingForAddress);
    if (!std::exchange(m_preparesHttp, true))
        m_work.prepare(&HttpClient::prepare);
}

bool MainController::windowShouldClose() const
{
    if (m_services.terminate)
        m_services.terminate();
    return false;
}

int MainController::applicationShouldTerminate()
{
    m_unknownModems.reset();
    routerObserver_.reset();
    return 1;
}

void MainController::applicationWillTerminate() { }

void MainController::pass(ModemClient &client, const QString &page)
{
    const bool provisions = m_services.settings.flag(u"ProvisionAccessPoints"_s, true);
    const std::array<std::function<void()>, 5> steps{
        [&] {
            if (provisions)
                m_provisioner.examine(client);
        },
        [&] {
            if (provisions)
                m_provisioner.setApnReady(client);
        },
        [&] { m_pages.openWebUIForQX740(client, page); },
        [&] { m_firmwareCheck.checkFotaUpdateWhenDue(client, page); },
        [&] {
            if (m_services.settings.flag(u"IsDisplayNetStatusInToolBar"_s))
                m_monitor.setAllStatusByUrlContents(client.work(), page);
        },
    };
    for (const auto &step : steps) {
        if (client.work().isOver())
            return;
        step();
    }
}

void MainController::modemAnswered(const Work &work, std::optional<Obstacle> obstacle)
{
    if (!obstacle)
        m_device.noteAnswer();
    m_monitor.noteAnswer(work, obstacle);
}

void MainController::snapshotEvaluated(const Work &work)
{
    const StatusSnapshot snapshot = m_snapshot.get();
    if (!snapshot.haveNewVersionFlag_ && !snapshot.haveDataLimitFlag_)
        m_news.showNormalState(work);
    m_news.startDisPlayUIStatusThread(work);
}

void MainController::snapshotChanged(const Work &work, const StatusSnapshot &snapshot)
{
    work.post(m_mainThread, [this, snapshot] { m_presentation.setSnapshot(snapshot, m_device.sinceReport()); });
}

void MainController::log(const QString &line) const
{
    m_services.systemLog.write(line);
}

} // namespace tarvo
