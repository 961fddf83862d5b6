#include "ui/DisplayStatus.h"

#include "tests/support/PrintQt.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

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
    state.openUpdateUrlWhileHasNewVersion_ = state.openDateLimitUrlWhileHasLimit_ = true;
    for (const int type : {4, 5, 6, 7, 8})
        EXPECT_EQ(evaluateDisplayType(state, type), (DisplayStatus{.tip = QString()}));
    EXPECT_FALSE(state.openUpdateUrlWhileHasNewVersion_ || state.openDateLimitUrlWhileHasLimit_);
    state.haveDataLimitFlag_ = true;
    EXPECT_EQ(evaluateDisplayType(state, 9), DisplayStatus()) << "a pending notice keeps the tip";

    state.stopProcModemStatus_ = state.isHaveNewVersion_ = true;
    EXPECT_EQ(evaluateDisplayType(state, 5), DisplayStatus());
    EXPECT_FALSE(state.previousHaveNewVersion_);
}

TEST(DisplayStatus, TellsNewsOnceForEachTimeItComesUp)
{
    struct Case {
        int type;
        std::atomic<bool> ModemState::*news;
        QString image;
        QString text;
    };
    const Case cases[] = {
        {5, &ModemState::isHaveNewVersion_, u"newVersion"_s, u"HaveNewVersionTipWhenConnected"_s},
        {6, &ModemState::isHaveDataLimitExceedForThreedays_, u"dataFluxReached"_s, u"DatalimitExceedForThreedays"_s},
        {7, &ModemState::isHaveDataLimitExceedForOneMonth_, u"dataFluxExceeded"_s, u"DatalimitExceed"_s},
        {8, &ModemState::isHaveDataLimitReachedForOneMonth_, u"dataFluxExceeded"_s, u"DatalimitReachedForOneMonth"_s},
    };
    for (const Case &c : cases) {
        WithDevice state;
        const DisplayStatus first{c.image, c.text, c.text, c.type == 5};
        const DisplayStatus again{c.image, c.text, QString(), false};
        state.*c.news = true;
        EXPECT_EQ(evaluateDisplayType(state, c.type), first) << c.type;
        EXPECT_EQ(evaluateDisplayType(state, c.type), again) << c.type;
        state.*c.news = false;
        EXPECT_EQ(evaluateDisplayType(state, c.type).image, QString()) << c.type;
        state.*c.news = true;
        EXPECT_EQ(evaluateDisplayType(state, c.type), first) << c.type;
    }
}

TEST(DisplayStatus, LaterNewsTakesTheClick)
{
    WithDevice state;
    state.isHaveNewVersion_ = state.isHaveDataLimitExceedForThreedays_ = state.haveDataLimitFlag_ = true;
    state.openDateLimitUrlWhileHasLimit_ = true;
    evaluateDisplayType(state, 5);
    EXPECT_TRUE(state.openUpdateUrlWhileHasNewVersion_);
    EXPECT_FALSE(state.openDateLimitUrlWhileHasLimit_);
    evaluateDisplayType(state, 6);
    EXPECT_FALSE(state.openUpdateUrlWhileHasNewVersion_);
    EXPECT_TRUE(state.openDateLimitUrlWhileHasLimit_);
    evaluateDisplayType(state, 7);
    EXPECT_FALSE(state.openDateLimitUrlWhileHasLimit_) << "the last type without news decides";
}

TEST(DisplayStatus, TellsAnOverrunOnceAndKeepsItsMagnitude)
{
    WithDevice state;
    state.isHaveDataLimitReachedForOneMonth_ = true;
    state.m_surplusData = -1.5F;
    EXPECT_EQ(evaluateDisplayType(state, 8).tip, u"DatalimitReachedForOneMonth_Negative"_s);
    EXPECT_EQ(state.m_surplusData, 1.5F);
    EXPECT_EQ(evaluateDisplayType(state, 8).tip, u"DatalimitReachedForOneMonth"_s);
    state.m_surplusData = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(evaluateDisplayType(state, 8).tip, u"DatalimitReachedForOneMonth"_s);
}

TEST(DisplayStatus, WritesAmountsInTheUsersWay)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English));
    EXPECT_EQ(dataAmount(10), u"10.00 GB"_s);
    EXPECT_EQ(dataAmount(-0.5), u"-512.00 MB"_s);
    EXPECT_EQ(dataAmount(1e30), u"1E+30 GB"_s);
    EXPECT_EQ(dataAmount(std::numeric_limits<double>::quiet_NaN()), u"nan GB"_s);
    QLocale::setDefault(QLocale(QLocale::French));
    EXPECT_EQ(dataAmount(1.5), u"1,50 Go"_s);
    QLocale::setDefault(before);
}
