#include "simulator/surroundings/SimulatedNotificationService.h"

#include <QDBusError>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString connectionName()
{
    return u"simulated-notifications"_s;
}

QString serviceName()
{
    return u"org.freedesktop.Notifications"_s;
}

} // namespace

SimulatedNotificationService::SimulatedNotificationService()
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName()))
{
    m_bus.registerObject(u"/org/freedesktop/Notifications"_s, this,
                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
}

SimulatedNotificationService::~SimulatedNotificationService()
{
    QDBusConnection::disconnectFromBus(connectionName());
}

void SimulatedNotificationService::start()
{
    m_bus.registerService(serviceName());
}

void SimulatedNotificationService::stop()
{
    m_bus.unregisterService(serviceName());
}

uint SimulatedNotificationService::Notify(const QString &, uint replaces, const QString &, const QString &,
                                          const QString &body, const QStringList &actions, const QVariantMap &, int)
{
    m_replaced << replaces;
    m_actions = actions;
    setDelayedReply(m_silent);
    if (m_refuses) {
        sendErrorReply(QDBusError::Failed, u"refused"_s);
        return 0;
    }
    const uint identifier = replaces ? replaces : ++m_last;
    m_shown.insert(identifier, body);
    return identifier;
}

void SimulatedNotificationService::CloseNotification(uint identifier)
{
    m_shown.remove(identifier);
}

QString SimulatedNotificationService::GetServerInformation(QString &vendor, QString &version,
                                                           QString &specification) const
{
    vendor = u"simulator"_s;
    version = u"1"_s;
    specification = u"1.2"_s;
    return m_name;
}

void SimulatedNotificationService::expire(uint identifier)
{
    constexpr uint expired = 1;
    m_shown.remove(identifier);
    Q_EMIT NotificationClosed(identifier, expired);
}

} // namespace tarvo
