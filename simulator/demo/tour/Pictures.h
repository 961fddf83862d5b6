#pragma once

#include <QImage>
#include <QPixmap>
#include <QRect>

namespace tarvo {

/// @return what the screen shows in @p part, which is in the application's coordinates
QPixmap screenPicture(const QRect &part);

/// @return whether @p image has no pixels, or all of one colour
bool isPlain(const QImage &image);

/// @return whether the screen shows more than one plain colour in @p part
bool isDrawnIn(const QRect &part);

} // namespace tarvo
