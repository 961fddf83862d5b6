#pragma once

#include <QString>

#include <functional>

namespace tarvo {

class Clock;
class DeviceRegistry;
class DynamicStore;
class Notifications;
class StatusBar;
class SystemLog;
class Workspace;

/// What the controller needs from the outside. Everything referred to outlives the controller.
struct Services {
    DynamicStore &dynamicStore;
    DeviceRegistry &deviceRegistry;
    Workspace &workspace;
    StatusBar &statusBar;
    Clock &clock;
    SystemLog &systemLog;

    /// Ties a new socket to a network interface, if the kernel allows it; called on any thread. Empty ties nothing.
    std::function<void(int socket, const QString &interfaceName)> bindSocketToInterface;

    /// Asks the application to end; called on the main thread.
    std::function<void()> terminate;

    /// The desktop's notification service; null where there cannot be one.
    Notifications *notifications = nullptr;

    /// @return whether windows may be translucent; called on the main thread. Empty means that they may not.
    std::function<bool()> isScreenComposited{};
};

} // namespace tarvo
