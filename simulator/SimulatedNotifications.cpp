#include "simulator/SimulatedNotifications.h"

#include <utility>

namespace tarvo {

void SimulatedNotifications::show(const Notification &notification, std::function<void()> failed)
{
    m_shown = notification;
    m_failed = std::move(failed);
}

void SimulatedNotifications::close()
{
    m_shown.reset();
    m_failed = {};
}

void SimulatedNotifications::refuse()
{
    m_shown.reset();
    if (m_failed)
        std::exchange(m_failed, {})();
}

} // namespace tarvo
