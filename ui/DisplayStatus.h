#pragma once

#include "app/ModemState.h"

#include <QString>

#include <optional>

namespace tarvo {

/// The kinds of news that a balloon sequence goes through, in its order.
namespace DisplayType {
inline constexpr int NewVersion = 5;
inline constexpr int ThreeDayLimitExceeded = 6;
inline constexpr int MonthlyLimitExceeded = 7;
inline constexpr int MonthlyLimitReached = 8;
} // namespace DisplayType

/// What one kind of news asks for.
struct DisplayStatus {
    QString image{}; ///< the icon's new image; empty leaves it as it is
    std::optional<QString> tip{}; ///< the icon's new tool tip; nil leaves it as it is
    QString balloonText{}; ///< what a balloon has to say now; empty for nothing
    bool announcesUpdate = false; ///< the update panel is due

    bool operator==(const DisplayStatus &) const = default;
};

/// Evaluates the display type @p type against @p state, and keeps there what the user's next click opens and what was
/// seen this time. A negative surplus is replaced by its magnitude once it has been told as an overrun.
///
/// Without a device nothing is shown and nothing changes. The caller keeps other writers of @p state away.
DisplayStatus evaluateDisplayType(ModemState &state, int type);

/// @return @p gigabytes, of 2^30 bytes, as an amount in the user's language, in the unit that suits its size
QString dataAmount(double gigabytes);

} // namespace tarvo
