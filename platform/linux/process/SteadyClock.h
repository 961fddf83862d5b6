#pragma once

#include "platform/Clock.h"

namespace tarvo {

/// The kernel's monotonic clocks, clock_gettime(2).
class SteadyClock final : public Clock {
public:
    TimePoint now() const override;
    TimePoint nowAlsoAsleep() const override;
    bool waitUntil(TimePoint deadline, std::stop_token stop) override;
};

} // namespace tarvo
