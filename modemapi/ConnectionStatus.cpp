#include "modemapi/ConnectionStatus.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/AnswerFields.h"

namespace tarvo {

using namespace Qt::StringLiterals;

std::optional<QString> getConnectionStatusWithWebContent(const std::optional<QString> &content,
                                                         const ConfigManager &settings)
{
    if (!content)
        return std::nullopt;
    if (settings.flag(u"NeedManualSetConnectStatus"_s))
        return getModemInfoFromKey(settings.text(u"ConnectStatusKey"_s), content);
    if (auto status = getModemInfoFromKey(u"ppp_status: "_s, content))
        return status;
    if (auto status = getModemInfoFromKeyForWeb5(u"ppp_status\":"_s, content))
        return status;
    return getModemInfoFromKey(u"pppstate: "_s, content);
}

std::optional<QString> getConnectMode(const std::optional<QString> &content, const ConfigManager &settings)
{
    if (!content || !settings.flag(u"NeedDialModeJudge"_s))
        return std::nullopt;
    if (auto mode = getModemInfoFromKey(settings.text(u"ManualDialKey"_s), content))
        return mode;
    return getModemInfoFromKeyForWeb5(u"dial_mode\":"_s, content);
}

bool isConnectedWithStautusContent(const std::optional<QString> &status, const ConfigManager &settings)
{
    if (!status)
        return false;
    return *status == u"ppp_connected" || *status == u"connect" || status == settings.text(u"ConnectedStatusValue"_s)
        || *status == u"ipv6_connected" || *status == u"ipv4_ipv6_connected";
}

} // namespace tarvo
