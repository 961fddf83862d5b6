#pragma once

#include "setup/checks/Chain.h"

#include <QIcon>

namespace tarvo {

/// @return the picture of @p mark; marks differ in shape, not only in colour
QIcon markIcon(Mark mark);

} // namespace tarvo
