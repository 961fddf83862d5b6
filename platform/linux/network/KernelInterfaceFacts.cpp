#include "platform/linux/network/KernelInterfaceFacts.h"

#include "platform/UsbNetworkDevices.h"
#include "platform/linux/network/HardwareAddress.h"
#include "platform/linux/network/NetlinkDynamicStore.h"
#include "platform/linux/network/SocketBinding.h"

namespace tarvo {

using namespace Qt::StringLiterals;

KernelInterfaceFacts::KernelInterfaceFacts(const NetlinkDynamicStore &dynamicStore, UsbNetworkDevices &devices)
    : m_dynamicStore(dynamicStore)
    , m_devices(devices)
{
}

std::function<bool(int socket)> KernelInterfaceFacts::socketBinder(const QString &interfaceName)
{
    return tarvo::socketBinder(m_dynamicStore.interfaceIndex(interfaceName));
}

QString KernelInterfaceFacts::deviceName(const QString &interfaceName)
{
    for (const UsbNetworkDevice &device : m_devices.devices()) {
        if (device.interfaceName == interfaceName)
            return u"%1 %2"_s.arg(device.vendorName, device.productName).trimmed();
    }
    return {};
}

InterfaceIdentity KernelInterfaceFacts::identity(const QString &interfaceName)
{
    return {m_dynamicStore.interfaceIndex(interfaceName), hardwareAddress(interfaceName)};
}

} // namespace tarvo
