#include "platform/linux/BusConnection.h"

#include "platform/linux/ApplicationService.h"
#include "platform/linux/BusAddress.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusPendingCall>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(BusConnection, IsMadeAgainAfterAMessageThatIsTooLarge)
{
    const QString name = u"org.example.Tests"_s;
    BusConnection bus(sessionBusAddress());
    int found = 0;
    bus.follow(&bus, [&] { ++found; }, [] {});
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
