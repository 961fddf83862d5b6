#include "modemapi/StatusFields.h"

#include "modemapi/AnswerFields.h"
#include "modemapi/ConnectionStatus.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

using Field = std::optional<QString> StatusFields::*;

const std::array<std::pair<QString, Field>, 9> fieldNames{{
    {u"flow_reminder_switch"_s, &StatusFields::reminderSwitch},
    {u"max_usage_set_for_month"_s, &StatusFields::monthlyLimit},
    {u"reminder_threshold_for_data_usage"_s, &StatusFields::monthlyThreshold},
    {u"max_usage_set_for_three_days"_s, &StatusFields::threeDayLimit},
    {u"monthly_velta_tx"_s, &StatusFields::monthlySent},
    {u"monthly_velta_rx"_s, &StatusFields::monthlyReceived},
    {u"last_three_days_tx_bytes"_s, &StatusFields::threeDaySent},
    {u"last_three_days_rx_bytes"_s, &StatusFields::threeDayReceived},
    {u"international_roaming_setting"_s, &StatusFields::roamingSetting},
}};

bool isThere(const QString &name, const QString &content)
{
    return getModemInfoFromKey(name + u": "_s, content) || getModemInfoFromKeyForWeb5(name + u"\":"_s, content);
}

} // namespace

StatusFields readStatusFields(const QString &content)
{
    StatusFields fields;
    for (const auto &[name, field] : fieldNames)
        fields.*field = getModemInfoFromKey(name + u": "_s, content);
    for (const auto &[name, field] : fieldNames) {
        if (!(fields.*field) || (fields.*field)->isEmpty())
            fields.*field = getModemInfoFromKeyForWeb5(name + u"\":"_s, content);
    }
    return fields;
}

QStringList missingStatusFields(const QString &content)
{
    QStringList missing;
    for (const auto &[name, field] : fieldNames) {
        if (!isThere(name, content))
            missing.append(name);
    }
    return missing;
}

bool isStatusPage(const QString &content, const ConfigManager &settings)
{
    return std::ranges::any_of(fieldNames, [&](const auto &field) { return isThere(field.first, content); })
        || getConnectionStatusWithWebContent(content, settings)
        || getModemInfoFromKeyForWeb5(u"modem_main_state\":"_s, content)
        || getModemInfoFromKeyForWeb5(u"dial_mode\":"_s, content);
}

} // namespace tarvo
