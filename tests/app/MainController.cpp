#include "simulator/modem/ReceivedRequest.h"
#include "tests/support/Companion.h"
#include "ui/balloon/OvAttachedWindow.h"
#include "ui/icon/CustomView.h"

#include <QApplication>

#include <algorithm>

using namespace tarvo;
using namespace std::chrono_literals;

namespace {

const QByteArray statusPagePath = "logo_data.asp";

/// A status page over the monthly limit of one gigabyte.
const QByteArray overLimit = R"("flow_reminder_switch":"on","max_usage_set_for_month":"1",)"
                             R"("reminder_threshold_for_data_usage":"9","monthly_velta_tx":"3221225472")";

} // namespace

TEST_F(Companion, StartsWithTwoItemsAndTheReadyImage)
{
    EXPECT_EQ(systemLog.lines().first(), u"Tarvo init success"_s);
    ASSERT_EQ(statusBar.items().size(), 2U);
    EXPECT_EQ(statusBar.items()[0]->length(), variableStatusItemLength);
    EXPECT_EQ(statusBar.items()[0]->view(), nullptr);
    EXPECT_EQ(statusBar.items()[1]->length(), squareStatusItemLength);
    EXPECT_EQ(shownImage(), u"ready"_s);
}

TEST_F(Companion, PollsAReadyModemOnceASecond)
{
    plugIn(modem);
    const QStringList lines = systemLog.lines();
    EXPECT_EQ(
        lines.mid(lines.indexOf(u"startGetModemInfo"_s)).filter(QRegularExpression(u"^(?!start newUpdateStatus)"_s)),
        (QStringList{u"startGetModemInfo"_s, u"ECMReady"_s, modem.server.authority(), u"en5"_s}));
    EXPECT_EQ(shownImage(), u"online"_s);
    EXPECT_FALSE(controller.news().stopProcModemStatus());
    ASSERT_TRUE(clock.waitForSleepers(1));
    EXPECT_TRUE(modem.device.requests().isEmpty()) << "the first pass comes after a second";
    for (int second = 1; second <= 3; ++second) {
        tick(modem, second);
        ASSERT_TRUE(clock.waitForSleepers(1));
        EXPECT_EQ(modem.device.requests(statusPagePath).size(), second);
    }
}

TEST_F(Companion, ASecondReadyReportTakesOverWithoutASecondTick)
{
    Modem other;
    modem.device.change([](ModemCondition &condition) { condition.startsWebUI = true; });
    plugIn(modem);
    tick(modem, 1);
    EXPECT_TRUE(eventually([&] { return controller.pages().hasOpenedWebUI(); }));
    network.setIPv4(u"en5"_s, other.server.authority());
    tick(other, 1);
    tick(other, 2);
    EXPECT_EQ(modem.device.requests(statusPagePath).size(), 1);
    EXPECT_EQ(other.device.requests(statusPagePath).size(), 2);
}

TEST_F(Companion, AReportWithoutRouterChangesNothing)
{
    controller.procECMReady({std::nullopt, 7, u"en5"_s});
    EXPECT_TRUE(controller.news().stopProcModemStatus());
    EXPECT_FALSE(systemLog.contains(u"startGetModemInfo"_s));
    controller.procECMReady({modem.server.authority(), 7, std::nullopt});
    tick(modem, 1);
}

TEST_F(Companion, APageBecomesTheSnapshot)
{
    modem.device.setFixedAnswer(statusPagePath, overLimit);
    plugIn(modem);
    tick(modem, 1);
    EXPECT_TRUE(eventually([&] { return controller.snapshot().haveDataLimitFlag_; }));
    EXPECT_TRUE(controller.snapshot().isHaveDataLimitExceedForOneMonth_);
    EXPECT_EQ(controller.snapshot().m_surplusData, -2.0F);
}

