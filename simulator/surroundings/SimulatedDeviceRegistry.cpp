#include "simulator/surroundings/SimulatedDeviceRegistry.h"

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {
const QString bsdNameKey = u"BSD Name"_s;
}

IOServiceHandle SimulatedDeviceRegistry::addDevice(const Device &device)
{
    m_devices.insert(++m_lastHandle, device);
    return m_lastHandle;
}

void SimulatedDeviceRegistry::removeDevice(IOServiceHandle service)
{
    const auto children = childrenOf(service);
    for (const IOServiceHandle child : children)
        removeDevice(child);
    m_devices.remove(service);
}

IOServiceHandle SimulatedDeviceRegistry::addModem(const QString &bsdName, int vendorID, int productID,
                                                  const QByteArray &interfaceClass)
{
    const auto device = addDevice({.parent = 0,
                                   .className = "IOUSBDevice",
                                   .properties = {{u"idVendor"_s, vendorID}, {u"idProduct"_s, productID}}});
    const auto usbInterface = addDevice({.parent = device, .className = interfaceClass, .properties = {}});
    addDevice({.parent = usbInterface, .className = "IOEthernetInterface", .properties = {{bsdNameKey, bsdName}}});
    return device;
}

IOServiceHandle SimulatedDeviceRegistry::serviceMatchingBSDName(const QString &bsdName)
{
    for (const auto &[handle, device] : m_devices.asKeyValueRange()) {
        if (device.properties.value(bsdNameKey) == bsdName)
            return handle;
    }
    return 0;
}

std::optional<QList<IOServiceHandle>> SimulatedDeviceRegistry::servicesMatchingClass(const QByteArray &className)
{
    if (!m_readable)
        return std::nullopt;
    QList<IOServiceHandle> services;
    for (const auto &[handle, device] : m_devices.asKeyValueRange()) {
        if (device.className == className)
            services.append(handle);
    }
    return services;
}

std::optional<QVariant> SimulatedDeviceRegistry::searchProperty(IOServiceHandle service, const QString &key,
                                                                RegistrySearch direction)
{
    return direction == RegistrySearch::Upward ? searchUpward(service, key) : searchDownward(service, key);
}

std::optional<QVariant> SimulatedDeviceRegistry::searchUpward(IOServiceHandle service, const QString &key) const
{
    for (auto device = m_devices.constFind(service); device != m_devices.cend();
         device = m_devices.constFind(device->parent)) {
        if (device->properties.contains(key))
            return device->properties.value(key);
    }
    return std::nullopt;
}

std::optional<QVariant> SimulatedDeviceRegistry::searchDownward(IOServiceHandle service, const QString &key) const
{
    if (const auto properties = m_devices.value(service).properties; properties.contains(key))
        return properties.value(key);
    const auto children = childrenOf(service);
    for (const IOServiceHandle child : children) {
        if (const auto found = searchDownward(child, key))
            return found;
    }
    return std::nullopt;
}

QList<IOServiceHandle> SimulatedDeviceRegistry::childrenOf(IOServiceHandle service) const
{
    QList<IOServiceHandle> children;
    for (const auto &[handle, device] : m_devices.asKeyValueRange()) {
        if (device.parent == service)
            children.append(handle);
    }
    return children;
}

} // namespace tarvo
