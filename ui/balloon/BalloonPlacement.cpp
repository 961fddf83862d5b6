#include "ui/balloon/BalloonPlacement.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvo {

namespace {

using Sides = std::array<OvSide, 3>;

constexpr Sides below = {OvSide::Bottom, OvSide::BottomLeft, OvSide::BottomRight};
constexpr Sides above = {OvSide::Top, OvSide::TopLeft, OvSide::TopRight};
constexpr Sides right = {OvSide::Right, OvSide::RightTop, OvSide::RightBottom};
constexpr Sides left = {OvSide::Left, OvSide::LeftTop, OvSide::LeftBottom};

/// @return the sides to try, the one away from the panel first
std::array<Sides, 4> sidesInOrder(const OvRect &icon, const OvRect &workArea)
{
    if (icon.midY() < workArea.y)
        return {above, below, right, left};
    if (icon.midY() <= workArea.maxY() && icon.midX() < workArea.x)
        return {right, below, above, left};
    if (icon.midY() <= workArea.maxY() && icon.midX() > workArea.maxX())
        return {left, below, above, right};
    return {below, above, right, left};
}

QPointF anchor(const OvRect &icon, const Sides &sides)
{
    if (sides == above)
        return {icon.midX(), icon.maxY()};
    if (sides == right)
        return {icon.maxX(), icon.midY()};
    if (sides == left)
        return {icon.x, icon.midY()};
    return {icon.midX(), icon.y};
}

/// @return how far a stretch must move to lie inside another; its start wins where it is too long
double shiftInto(double start, double length, double outerStart, double outerEnd)
{
    return std::max(outerStart, std::min(start, outerEnd - length)) - start;
}

QPointF shiftInto(const OvRect &window, const OvRect &screen)
{
    return {shiftInto(window.x, window.width, screen.x, screen.maxX()),
            shiftInto(window.y, window.height, screen.y, screen.maxY())};
}

struct Candidate {
    BalloonPlacement placement;
    double shift = HUGE_VAL; ///< how far it had to be moved
    bool pointsAtIcon = false;
};

/// @return the place, of those at one edge of the icon, that had to be moved the least
Candidate bestPlaceAtEdge(const Sides &sides, const BalloonShape &shape, QSizeF view, const OvRect &icon,
                          float distance, const OvRect &screen)
{
    const bool level = sides == below || sides == above;
    const QPointF point = anchor(icon, sides);
    Candidate best;
    for (const OvSide side : sides) {
        const QPointF shift = shiftInto(layOutBalloon(shape, view, point, side, distance).window, screen);
        if (shift.manhattanLength() >= best.shift)
            continue;
        const double along = std::abs(level ? shift.x() : shift.y());
        const double away = std::abs(level ? shift.y() : shift.x());
        const double reach = (level ? icon.width : icon.height) * 0.5;
        best = {{point + shift, side}, shift.manhattanLength(), away == 0 && along <= reach};
    }
    return best;
}

} // namespace

BalloonPlacement placeBalloon(const BalloonShape &shape, QSizeF view, const OvRect &icon, float distance,
                              const OvRect &screen, const OvRect &workArea)
{
    Candidate best;
    for (const Sides &sides : sidesInOrder(icon, workArea)) {
        const Candidate candidate = bestPlaceAtEdge(sides, shape, view, icon, distance, screen);
        if (candidate.pointsAtIcon)
            return candidate.placement;
        if (candidate.shift < best.shift)
            best = candidate;
    }
    return best.placement;
}

BalloonPlacement placeBalloonInCorner(const BalloonShape &shape, QSizeF view, const OvRect &screen,
                                      const OvRect &workArea, float margin, bool rightToLeft)
{
    const double top = screen.maxY() - workArea.maxY();
    const double bottom = workArea.y - screen.y;
    const double leftEdge = workArea.x - screen.x;
    const double rightEdge = screen.maxX() - workArea.maxX();
    const double sides = std::max(leftEdge, rightEdge);

    const bool atBottom = std::max(bottom, sides) > top;
    const bool atLeft = sides > std::max(top, bottom) ? leftEdge > rightEdge : rightToLeft;
    const BalloonLayout size = layOutBalloon(shape, view, {}, OvSide::Bottom, 0);
    const double inset = static_cast<double>(margin) + size.window.width * 0.5;
    return {{atLeft ? workArea.x + inset : workArea.maxX() - inset,
             atBottom ? workArea.y + static_cast<double>(margin) + size.window.height
                      : workArea.maxY() - static_cast<double>(margin)},
            OvSide::Bottom};
}

} // namespace tarvo
