#include "platform/linux/process/OpenerSession.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>
#include <QString>

#include <unistd.h>

#include <algorithm>
#include <csignal>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QList<pid_t> processesOf(pid_t session)
{
    QList<pid_t> processes;
    for (const QString &name : QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const pid_t process = name.toInt(); // 0 for what is no process
        if (process > 0 && getsid(process) == session)
            processes.append(process);
    }
    return processes;
}

bool couldShowWindows(pid_t process)
{
    QFile maps(u"/proc/%1/maps"_s.arg(process));
    if (!maps.open(QIODevice::ReadOnly))
        return maps.exists();
    const QByteArray files = maps.readAll();
    return files.contains("/libX11.so") || files.contains("/libxcb.so") || files.contains("/libwayland-client.so");
}

} // namespace

bool endSessionWithoutWindows(pid_t leader)
{
    const QList<pid_t> processes = processesOf(leader);
    if (std::ranges::any_of(processes, couldShowWindows))
        return false;
    for (const pid_t process : processes)
        kill(process, SIGKILL);
    return true;
}

} // namespace tarvo
