#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "modemapi/AnswerFields.h"

namespace tarvo {

std::optional<QString> MainController::getConnectionStatusWithWebContent(const std::optional<QString> &content) const
{
    if (!content)
        return std::nullopt;
    if (configurationFlag(QStringLiteral("NeedManualSetConnectStatus")))
        return getModemInfoFromKey(configurationText(QStringLiteral("ConnectStatusKey")), content);
    if (auto status = getModemInfoFromKey(QStringLiteral("ppp_status: "), content))
        return status;
    if (auto status = getModemInfoFromKeyForWeb5(QStringLiteral("ppp_status\":"), content))
        return status;
    return getModemInfoFromKey(QStringLiteral("pppstate: "), content);
}

std::optional<QString> MainController::getConnectMode(const std::optional<QString> &content) const
{
    if (!content || !configurationFlag(QStringLiteral("NeedDialModeJudge")))
        return std::nullopt;
    if (auto mode = getModemInfoFromKey(configurationText(QStringLiteral("ManualDialKey")), content))
        return mode;
    return getModemInfoFromKeyForWeb5(QStringLiteral("dial_mode\":"), content);
}

bool MainController::isConnectedWithStautusContent(const std::optional<QString> &status) const
{
    if (!status)
        return false;
    return *status == u"ppp_connected" || *status == u"connect"
        || status == configurationText(QStringLiteral("ConnectedStatusValue")) || *status == u"ipv6_connected"
        || *status == u"ipv4_ipv6_connected";
}

bool MainController::isAutoConnect(const std::optional<QString> &dialMode)
{
    const bool automatic = dialMode == QStringLiteral("auto_dial");
    whileAttached([&] { state_.isAutoConnectOn_ = automatic; });
    return automatic;
}

} // namespace tarvo
