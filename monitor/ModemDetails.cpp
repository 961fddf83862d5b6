#include "monitor/ModemDetails.h"

#include "modemapi/AnswerFields.h"
#include "modemapi/ConnectionStatus.h"

#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// @return whether @p status is the one before one of those that mean a connection
bool isConnecting(const QString &status)
{
    return QStringList{u"ppp_connecting"_s, u"connecting"_s, u"ipv6_connecting"_s, u"ipv4_ipv6_connecting"_s}.contains(
        status);
}

} // namespace

ModemDetails readModemDetails(const QString &content, const StatusFields &fields, const ConfigManager &settings)
{
    ModemDetails details;
    if (const auto status = getConnectionStatusWithWebContent(content, settings)) {
        details.connected = isConnectedWithStautusContent(status, settings);
        details.connecting = !*details.connected && isConnecting(*status);
    }
    details.sim = simState(getModemInfoFromKeyForWeb5(u"modem_main_state\":"_s, content));
    if (const auto mode = getModemInfoFromKeyForWeb5(u"dial_mode\":"_s, content))
        details.dialsByItself = *mode == u"auto_dial";
    if (fields.roamingSetting && !fields.roamingSetting->isEmpty())
        details.roamingAllowed = isRoaming(fields);
    if (const auto month = monthlyUsage(fields)) {
        details.countsMonth = true;
        details.reminderThreshold = month->threshold;
    }
    details.threeDayUse = threeDayUsage(fields).used;
    return details;
}

} // namespace tarvo
