#include "platform/linux/bus/ApplicationService.h"

#include "platform/linux/bus/BusConnection.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusVariant>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;
constexpr auto activationTimeout = 4s;

/// @return the path of the object by which the application is reached
QString applicationObjectPath(const QString &applicationId)
{
    return u'/' + QString(applicationId).replace(u'.', u'/').replace(u'-', u'_');
}

} // namespace

QDBusMessage applicationCall(const QString &applicationId, const QString &interface, const QString &member,
                             const QVariantList &arguments)
{
    auto message =
        QDBusMessage::createMethodCall(applicationId, applicationObjectPath(applicationId), interface, member);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return message;
}

ApplicationService::ApplicationService(BusConnection &bus, QString applicationId, Handlers handlers,
                                       QVariantMap properties)
    : m_bus(bus)
    , m_applicationId(std::move(applicationId))
    , m_handlers(std::move(handlers))
    , m_properties(std::move(properties))
{
    m_bus.serve(applicationObjectPath(m_applicationId), *this);
    m_bus.follow(
        this, [this] { requestName(); }, [] {});
}

void ApplicationService::requestName()
{
    constexpr quint32 doNotQueue = 4;
    m_bus.callBus(u"RequestName"_s, {m_applicationId, doNotQueue}, this, [](const QDBusMessage &) {});
}

QString ApplicationService::introspect(const QString &) const
{
    QString properties;
    for (const QString &name : m_properties.keys())
        properties += u"<property name=\"%1\" type=\"s\" access=\"read\"/>"_s.arg(name);
    return u"<interface name=\"%1\">%2</interface>"_s.arg(m_applicationId, properties)
        + uR"(<interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" direction="in"/></method>
  <method name="Open"><arg type="as" direction="in"/><arg type="a{sv}" direction="in"/></method>
  <method name="ActivateAction">
    <arg type="s" direction="in"/><arg type="av" direction="in"/><arg type="a{sv}" direction="in"/>
  </method>
</interface>)"_s;
}

bool ApplicationService::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    if (message.interface() == propertiesInterface)
        return connection.send(answerAboutProperties(message));
    if (message.interface() != applicationInterface)
        return false;
    std::function<void()> handler;
    if (message.member() == u"Activate" || message.member() == u"Open")
        handler = m_handlers.activate;
    else if (message.member() == u"ActivateAction" && message.arguments().value(0) == u"restart"_s)
        handler = m_handlers.restart;
    if (!handler)
        return false;
    connection.send(message.createReply());
    QMetaObject::invokeMethod(this, handler, Qt::QueuedConnection);
    return true;
}

QDBusMessage ApplicationService::answerAboutProperties(const QDBusMessage &question) const
{
    const QString interface = question.arguments().value(0).toString();
    const QString name = question.arguments().value(1).toString();
    const bool isOurs = interface == m_applicationId;
    if (question.member() == u"GetAll")
        return question.createReply(isOurs ? m_properties : QVariantMap());
    if (question.member() == u"Get" && isOurs && m_properties.contains(name))
        return question.createReply(QVariant::fromValue(QDBusVariant(m_properties.value(name))));
    if (question.member() == u"Set")
        return question.createErrorReply(QDBusError::PropertyReadOnly, u"it can only be read"_s);
    return question.createErrorReply(QDBusError::UnknownProperty, u"there is no such property"_s);
}

bool activateRunningApplication(const QString &busAddress, const QString &applicationId)
{
    BusConnection bus(busAddress);
    QEventLoop loop;
    const auto activate = [&] {
        bus.call(applicationCall(applicationId, applicationInterface, u"Activate"_s, {QVariantMap()}), &loop,
                 [&](const QDBusMessage &answer) { loop.exit(answer.type() == QDBusMessage::ReplyMessage ? 1 : 0); });
    };
    bus.follow(&loop, activate, [&] { QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection); });
    QTimer::singleShot(activationTimeout, &loop, &QEventLoop::quit);
    return loop.exec() == 1;
}

} // namespace tarvo
