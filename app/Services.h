#pragma once

#include "attachment/Attachment.h"

#include <QString>

#include <functional>

namespace tarvo {

class Clock;
class ConfigManager;
class DeviceRegistry;
class DynamicStore;
class Notifications;
class StatusBar;
class SystemLog;
class Workspace;

/// What tells a network interface from every other one. On the same machine no two ever have the same index until it
/// starts again, and a device that comes back has the same address.
struct InterfaceIdentity {
    int index = 0; ///< 0 when it is not known
    QString address{}; ///< of the hardware, as text; empty when it has none

    bool operator==(const InterfaceIdentity &) const = default;
};

/// What the controller needs from the outside. Everything referred to outlives the controller.
struct Services {
    DynamicStore &dynamicStore; ///< tells of interfaces and their addresses
    DeviceRegistry &deviceRegistry; ///< tells which USB device is behind an interface
    Workspace &workspace; ///< tells of sleep and wake, and opens pages
    StatusBar &statusBar; ///< holds the icon
    Clock &clock; ///< times the polling and the news
    SystemLog &systemLog; ///< receives every line
    const ConfigManager &settings; ///< as they were read

    /// @return what ties sockets to the network interface of that name, as it is now; called on the main thread. Empty
    ///         ties nothing
    std::function<SocketBinder(const QString &interfaceName)> socketBinderFor;

    /// Asks the application to end; called on the main thread.
    std::function<void()> terminate;

    /// The desktop's notification service; null where there cannot be one.
    Notifications *notifications = nullptr;

    /// @return the name of the device behind the network interface of that name, for the user; empty when it has none.
    ///         Called on the main thread; may be empty
    std::function<QString(const QString &interfaceName)> deviceName{};

    /// @return what tells the network interface of that name from others; called on the main thread. Without it each
    ///         report is one of a new device
    std::function<InterfaceIdentity(const QString &interfaceName)> identityOf{};

    /// Opens the program that makes the settings; called on the main thread. Empty where there is none.
    std::function<void()> openSettings{};

    /// @return whether windows may be translucent; called on the main thread. Empty means that they may not.
    std::function<bool()> isScreenComposited{};
};

} // namespace tarvo
