#pragma once

#include <QString>
#include <QUrl>

#include <functional>

namespace tarvo {

/// The user's desktop: sleep and wake of the machine, and its handlers for addresses and applications.
/// Used on the main thread only; no operation blocks.
class Workspace {
public:
    /// What is done when the machine sleeps or wakes.
    using Handler = std::function<void()>;

    virtual ~Workspace() = default;

    /// Calls @p willSleep before the machine sleeps, which waits until it returned, and @p didWake after it woke.
    /// Several observers are called in the order in which they came.
    virtual void addSleepObserver(Handler willSleep, Handler didWake) = 0;

    /// Hands @p url to the desktop's handler. @return false when it is no valid URL or nothing handles it
    virtual bool openURL(const QUrl &url) = 0;

    /// Starts the application whose executable or bundle is at @p path. @return whether it was started
    virtual bool launchApplication(const QString &path) = 0;
};

} // namespace tarvo
