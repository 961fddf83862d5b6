#include "ui/pages/WebPages.h"

#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"
#include "ui/icon/CustomView.h"
#include "ui/windows/StatusWindow.h"

#include <QApplication>
#include <QTest>

#include <algorithm>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

struct WebUI : Companion {
    WebUI()
    {
        settings.insert({{u"OperatorHomePage"_s, u"http://home/"_s},
                         {u"FotaNewVersionHomePage"_s, u"http://update/"_s},
                         {u"DateLimitHomePage"_s, u"http://limit/"_s},
                         {u"WebUISmsPage"_s, u"http://sms/"_s}});
        configure(settings);
    }

    QStringList opened() const
    {
        QCoreApplication::processEvents();
        return QUrl::toStringList(workspace.openedURLs());
    }

    CustomView &view() { return *qobject_cast<CustomView *>(statusBar.itemWithView()->view()); }

    QVariantMap settings = usualSettings();
};

} // namespace

TEST_F(WebUI, LogsTheDefaultApnOnceForEachPlugInHoweverOftenItsTextChanges)
{
    for (qsizetype plug = 1; plug <= 2; ++plug) {
        modem.device.clearRequests();
        plugIn(modem);
        for (const qsizetype second : {1, 2, 3}) {
            modem.device.change(
                [&](ModemCondition &condition) { condition.defaultProfileName = u"number %1"_s.arg(second); });
            tick(modem, second);
        }
        ASSERT_TRUE(modem.device.waitForRequests(3, "default_apn"));
        unplug();
        EXPECT_EQ(systemLog.lines().filter(u"default_apn: "_s).size(), plug);
    }
}

TEST_F(WebUI, OpensOnceForEachPlugIn)
{
    modem.device.change([](ModemCondition &condition) { condition.startsWebUI = true; });
    plugIn(modem);
    tick(modem, 1);
    tick(modem, 2);
    ASSERT_TRUE(clock.waitForSleepers(1)); // the pass is over
    EXPECT_EQ(opened(), QStringList(u"http://home/"_s));

    unplug();
    modem.device.change([](ModemCondition &condition) {
        condition.startsWebUI = false;
        condition.defaultApnPasswordStatus = 0;
    });
    plugIn(modem);
    tick(modem, 3);
    ASSERT_TRUE(eventually([&] { return workspace.openedURLs().size() == 2; }));
    EXPECT_EQ(modem.device.requests("default_apn").size(), 1);
}

TEST_F(WebUI, ClickOpensThePageThatTheNewsCallsFor)
{
    SharedSnapshot snapshot;
    StepQueue mainThread;
    QStringList failed;
    WebPages pages(
        workspace, configured(), snapshot, mainThread, [] { return std::nullopt; },
        [&](const QString &page) { failed += page; });
    for (const auto &[update, limit] : {std::pair(true, true), {false, true}, {false, false}}) {
        pages.setClickTargets(update, std::nullopt);
        snapshot.reset({.haveDataLimitFlag_ = limit});
        pages.openHomepage();
    }
    for (const QVariant &page : {QVariant(u"no address"_s), QVariant(u"http://[bad"_s), QVariant()}) {
        settings.insert(u"OperatorHomePage"_s, page);
        configure(settings);
        pages.openHomepage();
    }
    pages.openWebUI();
    EXPECT_EQ(opened(), (QStringList{u"http://update/"_s, u"http://limit/"_s, u"http://home/"_s}));
    EXPECT_EQ(failed, (QStringList{u"no address"_s, u"http://[bad"_s}));
    EXPECT_FALSE(pages.hasOpenedWebUI());
}

TEST_F(WebUI, AClickWithoutAPageShowsTheStatusAndPagesOfTheModemNeedOne)
{
    const auto click = [&] {
        QApplication::setDoubleClickInterval(0); // so that the last click is no half of a double click
        QTest::qWait(2);
        view().click();
        QApplication::setDoubleClickInterval(60'000); // however busy the machine is
        view().click();
    };
    click();
    EXPECT_EQ(opened(), QStringList(u"http://home/"_s)) << "a double click is one click";
    settings.insert(u"OperatorHomePage"_s, u"http://%@/home"_s);
    settings.insert(u"WebUISmsPage"_s, u"http://%@/sms"_s);
    configure(settings);
    EXPECT_EQ(controller.pages().clickPage(), Page::None) << "the page is on a modem";
    EXPECT_FALSE(controller.pages().canOpen(Page::Messages));
    const auto isWindowShown = [] {
        return std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget *widget) {
            return qobject_cast<const StatusWindow *>(widget) && widget->isVisible();
        });
    };
    EXPECT_FALSE(isWindowShown());
    click();
    EXPECT_TRUE(isWindowShown());
    plugIn(modem);
    EXPECT_EQ(controller.pages().clickPage(), Page::Home);
    EXPECT_TRUE(controller.pages().canOpen(Page::Messages));
    click();
    EXPECT_EQ(opened().last(), u"http://%1/home"_s.arg(modem.server.authority()));
}
