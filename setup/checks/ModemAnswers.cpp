#include "setup/checks/ModemAnswers.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/AnswerFields.h"
#include "modemapi/StatusFields.h"

#include <QMetaType>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> textOf(const QVariantMap &settings, const QString &key)
{
    const QVariant value = settings.value(key);
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

} // namespace

QString statusPagePath(const QVariantMap &settings)
{
    return textOf(settings, u"NetInfoAddress"_s).value_or(u"logo_data.asp"_s);
}

std::optional<QString> connectionStatus(const QString &page, const QVariantMap &settings)
{
    if (boolValue(settings.value(u"NeedManualSetConnectStatus"_s)))
        return getModemInfoFromKey(textOf(settings, u"ConnectStatusKey"_s), page);
    if (auto status = getModemInfoFromKey(u"ppp_status: "_s, page))
        return status;
    if (auto status = getModemInfoFromKeyForWeb5(u"ppp_status\":"_s, page))
        return status;
    return getModemInfoFromKey(u"pppstate: "_s, page);
}

bool hasStatusFields(const QString &page, const QVariantMap &settings)
{
    return connectionStatus(page, settings) || hasStatusField(page)
        || getModemInfoFromKeyForWeb5(u"modem_main_state\":"_s, page)
        || getModemInfoFromKeyForWeb5(u"dial_mode\":"_s, page);
}

} // namespace tarvo
