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

/// The controller as if a device were ready, but with nobody that polls.
struct BalloonSequence : Companion {
    BalloonSequence()
    {
        statusBar.setFrame(QRect(400, 0, 24, 24));
        state.resetForReadyDevice();
    }

    /// Lets the sequence's present wait pass, but for @p rest.
    void pass(std::chrono::milliseconds wait)
    {
        ASSERT_TRUE(clock.waitForSleepers(1));
        clock.advance(wait);
    }

    bool sequenceEnds()
    {
        return eventually([this] { return !state.startDisplayFlowing_; });
    }

    ModemState &state = controller.state();
    CustomView &view = *qobject_cast<CustomView *>(statusBar.itemWithView()->view());
};

} // namespace

TEST_F(BalloonSequence, ShowsEachNewsForThreeSecondsAndOnce)
{
    const auto panel = AlertPanelController::shareAlertPanel();
    state.isHaveNewVersion_ = state.isHaveDataLimitExceedForOneMonth_ = true;
    controller.startDisPlayUIStatusThread();
    ASSERT_TRUE(eventually([] { return balloonText() == u"HaveNewVersionTipWhenConnected"; }));
    EXPECT_EQ(shownImage(), u"newVersion"_s);
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
    for (const auto wait : {3s, 2s, 2s})
        pass(wait);
    EXPECT_TRUE(sequenceEnds());
    EXPECT_TRUE(state.statusDisplayFlowFinishFlag_);

    controller.startDisPlayUIStatusThread();
    for (int type = 5; type <= 8; ++type)
        pass(2s);
    EXPECT_TRUE(sequenceEnds()) << "known news costs no balloon";
    EXPECT_FALSE(panel->wndAlert().isVisible());
}

TEST_F(BalloonSequence, TogglesWhateverTheText)
{
    QStringList seen;
    for (const QString &text : {u""_s, u"one"_s, u"two"_s, u"three"_s}) {
        controller.toggleAttachedWindowAtPoint(text);
        seen << balloonText();
    }
    EXPECT_EQ(seen, (QStringList{{}, u"one"_s, {}, u"three"_s}));
}

TEST_F(BalloonSequence, EndsWithItsDeviceAndLeavesNoBalloon)
{
    for (const bool removed : {true, false}) {
        state.resetForReadyDevice();
        state.isHaveNewVersion_ = true;
        state.previousHaveNewVersion_ = false;
        controller.startDisPlayUIStatusThread();
        ASSERT_TRUE(eventually([] { return !balloonText().isEmpty(); }));
        removed ? controller.stopGetModemStatus() : plugIn(modem);
        EXPECT_TRUE(sequenceEnds()) << "without any time passing";
        EXPECT_TRUE(eventually([] { return balloonText().isEmpty(); }));
        EXPECT_EQ(shownImage(), removed ? u"ready"_s : u"online"_s);
    }
}

TEST_F(BalloonSequence, StartsOnHoverUnlessOneRunsOrTheSettingsForbidIt)
{
    const QString refusal = u"already dislaystatus or no need display"_s;
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(&view, &enter);
    EXPECT_TRUE(systemLog.contains(u"mouseEntered"_s));
    EXPECT_TRUE(state.startDisplayFlowing_);
    EXPECT_FALSE(state.statusDisplayFlowFinishFlag_);
    QApplication::sendEvent(&view, &enter);
    EXPECT_EQ(systemLog.count(refusal), 1);
    controller.stopGetModemStatus();
    ASSERT_TRUE(sequenceEnds());
    configure({{u"DonotShowStatusWhenMouseMoveIn"_s, true}});
    controller.mouseEnteredHandle();
    EXPECT_FALSE(state.startDisplayFlowing_);
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
