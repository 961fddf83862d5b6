#include "app/HandOver.h"

#include "status/NewsEffect.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(HandOver, KeepsWhatCanBe)
{
    const HandOver whole{
        .plugIns = {{.identity = {7, u"02:00:00:00:00:01"_s},
                     .state = {.openedPages = true,
                               .accessPoints = {.examined = true, .complete = true, .sent = 3},
                               .hasNewVersion = true,
                               .seenNews = {DisplayType::NewVersion, DisplayType::MonthlyLimitReached}}},
                    {.identity = {8}}},
        .deeds = {{u"a"_s, RecentDeeds::openedPages, Clock::TimePoint(5min)},
                  {u"a"_s, DisplayType::MonthlyLimitReached, Clock::TimePoint(6min)}}};
    EXPECT_EQ(readHandOver(toText(whole)), whole);
    for (const QByteArray &nothing :
         {QByteArray(), QByteArray("[7]"), QByteArray("{\"plugIns\":7}"),
          QByteArray("{\"plugIns\":[7,{\"index\":-1},{}]}"),
          QByteArray("{\"deeds\":[{\"device\":\"a\",\"kind\":9},{\"device\":\"a\"},{\"kind\":5}]}"),
          toText(whole).leftJustified(65 * 1024)})
        EXPECT_EQ(readHandOver(nothing), HandOver()) << nothing.left(80).constData();
    HandOver many;
    for (int index = 1; index <= 400; ++index)
        many.deeds.append({u"a"_s, RecentDeeds::openedPages, {}});
    many.plugIns.fill({.identity = {7}}, 100);
    EXPECT_EQ(readHandOver(toText(many)).deeds.size(), RecentDeeds::longest);
    EXPECT_EQ(readHandOver(toText(many)).plugIns.size(), PlugIns::longest);
}
