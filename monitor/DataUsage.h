#pragma once

#include "modemapi/StatusFields.h"

#include <QString>

#include <limits>
#include <optional>

namespace tarvo {

/// @return the number at the start of @p text, after blanks, with sign, fraction and exponent; 0 when there is none.
///         "inf", "nan" and hexadecimal are no numbers; one too large for a float is infinite
float leadingNumber(const QString &text);

/// What stands for an amount that no modem can have: one that is below zero, no number, or above 2^60 bytes.
inline constexpr float unknownAmount = std::numeric_limits<float>::infinity();

/// Data used in a month against its limit and reminder threshold. Amounts in gigabytes of 2^30 bytes.
struct MonthlyUsage {
    float limit = 0;
    float used = 0;
    float surplus = 0; ///< what is left; below zero when the limit is passed
    bool thresholdPassed = false; ///< the user wants to be reminded
    bool limitPassed = false; ///< more than the limit is used
    float threshold = 0; ///< above which the user wants to be reminded

    bool operator==(const MonthlyUsage &) const = default;
};

/// Data used in three days against its limit, in gigabytes.
struct ThreeDayUsage {
    float limit = 0;
    bool limitPassed = false; ///< more than the limit is used
    float used = 0;

    bool operator==(const ThreeDayUsage &) const = default;
};

/// @return whether the modem may roam
bool isRoaming(const StatusFields &fields);
/// @return nil when the reminder is not switched on
std::optional<MonthlyUsage> monthlyUsage(const StatusFields &fields);
/// @return the usage, whether the reminder is switched on or not; a limit that is missing or no number is 0
ThreeDayUsage threeDayUsage(const StatusFields &fields);

} // namespace tarvo
