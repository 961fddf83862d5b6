#include "modemapi/JsonValues.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <limits>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(JsonValues, AnObjectOrAnArrayAtTheTopAndNothingElse)
{
    for (const QString &text : {u"{}"_s, u" [1] "_s})
        EXPECT_TRUE(parseJson(text).document && parseJson(text).error.isEmpty());
    for (const QString &text : {u""_s, u"1"_s, u"\"{}\""_s, u"null"_s, u"{} {}"_s, u"{'a':1}"_s})
        EXPECT_TRUE(!parseJson(text).document && !parseJson(text).error.isEmpty()) << text.toStdString();
}

TEST(JsonValues, IntegersComeAsNumbersAndTexts)
{
    const std::pair<const char *, qint64> cases[] = {
        {"1", 1},
        {"-7", -7},
        {"2.9", 2},
        {"-2.9", -2},
        {R"("1")", 1},
        {R"(" -12abc")", -12},
        {R"("+3")", 3},
        {R"("abc")", 0},
        {R"("")", 0},
        {"true", 1},
        {"null", 0},
        {"[5]", 0},
        {"1e30", std::numeric_limits<qint64>::max()},
        {"-1e30", std::numeric_limits<qint64>::min()},
        {"9007199254740993", 9007199254740993}, // more than a double holds
        {R"("99999999999999999999")", std::numeric_limits<qint64>::max()},
    };
    for (const auto &[text, integer] : cases) {
        const ParsedJson parsed = parseJson(u"[%1]"_s.arg(QString::fromUtf8(text)));
        EXPECT_EQ(integerValue(parsed.document->array().at(0)), integer) << text;
    }
    EXPECT_EQ(integerValue(QJsonValue(QJsonValue::Undefined)), 0);
}
