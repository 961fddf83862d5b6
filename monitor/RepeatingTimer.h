#pragma once

#include "platform/Clock.h"

#include <chrono>
#include <mutex>
#include <stop_token>

namespace tarvo {

/// @return the first of the times @p due + n × @p interval (n ≥ 1) that lies after @p now
Clock::TimePoint nextFireTime(Clock::TimePoint due, std::chrono::milliseconds interval, Clock::TimePoint now);

/// Fires at a fixed rate, first one interval after its creation, for the threads that wait for it.
///
/// Fires that nobody was ready for are dropped, they neither pile up nor shift the later ones. When several
/// threads wait, each fire goes to one of them.
class RepeatingTimer {
public:
    /// @param clock  outlives the timer
    RepeatingTimer(Clock &clock, std::chrono::milliseconds interval);

    /// Waits for the next fire. @return false when @p stop ended the wait
    bool waitForFire(std::stop_token stop);

private:
    Clock::TimePoint due() const;
    /// @return whether the fire at @p due was still to be had
    bool take(Clock::TimePoint due);

    Clock &m_clock;
    const std::chrono::milliseconds m_interval;
    mutable std::mutex m_mutex;
    Clock::TimePoint m_due;
};

} // namespace tarvo