TEST_F(Companion, UnplugResetsAndReplugPollsAgain)
{
    modem.device.setFixedAnswer(statusPagePath, overLimit);
    plugIn(modem);
    tick(modem, 1);
    ASSERT_TRUE(eventually([&] { return controller.snapshot().haveDataLimitFlag_; }));
    unplug();
    EXPECT_TRUE(systemLog.contains(u"en5"_s));
    EXPECT_TRUE(systemLog.contains(u"DeviceRemoved,stopGetModemStatus"_s));
    EXPECT_TRUE(controller.news().stopProcModemStatus());
    EXPECT_FALSE(controller.snapshot().isHaveDataLimitExceedForOneMonth_);
    EXPECT_EQ(shownImage(), u"ready"_s);
    clock.advance(700ms);
    plugIn(modem);
    EXPECT_EQ(statusBar.itemsCreated(), 2) << "the icon stayed";
    ASSERT_TRUE(clock.waitForSleepers(1));
    clock.advance(999ms);
    ASSERT_TRUE(clock.waitForSleepers(1));
    EXPECT_EQ(modem.device.requests(statusPagePath).size(), 1) << "a second begins with the plug-in";
    tick(modem, 2);
    EXPECT_EQ(modem.device.requests(statusPagePath).size(), 2) << "nobody else asks";
}

TEST_F(Companion, TheIconGoesWithTheModemUnlessItShallStay)
{
    QVariantMap settings = usualSettings();
    settings.remove(u"NeedDisplayWhenDeviceRemoved"_s);
    configure(settings);
    controller.stopGetModemStatus();
    EXPECT_TRUE(statusBar.items().empty());
    controller.stopGetModemStatus();
    plugIn(modem);
    EXPECT_EQ(statusBar.items().size(), 2U);
    EXPECT_EQ(shownImage(), u"online"_s);
}

TEST_F(Companion, NothingOfAnOldPassReachesTheNextModem)
{
    Modem next;
    modem.device.setFixedAnswer(statusPagePath, overLimit);
    modem.server.setFault({FaultKind::NoAnswer, statusPagePath});
    plugIn(modem);
    tick(modem, 1);
    unplug();
    plugIn(next, u"en6"_s);
    tick(next, 1);
    tick(next, 2);
    EXPECT_FALSE(controller.snapshot().isHaveDataLimitExceedForOneMonth_);
    EXPECT_EQ(modem.device.requests().size(), 1);
}

TEST_F(Companion, SleepStopsPollingAndWakeTakesItUpWithTheSameRouter)
{
    plugIn(modem);
    tick(modem, 1);
    workspace.sleep();
    EXPECT_TRUE(controller.news().stopProcModemStatus());
    workspace.wake();
    EXPECT_TRUE(systemLog.contains(u"ethernet router is ready"_s));
    tick(modem, 2);

    workspace.sleep();
    unplug();
    systemLog.clear();
    workspace.wake();
    EXPECT_TRUE(systemLog.contains(u"no ethernet router is found"_s));
    EXPECT_FALSE(systemLog.contains(u"startGetModemInfo"_s));
}

TEST_F(Companion, AModemThatComesWhileTheMachineFallsAsleepWaitsForWake)
{
    workspace.sleep();
    plugIn(modem);
    EXPECT_FALSE(systemLog.contains(u"startGetModemInfo"_s));
    workspace.wake();
    tick(modem, 1);
}

TEST_F(Companion, AReadyReportAfterWakeClearsWhatTheSleepHasSet)
{
    plugIn(modem);
    workspace.sleep();
    workspace.wake();
    EXPECT_TRUE(controller.snapshot().haveDataLimitFlag_);
    store.announce(store::anyServiceIPv4Pattern);
    EXPECT_FALSE(controller.snapshot().haveDataLimitFlag_ || controller.news().stopProcModemStatus());
    tick(modem, 1);
    tick(modem, 2);
    EXPECT_EQ(modem.device.requests(statusPagePath).size(), 2);
}

TEST_F(Companion, WakeWithAReadyModemThatWasNeverReportedStartsAWorkerThatAsksNobody)
{
    network.addInterface(u"en5"_s);
    network.setIPv4(u"en5"_s, modem.server.authority());
    registry.addModem(u"en5"_s, 4660, 1);
    workspace.sleep();
    workspace.wake();
    EXPECT_TRUE(eventually([&] { return systemLog.contains(u"start newUpdateStatus"_s); }));
    for (int second = 0; second < 2; ++second) {
        ASSERT_TRUE(clock.waitForSleepers(1));
        clock.advance(1s);
    }
    ASSERT_TRUE(clock.waitForSleepers(1));
    EXPECT_EQ(shownImage(), u"online"_s);
    EXPECT_NE(controller.presentation().status().detection, Detection::Attached);
    EXPECT_FALSE(systemLog.contains(u"data is nil"_s));
}

