#include "ui/balloon/BalloonGeometry.h"

#include <QPolygonF>

#include <gtest/gtest.h>

#include <tuple>

using namespace tarvo;

namespace {

constexpr QSizeF view(100, 40);
constexpr OvRect screen{0, 0, 1000, 800};
constexpr OvRect narrow{0, 0, 120, 800};

} // namespace

TEST(BalloonGeometry, LaysOutAndOutlinesEachSide)
{
    struct Case {
        OvSide side;
        OvRect window; ///< for the point (500, 800) at the distance 3
        QPointF view;
        QPointF tip; ///< in the window, like the next
        QPointF corner; ///< the one beside the arrow; the tip when there is none
    };
    const Case cases[] = {
        {OvSide::Left, {377, 778, 120, 44}, {2, 2}, {120, 22}, {120, 22}},
        {OvSide::Bottom, {448, 737, 104, 60}, {2, 2}, {52, 60}, {52, 60}},
        {OvSide::Right, {503, 778, 120, 44}, {18, 2}, {0, 22}, {0, 22}},
        {OvSide::Top, {448, 803, 104, 60}, {2, 18}, {52, 0}, {52, 0}},
        {OvSide::LeftTop, {377, 782, 120, 44}, {2, 2}, {120, 18}, {104, 0}},
        {OvSide::LeftBottom, {377, 774, 120, 44}, {2, 2}, {120, 26}, {104, 44}},
        {OvSide::RightTop, {503, 782, 120, 44}, {18, 2}, {0, 18}, {16, 0}},
        {OvSide::RightBottom, {503, 774, 120, 44}, {18, 2}, {0, 26}, {16, 44}},
        {OvSide::TopLeft, {414, 803, 104, 60}, {2, 18}, {86, 0}, {104, 16}},
        {OvSide::TopRight, {482, 803, 104, 60}, {2, 18}, {18, 0}, {0, 16}},
        {OvSide::BottomLeft, {414, 737, 104, 60}, {2, 2}, {86, 60}, {104, 44}},
        {OvSide::BottomRight, {482, 737, 104, 60}, {2, 2}, {18, 60}, {0, 44}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(static_cast<int>(c.side));
        const BalloonLayout layout = layOutBalloon({}, view, {500, 800}, c.side, 3);
        EXPECT_EQ(layout, (BalloonLayout{c.window, {c.view.x(), c.view.y(), 100, 40}}));
        const auto outline = [&](const BalloonShape &shape) {
            return balloonOutline(shape, layout.view, c.side).toFillPolygon();
        };
        EXPECT_EQ(outline({}).boundingRect(), QRectF(0, 0, c.window.width, c.window.height));
        EXPECT_TRUE(outline({}).contains(c.tip));
        EXPECT_EQ(outline({}).contains(c.corner), c.corner == c.tip) << "rounded";
        EXPECT_TRUE(outline({.drawsRoundCornerBesideArrow = false}).contains(c.corner));
        EXPECT_EQ(outline({.hasArrow = false}).boundingRect().size(), QSizeF(104, 44));
    }
}

TEST(BalloonGeometry, ChoosesTheSideThatFits)
{
    // The balloon is 104 x 44, with 16 for the arrow; the inset beside a corner is 18.
    const std::tuple<QPointF, OvRect, OvRect, OvSide> cases[] = {
        {{500, 60}, screen, screen, OvSide::Bottom},
        {{880, 59}, screen, screen, OvSide::Left},
        {{72, 30}, narrow, narrow, OvSide::Top},
        {{60, 30}, {}, {}, OvSide::Bottom},
        {{948, 800}, screen, screen, OvSide::BottomLeft},
        {{52, 800}, screen, screen, OvSide::Bottom},
        {{51, 800}, screen, screen, OvSide::BottomRight},
        {{700, 800}, screen, {600, 0, 140, 800}, OvSide::BottomLeft},
        {{110, 30}, narrow, narrow, OvSide::TopLeft},
        {{100, 10}, screen, screen, OvSide::RightTop},
        {{900, 55}, screen, {0, 0, 1000, 60}, OvSide::LeftBottom},
    };
    for (const auto &[point, visible, reference, side] : cases)
        EXPECT_EQ(bestBalloonSide({}, view, point, 0, visible, reference), side) << point.x();
    EXPECT_EQ(bestBalloonSide({}, view, {500, 60}, 1, screen, screen), OvSide::Right) << "the distance counts";
}

TEST(BalloonGeometry, KeepsMeasuresWithinEachOther)
{
    BalloonShape shape;
    shape.setBorderWidth(5);
    EXPECT_EQ(shape.borderWidth, 2) << "never wider than the margin";
    shape.setCornerRadius(100, view);
    EXPECT_EQ(shape.cornerRadius, 12);
    shape.setArrowBaseWidth(100, view);
    EXPECT_EQ(shape.arrowBaseWidth, 20);
    shape.setViewMargin(-1, {20, 20});
    EXPECT_EQ(shape.viewMargin, 0);
    EXPECT_EQ(shape.cornerRadius, 0) << "the arrow leaves no room for corners";

    shape = {.drawsRoundCornerBesideArrow = false};
    EXPECT_EQ(shape.arrowInset(), 10);
    shape.setArrowBaseWidth(100, view);
    EXPECT_EQ(shape.arrowBaseWidth, 36);
}
