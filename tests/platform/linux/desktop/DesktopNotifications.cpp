#include "platform/linux/desktop/DesktopNotifications.h"

#include "platform/Background.h"
#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/BusInterface.h"
#include "platform/linux/desktop/DesktopFactsReader.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedNotificationService.h"
#include "tests/support/DesktopEnvironment.h"
#include "tests/support/PrintQt.h"
#include "tests/support/Program.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

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

TEST(ApplicationService, LetsASecondStartShowTheFirstAndOthersRestartIt)
{
    const QString name = u"org.example.Tests"_s;
    BusConnection bus(sessionBusAddress());
    EXPECT_FALSE(activateRunningApplication(sessionBusAddress(), name)) << "nobody is there";
    int shown = 0;
    int restarted = 0;
    const QVariantMap properties{{u"Colour"_s, u"red"_s}};
    BusInterface more(bus, u"/org/example/Tests"_s, u"<interface name=\""_s + name + u"1\"></interface>"_s);
    more.setProperties(properties);
    const ApplicationService service(bus, name, {.activate = [&] { ++shown; }, .restart = [&] { ++restarted; }}, &more);
    EXPECT_TRUE(waitFor([&] { return activateRunningApplication(sessionBusAddress(), name); }));
    EXPECT_TRUE(waitFor([&] { return shown == 1; }));

    int refused = 0;
    for (const QString &action : {u"restart"_s, u"explode"_s}) {
        auto call = QDBusMessage::createMethodCall(name, u"/org/example/Tests"_s, u"org.freedesktop.Application"_s,
                                                   u"ActivateAction"_s);
        call << action << QVariantList() << QVariantMap();
        bus.call(call, &bus,
                 [&](const QDBusMessage &answer) { refused += answer.type() == QDBusMessage::ErrorMessage ? 1 : 0; });
    }
    EXPECT_TRUE(waitFor([&] { return refused == 1 && restarted == 1; }));

    Background background;
    DesktopFacts facts;
    background.run<DesktopFacts>([&](const std::stop_token &) { return readDesktopFacts(name); },
                                 [&](const DesktopFacts &read) { facts = read; });
    EXPECT_TRUE(waitFor([&] { return facts.applicationProperties == properties; }));
}

TEST(ApplicationService, IsNotStartedByTheBusForASecondStart)
{
    const QTemporaryDir folder;
    const QString started = folder.filePath(u"started"_s);
    const std::pair<QString, QString> files[]{
        {u"a.service"_s, u"[D-BUS Service]\nName=org.example.Tests\nExec=/bin/touch %1\n"_s.arg(started)},
        {u"bus.conf"_s,
         u"<busconfig><include>" TARVO_SESSION_BUS
         "</include><servicedir>%1</servicedir></busconfig>"_s.arg(folder.path())}};
    for (const auto &[name, contents] : files) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contents.toUtf8()) > 0);
    }
    Program daemon({"dbus-daemon", "--config-file=" + folder.filePath(u"bus.conf"_s).toStdString(), "--nofork",
                    "--print-address"});
    EXPECT_FALSE(
        activateRunningApplication(QString::fromStdString(daemon.readLine()).trimmed(), u"org.example.Tests"_s));
    EXPECT_FALSE(QFile::exists(started));
}
