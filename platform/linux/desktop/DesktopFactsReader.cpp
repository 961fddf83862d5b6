#include "platform/linux/desktop/DesktopFactsReader.h"

#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/desktop/WebBrowsers.h"
#include "platform/linux/x11/XTrayWatcher.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int answerTimeout = 2000; // milliseconds

/// Makes a call that starts no service. @return the answer; an error when there is none in time
QDBusMessage call(const QDBusConnection &bus, QDBusMessage question)
{
    question.setAutoStartService(false);
    return bus.call(question, QDBus::Block, answerTimeout);
}

QDBusMessage callBus(const QDBusConnection &bus, const QString &member, const QVariantList &arguments)
{
    auto question = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                   u"org.freedesktop.DBus"_s, member);
    question.setArguments(arguments);
    return call(bus, question);
}

std::optional<bool> hasOwner(const QDBusConnection &bus, const QString &name)
{
    const QDBusMessage answer = callBus(bus, u"NameHasOwner"_s, {name});
    return answer.type() == QDBusMessage::ReplyMessage ? std::optional(answer.arguments().value(0).toBool())
                                                       : std::nullopt;
}

/// @return whether @p name is there, or is started when it is called
std::optional<bool> isReachable(const QDBusConnection &bus, const QString &name)
{
    const auto owned = hasOwner(bus, name);
    if (!owned || *owned)
        return owned;
    return callBus(bus, u"ListActivatableNames"_s, {}).arguments().value(0).toStringList().contains(name);
}

/// @return what an application tells of itself under the first interface that has its name
QVariantMap propertiesOf(const QDBusConnection &bus, const QString &applicationName)
{
    const QDBusMessage answer = call(bus,
                                     applicationCall(applicationName, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s,
                                                     {publicInterfaceOf(applicationName)}));
    return answer.type() == QDBusMessage::ReplyMessage ? qdbus_cast<QVariantMap>(answer.arguments().value(0))
                                                       : QVariantMap();
}

bool hostsNotifierItems(const QDBusConnection &bus)
{
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    auto question = QDBusMessage::createMethodCall(watcher, u"/StatusNotifierWatcher"_s,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setArguments({watcher, u"IsStatusNotifierHostRegistered"_s});
    const QDBusMessage answer = call(bus, question);
    return answer.type() == QDBusMessage::ReplyMessage
        && answer.arguments().value(0).value<QDBusVariant>().variant().toBool();
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
    const QDBusMessage answer = call(bus,
                                     applicationCall(applicationName, applicationInterface, u"ActivateAction"_s,
                                                     {action, QVariantList(), QVariantMap()}));
    return answer.type() == QDBusMessage::ReplyMessage ? ActionResult::Done : ActionResult::Failed;
}

} // namespace tarvo
