#include "platform/linux/tray/TrayDock.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace tarvo {

namespace {

constexpr int usualIconSize = 22;
constexpr int largestIconSize = 256;
constexpr quint8 eventTypeMask = 0x7f; // the highest bit tells that a client sent the event

constexpr quint32 systemTrayRequestDock = 0;
constexpr quint32 xembedVersion = 0;
constexpr quint32 xembedMapped = 1;

QList<ScaledScreen> scaledScreens()
{
    QList<ScaledScreen> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append({screen->geometry(), screen->devicePixelRatio()});
    return screens;
}

} // namespace

TrayDock::TrayDock(const XScreen &screen, const XTray &tray, const Contents &contents, std::function<void()> expelled)
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint)
    , m_screen(screen)
    , m_translucent(tray.translucent)
    , m_vertical(tray.vertical)
    , m_width(contents.width)
    , m_view(&contents.view)
    , m_expelled(std::move(expelled))
    , m_menu(contents.menu)
{
    setAttribute(Qt::WA_TranslucentBackground, m_translucent);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    // The menu is shown from here, without an event loop of its own: the view may go while it is open.
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    m_view->setParent(this);
    m_view->show();
    makeWindow();
    QCoreApplication::instance()->installNativeEventFilter(this);
    requestDock(tray);
}

TrayDock::~TrayDock()
{
    if (m_view && m_view->parent() == this)
        m_view->setParent(nullptr);
}

void TrayDock::makeWindow()
{
    resize(usualIconSize, usualIconSize);
    m_window = static_cast<xcb_window_t>(winId());
    requestSize();
    const quint32 embedInfo[] = {xembedVersion, xembedMapped};
    const xcb_atom_t name = m_screen.atom("_XEMBED_INFO");
    xcb_change_property(m_screen.connection, XCB_PROP_MODE_REPLACE, m_window, name, name, 32, 2, embedInfo);
}

void TrayDock::requestSize()
{
    // Across the panel the tray decides; along it the window asks for what it needs.
    const int side = std::min(m_vertical ? width() : height(), largestIconSize);
    const int along = m_width > 0 ? m_width : side;
    windowHandle()->setMinimumSize(m_vertical ? QSize(side, along) : QSize(along, side));
}

void TrayDock::requestDock(const XTray &tray)
{
    m_screen.sendMessage(tray.window, m_screen.atom("_NET_SYSTEM_TRAY_OPCODE"),
                         {XCB_CURRENT_TIME, systemTrayRequestDock, m_window}, XCB_EVENT_MASK_NO_EVENT);
}

bool TrayDock::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *const event = static_cast<const xcb_generic_event_t *>(message);
    const int type = event->response_type & eventTypeMask;
    if (type == XCB_REPARENT_NOTIFY) {
        const auto *const note = reinterpret_cast<const xcb_reparent_notify_event_t *>(event);
        if (note->window == m_window)
            reparented(note->parent);
    } else if (type == XCB_DESTROY_NOTIFY) {
        if (reinterpret_cast<const xcb_destroy_notify_event_t *>(event)->window == m_window)
            reparented(m_screen.root);
    }
    return false;
}

void TrayDock::reparented(xcb_window_t parent)
{
    const bool docked = parent != m_screen.root;
    if (docked == m_docked)
        return;
    m_docked = docked;
    if (docked)
        show();
    else
        m_expelled();
}

std::optional<QRect> TrayDock::frame() const
{
    const std::optional<QRect> native = m_docked ? m_screen.visibleFrame(m_window) : std::nullopt;
    if (!native)
        return std::nullopt;
    return toApplicationCoordinates(*native, scaledScreens());
}

void TrayDock::resizeEvent(QResizeEvent *)
{
    if (windowHandle())
        requestSize();
    if (!m_view)
        return;
    const int side = std::min(width(), height());
    m_view->setGeometry(rect());
    m_view->setIconSize({side, side});
}

void TrayDock::moveEvent(QMoveEvent *)
{
    update();
}

void TrayDock::paintEvent(QPaintEvent *)
{
    if (!m_translucent)
        QPainter(this).drawImage(rect(), panelBackground());
}

QImage TrayDock::panelBackground() const
{
    // The server can paint the parent's background into the window; it is read back and the icon is blended over it.
    const std::optional<QRect> frame = m_screen.visibleFrame(m_window);
    if (!frame)
        return {};
    const auto width = static_cast<quint16>(frame->width());
    const auto height = static_cast<quint16>(frame->height());
    const quint32 parentRelative = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    xcb_connection_t *const connection = m_screen.connection;
    m_screen.ignoreOutcome(
        xcb_change_window_attributes_checked(connection, m_window, XCB_CW_BACK_PIXMAP, &parentRelative));
    m_screen.ignoreOutcome(xcb_clear_area_checked(connection, 0, m_window, 0, 0, width, height));
    const auto request =
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, 0, 0, width, height, ~quint32{0});
    const XReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection, request, nullptr));
    const int expected = width * height * 4;
    if (!reply || reply->depth != 24 || xcb_get_image_data_length(reply.get()) < expected)
        return {};
    return QImage(xcb_get_image_data(reply.get()), width, height, qsizetype(width) * 4, QImage::Format_RGB32).copy();
}

void TrayDock::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_menu)
        m_menu->popup(event->globalPos());
}

} // namespace tarvo
