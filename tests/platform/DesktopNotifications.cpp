#include "platform/linux/DesktopNotifications.h"

#include "platform/Background.h"
#include "platform/linux/ApplicationService.h"
#include "platform/linux/BusAddress.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/DesktopFactsReader.h"
#include "simulator/RecordingLog.h"
#include "simulator/SimulatedNotificationService.h"
#include "tests/support/DesktopEnvironment.h"
#include "tests/support/PrintQt.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

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

    void show(const QString &text)
    {
        notifications.show({u"T"_s, text, {}}, [this] { ++failures; });
    }

    bool shows(const QStringList &texts) const
    {
        return waitFor([&] { return service.shown() == texts; });
    }

    SimulatedNotificationService service;
    RecordingLog systemLog;
    BusConnection bus{sessionBusAddress()};
    DesktopNotifications notifications{bus, systemLog};
    int failures = 0;
};

} // namespace

TEST_F(NotificationService, IsFollowedAsItComesAndGoes)
{
    EXPECT_FALSE(notifications.available());
    startService();
    service.stop();
    EXPECT_TRUE(waitFor([&] { return !notifications.available(); }));
}

TEST_F(NotificationService, ShowsOneAtATimeAndClosesIt)
{
    startService();
    show(u"1 < 2 & 3"_s);
    EXPECT_TRUE(shows({u"1 &lt; 2 &amp; 3"_s}));
    awaitReplies();
    show(u"second"_s);
    EXPECT_TRUE(shows({u"second"_s}));
    EXPECT_EQ(service.replaced(), (QList<uint>{0, 41}));
    notifications.close();
    EXPECT_TRUE(shows({}));

    show(u"appears too late"_s);
    notifications.close();
    show(u"fourth"_s);
    EXPECT_TRUE(shows({u"fourth"_s}));
    EXPECT_EQ(failures, 0);
}

TEST_F(NotificationService, TellsWhenItIsTurnedDown)
{
    startService();
    service.refuse();
    show(u"text"_s);
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
    EXPECT_TRUE(systemLog.contains(u"notification failed: refused"_s));
}

TEST_F(NotificationService, OffersAnActionAndIsGivenUpWhenItDoesNotAnswer)
{
    startService();
    int opened = 0;
    notifications.show(
        {.title = u"T"_s, .text = u"news"_s, .iconName = {}, .openLabel = u"Open"_s, .opened = [&] { ++opened; }}, {});
    EXPECT_TRUE(shows({u"news"_s}));
    awaitReplies();
    EXPECT_EQ(service.actions(), (QStringList{u"default"_s, u"Open"_s, u"open"_s, u"Open"_s}));
    service.choose(u"open"_s);
    EXPECT_TRUE(waitFor([&] { return opened == 1; }));

    service.fallSilent();
    show(u"unanswered"_s);
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
}

TEST(ApplicationService, LetsASecondStartShowTheFirstAndOthersRestartIt)
{
    const QString name = u"org.example.Tests"_s;
    BusConnection bus(sessionBusAddress());
    EXPECT_FALSE(activateRunningApplication(sessionBusAddress(), name)) << "nobody is there";
    int shown = 0;
    int restarted = 0;
    const QVariantMap properties{{u"Colour"_s, u"red"_s}};
    const ApplicationService service(bus, name, {.activate = [&] { ++shown; }, .restart = [&] { ++restarted; }},
                                     properties);
    EXPECT_TRUE(waitFor([&] { return activateRunningApplication(sessionBusAddress(), name); }));
    EXPECT_TRUE(waitFor([&] { return shown == 1; }));

    bool refused = false;
    for (const QString &action : {u"restart"_s, u"explode"_s}) {
        auto call = QDBusMessage::createMethodCall(name, u"/org/example/Tests"_s, u"org.freedesktop.Application"_s,
                                                   u"ActivateAction"_s);
        call << action << QVariantList() << QVariantMap();
        bus.call(call, &bus,
                 [&](const QDBusMessage &answer) { refused = answer.type() == QDBusMessage::ErrorMessage; });
    }
    EXPECT_TRUE(waitFor([&] { return refused && restarted == 1; }));

    Background background;
    DesktopFacts facts;
    background.run<DesktopFacts>([&](const std::stop_token &) { return readDesktopFacts(name); },
                                 [&](const DesktopFacts &read) { facts = read; });
    EXPECT_TRUE(waitFor([&] { return facts.applicationProperties == properties; }));
}
