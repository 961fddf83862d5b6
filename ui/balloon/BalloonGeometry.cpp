#include "ui/balloon/BalloonGeometry.h"

#include <algorithm>

namespace tarvo {

namespace {

/// The edge of the balloon that carries the arrow, in the order in which the outline runs.
enum class Edge { Top, Right, Bottom, Left };

Edge arrowEdge(OvSide side)
{
    switch (side) {
    case OvSide::Left:
    case OvSide::LeftTop:
    case OvSide::LeftBottom:
        return Edge::Right;
    case OvSide::Right:
    case OvSide::RightTop:
    case OvSide::RightBottom:
        return Edge::Left;
    case OvSide::Top:
    case OvSide::TopLeft:
    case OvSide::TopRight:
        return Edge::Bottom;
    default:
        return Edge::Top;
    }
}

/// @return half of @p length, in single precision
double halfOf(double length)
{
    return static_cast<double>(static_cast<float>(length * 0.5));
}

double shorterEdge(const BalloonShape &shape, QSizeF view)
{
    return std::min(view.width(), view.height()) + 2 * static_cast<double>(shape.viewMargin);
}

QPointF windowOrigin(OvSide side, QPointF p, double w, double h, double inset, double d)
{
    switch (side) {
    case OvSide::Left:
        return {p.x() - w - d, p.y() - halfOf(h)};
    case OvSide::Right:
        return {p.x() + d, p.y() - halfOf(h)};
    case OvSide::Top:
        return {p.x() - halfOf(w), p.y() + d};
    case OvSide::LeftTop:
        return {p.x() - w - d, p.y() - inset};
    case OvSide::LeftBottom:
        return {p.x() - w - d, p.y() - (h - inset)};
    case OvSide::RightTop:
        return {p.x() + d, p.y() - inset};
    case OvSide::RightBottom:
        return {p.x() + d, p.y() - (h - inset)};
    case OvSide::TopLeft:
        return {p.x() - (w - inset), p.y() + d};
    case OvSide::TopRight:
        return {p.x() - inset, p.y() + d};
    case OvSide::BottomLeft:
        return {p.x() - (w - inset), p.y() - h - d};
    case OvSide::BottomRight:
        return {p.x() - inset, p.y() - h - d};
    default:
        return {p.x() - halfOf(w), p.y() - h - d};
    }
}

OvSide refineAcross(OvSide side, QPointF p, double w, double inset, const OvRect &screen, const OvRect &reference)
{
    const bool below = side == OvSide::Bottom;
    const double half = halfOf(w);
    if (p.x() - half >= reference.x) {
        if (p.x() + half >= reference.maxX() && p.x() - w + inset >= screen.x)
            return below ? OvSide::BottomLeft : OvSide::TopLeft;
    } else if (screen.maxX() > p.x() + w - inset) {
        return below ? OvSide::BottomRight : OvSide::TopRight;
    }
    return side;
}

OvSide refineUpAndDown(OvSide side, QPointF p, double h, double inset, const OvRect &screen, const OvRect &reference)
{
    const bool left = side == OvSide::Left;
    const double half = halfOf(h);
    if (reference.y > p.y() - half) {
        if (screen.maxY() > p.y() + h - inset)
            return left ? OvSide::LeftTop : OvSide::RightTop;
    } else if (p.y() + half >= reference.maxY() && p.y() - h + inset >= screen.y) {
        return left ? OvSide::LeftBottom : OvSide::RightBottom;
    }
    return side;
}

/// One edge of the outline: which way it runs, where it ends, and which sides put the arrow where on it.
struct OutlineEdge {
    QPointF along;
    QPointF outward;
    OvSide arrowInMiddle;
    OvSide arrowAtStart;
    OvSide arrowAtEnd;
    OvSide arrowAfterCorner; ///< the other side that has its arrow beside the corner at this edge's end
};

constexpr OutlineEdge outlineEdges[] = {
    {{1, 0}, {0, 1}, OvSide::Bottom, OvSide::BottomRight, OvSide::BottomLeft, OvSide::LeftBottom},
    {{0, -1}, {1, 0}, OvSide::Left, OvSide::LeftBottom, OvSide::LeftTop, OvSide::TopLeft},
    {{-1, 0}, {0, -1}, OvSide::Top, OvSide::TopLeft, OvSide::TopRight, OvSide::RightTop},
    {{0, 1}, {-1, 0}, OvSide::Right, OvSide::RightTop, OvSide::RightBottom, OvSide::BottomRight},
};

/// @return how far the outline stays away from the corner at the end of @p edge
double cornerRadiusAt(const BalloonShape &shape, const OutlineEdge &edge, OvSide side)
{
    const bool besideArrow = side == edge.arrowAtEnd || side == edge.arrowAfterCorner;
    return besideArrow && !shape.drawsRoundCornerBesideArrow ? 0.0 : static_cast<double>(shape.cornerRadius);
}

void appendArrow(QPainterPath &path, const BalloonShape &shape, const OutlineEdge &edge)
{
    if (!shape.hasArrow)
        return;
    const QPointF start = path.currentPosition();
    const auto base = static_cast<double>(shape.arrowBaseWidth);
    path.lineTo(start + edge.along * halfOf(base) + edge.outward * static_cast<double>(shape.arrowHeight));
    path.lineTo(start + edge.along * base);
}

void appendArrowOnEdge(QPainterPath &path, const BalloonShape &shape, const OutlineEdge &edge, OvSide side,
                       QPointF middle, QPointF end)
{
    const auto base = static_cast<double>(shape.arrowBaseWidth);
    if (side == edge.arrowInMiddle)
        path.lineTo(middle - edge.along * halfOf(base));
    else if (side == edge.arrowAtEnd)
        path.lineTo(end - edge.along * base);
    else if (side != edge.arrowAtStart)
        return;
    appendArrow(path, shape, edge);
}

/// Rounds the corner at the end of edge number @p index, from the current position.
void appendCorner(QPainterPath &path, QPointF corner, int index, double radius)
{
    const OutlineEdge &edge = outlineEdges[index];
    const QPointF centre = corner - (edge.along + edge.outward) * radius;
    // The path's own angles count with y downwards; seen that way each corner turns 90 degrees forward.
    path.arcTo(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius, -90.0 + 90.0 * index, 90.0);
}

} // namespace

bool OvRect::contains(const OvRect &other) const
{
    return other.x >= x && other.y >= y && other.maxX() <= maxX() && other.maxY() <= maxY();
}

OvRect OvRect::grownBy(double margin) const
{
    return {x - margin, y - margin, width + 2 * margin, height + 2 * margin};
}

OvRect flipped(const QRectF &rect)
{
    return {rect.x(), -rect.bottom(), rect.width(), rect.height()};
}

void BalloonShape::setBorderWidth(float value)
{
    if (value != borderWidth)
        borderWidth = std::min(value, viewMargin);
}

void BalloonShape::setViewMargin(float value, QSizeF view)
{
    if (value == viewMargin)
        return;
    viewMargin = std::max(value, 0.0F);
    setCornerRadius(cornerRadius, view);
}

void BalloonShape::setCornerRadius(float value, QSizeF view)
{
    const double most = (shorterEdge(*this, view) - static_cast<double>(arrowBaseWidth)) * 0.5;
    cornerRadius = std::max(std::min(value, static_cast<float>(most)), 0.0F);
    setArrowBaseWidth(arrowBaseWidth, view);
}

void BalloonShape::setArrowBaseWidth(float value, QSizeF view)
{
    const auto radius = static_cast<double>(cornerRadius);
    const double most = shorterEdge(*this, view) - radius - (drawsRoundCornerBesideArrow ? radius : 0);
    arrowBaseWidth = std::min(value, static_cast<float>(most));
}

float BalloonShape::arrowInset() const
{
    return arrowBaseWidth * 0.5F + (drawsRoundCornerBesideArrow ? cornerRadius : 0.0F);
}

BalloonLayout layOutBalloon(const BalloonShape &shape, QSizeF view, QPointF point, OvSide side, float distance)
{
    const auto margin = static_cast<double>(shape.viewMargin);
    const auto arrow = static_cast<double>(shape.arrowHeight);
    OvRect frame{margin, margin, view.width(), view.height()};
    double width = view.width() + 2 * margin;
    double height = view.height() + 2 * margin;
    const Edge edge = arrowEdge(side);
    (edge == Edge::Left || edge == Edge::Right ? width : height) += arrow;
    if (edge == Edge::Left)
        frame.x += arrow;
    if (edge == Edge::Bottom)
        frame.y += arrow;
    const QPointF origin = windowOrigin(side, point, width, height, static_cast<double>(shape.arrowInset()),
                                        static_cast<double>(distance));
    return {{origin.x(), origin.y(), width, height}, frame};
}

OvSide bestBalloonSide(const BalloonShape &shape, QSizeF view, QPointF point, float distance, const OvRect &screen,
                       const OvRect &reference)
{
    const double width = view.width() + 2 * static_cast<double>(shape.viewMargin);
    const double height = view.height() + 2 * static_cast<double>(shape.viewMargin);
    const auto gap = static_cast<double>(distance + shape.arrowHeight);
    const auto inset = static_cast<double>(shape.arrowInset());

    OvSide side = OvSide::Bottom;
    if (point.y() - height - gap >= screen.y)
        side = OvSide::Bottom;
    else if (point.x() + width + gap < screen.maxX())
        side = OvSide::Right;
    else if (point.x() - width - gap >= screen.x)
        side = OvSide::Left;
    else if (point.y() + height + gap < screen.maxY())
        side = OvSide::Top;

    return side == OvSide::Bottom || side == OvSide::Top
        ? refineAcross(side, point, width, inset, screen, reference)
        : refineUpAndDown(side, point, height, inset, screen, reference);
}

QPainterPath balloonOutline(const BalloonShape &shape, const OvRect &viewFrame, OvSide side)
{
    const OvRect body = viewFrame.grownBy(static_cast<double>(shape.viewMargin));
    const QPointF corners[] = {
        {body.maxX(), body.maxY()}, {body.maxX(), body.y}, {body.x, body.y}, {body.x, body.maxY()}};
    const QPointF middles[] = {
        {body.midX(), body.maxY()}, {body.maxX(), body.midY()}, {body.midX(), body.y}, {body.x, body.midY()}};

    QPainterPath path(corners[3] + QPointF(cornerRadiusAt(shape, outlineEdges[3], side), 0));
    for (int i = 0; i < 4; ++i) {
        const OutlineEdge &edge = outlineEdges[i];
        const double radius = cornerRadiusAt(shape, edge, side);
        const QPointF end = corners[i] - edge.along * radius;
        appendArrowOnEdge(path, shape, edge, side, middles[i], end);
        path.lineTo(end);
        if (radius > 0)
            appendCorner(path, corners[i], i, radius);
    }
    path.closeSubpath();
    return path;
}

} // namespace tarvo
