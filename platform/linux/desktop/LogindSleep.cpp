#include "platform/linux/desktop/LogindSleep.h"

#include "platform/SystemLog.h"
#include "platform/linux/bus/BusConnection.h"

#include <QDBusError>
#include <QDBusVariant>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString path = u"/org/freedesktop/login1"_s;
const QString managerInterface = u"org.freedesktop.login1.Manager"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

} // namespace

LogindSleep::LogindSleep(BusConnection &bus, SystemLog &log, Handler willSleep, Handler didWake)
    : m_log(log)
    , m_willSleep(std::move(willSleep))
    , m_didWake(std::move(didWake))
    , m_name(bus, u"org.freedesktop.login1"_s, [this](const QString &owner) { ownerChanged(owner); })
{
    bus.subscribe(path, managerInterface, u"PrepareForSleep"_s, this, SLOT(prepareForSleep(QDBusMessage)));
    bus.follow(
        this, [] {}, [this] { busLost(); });
}

LogindSleep::~LogindSleep() = default;

void LogindSleep::busLost()
{
    m_ownerAsked = false;
    logOnce(u"no system bus: sleep and wake are not noticed"_s);
}

void LogindSleep::ownerChanged(const QString &owner)
{
    const bool isFirst = !std::exchange(m_ownerAsked, true);
    if (m_owner == owner && !isFirst)
        return;
    m_owner = owner;
    m_lock = QDBusUnixFileDescriptor();
    m_lockAsked = false;
    if (isFirst || !owner.isEmpty()) // where nobody owns the name, being asked may start logind
        readState();
}

void LogindSleep::readState()
{
    call(propertiesInterface, u"Get"_s, {managerInterface, u"PreparingForSleep"_s},
         [this](const QVariant &value) { stateIs(value.value<QDBusVariant>().variant().toBool()); });
}

void LogindSleep::prepareForSleep(const QDBusMessage &signal)
{
    // Every user of the machine may send this signal.
    if (signal.service() == m_owner && signal.signature() == u"b")
        stateIs(signal.arguments().constFirst().toBool());
}

void LogindSleep::stateIs(bool sleeping)
{
    const bool changed = std::exchange(m_sleeping, sleeping) != sleeping;
    if (!sleeping)
        takeLock();
    if (changed)
        sleeping ? m_willSleep() : m_didWake();
    if (sleeping)
        m_lock = QDBusUnixFileDescriptor();
}

void LogindSleep::takeLock()
{
    if (m_owner.isEmpty() || m_lock.isValid() || std::exchange(m_lockAsked, true))
        return;
    const QVariantList arguments{u"sleep"_s, u"Tarvo"_s, u"Leave the modem alone before the machine sleeps"_s,
                                 u"delay"_s};
    call(managerInterface, u"Inhibit"_s, arguments, [this](const QVariant &value) {
        m_lockAsked = false;
        if (!m_sleeping)
            m_lock = value.value<QDBusUnixFileDescriptor>();
    });
}

void LogindSleep::call(const QString &interface, const QString &method, const QVariantList &arguments,
                       const Answer &answered)
{
    m_name.call(path, interface, method, arguments, this, [this, method, answered](const QDBusMessage &answer) {
        if (QDBusError(answer).type() == QDBusError::Disconnected)
            return; // who comes next is asked again
        const bool isReply = answer.type() == QDBusMessage::ReplyMessage;
        if (!isReply)
            logOnce(u"logind does not answer %1: %2"_s.arg(method, answer.errorMessage()));
        answered(isReply ? answer.arguments().value(0) : QVariant());
    });
}

void LogindSleep::logOnce(const QString &line)
{
    if (m_logged.contains(line))
        return;
    m_logged.append(line);
    m_log.write(line);
}

} // namespace tarvo
