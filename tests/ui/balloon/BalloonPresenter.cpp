#include "ui/balloon/BalloonPresenter.h"

#include "simulator/surroundings/SimulatedNotifications.h"
#include "tests/support/PrintQt.h"
#include "ui/balloon/OvAttachedWindow.h"
#include "ui/pages/PageFailureNotice.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const OvAttachedWindow *shownWindow()
{
    for (const QWidget *widget : QApplication::topLevelWidgets())
        if (const auto *balloon = dynamic_cast<const OvAttachedWindow *>(widget); balloon && balloon->isVisible())
            return balloon;
    return nullptr;
}

} // namespace

TEST(BalloonPresenter, PointsAtTheIconOrNotifiesOrUsesACorner)
{
    SimulatedNotifications notifications;
    std::optional<QRect> icon = QRect(400, 0, 24, 24);
    int clicks = 0;
    BalloonPresenter presenter(&notifications, {.iconFrame = [&] { return icon; }, .clicked = [&] { ++clicks; }});
    int appeared = 0;
    const auto toggle = [&] {
        presenter.toggleAttachedWindowAtPoint(u"news"_s, {.kind = u"a"_s, .appeared = [&] { ++appeared; }});
    };
    toggle();
    ASSERT_NE(shownWindow(), nullptr);
    const auto *label = shownWindow()->findChild<QLabel *>();
    EXPECT_EQ(label->text(), u"news"_s);
    QAccessibleInterface *const heard =
        QAccessible::queryAccessibleInterface(const_cast<OvAttachedWindow *>(shownWindow()));
    EXPECT_TRUE(heard->role() == QAccessible::AlertMessage && heard->text(QAccessible::Name) == u"news");
    EXPECT_NEAR(label->parentWidget()->width(), label->fontMetrics().horizontalAdvance(u"news"_s) + 30, 1);
    const int width = shownWindow()->width();
    EXPECT_EQ(shownWindow()->geometry(), QRect(412 - width / 2, 24 + 5, width, 60));

    toggle();
    icon.reset();
    toggle();
    EXPECT_TRUE(notifications.shown() && notifications.shown()->text == u"news");
    EXPECT_TRUE(!shownWindow() && appeared == 1) << "nothing is to be seen as yet";
    notifications.refuse();
    EXPECT_TRUE(shownWindow() && appeared == 2);

    toggle();
    EXPECT_EQ(shownWindow(), nullptr);
    toggle();
    notifications.accept();
    EXPECT_TRUE(!shownWindow() && appeared == 3);
    toggle();
    presenter.toggleAttachedWindowAtPoint(u"other news"_s, {.kind = u"b"_s});
    toggle();
    EXPECT_EQ(notifications.count(), 2) << "they can be found again";
    notifications.refuse();
    EXPECT_FALSE(shownWindow()) << "its time is over";
    presenter.withdraw();
    EXPECT_EQ(notifications.count(), 0);
    notifications.setAvailable(false);
    toggle();
    ASSERT_TRUE(shownWindow() && appeared == 4);
    EXPECT_FALSE(shownWindow()->hasArrow());
    EXPECT_TRUE(shownWindow()->screen()->availableGeometry().contains(shownWindow()->geometry()));

    bool closed = false;
    auto *window = const_cast<OvAttachedWindow *>(shownWindow());
    window->setAttribute(Qt::WA_UnderMouse);
    presenter.dismiss([&] { closed = true; });
    EXPECT_TRUE(shownWindow() && !closed) << "not under the pointer";
    QTest::mouseClick(window, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(!shownWindow() && closed && clicks == 1);
}

TEST(PageFailureNotice, NotifiesOrShowsABalloon)
{
    SimulatedNotifications notifications;
    PageFailureNotice notice(&notifications, {});
    notice.tell(u"http://a/"_s);
    EXPECT_TRUE(notifications.shown() && notifications.shown()->title == u"CannotOpenTitle" && !shownWindow());
    notifications.accept();
    EXPECT_FALSE(shownWindow());
    notice.tell(u"http://a/"_s);
    notifications.refuse();
    ASSERT_TRUE(shownWindow());
    notifications.setAvailable(false);
    notice.tell(u"http://b/"_s);
    ASSERT_TRUE(shownWindow()) << "the next one takes its place";
    QTest::mouseClick(const_cast<OvAttachedWindow *>(shownWindow()), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_FALSE(shownWindow());
}
