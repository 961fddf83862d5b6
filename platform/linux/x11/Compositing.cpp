#include "platform/linux/x11/Compositing.h"

#include "platform/linux/x11/XScreen.h"

#include <QGuiApplication>

namespace tarvo {

bool isScreenComposited()
{
    if (QGuiApplication::platformName().startsWith(u"wayland"))
        return true;
    const std::optional<XScreen> x = XScreen::ofApplication();
    return x && x->ownerOf(x->selection("_NET_WM_CM_S")) != XCB_WINDOW_NONE;
}

} // namespace tarvo
