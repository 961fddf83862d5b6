#pragma once

#include "platform/Workspace.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

namespace tarvo {

/// A desktop that only notes what it is asked to open, and sleeps when told to.
class SimulatedWorkspace final : public Workspace {
public:
    /// @return whether the page was opened
    using Opener = std::function<bool(const QUrl &url)>;

    /// @param opener  also handed every valid URL; may be empty, which opens them all
    explicit SimulatedWorkspace(Opener opener = {});

    void addSleepObserver(Handler willSleep, Handler didWake) override;
    void addActivityObserver(std::function<void(bool active)> changed) override;
    void openURL(const QUrl &url, Handler failed) override;
    bool launchApplication(const QString &path) override;

    /// The page that was handed over last turns out not to open.
    void refuse();
    /// Tells the observers that the machine is about to sleep; it sleeps when this returns.
    void sleep();
    /// Tells the observers that the machine has woken.
    void wake();

    /// Tells the observers whether the user's session is the one that is looked at.
    void setActive(bool active);

    // The valid addresses and the paths that were asked for, the oldest first.
    const QList<QUrl> &openedURLs() const { return m_openedURLs; }
    const QStringList &launchedPaths() const { return m_launchedPaths; }

private:
    Opener m_opener;
    std::vector<std::pair<Handler, Handler>> m_observers;
    std::vector<std::function<void(bool active)>> m_activityObservers;
    QList<QUrl> m_openedURLs;
    Handler m_failed; ///< of the last of them
    QStringList m_launchedPaths;
};

} // namespace tarvo
