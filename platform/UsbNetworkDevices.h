#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace tarvo {

/// A USB device with a network interface.
struct UsbNetworkDevice {
    quint16 vendor = 0;
    quint16 product = 0;
    QString vendorName{}; ///< from the hardware database, else as the device says; may be empty
    QString productName{};
    QString driver{}; ///< of the network interface; may be empty
    QString interfaceName{};
    int interfaceIndex = 0;

    bool operator==(const UsbNetworkDevice &) const = default;
};

/// The USB devices that have a network interface. Used on the main thread only.
class UsbNetworkDevices {
public:
    virtual ~UsbNetworkDevices() = default;

    /// @return those that are there now, by interface index
    virtual QList<UsbNetworkDevice> devices() = 0;

    /// From now on @p changed is called from the event loop after a device came, went or got another name.
    virtual void watch(std::function<void()> changed) = 0;
};

} // namespace tarvo
