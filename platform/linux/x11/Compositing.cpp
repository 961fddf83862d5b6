#include "platform/linux/x11/Compositing.h"

#include "platform/linux/x11/XScreen.h"

#include <QByteArray>
#include <QGuiApplication>

namespace tarvo {

bool isScreenComposited()
{
    if (QGuiApplication::platformName().startsWith(u"wayland"))
        return true;
    const std::optional<XScreen> x = XScreen::ofApplication();
    if (!x)
        return false;
    const xcb_atom_t selection = x->atom("_NET_WM_CM_S" + QByteArray::number(x->number));
    const XReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(x->connection, xcb_get_selection_owner(x->connection, selection), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace tarvo
