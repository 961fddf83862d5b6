#pragma once

#include <stop_token>

namespace tarvo {

/// Marks what the calling thread does, until the scope ends, as work for one attachment of a device.
///
/// The work is over when its token is stopped: requests end, and nothing that it still computes takes effect.
class WorkScope {
public:
    explicit WorkScope(std::stop_token stop);
    ~WorkScope();
    WorkScope(const WorkScope &) = delete;
    WorkScope &operator=(const WorkScope &) = delete;

    /// @return the token of the calling thread's work; one that never stops where no scope is open
    static std::stop_token current();

private:
    std::stop_token m_outer;
};

} // namespace tarvo
