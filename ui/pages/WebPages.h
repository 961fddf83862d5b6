#pragma once

#include "modemapi/StatusSnapshot.h"
#include "status/CompanionStatus.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

class ConfigManager;
class ModemClient;
class StepQueue;
class Workspace;
struct WebUIFields;

/// Opens web pages for the user, and knows which were opened for this modem and what a click on the icon opens.
///
/// On the main thread unless said otherwise.
class WebPages {
public:
    /// @return the address of the modem that is plugged in; nil when there is none
    using Router = std::function<std::optional<QString>()>;
    /// Told of a page that could not be opened, on the main thread; perhaps some seconds after it was asked for.
    using CouldNotOpen = std::function<void(const QString &page)>;

    /// Asked on the main thread before the modem's pages open by themselves. @return whether they may
    using MayOpenByItself = std::function<bool()>;

    /// Everything referred to outlives this object.
    /// @param mainThread  carries the opening of pages to the main thread
    WebPages(Workspace &workspace, const ConfigManager &settings, const SharedSnapshot &snapshot, StepQueue &mainThread,
             Router router, CouldNotOpen couldNotOpen, MayOpenByItself mayOpenByItself = {});

    /// The icon's click: opens the page that the news calls for.
    void openHomepage();
    // Open the pages that the settings name for messages, new firmware and data limits; nothing when they name none.
    void openWebUISmsPage();
    void openNewVersionPage();
    void openDateLimitPage();
    /// Opens the modem's own web server; nothing when no modem is there.
    void openWebUI();
    /// Opens @p page in the user's browser. "%@" in it stands for the modem's address.
    void openPage(const QString &page);
    /// Opens the page of that kind. @return false when there is none
    bool open(Page page);

    /// @return whether there is a page of that kind at present
    bool canOpen(Page page) const { return address(page).has_value(); }
    /// @return the page that the icon's click opens; `None` when it would open nothing
    Page clickPage() const;

    /// Opens the modem's pages once for each plug-in, when @p content says that the user has to enter something there
    /// (polling worker).
    void openWebUIForQX740(ModemClient &client, const QString &content);
    /// Applies the rules of the modem's start-up states in @p content (polling worker). Nothing calls it at present.
    void checkModemMainState(ModemClient &client, const QString &content);

    /// The news decide what a click opens; nil leaves that as it is. Any thread.
    void setClickTargets(std::optional<bool> updatePage, std::optional<bool> limitPage);

    /// @return whether the modem's pages have opened by themselves since it came. Any thread, as the next two
    bool hasOpenedWebUI() const { return hasOpenedWebUI_; }
    /// @return whether a click on the icon opens the firmware page
    bool openUpdateUrlWhileHasNewVersion() const { return openUpdateUrlWhileHasNewVersion_; }
    /// @return whether data-limit news call for their page; a click does not ask
    bool openDateLimitUrlWhileHasLimit() const { return openDateLimitUrlWhileHasLimit_; }

    /// The device is another one, or gone, when no work is under way.
    /// @param hasOpenedWebUI  whether the modem's pages have opened by themselves for it
    void reset(bool hasOpenedWebUI = false);

    /// @return the application that `openApp` starts
    QString getAppPath() const;
    /// @return whether the application was started; false for a nil path
    bool launchAppFromPath(const std::optional<QString> &path);
    /// Starts the application at `getAppPath`. Nothing calls it at present.
    void openApp();

private:
    /// @return the address of the page of that kind; nil when there is none at present
    std::optional<QString> address(Page page) const;
    std::optional<QString> withRouter(const QString &page) const;
    /// Opens the page configured as @p module; nothing when there is none.
    void openConfiguredPage(const QString &module);
    /// Asks the modem for its default access point. @return whether the user has to complete it
    bool needsUserForApn(ModemClient &client, const WebUIFields &fields);
    /// Opens the modem's pages, unless they were opened by themselves since the device came.
    void openWebUIOnce(const Work &work);
    void openPageFor(const Work &work, const QString &page);

    Workspace &m_workspace;
    const ConfigManager &m_settings;
    const SharedSnapshot &m_snapshot;
    StepQueue &m_mainThread;
    const Router m_router;
    const std::shared_ptr<const CouldNotOpen> m_couldNotOpen; ///< a page that fails after our end tells nobody
    const MayOpenByItself m_mayOpenByItself; ///< empty when they always may

    std::atomic<bool> hasOpenedWebUI_{false}; ///< the modem's pages were opened by themselves
    std::atomic<bool> openUpdateUrlWhileHasNewVersion_{false}; ///< a click opens the firmware page
    std::atomic<bool> openDateLimitUrlWhileHasLimit_{false};
    /// Whether the user had to complete the default access point when the log was told; touched on behalf of the present
    /// attachment only.
    std::optional<bool> m_loggedNeed;
    std::atomic<std::int32_t> m_counter{0}; ///< compared in `checkModemMainState`; nothing increments it
};

} // namespace tarvo
