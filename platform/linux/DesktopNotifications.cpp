#include "platform/linux/DesktopNotifications.h"

#include "platform/SystemLog.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/NotificationImage.h"

#include <QGuiApplication>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 3s; // then the news are shown in another way

const QString &serviceName()
{
    static const QString name = u"org.freedesktop.Notifications"_s;
    return name;
}

QDBusMessage call(const QString &method)
{
    return QDBusMessage::createMethodCall(serviceName(), u"/org/freedesktop/Notifications"_s, serviceName(), method);
}

QStringList actionsOf(const Notification &notification)
{
    if (notification.openLabel.isEmpty())
        return {};
    return {u"default"_s, notification.openLabel, u"open"_s, notification.openLabel};
}

QVariantMap hintsOf(const Notification &notification)
{
    constexpr uchar normalUrgency = 1;
    QVariantMap hints{{u"desktop-entry"_s, QGuiApplication::desktopFileName()},
                      {u"urgency"_s, QVariant::fromValue(normalUrgency)},
                      {u"category"_s, u"device"_s}};
    if (!notification.image.isNull())
        hints.insert(u"image-data"_s, QVariant::fromValue(NotificationImage(notification.image)));
    return hints;
}

} // namespace

DesktopNotifications::DesktopNotifications(BusConnection &bus, SystemLog &systemLog)
    : m_bus(bus)
    , m_systemLog(systemLog)
    , m_service(bus, serviceName(), [this](const QString &owner) { ownerChanged(owner); })
{
    m_bus.follow(
        this, [this] { askWhetherStartable(); }, [this] { busLost(); });
}

DesktopNotifications::~DesktopNotifications()
{
    close();
}

void DesktopNotifications::busLost()
{
    m_startable = false;
    if (m_failed) // the request will not be answered any more
        std::exchange(m_failed, {})();
}

void DesktopNotifications::askWhetherStartable()
{
    m_bus.subscribe(u"/org/freedesktop/Notifications"_s, serviceName(), u"ActionInvoked"_s, this,
                    SLOT(actionInvoked(QDBusMessage)));
    m_bus.callBus(u"ListActivatableNames"_s, {}, this, [this](const QDBusMessage &answer) {
        m_startable = answer.arguments().value(0).toStringList().contains(serviceName());
    });
}

void DesktopNotifications::ownerChanged(const QString &owner)
{
    m_owner = owner;
    m_identifier = 0; // what an earlier service showed is not the new one's
}

void DesktopNotifications::show(const Notification &notification, std::function<void()> failed)
{
    constexpr int serviceDecides = -1; // how long the notification stays on the screen
    constexpr int answerTimeout = 25000; // milliseconds; the bus may have to start the service
    m_wanted = true;
    m_failed = std::move(failed);
    QDBusMessage message = call(u"Notify"_s);
    m_opened = notification.opened;
    message << u"Tarvo"_s << m_identifier << notification.iconName << notification.title
            << notification.text.toHtmlEscaped() << actionsOf(notification) << hintsOf(notification) << serviceDecides;
    m_bus.call(
        message, this, [this, request = ++m_request](const QDBusMessage &answer) { shown(answer, request); },
        answerTimeout);
    if (m_failed)
        QTimer::singleShot(patience, this, [this, request = m_request] { giveUp(request); });
}

void DesktopNotifications::giveUp(std::uint64_t request)
{
    if (request != m_request || !m_failed)
        return;
    m_wanted = false; // should it appear after all, it is taken back
    std::exchange(m_failed, {})();
}

void DesktopNotifications::actionInvoked(const QDBusMessage &signal)
{
    const bool isOurs = m_identifier != 0 && signal.arguments().value(0).toUInt() == m_identifier;
    if (signal.service() == m_owner && isOurs && m_opened)
        m_opened();
}

void DesktopNotifications::shown(const QDBusMessage &answer, std::uint64_t request)
{
    const bool isShown = answer.type() == QDBusMessage::ReplyMessage;
    if (!isShown)
        m_systemLog.write(u"notification failed: "_s + answer.errorMessage());
    const std::uint32_t appeared = isShown ? answer.arguments().value(0).toUInt() : 0;
    if (request != m_request) {
        if (appeared != m_identifier)
            closeAtService(appeared); // it came too late to be replaced
        return;
    }
    m_identifier = appeared;
    const auto failed = std::exchange(m_failed, {});
    if (!m_wanted)
        closeAtService(std::exchange(m_identifier, 0));
    else if (!isShown && failed)
        failed();
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
