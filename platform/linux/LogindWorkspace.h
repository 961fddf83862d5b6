#pragma once

#include "platform/Workspace.h"
#include "platform/linux/LogindSleep.h"

#include <QObject>

#include <utility>
#include <vector>

namespace tarvo {

/// The freedesktop.org desktop: sleep and wake from logind, addresses and applications through the desktop's handlers.
///
/// Opening an address needs a QGuiApplication.
class LogindWorkspace final : public Workspace {
public:
    /// @param systemBus  outlives this object, as @p log does
    LogindWorkspace(BusConnection &systemBus, SystemLog &log);

    void addSleepObserver(Handler willSleep, Handler didWake) override;
    /// Runs `xdg-open` of xdg-utils, whose exit status tells whether the page opened, and without it what Qt knows.
    void openURL(const QUrl &url, Handler failed) override;
    /// @param path  an executable file, which is started directly, or the desktop file of an application, which is
    ///              handed to `gio launch` of GLib
    /// @return whether the file could be started or handed over; what becomes of it then is not known
    bool launchApplication(const QString &path) override;

private:
    std::vector<std::pair<Handler, Handler>> m_observers;
    LogindSleep m_sleep;
    QObject m_openings; ///< hears what becomes of addresses that were handed over
};

} // namespace tarvo
