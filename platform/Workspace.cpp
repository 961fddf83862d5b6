#include "platform/Workspace.h"

namespace tarvo {

bool isWholeAddress(const QUrl &url)
{
    return url.isValid() && !url.isRelative() && (!url.scheme().startsWith(u"http") || !url.host().isEmpty());
}

} // namespace tarvo
