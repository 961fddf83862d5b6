#include "platform/linux/tray/DesktopStatusBar.h"

#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/x11/XScreen.h"
#include "tests/platform/Panels.h"
#include "tests/support/DesktopEnvironment.h"

#include <QAbstractNativeEventFilter>
#include <QBitmap>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QIconEngine>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

using testing::EndsWith;
using testing::HasSubstr;

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

const QColor magenta(255, 0, 255);
const QColor green(0, 255, 0);

/// A green picture that has a name.
class NamedPicture final : public QIconEngine {
public:
    QString iconName() override { return u"a-name"_s; }
    QIconEngine *clone() const override { return new NamedPicture; }
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        painter->fillRect(rect, green);
    }
};

/// @return a property on the session bus, perhaps of an object of this process
QVariant property(const QString &service, const QString &path, const QString &interface, const QString &name)
{
    auto question = QDBusMessage::createMethodCall(service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << interface << name;
    const QDBusPendingReply<QDBusVariant> answer = QDBusConnection::sessionBus().asyncCall(question);
    EXPECT_TRUE(waitFor([&] { return answer.isFinished(); }));
    return answer.isValid() ? answer.value().variant() : QVariant();
}

/// @return the smallest rectangle that holds all pixels of @p colour on the screen; empty when there are none
QRect areaOf(const QColor &colour)
{
    const QImage matching = screenshot().createMaskFromColor(colour.rgb(), Qt::MaskOutColor);
    return QRegion(QBitmap::fromImage(matching)).boundingRect();
}

/// A tray for translucent icons that puts out each icon as soon as it is in.
class ExpellingTray final : public QAbstractNativeEventFilter {
public:
    ExpellingTray()
    {
        QSurfaceFormat translucent;
        translucent.setAlphaBufferSize(8);
        m_window.setFormat(translucent);
        const auto window = static_cast<xcb_window_t>(m_window.winId());
        const XReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            m_screen.connection, xcb_get_window_attributes(m_screen.connection, window), nullptr));
        xcb_change_property(m_screen.connection, XCB_PROP_MODE_REPLACE, window,
                            m_screen.atom("_NET_SYSTEM_TRAY_VISUAL"), XCB_ATOM_VISUALID, 32, 1, &attributes->visual);
        QCoreApplication::instance()->installNativeEventFilter(this);
        takeTraySelection(m_window);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *const event = static_cast<const xcb_client_message_event_t *>(message);
        if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE || event->type != m_request)
            return false;
        const xcb_window_t icon = event->data.data32[2];
        const XReply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(m_screen.connection, xcb_get_geometry(m_screen.connection, icon), nullptr));
        depths.append(geometry ? geometry->depth : 0);
        for (const xcb_window_t parent : {static_cast<xcb_window_t>(m_window.winId()), m_screen.root})
            xcb_reparent_window(m_screen.connection, icon, parent, 0, 0);
        return false;
    }

    QList<int> depths; ///< of the icons that were taken in

private:
    const XScreen m_screen = *XScreen::ofApplication();
    const xcb_atom_t m_request = m_screen.atom("_NET_SYSTEM_TRAY_OPCODE");
    QWindow m_window;
};

class DesktopStatusBarTest : public testing::Test {
protected:
    DesktopStatusBarTest()
    {
        button.setFlat(true);
        paint(magenta);
        QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
        item->setMenu(&menu);
        item->setView(&button);
    }

    void paint(const QColor &colour)
    {
        QPixmap pixmap(64, 64);
        pixmap.fill(colour);
        button.setIcon(pixmap);
    }

    bool becomes(BarKind kind)
    {
        return waitFor([&] { return bar.kind() == kind; });
    }

    int clicks = 0;
    QPushButton button;
    QMenu menu;
    BusConnection bus{sessionBusAddress()};
    DesktopStatusBar bar{bus};
    std::unique_ptr<StatusItem> empty = bar.createItem(variableStatusItemLength);
    std::unique_ptr<StatusItem> item = bar.createItem(squareStatusItemLength);
};

} // namespace

TEST_F(DesktopStatusBarTest, SitsInATrayThatComesLateAndComesBack)
{
    menu.addAction(u"Quit"_s);
    auto tray = startTray(22);
    ASSERT_TRUE(waitFor([&] { return item->frame() && !areaOf(magenta).isEmpty(); }));
    EXPECT_EQ(item->frame()->size(), QSize(22, 22));
    EXPECT_TRUE(item->frame()->contains(areaOf(magenta)));
    EXPECT_FALSE(empty->frame());

    clickOn(*item->frame(), "1");
    EXPECT_TRUE(waitFor([&] { return clicks == 1; }));
    EXPECT_TRUE(button.underMouse());

    clickOn(*item->frame(), "3");
    EXPECT_TRUE(waitFor([] { return QApplication::activePopupWidget() != nullptr; }));

    tray.reset();
    ASSERT_TRUE(waitFor([&] { return areaOf(magenta).isEmpty(); }));
    ASSERT_TRUE(becomes(BarKind::None));
    EXPECT_FALSE(item->frame());

    tray = startTray(38);
    ASSERT_TRUE(waitFor([&] { return item->frame() && item->frame()->size() == QSize(38, 38); }));
    EXPECT_TRUE(waitFor([&] { return item->frame()->contains(areaOf(magenta)) && areaOf(magenta).height() == 38; }));
}

