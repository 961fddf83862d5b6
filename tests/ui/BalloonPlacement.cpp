#include "ui/BalloonPlacement.h"

#include <gtest/gtest.h>

using namespace tarvo;

namespace {

constexpr QSizeF view(200, 40);
constexpr OvRect screen{100, 50, 1000, 800}; // a second monitor: its corner is not the origin
constexpr OvRect belowTopPanel{100, 50, 1000, 770};
constexpr OvRect aboveBottomPanel{100, 80, 1000, 770};
constexpr OvRect besideLeftPanel{140, 50, 960, 800};
constexpr OvRect besideRightPanel{100, 50, 960, 800};

} // namespace

TEST(BalloonPlacement, PointsAtTheIconFromWhereItFits)
{
    struct Case {
        QPointF icon;
        OvRect workArea;
        OvSide side;
        QPointF point;
    };
    const Case cases[] = {
        {{600, 823}, belowTopPanel, OvSide::Bottom, {612, 823}},
        {{1050, 823}, belowTopPanel, OvSide::BottomLeft, {1062, 823}},
        {{120, 823}, belowTopPanel, OvSide::BottomRight, {132, 823}},
        {{1076, 823}, belowTopPanel, OvSide::BottomLeft, {1082, 823}},
        {{600, 53}, aboveBottomPanel, OvSide::Top, {612, 77}},
        {{600, 53}, screen, OvSide::Top, {612, 77}},
        {{105, 400}, besideLeftPanel, OvSide::Right, {129, 412}},
        {{105, 53}, besideLeftPanel, OvSide::RightTop, {129, 68}},
        {{1070, 400}, besideRightPanel, OvSide::Left, {1070, 412}},
    };
    for (const Case &c : cases) {
        const auto placement = placeBalloon({}, view, {c.icon.x(), c.icon.y(), 24, 24}, 5, screen, c.workArea);
        EXPECT_EQ(placement, (BalloonPlacement{c.point, c.side})) << c.icon.x() << ' ' << c.icon.y();
        EXPECT_TRUE(screen.contains(layOutBalloon({}, view, placement.point, placement.side, 5).window));
    }
}

TEST(BalloonPlacement, UsesTheCornerNextToThePanelWhereTheIconIsUnknown)
{
    struct Case {
        OvRect workArea;
        bool rightToLeft;
        QPointF corner; ///< the window's lower left one
    };
    const Case cases[] = {
        {belowTopPanel, false, {886, 766}},   {belowTopPanel, true, {110, 766}},   {screen, false, {886, 796}},
        {aboveBottomPanel, false, {886, 90}}, {besideLeftPanel, false, {150, 60}}, {besideRightPanel, true, {846, 60}},
    };
    const BalloonShape shape{.arrowHeight = 0, .hasArrow = false};
    for (const Case &c : cases) {
        const auto place = placeBalloonInCorner(shape, view, screen, c.workArea, 10, c.rightToLeft);
        EXPECT_EQ(layOutBalloon(shape, view, place.point, place.side, 0).window,
                  (OvRect{c.corner.x(), c.corner.y(), 204, 44}));
    }
}
