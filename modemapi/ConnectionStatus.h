#pragma once

#include <QString>

#include <optional>

namespace tarvo {

class ConfigManager;

// What a status page says of the modem's connection, read as the settings say. For every thread.

/// @return the connection status in @p content; nil when there is none
std::optional<QString> getConnectionStatusWithWebContent(const std::optional<QString> &content,
                                                         const ConfigManager &settings);
/// @return the dial mode in @p content; nil when there is none or the settings do not want it
std::optional<QString> getConnectMode(const std::optional<QString> &content, const ConfigManager &settings);
/// @return whether @p status means that the modem is connected; false for nil
bool isConnectedWithStautusContent(const std::optional<QString> &status, const ConfigManager &settings);

} // namespace tarvo
