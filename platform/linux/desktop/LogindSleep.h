#pragma once

#include "platform/linux/bus/BusName.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

namespace tarvo {

class BusConnection;
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

    /// @param bus  the system bus; outlives this object, as @p log does
    LogindSleep(BusConnection &bus, SystemLog &log, Handler willSleep, Handler didWake);
    ~LogindSleep() override;

private Q_SLOTS:
    void prepareForSleep(const QDBusMessage &signal);

private:
    /// Given the first value of a reply; no value when there was an error. Not called once that logind has gone.
    using Answer = std::function<void(const QVariant &value)>;

    void busLost();
    void ownerChanged(const QString &owner);
    void readState();
    void stateIs(bool sleeping);
    void takeLock();
    void call(const QString &interface, const QString &method, const QVariantList &arguments, const Answer &answered);
    void logOnce(const QString &line);

    SystemLog &m_log;
    const Handler m_willSleep;
    const Handler m_didWake;
    QString m_owner; ///< the unique name of the logind that is listened to; empty while none is known
    bool m_ownerAsked = false; ///< the bus has told who owns the name, if anybody
    QDBusUnixFileDescriptor m_lock;
    bool m_lockAsked = false;
    bool m_sleeping = false;
    QStringList m_logged;
    BusName m_name;
};

} // namespace tarvo
