#include "modemapi/AnswerFields.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

using Text = std::optional<QString>;

struct Case {
    const char *what;
    Text key;
    Text answer;
    Text oldStyle;
    Text jsonStyle;
};

const Case cases[] = {
    {"old style", u"ppp_status: "_s, u"var a = {ppp_status: 'ppp_connected', b: 'c'}"_s, u"ppp_connected"_s, {}},
    {"JSON style", u"ppp_status\":"_s, u"{\"ppp_status\":\"ppp_connected\"}"_s, {}, u"ppp_connected"_s},
    {"the first occurrence wins", u"k: "_s, u"k: 'one' k: 'two'"_s, u"one"_s, {}},
    {"an empty value is no missing value", u"k: "_s, u"k: '' \""_s, u""_s, u"' "_s},
    {"case matters", u"rd\":"_s, u"\"RD\":\"7\""_s, {}, {}},
    {"a bare number loses its first digit", u"k\":"_s, u"{\"k\":123,\"l\":\"x\"}"_s, {}, u"23,"_s},
    {"the quote never closes", u"k: "_s, u"k: 'open"_s, {}, {}},
    {"the key ends the answer", u"k: "_s, u"x k: "_s, {}, {}},
    {"nothing but a quote follows", u"k: "_s, u"k: '"_s, {}, {}},
    {"the skipped character is whole", u"k: "_s, u"k: \U0001F4F6ab'\""_s, u"ab"_s, u"ab'"_s},
    {"values may hold anything", u"k: "_s, u"k: 'é%s日'"_s, u"é%s日"_s, {}},
    {"no key", {}, u"k: 'v' \"v\""_s, {}, {}},
    {"an empty key", u""_s, u"k: 'v' \"v\""_s, {}, {}},
    {"no answer", u"k: "_s, {}, {}, {}},
};

} // namespace

TEST(AnswerFields, AreCutOutInBothStyles)
{
    for (const Case &one : cases) {
        SCOPED_TRACE(one.what);
        EXPECT_EQ(getModemInfoFromKey(one.key, one.answer), one.oldStyle);
        EXPECT_EQ(getModemInfoFromKeyForWeb5(one.key, one.answer), one.jsonStyle);
    }
}
