#pragma once

#include "platform/InterfaceFacts.h"

namespace tarvo {

class NetlinkDynamicStore;
class UsbNetworkDevices;

/// What the kernel and udev know of an interface.
class KernelInterfaceFacts final : public InterfaceFacts {
public:
    /// @param dynamicStore, devices  outlive this object
    KernelInterfaceFacts(const NetlinkDynamicStore &dynamicStore, UsbNetworkDevices &devices);

    std::function<bool(int socket)> socketBinder(const QString &interfaceName) override;
    QString deviceName(const QString &interfaceName) override;
    InterfaceIdentity identity(const QString &interfaceName) override;

private:
    const NetlinkDynamicStore &m_dynamicStore;
    UsbNetworkDevices &m_devices;
};

} // namespace tarvo
