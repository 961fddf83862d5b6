#pragma once

#include "platform/UsbNetworkDevices.h"

#include <QSocketNotifier>

#include <memory>

struct udev;
struct udev_device;
struct udev_hwdb;
struct udev_monitor;

namespace tarvo {

/// The USB network devices as sysfs and udev's database show them (libudev(3)), with events from udevd.
class UdevUsbNetworkDevices final : public UsbNetworkDevices {
public:
    UdevUsbNetworkDevices();

    QList<UsbNetworkDevice> devices() override;
    void watch(std::function<void()> changed) override;

private:
    /// @return what is behind the interface @p net; a device without an interface index when that is no USB device
    UsbNetworkDevice describe(udev_device *net) const;
    /// @return the name that the hardware database gives @p usb as @p property, else the device's own @p attribute
    QString nameOf(udev_device *usb, const char *property, const char *attribute) const;
    void receive();

    std::shared_ptr<udev> m_udev;
    std::shared_ptr<udev_hwdb> m_names;
    std::shared_ptr<udev_monitor> m_monitor;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_changed;
};

} // namespace tarvo
