#include "platform/linux/LogindWorkspace.h"

#include "platform/linux/DesktopEntry.h"
#include "platform/linux/InheritedDescriptors.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxDesktopFileSize = 1 << 20;

QStringList commandFor(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return {};
    if (!path.endsWith(u".desktop"))
        return {QFileInfo(path).absoluteFilePath()};
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? commandOfDesktopEntry(file.read(maxDesktopFileSize)) : QStringList();
}

bool isComplete(const QUrl &url)
{
    const bool needsHost = url.scheme() == u"http" || url.scheme() == u"https";
    return url.isValid() && !url.isRelative() && !(needsHost && url.host().isEmpty());
}

} // namespace

LogindWorkspace::LogindWorkspace(BusConnection &systemBus, SystemLog &log)
    : m_sleep(
        systemBus, log,
        [this] {
            for (const auto &[willSleep, didWake] : m_observers)
                willSleep();
        },
        [this] {
            for (const auto &[willSleep, didWake] : m_observers)
                didWake();
        })
{
}

void LogindWorkspace::addSleepObserver(Handler willSleep, Handler didWake)
{
    m_observers.emplace_back(std::move(willSleep), std::move(didWake));
}

bool LogindWorkspace::openURL(const QUrl &url)
{
    closeDescriptorsOnExec();
    return isComplete(url) && QDesktopServices::openUrl(url);
}

bool LogindWorkspace::launchApplication(const QString &path)
{
    QStringList command = commandFor(path);
    if (command.isEmpty())
        return false;
    const QString program = command.takeFirst();
    closeDescriptorsOnExec();
    return QProcess::startDetached(program, command);
}

} // namespace tarvo
