#include "app/ModemState.h"

#include <gtest/gtest.h>

using namespace tarvo;

TEST(ModemState, DerivesTheTransferTypeFromTheNewStatus)
{
    ModemState state;
    const std::tuple<int, int, int> cases[] = {{0, 0, 2}, {0, 1, 0}, {0, 7, 1}, {1, 1, 2}, {1, 0, 1}, {3, 1, 0}};
    for (const auto &[current, next, type] : cases) {
        state.setcurrentNetWorkStatus(current);
        state.setNetWorkTransferTypeByNewNetStatus(next);
        EXPECT_EQ(state.netWorkTransferType_, type) << current << " -> " << next;
        EXPECT_EQ(state.currentNetWorkStatus_, current);
    }
}

TEST(ModemState, AStopForgetsTheDeviceAndHoldsBackTheNormalState)
{
    ModemState state;
    state.resetForReadyDevice();
    EXPECT_FALSE(state.haveNewVersionFlag_ || state.haveDataLimitFlag_ || state.stopProcModemStatus_);
    state.isHaveNewVersion_ = state.hasOpenedWebUI_ = state.isSetApnReady_ = state.isRoamOn_ = true;
    state.isAutoConnectOn_ = state.previousHaveDateLimitReached_ = state.previousHaveNewVersion_ = true;
    state.onlySetAPNFlag_ = false;
    state.m_useData = state.m_surplusData = 1;
    state.setcurrentNetWorkStatus(1);

    state.resetForStop();
    EXPECT_TRUE(state.stopProcModemStatus_ && state.haveNewVersionFlag_ && state.haveDataLimitFlag_
                && state.onlySetAPNFlag_);
    EXPECT_FALSE(state.isHaveNewVersion_ || state.hasOpenedWebUI_ || state.isSetApnReady_ || state.isRoamOn_
                 || state.isAutoConnectOn_ || state.previousHaveDateLimitReached_ || state.previousHaveNewVersion_);
    EXPECT_EQ(state.m_useData + state.m_surplusData, 0);
    EXPECT_EQ(state.netWorkTransferType_, 1) << "derived before the status is reset";
    EXPECT_EQ(state.currentNetWorkStatus_, 0);
}
