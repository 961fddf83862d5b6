#include "platform/linux/process/SteadyClock.h"

#include <gtest/gtest.h>

#include <thread>

using namespace tarvo;
using namespace std::chrono_literals;

TEST(SteadyClock, WaitsUntilTheDeadlineOrTheStop)
{
    SteadyClock clock;
    std::stop_source source;
    const auto begin = clock.now();
    EXPECT_TRUE(clock.waitUntil(begin + 50ms, source.get_token()));
    EXPECT_GE(clock.now(), begin + 50ms);
    const std::jthread stopper([&] { source.request_stop(); });
    EXPECT_FALSE(clock.waitUntil(begin + 1h, source.get_token()));
}
