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

TEST_F(DesktopStatusBarTest, SitsInTheTrayWithItsOwnWindow)
{
    auto tray = startTrayer();
    ASSERT_TRUE(waitFor([&] { return !areaOf(magenta).isEmpty(); }));
    const std::optional<QRect> frame = item->frame();
    ASSERT_TRUE(frame);
    EXPECT_TRUE(frame->contains(areaOf(magenta)));
    EXPECT_EQ(frame->height(), 24);
    screenshot().save(QStringLiteral("/tmp/status-trayer.png"));
    pointAt(*frame, {"click", "1"});
    EXPECT_TRUE(waitFor([&] { return button.clicks == 1; }));
    EXPECT_EQ(button.entries, 1);
}

TEST_F(DesktopStatusBarTest, FollowsBarsThatComeAndGo)
{
    auto panel = startNotifierPanel();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    EXPECT_TRUE(waitFor([&] { return !areaOf(magenta).isEmpty(); }));
    EXPECT_FALSE(item->frame());
    screenshot().save(QStringLiteral("/tmp/status-xfce.png"));
    pointAt(areaOf(magenta), {"click", "1"});
    EXPECT_TRUE(waitFor([&] { return button.clicks == 1; }));
    auto tray = startTrayer();
    ASSERT_TRUE(becomes(BarKind::Tray));
    EXPECT_TRUE(waitFor([&] { return item->frame() && item->frame()->contains(areaOf(magenta)); }));
    screenshot().save(QStringLiteral("/tmp/status-both.png"));
    tray.reset();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    EXPECT_TRUE(waitFor([&] { return !areaOf(magenta).isEmpty(); }));
    panel.reset();
    ASSERT_TRUE(becomes(BarKind::None));
    tray = startTrayer();
    ASSERT_TRUE(becomes(BarKind::Tray));
}

} // namespace

} // namespace tarvo
