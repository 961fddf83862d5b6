#include "platform/linux/desktop/DesktopFactsReader.h"

#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/desktop/WebBrowsers.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int answerTimeout = 2000; // milliseconds

/// Makes a call that starts no service. @return the answer; an error when there is none in time
QDBusMessage call(const QDBusConnection &bus, QDBusMessage question, const QVariantList &arguments)
{
    question.setArguments(arguments);
    question.setAutoStartService(false);
    return bus.call(question, QDBus::Block, answerTimeout);
}

QDBusMessage busQuestion(const QString &member)
{
    return QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                          u"org.freedesktop.DBus"_s, member);
}

std::optional<bool> hasOwner(const QDBusConnection &bus, const QString &name)
{
    const QDBusMessage answer = call(bus, busQuestion(u"NameHasOwner"_s), {name});
    return answer.type() == QDBusMessage::ReplyMessage ? std::optional(answer.arguments().value(0).toBool())
                                                       : std::nullopt;
}

/// @return whether @p name is there, or is started when it is called
std::optional<bool> isReachable(const QDBusConnection &bus, const QString &name)
{
    const auto owned = hasOwner(bus, name);
    if (!owned || *owned)
        return owned;
    return call(bus, busQuestion(u"ListActivatableNames"_s), {}).arguments().value(0).toStringList().contains(name);
}

/// @return what an application tells of itself under the interface that has its name
QVariantMap propertiesOf(const QDBusConnection &bus, const QString &applicationName)
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        applicationName, applicationObjectPath(applicationName), u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s);
    const QDBusMessage answer = call(bus, question, {applicationName});
    return answer.type() == QDBusMessage::ReplyMessage ? qdbus_cast<QVariantMap>(answer.arguments().value(0))
                                                       : QVariantMap();
}

bool hostsNotifierItems(const QDBusConnection &bus)
{
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    const QDBusMessage question = QDBusMessage::createMethodCall(watcher, u"/StatusNotifierWatcher"_s,
                                                                 u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    const QDBusMessage answer = call(bus, question, {watcher, u"IsStatusNotifierHostRegistered"_s});
    return answer.type() == QDBusMessage::ReplyMessage
        && answer.arguments().value(0).value<QDBusVariant>().variant().toBool();
}

struct FreeReply {
    void operator()(void *reply) const { std::free(reply); }
};

/// @return whether the X screen has a tray (freedesktop.org System Tray Protocol)
bool hasXTray()
{
    int screen = 0;
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display(xcb_connect(nullptr, &screen),
                                                                               &xcb_disconnect);
    if (xcb_connection_has_error(display.get()) != 0)
        return false;
    const QByteArray name = "_NET_SYSTEM_TRAY_S" + QByteArray::number(screen);
    const auto atomRequest = xcb_intern_atom(display.get(), 1, static_cast<quint16>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> atom(
        xcb_intern_atom_reply(display.get(), atomRequest, nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const auto ownerRequest = xcb_get_selection_owner(display.get(), atom->atom);
    const std::unique_ptr<xcb_get_selection_owner_reply_t, FreeReply> owner(
        xcb_get_selection_owner_reply(display.get(), ownerRequest, nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace

DesktopFacts readDesktopFacts(const QString &applicationName)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    DesktopFacts facts;
    if (bus.isConnected()) {
        facts.runsApplication = hasOwner(bus, applicationName);
        if (facts.runsApplication == true)
            facts.applicationProperties = propertiesOf(bus, applicationName);
        facts.showsNotifications = isReachable(bus, u"org.freedesktop.Notifications"_s);
    }
    if (!hasDisplay())
        return facts;
    facts.showsIcons = (bus.isConnected() && hostsNotifierItems(bus)) || hasXTray();
    facts.opensPages = isWebBrowserInstalled();
    return facts;
}

ActionResult activateAction(const QString &applicationName, const QString &action)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return ActionResult::NoBus;
    if (hasOwner(bus, applicationName) != true)
        return ActionResult::NotRunning;
    const QDBusMessage question = QDBusMessage::createMethodCall(
        applicationName, applicationObjectPath(applicationName), u"org.freedesktop.Application"_s, u"ActivateAction"_s);
    const QDBusMessage answer = call(bus, question, {action, QVariantList(), QVariantMap()});
    return answer.type() == QDBusMessage::ReplyMessage ? ActionResult::Done : ActionResult::Failed;
}

} // namespace tarvo
