#include "platform/linux/DesktopNotifications.h"

#include "platform/SystemLog.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString &serviceName()
{
    static const QString name = u"org.freedesktop.Notifications"_s;
    return name;
}

QDBusMessage call(const QString &method)
{
    return QDBusMessage::createMethodCall(serviceName(), u"/org/freedesktop/Notifications"_s, serviceName(), method);
}

QDBusMessage callToBus(const QString &method)
{
    const QString bus = u"org.freedesktop.DBus"_s;
    return QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, method);
}

} // namespace

DesktopNotifications::DesktopNotifications(const QDBusConnection &bus, SystemLog &systemLog)
    : m_bus(bus)
    , m_systemLog(systemLog)
{
    if (!m_bus.isConnected())
        return;
    auto *watcher = new QDBusServiceWatcher(serviceName(), m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &DesktopNotifications::ownerChanged);
    askWhatIsThere();
}

DesktopNotifications::~DesktopNotifications()
{
    close();
}

void DesktopNotifications::askWhatIsThere()
{
    askWhether(u"ListNames"_s, [this](bool running) {
        if (!m_ownerSeen) // a change that was told meanwhile is newer
            m_running = running;
    });
    askWhether(u"ListActivatableNames"_s, [this](bool startable) { m_startable = startable; });
}

void DesktopNotifications::askWhether(const QString &list, const std::function<void(bool)> &answer)
{
    auto *asked = new QDBusPendingCallWatcher(m_bus.asyncCall(callToBus(list)), this);
    connect(asked, &QDBusPendingCallWatcher::finished, this, [asked, answer] {
        asked->deleteLater();
        const QDBusPendingReply<QStringList> names = *asked;
        answer(names.isValid() && names.value().contains(serviceName()));
    });
}

void DesktopNotifications::ownerChanged(const QString &, const QString &, const QString &newOwner)
{
    m_ownerSeen = true;
    m_running = !newOwner.isEmpty();
    m_identifier = 0; // what an earlier service showed is not the new one's
}

void DesktopNotifications::show(const Notification &notification, std::function<void()> failed)
{
    constexpr int longestStay = 10000; // milliseconds, should we not come to close it
    m_wanted = true;
    m_failed = std::move(failed);
    QDBusMessage message = call(u"Notify"_s);
    const QVariantMap hints{{u"transient"_s, true}, {u"desktop-entry"_s, QGuiApplication::desktopFileName()}};
    message << notification.title << m_identifier << notification.iconName << notification.title
            << notification.text.toHtmlEscaped() << QStringList() << hints << longestStay;
    auto *asked = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(asked, &QDBusPendingCallWatcher::finished, this,
            [this, asked, request = ++m_request] { shown(asked, request); });
}

void DesktopNotifications::shown(QDBusPendingCallWatcher *asked, std::uint64_t request)
{
    asked->deleteLater();
    const QDBusPendingReply<std::uint32_t> identifier = *asked;
    if (identifier.isError())
        m_systemLog.write(u"notification failed: "_s + identifier.error().message());
    const std::uint32_t appeared = identifier.isError() ? 0 : identifier.value();
    if (request != m_request) {
        if (appeared != m_identifier)
            closeAtService(appeared); // it came too late to be replaced
        return;
    }
    m_identifier = appeared;
    if (!m_wanted)
        closeAtService(std::exchange(m_identifier, 0));
    else if (identifier.isError() && m_failed)
        std::exchange(m_failed, {})();
}

void DesktopNotifications::close()
{
    if (!m_wanted)
        return;
    m_wanted = false;
    m_failed = {};
    closeAtService(std::exchange(m_identifier, 0));
}

void DesktopNotifications::closeAtService(std::uint32_t identifier)
{
    if (identifier == 0)
        return;
    QDBusMessage message = call(u"CloseNotification"_s);
    message << identifier;
    m_bus.send(message);
}

} // namespace tarvo
