#pragma once

#include "platform/Notifications.h"
#include "platform/linux/bus/BusName.h"

#include <QDBusMessage>
#include <QObject>

#include <cstdint>
#include <map>

namespace tarvo {

class BusConnection;
class SystemLog;

/// The notification service of the session bus (freedesktop Desktop Notifications Specification 1.2).
///
/// Nothing waits for the bus: whether a service is there is asked in the background and followed from then on.
class DesktopNotifications final : public QObject, public Notifications {
    Q_OBJECT

public:
    /// @param bus  the session's bus; without it there is no service. Outlives this object, as @p systemLog does.
    DesktopNotifications(BusConnection &bus, SystemLog &systemLog);
    ~DesktopNotifications() override;

    bool available() const override { return !m_owner.isEmpty() || m_startable; }
    void show(const Notification &notification, std::function<void(bool shown)> answered) override;
    void forgetAnswer(const QString &kind) override { m_places[kind].answered = {}; }
    void close(const QString &kind) override;

private Q_SLOTS:
    void actionInvoked(const QDBusMessage &signal);
    void notificationClosed(const QDBusMessage &signal);

private:
    /// What is shown, or asked for, of one kind of notification.
    struct Place {
        std::uint32_t identifier = 0; ///< of the notification at the service; 0 for none
        std::uint64_t request = 0; ///< changes whenever what was asked for last is not wanted any more
        std::function<void()> opened{}; ///< the user chose the notification's action; empty once he has
        std::function<void(bool shown)> answered{}; ///< empty when the request was answered, or nobody wants to know
    };

    void askWhetherStartable();
    void ownerChanged(const QString &owner);
    QStringList actionsOf(const Notification &notification) const;
    void shown(const QDBusMessage &answer, Place &place, std::uint64_t request, const std::function<void()> &opened);
    /// @return where the notification is that @p signal is about; null when it is none of ours, or the sender lies
    Place *placeOf(const QDBusMessage &signal);
    void closeAtService(std::uint32_t identifier);
    void giveUp(const QString &kind, std::uint64_t request);

    BusConnection &m_bus;
    SystemLog &m_systemLog;
    QString m_owner; ///< the unique name of the service that runs; empty for none
    bool m_startable = false; ///< the bus starts the service when it is called
    bool m_showsEveryAction = false; ///< the service makes a button of the action that stands for the whole, too
    std::map<QString, Place> m_places; ///< by kind; none goes
    BusName m_service;
};

} // namespace tarvo
