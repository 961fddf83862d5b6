#include "platform/linux/network/HardwareAddress.h"

#include <QByteArray>

#include <linux/ethtool.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace tarvo {

namespace {

constexpr qsizetype addressSize = 6;

QString textOf(const QByteArray &address)
{
    const bool isSet = std::ranges::any_of(address, [](char byte) { return byte != 0; });
    return isSet ? QString::fromLatin1(address.toHex(':')) : QString();
}

ifreq requestFor(const QByteArray &name)
{
    ifreq request{};
    std::memcpy(request.ifr_name, name.constData(), static_cast<std::size_t>(name.size()));
    return request;
}

/// @return the address that programs cannot change; empty when the driver does not tell
QString permanentAddress(int socket, const QByteArray &name)
{
    struct {
        quint32 command = ETHTOOL_GPERMADDR;
        quint32 size = addressSize;
        char address[addressSize] = {};
    } exchange; // as ethtool_perm_addr begins
    ifreq request = requestFor(name);
    request.ifr_data = reinterpret_cast<char *>(&exchange);
    return ioctl(socket, SIOCETHTOOL, &request) == 0 ? textOf({exchange.address, addressSize}) : QString();
}

QString presentAddress(int socket, const QByteArray &name)
{
    ifreq request = requestFor(name);
    return ioctl(socket, SIOCGIFHWADDR, &request) == 0 ? textOf({request.ifr_hwaddr.sa_data, addressSize}) : QString();
}

} // namespace

QString hardwareAddress(const QString &interfaceName)
{
    const QByteArray name = interfaceName.toUtf8();
    if (name.size() >= IFNAMSIZ)
        return {};
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return {};
    const QString permanent = permanentAddress(socket, name);
    const QString address = permanent.isEmpty() ? presentAddress(socket, name) : permanent;
    close(socket);
    return address;
}

} // namespace tarvo
