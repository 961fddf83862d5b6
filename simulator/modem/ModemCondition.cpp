#include "simulator/modem/ModemCondition.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

using Fields = QList<std::pair<QString, QString>>;

QString onOff(bool value)
{
    return value ? u"on"_s : u"off"_s;
}

QString oneZero(bool value)
{
    return value ? u"1"_s : u"0"_s;
}

Fields statusFields(const ModemCondition &condition)
{
    return {
        {u"modem_main_state"_s, condition.mainState},
        {u"ppp_status"_s, condition.pppStatus},
        {u"dial_mode"_s, condition.dialMode},
        {u"international_roaming_setting"_s, onOff(condition.roamingAllowed)},
        {u"flow_reminder_switch"_s, onOff(condition.reminderOn)},
        {u"max_usage_set_for_month"_s, QString::number(condition.monthlyLimit)},
        {u"reminder_threshold_for_data_usage"_s, QString::number(condition.reminderThreshold)},
        {u"max_usage_set_for_three_days"_s, QString::number(condition.threeDayLimit)},
        {u"monthly_velta_tx"_s, QString::number(condition.monthlySent)},
        {u"monthly_velta_rx"_s, QString::number(condition.monthlyReceived)},
        {u"last_three_days_tx_bytes"_s, QString::number(condition.threeDaysSent)},
        {u"last_three_days_rx_bytes"_s, QString::number(condition.threeDaysReceived)},
        {u"webui_auto_start"_s, oneZero(condition.startsWebUI)},
        {u"connection_password_require"_s, oneZero(condition.needsConnectionPassword)},
        {u"apn_id_password_confirm"_s, condition.passwordConfirm},
        {u"apn_id_password_save"_s, condition.passwordSave},
    };
}

Fields allFields(const ModemCondition &condition)
{
    return statusFields(condition)
        + Fields{
            {u"cr_version"_s, condition.crVersion},
            {u"wa_inner_version"_s, condition.waInnerVersion},
            {u"dm_find_package"_s, condition.firmwarePackage},
            {u"profile_type"_s, oneZero(condition.isPCProfileType)},
            {u"pc_default_profilename"_s, condition.defaultProfileName},
        };
}

QByteArray compactJson(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray jsonText(const Fields &fields)
{
    QJsonObject object;
    for (const auto &[key, value] : fields)
        object.insert(key, value);
    return compactJson(object);
}

QByteArray scriptText(const Fields &fields)
{
    QString text;
    for (const auto &[key, value] : fields)
        text += u"%1: '%2',\n"_s.arg(key, value);
    return text.toUtf8();
}

QByteArray defaultApn(const ModemCondition &condition)
{
    return compactJson({{u"profile"_s, condition.defaultProfileName},
                        {u"username"_s, condition.defaultApnUser},
                        {u"password_status"_s, condition.defaultApnPasswordStatus}});
}

QByteArray apnList(const ModemCondition &condition)
{
    QJsonArray data;
    for (const QJsonObject &apn : condition.pcApns)
        data.append(apn);
    return compactJson({{u"data"_s, data}});
}

/// The value of a field whose text runs up to the next ampersand.
QString formValue(const QByteArray &form, const QByteArray &name)
{
    const auto parts = form.split('&');
    for (const QByteArray &part : parts) {
        if (part.startsWith(name + '='))
            return QString::fromUtf8(part.mid(name.size() + 1));
    }
    return {};
}

bool addApn(ModemCondition &condition, const QByteArray &form)
{
    const QByteArray fieldStart = "&apn="; // the record is not escaped and may hold ampersands: it is all that follows
    const qsizetype start = form.indexOf(fieldStart);
    const auto record = start < 0 ? QJsonDocument() : QJsonDocument::fromJson(form.mid(start + fieldStart.size()));
    if (!record.isObject())
        return false;
    const QJsonValue index = record.object().value(u"index"_s);
    condition.pcApns.removeIf([&](const QJsonObject &apn) { return apn.value(u"index"_s) == index; });
    condition.pcApns.append(record.object());
    return true;
}

bool setDefaultApn(ModemCondition &condition, const QByteArray &form)
{
    bool isNumber = false;
    const int index = formValue(form, "index").toInt(&isNumber);
    if (!isNumber)
        return false;
    condition.defaultApnIndex = index;
    const auto hasIndex = [index](const QJsonObject &apn) { return apn.value(u"index"_s).toInt(-1) == index; };
    const auto apn = std::ranges::find_if(std::as_const(condition.pcApns), hasIndex);
    if (apn != condition.pcApns.cend())
        condition.defaultProfileName = apn->value(u"profile"_s).toString();
    else if (index >= 0 && index < condition.webProfiles.size())
        condition.defaultProfileName = condition.webProfiles[index];
    return true;
}

bool setSwitches(ModemCondition &condition, const QByteArray &form)
{
    condition.passwordConfirm = formValue(form, "apn_id_password_confirm");
    condition.passwordSave = formValue(form, "apn_id_password_save");
    return true;
}

bool setTime(ModemCondition &condition, const QByteArray &form)
{
    condition.pcTime = formValue(form, "pc_current_time");
    return !condition.pcTime.isEmpty();
}

} // namespace

QByteArray statusPage(const ModemCondition &condition)
{
    const Fields fields = statusFields(condition);
    return condition.pageStyle == PageStyle::Json ? jsonText(fields) : scriptText(fields);
}

QByteArray getAnswer(const ModemCondition &condition, const QString &command, const QString &session)
{
    if (command == u"default_apn")
        return defaultApn(condition);
    if (command == u"pc_apn_list_query")
        return apnList(condition);
    const Fields known = allFields(condition) + Fields{{u"RD"_s, session}};
    const QStringList wanted = command.split(u',');
    Fields answer;
    for (const QString &key : wanted) {
        const auto field = std::ranges::find(known, key, &std::pair<QString, QString>::first);
        answer.append({key, field == known.end() ? QString() : field->second});
    }
    return jsonText(answer);
}

bool applySetCommand(ModemCondition &condition, const QByteArray &form)
{
    const QString command = formValue(form, "goformId");
    if (command == u"ADD_APN")
        return addApn(condition, form);
    if (command == u"SET_DEFAULT_APN")
        return setDefaultApn(condition, form);
    if (command == u"CONNECTION_SWITCH_SETTING")
        return setSwitches(condition, form);
    if (command == u"RESET_NTP_TIME")
        return setTime(condition, form);
    if (command == u"PC_APN_READY_SET") {
        condition.apnReady = true;
        return true;
    }
    if (command == u"SET_LPM_MODE" || command == u"SET_ONLINE_MODE") {
        condition.lowPower = command == u"SET_LPM_MODE";
        return true;
    }
    return false;
}

} // namespace tarvo
