#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"
#include "ui/CustomView.h"
#include "ui/WebUIRule.h"

#include <QAction>
#include <QCoreApplication>

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

    /// @return the pages opened since the last call
    QStringList opened()
    {
        QCoreApplication::processEvents();
        QStringList pages;
        for (const QUrl &url : workspace.openedURLs().mid(seen))
            pages << url.toString();
        seen = workspace.openedURLs().size();
        return pages;
    }

    QVariantMap settings = usualSettings();
    qsizetype seen = 0;
};

} // namespace

TEST(WebUIRule, DecidesByTheStatusAnswer)
{
    struct Case {
        QString content;
        WebUIDecision decision;
    };
    const Case cases[] = {
        {u""_s, WebUIDecision::Leave},
        {uR"("webui_auto_start":"1")"_s, WebUIDecision::Open},
        {uR"("webui_auto_start":"11")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"1")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"1","dial_mode":"manual_dial")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"1","dial_mode":"auto_dial")"_s, WebUIDecision::Open},
        {uR"("connection_password_require":"0","dial_mode":"manual_dial")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"0","dial_mode":"auto_dial")"_s, WebUIDecision::DependsOnDefaultApn},
        {uR"("dial_mode":"auto_dial")"_s, WebUIDecision::DependsOnDefaultApn},
    };
    for (const Case &c : cases)
        EXPECT_EQ(decideWebUI(readWebUIFields(c.content)), c.decision) << c.content.toStdString();
}

TEST(WebUIRule, LeavesOnlyACompleteDefaultApnAlone)
{
    struct Case {
        std::optional<QString> answer;
        std::optional<QString> confirmation;
        bool needsUser;
    };
    const QString complete = uR"({"username":"abc","password_status":1})"_s;
    const Case cases[] = {
        {complete, u"0"_s, false},
        {complete, std::nullopt, false},
        {complete, u"1"_s, true},
        {uR"({"username":"abc","password_status":"1"})"_s, u"0"_s, false},
        {uR"({"username":"","password_status":1})"_s, u"0"_s, true},
        {uR"({"username":null,"password_status":1})"_s, u"0"_s, true},
        {uR"({"password_status":1})"_s, u"0"_s, true},
        {uR"({"username":"abc","password_status":0})"_s, u"0"_s, true},
        {uR"({"username":"abc"})"_s, u"0"_s, true},
        {u"[]"_s, u"0"_s, true},
        {u"no JSON"_s, u"0"_s, true},
        {u""_s, u"0"_s, true},
        {std::nullopt, u"0"_s, true},
    };
    for (const Case &c : cases)
        EXPECT_EQ(defaultApnNeedsUser(c.answer, {.passwordConfirmation = c.confirmation}), c.needsUser)
            << c.answer.value_or(u"nil"_s).toStdString();
}

TEST_F(WebUI, OpensOnceForEachPlugIn)
{
    modem.device.change([](ModemCondition &condition) { condition.startsWebUI = true; });
    plugIn(modem);
    tick(modem, 1);
    ASSERT_TRUE(eventually([&] { return !workspace.openedURLs().isEmpty(); }));
    tick(modem, 2);
    ASSERT_TRUE(clock.waitForSleepers(2)); // the pass is over, and shows what it found
    EXPECT_EQ(opened(), QStringList(u"http://home/"_s));
    EXPECT_TRUE(modem.device.requests("default_apn").isEmpty());

    unplug();
    settings.remove(u"OperatorHomePage"_s);
    configure(settings);
    plugIn(modem);
    tick(modem, 3);
    ASSERT_TRUE(eventually([&] { return workspace.openedURLs().size() == 2; }));
    EXPECT_EQ(opened(), QStringList(u"http://"_s + modem.server.authority()));
}

TEST_F(WebUI, AsksForTheDefaultApnWhenThatDecides)
{
    plugIn(modem);
    tick(modem, 1);
    ASSERT_TRUE(clock.waitForSleepers(2));
    EXPECT_EQ(modem.device.requests("default_apn").size(), 1);
    EXPECT_EQ(opened(), QStringList());
    modem.device.change([](ModemCondition &condition) { condition.defaultApnPasswordStatus = 0; });
    tick(modem, 2);
    EXPECT_TRUE(eventually([&] { return !workspace.openedURLs().isEmpty(); }));
}

TEST_F(WebUI, ClickOpensThePageThatTheNewsCallsFor)
{
    auto *view = qobject_cast<CustomView *>(statusBar.itemWithView()->view());
    controller.state().openUpdateUrlWhileHasNewVersion_ = controller.state().haveDataLimitFlag_ = true;
    view->click();
    EXPECT_EQ(opened(), QStringList(u"http://update/"_s));
    controller.state().openUpdateUrlWhileHasNewVersion_ = false;
    view->click();
    EXPECT_EQ(opened(), QStringList(u"http://limit/"_s));
    controller.state().haveDataLimitFlag_ = false;
    view->click();
    EXPECT_EQ(opened(), QStringList(u"http://home/"_s));
    EXPECT_FALSE(controller.state().hasOpenedWebUI_);

    for (const QString &page : {u"no address"_s, u"http://[bad"_s, QString()}) {
        settings.insert(u"OperatorHomePage"_s, page);
        configure(settings);
        view->click();
    }
    configure(usualSettings());
    view->click();
    EXPECT_EQ(opened(), QStringList()) << "a click has no page of last resort";
}

TEST_F(WebUI, MenuSaysTheTipAndOpensPages)
{
    settings.insert(u"NeedDisplayWhenDeviceRemoved"_s, false);
    configure(settings);
    controller.stopGetModemStatus();
    plugIn(modem); // makes a new icon, with the pages configured
    auto *view = qobject_cast<CustomView *>(statusBar.itemWithView()->view());
    const auto visible = [&] {
        QStringList texts;
        for (const QAction *action : view->actions())
            if (action->isVisible() && !action->isSeparator())
                texts << action->text() + (action->isEnabled() ? QString() : u" (disabled)"_s);
        return texts;
    };
    const QStringList choices = {u"MenuOpenModemPage"_s, u"MenuOpenMessages"_s, u"MenuAbout"_s, u"MenuQuit"_s};
    EXPECT_EQ(visible(), choices);
    view->setTip(u"Rock & Roll"_s);
    EXPECT_EQ(visible(), QStringList(u"Rock && Roll (disabled)"_s) + choices);
    view->setTip(QString());
    EXPECT_EQ(visible(), choices);
    for (QAction *action : view->actions())
        if (action->text().startsWith(u"MenuOpen"))
            action->trigger();
    EXPECT_EQ(opened(), QStringList({u"http://"_s + modem.server.authority(), u"http://sms/"_s}));
}
