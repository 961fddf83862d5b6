#pragma once

#include "platform/Notifications.h"

#include <QMap>

#include <optional>

namespace tarvo {

/// A notification service that shows nothing, and can be missing or refuse.
class SimulatedNotifications final : public Notifications {
public:
    bool available() const override { return m_available; }
    void show(const Notification &notification, std::function<void(bool shown)> answered) override;
    void forgetAnswer(const QString &kind) override { m_answered.remove(kind); }
    void close(const QString &kind) override;

    /// From now on the desktop has, or has not, such a service.
    void setAvailable(bool available) { m_available = available; }
    /// Says that what was asked for last is shown.
    void accept() { answer(true); }
    /// Turns down what was asked for last.
    void refuse();

    /// @return what was asked for last, and not taken away; nil when there is no such thing
    std::optional<Notification> shown() const;
    /// @return how many are there
    qsizetype count() const { return m_shown.size(); }

private:
    void answer(bool shown);

    bool m_available = true;
    QString m_last; ///< the kind that was asked for last
    QMap<QString, Notification> m_shown; ///< by kind, as the next
    QMap<QString, std::function<void(bool shown)>> m_answered;
};

} // namespace tarvo
