#include "ui/pages/WebUIRule.h"

#include "modemapi/AnswerFields.h"
#include "modemapi/JsonValues.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

bool isHarmless(const QString &key, const QJsonValue &value)
{
    static const QSet<QString> harmless{u"apn"_s,   u"auth"_s,     u"dns_mode"_s,        u"index"_s,  u"isPC"_s,
                                        u"isWeb"_s, u"pdp_type"_s, u"password_status"_s, u"profile"_s};
    return harmless.contains(key) && !value.isObject() && !value.isArray();
}

} // namespace

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

QString defaultApnLine(const std::optional<QString> &defaultApn)
{
    if (!defaultApn)
        return u"default_apn is nil"_s;
    std::optional<QJsonObject> description = parseJsonObject(*defaultApn).object;
    if (!description)
        return u"default_apn: no JSON object, %1 characters"_s.arg(defaultApn->size());
    for (auto field = description->begin(); field != description->end(); ++field) {
        if (!isHarmless(field.key(), field.value()))
            field.value() = u"…"_s;
    }
    return u"default_apn: "_s + QString::fromUtf8(QJsonDocument(*description).toJson(QJsonDocument::Compact));
}

} // namespace tarvo
