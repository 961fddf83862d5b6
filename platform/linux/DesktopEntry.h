#pragma once

#include <QByteArray>
#include <QStringList>

namespace tarvo {

/// Reads the command of an application's desktop file, for a start without files or addresses.
///
/// See the freedesktop.org Desktop Entry Specification, "The Exec key". Field codes are left out.
/// @return the program and its arguments; empty when there is no command that can be run
QStringList commandOfDesktopEntry(const QByteArray &contents);

} // namespace tarvo
