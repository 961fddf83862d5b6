#pragma once

#include "setup/Chain.h"

#include <QIcon>
#include <QString>

namespace tarvo {

/// @return the picture of @p mark; marks differ in shape, not only in colour
QIcon markIcon(Mark mark);

/// @return what the picture says, in the user's language
QString markText(Mark mark);

} // namespace tarvo
