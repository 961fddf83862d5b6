#pragma once

#include <QString>
#include <QUrl>

#include <functional>

namespace tarvo {

/// @return whether @p url is valid and names all that it takes to open it: a scheme, and a host for a page on the web
bool isWholeAddress(const QUrl &url);

/// The user's desktop: sleep and wake of the machine, who is in front of it, and its handlers for addresses and applications.
/// Used on the main thread only; no operation blocks.
class Workspace {
public:
    /// What is done when the machine sleeps or wakes, or an address did not open.
    using Handler = std::function<void()>;

    virtual ~Workspace() = default;

    /// Calls @p willSleep before the machine sleeps, which waits until it returned, and @p didWake after it woke.
    /// Several observers are called in the order in which they came.
    virtual void addSleepObserver(Handler willSleep, Handler didWake) = 0;

    /// Calls @p changed with false when the user's session is no longer the one that is looked at, as another user has come
    /// to the screen, and with true when it is again. A session is active until something else is told.
    virtual void addActivityObserver(std::function<void(bool active)> changed) = 0;

    /// Hands @p url to the desktop's handler.
    /// @param failed  called once when it is no whole address or nothing opened it: before this returns, or some seconds
    ///                later, but not after the workspace is gone. Never called when the page opened
    virtual void openURL(const QUrl &url, Handler failed) = 0;

    /// Starts the application whose executable or bundle is at @p path. @return whether it was started
    virtual bool launchApplication(const QString &path) = 0;
};

} // namespace tarvo
