#include "app/HandOver.h"
#include "simulator/modem/ReceivedRequest.h"
#include "tests/support/Companion.h"

#include <QApplication>
#include <QMenu>

using namespace tarvo;
using namespace std::chrono_literals;

namespace {

/// A modem that gives reason for everything that is done once: its pages open, it takes access points, it has news.
struct OncePerPlugIn : Companion {
    OncePerPlugIn()
    {
        QVariantMap settings = usualSettings();
        settings.insert({{u"OperatorHomePage"_s, u"http://home/"_s}, {u"NeedCheckFotaUpdate"_s, true}});
        configure(settings);
        for (Modem *each : {&modem, &other})
            each->device.change([](ModemCondition &condition) {
                condition.startsWebUI = true;
                condition.firmwarePackage = u"1"_s;
            });
    }

    /// Lets passes of @p which go by until all that they give reason for has been decided.
    void poll(const Modem &which)
    {
        int passes = 0;
        ASSERT_TRUE(eventually([&] {
            tick(which, which.device.requests("logo_data.asp").size() + 1);
            return ++passes > 2 && controller.pages().hasOpenedWebUI()
                && controller.pages().openUpdateUrlWhileHasNewVersion();
        }));
        ASSERT_TRUE(clock.waitForSleepers(1));
    }

    /// @return how often the pages were opened, the access points examined, and the news told
    QList<qsizetype> done()
    {
        QCoreApplication::processEvents();
        qsizetype examined = 0;
        for (const Modem *each : {&modem, &other})
            examined += each->device.requests("pc_apn_list_query").size();
        return {workspace.openedURLs().size(), examined, told()};
    }

    /// @return how many pieces of news the icon's menu lists
    qsizetype told() const
    {
        for (const QAction *action : statusBar.itemWithView()->menu()->actions())
            if (action->menu() && action->menu()->title() == u"MenuRecentNews")
                return action->menu()->actions().size();
        return -1;
    }

    void begin()
    {
        plugIn(modem);
        poll(modem);
        ASSERT_TRUE(eventually([this] {
            return done() == QList<qsizetype>{1, 1, 1};
        })) << testing::PrintToString(done());
    }

    Modem other;
};

} // namespace

TEST_F(OncePerPlugIn, AReportForTheSameInterfaceChangesWhereRequestsGoAndNothingElse)
{
    begin();
    const QString image = shownImage();
    network.clearIPv4(u"en5"_s);
    network.setIPv4(u"en5"_s, modem.server.authority());
    poll(modem);
    network.setIPv4(u"en5"_s, other.server.authority());
    EXPECT_EQ(shownImage(), image);
    poll(other);
    EXPECT_EQ(done(), (QList<qsizetype>{1, 1, 1}));
    EXPECT_EQ(systemLog.count(u"start newUpdateStatus"_s), 2) << "the first of the two changed nothing";

    unplug();
    plugIn(modem);
    poll(modem);
    EXPECT_TRUE(eventually([&] { return done() == QList<qsizetype>{2, 2, 2}; })) << "another plug-in";
}

TEST_F(OncePerPlugIn, WhatAReportHasCutOffIsDoneAfterIt)
{
    modem.server.setFault({FaultKind::NoAnswer, "pc_default_profilename"}); // asked for when the records are sent
    plugIn(modem);
    tick(modem, 1);
    ASSERT_TRUE(modem.device.waitForRequests(1, "pc_default_profilename"));
    network.setIPv4(u"en5"_s, other.server.authority());
    poll(other);
    EXPECT_EQ(other.device.requests("pc_apn_list_query").size(), 1);
    EXPECT_EQ(workspace.openedURLs().size(), 1);
}

TEST_F(OncePerPlugIn, AModemThatStaysKeepsWhatWasDoneWhenAnotherOneComesAndGoes)
{
    begin();
    plugIn(other, u"en4"_s);
    poll(other);
    EXPECT_TRUE(eventually([&] { return done() == QList<qsizetype>{2, 2, 2}; })) << testing::PrintToString(done());
    unplug(u"en4"_s);
    poll(modem);
    EXPECT_EQ(done(), (QList<qsizetype>{2, 2, 2}));
}

TEST_F(OncePerPlugIn, TheSameDeviceIsNoNewsForTenMinutes)
{
    hardwareAddress = u"02:00:00:00:00:01"_s;
    begin();
    const auto replug = [this] {
        unplug();
        plugIn(modem);
        poll(modem);
    };
    replug();
    EXPECT_EQ(done(), (QList<qsizetype>{1, 2, 1}));
    workspace.sleep();
    workspace.wake();
    store.announce(store::anyServiceIPv4Pattern);
    poll(modem);
    EXPECT_EQ(done(), (QList<qsizetype>{1, 3, 1})) << "asked afresh";
    hardwareAddress = u"02:00:00:00:00:02"_s;
    replug();
    EXPECT_TRUE(eventually([&] { return done() == QList<qsizetype>{2, 4, 2}; })) << "another device";
    unplug();
    clock.advance(RecentDeeds::pause);
    hardwareAddress = u"02:00:00:00:00:01"_s;
    replug();
    EXPECT_TRUE(eventually([&] { return done() == QList<qsizetype>{3, 5, 3}; }));
}

TEST_F(OncePerPlugIn, AProgramThatTakesThePlaceOfThisOneRepeatsNothing)
{
    begin();
    const HandOver handedOver = controller.handOver();
    controller.takeOver(readHandOver(toText(handedOver)));
    store.announce(store::anyServiceIPv4Pattern);
    EXPECT_TRUE(controller.snapshot().isHaveNewVersion_);
    poll(modem);
    EXPECT_EQ(done(), (QList<qsizetype>{1, 1, 1}));
    controller.handOver();
    controller.takeOver({});
    store.announce(store::anyServiceIPv4Pattern);
    poll(modem);
    EXPECT_TRUE(eventually([&] { return done() == QList<qsizetype>{2, 2, 2}; })) << "nobody has told";
}

TEST(RecentDeeds, CountForTenMinutesForEachDeviceAndKind)
{
    ManualClock clock;
    RecentDeeds deeds(clock);
    EXPECT_TRUE(deeds.claim(5) && deeds.claim(5)) << "a device that cannot be told from others";
    deeds.setDevice(u"a"_s);
    EXPECT_TRUE(deeds.claim(5) && deeds.claim(RecentDeeds::openedPages));
    deeds.setDevice(u"b"_s);
    EXPECT_TRUE(deeds.claim(5));
    clock.advance(RecentDeeds::pause - 1s);
    deeds.setDevice(u"a"_s);
    EXPECT_FALSE(deeds.claim(5) || deeds.claim(RecentDeeds::openedPages));
    clock.advance(1s);
    EXPECT_TRUE(deeds.claim(5)) << "since it was done, not since it was asked for";
    EXPECT_EQ(deeds.deeds().size(), 1) << "the others are forgotten";

    auto restored = deeds.deeds();
    restored.append({u"a"_s, 6, clock.now() + 1s});
    restored.append({u"a"_s, 7, clock.now() - RecentDeeds::pause});
    deeds.restore(restored);
    EXPECT_TRUE(!deeds.claim(5) && deeds.claim(6) && deeds.claim(7)) << "neither from the future nor from long ago";
    for (int device = 0; device < 1000; ++device) {
        deeds.setDevice(QString::number(device));
        EXPECT_TRUE(deeds.claim(5));
    }
    EXPECT_EQ(deeds.deeds().size(), RecentDeeds::longest);
}
