#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "platform/linux/BusAddress.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/Compositing.h"
#include "platform/linux/DesktopNotifications.h"
#include "platform/linux/DesktopStatusBar.h"
#include "platform/linux/InheritedDescriptors.h"
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
#include "ui/Images.h"
#include "ui/Translations.h"

#include <QApplication>
#include <QLocale>
#include <QTextStream>
#include <QTimer>

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <optional>

using namespace tarvo;

namespace {

constexpr int startOver = 75; // what the event loop returns when the program shall begin anew

/// Begins anew, as only a new process can show its icon in a host of a session bus that came late; not at once, lest a bus
/// in trouble keeps the program busy.
void startOverLater(QApplication &application)
{
    QTimer::singleShot(std::chrono::seconds(10), &application, [] { QApplication::exit(startOver); });
}

int run(QApplication &application, SystemLog &systemLog)
{
    if (const auto &problem = ConfigManager::sharedConfigManager().loadProblem())
        systemLog.write(*problem);

    NetlinkDynamicStore dynamicStore(systemLog);
    UdevDeviceRegistry deviceRegistry([&](const QString &name) { return dynamicStore.interfaceIndex(name); });
    dynamicStore.setLinkRemovedHandler([&](int interfaceIndex) { deviceRegistry.forgetInterface(interfaceIndex); });
    BusConnection systemBus(systemBusAddress());
    BusConnection sessionBus(sessionBusAddress());
    LogindWorkspace workspace(systemBus, systemLog);
    DesktopStatusBar statusBar(sessionBus, [&] { startOverLater(application); });
    DesktopNotifications notifications(sessionBus, systemLog);
    SteadyClock clock;

    MainController controller({dynamicStore, deviceRegistry, workspace, statusBar, clock, systemLog,
                               bindSocketToInterface, &QApplication::quit, &notifications, isScreenComposited});
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
    QApplication::setApplicationName(QStringLiteral("tarvo"));
    QApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tarvo"));
    QApplication::setQuitOnLastWindowClosed(false);

    installTranslations(application, QLocale());
    QApplication::setWindowIcon(applicationImage());

    const SingleInstance instance(QStringLiteral("tarvo"));
    if (!instance.isOnly()) {
        QTextStream(stderr) << "tarvo: another instance is running already\n";
        return EXIT_FAILURE;
    }
    return run(application, systemLog);
}

} // namespace

int main(int argc, char **argv)
{
    SyslogLog systemLog;
    const QtMessages messages(systemLog);
    const int status = start(argc, argv, systemLog);
    if (status != startOver)
        return status;
    closeDescriptorsOnExec();
    execvp(argv[0], argv);
    return EXIT_FAILURE;
}
