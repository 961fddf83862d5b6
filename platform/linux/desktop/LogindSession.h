#pragma once

#include "platform/linux/bus/BusName.h"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

namespace tarvo {

class BusConnection;

/// Whether the session that this program belongs to is the one that is looked at, as logind tells it
/// (org.freedesktop.login1(5)). Two users may be logged in, and only one of them sits in front of the screen.
///
/// Without a logind, or without a session, it counts as active. Nothing here waits for an answer.
class LogindSession final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void(bool active)>;

    /// @param bus      the system bus; outlives this object
    /// @param changed  called when the session becomes inactive, and when it becomes active again
    LogindSession(BusConnection &bus, Handler changed);

private Q_SLOTS:
    void sessionsChanged(const QDBusMessage &signal);
    void propertiesChanged(const QDBusMessage &signal);

private:
    void ownerChanged(const QString &owner);
    void findSession();
    void followSession(const QString &path);
    void readState();
    void setActive(bool active);

    BusConnection &m_bus;
    const Handler m_changed;
    QString m_owner; ///< the unique name of logind; empty while there is none
    QString m_session; ///< the path of the session's object; empty while none is known
    QStringList m_followed; ///< the paths whose signals come
    bool m_active = true;
    QTimer m_grace; ///< runs while a logind that went may just be starting anew
    BusName m_name;
};

} // namespace tarvo
