#include "simulator/surroundings/SimulatedNotifications.h"

#include <utility>

namespace tarvo {

void SimulatedNotifications::show(const Notification &notification, std::function<void(bool shown)> answered)
{
    m_last = notification.kind;
    m_shown.insert(m_last, notification);
    m_answered.insert(m_last, std::move(answered));
}

void SimulatedNotifications::close(const QString &kind)
{
    m_shown.remove(kind);
    m_answered.remove(kind);
}

void SimulatedNotifications::refuse()
{
    m_shown.remove(m_last);
    answer(false);
}

std::optional<Notification> SimulatedNotifications::shown() const
{
    const auto last = m_shown.constFind(m_last);
    return last == m_shown.cend() ? std::nullopt : std::optional(*last);
}

void SimulatedNotifications::answer(bool shown)
{
    if (const auto answered = m_answered.take(m_last))
        answered(shown);
}

} // namespace tarvo
