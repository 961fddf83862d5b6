#include "platform/linux/DesktopStatusBar.h"

#include "tests/platform/StatusBarFixture.h"
#include "tests/support/DesktopEnvironment.h"

#include <QDBusMessage>

#include <gtest/gtest.h>

namespace tarvo {

namespace {

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

const QColor magenta(255, 0, 255);
const QColor green(0, 255, 0);

void pointAt(const QRect &area, const std::vector<std::string> &action)
{
    std::vector<std::string> command{"xdotool", "mousemove", std::to_string(area.center().x()),
                                     std::to_string(area.center().y())};
    command.insert(command.end(), action.begin(), action.end());
    Program(command).readLine();
}

class DesktopStatusBarTest : public testing::Test {
protected:
    DesktopStatusBarTest() { item->setView(&button); }

    bool becomes(BarKind kind)
    {
        return waitFor([&] { return bar.kind() == kind; });
    }

    ColouredButton button{magenta};
    DesktopStatusBar bar;
    std::unique_ptr<StatusItem> empty = bar.createItem(variableStatusItemLength);
    std::unique_ptr<StatusItem> item = bar.createItem(squareStatusItemLength);
};

TEST_F(DesktopStatusBarTest, SitsInATrayThatComesLateAndComesBack)
{
    auto tray = startTrayer(24);
    ASSERT_TRUE(waitFor([&] { return item->frame() && !areaOf(magenta).isEmpty(); }));
    EXPECT_EQ(item->frame()->size(), QSize(22, 22)); // the tray's frame takes a pixel on each side
    EXPECT_TRUE(item->frame()->contains(areaOf(magenta)));
    EXPECT_FALSE(empty->frame());

    pointAt(*item->frame(), {"click", "1"});
    EXPECT_TRUE(waitFor([&] { return button.clicks == 1; }));
    EXPECT_EQ(button.entries, 1);

    tray.reset();
    ASSERT_TRUE(waitFor([&] { return areaOf(magenta).isEmpty(); }));
    ASSERT_TRUE(becomes(BarKind::None));
    EXPECT_FALSE(item->frame());

    tray = startTrayer(40);
    ASSERT_TRUE(waitFor([&] { return item->frame() && item->frame()->size() == QSize(38, 38); }));
    EXPECT_TRUE(waitFor([&] { return item->frame()->contains(areaOf(magenta)) && areaOf(magenta).height() == 38; }));
}

TEST_F(DesktopStatusBarTest, LetsTheBackgroundOfAnOpaqueTrayShowAroundTheIcon)
{
    button.setIcon(QIcon()); // so that all of it is around the icon
    const auto tray = startTrayer(24, {"--transparent", "true", "--alpha", "0", "--tint", "0x00ff00"});
    ASSERT_TRUE(waitFor([&] { return item->frame().has_value(); }));
    const QColor asTrayerMixesIt(0, 254, 0);
    EXPECT_TRUE(waitFor([&] { return areaOf(asTrayerMixesIt).contains(*item->frame()); }));
}

TEST_F(DesktopStatusBarTest, MovesBetweenThePanelsThatRun)
{
    auto panel = startNotifierPanel();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    ASSERT_TRUE(waitFor([&] { return !areaOf(magenta).isEmpty(); }));
    EXPECT_FALSE(item->frame());

    pointAt(areaOf(magenta), {"click", "1"});
    EXPECT_TRUE(waitFor([&] { return button.clicks == 1; }));

    auto tray = startTrayer(24);
    ASSERT_TRUE(becomes(BarKind::Tray));
    EXPECT_TRUE(waitFor([&] { return item->frame() && item->frame()->contains(areaOf(magenta)); }));

    tray.reset();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    EXPECT_TRUE(waitFor([&] { return !areaOf(magenta).isEmpty(); }));

    panel.reset();
    ASSERT_TRUE(becomes(BarKind::None));
    panel = startNotifierPanel();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    EXPECT_TRUE(waitFor([&] { return !areaOf(magenta).isEmpty(); }));
}

TEST_F(DesktopStatusBarTest, TellsTheHostOnlyWhatChanged)
{
    const auto panel = startNotifierPanel();
    ASSERT_TRUE(waitFor([&] { return bar.kind() == BarKind::Notifier && !areaOf(magenta).isEmpty(); }));
    ItemSignals told;
    for (int i = 0; i < 20; ++i) {
        button.setColour(magenta);
        item->viewChanged();
    }
    button.setColour(green);
    item->viewChanged();
    EXPECT_TRUE(waitFor([&] { return !areaOf(green).isEmpty(); }));
    EXPECT_EQ(told.members, QStringList{QStringLiteral("NewIcon")});
}

TEST_F(DesktopStatusBarTest, LeavesATrayThatForwardsToTheHost)
{
    item->setView(nullptr);
    const auto panel = startNotifierPanel();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    const TraySelection tray;
    ASSERT_TRUE(becomes(BarKind::Tray));
    offerItemOfThisProcess();
    EXPECT_TRUE(becomes(BarKind::Notifier));
}

TEST(ChooseBar, PrefersATrayThatIsNoForwarder)
{
    for (const bool forwarded : {false, true}) {
        EXPECT_EQ(chooseBar(false, false, forwarded), BarKind::None);
        EXPECT_EQ(chooseBar(false, true, forwarded), BarKind::Notifier);
        EXPECT_EQ(chooseBar(true, false, forwarded), BarKind::Tray);
        EXPECT_EQ(chooseBar(true, true, forwarded), forwarded ? BarKind::Notifier : BarKind::Tray);
    }
}

TEST(ToApplicationCoordinates, ScalesWithinTheMonitorThatHoldsTheCentre)
{
    const QList<ScaledScreen> screens{{QRect(0, 0, 1280, 800), 1}, {QRect(1280, 0, 960, 540), 2}};
    EXPECT_EQ(toApplicationCoordinates(QRect(100, 0, 24, 24), screens), QRect(100, 0, 24, 24));
    EXPECT_EQ(toApplicationCoordinates(QRect(1280 + 1800, 10, 48, 48), screens), QRect(1280 + 900, 5, 24, 24));
    EXPECT_EQ(toApplicationCoordinates(QRect(-90, 0, 24, 24), screens), QRect(-90, 0, 24, 24));
}

} // namespace

} // namespace tarvo
