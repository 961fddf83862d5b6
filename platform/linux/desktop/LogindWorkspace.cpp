#include "platform/linux/desktop/LogindWorkspace.h"

#include "platform/linux/process/InheritedDescriptors.h"
#include "platform/linux/process/OpenerSession.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <sys/prctl.h>
#include <unistd.h>

#include <chrono>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto openerTimeout = 15s;

/// Starts @p program with @p url as its argument. On a desktop without an opener of its own it stays for as long as the
/// browser that it has started, or is that browser: so it is left alone, and goes on when we end. One that shows nothing
/// in time is stuck, as before a bus that says nothing.
/// @param listener    at whose end nothing is told any more
/// @param notStarted  called when there is no such program, or it could not be started
/// @param failed      called when it said in time that it failed, or was stuck
void runOpener(const QString &program, const QUrl &url, QObject &listener, const Workspace::Handler &notStarted,
               const Workspace::Handler &failed)
{
    auto *const process = new QProcess; // whose destructor would end it
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setChildProcessModifier([] { setsid(); }); // a browser outlives the terminal that we run in
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QObject::connect(process, &QProcess::finished, &listener, [failed](int exitCode, QProcess::ExitStatus status) {
        if (status != QProcess::NormalExit || exitCode != 0)
            failed();
    });
    QObject::connect(process, &QProcess::errorOccurred, &listener, [process, notStarted](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        process->deleteLater();
        notStarted();
    });
    QTimer::singleShot(openerTimeout, &listener, [process = QPointer(process), &listener, failed] {
        if (!process)
            return;
        process->disconnect(&listener);
        if (endSessionWithoutWindows(static_cast<pid_t>(process->processId())))
            failed();
    });
    process->start(program, {QString::fromLatin1(url.toEncoded())});
}

/// @return whether what is started from here can never have more rights than this program
bool isLockedIn()
{
    return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1;
}

} // namespace

LogindWorkspace::LogindWorkspace(BusConnection &systemBus, BusConnection &sessionBus, SystemLog &log)
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
    , m_session(systemBus,
                [this](bool active) {
                    for (const auto &changed : m_activityObservers)
                        changed(active);
                })
    , m_portal(sessionBus)
{
}

void LogindWorkspace::addSleepObserver(Handler willSleep, Handler didWake)
{
    m_observers.emplace_back(std::move(willSleep), std::move(didWake));
}

void LogindWorkspace::addActivityObserver(std::function<void(bool active)> changed)
{
    m_activityObservers.push_back(std::move(changed));
}

void LogindWorkspace::openURL(const QUrl &url, Handler failed)
{
    if (!isWholeAddress(url))
        return failed();
    if (isLockedIn())
        return m_portal.open(url, failed);
    closeDescriptorsOnExec();
    const Handler askQt = [url, failed] {
        if (!QDesktopServices::openUrl(url))
            failed();
    };
    const Handler askPortal = [this, url, askQt] { m_portal.open(url, askQt); };
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    if (opener.isEmpty())
        askPortal();
    else
        runOpener(opener, url, m_openings, askPortal, failed);
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
