#include "ui/pages/WebUIRule.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(WebUIRule, DecidesByTheStatusAnswer)
{
    const std::pair<QString, WebUIDecision> cases[] = {
        {u""_s, WebUIDecision::Leave},
        {uR"("webui_auto_start":"1")"_s, WebUIDecision::Open},
        {uR"("webui_auto_start":"11")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"1","dial_mode":"manual_dial")"_s, WebUIDecision::Leave},
        {uR"("connection_password_require":"1","dial_mode":"auto_dial")"_s, WebUIDecision::Open},
        {uR"("connection_password_require":"0","dial_mode":"auto_dial")"_s, WebUIDecision::DependsOnDefaultApn},
    };
    for (const auto &[content, decision] : cases)
        EXPECT_EQ(decideWebUI(readWebUIFields(content)), decision) << content.toStdString();
}

TEST(WebUIRule, LeavesOnlyACompleteDefaultApnAlone)
{
    const std::optional<QString> complete = uR"({"username":"abc","password_status":"1"})"_s;
    EXPECT_FALSE(defaultApnNeedsUser(complete, {.passwordConfirmation = u"0"_s}));
    EXPECT_TRUE(defaultApnNeedsUser(complete, {.passwordConfirmation = u"1"_s}));
    EXPECT_TRUE(defaultApnNeedsUser(std::nullopt, {}));
    for (const QString &answer :
         {uR"({"username":"","password_status":1})"_s, uR"({"username":null,"password_status":1})"_s,
          uR"({"password_status":1})"_s, uR"({"username":"abc","password_status":0})"_s, uR"({"username":"abc"})"_s,
          u"[]"_s, u"no JSON"_s, u""_s})
        EXPECT_TRUE(defaultApnNeedsUser(answer, {})) << answer.toStdString();
}

TEST(WebUIRule, LogsNoSecretOfTheDefaultApn)
{
    const std::pair<std::optional<QString>, QString> lines[] = {
        {std::nullopt, u"default_apn is nil"_s},
        {uR"({"password_status":1,"profile":"P","username":"abc","passw\u006frd":"x","passwd":7})"_s,
         uR"(default_apn: {"passwd":"…","password":"…","password_status":1,"profile":"P","username":"…"})"_s},
        {uR"({"profile":{"password":"x"},"index":["x"],"username":{"a":"x"}})"_s,
         uR"(default_apn: {"index":"…","profile":"…","username":"…"})"_s},
        {uR"([{"password":"x"}])"_s, u"default_apn: no JSON object, 18 characters"_s},
        {u"password: 'x'"_s, u"default_apn: no JSON object, 13 characters"_s},
    };
    for (const auto &[answer, line] : lines)
        EXPECT_EQ(defaultApnLine(answer), line);
}
