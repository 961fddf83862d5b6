#include "platform/WholeFile.h"

#include <QSaveFile>

#include <unistd.h>

#include <cerrno>

namespace tarvo {

QString writeWholeFile(const QString &path, const QByteArray &bytes,
                       std::optional<QFileDevice::Permissions> permissions)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || (permissions && !file.setPermissions(*permissions)))
        return file.errorString();
    // A commit does not tell when the flush in it fails (Qt 6.4), nor when the disk does not take what it was given.
    if (file.write(bytes) != bytes.size() || !file.flush())
        return file.errorString();
    if (fsync(file.handle()) != 0 && errno != EINVAL) // which says that there is nothing to wait for
        return qt_error_string(errno);
    return file.commit() ? QString() : file.errorString();
}

} // namespace tarvo
