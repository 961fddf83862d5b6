#include "platform/linux/bus/BusConnection.h"

#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusName.h"
#include "tests/support/InotifyInstances.h"
#include "tests/support/Program.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusPendingCall>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <optional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

struct PrivateBus : Program {
    explicit PrivateBus(const QString &address)
        : Program({"dbus-daemon", "--config-file=" TARVO_SESSION_BUS, "--nofork", "--print-address=1",
                   "--address=" + address.toStdString()})
    {
    }
    ~PrivateBus() { kill(process(), SIGKILL); }
};

} // namespace

TEST(BusConnection, IsMadeAgainAfterAMessageThatIsTooLarge)
{
    const QString name = u"org.example.Tests"_s;
    BusConnection bus(sessionBusAddress());
    int found = 0;
    bus.follow(
        &bus, [&] { ++found; }, [] {});
    int shown = 0;
    const ApplicationService service(bus, name, {.activate = [&] { ++shown; }, .restart = {}});
    ASSERT_TRUE(waitFor([&] { return activateRunningApplication(sessionBusAddress(), name); }));
    for (const int size : {60 << 10, 65 << 10}) {
        auto call = QDBusMessage::createMethodCall(name, u"/org/example/Tests"_s, u"org.freedesktop.Application"_s,
                                                   u"Activate"_s);
        call << QVariantMap{{u"filling"_s, QByteArray(size, 'x')}};
        QDBusConnection::sessionBus().asyncCall(call);
        EXPECT_TRUE(waitFor([&] { return shown == 2 && found == (size > (64 << 10) ? 2 : 1); })) << size;
    }
    EXPECT_TRUE(waitFor([&] { return activateRunningApplication(sessionBusAddress(), name); })) << "it is there again";
}

TEST(BusConnection, FindsABusThatComesLateAndThenWatchesNothing)
{
    const QTemporaryDir folder;
    const QString address = addressOfSocket(folder.filePath(u"run/dbus/bus"_s));
    BusConnection bus(address);
    QStringList told;
    const auto follow = [&] {
        bus.follow(
            &bus, [&] { told.append(u"found"_s); }, [&] { told.append(u"lost"_s); });
    };
    follow();
    EXPECT_TRUE(waitFor([&] { return told == QStringList{u"lost"_s}; }));
    EXPECT_TRUE(watchesAnything());
    QObject late;
    bool isLost = false;
    bus.follow(
        &late, [] {}, [&] { isLost = true; });
    EXPECT_TRUE(isLost) << "who follows late is told at once";
    QDir(folder.path()).mkpath(u"run/dbus"_s);
    const PrivateBus daemon(address);
    EXPECT_TRUE(waitFor([&] { return told.last() == u"found"_s; }));
    EXPECT_FALSE(watchesAnything());
    follow();
    EXPECT_EQ(told.mid(1), (QStringList{u"found"_s, u"found"_s})) << "as with a bus that is lost";
}

TEST(BusConnection, KeepsWhatIsWatchedAndServedAndAnswersEveryCallOnceAcrossConnections)
{
    const QTemporaryDir folder;
    const QString address = addressOfSocket(folder.filePath(u"bus"_s));
    const QString name = u"org.example.Tests"_s;
    BusConnection bus(address);
    QStringList owners;
    BusName follower(bus, name, [&](const QString &owner) {
        if (owners.isEmpty() || owners.last() != owner.left(1)) // whether nobody is told first depends on who is faster
            owners.append(owner.left(1));
    });
    const ApplicationService served(bus, name, {.activate = [] {}, .restart = {}});
    QTimer signalled;
    bus.subscribe(u"/a"_s, u"org.example.A"_s, u"B"_s, &signalled, SLOT(start()));
    QList<QDBusError::ErrorType> answers;
    const auto ask = [&](auto &of, const auto &...what) {
        of.call(what..., &signalled, [&](const QDBusMessage &answer) { answers.append(QDBusError(answer).type()); });
    };
    const auto ping = QDBusMessage::createMethodCall(name, u"/"_s, u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    const auto askBoth = [&] {
        ask(bus, ping);
        ask(follower, ping.path(), ping.interface(), ping.member(), QVariantList());
    };
    QStringList allOwners{u""_s};
    EXPECT_TRUE(waitFor([&] { return owners == allOwners; }));
    QList<QDBusError::ErrorType> allAnswers{};
    for (const char *start : {"first", "again"}) {
        std::optional<PrivateBus> daemon(address);
        EXPECT_TRUE(waitFor([&] { return activateRunningApplication(address, name); })) << start;
        bus.send(QDBusMessage::createSignal(u"/a"_s, u"org.example.A"_s, u"B"_s));
        EXPECT_TRUE(waitFor([&] { return signalled.isActive(); })) << start;
        signalled.stop();
        askBoth();
        EXPECT_TRUE(waitFor([&] { return answers.size() == allAnswers.size() + 2; })) << start;
        kill(daemon->process(), SIGSTOP);
        askBoth();
        daemon.reset();
        EXPECT_TRUE(waitFor([&] { return answers.size() == allAnswers.size() + 4; })) << start;
        askBoth();
        EXPECT_EQ(answers.size(), allAnswers.size() + 4) << "it is told later";
        allOwners << u":"_s << u""_s;
        allAnswers << QDBusError::NoError << QDBusError::NoError
                   << QList<QDBusError::ErrorType>(4, QDBusError::Disconnected);
        EXPECT_TRUE(waitFor([&] { return owners == allOwners; })) << start << owners.join(u' ').toStdString();
        EXPECT_TRUE(waitFor([&] { return answers == allAnswers; })) << start;
    }
}
