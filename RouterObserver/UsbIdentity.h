#pragma once

#include "platform/DeviceRegistry.h"

#include <QString>

#include <optional>

namespace tarvo {

/// What a USB device says that it is.
struct UsbIdentity {
    qint64 vendor = 0;
    qint64 product = 0;

    /// @return both in hexadecimal, as lsusb(8) writes them: 1234:5678
    QString text() const;

    bool operator==(const UsbIdentity &) const = default;
};

/// @return the identity of the USB device that @p service is or belongs to; nil when it is none
std::optional<UsbIdentity> usbIdentity(DeviceRegistry &registry, IOServiceHandle service);

} // namespace tarvo
