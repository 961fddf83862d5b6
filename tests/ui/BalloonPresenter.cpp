#include "ui/BalloonPresenter.h"

#include "simulator/SimulatedNotifications.h"
#include "tests/support/PrintQt.h"
#include "ui/Balloon.h"
#include "ui/OvAttachedWindow.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const OvAttachedWindow *window()
{
    for (const QWidget *widget : QApplication::topLevelWidgets())
        if (const auto *balloon = dynamic_cast<const OvAttachedWindow *>(widget); balloon && balloon->isVisible())
            return balloon;
    return nullptr;
}

struct BalloonWays : testing::Test {
    SimulatedNotifications notifications;
    BalloonPresenter presenter{&notifications, {}};
};

} // namespace

TEST_F(BalloonWays, PointsAtTheIconWhereItsPlaceIsKnown)
{
    const auto balloon = presenter.show(u"news"_s, QRect(400, 0, 24, 24));
    EXPECT_FALSE(notifications.shown());
    ASSERT_NE(window(), nullptr);
    const auto *label = window()->findChild<QLabel *>();
    const int textWidth = label->fontMetrics().horizontalAdvance(u"news"_s);
    EXPECT_EQ(label->text(), u"news"_s);
    EXPECT_NEAR(label->parentWidget()->width(), textWidth + 30, 1);
    EXPECT_EQ(label->parentWidget()->height(), 40);
    EXPECT_EQ(window()->geometry(), QRect(412 - window()->width() / 2, 24 + 5, window()->width(), 60));
    EXPECT_EQ(label->palette().color(QPalette::WindowText), window()->borderColor());
    EXPECT_TRUE(window()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
}

TEST_F(BalloonWays, NotifiesWhereThePlaceIsUnknown)
{
    auto balloon = presenter.show(u"news"_s, std::nullopt);
    ASSERT_TRUE(notifications.shown());
    EXPECT_EQ(notifications.shown()->text, u"news"_s);
    EXPECT_EQ(window(), nullptr);
    balloon.reset();
    EXPECT_FALSE(notifications.shown());
}

TEST_F(BalloonWays, UsesACornerWhereNothingNotifies)
{
    auto balloon = presenter.show(u"news"_s, std::nullopt);
    notifications.refuse();
    EXPECT_NE(window(), nullptr);
    balloon.reset();
    EXPECT_EQ(window(), nullptr);

    notifications.setAvailable(false);
    balloon = presenter.show(u"news"_s, std::nullopt);
    ASSERT_NE(window(), nullptr);
    EXPECT_FALSE(window()->hasArrow());
    EXPECT_TRUE(window()->screen()->availableGeometry().contains(window()->geometry()));
    EXPECT_FALSE(notifications.shown());
}
