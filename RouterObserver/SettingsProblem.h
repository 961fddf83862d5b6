#pragma once

#include <QString>

namespace tarvo {

class ConfigManager;

/// Why the settings cannot let any modem be found.
enum class SettingsProblem {
    None,
    NoFile,
    Unreadable, ///< the file is there, and damaged or not to be read
    NoVendor, ///< no vendor is listed, or the one of the shipped example alone, which no device has
    VendorIsNumber, ///< the only vendors are numbers, which never match
};

/// @return the first problem of @p settings
SettingsProblem settingsProblem(const ConfigManager &settings);

/// @return a line for the log; empty for no problem
QString logLine(SettingsProblem problem);

/// @return a line for the log that names the first vendor of @p settings that is no text, and so never matches a device;
///         empty when there is none
QString unmatchedVendorLine(const ConfigManager &settings);

} // namespace tarvo
