#pragma once

#include "platform/Notifications.h"

#include <optional>

namespace tarvo {

/// A notification service that shows nothing, and can be missing or refuse.
class SimulatedNotifications final : public Notifications {
public:
    bool available() const override { return m_available; }
    void show(const Notification &notification, std::function<void()> failed) override;
    void forgetFailure() override { m_failed = {}; }
    void close() override;

    /// From now on the desktop has, or has not, such a service.
    void setAvailable(bool available) { m_available = available; }
    /// Turns down what was shown last.
    void refuse();

    /// @return what is shown; nil when nothing is
    const std::optional<Notification> &shown() const { return m_shown; }

private:
    bool m_available = true;
    std::optional<Notification> m_shown;
    std::function<void()> m_failed;
};

} // namespace tarvo
