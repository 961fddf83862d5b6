#include "platform/linux/Compositing.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace tarvo {

namespace {

struct Freed {
    void operator()(void *memory) const { std::free(memory); }
};

template <typename T>
using Reply = std::unique_ptr<T, Freed>;

bool hasOwner(xcb_connection_t *connection, const std::string &selection)
{
    const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(selection.size()), selection.c_str()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace

bool isScreenComposited()
{
    if (QGuiApplication::platformName().startsWith(u"wayland"))
        return true;
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return false;
    int screen = 0;
    char *host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) == 0)
        return false;
    std::free(host);
    return hasOwner(x11->connection(), "_NET_WM_CM_S" + std::to_string(screen));
}

} // namespace tarvo
