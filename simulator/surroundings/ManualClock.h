#pragma once

#include "platform/Clock.h"

#include <condition_variable>
#include <cstddef>
#include <map>
#include <mutex>
#include <stop_token>

namespace tarvo {

/// Time that stands still until it is advanced by hand.
class ManualClock final : public Clock {
public:
    TimePoint now() const override;
    TimePoint nowAlsoAsleep() const override { return now(); }
    bool waitUntil(TimePoint deadline, std::stop_token stop) override;

    /// Moves time on; every wait whose deadline has come by then ends.
    void advance(std::chrono::nanoseconds duration);

    /// Waits, for at most @p limit of real time, until at least @p count threads wait for a deadline still to come.
    /// @return whether they do
    bool waitForSleepers(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(10)) const;

private:
    std::size_t sleepers() const;

    mutable std::mutex m_mutex;
    mutable std::condition_variable_any m_changed;
    TimePoint m_now{std::chrono::hours(1)};
    std::multimap<TimePoint, std::stop_token> m_deadlines; ///< of the waits under way, some perhaps over already
};

} // namespace tarvo
