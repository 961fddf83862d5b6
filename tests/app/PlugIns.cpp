#include "app/PlugIns.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(PlugIns, RemembersTheLastOnesByIndexAndNothingOfAnUnknownInterface)
{
    PlugIns plugIns;
    for (int index = 0; index <= PlugIns::longest + 1; ++index) {
        EXPECT_EQ(plugIns.begin({index}), PlugInState());
        EXPECT_EQ(plugIns.current().isSamePlugIn({index, u"another address"_s}), index != 0);
        plugIns.end({.openedPages = true});
        EXPECT_FALSE(plugIns.current().isSamePlugIn({index}));
        plugIns.end({});
    }
    EXPECT_EQ(plugIns.all().size(), PlugIns::longest);
    EXPECT_FALSE(plugIns.begin({1}).openedPages) << "the oldest is forgotten";
    EXPECT_TRUE(plugIns.begin({2}).openedPages);
    plugIns.end({});
    EXPECT_EQ(plugIns.all().last(), (PlugIn{.identity = {2}})) << "what was done last counts";
}
