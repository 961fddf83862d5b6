#include "ui/balloon/BalloonPlacement.h"

#include <gtest/gtest.h>

#include <tuple>

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
    const std::tuple<QPointF, OvRect, BalloonPlacement> cases[] = {
        {{600, 823}, belowTopPanel, {{612, 823}, OvSide::Bottom}},
        {{120, 823}, belowTopPanel, {{132, 823}, OvSide::BottomRight}},
        {{1076, 823}, belowTopPanel, {{1082, 823}, OvSide::BottomLeft}},
        {{600, 53}, aboveBottomPanel, {{612, 77}, OvSide::Top}},
        {{600, 53}, screen, {{612, 77}, OvSide::Top}},
        {{105, 400}, besideLeftPanel, {{129, 412}, OvSide::Right}},
        {{105, 53}, besideLeftPanel, {{129, 68}, OvSide::RightTop}},
        {{1070, 400}, besideRightPanel, {{1070, 412}, OvSide::Left}},
    };
    for (const auto &[icon, workArea, placement] : cases)
        EXPECT_EQ(placeBalloon({}, view, {icon.x(), icon.y(), 24, 24}, 5, screen, workArea), placement)
            << icon.x() << ' ' << icon.y();
}

TEST(BalloonPlacement, UsesTheCornerNextToThePanelWhereTheIconIsUnknown)
{
    const std::tuple<OvRect, bool, QPointF> cases[] = {
        {belowTopPanel, false, {886, 766}},   {belowTopPanel, true, {110, 766}},   {screen, false, {886, 796}},
        {aboveBottomPanel, false, {886, 90}}, {besideLeftPanel, false, {150, 60}}, {besideRightPanel, true, {846, 60}},
    };
    const BalloonShape shape{.arrowHeight = 0, .hasArrow = false};
    for (const auto &[workArea, rightToLeft, lowerLeft] : cases) {
        const auto place = placeBalloonInCorner(shape, view, screen, workArea, 10, rightToLeft);
        EXPECT_EQ(layOutBalloon(shape, view, place.point, place.side, 0).window,
                  (OvRect{lowerLeft.x(), lowerLeft.y(), 204, 44}));
    }
}
