#include "platform/linux/bus/BusConnection.h"

#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/bus/BusAddress.h"
#include "tests/support/InotifyInstances.h"
#include "tests/support/Program.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusPendingCall>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

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
    const Program daemon({"dbus-daemon", std::string("--config-file=") + TARVO_SESSION_BUS, "--nofork",
                          "--print-address=1", "--address=" + address.toStdString()});
    EXPECT_TRUE(waitFor([&] { return told.last() == u"found"_s; }));
    EXPECT_FALSE(watchesAnything());
    follow();
    EXPECT_EQ(told.mid(1), (QStringList{u"found"_s, u"found"_s})) << "as with a bus that is lost";
}
