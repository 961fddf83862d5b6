#include "platform/linux/desktop/DesktopNotifications.h"

#include "platform/SystemLog.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/desktop/NotificationImage.h"

#include <QGuiApplication>
#include <QTimer>
#include <QVariantMap>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto displayTimeout = 1s; // then it is shown in another way

const QString &serviceName()
{
    static const QString name = u"org.freedesktop.Notifications"_s;
    return name;
}

QDBusMessage call(const QString &method)
{
    return QDBusMessage::createMethodCall(serviceName(), u"/org/freedesktop/Notifications"_s, serviceName(), method);
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
    const QString path = u"/org/freedesktop/Notifications"_s;
    m_bus.subscribe(path, serviceName(), u"ActionInvoked"_s, this, SLOT(actionInvoked(QDBusMessage)));
    m_bus.subscribe(path, serviceName(), u"NotificationClosed"_s, this, SLOT(notificationClosed(QDBusMessage)));
    m_bus.follow(
        this, [this] { askWhetherStartable(); }, [this] { m_startable = false; });
}

DesktopNotifications::~DesktopNotifications()
{
    for (const auto &[kind, place] : m_places)
        closeAtService(place.identifier);
}

void DesktopNotifications::askWhetherStartable()
{
    m_bus.callBus(u"ListActivatableNames"_s, {}, this, [this](const QDBusMessage &answer) {
        m_startable = answer.arguments().value(0).toStringList().contains(serviceName());
    });
}

void DesktopNotifications::ownerChanged(const QString &owner)
{
    m_owner = owner;
    m_showsEveryAction = false;
    for (auto &[kind, place] : m_places)
        place.identifier = 0; // what an earlier service showed is not the new one's
    if (owner.isEmpty())
        return;
    m_bus.call(call(u"GetServerInformation"_s), this, [this](const QDBusMessage &answer) {
        m_showsEveryAction = answer.arguments().value(0).toString() == u"lxqt-notificationd";
    });
}

void DesktopNotifications::show(const Notification &notification, std::function<void(bool shown)> answered)
{
    constexpr int serviceDecides = -1; // how long the notification stays on the screen
    constexpr int answerTimeout = 25000; // milliseconds; the bus may have to start the service
    Place &place = m_places[notification.kind];
    place.answered = std::move(answered);
    QDBusMessage message = call(u"Notify"_s);
    message << u"Tarvo"_s << place.identifier << notification.iconName << notification.title
            << notification.text.toHtmlEscaped() << actionsOf(notification) << hintsOf(notification) << serviceDecides;
    const std::uint64_t request = ++place.request;
    m_bus.call(
        message, this,
        [this, &place, request, opened = notification.opened](const QDBusMessage &answer) {
            shown(answer, place, request, opened);
        },
        answerTimeout);
    QTimer::singleShot(displayTimeout, this, [this, kind = notification.kind, request] { giveUp(kind, request); });
}

QStringList DesktopNotifications::actionsOf(const Notification &notification) const
{
    if (notification.openLabel.isEmpty())
        return {};
    const QStringList whole{u"default"_s, notification.openLabel};
    return m_showsEveryAction ? whole : whole + QStringList{u"open"_s, notification.openLabel};
}

void DesktopNotifications::giveUp(const QString &kind, std::uint64_t request)
{
    Place &place = m_places[kind];
    if (request != place.request || !place.answered)
        return;
    const auto answered = std::exchange(place.answered, {});
    close(kind); // should it appear after all, it is taken back
    answered(false);
}

DesktopNotifications::Place *DesktopNotifications::placeOf(const QDBusMessage &signal)
{
    const std::uint32_t identifier = signal.arguments().value(0).toUInt();
    const auto found =
        std::ranges::find_if(m_places, [&](const auto &each) { return each.second.identifier == identifier; });
    const bool isOurs = identifier != 0 && signal.service() == m_owner && found != m_places.end();
    return isOurs ? &found->second : nullptr;
}

void DesktopNotifications::actionInvoked(const QDBusMessage &signal)
{
    Place *const place = placeOf(signal);
    if (const auto opened = place ? std::exchange(place->opened, {}) : nullptr)
        opened();
}

void DesktopNotifications::notificationClosed(const QDBusMessage &signal)
{
    if (Place *const place = placeOf(signal))
        place->identifier = 0; // the next one shall appear afresh
}

void DesktopNotifications::shown(const QDBusMessage &answer, Place &place, std::uint64_t request,
                                 const std::function<void()> &opened)
{
    const bool isShown = answer.type() == QDBusMessage::ReplyMessage;
    if (!isShown)
        m_systemLog.write(u"notification failed: "_s + answer.errorMessage());
    const std::uint32_t appeared = isShown ? answer.arguments().value(0).toUInt() : 0;
    if (request != place.request) {
        if (appeared != place.identifier)
            closeAtService(appeared); // it came too late to be replaced
        return;
    }
    place.identifier = appeared;
    place.opened = opened;
    if (const auto answered = std::exchange(place.answered, {}))
        answered(isShown);
}

void DesktopNotifications::close(const QString &kind)
{
    Place &place = m_places[kind];
    ++place.request;
    place.answered = {};
    closeAtService(std::exchange(place.identifier, 0));
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
