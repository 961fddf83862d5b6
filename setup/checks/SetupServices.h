#pragma once

#include "attachment/Attachment.h"
#include "platform/DesktopFacts.h"
#include "platform/InterfaceState.h"
#include "setup/checks/Chain.h"

#include <QString>

#include <functional>

namespace tarvo {

class DynamicStore;
class UsbNetworkDevices;

/// What the program needs from the outside. Everything referred to outlives what uses it.
struct SetupServices {
    UsbNetworkDevices &usbDevices;
    DynamicStore &dynamicStore;

    /// Called on the main thread.
    std::function<InterfaceState(int interfaceIndex)> interfaceState;
    /// @return what ties new sockets to the interface of a device, on any thread. Called on the main thread.
    std::function<SocketBinder(const UsbNetworkDevice &device)> socketBinderFor;
    /// Starts the companion. @return whether there is one to start
    std::function<bool()> startCompanion;

    // The others are called on other threads, and may take seconds.

    std::function<DesktopFacts()> readDesktop;
    /// Has the running companion start again.
    std::function<ActionResult()> restartCompanion;
    /// Reads this computer's access-point profiles.
    std::function<ProfileFacts()> readProfiles;
};

} // namespace tarvo
