#include "setup/settings/RootRights.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// The last thing on a way through the file system that has been looked at.
class Step {
public:
    Step() = default;
    ~Step() { close(m_descriptor); }
    Step(const Step &) = delete;
    Step &operator=(const Step &) = delete;

    /// Goes on to @p name, following no link. @return whether it is there
    bool advance(const QString &name)
    {
        const int next = openat(m_descriptor, QFile::encodeName(name).constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
        close(m_descriptor);
        m_descriptor = next;
        return next >= 0;
    }

    /// @return whether nobody but root can change what it is, or what is in it that is root's
    bool isRootsAlone() const
    {
        struct stat status = {};
        if (fstat(m_descriptor, &status) != 0 || status.st_uid != 0 || S_ISLNK(status.st_mode))
            return false;
        const bool othersWrite =
            (status.st_mode & S_IWOTH) != 0 || ((status.st_mode & S_IWGRP) != 0 && status.st_gid != 0);
        return !othersWrite || (S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0);
    }

private:
    int m_descriptor = open("/", O_PATH | O_CLOEXEC);
};

/// @return whether this is root, and not only the root of a user's own namespace, whose rights are that user's
bool isRoot()
{
    struct stat status = {};
    return geteuid() == 0 && stat("/", &status) == 0 && status.st_uid == 0;
}

} // namespace

QString foreignPart(const QString &path)
{
    Step step;
    QString part;
    for (const QString &name : QDir::cleanPath(path).split(u'/', Qt::SkipEmptyParts)) {
        if (!step.advance(name))
            return {};
        part += u'/' + name;
        if (!step.isRootsAlone())
            return part;
    }
    return {};
}

QString rootRefusal(const QString &path, Scope scope)
{
    if (!isRoot())
        return {};
    if (const QString part = foreignPart(path); !part.isEmpty())
        return qtTrId("RootRefuses").arg(part);
    const QString user = qEnvironmentVariable("SUDO_USER");
    if (scope == Scope::System || user.isEmpty() || user == u"root")
        return {};
    return qtTrId("RootsSettings").arg(user);
}

} // namespace tarvo
