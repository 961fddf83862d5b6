#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// How a modem writes its status page.
enum class PageStyle {
    Json, ///< {"key":"value",...}
    ScriptText, ///< key: 'value', a line each
};

/// All that a simulated modem is and knows. Field names in the comments are those of its answers.
struct ModemCondition {
    PageStyle pageStyle = PageStyle::Json; ///< of the status page
    QString statusPagePath = u"logo_data.asp"_s; ///< where the status page is, without a leading slash

    QString crVersion = u"CR_1.0.7"_s; ///< `cr_version`
    QString waInnerVersion = u"WA_2.3.1"_s; ///< `wa_inner_version`
    bool grantsSessions = true; ///< whether `RD` has a value

    QString mainState = u"modem_init_complete"_s; ///< `modem_main_state`
    QString pppStatus = u"ppp_connected"_s; ///< `ppp_status`
    QString dialMode = u"auto_dial"_s; ///< `dial_mode`
    bool roamingAllowed = false; ///< `international_roaming_setting`
    QString firmwarePackage = u"version_idle"_s; ///< `dm_find_package`

    bool reminderOn = true; ///< `flow_reminder_switch`
    double monthlyLimit = 10; ///< GiB
    double reminderThreshold = 8; ///< GiB
    double threeDayLimit = 3; ///< GiB
    quint64 monthlySent = 0; ///< bytes, like the next three
    quint64 monthlyReceived = 0;
    quint64 threeDaysSent = 0;
    quint64 threeDaysReceived = 0;
    quint64 trafficPerPage = 0; ///< bytes received between two status pages: how fast the counters run

    bool startsWebUI = false; ///< `webui_auto_start`
    bool needsConnectionPassword = false; ///< `connection_password_require`
    QString passwordConfirm = u"0"_s; ///< `apn_id_password_confirm`
    QString passwordSave = u"1"_s; ///< `apn_id_password_save`
    QString defaultApnUser = u"user"_s; ///< "username" of the default access point
    int defaultApnPasswordStatus = 1; ///< "password_status" of it

    bool isPCProfileType = true; ///< `profile_type`
    QStringList webProfiles{u"Internet"_s}; ///< the modem's own access points, by index
    /// The access points that a computer has added; one takes the place of another of its index.
    QList<QJsonObject> pcApns;
    QString defaultProfileName; ///< `pc_default_profilename`
    std::optional<int> defaultApnIndex; ///< as last set by a computer
    bool apnReady = false; ///< a computer has said that its access points are complete
    bool lowPower = false; ///< as last set by a computer
    QString pcTime; ///< as last set by a computer
};

/// The status page with @p condition's values.
QByteArray statusPage(const ModemCondition &condition);

/// The answer to a get command.
/// @param command  the command's name, or names of fields with commas between them
/// @param session  the value of `RD`
QByteArray getAnswer(const ModemCondition &condition, const QString &command, const QString &session);

/// Carries out a set command whose sender has been checked.
/// @param form  the form's text without the token: `goformId=...` and the command's fields, none of them escaped
/// @return whether the modem accepts it
bool applySetCommand(ModemCondition &condition, const QByteArray &form);

} // namespace tarvo
