#include "platform/linux/LogindWorkspace.h"

#include "platform/linux/InheritedDescriptors.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

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
    const QFileInfo file(path);
    if (!file.isFile())
        return false;
    closeDescriptorsOnExec();
    if (path.endsWith(u".desktop"))
        return QProcess::startDetached(u"gio"_s, {u"launch"_s, file.absoluteFilePath()});
    return QProcess::startDetached(file.absoluteFilePath(), {});
}

} // namespace tarvo
