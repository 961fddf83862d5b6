#include "app/command/StateText.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(StateText, IsOneLineAndEscapedForWhoeverReadsIt)
{
    const QVariantMap state{{u"State"_s, u"sim"_s}, {u"Summary"_s, u"<b>\n&"_s}, {u"Device"_s, QVariantMap()}};
    EXPECT_EQ(stateText({}, StateForm::Line) + stateText(state, StateForm::Line), R"(Tarvo is not running<b>\n&)");
    EXPECT_EQ(stateText(state, StateForm::Json), R"({"Device":null,"State":"sim","Summary":"<b>\n&"})");
    EXPECT_TRUE(stateText(state, StateForm::Waybar).contains(R"("text":"","tooltip":"&lt;b&gt;\n&amp;")"));
}
