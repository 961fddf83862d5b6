#pragma once

#include "RouterObserver/RouterObserver.h"
#include "apn/DefaultApn.h"
#include "app/Guarded.h"
#include "app/ModemState.h"
#include "app/Services.h"
#include "app/ThreadGroup.h"
#include "app/WorkScope.h"
#include "modemapi/HttpClient.h"
#include "monitor/FirmwareCheck.h"
#include "platform/StepQueue.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>

class QMessageBox;
class QTimer;

namespace tarvo {

class AlertPanelController;
class Balloon;
class BalloonPresenter;
class CustomView;
class RepeatingTimer;
class StatusItem;
struct WebUIFields;

/// Owns all that the running companion knows, and carries out what it does.
///
/// Lives on the main thread. The polling worker and the display thread run operations of it, as their groups say;
/// their work belongs to one attachment of a device (`WorkScope`), and ends without effect when that is over.
class MainController {
public:
    explicit MainController(Services services);
    ~MainController();
    MainController(const MainController &) = delete;
    MainController &operator=(const MainController &) = delete;

    /// The shared flags and amounts.
    ModemState &state() { return state_; }

    // --- Start-up, sleep and device events: app/MainController.cpp (main thread) -----------------------------------

    /// Registers for sleep and wake.
    void awakeFromNib();
    /// Creates the watcher and the icon, then starts to watch the network.
    void applicationDidFinishLaunching();
    /// Asks the application to end. @return false: the window itself stays
    bool windowShouldClose();
    /// Lets go of the watcher. @return 1, terminate now
    int applicationShouldTerminate();
    void applicationWillTerminate();
    void machineWillSleep();
    /// Starts polling again, with the router address from before, when the modem's interface has a router.
    void machineDidWake();

    /// A supported interface has IPv4 state. Without a router in @p ready nothing changes.
    void procECMReady(const ReadyDictionary &ready);
    void procInterfaceRemoved(const QString &bsdName);
    /// The device is up but has no router yet.
    void waitingIPv4Ready();
    void startGetModemInfo();

    /// @return the path of the status page on the modem's server
    QString getNetInfoAddress() const;
    QString getConnectModeAddress() const;
    void setcurrentNetWorkStatus(int status);
    void setNetWorkTransferType(int type);
    void setNetWorkTransferTypeByNewNetStatus(int status);

    QString getAppPath() const;
    /// @return whether the application was started; false for a nil path
    bool launchAppFromPath(const std::optional<QString> &path);
    void openApp();

    // --- Requests to the modem: modemapi/MainController_requests.cpp (any thread; blocks up to 5 s) ----------------

    /// Sends the set form @p httpBody, extended by the session token, to @p url.
    /// @param errorBack  set to the transport's error text; may be null
    /// @return the answer; empty when nothing came back; nil when it is no UTF-8; a fixed failure text when the modem
    ///         gives no session
    std::optional<QString> setWebRequestToServer(const QString &url, const QString &httpBody,
                                                 std::optional<QString> *errorBack);
    /// Fetches @p url with itself as the "Referer" header. Errors are logged, never handed back in @p errorBack.
    /// @return the answer; empty when nothing came back; nil when it is no UTF-8
    std::optional<QString> getContentFormRefererRequest(const QString &url, std::optional<QString> *errorBack);
    /// Runs the get command @p command, which may carry further query parts.
    /// @return the answer; nil for a nil command or when there is no text
    std::optional<QString> getWebRequestContent(const std::optional<QString> &command);
    /// Runs the set command @p command, which may carry further form fields.
    /// @return whether the modem reported success; false for a nil command
    bool setWebRequestWithId(const std::optional<QString> &command);

    // --- Connection and dial mode: modemapi/MainController_predicates.cpp (any thread) -----------------------------

    /// @return the connection status in @p content; nil when there is none
    std::optional<QString> getConnectionStatusWithWebContent(const std::optional<QString> &content) const;
    /// @return the dial mode in @p content; nil when there is none or the configuration does not want it
    std::optional<QString> getConnectMode(const std::optional<QString> &content) const;
    bool isConnectedWithStautusContent(const std::optional<QString> &status) const;
    /// Keeps the answer in `isAutoConnectOn_`.
    bool isAutoConnect(const std::optional<QString> &dialMode);

