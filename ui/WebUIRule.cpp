#include "ui/WebUIRule.h"

#include "modemapi/AnswerFields.h"
#include "modemapi/JsonValues.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

namespace tarvo {

using namespace Qt::StringLiterals;

WebUIFields readWebUIFields(const QString &content)
{
    return {.autoStart = getModemInfoFromKeyForWeb5(u"webui_auto_start\":"_s, content),
            .passwordRequired = getModemInfoFromKeyForWeb5(u"connection_password_require\":"_s, content),
            .dialMode = getModemInfoFromKeyForWeb5(u"dial_mode\":"_s, content),
            .passwordConfirmation = getModemInfoFromKeyForWeb5(u"apn_id_password_confirm\":"_s, content)};
}

WebUIDecision decideWebUI(const WebUIFields &fields)
{
    if (fields.autoStart == u"1"_s)
        return WebUIDecision::Open;
    if (fields.dialMode != u"auto_dial"_s)
        return WebUIDecision::Leave;
    return fields.passwordRequired == u"1"_s ? WebUIDecision::Open : WebUIDecision::DependsOnDefaultApn;
}

bool defaultApnNeedsUser(const std::optional<QString> &defaultApn, const WebUIFields &fields)
{
    const std::optional<QJsonDocument> description =
        defaultApn ? parseJson(*defaultApn).document : std::optional<QJsonDocument>();
    if (!description)
        return true;
    const QJsonValue userName = description->object().value("username"_L1);
    const bool hasUserName = !userName.isUndefined() && !userName.isNull() && userName != QJsonValue(QString());
    return !hasUserName || integerValue(description->object().value("password_status"_L1)) != 1
        || fields.passwordConfirmation == u"1"_s;
}

} // namespace tarvo
