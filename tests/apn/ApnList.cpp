#include "apn/ApnList.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(ApnList, ReadsWhateverIsAnObject)
{
    const std::pair<QString, QList<ListedApn>> answers[] = {
        {uR"({"data":[{"profile":"A","index":"2"},7,{"profile":8}]})"_s, {{u"A"_s, 2}, {}, {}}},
        {uR"({"data":{"a":{"profile":"A","index":2},"b":0}})"_s, {{u"A"_s, 2}, {}}},
        {uR"({"data":7})"_s, {}},
        {uR"({})"_s, {}},
    };
    for (const auto &[answer, apns] : answers) {
        EXPECT_TRUE(readApnList(answer).apns == apns) << answer.toStdString();
        EXPECT_EQ(readApnList(answer).error, QString());
    }
    for (const QString &answer : {u"[{\"profile\":\"A\"}]"_s, u"7"_s, u""_s})
        EXPECT_TRUE(readApnList(answer).apns.isEmpty() && !readApnList(answer).error.isEmpty()) << answer.toStdString();
}

TEST(ApnList, AListThatWasBegunIsFinished)
{
    const QString a = uR"({"profile":"A"})"_s;
    const QString b = uR"({"profile":"B"})"_s;
    const QString c = uR"({"profile":"C"})"_s;
    const QString unnamed = uR"({"index":3})"_s;
    const ListedApn other{u"other"_s, 1};
    struct Case {
        const char *what;
        QList<ListedApn> listed;
        QStringList records;
        QStringList missing;
        bool setsDefault;
        bool owesDefault = false;
    };
    const Case cases[] = {
        {"room", {other, other}, {a, b}, {a, b}, true},
        {"no room, none of ours", {other, other, {}}, {a, unnamed}, {}, false, true},
        {"begun", {other, {u"B"_s}, other}, {a, b, unnamed, c}, {a, c}, true},
        {"begun, and room", {{u"A"_s}}, {a, b}, {b}, true},
        {"all, and room", {{u"B"_s}, {u"A"_s}}, {a, b}, {}, true},
        {"all, and no room", {{u"A"_s}, {u"B"_s}, other}, {a, b}, {}, false},
        {"all, and no room, and no default yet", {{u"A"_s}, {u"B"_s}, other}, {a, b}, {}, true, true},
        {"nothing to give, and room", {}, {}, {}, true},
        {"nothing to give, and no room", {other, other, other}, {}, {}, false},
    };
    for (const Case &row : cases) {
        const ApnPlan plan = planApns(row.listed, 2, row.records, row.owesDefault);
        EXPECT_EQ(plan.records, row.missing) << row.what;
        EXPECT_EQ(plan.setsDefault, row.setsDefault) << row.what;
    }
}