    // --- Status snapshot: monitor/MainController_snapshot.cpp (polling worker) -------------------------------------

    /// Turns the status page into the snapshot, and starts a balloon sequence.
    void setAllStatusByUrlContents(const QString &content);

    // --- Polling: monitor/MainController_polling.cpp ---------------------------------------------------------------

    /// Shows the icon as online and starts a polling worker (main thread).
    void startGetModemStatus();
    /// The polling worker's body: one pass a second until the worker is stopped.
    void newUpdateStatus();
    void timerHandler(const std::shared_ptr<RepeatingTimer> &timer);
    /// One pass: fetches the status page and, when it came, runs every step that depends on it.
    void updateModemStatus();
    /// Stops polling, resets the snapshot and shows the removal (main thread). Returns at once.
    void stopGetModemStatus();
    /// Applies the rules of the modem's start-up states in @p content.
    void checkModemMainState(const QString &content);
    /// Sends the computer's clock to the modem.
    void setPcDate();
    void startConnectStatusTimer();

    // --- Firmware check: monitor/MainController_firmware.cpp -------------------------------------------------------

    /// Asks the modem for new firmware and keeps the answer in `isHaveNewVersion_` (polling worker).
    void checkFotaUpdateWhenConnected();
    /// Runs that check when @p content, the status page, reads connected: for the first time in the calling thread's
    /// attachment, then every ten minutes (polling worker).
    void checkFotaUpdateWhenDue(const QString &content);
    /// Shows the update panel; returns at once.
    void showAlertMsgForUpdate();

    // --- Status items and balloon: ui/MainController_statusitem.cpp, ui/MainController_balloon.cpp -----------------

    /// Creates the status items and the icon, once (main thread).
    void startToolbarStatus();
    /// The pointer came over the icon: starts a balloon sequence unless one runs (main thread).
    void mouseEnteredHandle();
    /// Starts a balloon sequence unless one runs (any thread).
    void startDisPlayUIStatusThread();
    /// Closes the balloon if one is shown; otherwise opens one with @p text, unless that is nil or empty.
    void toggleAttachedWindowAtPoint(const std::optional<QString> &text);
    /// Brings icon, tip and click flags up to date for one display type, 5 to 8 (display thread).
    /// @return the text that the balloon must show now; empty for none
    QString getDisplayStatusByType(int type);
    /// The balloon sequence (display thread).
    void displayUIStatus();
    /// Marks the icon for three seconds when @p timer is `firstStatusTimer_` (main thread).
    void statusCheck(const QTimer *timer);
    void disSendcondStatus();

    // --- Web pages: ui/MainController_webui.cpp --------------------------------------------------------------------

    /// The icon's click: opens the page that the news calls for.
    void openHomepage();
    void openWebUISmsPage();
    void openNewVersionPage();
    void openDateLimitPage();
    /// Opens the modem's own web server.
    void openWebUI();
    /// Opens the modem's pages once for each plug-in, when @p content says that the user has to enter something there
    /// (polling worker).
    void openWebUIForQX740(const QString &content);

    // --- Access points: apn/MainController_apn.cpp (polling worker) ------------------------------------------------

    /// Adds the access-point record @p record to the modem. @return whether the modem took it
    bool setApn(const QString &record);
    /// Makes the access point at @p index the modem's default; 199 first adds the not-found record.
    bool setDefaultApn(int index);
    /// Tells the modem, once, that this computer's access points are complete.
    void setApnReady();
    void setLpm();
    void setOnline();
    /// @return the index that the modem's default name asks for among @p records; nil means no records were looked for
    int getDefaultApnIndex(const std::optional<QStringList> &records);
    bool isPCApnType();
    /// @return whether this computer's records may be sent; true at most once for an attachment
    bool canSetApnToServer();
    /// Sends the records of the profile folder and chooses the default, once for an attachment.
    void setAllApnFromPC();

private:
    void log(const QString &line) const;

