#include "platform/linux/SyslogLog.h"

#include <QByteArray>
#include <QList>

#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

namespace tarvo {

namespace {

bool standardErrorIsTheJournal()
{
    const QList<QByteArray> journal = qgetenv("JOURNAL_STREAM").split(':');
    struct stat status { };
    if (journal.size() != 2 || fstat(STDERR_FILENO, &status) != 0)
        return false;
    return journal[0].toULongLong() == status.st_dev && journal[1].toULongLong() == status.st_ino;
}

void writeAll(int descriptor, QByteArray bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.constData(), static_cast<size_t>(bytes.size()));
        if (written <= 0)
            return;
        bytes.remove(0, written);
    }
}

} // namespace

SyslogLog::SyslogLog()
    : m_echo(!standardErrorIsTheJournal())
{
    openlog("tarvo", LOG_PID, LOG_USER);
}

SyslogLog::~SyslogLog()
{
    closelog();
}

void SyslogLog::write(const QString &line)
{
    const QByteArray bytes = line.toUtf8();
    syslog(LOG_INFO, "%s", bytes.constData());
    if (m_echo)
        writeAll(STDERR_FILENO, bytes + '\n');
}

} // namespace tarvo
