#include "platform/linux/log/SyslogSocket.h"

#include <QDateTime>
#include <QLocale>

#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// @return @p line as a message of RFC 3164
QByteArray messageOf(const QByteArray &line)
{
    const QDateTime now = QDateTime::currentDateTime();
    const QByteArray time = QLocale::c().toString(now, u"MMM "_s).toLatin1()
        + QByteArray::number(now.date().day()).rightJustified(2) + now.toString(u" HH:mm:ss"_s).toLatin1();
    return '<' + QByteArray::number(LOG_USER | LOG_INFO) + '>' + time + " tarvo[" + QByteArray::number(getpid())
        + "]: " + line;
}

} // namespace

SyslogSocket::SyslogSocket(QByteArray path)
    : m_path(std::move(path))
{
}

SyslogSocket::~SyslogSocket()
{
    disconnect();
}

bool SyslogSocket::write(const QByteArray &line)
{
    const QByteArray message = messageOf(line);
    for (int attempt = 0; attempt < 2 && isConnected(); ++attempt) {
        if (send(m_socket, message.constData(), static_cast<size_t>(message.size()), MSG_DONTWAIT | MSG_NOSIGNAL) >= 0)
            return true;
        if (errno == EAGAIN)
            return false;
        disconnect(); // syslog may have been started anew
    }
    return false;
}

bool SyslogSocket::isConnected()
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (m_socket >= 0 || static_cast<size_t>(m_path.size()) >= sizeof address.sun_path)
        return m_socket >= 0;
    std::copy(m_path.begin(), m_path.end(), address.sun_path);
    m_socket = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (connect(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        disconnect();
    return m_socket >= 0;
}

void SyslogSocket::disconnect()
{
    if (m_socket >= 0)
        close(std::exchange(m_socket, -1));
}

} // namespace tarvo
