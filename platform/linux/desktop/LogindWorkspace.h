#pragma once

#include "platform/Workspace.h"
#include "platform/linux/desktop/LogindSession.h"
#include "platform/linux/desktop/LogindSleep.h"
#include "platform/linux/desktop/PagePortal.h"

#include <QObject>

#include <functional>
#include <utility>
#include <vector>

namespace tarvo {

/// The freedesktop.org desktop: sleep, wake and the active session from logind, addresses and applications through the desktop's handlers.
///
/// Opening an address needs a QGuiApplication.
class LogindWorkspace final : public Workspace {
public:
    /// @param systemBus  outlives this object, as @p sessionBus and @p log do
    LogindWorkspace(BusConnection &systemBus, BusConnection &sessionBus, SystemLog &log);

    void addSleepObserver(Handler willSleep, Handler didWake) override;
    void addActivityObserver(std::function<void(bool active)> changed) override;
    /// Runs `xdg-open` of xdg-utils, whose exit status tells whether the page opened; where it cannot be started, asks the
    /// desktop's portal, and then what Qt knows. Where this program may not gain privileges, as a service that is locked in,
    /// neither may a browser that it starts: then only the portal is asked.
    void openURL(const QUrl &url, Handler failed) override;
    /// @param path  an executable file, which is started directly, or the desktop file of an application, which is
    ///              handed to `gio launch` of GLib
    /// @return whether the file could be started or handed over; what becomes of it then is not known
    bool launchApplication(const QString &path) override;

private:
    std::vector<std::pair<Handler, Handler>> m_observers;
    std::vector<std::function<void(bool active)>> m_activityObservers;
    LogindSleep m_sleep;
    LogindSession m_session;
    PagePortal m_portal;
    QObject m_openings; ///< hears what becomes of addresses that were handed over
};

} // namespace tarvo
