#include "platform/linux/bus/BusName.h"

#include "platform/linux/bus/BusConnection.h"

#include <QDBusError>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

BusName::BusName(BusConnection &bus, QString name, Handler changed)
    : m_bus(bus)
    , m_name(std::move(name))
    , m_changed(std::move(changed))
{
    m_bus.subscribe(u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"NameOwnerChanged"_s, this,
                    SLOT(ownerChanged(QDBusMessage)), m_name);
    m_bus.follow(
        this, [this] { askForOwner(); }, [this] { busLost(); });
}

void BusName::call(const QString &path, const QString &interface, const QString &method, const QVariantList &arguments,
                   QObject *receiver, const Answer &answered)
{
    auto message = QDBusMessage::createMethodCall(owner().isEmpty() ? m_name : owner(), path, interface, method);
    message.setArguments(arguments);
    m_bus.call(message, receiver, [this, answered, asked = owner()](const QDBusMessage &answer) {
        answered(asked == owner() ? answer : QDBusMessage::createError(QDBusError::Disconnected, u"it has gone"_s));
    });
}

void BusName::askForOwner()
{
    // The answer comes among the signals in the order in which the bus saw it all, so the last word is right.
    m_bus.callBus(u"GetNameOwner"_s, {m_name}, this, [this](const QDBusMessage &answer) {
        const bool owned = answer.type() == QDBusMessage::ReplyMessage;
        tell(owned ? answer.arguments().value(0).toString() : QString());
    });
}

void BusName::busLost()
{
    tell(QString());
    m_told.reset();
}

void BusName::ownerChanged(const QDBusMessage &signal)
{
    // Every client of the bus may send such a signal.
    if (signal.service() == u"org.freedesktop.DBus" && signal.signature() == u"sss")
        tell(signal.arguments().at(2).toString());
}

void BusName::tell(const QString &owner)
{
    if (m_told == owner)
        return;
    m_told = owner;
    m_changed(owner);
}

} // namespace tarvo
