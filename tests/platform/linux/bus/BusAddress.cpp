#include "platform/linux/bus/BusAddress.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(BusAddress, IsEscapedAndNamesItsSockets)
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", "/run/a b+~\xc3\xa9%,;=");
    EXPECT_EQ(sessionBusAddress(), u"unix:path=/run/a%20b%2B%7E%C3%A9%25%2C%3B%3D/bus"_s);
    EXPECT_EQ(unixSocketsOf(sessionBusAddress()), QList<QByteArray>{qgetenv("XDG_RUNTIME_DIR") + "/bus"});
    const QString several = u"tcp:host=a;unix:guid=0,abstract=/x%20y;unix:path=/z,guid=0;unix:tmpdir=/tmp"_s;
    EXPECT_EQ(unixSocketsOf(several), (QList<QByteArray>{QByteArray("\0/x y", 5), "/z"}));
    EXPECT_FALSE(unixPartOf(several).contains(u"tcp:"_s)) << several.toStdString();
    qputenv("DBUS_SESSION_BUS_ADDRESS", several.toUtf8());
    EXPECT_EQ(sessionBusAddress(), several);
}
