#pragma once

#include "platform/DynamicStore.h"

#include <QMap>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

class DeviceRegistry;
class RouterObserver;

/// Follows the USB network devices that have a router, and that the settings neither name nor exclude: a modem perhaps
/// that is not set up. On the main thread.
class UnknownModems {
public:
    /// Follows nothing yet. Everything referred to outlives this object.
    /// @param changed  called after `first` changed: from the event loop, or by `watch`
    UnknownModems(DynamicStore &dynamicStore, DeviceRegistry &deviceRegistry, const RouterObserver &observer,
                  std::function<void()> changed);

    /// Begins with the devices that are there, once.
    void watch();

    /// @return vendor and product of the first such device, in hexadecimal, such as 1234:5678; nil when there is none
    std::optional<QString> first() const;

private:
    void update(DynamicStoreSession &session, const QStringList &keys);
    /// @return the identity of such a device behind the service whose state is @p ipv4State; nil when it is none
    std::optional<QString> unknownDevice(const QVariantMap &ipv4State) const;

    DynamicStore &m_dynamicStore;
    DeviceRegistry &m_deviceRegistry;
    const RouterObserver &m_observer;
    const std::function<void()> m_changed;
    QMap<QString, QString> m_unknown; ///< identities by the key of the service
    std::unique_ptr<DynamicStoreSession> m_session; ///< null before `watch`, and when the network state cannot be had
};

} // namespace tarvo
