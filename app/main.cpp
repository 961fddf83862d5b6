#include "RouterObserver/ConfigManager.h"
#include "RouterObserver/SettingFile.h"
#include "app/HandOver.h"
#include "app/MainController.h"
#include "app/RemoteControl.h"
#include "app/command/Commands.h"
#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/bus/BusAddress.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/BusInterface.h"
#include "platform/linux/bus/SessionBusForQt.h"
#include "platform/linux/desktop/DesktopNotifications.h"
#include "platform/linux/desktop/LogindWorkspace.h"
#include "platform/linux/log/QtMessages.h"
#include "platform/linux/log/SyslogLog.h"
#include "platform/linux/network/KernelInterfaceFacts.h"
#include "platform/linux/network/LeaseFiles.h"
#include "platform/linux/network/NetlinkDynamicStore.h"
#include "platform/linux/network/UdevDeviceRegistry.h"
#include "platform/linux/network/UdevUsbNetworkDevices.h"
#include "platform/linux/process/Restart.h"
#include "platform/linux/process/SingleInstance.h"
#include "platform/linux/process/SteadyClock.h"
#include "platform/linux/process/TerminationSignals.h"
#include "platform/linux/tray/DesktopStatusBar.h"
#include "platform/linux/x11/Compositing.h"
#include "ui/look/Translations.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <optional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const QString applicationId = u"io.github.tarvo.Tarvo"_s;

