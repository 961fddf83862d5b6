#include "simulator/surroundings/SimulatedWorkspace.h"

namespace tarvo {

SimulatedWorkspace::SimulatedWorkspace(Opener opener)
    : m_opener(std::move(opener))
{
}

void SimulatedWorkspace::addSleepObserver(Handler willSleep, Handler didWake)
{
    m_observers.emplace_back(std::move(willSleep), std::move(didWake));
}

void SimulatedWorkspace::addActivityObserver(std::function<void(bool active)> changed)
{
    m_activityObservers.push_back(std::move(changed));
}

void SimulatedWorkspace::openURL(const QUrl &url, Handler failed)
{
    if (!isWholeAddress(url))
        return failed();
    m_openedURLs.append(url);
    m_failed = std::move(failed);
    if (m_opener && !m_opener(url))
        refuse();
}

bool SimulatedWorkspace::launchApplication(const QString &path)
{
    m_launchedPaths.append(path);
    return true;
}

void SimulatedWorkspace::refuse()
{
    if (m_failed)
        std::exchange(m_failed, {})();
}

void SimulatedWorkspace::sleep()
{
    for (const auto &[willSleep, didWake] : m_observers)
        willSleep();
}

void SimulatedWorkspace::wake()
{
    for (const auto &[willSleep, didWake] : m_observers)
        didWake();
}

void SimulatedWorkspace::setActive(bool active)
{
    for (const auto &changed : m_activityObservers)
        changed(active);
}

} // namespace tarvo
