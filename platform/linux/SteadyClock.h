#pragma once

#include "platform/Clock.h"

namespace tarvo {

/// The kernel's monotonic clock.
class SteadyClock final : public Clock {
public:
    TimePoint now() const override;
    bool waitUntil(TimePoint deadline, std::stop_token stop) override;
};

} // namespace tarvo
