#include "ui/NewsSequence.h"

#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"
#include "ui/AlertPanelController.h"
#include "ui/CustomView.h"
#include "ui/OvAttachedWindow.h"

#include <QApplication>
#include <QEnterEvent>

using namespace tarvo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString balloonText()
{
    for (const QWidget *widget : QApplication::topLevelWidgets())
        if (dynamic_cast<const OvAttachedWindow *>(widget) && widget->isVisible())
            return widget->accessibleName();
    return {};
}

/// A sequence for a modem that is plugged in, and what it shows the news with.
struct BalloonSequence : AttachedModem {
    BalloonSequence()
    {
        statusBar.setFrame(QRect(400, 0, 24, 24));
        icon.startToolbarStatus();
        news.resetForReadyDevice();
    }

    ~BalloonSequence() override
    {
        attachment.reset();
        EXPECT_TRUE(sequenceEnds()) << "without any time passing";
    }

    /// Lets @p wait of the sequence's present wait pass.
    void pass(std::chrono::milliseconds wait)
    {
        ASSERT_TRUE(clock.waitForSleepers(1));
        clock.advance(wait);
    }

    bool sequenceEnds()
    {
        return eventually([this] { return !news.startDisplayFlowing(); });
    }

    SimulatedStatusBar statusBar;
    SimulatedWorkspace workspace;
    ManualClock clock;
    StepQueue mainThread;
    WebPages pages{workspace, snapshot, mainThread, [] { return std::nullopt; }};
    StatusIcon icon{
        statusBar, systemLog, {[] {}, [this] { news.mouseEnteredHandle(&client.work()); }, [] {}, [] {}, [] {}}};
    BalloonPresenter balloon{nullptr, {}, [this] { return icon.frame(); }};
    UpdateAlert alert{pages};
    NewsSequence news{{snapshot, pages, icon, balloon, alert, mainThread, clock, systemLog}};
};

} // namespace

TEST_F(BalloonSequence, ShowsEachNewsForThreeSecondsAndOnce)
{
    const auto panel = AlertPanelController::shareAlertPanel();
    snapshot.reset({.isHaveNewVersion_ = true, .isHaveDataLimitExceedForOneMonth_ = true});
    news.startDisPlayUIStatusThread(client.work());
    ASSERT_TRUE(eventually([] { return balloonText() == u"HaveNewVersionTipWhenConnected"; }));
    const auto &view = *qobject_cast<CustomView *>(statusBar.itemWithView()->view());
    EXPECT_EQ(view.image(), u"newVersion"_s);
    EXPECT_EQ(view.toolTip(), u"HaveNewVersionTipWhenConnected"_s);
    EXPECT_TRUE(panel->wndAlert().isVisible());
    panel->btnCancelAction();
    pass(2999ms);
    ASSERT_TRUE(clock.waitForSleepers(1));
    QCoreApplication::processEvents();
    EXPECT_FALSE(balloonText().isEmpty());
    pass(1ms);
    EXPECT_TRUE(eventually([] { return balloonText().isEmpty(); }));
    pass(2s); // after the first news
    pass(2s); // no three-day news
    ASSERT_TRUE(eventually([] { return balloonText() == u"DatalimitExceed"; }));
    EXPECT_TRUE(!pages.openUpdateUrlWhileHasNewVersion() && pages.openDateLimitUrlWhileHasLimit());
    for (const auto wait : {3s, 2s, 2s})
        pass(wait);
    EXPECT_TRUE(sequenceEnds());
    EXPECT_TRUE(news.statusDisplayFlowFinishFlag());

    news.startDisPlayUIStatusThread(client.work());
    for (int type = 5; type <= 8; ++type)
        pass(2s);
    EXPECT_TRUE(sequenceEnds()) << "known news costs no balloon";
    EXPECT_FALSE(panel->wndAlert().isVisible());
}

TEST_F(BalloonSequence, TellsAnOverrunOnceAndKeepsItsMagnitude)
{
    snapshot.reset({.isHaveDataLimitReachedForOneMonth_ = true, .m_surplusData = -1.5F});
    EXPECT_EQ(news.getDisplayStatusByType(client.work(), 8), u"DatalimitReachedForOneMonth_Negative"_s);
    EXPECT_EQ(snapshot.get().m_surplusData, 1.5F);
    news.resetForStop();
    EXPECT_EQ(news.getDisplayStatusByType(client.work(), 8), QString()) << "no device, no news";
    news.resetForReadyDevice();
    EXPECT_EQ(news.getDisplayStatusByType(client.work(), 8), u"DatalimitReachedForOneMonth"_s) << "another device";
}

TEST_F(BalloonSequence, TogglesWhateverTheText)
{
    QStringList seen;
    for (const QString &text : {u""_s, u"one"_s, u"two"_s, u"three"_s}) {
        balloon.toggleAttachedWindowAtPoint(text);
        seen << balloonText();
    }
    EXPECT_EQ(seen, (QStringList{{}, u"one"_s, {}, u"three"_s}));
}

TEST_F(Companion, TheBalloonEndsWithItsDevice)
{
    Modem next;
    QVariantMap settings = usualSettings();
    settings.insert(u"NeedCheckFotaUpdate"_s, true);
    configure(settings);
    statusBar.setFrame(QRect(400, 0, 24, 24));
    modem.device.change([](ModemCondition &condition) { condition.firmwarePackage = u"1"_s; });
    for (const bool removed : {true, false}) {
        plugIn(modem);
        tick(modem, removed ? 1 : 2);
        ASSERT_TRUE(eventually([] { return !balloonText().isEmpty(); }));
        removed ? unplug() : network.setIPv4(u"en5"_s, next.server.authority());
        EXPECT_TRUE(eventually([&] { return !controller.news().startDisplayFlowing(); })) << "without any time passing";
        EXPECT_TRUE(eventually([] { return balloonText().isEmpty(); }));
        EXPECT_EQ(shownImage(), removed ? u"ready"_s : u"online"_s);
    }
}

TEST_F(BalloonSequence, StartsOnHoverUnlessOneRunsOrTheSettingsForbidIt)
{
    const QString refusal = u"already dislaystatus or no need display"_s;
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(statusBar.itemWithView()->view(), &enter);
    EXPECT_TRUE(systemLog.contains(u"mouseEntered"_s));
    EXPECT_TRUE(news.startDisplayFlowing());
    EXPECT_FALSE(news.statusDisplayFlowFinishFlag());
    QApplication::sendEvent(statusBar.itemWithView()->view(), &enter);
    EXPECT_EQ(systemLog.count(refusal), 1);
    attachment.reset();
    ASSERT_TRUE(sequenceEnds());
    configure({{u"DonotShowStatusWhenMouseMoveIn"_s, true}});
    news.mouseEnteredHandle(&client.work());
    EXPECT_FALSE(news.startDisplayFlowing());
    EXPECT_EQ(systemLog.count(refusal), 2);
}

TEST_F(Companion, PollingWithoutNewsTouchesTheIconNoMore)
{
    modem.device.change([](ModemCondition &condition) { condition.threeDayLimit = 1; });
    plugIn(modem);
    tick(modem, 1);
    const int changes = statusBar.itemWithView()->viewChanges();
    for (int second = 2; second <= 12; ++second) // one whole sequence, and the next one's start
        tick(modem, second);
    QCoreApplication::processEvents();
    EXPECT_EQ(statusBar.itemWithView()->viewChanges(), changes);
}
