#pragma once

#include <QString>

#include <optional>

namespace tarvo {

/// The fields of a status answer that decide whether the modem's pages open by themselves; nil when it has none.
struct WebUIFields {
    std::optional<QString> autoStart{}; ///< "webui_auto_start"
    std::optional<QString> passwordRequired{}; ///< "connection_password_require"
    std::optional<QString> dialMode{}; ///< "dial_mode"
    std::optional<QString> passwordConfirmation{}; ///< "apn_id_password_confirm"
};

/// What a status answer decides about the modem's pages.
enum class WebUIDecision {
    Leave, ///< nothing opens
    Open, ///< unless they have opened by themselves before
    DependsOnDefaultApn, ///< `defaultApnNeedsUser` decides
};

WebUIFields readWebUIFields(const QString &content);

/// @return what the status answer alone decides: the pages open when the modem asks for it, or when it dials by itself
///         and needs a password
WebUIDecision decideWebUI(const WebUIFields &fields);

/// @return whether the modem, dialling by itself without a password, still lacks something that the user has to enter:
///         its default access point, described by the JSON text @p defaultApn, has no user name or no confirmed
///         password, or there is no such description
bool defaultApnNeedsUser(const std::optional<QString> &defaultApn, const WebUIFields &fields);

/// @return the log's line about that description. It holds only values that are nobody's secret: the others are "…", and
///         of a text that is no JSON object only the length is told
QString defaultApnLine(const std::optional<QString> &defaultApn);

} // namespace tarvo
