#include "platform/linux/desktop/DesktopNotifications.h"

#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedNotificationService.h"
#include "tests/support/DesktopEnvironment.h"
#include "tests/support/PrintQt.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

struct NotificationService : testing::Test {
    /// Waits until every call so far has been answered; the service answers in order.
    static void awaitReplies()
    {
        const QString name = u"org.freedesktop.Notifications"_s;
        QDBusMessage call =
            QDBusMessage::createMethodCall(name, u"/org/freedesktop/Notifications"_s, name, u"CloseNotification"_s);
        call << 999U;
        bool answered = false;
        const QDBusPendingCallWatcher watcher(QDBusConnection::sessionBus().asyncCall(call));
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, [&] { answered = true; });
        EXPECT_TRUE(waitFor([&] { return answered; }));
    }

    void startService()
    {
        service.start();
        EXPECT_TRUE(waitFor([&] { return notifications.available(); }));
    }

    void show(const QString &kind, const QString &text, const QString &openLabel = {})
    {
        notifications.show({kind, u"T"_s, text, {}, {}, openLabel, [this, kind] { opened << kind; }},
                           [this](bool shown) { ++(shown ? successes : failures); });
    }

    bool shows(const QStringList &texts) const
    {
        return waitFor([&] { return service.shown() == texts; });
    }

    SimulatedNotificationService service;
    RecordingLog systemLog;
    BusConnection bus{sessionBusAddress()};
    DesktopNotifications notifications{bus, systemLog};
    QStringList opened; ///< the kinds of the notifications whose action was chosen
    int successes = 0;
    int failures = 0;
};

} // namespace

TEST_F(NotificationService, IsFollowedAsItComesAndGoes)
{
    EXPECT_FALSE(notifications.available());
    startService();
    show(u"a"_s, u"news"_s);
    EXPECT_TRUE(waitFor([&] { return successes == 1; }));
    service.stop();
    EXPECT_TRUE(waitFor([&] { return !notifications.available(); }));
    startService();
    show(u"a"_s, u"news"_s);
    EXPECT_TRUE(waitFor([&] { return successes == 2; }));
    EXPECT_EQ(service.replaced(), (QList<uint>{0, 0})) << "another service";
}

TEST_F(NotificationService, ShowsOneOfEachKindAndClosesIt)
{
    startService();
    show(u"a"_s, u"1 < 2 & 3"_s);
    EXPECT_TRUE(shows({u"1 &lt; 2 &amp; 3"_s}));
    awaitReplies();
    show(u"a"_s, u"second"_s);
    show(u"b"_s, u"of its own"_s);
    EXPECT_TRUE(shows({u"second"_s, u"of its own"_s}));
    awaitReplies();
    notifications.close(u"a"_s);
    EXPECT_TRUE(shows({u"of its own"_s}));
    service.expire(42);
    awaitReplies();
    show(u"b"_s, u"afresh"_s);
    EXPECT_TRUE(shows({u"afresh"_s}));
    EXPECT_EQ(service.replaced(), (QList<uint>{0, 41, 0, 0}));
    EXPECT_TRUE(waitFor([&] { return successes == 4; }));
    notifications.close(u"b"_s);

    show(u"a"_s, u"appears too late"_s);
    notifications.close(u"a"_s);
    show(u"a"_s, u"sixth"_s);
    EXPECT_TRUE(shows({u"sixth"_s}));
    EXPECT_EQ(failures, 0);
}

TEST_F(NotificationService, TellsWhenItIsTurnedDown)
{
    startService();
    service.refuse();
    show(u"a"_s, u"text"_s);
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
    EXPECT_TRUE(systemLog.contains(u"notification failed: refused"_s));
}

TEST_F(NotificationService, OpensWhatTheChosenNotificationTellsAndOnce)
{
    startService();
    show(u"a"_s, u"news"_s, u"Open"_s);
    show(u"b"_s, u"other news"_s, u"Open"_s);
    show(u"c"_s, u"gone by then"_s, u"Open"_s);
    EXPECT_TRUE(waitFor([&] { return successes == 3; }));
    EXPECT_EQ(service.actions(), (QStringList{u"default"_s, u"Open"_s, u"open"_s, u"Open"_s}));
    service.expire(43);
    for (const uint identifier : {43, 41, 41, 99, 42})
        service.choose(identifier, u"open"_s);
    EXPECT_TRUE(waitFor([&] { return opened.contains(u"b"_s); }));
    EXPECT_EQ(opened, (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(NotificationService, OffersOneActionWhereEachBecomesAButton)
{
    service.setName(u"lxqt-notificationd"_s);
    startService();
    awaitReplies();
    show(u"a"_s, u"news"_s, u"Open"_s);
    EXPECT_TRUE(shows({u"news"_s}));
    EXPECT_EQ(service.actions(), (QStringList{u"default"_s, u"Open"_s}));
}

TEST_F(NotificationService, IsGivenUpAfterASecondWithoutAnAnswer)
{
    startService();
    service.fallSilent();
    QElapsedTimer waited;
    waited.start();
    show(u"a"_s, u"unanswered"_s);
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
    EXPECT_TRUE(waited.elapsed() >= 1000 && waited.elapsed() < 3000) << waited.elapsed();
}
