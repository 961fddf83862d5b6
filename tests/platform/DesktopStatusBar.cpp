#include "platform/linux/DesktopStatusBar.h"

#include "platform/linux/BusAddress.h"
#include "platform/linux/BusConnection.h"
#include "tests/support/DesktopEnvironment.h"

#include <QBitmap>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QIconEngine>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QStandardPaths>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

using testing::EndsWith;
using testing::HasSubstr;

const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

const QColor magenta(255, 0, 255);
const QColor green(0, 255, 0);
const QColor trayColour(0, 254, 0); // as trayer mixes it

constexpr auto panelSettings = R"(<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="length" type="uint" value="100"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
)";

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

/// Makes @p window, for as long as it lives, a tray that takes no icon in.
void takeTraySelection(QWindow &window)
{
    const XScreen screen = *XScreen::ofApplication();
    const xcb_atom_t selection = screen.atom("_NET_SYSTEM_TRAY_S0");
    const auto owner = static_cast<xcb_window_t>(window.winId());
    xcb_set_selection_owner(screen.connection, owner, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t announcement{};
    announcement.response_type = XCB_CLIENT_MESSAGE;
    announcement.format = 32;
    announcement.window = screen.root;
    announcement.type = screen.atom("MANAGER");
    announcement.data.data32[1] = selection;
    announcement.data.data32[2] = owner;
    xcb_send_event(screen.connection, 0, screen.root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&announcement));
    xcb_flush(screen.connection);
}

/// @return a property on the session bus, perhaps of an object of this process
QVariant property(const QString &service, const QString &path, const QString &interface, const QString &name)
{
    auto question = QDBusMessage::createMethodCall(service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << interface << name;
    const QDBusPendingReply<QDBusVariant> answer = QDBusConnection::sessionBus().asyncCall(question);
    EXPECT_TRUE(waitFor([&] { return answer.isFinished(); }));
    return answer.isValid() ? answer.value().variant() : QVariant();
}

bool trayIsOwned(const XScreen &screen)
{
    const auto request = xcb_get_selection_owner(screen.connection, screen.atom("_NET_SYSTEM_TRAY_S0"));
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(screen.connection, request, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

/// @return the smallest rectangle that holds all pixels of @p colour on the screen; empty when there are none
QRect areaOf(const QColor &colour)
{
    const QImage matching = screenshot().createMaskFromColor(colour.rgb(), Qt::MaskOutColor);
    return QRegion(QBitmap::fromImage(matching)).boundingRect();
}

/// The tray that is installed, with icons of @p size x @p size pixels on @ref trayColour.
std::unique_ptr<Program> startTray(int size)
{
    std::string command =
        "exec stalonetray --background '#00fe00' --slot-size $0 --icon-size $0 --kludges force_icons_size";
    if (!QStandardPaths::findExecutable(u"trayer"_s).isEmpty())
        command = "exec trayer --edge top --align right --widthtype request --height $(($0 + 2)) " // with its frame
                  "--transparent true --alpha 0 --tint 0x00ff00";
    return std::make_unique<Program>(std::vector<std::string>{"sh", "-c", command, std::to_string(size)});
}

/// A panel that hosts StatusNotifierItems, and whose XEmbed tray was taken from it.
std::unique_ptr<Program> startNotifierPanel()
{
    const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + u"/xfce4/xfconf/xfce-perchannel-xml"_s;
    QDir().mkpath(folder);
    QFile settings(folder + u"/xfce4-panel.xml"_s);
    EXPECT_TRUE(settings.open(QIODevice::WriteOnly) && settings.write(panelSettings) > 0);
    settings.close();

    static const Program settingsService({TARVO_XFCONFD});
    const auto *const bus = QDBusConnection::sessionBus().interface();
    EXPECT_TRUE(waitFor([&] { return bus->isServiceRegistered(u"org.xfce.Xfconf"_s).value(); }));
    auto panel = std::make_unique<Program>(std::vector<std::string>{"env", "XDG_DATA_DIRS=/usr/share", "NO_AT_BRIDGE=1",
                                                                    "xfce4-panel", "--disable-wm-check"});
    EXPECT_TRUE(waitFor([screen = *XScreen::ofApplication()] { return trayIsOwned(screen); }));
    QWindow taker;
    takeTraySelection(taker);
    return panel;
}

/// Registers this process with the watcher as having an item.
void offerItem()
{
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    auto offer =
        QDBusMessage::createMethodCall(watcher, u"/StatusNotifierWatcher"_s, watcher, u"RegisterStatusNotifierItem"_s);
    offer << QDBusConnection::sessionBus().baseService();
    QDBusConnection::sessionBus().send(offer);
}

/// @return what writes a line for each call or signal that @p rule takes in
std::unique_ptr<Program> monitorBus(const std::string &rule)
{
    auto monitor = std::make_unique<Program>(std::vector<std::string>{"dbus-monitor", "--profile", rule});
    while (monitor->readLine().find("NameLost") == std::string::npos) { } // its bus name goes when it listens
    return monitor;
}

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

TEST(ToApplicationCoordinates, ScalesWithinTheMonitorThatHoldsTheCentre)
{
    const QList<ScaledScreen> screens{{QRect(0, 0, 1280, 800), 1}, {QRect(1280, 0, 960, 540), 2}};
    EXPECT_EQ(toApplicationCoordinates(QRect(1280 + 1800, 10, 48, 48), screens), QRect(1280 + 900, 5, 24, 24));
    EXPECT_EQ(toApplicationCoordinates(QRect(-90, 0, 24, 24), screens), QRect(-90, 0, 24, 24));
}

} // namespace

} // namespace tarvo
