#pragma once

#include <functional>

namespace tarvo {

class Clock;
class ConfigManager;
class DeviceRegistry;
class DynamicStore;
class InterfaceFacts;
class Notifications;
class StatusBar;
class SystemLog;
class Workspace;

/// What the controller needs from the outside. Everything referred to outlives the controller.
struct Services {
    DynamicStore &dynamicStore; ///< tells of interfaces and their addresses
    DeviceRegistry &deviceRegistry; ///< tells which USB device is behind an interface
    InterfaceFacts &interfaces; ///< tells what else is known of one
    Workspace &workspace; ///< tells of sleep and wake, and opens pages
    StatusBar &statusBar; ///< holds the icon
    Clock &clock; ///< times the polling and the news
    SystemLog &systemLog; ///< receives every line
    const ConfigManager &settings; ///< as they were read

    /// Asks the application to end; called on the main thread.
    std::function<void()> terminate;

    /// The desktop's notification service; null where there cannot be one.
    Notifications *notifications = nullptr;

    /// Opens the program that makes the settings; called on the main thread. Empty where there is none.
    std::function<void()> openSettings{};

    /// @return whether windows may be translucent; called on the main thread. Empty means that they may not.
    std::function<bool()> isScreenComposited{};
};

} // namespace tarvo