/// @return the program that makes the settings, beside this one or in the PATH; empty when it is not installed
QString findSetupProgram()
{
    const QString name = u"tarvo-setup"_s;
    const QString beside = QStandardPaths::findExecutable(name, {QApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

/// Has the instance that runs already show itself. @return the exit status
int showRunningInstance()
{
    if (activateRunningApplication(sessionBusAddress(), applicationId))
        return EXIT_SUCCESS;
    QTextStream(stderr) << "tarvo: another instance is running already\n";
    return EXIT_FAILURE;
}

/// The operating system and the desktop, as the controller sees them.
class Surroundings {
public:
    Surroundings(Restart &restart, SystemLog &systemLog);

    Services services();
    BusConnection &sessionBus() { return m_sessionBus; }
    /// A modem that slept along says nothing by itself, so that its state is told again after the machine woke.
    void announceServicesAfterWake();

private:
    void lookAgain();

    SystemLog &m_systemLog;
    LeaseFiles m_leases;
    NetlinkDynamicStore m_dynamicStore{m_systemLog, m_leases};
    QTimer m_lookAgain; ///< fires when what waits for a device shall hear of it once more
    UdevDeviceRegistry m_deviceRegistry{[this](const QString &name) { return m_dynamicStore.interfaceIndex(name); },
                                        [this] { lookAgain(); }};
    BusConnection m_systemBus{systemBusAddress()};
    BusConnection m_sessionBus{sessionBusAddress()};
    LogindWorkspace m_workspace{m_systemBus, m_sessionBus, m_systemLog};
    DesktopStatusBar m_statusBar;
    DesktopNotifications m_notifications{m_sessionBus, m_systemLog};
    SteadyClock m_clock;
    UdevUsbNetworkDevices m_usbDevices;
    KernelInterfaceFacts m_interfaces{m_dynamicStore, m_usbDevices};
};

Surroundings::Surroundings(Restart &restart, SystemLog &systemLog)
    : m_systemLog(systemLog)
    , m_statusBar(m_sessionBus, [&restart] { restart.requestLater(); }) // the icon shows only in a new process then
{
    m_lookAgain.setSingleShot(true);
    QObject::connect(&m_lookAgain, &QTimer::timeout, &m_lookAgain, [this] {
        m_dynamicStore.announce(store::interfaceListKey);
        m_dynamicStore.announce(store::anyServiceIPv4Pattern);
    });
    m_dynamicStore.setLinkRemovedHandler([this](int index) { m_deviceRegistry.forgetInterface(index); });
}

void Surroundings::lookAgain()
{
    if (!m_lookAgain.isActive())
        m_lookAgain.start(std::chrono::seconds(1));
}

void Surroundings::announceServicesAfterWake()
{
    m_workspace.addSleepObserver([] {}, [this] { m_dynamicStore.announceServices(); });
}

Services Surroundings::services()
{
    Services services{.dynamicStore = m_dynamicStore,
                      .deviceRegistry = m_deviceRegistry,
                      .interfaces = m_interfaces,
                      .workspace = m_workspace,
                      .statusBar = m_statusBar,
                      .clock = m_clock,
                      .systemLog = m_systemLog,
                      .settings = ConfigManager::sharedConfigManager(),
                      .terminate = [] { QApplication::quit(); },
                      .notifications = &m_notifications,
                      .isScreenComposited = isScreenComposited};
    const QString setupProgram = findSetupProgram();
    if (!setupProgram.isEmpty())
        services.openSettings = [this, setupProgram] { m_workspace.launchApplication(setupProgram); };
    return services;
}

/// @return what the interface of this program offers on the session bus, as introspection data
QString interfaceDescription()
{
    QFile file(u":/tarvo/bus/io.github.tarvo.Tarvo1.xml"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What others can read of the settings in use.
QVariantMap settingsReport()
{
    const ConfigManager &settings = ConfigManager::sharedConfigManager();
    return {{settingPathProperty, settings.settingPath().value_or(QString())},
            {settingDigestProperty, settings.digest()}};
}

void logSettings(SystemLog &systemLog)
{
    const ConfigManager &settings = ConfigManager::sharedConfigManager();
    systemLog.write(u"settings: "_s + settings.settingPath().value_or(u"no tarvo/Config.plist was found"_s));
    if (const auto &problem = settings.loadProblem())
        systemLog.write(*problem);
}

int run(QApplication &application, SystemLog &systemLog)
{
    logSettings(systemLog);
    Restart restart;
    Surroundings surroundings(restart, systemLog);
    const Services services = surroundings.services();
    MainController controller(services);
    BusInterface publicInterface(surroundings.sessionBus(), applicationObjectPath(applicationId),
                                 interfaceDescription());
    RemoteControl remoteControl(controller, publicInterface,
                                {.openSetup = services.openSettings, .quit = services.terminate}, settingsReport());
    const ApplicationService service(
        surroundings.sessionBus(), applicationId,
        {.activate = [&] { controller.showStatus(); }, .restart = [&restart] { restart.request(); }}, &publicInterface);
    QObject::connect(&application, &QApplication::aboutToQuit, &application, [&] {
        controller.applicationShouldTerminate();
        controller.applicationWillTerminate();
    });

    remoteControl.start();
    controller.takeOver(takeHandOver());
    controller.awakeFromNib();
    surroundings.announceServicesAfterWake(); // after the controller woke
    controller.applicationDidFinishLaunching();
    const int status = QApplication::exec();
    if (status == Restart::exitStatus)
        leaveHandOver(controller.handOver());
    return status;
}

int start(int argc, char **argv, SystemLog &systemLog)
{
    std::optional<SessionBusForQt> sessionBusForQt(std::in_place);
    // Goes with the process: its destructor waits for the display, and loads all fonts only to let go of them when
    // nothing has needed one.
    QApplication &application = *new QApplication(argc, argv);
    sessionBusForQt.reset();
    const TerminationSignals signals(&QApplication::quit);
    QApplication::setApplicationName(u"Tarvo"_s); // the icon's title, too, in bars that show one
    QApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    QApplication::setDesktopFileName(applicationId);
    QApplication::setQuitOnLastWindowClosed(false);

    installTranslations(application, QLocale());

    const SingleInstance instance(u"tarvo"_s);
    if (!instance.isOnly())
        return showRunningInstance();
    if (const auto &problem = instance.problem())
        systemLog.write(u"cannot tell whether another instance runs: "_s + *problem);
    return run(application, systemLog);
}

/// All is written to the log when this returns.
int startWithLog(int argc, char **argv)
{
    SyslogLog systemLog;
    const QtMessages messages(systemLog);
    return start(argc, argv, systemLog);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1)
        return runCommand(argc, argv, sessionBusAddress(), applicationId);
    qunsetenv("SSLKEYLOGFILE"); // libcurl makes that file as soon as it is loaded, though no TLS is ever spoken
    const int status = startWithLog(argc, argv);
    if (status != Restart::exitStatus)
        return status;
    Restart::execute(argv);
    return EXIT_FAILURE;
}
