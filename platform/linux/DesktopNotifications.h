#pragma once

#include "platform/Notifications.h"

#include <QDBusConnection>
#include <QObject>

#include <cstdint>

class QDBusPendingCallWatcher;

namespace tarvo {

class SystemLog;

/// The notification service of the session bus (freedesktop Desktop Notifications Specification 1.2).
///
/// Nothing waits for the bus: whether a service is there is asked in the background and followed from then on.
class DesktopNotifications final : public QObject, public Notifications {
    Q_OBJECT

public:
    /// @param bus        the session's bus; not connected means that there is no service
    /// @param systemLog  outlives this object
    DesktopNotifications(const QDBusConnection &bus, SystemLog &systemLog);
    ~DesktopNotifications() override;

    bool available() const override { return m_running || m_startable; }
    void show(const Notification &notification, std::function<void()> failed) override;
    void forgetFailure() override { m_failed = {}; }
    void close() override;

private:
    void askWhatIsThere();
    /// Calls @p answer later: whether @p list of the bus names the service.
    void askWhether(const QString &list, const std::function<void(bool)> &answer);
    void ownerChanged(const QString &name, const QString &oldOwner, const QString &newOwner);
    void shown(QDBusPendingCallWatcher *asked, std::uint64_t request);
    void closeAtService(std::uint32_t identifier);

    QDBusConnection m_bus;
    SystemLog &m_systemLog;
    bool m_running = false;
    bool m_ownerSeen = false; ///< the service came or went while we watched
    bool m_startable = false; ///< the bus starts the service when it is called
    bool m_wanted = false;
    std::uint32_t m_identifier = 0; ///< of the notification at the service; 0 for none
    std::uint64_t m_request = 0; ///< counts the calls of `show`
    std::function<void()> m_failed;
};

} // namespace tarvo
