#include "ui/DisplayStatus.h"

#include "tests/support/PrintQt.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

struct WithDevice : ModemState {
    WithDevice() { resetForReadyDevice(); }
};

} // namespace

TEST(DisplayStatus, WithoutNewsThereIsNoTipAndWithoutADeviceNoChange)
{
    WithDevice state;
    EXPECT_EQ(evaluateDisplayType(state, 4), (DisplayStatus{.tip = QString()}));
    state.haveDataLimitFlag_ = true;
    EXPECT_EQ(evaluateDisplayType(state, 9), DisplayStatus()) << "a pending notice keeps the tip";

    state.stopProcModemStatus_ = state.isHaveNewVersion_ = true;
    EXPECT_EQ(evaluateDisplayType(state, 5), DisplayStatus());
    EXPECT_FALSE(state.previousHaveNewVersion_);
}

TEST(DisplayStatus, TellsNewsOnceForEachTimeItComesUp)
{
    const std::tuple<int, std::atomic<bool> ModemState::*, QString, QString> cases[] = {
        {5, &ModemState::isHaveNewVersion_, u"newVersion"_s, u"HaveNewVersionTipWhenConnected"_s},
        {6, &ModemState::isHaveDataLimitExceedForThreedays_, u"dataFluxReached"_s, u"DatalimitExceedForThreedays"_s},
        {7, &ModemState::isHaveDataLimitExceedForOneMonth_, u"dataFluxExceeded"_s, u"DatalimitExceed"_s},
        {8, &ModemState::isHaveDataLimitReachedForOneMonth_, u"dataFluxExceeded"_s, u"DatalimitReachedForOneMonth"_s},
    };
    for (const auto &[type, news, image, text] : cases) {
        WithDevice state;
        for (int time = 1; time <= 2; ++time) {
            state.*news = true;
            EXPECT_EQ(evaluateDisplayType(state, type), (DisplayStatus{image, text, text, type == 5})) << type;
            EXPECT_EQ(evaluateDisplayType(state, type), (DisplayStatus{image, text, QString(), false})) << type;
            state.*news = false;
            EXPECT_EQ(evaluateDisplayType(state, type), (DisplayStatus{.tip = QString()})) << type;
        }
    }
}

TEST(DisplayStatus, TheLastTypeTakesTheClick)
{
    WithDevice state;
    state.isHaveDataLimitExceedForThreedays_ = state.haveDataLimitFlag_ = state.openDateLimitUrlWhileHasLimit_ = true;
    const std::tuple<int, bool, bool, bool> cases[] = {
        {5, true, true, false}, {5, false, false, false}, {5, true, true, false},
        {6, true, false, true}, {7, true, false, false},
    };
    for (const auto &[type, newVersion, update, limit] : cases) {
        state.isHaveNewVersion_ = newVersion;
        evaluateDisplayType(state, type);
        EXPECT_EQ(state.openUpdateUrlWhileHasNewVersion_, update) << type;
        EXPECT_EQ(state.openDateLimitUrlWhileHasLimit_, limit) << type;
    }
}

TEST(DisplayStatus, TellsAnOverrunOnceAndKeepsItsMagnitude)
{
    WithDevice state;
    state.isHaveDataLimitReachedForOneMonth_ = true;
    state.m_surplusData = -1.5F;
    EXPECT_EQ(evaluateDisplayType(state, 8).tip, u"DatalimitReachedForOneMonth_Negative"_s);
    EXPECT_EQ(state.m_surplusData, 1.5F);
    EXPECT_EQ(evaluateDisplayType(state, 8).tip, u"DatalimitReachedForOneMonth"_s);
}

TEST(DisplayStatus, WritesAmountsInTheUsersWay)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English));
    EXPECT_EQ(dataAmount(-0.5), u"-512.00 MB"_s);
    EXPECT_EQ(dataAmount(1e30), u"1E+30 GB"_s);
    EXPECT_EQ(dataAmount(std::numeric_limits<double>::quiet_NaN()), u"nan GB"_s);
    QLocale::setDefault(QLocale(QLocale::French));
    EXPECT_EQ(dataAmount(1.5), u"1,50 Go"_s);
    QLocale::setDefault(before);
}
