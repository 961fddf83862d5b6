#pragma once

namespace tarvo {

/// @return whether a web browser is installed: one that the environment names, that Debian's alternatives know, or that
///         says so in its desktop entry (freedesktop.org Desktop Entry Specification). Entries of what would only look
///         for one are not taken for it
bool isWebBrowserInstalled();

} // namespace tarvo
