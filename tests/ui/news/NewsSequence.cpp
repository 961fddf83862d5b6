#include "ui/news/NewsSequence.h"

#include "simulator/surroundings/SimulatedNotifications.h"
#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"
#include "ui/balloon/OvAttachedWindow.h"
#include "ui/icon/CustomView.h"
#include "ui/windows/AlertPanelController.h"

#include <QApplication>
#include <QEnterEvent>
#include <QMenu>
#include <QTranslator>

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

/// Lets something happen whenever a text is looked up.
struct Interjection final : QTranslator {
    Interjection() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *, const char *, int) const override
    {
        if (happens)
            happens();
        return {};
    }

    std::function<void()> happens;
};

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
        news.resetForStop();
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
    WebPages pages{workspace, configured(), snapshot, mainThread, [] { return std::nullopt; }, {}};
    QMenu menu;
    StatusIcon icon{
        statusBar, systemLog, configured(), menu, {[] {}, [this] { news.mouseEnteredHandle(&client.work()); }}};
    SimulatedNotifications notifications;
    bool panelWasOpen = false; ///< when the last balloon was about to open
    BalloonPresenter balloon{&notifications, {.iconFrame = [this] {
                                 panelWasOpen = AlertPanelController::shareAlertPanel()->wndAlert().isVisible();
                                 return icon.frame();
                             }}};
    UpdateAlert alert{pages};
    QStringList told;
    QList<bool> clicks; ///< whether the click opened the firmware page, each time that it was told of
    NewsSequence news{{snapshot, pages, balloon, alert, mainThread, clock, systemLog, configured()},
                      {[this](const QString &image) { icon.setStatusImage(image); },
                       [this](const StandingNews &each) { told += each.text; },
                       [this] { clicks += pages.openUpdateUrlWhileHasNewVersion(); }}};
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
    EXPECT_TRUE(panel->wndAlert().isVisible() && panelWasOpen);
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
    pass(3s);
    EXPECT_TRUE(eventually([] { return balloonText().isEmpty(); }));
    pass(2s);
    pass(2s);
    EXPECT_TRUE(sequenceEnds());
    EXPECT_TRUE(news.statusDisplayFlowFinishFlag());
    EXPECT_TRUE(eventually([&] { return view.image() == u"dataFluxExceeded"; }));

    const int changes = statusBar.itemWithView()->viewChanges();
    for (const auto wait : {7s, 1s}) {
        news.startDisPlayUIStatusThread(client.work());
        EXPECT_TRUE(news.startDisplayFlowing());
        clock.advance(wait);
    }
    EXPECT_FALSE(news.startDisplayFlowing()) << "known news take the time of a sequence, without a thread";
    QCoreApplication::processEvents();
    EXPECT_FALSE(panel->wndAlert().isVisible());
    EXPECT_EQ(statusBar.itemWithView()->viewChanges(), changes) << "nothing alternates";
    EXPECT_EQ(told, (QStringList{u"HaveNewVersionTipWhenConnected"_s, u"DatalimitExceed"_s}));
    EXPECT_EQ(clicks, QList{false}) << "as the last step left it";
    snapshot.reset({.isHaveNewVersion_ = true});
    news.startDisPlayUIStatusThread(client.work());
    EXPECT_TRUE(eventually([&] { return view.image() == u"newVersion"_s; })) << "what stands";
}

TEST_F(BalloonSequence, CountsTheTimeOfANotificationFromWhenItIsAnsweredAndOpensWhatItTells)
{
    QVariantMap settings = usualSettings();
    settings.insert({{u"FotaNewVersionHomePage"_s, u"http://firmware/"_s}, {u"DateLimitHomePage"_s, u"http://%@/l"_s}});
    configure(settings);
    statusBar.setFrame(std::nullopt);
    snapshot.reset({.isHaveNewVersion_ = true, .isHaveDataLimitExceedForOneMonth_ = true, .haveDataLimitFlag_ = true});
    news.startDisPlayUIStatusThread(client.work());
    ASSERT_TRUE(eventually([&] { return notifications.count() == 1; }));
    const Notification firmware = *notifications.shown();
    EXPECT_EQ(firmware.openLabel, u"NewsOpen"_s);
    EXPECT_FALSE(clock.waitForSleepers(1, 20ms)) << "nothing is shown as yet";
    notifications.refuse();
    ASSERT_TRUE(!balloonText().isEmpty() && clock.waitForSleepers(1));
    pass(3s);
    EXPECT_TRUE(eventually([] { return balloonText().isEmpty(); }));
    pass(2s);
    pass(2s);
    ASSERT_TRUE(eventually([&] { return notifications.count() == 1; }));
    EXPECT_NE(notifications.shown()->kind, firmware.kind);
    EXPECT_EQ(notifications.shown()->openLabel, QString()) << "where the modem is is not known";
    notifications.accept();
    pass(3s);
    EXPECT_TRUE(eventually([&] { return !balloon.isShown(); }));
    pass(2s);
    pass(2s);
    EXPECT_TRUE(sequenceEnds());
    firmware.opened();
    EXPECT_EQ(workspace.openedURLs(), QList<QUrl>{u"http://firmware/"_s});
}

