#include "platform/linux/bus/SessionBusForQt.h"

#include "tests/support/Program.h"

#include <QDBusConnection>

#include <gtest/gtest.h>

#include <csignal>

using namespace tarvo;

TEST(SessionBusForQt, HasQtAskForNoBusThatIsMute)
{
    Program daemon({"dbus-daemon", "--config-file=" TARVO_SESSION_BUS, "--print-address", "--nofork"});
    const QByteArray address = QByteArray::fromStdString(daemon.readLine());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    kill(daemon.process(), SIGSTOP);
    {
        const SessionBusForQt untilThereIsAnApplication;
        EXPECT_NE(qgetenv("DBUS_SESSION_BUS_ADDRESS"), address);
    }
    kill(daemon.process(), SIGCONT);
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), address) << "for what is started later";
    EXPECT_FALSE(QDBusConnection::sessionBus().isConnected()) << "Qt asks once";
}
