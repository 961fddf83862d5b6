#include "platform/linux/x11/XScreen.h"

#include <gtest/gtest.h>

using namespace tarvo;

TEST(ToApplicationCoordinates, ScalesWithinTheMonitorThatHoldsTheCentre)
{
    const QList<ScaledScreen> screens{{QRect(0, 0, 1280, 800), 1}, {QRect(1280, 0, 960, 540), 2}};
    EXPECT_EQ(toApplicationCoordinates(QRect(1280 + 1800, 10, 48, 48), screens), QRect(1280 + 900, 5, 24, 24));
    EXPECT_EQ(toApplicationCoordinates(QRect(-90, 0, 24, 24), screens), QRect(-90, 0, 24, 24));
}
