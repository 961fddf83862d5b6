#include "ui/BalloonGeometry.h"

#include <QPolygonF>

#include <gtest/gtest.h>

#include <ostream>

namespace tarvo {

static void PrintTo(const OvRect &rect, std::ostream *out)
{
    *out << rect.x << ',' << rect.y << ' ' << rect.width << 'x' << rect.height;
}

} // namespace tarvo

using namespace tarvo;

namespace {

constexpr QSizeF view(100, 40);
constexpr OvRect screen{0, 0, 1000, 800};

} // namespace

TEST(BalloonGeometry, LaysOutTheWindowOnEachSide)
{
    struct Case {
        OvSide side;
        OvRect window;
        QPointF view;
    };
    const Case cases[] = {
        {OvSide::Left, {377, 778, 120, 44}, {2, 2}},       {OvSide::Bottom, {448, 737, 104, 60}, {2, 2}},
        {OvSide::Right, {503, 778, 120, 44}, {18, 2}},     {OvSide::Top, {448, 803, 104, 60}, {2, 18}},
        {OvSide::LeftTop, {377, 782, 120, 44}, {2, 2}},    {OvSide::LeftBottom, {377, 774, 120, 44}, {2, 2}},
        {OvSide::RightTop, {503, 782, 120, 44}, {18, 2}},  {OvSide::RightBottom, {503, 774, 120, 44}, {18, 2}},
        {OvSide::TopLeft, {414, 803, 104, 60}, {2, 18}},   {OvSide::TopRight, {482, 803, 104, 60}, {2, 18}},
        {OvSide::BottomLeft, {414, 737, 104, 60}, {2, 2}}, {OvSide::BottomRight, {482, 737, 104, 60}, {2, 2}},
    };
    for (const Case &c : cases) {
        const BalloonLayout layout = layOutBalloon({}, view, {500, 800}, c.side, 3);
        EXPECT_EQ(layout.window, c.window) << static_cast<int>(c.side);
        EXPECT_EQ(layout.view, (OvRect{c.view.x(), c.view.y(), 100, 40})) << static_cast<int>(c.side);
    }
    EXPECT_EQ(layOutBalloon({.hasArrow = false}, view, {500, 800}, OvSide::Bottom, 0).window,
              (OvRect{448, 740, 104, 60}))
        << "without the arrow its room stays";
    EXPECT_EQ(layOutBalloon({}, {100.1, 40}, {0, 0}, OvSide::Bottom, 0).window.x,
              -static_cast<double>(static_cast<float>(104.1 * 0.5)))
        << "the half is taken in single precision";
}

TEST(BalloonGeometry, ChoosesTheSideThatFits)
{
    struct Case {
        const char *what;
        QPointF point;
        OvRect screen;
        OvRect reference;
        OvSide side;
    };
    // The balloon is 104 x 44, with 16 for the arrow; the inset beside a corner is 18.
    const Case cases[] = {
        {"room below", {500, 800}, screen, screen, OvSide::Bottom},
        {"just room below", {500, 60}, screen, screen, OvSide::Bottom},
        {"no room below", {500, 59}, screen, screen, OvSide::Right},
        {"no room below or right", {880, 59}, screen, screen, OvSide::Left},
        {"narrow screen, room above", {60, 30}, {0, 0, 120, 800}, {0, 0, 120, 800}, OvSide::Top},
        {"no screen", {60, 30}, {}, {}, OvSide::Bottom},
        {"below, over the right edge", {949, 800}, screen, screen, OvSide::BottomLeft},
        {"below, over the left edge", {51, 800}, screen, screen, OvSide::BottomRight},
        {"below, touching the right edge", {948, 800}, screen, screen, OvSide::BottomLeft},
        {"below, touching the left edge", {52, 800}, screen, screen, OvSide::Bottom},
        {"over the right edge of a window", {700, 800}, screen, {600, 0, 140, 800}, OvSide::BottomLeft},
        {"above, over the right edge", {72, 30}, {0, 0, 120, 800}, {0, 0, 120, 800}, OvSide::Top},
        {"above, over the right edge, room to the left",
         {110, 30},
         {0, 0, 120, 800},
         {0, 0, 120, 800},
         OvSide::TopLeft},
        {"above, over the left edge", {10, 30}, {0, 0, 120, 800}, {0, 0, 120, 800}, OvSide::TopRight},
        {"right, over the lower edge", {100, 10}, screen, screen, OvSide::RightTop},
        {"left, over the lower edge", {900, 10}, screen, screen, OvSide::LeftTop},
        {"right, over the lower edge, no room upwards", {100, 40}, {0, 0, 1000, 50}, {0, 30, 1000, 20}, OvSide::Right},
        {"right, over a window's upper edge", {100, 55}, screen, {0, 0, 1000, 60}, OvSide::RightBottom},
        {"left, over a window's upper edge", {900, 55}, screen, {0, 0, 1000, 60}, OvSide::LeftBottom},
    };
    for (const Case &c : cases)
        EXPECT_EQ(bestBalloonSide({}, view, c.point, 0, c.screen, c.reference), c.side) << c.what;
    EXPECT_EQ(bestBalloonSide({}, view, {500, 60}, 1, screen, screen), OvSide::Right) << "the distance counts";
}

