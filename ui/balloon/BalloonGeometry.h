#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <cstdint>

namespace tarvo {

/// Where a balloon lies relative to the point that it points at. The second word of the longer names says which way it
/// extends from there, with the arrow beside a corner; otherwise the arrow is in the middle of its edge.
enum class OvSide : std::int32_t {
    Left = 0,
    Bottom = 1,
    Right = 2,
    Top = 3,
    LeftTop = 4,
    LeftBottom = 5,
    RightTop = 6,
    RightBottom = 7,
    TopLeft = 8,
    TopRight = 9,
    BottomLeft = 10,
    BottomRight = 11,
    Automatic = 12,
};

/// A rectangle in coordinates whose y grows upwards; @p x and @p y are its lower left corner. All zero by itself.
struct OvRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    // The coordinates of the upper right corner and of the middle.
    double maxX() const { return x + width; }
    double maxY() const { return y + height; }
    double midX() const { return x + width * 0.5; }
    double midY() const { return y + height * 0.5; }
    /// @return whether all of @p other lies in it, edges included
    bool contains(const OvRect &other) const;
    /// @return the rectangle with @p margin more on each side
    OvRect grownBy(double margin) const;

    bool operator==(const OvRect &) const = default;
};

/// @return @p rect, whose y grows downwards, in coordinates whose y grows upwards from the same origin
OvRect flipped(const QRectF &rect);

/// The measures of a balloon, in points.
struct BalloonShape {
    float borderWidth = 2; ///< drawn inside the outline
    float viewMargin = 2; ///< between the content and the outline
    float arrowBaseWidth = 20; ///< along the edge that carries the arrow
    float arrowHeight = 16; ///< from base to tip
    bool hasArrow = true; ///< without it, its room stays
    float cornerRadius = 8; ///< of the outline
    bool drawsRoundCornerBesideArrow = true; ///< otherwise the corner beside an arrow is square

    bool operator==(const BalloonShape &) const = default;

    /// The largest border is the margin of the moment. Here and with the margin, an equal value changes nothing.
    void setBorderWidth(float value);
    /// Never negative; corner radius and arrow are fitted to it again.
    void setViewMargin(float value, QSizeF view);
    /// At most what leaves the arrow its base on the shorter edge of a balloon around @p view.
    void setCornerRadius(float value, QSizeF view);
    /// At most what the corners leave on the shorter edge.
    void setArrowBaseWidth(float value, QSizeF view);

    /// @return the distance from the arrow's centre line to the balloon's corner where the arrow is beside a corner
    float arrowInset() const;
};

/// A balloon's window on the screen, and the frame of the content in that window.
struct BalloonLayout {
    OvRect window; ///< on the screen, y upwards
    OvRect view; ///< from the window's lower left corner

    bool operator==(const BalloonLayout &) const = default;
};

/// @return the layout of a balloon around a content of the size @p view, whose arrow's tip is @p distance from @p point
BalloonLayout layOutBalloon(const BalloonShape &shape, QSizeF view, QPointF point, OvSide side, float distance);

/// @return the side on which a balloon fits on @p screen, below the point if possible; towards the middle of
///         @p reference where the centred balloon would reach over its edge
OvSide bestBalloonSide(const BalloonShape &shape, QSizeF view, QPointF point, float distance, const OvRect &screen,
                       const OvRect &reference);

/// @return the balloon's outline in window coordinates, y upwards, clockwise from the top left
QPainterPath balloonOutline(const BalloonShape &shape, const OvRect &viewFrame, OvSide side);

} // namespace tarvo
