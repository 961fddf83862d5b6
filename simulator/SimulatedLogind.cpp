#include "simulator/SimulatedLogind.h"

#include <QDBusMessage>
#include <QDBusVariant>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QString path = u"/org/freedesktop/login1"_s;

QDBusConnection newConnection(const QString &busAddress)
{
    static int count = 0;
    return QDBusConnection::connectToBus(busAddress, u"simulated-logind-%1"_s.arg(++count));
}

} // namespace

SimulatedLogind::SimulatedLogind(const QString &busAddress, bool ownsName)
    : m_bus(newConnection(busAddress))
{
    m_bus.registerVirtualObject(path, this);
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
    auto signal = QDBusMessage::createSignal(path, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
    signal << sleeping;
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
    const QVariantList arguments = message.arguments();
    const bool isDelay = arguments.first() == u"sleep"_s && arguments.last() == u"delay"_s;
    if (message.member() == u"Inhibit" && isDelay)
        return connection.send(message.createReply(QVariant::fromValue(lendLock())));
    if (message.member() == u"Get" && arguments.last() == u"PreparingForSleep"_s)
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(false))));
    return false;
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
