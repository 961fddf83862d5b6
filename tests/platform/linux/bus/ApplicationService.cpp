#include "platform/linux/bus/ApplicationService.h"

#include "platform/Background.h"
#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/BusInterface.h"
#include "platform/linux/desktop/DesktopFactsReader.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusMessage>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

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
