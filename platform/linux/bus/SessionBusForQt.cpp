#include "platform/linux/bus/SessionBusForQt.h"

#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusProbe.h"

#include <QDBusConnection>
#include <QDeadlineTimer>

#include <poll.h>

#include <chrono>

namespace tarvo {

namespace {

using namespace std::chrono_literals;

constexpr auto answerTimeout = 1s;
constexpr const char *variable = "DBUS_SESSION_BUS_ADDRESS";

std::optional<QByteArray> valueOf(const char *name)
{
    return qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt;
}

bool isMute(const QString &address)
{
    BusProbe bus(address);
    const QDeadlineTimer end(answerTimeout);
    while (bus.update() == BusProbe::State::Mute && bus.descriptor() >= 0 && !end.hasExpired()) {
        pollfd answer{.fd = bus.descriptor(), .events = POLLIN, .revents = 0};
        poll(&answer, 1, static_cast<int>(end.remainingTime()));
    }
    return bus.update() == BusProbe::State::Mute;
}

} // namespace

SessionBusForQt::SessionBusForQt()
    : m_address(valueOf(variable))
{
    if (isMute(sessionBusAddress()))
        qputenv(variable, "disabled:");
}

SessionBusForQt::~SessionBusForQt()
{
    QDBusConnection::sessionBus();
    if (m_address)
        qputenv(variable, *m_address);
    else
        qunsetenv(variable);
}

} // namespace tarvo
