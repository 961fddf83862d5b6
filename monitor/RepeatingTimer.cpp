#include "monitor/RepeatingTimer.h"

namespace tarvo {

Clock::TimePoint nextFireTime(Clock::TimePoint due, std::chrono::milliseconds interval, Clock::TimePoint now)
{
    if (now < due)
        return due + interval;
    return due + interval * ((now - due) / interval + 1);
}

RepeatingTimer::RepeatingTimer(Clock &clock, std::chrono::milliseconds interval)
    : m_clock(clock)
    , m_interval(interval)
    , m_due(clock.now() + interval)
{
}

bool RepeatingTimer::waitForFire(std::stop_token stop)
{
    while (true) {
        const Clock::TimePoint next = due();
        if (!m_clock.waitUntil(next, stop))
            return false;
        if (take(next))
            return true;
    }
}

Clock::TimePoint RepeatingTimer::due() const
{
    const std::scoped_lock lock(m_mutex);
    return m_due;
}

bool RepeatingTimer::take(Clock::TimePoint due)
{
    const std::scoped_lock lock(m_mutex);
    if (m_due != due)
        return false;
    m_due = nextFireTime(due, m_interval, m_clock.now());
    return true;
}

} // namespace tarvo