TEST_F(BalloonSequence, TellsWhatComesUpMeanwhileWhenItsTimeComes)
{
    news.startDisPlayUIStatusThread(client.work());
    clock.advance(1s);
    snapshot.reset({.isHaveNewVersion_ = true});
    news.startDisPlayUIStatusThread(client.work());
    EXPECT_FALSE(clock.waitForSleepers(1, 20ms)) << "its time has passed";
    clock.advance(1s);
    snapshot.reset({.isHaveNewVersion_ = true, .isHaveDataLimitReachedForOneMonth_ = true});
    news.startDisPlayUIStatusThread(client.work());
    pass(2s); // after the three-day limit, whose time it was
    pass(1999ms);
    ASSERT_TRUE(clock.waitForSleepers(1));
    QCoreApplication::processEvents();
    EXPECT_TRUE(balloonText().isEmpty());
    pass(1ms);
    EXPECT_TRUE(eventually([] { return balloonText() == u"DatalimitReachedForOneMonth"; }));
    pass(3s);
    EXPECT_TRUE(eventually([] { return balloonText().isEmpty(); }));
    pass(2s);
    EXPECT_TRUE(sequenceEnds());
    news.startDisPlayUIStatusThread(client.work());
    EXPECT_TRUE(eventually([] { return balloonText() == u"HaveNewVersionTipWhenConnected"; }));
}

TEST_F(BalloonSequence, LosesNoNewsOfAPageThatComesWhileItLooks)
{
    StatusSnapshot page{.isHaveDataLimitReachedForOneMonth_ = true};
    snapshot.reset(page);
    news.getDisplayStatusByType(client.work(), 8);
    page.isHaveNewVersion_ = true;
    {
        Interjection interjection;
        interjection.happens = [&] { snapshot.reset(page); };
        news.mouseEnteredHandle(&client.work());
    }
    EXPECT_FALSE(news.getDisplayStatusByType(client.work(), 5).isEmpty()) << "it is still to be told";
}

TEST_F(BalloonSequence, TellsAnOverrunOnceForEachPage)
{
    snapshot.reset({.isHaveDataLimitReachedForOneMonth_ = true, .m_surplusData = -1.5F});
    EXPECT_EQ(news.getDisplayStatusByType(client.work(), 8), u"DatalimitReachedForOneMonth_Negative"_s);
    EXPECT_EQ(snapshot.get().m_surplusData, -1.5F) << "others see what the page said";
    news.resetForStop();
    EXPECT_EQ(news.getDisplayStatusByType(client.work(), 8), QString()) << "no device, no news";
    news.resetForReadyDevice();
    EXPECT_EQ(news.getDisplayStatusByType(client.work(), 8), u"DatalimitReachedForOneMonth"_s);
    news.resetForStop();
    news.resetForReadyDevice();
    news.startDisPlayUIStatusThread(client.work());
    for (int type = 5; type < 8; ++type)
        pass(2s);
    EXPECT_TRUE(eventually([] { return balloonText() == u"DatalimitReachedForOneMonth_Negative"; })) << "a new page";
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
    plugIn(modem);
    tick(modem, 1);
    ASSERT_TRUE(eventually([] { return !balloonText().isEmpty(); }));
    network.setIPv4(u"en5"_s, next.server.authority());
    QCoreApplication::processEvents();
    EXPECT_FALSE(balloonText().isEmpty()) << "a second report does not cut it short";
    const auto panel = AlertPanelController::shareAlertPanel();
    EXPECT_TRUE(panel->wndAlert().isVisible());
    unplug();
    EXPECT_TRUE(eventually([&] { return !controller.news().startDisplayFlowing(); })) << "without any time passing";
    EXPECT_TRUE(balloonText().isEmpty());
    EXPECT_FALSE(panel->wndAlert().isVisible());
    EXPECT_EQ(shownImage(), u"ready"_s);
}

TEST_F(BalloonSequence, StartsOnHoverUnlessOneRunsOrTheSettingsForbidIt)
{
    const QString refusal = u"already dislaystatus or no need display"_s;
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(statusBar.itemWithView()->view(), &enter);
    EXPECT_TRUE(systemLog.contains(u"mouseEntered"_s));
    EXPECT_TRUE(news.startDisplayFlowing());
    QApplication::sendEvent(statusBar.itemWithView()->view(), &enter);
    EXPECT_EQ(systemLog.count(refusal), 1);
    EXPECT_FALSE(news.statusDisplayFlowFinishFlag());
    clock.advance(8s);
    EXPECT_TRUE(!news.startDisplayFlowing() && news.statusDisplayFlowFinishFlag());
    news.mouseEnteredHandle(nullptr);
    clock.advance(7999ms);
    news.mouseEnteredHandle(nullptr);
    EXPECT_EQ(systemLog.count(refusal), 2) << "one takes its time without a modem, too";
    clock.advance(1ms);
    EXPECT_FALSE(news.startDisplayFlowing());
    configure({{u"DonotShowStatusWhenMouseMoveIn"_s, true}});
    news.mouseEnteredHandle(&client.work());
    EXPECT_FALSE(news.startDisplayFlowing());
    EXPECT_EQ(systemLog.count(refusal), 3);
}

TEST_F(Companion, PollingWithoutNewsTouchesTheIconNoMore)
{
    modem.device.change([](ModemCondition &condition) { condition.threeDayLimit = 1; });
    plugIn(modem);
    tick(modem, 1);
    ASSERT_TRUE(eventually([&] { return controller.presentation().status().snapshot.details.connected.has_value(); }));
    const int changes = statusBar.itemWithView()->viewChanges();
    for (int second = 2; second <= 12; ++second) // one whole sequence, and the next one's start
        tick(modem, second);
    QCoreApplication::processEvents();
    EXPECT_EQ(statusBar.itemWithView()->viewChanges(), changes);
}
