#include "monitor/FirmwareCheck.h"

namespace tarvo {

using namespace std::chrono_literals;

std::optional<FirmwareCheckSchedule> nextFirmwareCheck(const FirmwareCheckSchedule &schedule,
                                                       const std::stop_token &attachment, Clock::TimePoint now)
{
    if (schedule.attachment == attachment && now - schedule.lastCheck < 10min)
        return std::nullopt;
    return FirmwareCheckSchedule{attachment, now};
}

bool offersNewFirmware(const QString &packageState)
{
    return packageState.contains(u'1') || packageState.contains(u"version_has_new_critical_software")
        || packageState.contains(u"version_has_new_optional_software");
}

} // namespace tarvo
