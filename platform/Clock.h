#pragma once

#include <chrono>
#include <stop_token>

namespace tarvo {

/// Monotonic time, and waits that can be ended early. Used on every thread.
class Clock {
public:
    /// A moment since an arbitrary start; it goes on through changes of the computer's date, and stands
    /// still while the machine sleeps, except where it says otherwise.
    using TimePoint = std::chrono::steady_clock::time_point;

    virtual ~Clock() = default;

    /// @return this moment
    virtual TimePoint now() const = 0;

    /// @return this moment by a clock of its own, which also goes on while the machine sleeps
    virtual TimePoint nowAlsoAsleep() const = 0;

    /// Blocks the calling thread until @p deadline or until @p stop is requested.
    /// @return true when the deadline was reached, false when the wait was ended early
    virtual bool waitUntil(TimePoint deadline, std::stop_token stop) = 0;
};

} // namespace tarvo