TEST_F(Companion, LeavesTheModemAloneWhileAnotherSessionIsOnTheScreen)
{
    const auto starts = [&] { return systemLog.count(u"startGetModemInfo"_s); };
    plugIn(modem);
    tick(modem, 1);
    workspace.setActive(false);
    workspace.setActive(false);
    EXPECT_EQ(systemLog.count(u"DeviceRemoved,stopGetModemStatus"_s), 1);
    EXPECT_EQ(shownImage(), u"ready"_s);
    network.setIPv4(u"en5"_s, u"127.0.0.2"_s);
    network.setIPv4(u"en5"_s, modem.server.authority());
    workspace.sleep();
    workspace.wake();
    EXPECT_EQ(starts(), 1) << "neither a report nor wake";
    workspace.sleep();
    workspace.setActive(true);
    EXPECT_EQ(starts(), 1) << "asleep all the same";
    workspace.wake();
    EXPECT_EQ(starts(), 2);
    tick(modem, 2);
    EXPECT_EQ(systemLog.count(u"machineWillSleep"_s), 2);
}

TEST_F(Companion, AModemWithoutGatewayIsForgottenWithItsRemoval)
{
    registry.addModem(u"en5"_s, 4660, 1);
    registry.addModem(u"en6"_s, 4660, 1);
    const auto detection = [&] { return controller.presentation().status().detection; };
    network.addInterface(u"en5"_s);
    network.setIPv4(u"en5"_s, std::nullopt);
    EXPECT_EQ(detection(), Detection::NoGateway);
    network.addInterface(u"en6"_s);
    unplug();
    EXPECT_EQ(detection(), Detection::WaitingForAddress) << "the other one has no address yet";
    workspace.sleep();
    EXPECT_EQ(detection(), Detection::LeftAlone);
    workspace.wake();
    EXPECT_EQ(detection(), Detection::WaitingForAddress);
}

TEST_F(Companion, AFailedPassIsLoggedAndTheNextOneIsTried)
{
    modem.server.setFault({FaultKind::CloseAtOnce});
    plugIn(modem);
    tick(modem, 1);
    EXPECT_TRUE(eventually([&] { return !systemLog.lines().filter(QRegularExpression(u"^error: ."_s)).isEmpty(); }));
    modem.server.setFault({});
    tick(modem, 2);
    EXPECT_TRUE(modem.device.waitForRequests(1, "profile_type")) << "the pass goes on after the page";
}

TEST_F(Companion, APageThatTurnsOutNotToOpenIsLoggedAndTold)
{
    QVariantMap settings = usualSettings();
    settings.insert(u"OperatorHomePage"_s, u"http://home/"_s);
    configure(settings);
    const auto balloons = [] {
        return std::ranges::count_if(QApplication::topLevelWidgets(), [](const QWidget *widget) {
            return qobject_cast<const OvAttachedWindow *>(widget) && widget->isVisible();
        });
    };
    qobject_cast<CustomView *>(statusBar.itemWithView()->view())->click();
    ASSERT_TRUE(eventually([&] { return !workspace.openedURLs().isEmpty(); }));
    EXPECT_FALSE(balloons() || systemLog.contains(u"cannot open http://home/"_s));
    workspace.refuse();
    EXPECT_TRUE(balloons() == 1 && systemLog.count(u"cannot open http://home/"_s) == 1);
}

TEST_F(Companion, WithRefererAnEmptyAnswerIsStillAnAnswer)
{
    QVariantMap settings = usualSettings();
    settings.insert(u"AddRefererIntoHttpHeader"_s, true);
    configure(settings);
    modem.server.setFault({FaultKind::CloseAtOnce, statusPagePath});
    plugIn(modem);
    tick(modem, 1);
    EXPECT_TRUE(modem.device.waitForRequests(1, "profile_type"));
}
