#include "ui/balloon/OvAttachedWindow.h"

#include "platform/linux/x11/Compositing.h"
#include "tests/support/DesktopEnvironment.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

/// A white ground, a window manager, and a balloon whose tip is at (640, 100).
struct BalloonWindow : testing::Test {
    BalloonWindow()
    {
        ground.setStyleSheet(u"background: white"_s);
        ground.setGeometry(200, 50, 880, 400);
        ground.show();
        view.resize(200, 40);
        EXPECT_TRUE(waitFor([this] {
            ground.activateWindow();
            return ground.isActiveWindow() && ground.frameGeometry() != ground.geometry() && gray(640, 130) == 255;
        }));
        balloon = OvAttachedWindow::initWithView(&view, {640, 95}, OvSide::Bottom, 5);
    }

    static void SetUpTestSuite()
    {
        windowManager.emplace(std::vector<std::string>{"env", "XDG_DATA_DIRS=/usr/share", "openbox"});
        ASSERT_TRUE(waitFor([] { // until a new window gets a frame
            QWidget window;
            window.show();
            return QTest::qWaitFor([&] { return window.frameGeometry() != window.geometry(); }, 300);
        }));
    }
    static void TearDownTestSuite() { windowManager.reset(); }

    static int gray(int x, int y) { return qGray(screenshot().pixel(x, y)); }

    static inline std::optional<Program> windowManager;
    QLineEdit ground;
    QWidget view;
    std::unique_ptr<OvAttachedWindow> balloon;
};

} // namespace

TEST_F(BalloonWindow, IsOpaqueAndCutToItsOutlineWithoutCompositing)
{
    EXPECT_FALSE(isScreenComposited());
    balloon->show();
    EXPECT_EQ(view.geometry(), QRect(2, 18, 200, 40));
    ASSERT_TRUE(waitFor([] { return gray(640, 140) == 26; })) << "the body";
    const QImage picture = screenshot();
    const auto at = [&](int x, int y) { return qGray(picture.pixel(x, y)); };
    EXPECT_LT(at(640, 112), 100) << "inside the arrow";
    EXPECT_EQ(at(640, 98), 255) << "above the tip";
    EXPECT_EQ(at(620, 110), 255) << "beside the arrow";
    EXPECT_EQ(at(538, 116), 255) << "a corner";
    EXPECT_TRUE(ground.isActiveWindow()) << "the keyboard stays where it was";
}

TEST_F(BalloonWindow, IsTranslucentWithAShadowWhereTheScreenIsComposited)
{
    const Program compositor({"picom", "--backend", "xrender", "--config", "/dev/null"});
    ASSERT_TRUE(waitFor(isScreenComposited));
    balloon->setTranslucent(true);
    balloon->show();
    EXPECT_TRUE(waitFor([] { return std::abs(gray(640, 140) - 83) <= 2; })) << "a quarter of the ground shows";
    EXPECT_TRUE(waitFor([] { return gray(640, 162) < 250; })) << "the shadow";
    EXPECT_EQ(gray(640, 200), 255);
}
