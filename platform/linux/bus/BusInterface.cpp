#include "platform/linux/bus/BusInterface.h"

#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/Confinement.h"

#include <QDBusError>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QList>
#include <QStringList>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

/// @return the text between the first @p begin and the first @p end behind it, with neither of them
QString between(const QString &text, const QString &begin, const QString &end)
{
    return text.section(begin, 1).section(end, 0, 0);
}

} // namespace

BusInterface::BusInterface(BusConnection &bus, QString path, const QString &description)
    : m_bus(bus)
    , m_path(std::move(path))
    , m_description(u"<interface "_s + between(description, u"<interface "_s, u"</interface>"_s) + u"</interface>"_s)
    , m_name(between(m_description, u"name=\""_s, u"\""_s))
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    m_pause.setSingleShot(true);
    m_pause.setInterval(std::chrono::seconds(1));
    connect(&m_pause, &QTimer::timeout, this, [this] { tellChanges(); });
}

void BusInterface::setProperties(const QVariantMap &properties)
{
    m_properties = properties;
    if (!m_pause.isActive())
        tellChanges();
}

void BusInterface::tellChanges()
{
    QVariantMap changes;
    for (auto property = m_properties.cbegin(); property != m_properties.cend(); ++property) {
        if (m_told.value(property.key()) != property.value())
            changes.insert(property.key(), property.value());
    }
    if (changes.isEmpty())
        return;
    m_told = m_properties;
    m_pause.start();
    auto signal = QDBusMessage::createSignal(m_path, propertiesInterface, u"PropertiesChanged"_s);
    signal << m_name << changes << QStringList();
    m_bus.send(signal);
}

bool BusInterface::isAsked(const QDBusMessage &question) const
{
    const QString interface = question.interface();
    return interface == m_name || (interface == propertiesInterface && question.arguments().value(0) == m_name);
}

void BusInterface::answer(const QDBusMessage &question)
{
    if (question.interface() != m_name)
        return m_bus.send(answerToRead(question));
    askWhetherConfined(m_bus, question.service(), this, [this, question](bool isConfined) {
        m_bus.send(isConfined ? question.createErrorReply(QDBusError::AccessDenied, u"you may only read"_s)
                              : answerToCall(question));
    });
}

QDBusMessage BusInterface::answerToRead(const QDBusMessage &question) const
{
    QVariantMap properties = m_properties;
    if (m_handlers.read)
        properties.insert(m_handlers.read());
    const QString name = question.arguments().value(1).toString();
    if (question.member() == u"GetAll")
        return question.createReply(properties);
    if (question.member() == u"Get" && properties.contains(name))
        return question.createReply(QVariant::fromValue(QDBusVariant(properties.value(name))));
    if (question.member() == u"Set")
        return question.createErrorReply(QDBusError::PropertyReadOnly, u"it can only be read"_s);
    return question.createErrorReply(QDBusError::UnknownProperty, u"there is no such property"_s);
}

QDBusMessage BusInterface::answerToCall(const QDBusMessage &question) const
{
    switch (m_handlers.call ? m_handlers.call(question.member(), question.arguments()) : Outcome::NotPossible) {
    case Outcome::Done:
        return question.createReply();
    case Outcome::NoSuchMethod:
        return question.createErrorReply(QDBusError::UnknownMethod, u"there is no such method"_s);
    case Outcome::NotPossible:
        break;
    }
    return question.createErrorReply(QDBusError::Failed, u"that cannot be done at present"_s);
}

} // namespace tarvo
