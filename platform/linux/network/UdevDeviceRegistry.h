#pragma once

#include "platform/DeviceRegistry.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

struct udev;

namespace tarvo {

/// The devices behind network interfaces, and the interfaces of USB devices, as sysfs shows them (libudev(3)).
///
/// What identifies the device behind a network interface is read once, when the interface is first asked for, and kept
/// until it is forgotten: while a device is being removed, the nearest identity above it is already another device's.
/// An interface that is no device, such as a bridge or a tunnel, costs one look for each name it ever has. A look that
/// fails for a shortage, such as one of descriptors, says nothing of the device: the next question looks again.
class UdevDeviceRegistry final : public DeviceRegistry {
public:
    /// @param interfaceIndex  tells the index of the network interface of a name; 0 when there is none
    /// @param lookFailed      called each time a device behind a network interface could not be looked at
    UdevDeviceRegistry(std::function<int(const QString &name)> interfaceIndex, std::function<void()> lookFailed);

    IOServiceHandle serviceMatchingBSDName(const QString &bsdName) override;
    std::optional<QList<IOServiceHandle>> servicesMatchingClass(const QByteArray &className) override;
    std::optional<QVariant> searchProperty(IOServiceHandle service, const QString &key,
                                           RegistrySearch direction) override;

    /// Drops what is known of the network interface @p interfaceIndex, which is gone.
    void forgetInterface(int interfaceIndex);

private:
    struct KnownInterface {
        QString name; ///< null before the first look
        IOServiceHandle service = 0; ///< 0 when the look under this name found no device
    };

    std::optional<IOServiceHandle> readInterface(const QString &name, int index);
    std::optional<QVariant> searchUsbInterface(const QByteArray &path, const QString &key,
                                               RegistrySearch direction) const;

    std::function<int(const QString &)> m_interfaceIndex;
    std::function<void()> m_lookFailed;
    std::shared_ptr<udev> m_udev;

    IOServiceHandle m_lastHandle = 0;
    QHash<int, KnownInterface> m_knownInterfaces; ///< by interface index
    QHash<IOServiceHandle, QVariantMap> m_interfaces; ///< what was read of each network interface
    QHash<QByteArray, IOServiceHandle> m_handleOfUsbInterface; ///< by path in sysfs
    QHash<IOServiceHandle, QByteArray> m_usbInterfaces; ///< path in sysfs
};

} // namespace tarvo