TEST(BalloonGeometry, KeepsMeasuresWithinEachOther)
{
    BalloonShape shape;
    EXPECT_EQ(shape.arrowInset(), 18);
    shape.setBorderWidth(5);
    EXPECT_EQ(shape.borderWidth, 2) << "never wider than the margin";
    shape.setCornerRadius(100, view);
    EXPECT_EQ(shape.cornerRadius, 12);
    EXPECT_EQ(shape.arrowBaseWidth, 20);
    shape.setArrowBaseWidth(100, view);
    EXPECT_EQ(shape.arrowBaseWidth, 20);
    shape.setCornerRadius(-1, view);
    EXPECT_EQ(shape.cornerRadius, 0);
    shape.setArrowBaseWidth(100, view);
    EXPECT_EQ(shape.arrowBaseWidth, 44);

    shape = {};
    shape.setViewMargin(-1, {20, 20});
    EXPECT_EQ(shape.viewMargin, 0);
    EXPECT_EQ(shape.cornerRadius, 0) << "the arrow leaves no room for corners";
    EXPECT_EQ(shape.borderWidth, 2) << "an earlier border is not looked at again";
    shape.setBorderWidth(1);
    EXPECT_EQ(shape.borderWidth, 0);

    shape = {.drawsRoundCornerBesideArrow = false};
    EXPECT_EQ(shape.arrowInset(), 10);
    shape.setArrowBaseWidth(100, view);
    EXPECT_EQ(shape.arrowBaseWidth, 36);
}

TEST(BalloonGeometry, OutlinePutsTheArrowWhereTheSideSays)
{
    struct Case {
        OvSide side;
        QPointF tip;
        QPointF squareCorner{}; ///< rounded, unless corners beside the arrow are not
    };
    const Case cases[] = {
        {OvSide::Left, {120, 22}},
        {OvSide::Bottom, {52, 60}},
        {OvSide::Right, {0, 22}},
        {OvSide::Top, {52, 0}},
        {OvSide::LeftTop, {120, 18}, {104, 0}},
        {OvSide::LeftBottom, {120, 26}, {104, 44}},
        {OvSide::RightTop, {0, 18}, {16, 0}},
        {OvSide::RightBottom, {0, 26}, {16, 44}},
        {OvSide::TopLeft, {86, 0}, {104, 16}},
        {OvSide::TopRight, {18, 0}, {0, 16}},
        {OvSide::BottomLeft, {86, 60}, {104, 44}},
        {OvSide::BottomRight, {18, 60}, {0, 44}},
    };
    for (const Case &c : cases) {
        const auto outline = [&](const BalloonShape &shape) {
            return balloonOutline(shape, layOutBalloon(shape, view, {}, c.side, 0).view, c.side).toFillPolygon();
        };
        const BalloonLayout layout = layOutBalloon({}, view, {}, c.side, 0);
        EXPECT_TRUE(outline({}).contains(c.tip)) << static_cast<int>(c.side);
        EXPECT_EQ(outline({}).boundingRect(), QRectF(0, 0, layout.window.width, layout.window.height));
        EXPECT_EQ(c.tip, QPointF(-layout.window.x, -layout.window.y)) << "the tip touches the point";
        EXPECT_EQ(outline({.hasArrow = false}).boundingRect().size(), QSizeF(104, 44));
        EXPECT_FALSE(outline({}).contains(c.squareCorner));
        const QPointF corner = c.squareCorner.isNull() ? c.tip : c.squareCorner;
        EXPECT_TRUE(outline({.drawsRoundCornerBesideArrow = false}).contains(corner)) << static_cast<int>(c.side);
    }
}

TEST(BalloonGeometry, OutlineRunsClockwiseFromTheTopLeft)
{
    const QPolygonF outline =
        balloonOutline({.hasArrow = false, .cornerRadius = 0}, {2, 2, 100, 40}, OvSide::Bottom).toFillPolygon();
    EXPECT_EQ(outline, (QPolygonF{{0, 44}, {52 - 10, 44}, {104, 44}, {104, 0}, {0, 0}, {0, 44}}));
}
