#include "platform/linux/bus/ApplicationService.h"

#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/BusInterface.h"
#include "platform/linux/bus/Confinement.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto answerTimeout = 4s;

} // namespace

QString applicationObjectPath(const QString &applicationId)
{
    return u'/' + QString(applicationId).replace(u'.', u'/').replace(u'-', u'_');
}

QString publicInterfaceOf(const QString &applicationId)
{
    return applicationId + u'1';
}

QDBusMessage applicationCall(const QString &applicationId, const QString &interface, const QString &member,
                             const QVariantList &arguments)
{
    auto message =
        QDBusMessage::createMethodCall(applicationId, applicationObjectPath(applicationId), interface, member);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return message;
}

ApplicationService::ApplicationService(BusConnection &bus, QString applicationId, Handlers handlers, BusInterface *more)
    : m_bus(bus)
    , m_applicationId(std::move(applicationId))
    , m_handlers(std::move(handlers))
    , m_more(more)
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
    return (m_more ? m_more->description() : QString()) + uR"(<interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" direction="in"/></method>
  <method name="Open"><arg type="as" direction="in"/><arg type="a{sv}" direction="in"/></method>
  <method name="ActivateAction">
    <arg type="s" direction="in"/><arg type="av" direction="in"/><arg type="a{sv}" direction="in"/>
  </method>
</interface>)"_s;
}

bool ApplicationService::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    if (m_more && m_more->isAsked(message)) {
        m_more->answer(message);
        return true;
    }
    if (message.member() == u"GetAll" && message.arguments().value(0) == applicationInterface)
        return connection.send(message.createReply(QVariantMap())); // it has no properties
    if (message.interface() != applicationInterface)
        return false;
    if (message.member() == u"Activate" || message.member() == u"Open")
        carryOut(message, m_handlers.activate);
    else if (message.member() == u"ActivateAction" && message.arguments().value(0) == u"restart"_s)
        askWhetherConfined(m_bus, message.service(), this, [this, message](bool isConfined) {
            if (isConfined)
                m_bus.send(message.createErrorReply(QDBusError::AccessDenied, u"not from a sandbox"_s));
            else
                carryOut(message, m_handlers.restart);
        });
    else
        return false;
    return true;
}

void ApplicationService::carryOut(const QDBusMessage &message, const std::function<void()> &handler)
{
    m_bus.send(message.createReply());
    QMetaObject::invokeMethod(this, handler, Qt::QueuedConnection);
}

QDBusMessage callAndWait(const QString &busAddress, const QDBusMessage &message)
{
    BusConnection bus(busAddress);
    QEventLoop loop;
    QDBusMessage received = QDBusMessage::createError(QDBusError::NoReply, u"there is no answer"_s);
    const auto call = [&] {
        bus.call(message, &loop, [&](const QDBusMessage &answer) {
            received = answer;
            loop.quit();
        });
    };
    bus.follow(&loop, call, [&] { QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection); });
    QTimer::singleShot(answerTimeout, &loop, &QEventLoop::quit);
    loop.exec();
    return received;
}

bool activateRunningApplication(const QString &busAddress, const QString &applicationId)
{
    const auto activate = applicationCall(applicationId, applicationInterface, u"Activate"_s, {QVariantMap()});
    return callAndWait(busAddress, activate).type() == QDBusMessage::ReplyMessage;
}

} // namespace tarvo
