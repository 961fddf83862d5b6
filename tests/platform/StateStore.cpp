#include "platform/StateStore.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

#include <memory>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

QVariantMap value(int number)
{
    return {{u"n"_s, number}};
}

} // namespace

TEST(StateStore, PatternsMatchWholeKeys)
{
    StateStore state;
    for (const char *key : {"a/b", "a/b/c", "a/bb", "a/bb/c", "ab", "x"})
        state.applyChanges({{QLatin1StringView(key), QVariantMap()}});
    const auto session = state.createSession(u"reader"_s, {});

    const std::pair<QString, QStringList> cases[]{
        {u"a/b"_s, {u"a/b"_s}},
        {u"a/[^/]+"_s, {u"a/b"_s, u"a/bb"_s}},
        {u"a/[^/]+/c"_s, {u"a/b/c"_s, u"a/bb/c"_s}},
        {u"a/b[^/]+"_s, {u"a/bb"_s}},
        {u"[^/]+"_s, {u"ab"_s, u"x"_s}},
        {u"a"_s, {}},
        {u".*"_s, {}},
    };
    for (const auto &[pattern, expected] : cases)
        EXPECT_EQ(session->copyKeyList(pattern), expected) << pattern.toStdString();
}

TEST(StateStore, TellsEachChangedKeyOnceAndOnlyThose)
{
    StateStore state;
    state.replaceEntries({{u"k/1"_s, value(1)}, {u"k/2"_s, value(2)}, {u"k/3"_s, value(3)}});
    QList<QStringList> told;
    const auto session = state.createSession(u"observer"_s, [&](auto &, const auto &keys) { told.append(keys); });
    session->setNotificationPatterns({u"k/[^/]+"_s});

    state.replaceEntries({{u"k/1"_s, value(1)}, {u"k/2"_s, value(9)}, {u"k/4"_s, value(4)}, {u"other"_s, value(5)}});
    EXPECT_EQ(told, (QList<QStringList>{{u"k/2"_s}, {u"k/3"_s}, {u"k/4"_s}}));

    told.clear();
    state.announce(u"k/[^/]+"_s);
    EXPECT_EQ(told, QList<QStringList>{{u"k/[^/]+"_s}});
}

TEST(StateStore, ASessionMayBeClosedByItsOwnCallback)
{
    StateStore state;
    int calls = 0;
    std::unique_ptr<DynamicStoreSession> session;
    session = state.createSession(u"observer"_s, [&](auto &, const auto &) {
        ++calls;
        session.reset();
    });
    session->setNotificationPatterns({u"[^/]+"_s});
    state.replaceEntries({{u"1"_s, value(1)}, {u"2"_s, value(2)}});
    EXPECT_EQ(calls, 1);
}
