#pragma once

#include "modemapi/HttpClient.h"

namespace tarvo {

/// What stands between us and the status page of a modem.
enum class Obstacle {
    NoAnswer,
    Silence, ///< the connection was taken, and nothing said
    Busy, ///< the modem says so
    WantsPassword,
    WantsHttps,
    OtherPage, ///< there is an answer, and it is no status page
};

/// @return what stands in the way, given that @p answer is no status page. For words to the user only
Obstacle obstacleOf(const HttpAnswer &answer);

} // namespace tarvo
