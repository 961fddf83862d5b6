#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tarvo {

class ConfigManager;

/// The fields of a status page that the snapshot is made of, as texts. A field that neither style has is nil.
struct StatusFields {
    std::optional<QString> reminderSwitch{}; ///< "on" when the monthly limit is watched
    std::optional<QString> monthlyLimit{}; ///< gigabytes
    std::optional<QString> monthlyThreshold{}; ///< read like a limit in gigabytes
    std::optional<QString> threeDayLimit{}; ///< gigabytes
    std::optional<QString> monthlySent{}; ///< bytes, like the next three
    std::optional<QString> monthlyReceived{};
    std::optional<QString> threeDaySent{};
    std::optional<QString> threeDayReceived{};
    std::optional<QString> roamingSetting{}; ///< "on" when roaming is allowed

    bool operator==(const StatusFields &) const = default;
};

/// Reads the fields from a status page: in the older style, and where that gives nothing or an empty text, in the JSON
/// style.
StatusFields readStatusFields(const QString &content);

/// @return the names of the fields that @p content has in neither style; one whose text is empty is there
QStringList missingStatusFields(const QString &content);
/// @return whether @p content, read as @p settings say, has any field that the snapshot is made of, be its text empty: a
///         page of a server that is busy, or asks for a password, has none
bool isStatusPage(const QString &content, const ConfigManager &settings);

} // namespace tarvo
