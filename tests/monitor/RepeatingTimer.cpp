#include "monitor/RepeatingTimer.h"

#include "simulator/surroundings/ManualClock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace tarvo;
using namespace std::chrono_literals;

TEST(RepeatingTimer, NeitherDriftsNorPilesUp)
{
    const Clock::TimePoint due{10s};
    EXPECT_EQ(nextFireTime(due, 1s, due), due + 1s);
    EXPECT_EQ(nextFireTime(due, 1s, due + 300ms), due + 1s) << "a late start does not shift the rate";
    EXPECT_EQ(nextFireTime(due, 1s, due + 1s), due + 2s);
    EXPECT_EQ(nextFireTime(due, 1s, due + 4700ms), due + 5s) << "missed fires are dropped";
}

TEST(RepeatingTimer, EachFireGoesToOneOfTheThreadsThatWait)
{
    ManualClock clock;
    RepeatingTimer timer(clock, 1s);
    std::stop_source stop;
    std::atomic<int> fires{0};
    const auto wait = [&] {
        while (timer.waitForFire(stop.get_token()))
            ++fires;
    };
    std::thread one(wait);
    std::thread other(wait);
    for (int second = 1; second <= 20; ++second) {
        ASSERT_TRUE(clock.waitForSleepers(2));
        EXPECT_EQ(fires, second - 1);
        clock.advance(1s);
    }
    ASSERT_TRUE(clock.waitForSleepers(2));
    stop.request_stop();
    one.join();
    other.join();
    EXPECT_EQ(fires, 20);
}
