#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

namespace tarvo {

/// Names one device of the registry; 0 names none. The same device has the same handle for as long as it is there,
/// so a handle needs no release and can be kept or dropped freely.
using IOServiceHandle = quint32;

/// Which devices a search looks at.
enum class RegistrySearch {
    Upward, ///< the device itself, then its ancestors, the nearest first
    Downward, ///< the device itself, then everything below it
};

/// The devices of the machine and what is known of them. Used on the main thread only.
class DeviceRegistry {
public:
    virtual ~DeviceRegistry() = default;

    /// @return the device behind the network interface @p bsdName; 0 when there is none
    virtual IOServiceHandle serviceMatchingBSDName(const QString &bsdName) = 0;

    /// @return all devices of a class, e.g. "IOUSBHostInterface"; nil when the registry cannot be read
    virtual std::optional<QList<IOServiceHandle>> servicesMatchingClass(const QByteArray &className) = 0;

    /// Looks for the property @p key from @p service on: "idVendor" and "idProduct" are numbers, "BSD Name" is text.
    /// @return the nearest value; nil when no device in that direction has one
    virtual std::optional<QVariant> searchProperty(IOServiceHandle service, const QString &key,
                                                   RegistrySearch direction) = 0;
};

} // namespace tarvo
