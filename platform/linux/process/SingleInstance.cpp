#include "platform/linux/process/SingleInstance.h"

#include <QFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString lockPath(const QString &program)
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QLatin1Char('/') + program + u".lock"_s;
}

/// Opens a file, which is made when it is missing, without following a link or waiting for anybody.
int openFile(const QString &path)
{
    constexpr int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return open(QFile::encodeName(path).constData(), flags, S_IRUSR | S_IWUSR);
}

bool isRegular(int file)
{
    struct stat status { };
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

SingleInstance::SingleInstance(const QString &program)
{
    const QString path = lockPath(program);
    m_file = openFile(path);
    if (m_file >= 0 && !isRegular(m_file))
        m_problem = path + u" is no regular file"_s;
    else if (m_file >= 0 && flock(m_file, LOCK_EX | LOCK_NB) == 0)
        return;
    else if (m_file >= 0 && errno == EWOULDBLOCK)
        m_only = false;
    else
        m_problem = path + u": "_s + qt_error_string(errno);
}

SingleInstance::~SingleInstance()
{
    if (m_file >= 0)
        close(m_file);
}

} // namespace tarvo
