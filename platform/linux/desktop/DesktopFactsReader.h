#pragma once

#include "platform/DesktopFacts.h"

#include <QString>

namespace tarvo {

// These wait for the desktop's programs, for a few seconds each at most: not for the main thread.

/// Asks the desktop what it offers, and whether @p applicationName is on the session bus and what it tells there.
DesktopFacts readDesktopFacts(const QString &applicationName);

/// Has a running application do @p action (freedesktop.org Desktop Entry Specification, "D-Bus Activation"). It is not
/// started for that.
/// @param applicationName  its name on the session bus, from which its object path follows
ActionResult activateAction(const QString &applicationName, const QString &action);

} // namespace tarvo
