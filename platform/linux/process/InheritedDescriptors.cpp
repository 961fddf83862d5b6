#include "platform/linux/process/InheritedDescriptors.h"

#include <linux/close_range.h>
#include <unistd.h>

#include <limits>

namespace tarvo {

void closeDescriptorsOnExec()
{
    close_range(STDERR_FILENO + 1, std::numeric_limits<unsigned>::max(), CLOSE_RANGE_CLOEXEC);
}

} // namespace tarvo
