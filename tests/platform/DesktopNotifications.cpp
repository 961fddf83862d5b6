#include "platform/linux/DesktopNotifications.h"

#include "simulator/RecordingLog.h"
#include "tests/support/DesktopEnvironment.h"
#include "tests/support/PrintQt.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QMap>
#include <QVariantMap>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

const QString serviceName = u"org.freedesktop.Notifications"_s;

/// A notification service on a connection of its own.
class MockService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    MockService()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"mock"_s))
    {
        m_bus.registerObject(u"/org/freedesktop/Notifications"_s, this, QDBusConnection::ExportAllSlots);
    }
    ~MockService() override { QDBusConnection::disconnectFromBus(u"mock"_s); }

    void start() { m_bus.registerService(serviceName); }
    void stop() { m_bus.unregisterService(serviceName); }

    QMap<uint, QString> shown;
    QList<uint> replaced; ///< what each call asked to replace
    bool refuses = false;

public Q_SLOTS:
    uint Notify(const QString &, uint replaces, const QString &, const QString &, const QString &body,
                const QStringList &, const QVariantMap &, int)
    {
        replaced << replaces;
        if (refuses) {
            sendErrorReply(QDBusError::Failed, u"no"_s);
            return 0;
        }
        const uint id = replaces ? replaces : ++m_last;
        shown.insert(id, body);
        return id;
    }

    void CloseNotification(uint id) { shown.remove(id); }

private:
    QDBusConnection m_bus;
    uint m_last = 40;
};

struct NotificationService : testing::Test {
    /// Waits until every call so far has been answered; the service answers in order.
    static void awaitReplies()
    {
        QDBusMessage call = QDBusMessage::createMethodCall(serviceName, u"/org/freedesktop/Notifications"_s,
                                                           serviceName, u"CloseNotification"_s);
        call << 999U;
        bool answered = false;
        const QDBusPendingCallWatcher watcher(QDBusConnection::sessionBus().asyncCall(call));
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, [&] { answered = true; });
        EXPECT_TRUE(waitFor([&] { return answered; }));
    }

    MockService service;
    RecordingLog systemLog;
    DesktopNotifications notifications{QDBusConnection::sessionBus(), systemLog};
    int failures = 0;
    const std::function<void()> failed = [this] { ++failures; };
};

} // namespace

TEST_F(NotificationService, IsFollowedAsItComesAndGoes)
{
    EXPECT_FALSE(notifications.available());
    service.start();
    EXPECT_TRUE(waitFor([&] { return notifications.available(); }));
    service.stop();
    EXPECT_TRUE(waitFor([&] { return !notifications.available(); }));
}

TEST_F(NotificationService, ShowsOneAtATimeAndClosesIt)
{
    service.start();
    notifications.show({u"T"_s, u"1 < 2 & 3"_s, u"tarvo"_s}, failed);
    ASSERT_TRUE(waitFor([&] { return service.shown.value(41) == u"1 &lt; 2 &amp; 3"; }));
    awaitReplies();
    notifications.show({u"T"_s, u"second"_s, {}}, failed);
    EXPECT_TRUE(waitFor([&] { return service.shown.values() == QStringList(u"second"_s); }));
    EXPECT_EQ(service.replaced, (QList<uint>{0, 41}));
    notifications.close();
    EXPECT_TRUE(waitFor([&] { return service.shown.isEmpty(); }));
    EXPECT_EQ(failures, 0);
}

TEST_F(NotificationService, ClosesWhatAppearsTooLate)
{
    service.start();
    notifications.show({u"T"_s, u"first"_s, {}}, failed);
    notifications.close();
    notifications.show({u"T"_s, u"second"_s, {}}, failed);
    EXPECT_TRUE(waitFor([&] { return service.shown.values() == QStringList(u"second"_s); }));
    notifications.close();
    EXPECT_TRUE(waitFor([&] { return service.shown.isEmpty(); }));
}

TEST_F(NotificationService, TellsWhenItIsTurnedDown)
{
    service.start();
    service.refuses = true;
    notifications.show({u"T"_s, u"text"_s, {}}, failed);
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
    EXPECT_TRUE(systemLog.contains(u"notification failed: no"_s));
}

#include "DesktopNotifications.moc"
