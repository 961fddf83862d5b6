#pragma once

#include "RouterObserver/DeviceSupport.h"
#include "platform/InterfaceState.h"
#include "platform/UsbNetworkDevices.h"

#include <QList>
#include <QString>

#include <optional>

namespace tarvo {

/// A USB device, and what the network and the settings make of it.
struct Device {
    UsbNetworkDevice usb;
    InterfaceState network{};
    Support support = Support::Unsupported;

    bool operator==(const Device &) const = default;

    /// @return vendor and product in hexadecimal, as `lsusb` writes them
    QString identifier() const;
    /// @return the names of vendor and product; the identifier when there are none
    QString name() const;
};

/// @return what @p support says, in the user's language
QString supportText(Support support);

/// @return the supported one among @p devices that has come furthest on its way to a gateway, the first of several;
///         nil when none is supported
std::optional<Device> deviceToCheck(const QList<Device> &devices);

/// Vendor and product of a device.
struct DeviceId {
    quint16 vendor = 0;
    quint16 product = 0;

    bool operator==(const DeviceId &) const = default;
};

/// Reads `VENDOR:PRODUCT`, both hexadecimal. @return nil when @p text is something else
std::optional<DeviceId> deviceIdFrom(const QString &text);

/// @return whether @p device names no maker: what stands for none, and the example of the shipped settings
bool isNoModem(DeviceId device);

} // namespace tarvo
