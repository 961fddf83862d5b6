#include "tests/platform/StatusBarFixture.h"

#include <QDBusConnection>
#include <QDir>
#include <QFile>

namespace tarvo {

namespace {

constexpr auto panelSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="true"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
)";

void writePanelSettings()
{
    const QString folder =
        qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/xfce4/xfconf/xfce-perchannel-xml");
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/xfce4-panel.xml"));
    if (file.open(QIODevice::WriteOnly))
        file.write(panelSettings);
}

bool trayIsOwned(const XScreen &screen)
{
    const auto request = xcb_get_selection_owner(screen.connection, screen.atom("_NET_SYSTEM_TRAY_S0"));
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(screen.connection, request, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace

ColouredButton::ColouredButton(const QColor &colour)
{
    setFlat(true);
    setColour(colour);
    connect(this, &QPushButton::clicked, this, [this] { ++clicks; });
}

void ColouredButton::setColour(const QColor &colour)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(colour);
    setIcon(pixmap);
}

void ColouredButton::enterEvent(QEnterEvent *)
{
    ++entries;
}

ItemSignals::ItemSignals()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    for (const char *interface : {"org.kde.StatusNotifierItem", "com.canonical.dbusmenu"})
        bus.connect({}, {}, QLatin1String(interface), {}, this, SLOT(heard(QDBusMessage)));
}

QRect areaOf(const QColor &colour)
{
    const QImage screen = screenshot();
    QRect area;
    for (int y = 0; y < screen.height(); ++y) {
        for (int x = 0; x < screen.width(); ++x) {
            if (screen.pixelColor(x, y) == colour)
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

std::unique_ptr<Program> startTrayer(int height, const std::vector<std::string> &options)
{
    std::vector<std::string> command{
        "trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", std::to_string(height)};
    command.insert(command.end(), options.begin(), options.end());
    return std::make_unique<Program>(command);
}

std::unique_ptr<Program> startNotifierPanel()
{
    writePanelSettings();
    const XScreen screen = *XScreen::ofApplication();
    auto panel = std::make_unique<Program>(std::vector<std::string>{"xfce4-panel", "--disable-wm-check"});
    waitFor([&] { return trayIsOwned(screen); });
    TraySelection();
    return panel;
}

void offerItemOfThisProcess()
{
    const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
    auto offer = QDBusMessage::createMethodCall(watcher, QStringLiteral("/StatusNotifierWatcher"), watcher,
                                                QStringLiteral("RegisterStatusNotifierItem"));
    offer.setArguments({QDBusConnection::sessionBus().baseService()});
    QDBusConnection::sessionBus().send(offer);
}

TraySelection::TraySelection()
    : m_screen(*XScreen::ofApplication())
    , m_window(xcb_generate_id(m_screen.connection))
{
    xcb_create_window(m_screen.connection, XCB_COPY_FROM_PARENT, m_window, m_screen.root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const xcb_atom_t selection = m_screen.atom("_NET_SYSTEM_TRAY_S0");
    xcb_set_selection_owner(m_screen.connection, m_window, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t announcement{};
    announcement.response_type = XCB_CLIENT_MESSAGE;
    announcement.format = 32;
    announcement.window = m_screen.root;
    announcement.type = m_screen.atom("MANAGER");
    announcement.data.data32[1] = selection;
    announcement.data.data32[2] = m_window;
    xcb_send_event(m_screen.connection, 0, m_screen.root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&announcement));
    xcb_flush(m_screen.connection);
}

TraySelection::~TraySelection()
{
    xcb_destroy_window(m_screen.connection, m_window);
    xcb_flush(m_screen.connection);
}

} // namespace tarvo
