#include "status/UsageHistory.h"

#include <gtest/gtest.h>

using namespace tarvo;

TEST(UsageHistory, KeepsABoundedNumberOfEvenSamples)
{
    UsageHistory history;
    for (int second = 0; second < 100'000; ++second)
        history.add(std::chrono::seconds(second), second);
    const auto &samples = history.samples();
    EXPECT_LT(samples.size(), UsageHistory::mostSamples);
    EXPECT_GE(samples.size(), UsageHistory::mostSamples / 2 - 1);
    EXPECT_EQ(samples.first().gigabytes, 0);
    EXPECT_EQ(samples[2].sincePlugIn - samples[1].sincePlugIn, samples[1].sincePlugIn - samples[0].sincePlugIn);
}
