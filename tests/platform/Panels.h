#pragma once

#include "tests/support/Program.h"

#include <QColor>

#include <memory>
#include <string>

class QWindow;

namespace tarvo {

const QColor trayColour(0, 254, 0); // as trayer mixes it

/// The tray that is installed, with icons of @p size x @p size pixels on @ref trayColour.
std::unique_ptr<Program> startTray(int size);

/// A panel that hosts StatusNotifierItems, and whose XEmbed tray was taken from it.
std::unique_ptr<Program> startNotifierPanel();

/// Registers this process with the watcher as having an item.
void offerItem();

/// @return what writes a line for each call or signal that @p rule takes in
std::unique_ptr<Program> monitorBus(const std::string &rule);

/// Makes @p window, for as long as it lives, a tray that takes no icon in.
void takeTraySelection(QWindow &window);

} // namespace tarvo
