#include "platform/linux/x11/XScreen.h"

#include <QGuiApplication>

#include <xcb/res.h>

#include <algorithm>

namespace tarvo {

namespace {

xcb_window_t rootOf(xcb_connection_t *connection, int number)
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 1 && number > 0; --number)
        xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data->root : xcb_window_t{XCB_WINDOW_NONE};
}

QRect nativeGeometry(const ScaledScreen &screen)
{
    return {screen.geometry.topLeft(), (QSizeF(screen.geometry.size()) * screen.ratio).toSize()};
}

} // namespace

std::optional<XScreen> XScreen::ofApplication()
{
    // Other platforms may have the interface as well, without a connection that windows are on.
    const auto *const application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (QGuiApplication::platformName() != QLatin1String("xcb") || !application)
        return std::nullopt;
    XScreen screen{.connection = application->connection()};
    char *host = nullptr;
    int display = 0;
    xcb_parse_display(nullptr, &host, &display, &screen.number);
    std::free(host);
    screen.root = rootOf(screen.connection, screen.number);
    return screen;
}

xcb_atom_t XScreen::atom(const QByteArray &name) const
{
    const auto request = xcb_intern_atom(connection, 0, static_cast<quint16>(name.size()), name.constData());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, request, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t XScreen::ownerOf(xcb_atom_t selection) const
{
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

std::optional<quint32> XScreen::property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const
{
    const auto request = xcb_get_property(connection, 0, window, name, type, 0, 1);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, request, nullptr));
    if (!reply || reply->type != type || reply->format != 32 || reply->value_len == 0)
        return std::nullopt;
    return *static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
}

bool XScreen::addEvents(xcb_window_t window, quint32 events) const
{
    const auto request = xcb_get_window_attributes(connection, window);
    const XReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection, request, nullptr));
    if (!attributes)
        return false;
    const quint32 mask = attributes->your_event_mask | events;
    const XReply<xcb_generic_error_t> error(xcb_request_check(
        connection, xcb_change_window_attributes_checked(connection, window, XCB_CW_EVENT_MASK, &mask)));
    return !error;
}

std::optional<QRect> XScreen::visibleFrame(xcb_window_t window) const
{
    const auto attributesRequest = xcb_get_window_attributes(connection, window);
    const auto geometryRequest = xcb_get_geometry(connection, window);
    const auto originRequest = xcb_translate_coordinates(connection, window, root, 0, 0);
    const XReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection, attributesRequest, nullptr));
    const XReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(connection, geometryRequest, nullptr));
    const XReply<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(connection, originRequest, nullptr));
    if (!attributes || !geometry || !origin || attributes->map_state != XCB_MAP_STATE_VIEWABLE)
        return std::nullopt;
    return QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
}

quint32 XScreen::processOf(xcb_window_t window) const
{
    if (!xcb_get_extension_data(connection, &xcb_res_id)->present)
        return 0;
    const xcb_res_client_id_spec_t wanted{.client = window, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto request = xcb_res_query_client_ids(connection, 1, &wanted);
    const XReply<xcb_res_query_client_ids_reply_t> reply(xcb_res_query_client_ids_reply(connection, request, nullptr));
    if (!reply || reply->num_ids == 0)
        return 0;
    const auto ids = xcb_res_query_client_ids_ids_iterator(reply.get());
    return xcb_res_client_id_value_value_length(ids.data) > 0 ? *xcb_res_client_id_value_value(ids.data) : 0;
}

void XScreen::sendMessage(xcb_window_t window, xcb_atom_t type, const std::array<quint32, 5> &items,
                          quint32 events) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    std::ranges::copy(items, message.data.data32);
    ignoreOutcome(xcb_send_event_checked(connection, 0, window, events, reinterpret_cast<const char *>(&message)));
    xcb_flush(connection);
}

void XScreen::ignoreOutcome(xcb_void_cookie_t request) const
{
    xcb_discard_reply(connection, request.sequence);
}

QRect toApplicationCoordinates(const QRect &native, const QList<ScaledScreen> &screens)
{
    for (const ScaledScreen &screen : screens) {
        if (!nativeGeometry(screen).contains(native.center()))
            continue;
        const QPointF offset = QPointF(native.topLeft() - screen.geometry.topLeft()) / screen.ratio;
        const QSizeF size = QSizeF(native.size()) / screen.ratio;
        return {screen.geometry.topLeft() + offset.toPoint(), size.toSize()};
    }
    return native;
}

} // namespace tarvo
