#pragma once

#include "modemapi/StatusSnapshot.h"
#include "platform/Clock.h"

#include <QString>

#include <optional>
#include <stop_token>

namespace tarvo {

class ModemClient;

/// When the modem may be asked for new firmware again, and during which attachment.
struct FirmwareCheckSchedule {
    std::stop_token attachment{}; ///< of the last check
    Clock::TimePoint due{}; ///< of the next one in the same attachment

    /// @return whether a check is due at @p now during @p current: the first of an attachment always is
    bool isDue(const std::stop_token &current, Clock::TimePoint now) const;
};

/// @return whether the modem's answer @p packageState means that new firmware is offered: it has a "1" anywhere, or
///         names a critical or an optional version
bool offersNewFirmware(const QString &packageState);

/// Asks the modem for new firmware, and keeps the answer in the snapshot. Used on the polling worker.
class FirmwareCheck {
public:
    /// @param snapshot, clock  outlive this object
    FirmwareCheck(SharedSnapshot &snapshot, Clock &clock);

    /// Asks, when the settings want it. @return false when the modem gave no answer; the snapshot is left as it is then
    bool checkFotaUpdateWhenConnected(ModemClient &client);
    /// Runs that check when @p content, the status page, reads connected: for the first time in an attachment, then ten
    /// minutes after each answer, or a minute after a failure.
    void checkFotaUpdateWhenDue(ModemClient &client, const QString &content);

private:
    SharedSnapshot &m_snapshot;
    Clock &m_clock;
    FirmwareCheckSchedule m_schedule;
};

} // namespace tarvo
