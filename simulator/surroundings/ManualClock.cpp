#include "simulator/surroundings/ManualClock.h"

#include <algorithm>

namespace tarvo {

Clock::TimePoint ManualClock::now() const
{
    const std::scoped_lock lock(m_mutex);
    return m_now;
}

bool ManualClock::waitUntil(TimePoint deadline, std::stop_token stop)
{
    std::unique_lock lock(m_mutex);
    const auto entry = m_deadlines.emplace(deadline, stop);
    m_changed.notify_all();
    m_changed.wait(lock, stop, [&] { return m_now >= deadline; });
    m_deadlines.erase(entry);
    return !stop.stop_requested();
}

void ManualClock::advance(std::chrono::nanoseconds duration)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_now += duration;
    }
    m_changed.notify_all();
}

bool ManualClock::waitForSleepers(std::size_t count, std::chrono::milliseconds limit) const
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [&] { return sleepers() >= count; });
}

std::size_t ManualClock::sleepers() const
{
    return static_cast<std::size_t>(
        std::count_if(m_deadlines.upper_bound(m_now), m_deadlines.end(),
                      [](const auto &deadline) { return !deadline.second.stop_requested(); }));
}

} // namespace tarvo
