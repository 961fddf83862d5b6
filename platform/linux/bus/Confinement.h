#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace tarvo {

class BusConnection;

/// Finds out whether the program that owns @p caller, a unique name on the bus, runs in a sandbox: in one of Flatpak's,
/// whose root has a file that says so, or as a snap, which has a label of its own. The proxy that speaks for a program in
/// a sandbox is in one, too. Who is gone by then counts as confined.
/// @param answered  given the answer later, unless @p bus or @p receiver is gone by then
void askWhetherConfined(BusConnection &bus, const QString &caller, QObject *receiver,
                        const std::function<void(bool isConfined)> &answered);

} // namespace tarvo
