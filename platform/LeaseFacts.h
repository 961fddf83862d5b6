#pragma once

#include <QtGlobal>

#include <functional>

namespace tarvo {

/// What the programs that configure the machine's network keep of address leases without telling the kernel. Used on the
/// main thread only.
class LeaseFacts {
public:
    /// Tells whether an IPv4 address in host byte order is one of the interface.
    using HasAddress = std::function<bool(quint32 address)>;

    virtual ~LeaseFacts() = default;

    /// @return the gateway that the interface's lease names, an IPv4 address in host byte order; 0 when there is no
    ///         lease of one of the interface's addresses, or none that names a gateway
    virtual quint32 gateway(int interfaceIndex, const HasAddress &hasAddress) const = 0;

    /// Calls @p changed from the event loop each time leases may have changed, and at once where they may have changed
    /// without being watched.
    /// @param changed  replaces the one before; empty ends it, and then nothing is watched
    virtual void watch(std::function<void()> changed) = 0;
};

} // namespace tarvo
