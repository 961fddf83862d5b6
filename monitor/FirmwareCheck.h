#pragma once

#include "platform/Clock.h"

#include <QString>

#include <optional>
#include <stop_token>

namespace tarvo {

/// When the modem was last asked for new firmware, and during which attachment.
struct FirmwareCheckSchedule {
    std::stop_token attachment{};
    Clock::TimePoint lastCheck{};
};

/// @return the schedule after a check at @p now during @p attachment, when one is due: the first of an attachment at
///         once, each further one ten minutes after the one before; nil when none is due
std::optional<FirmwareCheckSchedule> nextFirmwareCheck(const FirmwareCheckSchedule &schedule,
                                                       const std::stop_token &attachment, Clock::TimePoint now);

/// @return whether the modem's answer @p packageState means that new firmware is offered: it has a "1" anywhere, or
///         names a critical or an optional version
bool offersNewFirmware(const QString &packageState);

} // namespace tarvo
