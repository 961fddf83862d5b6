#pragma once

#include <QIcon>
#include <QString>

namespace tarvo {

/// @return the image that the desktop's icon theme has as `tarvo-<name>` (freedesktop Icon Theme standard), else, or
///         when that cannot be drawn, the one that the program carries; a null icon for an unknown name
QIcon imageNamed(const QString &name);

/// @return the application's own icon, in the same way
QIcon applicationImage();

} // namespace tarvo
