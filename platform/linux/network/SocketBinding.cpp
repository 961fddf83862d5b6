#include "platform/linux/network/SocketBinding.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <memory>

namespace tarvo {

namespace {

using AddressList = std::unique_ptr<ifaddrs, decltype(&freeifaddrs)>;

bool isIPv4Of(const ifaddrs &entry, int interfaceIndex)
{
    return entry.ifa_addr && entry.ifa_addr->sa_family == AF_INET
        && if_nametoindex(entry.ifa_name) == static_cast<unsigned>(interfaceIndex);
}

bool bindToAddressOf(int socket, int interfaceIndex)
{
    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0)
        return false;
    const AddressList owner(first, &freeifaddrs);
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        if (isIPv4Of(*entry, interfaceIndex))
            return bind(socket, entry->ifa_addr, sizeof(sockaddr_in)) == 0;
    }
    return false;
}

bool bindToInterface(int socket, int interfaceIndex)
{
    if (interfaceIndex <= 0)
        return false;
    if (setsockopt(socket, SOL_SOCKET, SO_BINDTOIFINDEX, &interfaceIndex, sizeof interfaceIndex) == 0)
        return true;
    return errno == EPERM && bindToAddressOf(socket, interfaceIndex);
}

} // namespace

std::function<bool(int socket)> socketBinder(int interfaceIndex)
{
    return [interfaceIndex](int socket) { return bindToInterface(socket, interfaceIndex); };
}

} // namespace tarvo
