#include "apn/tool/FolderReport.h"
#include "platform/SystemLog.h"
#include "platform/linux/DesktopFactsReader.h"
#include "platform/linux/NetlinkDynamicStore.h"
#include "platform/linux/SocketBinding.h"
#include "platform/linux/UdevUsbNetworkDevices.h"
#include "setup/CommandLine.h"
#include "setup/Survey.h"
#include "ui/Translations.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QTextStream>

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
    const FolderReport report = reportFolder(folder, builtInProfileKey());
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

int runOn(const std::function<int(Survey &survey)> &body)
{
    StandardErrorLog log;
    NetlinkDynamicStore dynamicStore(log);
    UdevUsbNetworkDevices usbDevices;
    const SetupServices services{
        .usbDevices = usbDevices,
        .dynamicStore = dynamicStore,
        .interfaceState = [&](int index) { return dynamicStore.interfaceState(index); },
        .bindSocket = [](int socket,
                         const UsbNetworkDevice &device) { bindSocketToInterface(socket, device.interfaceName); },
        .readDesktop = [] { return readDesktopFacts(companionName); },
        .restartCompanion = [] { return activateAction(companionName, u"restart"_s); },
        .readProfiles = readProfiles,
    };
    Survey survey(services);
    const int status = body(survey);
    if (survey.isBusy())
        endAtOnce(status);
    return status;
}

int runInTerminal(int argc, char **argv, const Command &command)
{
    QCoreApplication application(argc, argv);
    installTranslations(application, QLocale(), u"tarvo-setup"_s);
    return runOn([&](Survey &survey) { return runCommand(command, survey); });
}

QStringList textsOf(int argc, char **argv)
{
    QStringList texts;
    for (int i = 0; i < argc; ++i)
        texts.append(QString::fromLocal8Bit(argv[i]));
    return texts;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(u"tarvo-setup"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    const Command command = commandFrom(textsOf(argc, argv));
    if (!command.error.isEmpty()) {
        QTextStream(stderr) << u"tarvo-setup: "_s << command.error << Qt::endl;
        return exit_status::wrongUse;
    }
    QTextStream(stdout) << command.output << Qt::flush;
    if (!command.output.isEmpty())
        return exit_status::inOrder;
    return runInTerminal(argc, argv, command);
}
