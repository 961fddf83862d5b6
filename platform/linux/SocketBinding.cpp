#include "platform/linux/SocketBinding.h"

#include <QByteArray>

#include <net/if.h>
#include <sys/socket.h>

namespace tarvo {

void bindSocketToInterface(int socket, const QString &interfaceName)
{
    const QByteArray name = interfaceName.toUtf8();
    if (name.isEmpty() || name.size() >= IFNAMSIZ)
        return;
    // A refusal is no error: the caller is then served by plain routing.
    static_cast<void>(
        setsockopt(socket, SOL_SOCKET, SO_BINDTODEVICE, name.constData(), static_cast<socklen_t>(name.size())));
}

} // namespace tarvo
