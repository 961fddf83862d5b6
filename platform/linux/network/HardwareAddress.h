#pragma once

#include <QString>

namespace tarvo {

/// @return the address of the network interface @p interfaceName in hexadecimal: the one that its device was made with,
///         or else the present one; empty when it has none
QString hardwareAddress(const QString &interfaceName);

} // namespace tarvo
