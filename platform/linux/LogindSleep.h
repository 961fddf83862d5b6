#pragma once

#include "platform/linux/BusConnection.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <memory>

namespace tarvo {

class SystemLog;

/// Sleep and wake of the machine, as logind tells them (org.freedesktop.login1(5); systemd's "Inhibitor Locks").
///
/// Holds a delay lock while the machine is awake, so that the machine does not sleep before the handler for sleep has
/// returned. A bus or a logind that is not there costs one log line; both are found when they come. Nothing here waits
/// for an answer.
class LogindSleep final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void()>;

    /// @param busAddress  the system bus (D-Bus specification, "Server Addresses")
    LogindSleep(const QString &busAddress, SystemLog &log, Handler willSleep, Handler didWake);
    ~LogindSleep() override;

private Q_SLOTS:
    void prepareForSleep(const QDBusMessage &signal);

private:
    using Answer = std::function<void(const QDBusMessage &answer)>;

    void busFound();
    void busLost();
    void ownerChanged(const QString &owner);
    void readState();
    void stateIs(bool sleeping);
    void takeLock();
    void call(const QString &interface, const QString &method, const QVariantList &arguments, const Answer &answer);
    void logOnce(const QString &line);

    SystemLog &m_log;
    const Handler m_willSleep;
    const Handler m_didWake;
    QString m_owner; ///< the unique name of the logind that is listened to; empty while none is known
    QDBusUnixFileDescriptor m_lock;
    bool m_sleeping = false;
    QStringList m_logged;
    BusConnection m_bus;
    std::unique_ptr<QObject> m_session; ///< owns what ends with the present connection
};

} // namespace tarvo
