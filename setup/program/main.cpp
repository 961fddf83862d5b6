#include "apn/tool/FolderReport.h"
#include "platform/SystemLog.h"
#include "platform/linux/desktop/DesktopFactsReader.h"
#include "platform/linux/network/LeaseFiles.h"
#include "platform/linux/network/NetlinkDynamicStore.h"
#include "platform/linux/network/SocketBinding.h"
#include "platform/linux/network/UdevUsbNetworkDevices.h"
#include "setup/checks/Survey.h"
#include "setup/command/CommandLine.h"
#include "setup/window/SetupWindow.h"
#include "ui/look/Images.h"
#include "ui/look/Translations.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>
#include <QTextStream>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const QString companionName = u"io.github.tarvo.Tarvo"_s; // on the session bus

class StandardErrorLog final : public SystemLog {
public:
    void write(const QString &line) override { QTextStream(stderr) << line << Qt::endl; }
};

ProfileFacts readProfiles()
{
    const QString folder = QStringLiteral(TARVO_PROFILE_FOLDER);
    ProfileFacts facts{.wanted = true, .folder = folder, .folderExists = QFileInfo(folder).isDir()};
    if (!facts.folderExists)
        return facts;
    const FolderReport report = reportFolder(folder);
    if (!report.isInOrder)
        facts.problems = report.lines;
    return facts;
}

/// Ends the process with @p status. Threads that wait for a bus that never answers would keep it from ending by itself.
[[noreturn]] void endAtOnce(int status)
{
    std::fflush(nullptr);
    std::_Exit(status);
}

bool startCompanion()
{
    const QString beside = QStandardPaths::findExecutable(u"tarvo"_s, {QCoreApplication::applicationDirPath()});
    const QString program = beside.isEmpty() ? QStandardPaths::findExecutable(u"tarvo"_s) : beside;
    return !program.isEmpty() && QProcess::startDetached(program, {});
}

int runOn(const std::function<int(const SetupServices &services, Survey &survey)> &body)
{
    StandardErrorLog log;
    LeaseFiles leases;
    NetlinkDynamicStore dynamicStore(log, leases);
    UdevUsbNetworkDevices usbDevices;
    const SetupServices services{
        .usbDevices = usbDevices,
        .dynamicStore = dynamicStore,
        .interfaceState = [&](int index) { return dynamicStore.interfaceState(index); },
        .socketBinderFor = [](const UsbNetworkDevice &device) { return socketBinder(device.interfaceIndex); },
        .startCompanion = startCompanion,
        .readDesktop = [] { return readDesktopFacts(companionName); },
        .restartCompanion = [] { return activateAction(companionName, u"restart"_s); },
        .readProfiles = readProfiles,
    };
    Survey survey(services);
    const int status = body(services, survey);
    if (survey.isBusy())
        endAtOnce(status);
    return status;
}

int runInTerminal(int argc, char **argv, const Command &command)
{
    QCoreApplication application(argc, argv);
    installTranslations(application, QLocale(), u"tarvo-setup"_s);
    return runOn([&](const SetupServices &, Survey &survey) { return runCommand(command, survey); });
}

int runInWindow(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setDesktopFileName(u"io.github.tarvo.Tarvo.Setup"_s);
    installTranslations(application, QLocale(), u"tarvo-setup"_s);
    QApplication::setWindowIcon(applicationImage());
    return runOn([](const SetupServices &services, Survey &survey) {
        SetupWindow window(services, survey);
        window.show();
        return QApplication::exec();
    });
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

QStringList textsOf(int argc, char **argv)
{
    QStringList texts;
    for (int i = 0; i < argc; ++i)
        texts.append(QString::fromLocal8Bit(argv[i]));
    return texts;
}

int printed(const QString &output)
{
    QTextStream(stdout) << output << Qt::flush;
    if (std::ferror(stdout) == 0)
        return exit_status::inOrder;
    QTextStream(stderr) << u"tarvo-setup: the output cannot be written"_s << Qt::endl;
    return exit_status::failed;
}

} // namespace

int main(int argc, char **argv)
{
    qunsetenv("SSLKEYLOGFILE"); // libcurl makes that file as soon as it is loaded, though no TLS is ever spoken
    if (fcntl(STDOUT_FILENO, F_GETFD) == -1)
        open("/dev/full", O_WRONLY); // or else a file that is opened later is taken for the output
    QCoreApplication::setApplicationName(u"tarvo-setup"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    const Command command = commandFrom(textsOf(argc, argv));
    if (!command.error.isEmpty()) {
        QTextStream(stderr) << u"tarvo-setup: "_s << command.error << Qt::endl;
        return exit_status::wrongUse;
    }
    if (!command.output.isEmpty())
        return printed(command.output);
    if (!command.words.isEmpty())
        return runInTerminal(argc, argv, command);
    if (hasDisplay())
        return runInWindow(argc, argv);
    QTextStream(stderr) << u"tarvo-setup: there is no display for the window; see tarvo-setup --help"_s << Qt::endl;
    return exit_status::wrongUse;
}
