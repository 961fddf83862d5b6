#include "ui/BalloonPlacement.h"

#include <gtest/gtest.h>

using namespace tarvo;

namespace {

constexpr QSizeF view(200, 40);
constexpr OvRect screen{100, 50, 1000, 800}; // a second monitor: its corner is not the origin

} // namespace

TEST(BalloonPlacement, PointsAtTheIconFromWhereItFits)
{
    struct Case {
        const char *what;
        OvRect icon;
        OvRect workArea;
        OvSide side;
        QPointF point;
    };
    const OvRect top{100, 50, 1000, 770};
    const OvRect bottom{100, 80, 1000, 770};
    const OvRect left{140, 50, 960, 800};
    const OvRect right{100, 50, 960, 800};
    const Case cases[] = {
        {"top panel", {600, 823, 24, 24}, top, OvSide::Bottom, {612, 823}},
        {"top panel, towards its right end", {1050, 823, 24, 24}, top, OvSide::BottomLeft, {1062, 823}},
        {"top panel, towards its left end", {120, 823, 24, 24}, top, OvSide::BottomRight, {132, 823}},
        {"top panel, in the corner", {1076, 823, 24, 24}, top, OvSide::BottomLeft, {1082, 823}},
        {"bottom panel", {600, 53, 24, 24}, bottom, OvSide::Top, {612, 77}},
        {"bottom panel that keeps no space", {600, 53, 24, 24}, screen, OvSide::Top, {612, 77}},
        {"left panel", {105, 400, 24, 24}, left, OvSide::Right, {129, 412}},
        {"left panel, at its foot", {105, 53, 24, 24}, left, OvSide::RightTop, {129, 68}},
        {"right panel", {1070, 400, 24, 24}, right, OvSide::Left, {1070, 412}},
        {"in a window", {600, 400, 24, 24}, top, OvSide::Bottom, {612, 400}},
    };
    for (const Case &c : cases) {
        const BalloonPlacement placement = placeBalloon({}, view, c.icon, 5, screen, c.workArea);
        EXPECT_EQ(placement.side, c.side) << c.what;
        EXPECT_EQ(placement.point, c.point) << c.what;
        EXPECT_TRUE(screen.contains(layOutBalloon({}, view, placement.point, placement.side, 5).window)) << c.what;
    }
}

TEST(BalloonPlacement, UsesTheCornerNextToThePanelWhereTheIconIsUnknown)
{
    struct Case {
        const char *what;
        OvRect workArea;
        bool rightToLeft;
        OvRect window;
    };
    const Case cases[] = {
        {"top panel", {100, 50, 1000, 770}, false, {886, 766, 204, 44}},
        {"top panel, right to left", {100, 50, 1000, 770}, true, {110, 766, 204, 44}},
        {"bottom panel", {100, 80, 1000, 770}, false, {886, 90, 204, 44}},
        {"left panel", {140, 50, 960, 800}, false, {150, 60, 204, 44}},
        {"right panel", {100, 50, 960, 800}, true, {846, 60, 204, 44}},
        {"no panel", screen, false, {886, 796, 204, 44}},
    };
    const BalloonShape shape{.arrowHeight = 0, .hasArrow = false};
    for (const Case &c : cases) {
        const auto placement = placeBalloonInCorner(shape, view, screen, c.workArea, 10, c.rightToLeft);
        EXPECT_EQ(layOutBalloon(shape, view, placement.point, placement.side, 0).window, c.window) << c.what;
    }
}
