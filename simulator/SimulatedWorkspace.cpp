#include "simulator/SimulatedWorkspace.h"

namespace tarvo {

SimulatedWorkspace::SimulatedWorkspace(Opener opener)
    : m_opener(std::move(opener))
{
}

void SimulatedWorkspace::addSleepObserver(Handler willSleep, Handler didWake)
{
    m_observers.emplace_back(std::move(willSleep), std::move(didWake));
}

bool SimulatedWorkspace::openURL(const QUrl &url)
{
    if (!url.isValid())
        return false;
    m_openedURLs.append(url);
    return m_opener ? m_opener(url) : true;
}

bool SimulatedWorkspace::launchApplication(const QString &path)
{
    m_launchedPaths.append(path);
    return true;
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

} // namespace tarvo
