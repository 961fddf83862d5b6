#pragma once

#include "platform/UsbNetworkDevices.h"

namespace tarvo {

/// USB devices that are plugged in by hand.
class SimulatedUsbNetworkDevices final : public UsbNetworkDevices {
public:
    /// From now on @p devices are there, and no others; who watches is told.
    void plug(const QList<UsbNetworkDevice> &devices)
    {
        m_devices = devices;
        if (m_changed)
            m_changed();
    }

    QList<UsbNetworkDevice> devices() override { return m_devices; }
    void watch(std::function<void()> changed) override { m_changed = std::move(changed); }

private:
    QList<UsbNetworkDevice> m_devices;
    std::function<void()> m_changed;
};

} // namespace tarvo
