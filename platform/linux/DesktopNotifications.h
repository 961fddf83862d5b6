#pragma once

#include "platform/Notifications.h"
#include "platform/linux/BusName.h"

#include <QDBusMessage>
#include <QObject>

#include <cstdint>

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
    void show(const Notification &notification, std::function<void()> failed) override;
    void forgetFailure() override { m_failed = {}; }
    void close() override;

private Q_SLOTS:
    void actionInvoked(const QDBusMessage &signal);

private:
    void busLost();
    void askWhetherStartable();
    void ownerChanged(const QString &owner);
    void shown(const QDBusMessage &answer, std::uint64_t request);
    void closeAtService(std::uint32_t identifier);
    void giveUp(std::uint64_t request);

    BusConnection &m_bus;
    SystemLog &m_systemLog;
    QString m_owner; ///< the unique name of the service that runs; empty for none
    bool m_startable = false; ///< the bus starts the service when it is called
    bool m_wanted = false;
    std::uint32_t m_identifier = 0; ///< of the notification at the service; 0 for none
    std::uint64_t m_request = 0; ///< counts the calls of `show`
    std::function<void()> m_opened; ///< the user chose the notification's action
    std::function<void()> m_failed; ///< empty when the request has been answered, or none is wanted
    BusName m_service;
};

} // namespace tarvo
