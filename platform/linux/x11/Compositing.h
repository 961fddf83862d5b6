#pragma once

namespace tarvo {

/// @return whether windows may be translucent: on X11 while a compositing manager owns the screen's selection
///         (Extended Window Manager Hints, `_NET_WM_CM_Sn`), on Wayland always. Needs the GUI application.
bool isScreenComposited();

} // namespace tarvo
