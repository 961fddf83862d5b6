#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/Compositing.h"
#include "platform/linux/DesktopNotifications.h"
#include "platform/linux/DesktopStatusBar.h"
#include "platform/linux/LogindWorkspace.h"
#include "platform/linux/NetlinkDynamicStore.h"
#include "platform/linux/SingleInstance.h"
#include "platform/linux/SocketBinding.h"
#include "platform/linux/SteadyClock.h"
#include "platform/linux/SyslogLog.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/UdevDeviceRegistry.h"
#include "ui/Images.h"
#include "ui/Translations.h"

#include <QApplication>
#include <QDBusConnection>
#include <QLocale>
#include <QTextStream>

#include <cstdlib>

using namespace tarvo;

namespace {

int run(QApplication &application)
{
    SyslogLog systemLog;
    const ConfigManager &settings = ConfigManager::sharedConfigManager();
    systemLog.write(QStringLiteral("settings: ")
                    + settings.settingPath().value_or(QStringLiteral("no tarvo/Config.plist was found")));
    if (const auto &problem = settings.loadProblem())
        systemLog.write(*problem);

    NetlinkDynamicStore dynamicStore(systemLog);
    UdevDeviceRegistry deviceRegistry([&](const QString &name) { return dynamicStore.interfaceIndex(name); });
    dynamicStore.setLinkRemovedHandler([&](int interfaceIndex) { deviceRegistry.forgetInterface(interfaceIndex); });
    LogindWorkspace workspace(systemBusAddress(), systemLog);
    const QDBusConnection sessionBus = QDBusConnection::sessionBus();
    DesktopStatusBar statusBar(sessionBus);
    DesktopNotifications notifications(sessionBus, systemLog);
    SteadyClock clock;

    MainController controller({dynamicStore, deviceRegistry, workspace, statusBar, clock, systemLog,
                               [&](const QString &name) { return socketBinder(dynamicStore.interfaceIndex(name)); },
                               &QApplication::quit, &notifications, isScreenComposited});
    const TerminationSignals signals([] { QApplication::quit(); });
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

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarvo"));
    QApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("io.github.tarvo.Tarvo"));
    QApplication::setQuitOnLastWindowClosed(false);

    installTranslations(application, QLocale());
    QApplication::setWindowIcon(applicationImage());

    const SingleInstance instance(QStringLiteral("tarvo"));
    if (!instance.isOnly()) {
        QTextStream(stderr) << "tarvo: another instance is running already\n";
        return EXIT_FAILURE;
    }
    return run(application);
}
