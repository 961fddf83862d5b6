#pragma once

#include "platform/DeviceRegistry.h"

#include <QMap>
#include <QVariantMap>

namespace tarvo {

/// A tree of devices that is built by hand.
class SimulatedDeviceRegistry final : public DeviceRegistry {
public:
    /// One device, as it is put into the tree.
    struct Device {
        IOServiceHandle parent = 0; ///< 0 for one at the top
        QByteArray className; ///< e.g. "IOUSBHostInterface"; may be empty
        QVariantMap properties; ///< an interface's own device has "BSD Name"
    };

    /// @return the new device's handle, which is never given again
    IOServiceHandle addDevice(const Device &device);
    /// Takes out @p service and everything below it.
    void removeDevice(IOServiceHandle service);

    /// Adds a USB modem: a device with the identifiers, below it its interface, and below that the network interface
    /// @p bsdName. @return the USB device
    IOServiceHandle addModem(const QString &bsdName, int vendorID, int productID,
                             const QByteArray &interfaceClass = "IOUSBHostInterface");

    /// From now on the registry can, or cannot, be read by class.
    void setReadable(bool readable) { m_readable = readable; }

    IOServiceHandle serviceMatchingBSDName(const QString &bsdName) override;
    std::optional<QList<IOServiceHandle>> servicesMatchingClass(const QByteArray &className) override;
    std::optional<QVariant> searchProperty(IOServiceHandle service, const QString &key,
                                           RegistrySearch direction) override;

private:
    std::optional<QVariant> searchUpward(IOServiceHandle service, const QString &key) const;
    std::optional<QVariant> searchDownward(IOServiceHandle service, const QString &key) const;
    QList<IOServiceHandle> childrenOf(IOServiceHandle service) const;

    QMap<IOServiceHandle, Device> m_devices;
    IOServiceHandle m_lastHandle = 0;
    bool m_readable = true;
};

} // namespace tarvo
