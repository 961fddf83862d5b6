#include "status/NewsEffect.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(NewsEffect, OtherTypesAskForNothing)
{
    const StatusSnapshot all{.isHaveNewVersion_ = true,
                             .isHaveDataLimitReachedForOneMonth_ = true,
                             .isHaveDataLimitExceedForOneMonth_ = true,
                             .isHaveDataLimitExceedForThreedays_ = true};
    for (const int type : {4, 9})
        EXPECT_EQ(evaluateDisplayType(all, type, false), NewsEffect());
}

TEST(NewsEffect, TellsNewsOnceAndTheLastKindTakesTheClick)
{
    const std::tuple<int, bool StatusSnapshot::*, QString, QString> cases[] = {
        {5, &StatusSnapshot::isHaveNewVersion_, u"newVersion"_s, u"HaveNewVersionTipWhenConnected"_s},
        {6, &StatusSnapshot::isHaveDataLimitExceedForThreedays_, u"dataFluxReached"_s,
         u"DatalimitExceedForThreedays"_s},
        {7, &StatusSnapshot::isHaveDataLimitExceedForOneMonth_, u"dataFluxExceeded"_s, u"DatalimitExceed"_s},
        {8, &StatusSnapshot::isHaveDataLimitReachedForOneMonth_, u"dataFluxExceeded"_s,
         u"DatalimitReachedForOneMonth"_s},
    };
    for (const auto &[type, news, image, text] : cases) {
        const bool firmware = type == DisplayType::NewVersion;
        StatusSnapshot snapshot;
        NewsEffect expected;
        (firmware ? expected.clickOpensUpdatePage : expected.clickOpensLimitPage) = false;
        EXPECT_EQ(evaluateDisplayType(snapshot, type, true), expected) << type;

        snapshot.*news = snapshot.haveDataLimitFlag_ = snapshot.isHaveNewVersion_ = true;
        expected = {image, text, firmware, true, firmware, !firmware, false};
        EXPECT_EQ(evaluateDisplayType(snapshot, type, false), expected) << type;
        expected.balloonText.clear();
        expected.announcesUpdate = false;
        EXPECT_EQ(evaluateDisplayType(snapshot, type, true), expected) << type;
    }
}
