#include "setup/checks/ModemAnswers.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/AnswerFields.h"

#include <QMetaType>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> textOf(const QVariantMap &settings, const QString &key)
{
    const QVariant value = settings.value(key);
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

const QStringList dataFields{
    u"flow_reminder_switch"_s,         u"max_usage_set_for_month"_s,  u"reminder_threshold_for_data_usage"_s,
    u"max_usage_set_for_three_days"_s, u"monthly_velta_tx"_s,         u"monthly_velta_rx"_s,
    u"last_three_days_tx_bytes"_s,     u"last_three_days_rx_bytes"_s, u"international_roaming_setting"_s};

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
    return connectionStatus(page, settings) || missingDataFields(page).size() < dataFields.size()
        || getModemInfoFromKeyForWeb5(u"modem_main_state\":"_s, page)
        || getModemInfoFromKeyForWeb5(u"dial_mode\":"_s, page);
}

QStringList missingDataFields(const QString &page)
{
    QStringList missing;
    for (const QString &name : dataFields) {
        if (!getModemInfoFromKey(name + u": "_s, page) && !getModemInfoFromKeyForWeb5(name + u"\":"_s, page))
            missing.append(name);
    }
    return missing;
}

} // namespace tarvo
