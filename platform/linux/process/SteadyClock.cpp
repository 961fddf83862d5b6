#include "platform/linux/process/SteadyClock.h"

#include <time.h>

#include <condition_variable>
#include <mutex>

namespace tarvo {

Clock::TimePoint SteadyClock::now() const
{
    return std::chrono::steady_clock::now();
}

Clock::TimePoint SteadyClock::nowAlsoAsleep() const
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return TimePoint(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

bool SteadyClock::waitUntil(TimePoint deadline, std::stop_token stop)
{
    std::mutex mutex;
    std::condition_variable wake;
    const std::stop_callback stopped(stop, [&] {
        const std::scoped_lock lock(mutex);
        wake.notify_one();
    });
    std::unique_lock lock(mutex);
    wake.wait_until(lock, deadline, [&] { return stop.stop_requested(); });
    return !stop.stop_requested();
}

} // namespace tarvo
