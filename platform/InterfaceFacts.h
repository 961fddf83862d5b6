#pragma once

#include <QString>

#include <functional>

namespace tarvo {

/// What tells a network interface from every other one. On the same machine no two ever have the same index until it
/// starts again, and a device that comes back has the same address.
struct InterfaceIdentity {
    int index = 0; ///< 0 when it is not known
    QString address{}; ///< of the hardware, as text; empty when it has none

    /// @return whether both are one plug-in of one device; never for one that cannot be told from others
    bool isSamePlugIn(const InterfaceIdentity &other) const { return index != 0 && index == other.index; }

    bool operator==(const InterfaceIdentity &) const = default;
};

/// What is known of a network interface by its name, as it is now. Used on the main thread only.
class InterfaceFacts {
public:
    virtual ~InterfaceFacts() = default;

    /// @return what ties sockets to the interface, on any thread, and tells whether it could; empty ties nothing
    virtual std::function<bool(int socket)> socketBinder(const QString &interfaceName) = 0;
    /// @return the name of the device behind the interface, for the user; empty when it has none
    virtual QString deviceName(const QString &interfaceName) = 0;
    /// @return what tells the interface from others
    virtual InterfaceIdentity identity(const QString &interfaceName) = 0;
};

} // namespace tarvo
