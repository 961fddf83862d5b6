#include "tests/platform/Panels.h"

#include "platform/linux/x11/XScreen.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QWindow>

#include <gtest/gtest.h>

#include <vector>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

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

bool trayIsOwned(const XScreen &screen)
{
    const auto request = xcb_get_selection_owner(screen.connection, screen.atom("_NET_SYSTEM_TRAY_S0"));
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(screen.connection, request, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace

void takeTraySelection(QWindow &window)
{
    const XScreen screen = *XScreen::ofApplication();
    const xcb_atom_t selection = screen.atom("_NET_SYSTEM_TRAY_S0");
    const auto owner = static_cast<xcb_window_t>(window.winId());
    xcb_set_selection_owner(screen.connection, owner, selection, XCB_CURRENT_TIME);
    screen.sendMessage(screen.root, screen.atom("MANAGER"), {XCB_CURRENT_TIME, selection, owner},
                       XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

std::unique_ptr<Program> startTray(int size)
{
    std::string command =
        "exec stalonetray --background '#00fe00' --slot-size $0 --icon-size $0 --kludges force_icons_size";
    if (!QStandardPaths::findExecutable(u"trayer"_s).isEmpty())
        command = "exec trayer --edge top --align right --widthtype request --height $(($0 + 2)) " // with its frame
                  "--transparent true --alpha 0 --tint 0x00ff00";
    return std::make_unique<Program>(std::vector<std::string>{"sh", "-c", command, std::to_string(size)});
}

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

void offerItem()
{
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    auto offer =
        QDBusMessage::createMethodCall(watcher, u"/StatusNotifierWatcher"_s, watcher, u"RegisterStatusNotifierItem"_s);
    offer << QDBusConnection::sessionBus().baseService();
    QDBusConnection::sessionBus().send(offer);
}

std::unique_ptr<Program> monitorBus(const std::string &rule)
{
    auto monitor = std::make_unique<Program>(std::vector<std::string>{"dbus-monitor", "--profile", rule});
    while (monitor->readLine().find("NameLost") == std::string::npos) { } // its bus name goes when it listens
    return monitor;
}

} // namespace tarvo
