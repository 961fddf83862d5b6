#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QList>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace tarvo {

/// A notification service on the session bus that shows nothing (freedesktop Desktop Notifications Specification 1.2),
/// on a connection of its own. At most one in a process.
class SimulatedNotificationService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    /// Connects to the session bus; the service is not to be found yet.
    SimulatedNotificationService();
    ~SimulatedNotificationService() override;

    /// Takes the service's name on the bus.
    void start();
    /// Gives the name back.
    void stop();
    /// From now on every notification is turned down.
    void refuse() { m_refuses = true; }
    /// From now on no notification is answered.
    void fallSilent() { m_silent = true; }
    /// Is called @p name when asked from now on.
    void setName(const QString &name) { m_name = name; }
    /// The user chooses the action @p key of the notification @p identifier.
    void choose(uint identifier, const QString &key) { Q_EMIT ActionInvoked(identifier, key); }
    /// The notification @p identifier has been long enough on the screen.
    void expire(uint identifier);
    /// @return the actions of the last notification: keys and labels in turn
    const QStringList &actions() const { return m_actions; }

    /// @return the texts that are shown
    QStringList shown() const { return m_shown.values(); }
    /// @return the identifier that each notification asked to replace, the oldest first; 0 for none
    const QList<uint> &replaced() const { return m_replaced; }

Q_SIGNALS:
    void ActionInvoked(uint identifier, const QString &key);
    void NotificationClosed(uint identifier, uint reason);

public Q_SLOTS:
    // The names are the interface's.
    uint Notify(const QString &application, uint replaces, const QString &icon, const QString &summary,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int timeout);
    void CloseNotification(uint identifier);
    QString GetServerInformation(QString &vendor, QString &version, QString &specification) const;

private:
    QDBusConnection m_bus;
    QMap<uint, QString> m_shown;
    QList<uint> m_replaced;
    uint m_last = 40;
    bool m_refuses = false;
    bool m_silent = false;
    QString m_name;
    QStringList m_actions;
};

} // namespace tarvo