    /// Runs @p step under the attachment's lock, unless the calling thread's work is over.
    /// @return whether it ran
    bool whileAttached(const std::function<void()> &step);
    /// Runs @p step on the main thread, later and in order, unless the calling thread's work is over by then.
    void onMainThread(std::function<void()> step);
    /// Ends all work of the present attachment: its requests, its waits, and what it has not yet put into effect.
    void endAttachment();
    /// Starts @p work of the present attachment, of a new one if the last has ended, on a thread of its own.
    /// @return whether it started; false when the calling thread's own work is over
    bool startThread(std::function<void()> work);

    /// What a plain read brings: the text, or why there is none.
    struct WebContent {
        std::optional<QString> text;
        std::optional<QString> error;
    };

    /// Makes @p request over the calling thread's own connection, tied to the modem's interface.
    HttpAnswer exchange(HttpRequest request);
    WebContent plainContent(const QString &url);
    /// Fetches the status page in the configured way. @return its text; nil, with a line in the log, when there is none
    std::optional<QString> statusPage();

    /// @return the address of @p path on the modem's server
    QString modemUrl(const QString &path) const;
    /// @return the address of the modem's own pages
    QString modemServer() const;
    /// Opens @p page in the user's browser; a text that is no URL opens nothing.
    void openPage(const QString &page);
    /// Opens the page configured as @p module; nothing when there is none.
    void openConfiguredPage(const QString &module);

    /// Waits, unless the calling thread's work ends before.
    void pause(std::chrono::seconds duration);
    /// One step of the balloon sequence: shows what is new for one display type, then waits.
    void displayNews(int type);
    void closeBalloon(const QString &text);
    /// Asks the modem for its default access point. @return whether the user has to complete it
    bool needsUserForApn(const WebUIFields &fields);
    /// Opens the modem's pages, unless they were opened by themselves since the device came.
    void openWebUIOnce();
    /// @return how many access points of this computer the modem holds; 0 when it does not tell
    quint32 countPCApns();

    bool isBalloonShown() const;
    void showAbout();
    void addMenuActions();
    void createStatusItems(const QString &imageName);
    void removeStatusItems();
    /// Sets the icon's image by name (main thread).
    void setStatusImage(const QString &imageName);
    /// Sets the icon's tool tip (main thread).
    void setStatusToolTip(const QString &toolTip);

    Services services_;
    StepQueue mainThread_; ///< receives the steps that other threads post
    ModemState state_;

    std::unique_ptr<RouterObserver> routerObserver_;
    std::unique_ptr<CustomView> cview_;
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<StatusItem> statusDisplay_;
    std::unique_ptr<QMessageBox> aboutDialog_;
    std::shared_ptr<AlertPanelController> alertPanel_;
    std::unique_ptr<BalloonPresenter> balloonPresenter_;
    std::unique_ptr<Balloon> attachedWindow; ///< the balloon while it is shown
    FirmwareCheckSchedule firmwareChecks_; ///< of the polling worker, guarded by `attachmentMutex_`

    Guarded<std::optional<QString>> routerAddr_;
    /// The interface behind which the router is; requests are tied to it.
    Guarded<std::optional<QString>> routerInterface_;
    Guarded<QString> notFoundDefaultApn_{notFoundApnTemplate()};

    /// Held while flags are written on behalf of an attachment, never while waiting.
    std::mutex attachmentMutex_;
    /// The polling worker's run loop: stopping it ends the attachment's work.
    std::optional<std::stop_source> updateThreadRunLoop_;
    /// Fires once a second for the polling worker; guarded by `attachmentMutex_`.
    std::shared_ptr<RepeatingTimer> modemStatusTimer_;
    std::unique_ptr<QTimer> firstStatusTimer_;
    std::unique_ptr<QTimer> secondStatusTimer_;

    /// Last: its destructor waits for the threads that use all of the above.
    ThreadGroup threads_;
};

} // namespace tarvo
