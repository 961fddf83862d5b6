#pragma once

#include "RouterObserver/RouterObserver.h"
#include "RouterObserver/UnknownModems.h"
#include "apn/ApnProvisioner.h"
#include "app/HandOver.h"
#include "app/KnownDevice.h"
#include "app/PlugInWork.h"
#include "app/PlugIns.h"
#include "app/Services.h"
#include "monitor/FirmwareCheck.h"
#include "monitor/Poller.h"
#include "monitor/StatusMonitor.h"
#include "platform/StepQueue.h"
#include "ui/balloon/BalloonPresenter.h"
#include "ui/icon/IconMenu.h"
#include "ui/icon/StatusIcon.h"
#include "ui/news/NewsSequence.h"
#include "ui/news/RecentDeeds.h"
#include "ui/pages/PageFailureNotice.h"
#include "ui/pages/WebPages.h"
#include "ui/windows/AboutDialog.h"
#include "ui/windows/Presentation.h"
#include "ui/windows/UpdateAlert.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace tarvo {

/// The application's events, and the parts that they move: who is told what when a modem comes or goes, and in which
/// order the steps of a pass follow each other.
///
/// Lives on the main thread, where all its operations run.
class MainController {
public:
    /// Makes the parts; nothing is watched, shown or sent yet.
    explicit MainController(Services services);
    /// Ends all work, and waits until it has ended.
    ~MainController();
    MainController(const MainController &) = delete;
    MainController &operator=(const MainController &) = delete;

    /// Goes on from what the program that this one takes the place of has done; before anything else.
    void takeOver(const HandOver &handOver);
    /// Ends all work. @return what a program that takes the place of this one has to know
    HandOver handOver();

    /// Registers for sleep and wake, and for other users at the screen.
    void awakeFromNib();
    /// Creates the watcher and the icon, then starts to watch the network.
    void applicationDidFinishLaunching();
    /// Asks the application to end. @return false: the window itself stays
    bool windowShouldClose() const;
    /// Lets go of the watcher. @return 1, terminate now
    int applicationShouldTerminate();
    /// Does nothing: all is done by then.
    void applicationWillTerminate();
    /// Leaves the modem alone from now on until wake.
    void machineWillSleep();
    /// Starts polling again, with the last router that was reported, when the modem's interface has a router.
    void machineDidWake();

    /// The user's session came to the screen, or gave way to another one, during which the modem is left alone.
    void sessionActivityChanged(bool active);

    /// A supported interface has IPv4 state. Without a router in @p ready nothing changes; for a modem that is polled
    /// already, only where requests go.
    void procECMReady(const ReadyDictionary &ready);
    /// The supported interface @p bsdName is gone.
    void procInterfaceRemoved(const QString &bsdName);
    /// The device is up but has no router yet: there is nothing to do but wait.
    void waitingIPv4Ready();
    /// Starts to poll the modem that was last reported, with a line in the log.
    void startGetModemInfo();
    /// Shows the icon as online and starts to poll the modem that was last reported.
    void startGetModemStatus();
    /// Stops polling, forgets the modem's state and shows the removal. Returns at once.
    void stopGetModemStatus();

    /// Shows how things stand in the status window.
    void showStatus();
    /// Opens the page of that kind. @return false when there is none
    bool openPage(Page page) { return m_pages.open(page); }

    /// Has @p changed called when something of what is shown may be different.
    void setStateObserver(std::function<void()> changed) { m_stateChanged = std::move(changed); }
    /// @return the modem that was reported last
    DeviceDetails device() const;

    // The parts, for who watches the companion.
    StatusSnapshot snapshot() const { return m_snapshot.get(); }
    const NewsSequence &news() const { return m_news; }
    const WebPages &pages() const { return m_pages; }
    const ApnProvisioner &provisioner() const { return m_provisioner; }
    const Presentation &presentation() const { return m_presentation; }

private:
    void log(const QString &line) const;
    IconMenu::Actions menuActions();
    StatusIcon::Callbacks iconCallbacks();
    void iconClicked();
    void tellState();
    void couldNotOpen(const QString &page);
    /// Has shown what is detected.
    void detect();
    /// A supported modem is there and has no address yet, which leaves time to prepare.
    void waitForModem();
    /// The steps that follow each status page that came (polling worker).
    void pass(ModemClient &client, const QString &page);
    void modemAnswered(const Work &work, std::optional<Obstacle> obstacle);
    void snapshotEvaluated(const Work &work);
    void snapshotChanged(const Work &work, const StatusSnapshot &snapshot);
    /// @return whether the modem is to be left alone
    bool isResting() const { return m_asleep || !m_active; }
    void rest();
    /// Polls the modem that was reported last when its interface has a router, unless the modem is to be left alone.
    void resume();
    /// Starts to poll at the modem's location; what runs for it at another one ends.
    void attach();
    /// Ends the work for the modem that is polled, and remembers what has been done for it.
    void endPlugIn();
    void resetForReadyDevice(const PlugInState &done);
    void resetForStop();

    // What a part touches, or has called, stands before it; only what the user does reaches those behind.
    Services m_services;
    StepQueue m_mainThread; ///< receives the steps that other threads post
    PlugInWork m_work;
    KnownDevice m_device;
    PlugIns m_plugIns;
    RecentDeeds m_recentDeeds;
    SharedSnapshot m_snapshot;
    std::function<void()> m_stateChanged; ///< empty when nobody wants to know
    bool m_hasNoGateway = false; ///< the last report of a supported interface named no router
    bool m_preparesHttp = false; ///< a modem has been waited for
    bool m_asleep = false; ///< the machine is about to sleep, or sleeps
    bool m_active = true; ///< the user's session is on the screen

    ApnProvisioner m_provisioner;
    FirmwareCheck m_firmwareCheck;
    AboutDialog m_aboutDialog;
    IconMenu m_menu;
    StatusIcon m_icon;
    BalloonPresenter m_balloon;
    PageFailureNotice m_pageFailure;
    WebPages m_pages;
    Presentation m_presentation;
    UpdateAlert m_updateAlert;
    NewsSequence m_news;
    StatusMonitor m_monitor;
    Poller m_poller;
    std::unique_ptr<RouterObserver> routerObserver_;
    std::unique_ptr<UnknownModems> m_unknownModems;
};

} // namespace tarvo
