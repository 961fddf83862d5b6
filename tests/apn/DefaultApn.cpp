#include "apn/DefaultApn.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(DefaultApn, FollowsTheTable)
{
    struct Case {
        const char *what;
        std::optional<QString> name;
        QStringList records;
        int index;
        bool isUnknown = false;
        QList<ListedApn> taken{{u"A"_s}, {u"X"_s}, {u"Z"_s}};
    };
    const QString x = uR"({"profile":"X","index":2})"_s;
    const QString z = uR"({"profile":"Z","index":5})"_s;
    const Case cases[] = {
        {"the modem's own second name, records unread", u"B"_s, {u"no JSON"_s}, 1},
        {"the modem's own first name, no record has it", u"A"_s, {x}, 0},
        {"the modem's own first name, no records", u"A"_s, {}, 199, true},
        {"the modem's own first name, and a record's", u"A"_s, {uR"({"profile":"A","index":"7"})"_s}, 7},
        {"a record's name", u"X"_s, {z, x, u"no JSON"_s}, 2},
        {"nobody's name", u"Y"_s, {x}, 199, true},
        {"no name, named records", u""_s, {x}, 100},
        {"no name, records without one", u""_s, {uR"({"profile":"","index":2})"_s, u"{}"_s, uR"({"profile":7})"_s}, 0},
        {"no name at all", std::nullopt, {}, 0},
        {"an index of 64 bits is cut to 32", u"X"_s, {uR"({"profile":"X","index":4294967298})"_s}, 2},
        {"a negative index is none", u"X"_s, {uR"({"profile":"X","index":-1})"_s}, 199, true},
        {"199 of a record's own", u"X"_s, {uR"({"profile":"X","index":199})"_s}, 199, false},
        {"a record's name, which the modem refused", u"X"_s, {x, z}, -1, false, {{u"Z"_s}}},
        {"the modem's own first name, and a refused record's",
         u"A"_s,
         {uR"({"profile":"A","index":7})"_s},
         0,
         false,
         {}},
    };
    for (const Case &row : cases) {
        const DefaultApn choice = chooseDefaultApn(row.name, {u"A"_s, u"B"_s, u"C"_s, u"B"_s}, row.records, row.taken);
        EXPECT_EQ(choice.index, row.index) << row.what;
        EXPECT_EQ(choice.isUnknown, row.isUnknown) << row.what;
    }
    const QString problem = u"apn dictionary: (null), json Error: illegal value"_s;
    const QStringList records{u"no JSON"_s, u"\"X\""_s, u"[]"_s, u""_s, x, u"unread"_s};
    const DefaultApn choice = chooseDefaultApn(u"X"_s, {}, records, {{u"X"_s}});
    EXPECT_EQ(choice.index, 2);
    EXPECT_EQ(choice.problems,
              (QStringList{problem, problem, u"apn dictionary: (null), json Error: it is an array"_s}));
}
