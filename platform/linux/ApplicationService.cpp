#include "platform/linux/ApplicationService.h"

#include "platform/linux/BusConnection.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString applicationInterface = u"org.freedesktop.Application"_s;
constexpr auto patience = 4s;

/// @return the object's path, which follows from the name
QString pathOf(const QString &applicationId)
{
    return u'/' + QString(applicationId).replace(u'.', u'/');
}

} // namespace

ApplicationService::ApplicationService(BusConnection &bus, QString applicationId, Handlers handlers)
    : m_bus(bus)
    , m_applicationId(std::move(applicationId))
    , m_handlers(std::move(handlers))
{
    m_bus.follow(
        this, [this] { busFound(); }, [] {});
}

void ApplicationService::busFound()
{
    constexpr quint32 doNotQueue = 4;
    m_bus.serve(pathOf(m_applicationId), *this);
    m_bus.callBus(u"RequestName"_s, {m_applicationId, doNotQueue}, this, [](const QDBusMessage &) {});
}

QString ApplicationService::introspect(const QString &) const
{
    return uR"(<interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" direction="in"/></method>
  <method name="Open"><arg type="as" direction="in"/><arg type="a{sv}" direction="in"/></method>
  <method name="ActivateAction">
    <arg type="s" direction="in"/><arg type="av" direction="in"/><arg type="a{sv}" direction="in"/>
  </method>
</interface>)"_s;
}

bool ApplicationService::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
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

bool activateRunningApplication(const QString &busAddress, const QString &applicationId)
{
    BusConnection bus(busAddress);
    QEventLoop loop;
    const auto activate = [&] {
        auto message =
            QDBusMessage::createMethodCall(applicationId, pathOf(applicationId), applicationInterface, u"Activate"_s);
        message.setAutoStartService(false);
        message << QVariantMap();
        bus.call(message, &loop,
                 [&](const QDBusMessage &answer) { loop.exit(answer.type() == QDBusMessage::ReplyMessage ? 1 : 0); });
    };
    bus.follow(&loop, activate, [&] { QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection); });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    return loop.exec() == 1;
}

} // namespace tarvo
