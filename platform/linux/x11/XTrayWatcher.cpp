#include "platform/linux/x11/XTrayWatcher.h"

#include <QCoreApplication>

namespace tarvo {

namespace {

const char *const traySelection = "_NET_SYSTEM_TRAY_S"; // freedesktop.org System Tray Protocol
constexpr quint32 orientationVertical = 1;
constexpr quint8 eventTypeMask = 0x7f; // the highest bit tells that a client sent the event

int visualDepth(const xcb_connection_t *connection, xcb_visualid_t visual)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(const_cast<xcb_connection_t *>(connection)));
    for (; screens.rem > 0; xcb_screen_next(&screens)) {
        auto depths = xcb_screen_allowed_depths_iterator(screens.data);
        for (; depths.rem > 0; xcb_depth_next(&depths)) {
            auto visuals = xcb_depth_visuals_iterator(depths.data);
            for (; visuals.rem > 0; xcb_visualtype_next(&visuals)) {
                if (visuals.data->visual_id == visual)
                    return depths.data->depth;
            }
        }
    }
    return 0;
}

} // namespace

bool hasXTray()
{
    XScreen screen;
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display(xcb_connect(nullptr, &screen.number),
                                                                               &xcb_disconnect);
    screen.connection = display.get();
    return xcb_connection_has_error(display.get()) == 0
        && screen.ownerOf(screen.selection(traySelection)) != XCB_WINDOW_NONE;
}

XTrayWatcher::XTrayWatcher(const XScreen &screen, std::function<void()> changed)
    : m_screen(screen)
    , m_changed(std::move(changed))
    , m_selection(screen.selection(traySelection))
    , m_manager(screen.atom("MANAGER"))
{
    m_screen.addEvents(m_screen.root, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    QCoreApplication::instance()->installNativeEventFilter(this);
    m_tray = findTray();
}

XTrayWatcher::~XTrayWatcher() = default;

bool XTrayWatcher::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *const event = static_cast<const xcb_generic_event_t *>(message);
    const int type = event->response_type & eventTypeMask;
    if (type == XCB_CLIENT_MESSAGE && announcesTray(*reinterpret_cast<const xcb_client_message_event_t *>(event)))
        QMetaObject::invokeMethod(
            &m_context, [this] { lookForTray(); }, Qt::QueuedConnection);
    else if (type == XCB_DESTROY_NOTIFY)
        windowDestroyed(reinterpret_cast<const xcb_destroy_notify_event_t *>(event)->window);
    return false;
}

bool XTrayWatcher::announcesTray(const xcb_client_message_event_t &message) const
{
    return message.type == m_manager && message.format == 32 && message.data.data32[1] == m_selection;
}

void XTrayWatcher::windowDestroyed(xcb_window_t window)
{
    if (!m_tray || m_tray->window != window)
        return;
    // The next tray may get the same window number, and is another tray all the same.
    m_tray.reset();
    const auto follow = [this] {
        m_changed();
        lookForTray();
    };
    QMetaObject::invokeMethod(&m_context, follow, Qt::QueuedConnection);
}

void XTrayWatcher::lookForTray()
{
    const std::optional<XTray> tray = findTray();
    if (tray == m_tray)
        return;
    m_tray = tray;
    m_changed();
}

std::optional<XTray> XTrayWatcher::findTray() const
{
    const xcb_window_t owner = watchedSelectionOwner();
    if (owner == XCB_WINDOW_NONE)
        return std::nullopt;
    const auto visual = m_screen.property(owner, m_screen.atom("_NET_SYSTEM_TRAY_VISUAL"), XCB_ATOM_VISUALID);
    const auto orientation = m_screen.property(owner, m_screen.atom("_NET_SYSTEM_TRAY_ORIENTATION"), XCB_ATOM_CARDINAL);
    return XTray{.window = owner,
                 .translucent = visual && visualDepth(m_screen.connection, *visual) == 32,
                 .vertical = orientation == orientationVertical,
                 .process = m_screen.processOf(owner)};
}

xcb_window_t XTrayWatcher::watchedSelectionOwner() const
{
    // While the server is grabbed the owner cannot go before its end would be told.
    xcb_grab_server(m_screen.connection);
    const xcb_window_t owner = m_screen.ownerOf(m_selection);
    const bool watched = owner != XCB_WINDOW_NONE && m_screen.addEvents(owner, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    xcb_ungrab_server(m_screen.connection);
    xcb_flush(m_screen.connection);
    return watched ? owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace tarvo
