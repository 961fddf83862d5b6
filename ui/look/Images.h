#pragma once

#include <QIcon>
#include <QString>

namespace tarvo {

/// @return the image of a state, which the program carries as `tarvo-<name>`, crisp at the sizes of panels; a null icon
///         for an unknown name
QIcon imageNamed(const QString &name);

/// @return the application's icon, which the program carries
QIcon applicationImage();

} // namespace tarvo
