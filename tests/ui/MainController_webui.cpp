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
        settings.insert(u"NeedDisplayWhenDeviceRemoved"_s, false);
        configure(settings);
        controller.stopGetModemStatus(); // the next icon is made with these settings
        controller.startToolbarStatus();
        QCoreApplication::processEvents();
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
    const std::pair<QString, WebUIDecision> cases[] = {
        {u""_s, WebUIDecision::Leave},
        {uR"("webui_auto_start":"1")"_s, WebUIDecision::Open},
        {uR"("webui_auto_start":"11")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"1","dial_mode":"manual_dial")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"1","dial_mode":"auto_dial")"_s, WebUIDecision::Open},
        {uR"("connection_password_require":"0","dial_mode":"auto_dial")"_s, WebUIDecision::DependsOnDefaultApn},
        {uR"("dial_mode":"auto_dial")"_s, WebUIDecision::DependsOnDefaultApn},
    };
    for (const auto &[content, decision] : cases)
        EXPECT_EQ(decideWebUI(readWebUIFields(content)), decision) << content.toStdString();
}

TEST(WebUIRule, LeavesOnlyACompleteDefaultApnAlone)
{
    const std::optional<QString> complete = uR"({"username":"abc","password_status":"1"})"_s;
    EXPECT_FALSE(defaultApnNeedsUser(complete, {}));
    EXPECT_FALSE(defaultApnNeedsUser(complete, {.passwordConfirmation = u"0"_s}));
    EXPECT_TRUE(defaultApnNeedsUser(complete, {.passwordConfirmation = u"1"_s}));
    EXPECT_TRUE(defaultApnNeedsUser(std::nullopt, {}));
    for (const QString &answer :
         {uR"({"username":"","password_status":1})"_s, uR"({"username":null,"password_status":1})"_s,
          uR"({"password_status":1})"_s, uR"({"username":"abc","password_status":0})"_s, uR"({"username":"abc"})"_s,
          u"[]"_s, u"no JSON"_s, u""_s})
        EXPECT_TRUE(defaultApnNeedsUser(answer, {})) << answer.toStdString();
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
    modem.device.change([](ModemCondition &condition) {
        condition.startsWebUI = false;
        condition.defaultApnPasswordStatus = 0;
    });
    plugIn(modem);
    tick(modem, 3);
    ASSERT_TRUE(eventually([&] { return workspace.openedURLs().size() == 2; }));
    EXPECT_EQ(opened(), QStringList(u"http://"_s + modem.server.authority()));
    EXPECT_EQ(modem.device.requests("default_apn").size(), 1);
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
    plugIn(modem);
    auto *view = qobject_cast<CustomView *>(statusBar.itemWithView()->view());
    const auto choices = [&] {
        QStringList texts;
        for (const QAction *action : view->actions())
            if (action->isVisible() && !action->isSeparator())
                texts << (action->isEnabled() ? action->text() : u"- "_s + action->text());
        return texts.join(u", ");
    };
    const QString always = u"MenuOpenModemPage, MenuOpenMessages, MenuAbout, MenuQuit"_s;
    EXPECT_EQ(choices(), always);
    view->setTip(u"Rock & Roll"_s);
    EXPECT_EQ(choices(), u"- Rock && Roll, "_s + always);
    view->setTip(QString());
    EXPECT_EQ(choices(), always);
    for (QAction *action : view->actions())
        if (action->text().startsWith(u"MenuOpen"))
            action->trigger();
    EXPECT_EQ(opened(), QStringList({u"http://"_s + modem.server.authority(), u"http://sms/"_s}));
}
