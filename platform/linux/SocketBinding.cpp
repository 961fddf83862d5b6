#include "platform/linux/SocketBinding.h"

#include <QByteArray>

#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>

namespace tarvo {

namespace {

/// From a loopback address no other host can be reached: connecting to one fails at once.
void bindToLoopback(int socket)
{
    const sockaddr_in loopback{.sin_family = AF_INET, .sin_port = 0, .sin_addr = {htonl(INADDR_LOOPBACK)}, .sin_zero{}};
    const int evenWhenDown = 1;
    static_cast<void>(setsockopt(socket, IPPROTO_IP, IP_FREEBIND, &evenWhenDown, sizeof evenWhenDown));
    static_cast<void>(bind(socket, reinterpret_cast<const sockaddr *>(&loopback), sizeof loopback));
}

} // namespace

void bindSocketToInterface(int socket, const QString &interfaceName)
{
    const QByteArray name = interfaceName.toUtf8();
    if (name.isEmpty() || name.size() >= IFNAMSIZ)
        return;
    const int result =
        setsockopt(socket, SOL_SOCKET, SO_BINDTODEVICE, name.constData(), static_cast<socklen_t>(name.size()));
    if (result != 0 && errno == ENODEV)
        bindToLoopback(socket);
}

} // namespace tarvo
