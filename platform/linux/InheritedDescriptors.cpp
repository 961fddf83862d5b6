#include "platform/linux/InheritedDescriptors.h"

#include <QDir>

#include <fcntl.h>
#include <linux/close_range.h>
#include <unistd.h>

#include <limits>

namespace tarvo {

using namespace Qt::StringLiterals;

void closeDescriptorsOnExec()
{
    constexpr unsigned first = STDERR_FILENO + 1;
    if (close_range(first, std::numeric_limits<unsigned>::max(), CLOSE_RANGE_CLOEXEC) == 0)
        return;
    // A kernel before 5.11 cannot do that in one call.
    const QStringList descriptors = QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System);
    for (const QString &name : descriptors) {
        const int descriptor = name.toInt();
        if (descriptor >= static_cast<int>(first))
            fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
}

} // namespace tarvo
