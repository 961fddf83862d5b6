#pragma once

#include "modemapi/StatusSnapshot.h"

#include <QString>

#include <array>
#include <optional>

namespace tarvo {

/// The kinds of news that a balloon sequence goes through, in its order.
namespace DisplayType {
inline constexpr int NewVersion = 5; ///< the modem offers new firmware
inline constexpr int ThreeDayLimitExceeded = 6; ///< more than the three-day limit is used
inline constexpr int MonthlyLimitExceeded = 7; ///< more than the monthly limit is used
inline constexpr int MonthlyLimitReached = 8; ///< the monthly reminder's threshold is passed
} // namespace DisplayType

/// All of them, in that order.
inline constexpr std::array displayTypes{DisplayType::NewVersion, DisplayType::ThreeDayLimitExceeded,
                                         DisplayType::MonthlyLimitExceeded, DisplayType::MonthlyLimitReached};

/// What one kind of news asks for.
struct NewsEffect {
    QString image{}; ///< the icon's new image; empty leaves it as it is
    QString balloonText{}; ///< what a balloon has to say now; empty for nothing
    bool announcesUpdate = false; ///< the update panel is due

    bool isNews = false; ///< the news are there, and can be told: this is what was shown before, next time
    std::optional<bool> clickOpensUpdatePage{}; ///< nil leaves that as it is, as the next
    std::optional<bool> clickOpensLimitPage{};
    bool tellsOverrun = false; ///< the text names what was used beyond the monthly limit as such

    bool operator==(const NewsEffect &) const = default;
};

/// @param type        the kind of news, 5 to 8; any other asks for nothing
/// @param seenBefore  whether these news were there at the last evaluation
/// @return what @p snapshot, of a modem that is there, asks for
NewsEffect evaluateDisplayType(const StatusSnapshot &snapshot, int type, bool seenBefore);

} // namespace tarvo
