#include "simulator/surroundings/SimulatedLogind.h"

#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QStringList>
#include <QVariantMap>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString path = u"/org/freedesktop/login1"_s;
const QString sessionPath = path + u"/session/_32"_s;
const QString managerInterface = u"org.freedesktop.login1.Manager"_s;
const QString sessionInterface = u"org.freedesktop.login1.Session"_s;

QDBusConnection newConnection(const QString &busAddress)
{
    static int count = 0;
    return QDBusConnection::connectToBus(busAddress, u"simulated-logind-%1"_s.arg(++count));
}

} // namespace

SimulatedLogind::SimulatedLogind(const QString &busAddress, bool ownsName)
    : m_bus(newConnection(busAddress))
{
    m_bus.registerVirtualObject(path, this, QDBusConnection::SubPath);
    if (ownsName)
        m_bus.registerService(u"org.freedesktop.login1"_s);
}

SimulatedLogind::~SimulatedLogind()
{
    QDBusConnection::disconnectFromBus(m_bus.name());
    if (m_lock >= 0)
        close(m_lock);
}

void SimulatedLogind::prepareForSleep(bool sleeping)
{
    auto signal = QDBusMessage::createSignal(path, managerInterface, u"PrepareForSleep"_s);
    signal << sleeping;
    tell(signal);
}

void SimulatedLogind::setSession(std::optional<bool> active)
{
    const bool isSame = std::exchange(m_active, active).has_value() == active.has_value();
    auto signal = isSame
        ? QDBusMessage::createSignal(sessionPath, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s)
        : QDBusMessage::createSignal(path, managerInterface, active ? u"SessionNew"_s : u"SessionRemoved"_s);
    if (isSame)
        signal << sessionInterface << QVariantMap{{u"Active"_s, active.value_or(false)}} << QStringList();
    else
        signal << u"2"_s << QVariant::fromValue(QDBusObjectPath(sessionPath));
    tell(signal);
}

void SimulatedLogind::tell(const QDBusMessage &signal)
{
    m_bus.send(signal);
    m_bus.call(
        QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus.Peer"_s, u"Ping"_s));
}

bool SimulatedLogind::isLocked() const
{
    pollfd end{.fd = m_lock, .events = POLLIN, .revents = 0};
    return m_lock >= 0 && poll(&end, 1, 0) == 0;
}

QString SimulatedLogind::introspect(const QString &) const
{
    return {};
}

bool SimulatedLogind::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    if (m_silent)
        return true;
    return connection.send(answerTo(message));
}

QDBusMessage SimulatedLogind::answerTo(const QDBusMessage &question)
{
    const QVariantList arguments = question.arguments();
    const auto is = [&](const QString &member, const QVariant &first, const QVariant &last) {
        return question.member() == member && arguments.value(0) == first && arguments.last() == last;
    };
    if (is(u"Inhibit"_s, u"sleep"_s, u"delay"_s))
        return question.createReply(QVariant::fromValue(lendLock()));
    if (is(u"Get"_s, managerInterface, u"PreparingForSleep"_s))
        return question.createReply(QVariant::fromValue(QDBusVariant(false)));
    if (is(u"GetSession"_s, u"auto"_s, u"auto"_s) && m_active)
        return question.createReply(QVariant::fromValue(QDBusObjectPath(sessionPath)));
    if (is(u"Get"_s, sessionInterface, u"Active"_s) && question.path() == sessionPath && m_active)
        return question.createReply(QVariant::fromValue(QDBusVariant(*m_active)));
    return question.createErrorReply(QDBusError::Failed, u"there is no such thing"_s);
}

QDBusUnixFileDescriptor SimulatedLogind::lendLock()
{
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return {};
    if (const int previous = std::exchange(m_lock, ends[0]); previous >= 0)
        close(previous);
    ++m_locksLent;
    QDBusUnixFileDescriptor lent;
    lent.giveFileDescriptor(ends[1]);
    return lent;
}

} // namespace tarvo
