#pragma once

#include <sys/types.h>

namespace tarvo {

/// Ends all processes of the session that @p leader leads, unless one of them could show a window: it has the library of
/// a display server loaded, or does not let itself be looked into.
/// @return whether they were ended
bool endSessionWithoutWindows(pid_t leader);

} // namespace tarvo
