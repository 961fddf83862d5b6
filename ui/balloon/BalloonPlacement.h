#pragma once

#include "ui/balloon/BalloonGeometry.h"

namespace tarvo {

/// Where a balloon points, and from which side.
struct BalloonPlacement {
    QPointF point; ///< on the screen, y upwards; the arrow's tip keeps the distance from it
    OvSide side = OvSide::Bottom; ///< never `Automatic`

    bool operator==(const BalloonPlacement &) const = default;
};

/// Finds a place for a balloon that points at an icon and is wholly visible on the icon's screen.
///
/// Below the icon, from the middle of its lower edge, where that fits; an icon in a panel at another edge of the screen
/// gets it on the side away from that edge. It moves along the icon as far as it must. Where nothing fits, the place is
/// used that has to be moved the least.
/// All rectangles have y upwards.
/// @param workArea  the part of @p screen that no panel covers
BalloonPlacement placeBalloon(const BalloonShape &shape, QSizeF view, const OvRect &icon, float distance,
                              const OvRect &screen, const OvRect &workArea);

/// Finds a place, without a distance, for a balloon that points at nothing: @p margin from the corner of @p workArea in
/// which the panel's icons usually are.
/// @param rightToLeft  whether panels are laid out from the right to the left
BalloonPlacement placeBalloonInCorner(const BalloonShape &shape, QSizeF view, const OvRect &screen,
                                      const OvRect &workArea, float margin, bool rightToLeft);

} // namespace tarvo
