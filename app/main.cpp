#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "platform/linux/ApplicationService.h"
#include "platform/linux/BusAddress.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/Compositing.h"
#include "platform/linux/DesktopNotifications.h"
#include "platform/linux/DesktopStatusBar.h"
#include "platform/linux/InheritedDescriptors.h"
#include "platform/linux/LeaseFiles.h"
#include "platform/linux/LogindWorkspace.h"
#include "platform/linux/NetlinkDynamicStore.h"
#include "platform/linux/QtMessages.h"
#include "platform/linux/SessionBusForQt.h"
#include "platform/linux/SingleInstance.h"
#include "platform/linux/SocketBinding.h"
#include "platform/linux/SteadyClock.h"
#include "platform/linux/SyslogLog.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/UdevDeviceRegistry.h"
#include "platform/linux/UdevUsbNetworkDevices.h"
#include "ui/Images.h"
#include "ui/Translations.h"

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <optional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const QString applicationId = u"io.github.tarvo.Tarvo"_s;
constexpr int startOver = 75; // what the event loop returns when the program shall begin anew

/// Begins anew, as only a new process can show its icon in a host of a session bus that came late; not at once, lest a bus
/// in trouble keeps the program busy.
void startOverLater(QApplication &application)
{
    QTimer::singleShot(std::chrono::seconds(10), &application, [] { QApplication::exit(startOver); });
}

/// @return the program that makes the settings, beside this one or in the PATH; empty when it is not installed
QString findSetupProgram()
{
    const QString name = u"tarvo-setup"_s;
    const QString beside = QStandardPaths::findExecutable(name, {QApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

QString deviceName(UsbNetworkDevices &devices, const QString &interfaceName)
{
    for (const UsbNetworkDevice &device : devices.devices()) {
        if (device.interfaceName == interfaceName)
            return u"%1 %2"_s.arg(device.vendorName, device.productName).trimmed();
    }
    return {};
}

/// Carries out the command line, which only asks for texts. @return the exit status; nil when the program shall run
std::optional<int> answerArguments(int argc, char **argv)
{
    const QByteArrayView argument(argc > 1 ? argv[1] : "");
    if (argument.isEmpty())
        return std::nullopt;
    if (argument == "--version") {
        QTextStream(stdout) << "tarvo " TARVO_VERSION "\n";
        return EXIT_SUCCESS;
    }
    if (argument == "--help") {
        QTextStream(stdout) << "Usage: tarvo\n"
                               "Shows the state of a USB broadband modem in the status bar, and keeps running.\n"
                               "When it runs already, shows its status window.\n\n"
                               "  --help     Show this text.\n"
                               "  --version  Show the version.\n\n"
                               "Settings are made with tarvo-setup(1). See tarvo(1) for more.\n";
        return EXIT_SUCCESS;
    }
    QTextStream(stderr) << "tarvo: unknown argument " << argv[1] << "; see tarvo --help\n";
    return EXIT_FAILURE;
}

/// Has the instance that runs already show itself. @return the exit status
int showRunningInstance()
{
    if (activateRunningApplication(sessionBusAddress(), applicationId))
        return EXIT_SUCCESS;
    QTextStream(stderr) << "tarvo: another instance is running already\n";
    return EXIT_FAILURE;
}

int run(QApplication &application, SystemLog &systemLog)
{
    const ConfigManager &settings = ConfigManager::sharedConfigManager();
    systemLog.write(u"settings: "_s + settings.settingPath().value_or(u"no tarvo/Config.plist was found"_s));
    if (const auto &problem = settings.loadProblem())
        systemLog.write(*problem);

    LeaseFiles leases;
    NetlinkDynamicStore dynamicStore(systemLog, leases);
    // What waits for a device that could not be looked at hears of the same state once more, and asks again.
    QTimer lookAgain;
    lookAgain.setSingleShot(true);
    lookAgain.setInterval(std::chrono::seconds(1));
    QObject::connect(&lookAgain, &QTimer::timeout, &lookAgain, [&] {
        dynamicStore.announce(store::interfaceListKey);
        dynamicStore.announce(store::anyServiceIPv4Pattern);
    });
    UdevDeviceRegistry deviceRegistry([&](const QString &name) { return dynamicStore.interfaceIndex(name); },
                                      [&] {
                                          if (!lookAgain.isActive())
                                              lookAgain.start();
                                      });
    dynamicStore.setLinkRemovedHandler([&](int interfaceIndex) { deviceRegistry.forgetInterface(interfaceIndex); });
    BusConnection systemBus(systemBusAddress());
    BusConnection sessionBus(sessionBusAddress());
    LogindWorkspace workspace(systemBus, systemLog);
    DesktopStatusBar statusBar(sessionBus, [&] { startOverLater(application); });
    DesktopNotifications notifications(sessionBus, systemLog);
    SteadyClock clock;
    UdevUsbNetworkDevices usbDevices;
    const QString setupProgram = findSetupProgram();

    Services services{
        .dynamicStore = dynamicStore,
        .deviceRegistry = deviceRegistry,
        .workspace = workspace,
        .statusBar = statusBar,
        .clock = clock,
        .systemLog = systemLog,
        .socketBinderFor = [&](const QString &name) { return socketBinder(dynamicStore.interfaceIndex(name)); },
        .terminate = [] { QApplication::quit(); },
        .notifications = &notifications,
        .deviceName = [&](const QString &name) { return deviceName(usbDevices, name); },
        .isScreenComposited = isScreenComposited};
    if (!setupProgram.isEmpty())
        services.openSettings = [&] { workspace.launchApplication(setupProgram); };
    MainController controller(services);
    const ApplicationService service(
        sessionBus, applicationId,
        {.activate = [&] { controller.showStatus(); }, .restart = [] { QApplication::exit(startOver); }});
    QObject::connect(&application, &QApplication::aboutToQuit, &application, [&] {
        controller.applicationShouldTerminate();
        controller.applicationWillTerminate();
    });

    controller.awakeFromNib();
    // A modem that slept along says nothing by itself, so that its state is told again, after the controller woke.
    workspace.addSleepObserver([] {}, [&] { dynamicStore.announceServices(); });
    controller.applicationDidFinishLaunching();
    return QApplication::exec();
}

int start(int argc, char **argv, SystemLog &systemLog)
{
    std::optional<SessionBusForQt> sessionBusForQt(std::in_place);
    QApplication application(argc, argv);
    sessionBusForQt.reset();
    const TerminationSignals signals(&QApplication::quit);
    QApplication::setApplicationName(u"tarvo"_s);
    QApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    QApplication::setDesktopFileName(applicationId);
    QApplication::setQuitOnLastWindowClosed(false);

    installTranslations(application, QLocale());
    QApplication::setWindowIcon(applicationImage());

    const SingleInstance instance(u"tarvo"_s);
    if (!instance.isOnly())
        return showRunningInstance();
    return run(application, systemLog);
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto status = answerArguments(argc, argv))
        return *status;
    SyslogLog systemLog;
    const QtMessages messages(systemLog);
    const int status = start(argc, argv, systemLog);
    if (status != startOver)
        return status;
    closeDescriptorsOnExec();
    execvp(argv[0], argv);
    return EXIT_FAILURE;
}
