#include "platform/LogLine.h"

#include <QList>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(LogLine, IsOneLine)
{
    const QList<std::pair<QString, QByteArray>> lines{
        {u"50 % \u00e9 \\n"_s, "50 % \u00e9 \\\\n"},
        {u"\u202egpj\u2066 a\u200b\u00ad\ufeff\U000e0061"_s, R"(\u202egpj\u2066 a\u200b\xad\ufeff\U000e0061)"},
        {u"a\nb\r\t\u001b[1m\u0085\u2028\U0001f600"_s, "a\\nb\\r\\t\\x1b[1m\\x85\\u2028\U0001f600"},
    };
    for (const auto &[text, line] : lines)
        EXPECT_EQ(logLine(text).toStdString(), line.toStdString());
    EXPECT_EQ(logLine(u"x"_s.repeated(1024)), QByteArray(1024, 'x'));
    EXPECT_EQ(logLine(u"x"_s.repeated(5000)), QByteArray(1021, 'x') + "…");
    EXPECT_EQ(logLine(u"\u20ac"_s.repeated(342)), u"\u20ac"_s.repeated(340).toUtf8() + "…");
}