TEST_F(DesktopStatusBarTest, OutlivesWhatItShows)
{
    const auto tray = startTray(22);
    auto view = std::make_unique<QPushButton>();
    item->setView(view.get());
    ASSERT_TRUE(waitFor([&] { return item->frame().has_value(); }));
    view.reset();
    item.reset();
    EXPECT_TRUE(waitFor([&] { return areaOf(magenta).isEmpty(); }));
}

TEST_F(DesktopStatusBarTest, GoesBackIntoEachTrayThatPutsItOutSomeTimes)
{
    for (const char *const tray : {"first", "second"}) {
        const ExpellingTray expelling;
        EXPECT_TRUE(waitFor([&] { return expelling.depths == QList<int>(6, 32); })) << tray << expelling.depths.size();
    }
}

TEST_F(DesktopStatusBarTest, NeedsNoBusToSitInATray)
{
    const auto tray = startTray(22);
    BusConnection noBus(u"no such bus"_s);
    DesktopStatusBar busless(noBus);
    EXPECT_TRUE(waitFor([&] { return busless.kind() == BarKind::Tray; }));
}

TEST_F(DesktopStatusBarTest, LetsTheBackgroundOfAnOpaqueTrayShowAroundTheIcon)
{
    button.setIcon(QIcon()); // so that all of it is around the icon
    const auto tray = startTray(22);
    ASSERT_TRUE(waitFor([&] { return item->frame().has_value(); }));
    EXPECT_TRUE(waitFor([&] { return areaOf(trayColour).contains(*item->frame()); }));
}

TEST_F(DesktopStatusBarTest, MovesBetweenThePanelsThatRun)
{
    auto panel = startNotifierPanel();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    ASSERT_TRUE(waitFor([&] { return !areaOf(magenta).isEmpty(); }));
    EXPECT_FALSE(item->frame());

    clickOn(areaOf(magenta), "1");
    EXPECT_TRUE(waitFor([&] { return clicks == 1; }));

    auto tray = startTray(22);
    ASSERT_TRUE(becomes(BarKind::Tray));
    EXPECT_TRUE(waitFor([&] { return item->frame() && item->frame()->contains(areaOf(magenta)); }));

    tray.reset();
    ASSERT_TRUE(becomes(BarKind::Notifier));
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
    const auto monitor = monitorBus("interface=org.kde.StatusNotifierItem");
    for (int i = 0; i < 20; ++i) {
        paint(magenta);
        item->viewChanged();
    }
    paint(green);
    item->viewChanged();
    EXPECT_TRUE(waitFor([&] { return !areaOf(green).isEmpty(); }));
    button.setToolTip(u"another"_s);
    item->viewChanged();
    EXPECT_THAT(monitor->readLine(), EndsWith("NewIcon"));
    EXPECT_THAT(monitor->readLine(), EndsWith("NewToolTip"));
}

TEST_F(DesktopStatusBarTest, TellsTheHostTheThemesNameForTheIcon)
{
    const auto panel = startNotifierPanel();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    button.setIcon(QIcon(new NamedPicture));
    item->viewChanged();
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    QStringList items;
    EXPECT_TRUE(waitFor([&] {
        items =
            property(watcher, u"/StatusNotifierWatcher"_s, watcher, u"RegisteredStatusNotifierItems"_s).toStringList();
        return items.size() == 1;
    }));
    const QString service = items.value(0).section(u'/', 0, 0);
    EXPECT_EQ(property(service, u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"IconName"_s), u"a-name"_s);
    EXPECT_TRUE(waitFor([] { return !areaOf(green).isEmpty(); })) << "no theme has that name";
}

TEST_F(DesktopStatusBarTest, LeavesATrayThatForwardsToTheHost)
{
    item->setView(nullptr);
    const auto panel = startNotifierPanel();
    ASSERT_TRUE(becomes(BarKind::Notifier));
    QWindow tray;
    takeTraySelection(tray);
    ASSERT_TRUE(becomes(BarKind::Tray));
    offerItem();
    EXPECT_TRUE(becomes(BarKind::Notifier));
}

TEST_F(DesktopStatusBarTest, OffersNothingToAHostWhoseTrayComesBackAtOnce)
{
    const auto panel = startNotifierPanel();
    auto tray = std::make_unique<QWindow>();
    takeTraySelection(*tray);
    ASSERT_TRUE(becomes(BarKind::Tray));
    const auto monitor = monitorBus("member=RegisterStatusNotifierItem");
    tray.reset();
    ASSERT_TRUE(becomes(BarKind::None));
    tray = std::make_unique<QWindow>();
    takeTraySelection(*tray);
    ASSERT_TRUE(becomes(BarKind::Tray));
    offerItem();
    EXPECT_THAT(monitor->readLine(), HasSubstr(QDBusConnection::sessionBus().baseService().toStdString()))
        << "another item was offered before";
}
