#include "app/command/StatusFollower.h"

#include "platform/linux/bus/ApplicationService.h"

#include <QDBusArgument>
#include <QList>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

QVariantMap plain(QVariantMap properties);

/// @return @p value with maps and lists of maps as Qt's own types; nothing for what else the bus carries in an argument
QVariant plainValue(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return value;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() == u"a{sv}")
        return plain(qdbus_cast<QVariantMap>(argument));
    QVariantList list;
    if (argument.currentSignature() == u"aa{sv}") {
        for (const QVariantMap &each : qdbus_cast<QList<QVariantMap>>(argument))
            list.append(plain(each));
    }
    return list;
}

QVariantMap plain(QVariantMap properties)
{
    for (QVariant &value : properties)
        value = plainValue(value);
    return properties;
}

} // namespace

StatusFollower::StatusFollower(BusConnection &bus, QString applicationId, const Request &request, Callbacks callbacks)
    : m_bus(bus)
    , m_applicationId(std::move(applicationId))
    , m_request(request)
    , m_callbacks(std::move(callbacks))
{
}

void StatusFollower::start()
{
    m_bus.subscribe(applicationObjectPath(m_applicationId), propertiesInterface, u"PropertiesChanged"_s, this,
                    SLOT(propertiesChanged()), publicInterfaceOf(m_applicationId));
    m_companion.emplace(m_bus, m_applicationId, [this](const QString &owner) { ownerChanged(owner); });
}

int StatusFollower::exitStatus() const
{
    if (!m_isRunning)
        return notRunning;
    return isConnected(m_state) ? 0 : 1;
}

void StatusFollower::ownerChanged(const QString &owner)
{
    m_isRunning = !owner.isEmpty();
    if (m_isRunning)
        ask();
    else
        show({});
}

void StatusFollower::propertiesChanged()
{
    if (m_isRunning)
        ask();
}

void StatusFollower::ask()
{
    m_companion->call(applicationObjectPath(m_applicationId), propertiesInterface, u"GetAll"_s,
                      {publicInterfaceOf(m_applicationId)}, this, [this](const QDBusMessage &answer) {
                          if (answer.type() == QDBusMessage::ReplyMessage)
                              show(plain(qdbus_cast<QVariantMap>(answer.arguments().value(0))));
                          else if (m_isRunning)
                              m_callbacks.finished();
                      });
}

void StatusFollower::show(const QVariantMap &state)
{
    m_state = state;
    const QByteArray line = stateText(state, m_request.form);
    if (std::exchange(m_line, line) != line)
        m_callbacks.print(line);
    if (m_isRunning ? !m_request.follows : !m_request.waits)
        m_callbacks.finished();
}

} // namespace tarvo
