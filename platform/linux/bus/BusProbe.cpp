#include "platform/linux/bus/BusProbe.h"

#include "platform/linux/bus/BusAddress.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

namespace tarvo {

namespace {

constexpr qsizetype maxAnswerSize = 4096;

/// The call that a bus wants first: a header of 16 bytes, then path, destination, interface and member, each in a
/// multiple of eight bytes (D-Bus specification, "Message Format").
///
/// The sd-bus of libsystemd, which is loaded in any case, would say it for us; half a megabyte more of that library would
/// then stay in memory for the sake of these bytes.
QByteArray helloMessage()
{
    static constexpr char bytes[] = "l\1\0\1\0\0\0\0\1\0\0\0\x6e\0\0\0"
                                    "\1\1o\0\x15\0\0\0/org/freedesktop/DBus\0\0\0"
                                    "\6\1s\0\x14\0\0\0org.freedesktop.DBus\0\0\0\0"
                                    "\2\1s\0\x14\0\0\0org.freedesktop.DBus\0\0\0\0"
                                    "\3\1s\0\5\0\0\0Hello\0\0";
    return {bytes, sizeof bytes};
}

/// All that a client says until its first call, without waiting for what the bus says to each line.
QByteArray greeting()
{
    const QByteArray user = QByteArray::number(geteuid()).toHex();
    return '\0' + QByteArray("AUTH EXTERNAL ") + user + "\r\nBEGIN\r\n" + helloMessage();
}

/// @return whether @p answer is more than that the bus knows who we are; that much may come from a bus that is not
///         able to serve us
bool isWhole(const QByteArray &answer)
{
    const qsizetype end = answer.indexOf("\r\n");
    return end >= 0 && (!answer.startsWith("OK") || answer.size() > end + 2);
}

} // namespace

BusProbe::BusProbe(const QString &address)
{
    for (const QByteArray &name : unixSocketsOf(address)) {
        if (connectTo(name)) {
            greet();
            return;
        }
        if (m_state == State::Mute)
            return;
    }
}

BusProbe::~BusProbe()
{
    hangUp(m_state);
}

BusProbe::State BusProbe::update()
{
    std::array<char, 512> bytes;
    while (m_state == State::Mute && m_socket >= 0) {
        const ssize_t size = recv(m_socket, bytes.data(), bytes.size(), MSG_DONTWAIT);
        if (size < 0 && (errno == EAGAIN || errno == EINTR))
            break;
        m_answer.append(bytes.data(), size > 0 ? size : 0);
        if (isWhole(m_answer))
            hangUp(State::Answered);
        else if (size <= 0 || m_answer.size() > maxAnswerSize)
            hangUp(State::Absent);
    }
    return m_state;
}

bool BusProbe::connectTo(const QByteArray &name)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size()));
    m_socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (m_socket >= 0 && connect(m_socket, reinterpret_cast<const sockaddr *>(&address), size) == 0)
        return true;
    hangUp(errno == EAGAIN ? State::Mute : State::Absent);
    return false;
}

void BusProbe::greet()
{
    const QByteArray bytes = greeting();
    const ssize_t sent = send(m_socket, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
    if (sent == bytes.size())
        m_state = State::Mute;
    else
        hangUp(State::Absent);
}

void BusProbe::hangUp(State state)
{
    m_state = state;
    if (m_socket >= 0)
        close(std::exchange(m_socket, -1));
}

} // namespace tarvo
