#pragma once

#include <QString>

#include <optional>

namespace tarvo {

/// @return the number at the start of @p text, after blanks, with sign, fraction and exponent; 0 when there is none.
///         "inf", "nan" and hexadecimal are no numbers; one too large for a float is infinite
float leadingNumber(const QString &text);

/// The fields of a status page that the snapshot is made of, as texts. A field that neither style has is nil.
struct StatusFields {
    std::optional<QString> reminderSwitch{};
    std::optional<QString> monthlyLimit{}; ///< gigabytes
    std::optional<QString> monthlyThreshold{}; ///< read like a limit in gigabytes
    std::optional<QString> threeDayLimit{}; ///< gigabytes
    std::optional<QString> monthlySent{}; ///< bytes, as the four below
    std::optional<QString> monthlyReceived{};
    std::optional<QString> threeDaySent{};
    std::optional<QString> threeDayReceived{};
    std::optional<QString> roamingSetting{};

    bool operator==(const StatusFields &) const = default;
};

/// Reads the fields from a status page: in the older style, and where that gives nothing or an empty text, in
/// the JSON style.
StatusFields readStatusFields(const QString &content);

/// Data used in a month against its limit and reminder threshold. Amounts in gigabytes of 2^30 bytes.
struct MonthlyUsage {
    float limit = 0;
    float used = 0;
    float surplus = 0; ///< what is left; below zero when the limit is passed
    bool thresholdPassed = false;
    bool limitPassed = false;

    bool operator==(const MonthlyUsage &) const = default;
};

/// Data used in three days against its limit, in gigabytes.
struct ThreeDayUsage {
    float limit = 0;
    bool limitPassed = false;

    bool operator==(const ThreeDayUsage &) const = default;
};

bool isRoaming(const StatusFields &fields);
/// @return nil when the reminder is not switched on
std::optional<MonthlyUsage> monthlyUsage(const StatusFields &fields);
ThreeDayUsage threeDayUsage(const StatusFields &fields);

} // namespace tarvo
