#pragma once

#include <functional>

namespace tarvo {

/// Makes what ties sockets to the network interface @p interfaceIndex, whatever its name, so that they reach no other
/// host of the same address behind another one (SO_BINDTOIFINDEX, Linux 5.0). Where the kernel does not permit that, a
/// socket gets an IPv4 address of the interface as its source instead.
/// @param interfaceIndex  0, which is no interface, ties no socket
/// @return for use on any thread: ties a socket that is not connected yet; false when that failed, as it does for an
///         interface that is gone
std::function<bool(int socket)> socketBinder(int interfaceIndex);

} // namespace tarvo
