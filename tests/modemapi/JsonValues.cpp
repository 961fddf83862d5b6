#include "modemapi/JsonValues.h"

#include <QJsonArray>

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
    EXPECT_TRUE(parseJsonObject(u"{}"_s).object && parseJsonObject(u"{}"_s).error.isEmpty());
    for (const QString &text : {u"[]"_s, u"1"_s})
        EXPECT_TRUE(!parseJsonObject(text).object && !parseJsonObject(text).error.isEmpty()) << text.toStdString();
}

TEST(JsonValues, IntegersComeAsNumbersAndTexts)
{
    const ParsedJson parsed = parseJson(uR"([1, -7, 2.9, -2.9, "1", " -12abc", "+3", "abc", "", true, null, [5], 1e30,
                                            -1e30, 9007199254740993, "99999999999999999999"])"_s);
    const qint64 largest = std::numeric_limits<qint64>::max();
    const QList<qint64> expected{1,      -7, 2, -2, 1, -12, 3, 0, 0, 1, 0, 0, largest, -largest - 1, 9007199254740993,
                                 largest};
    QList<qint64> integers;
    for (const QJsonValue value : parsed.document->array())
        integers.append(integerValue(value));
    EXPECT_EQ(integers, expected);
    EXPECT_EQ(integerValue(QJsonValue(QJsonValue::Undefined)), 0);
}
