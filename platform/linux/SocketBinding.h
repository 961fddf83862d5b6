#pragma once

#include <QString>

namespace tarvo {

/// Ties @p socket to the network interface @p interfaceName (SO_BINDTODEVICE, socket(7)), so that it reaches no other
/// host of the same address behind another one. Empty ties nothing. Where the kernel refuses, the socket is routed
/// like any other; while there is no such interface, it reaches no other host at all. May be called on any thread.
void bindSocketToInterface(int socket, const QString &interfaceName);

} // namespace tarvo
