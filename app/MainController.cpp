#include "app/MainController.h"

#include "RouterObserver/ConfigManager.h"
#include "monitor/RepeatingTimer.h"
#include "platform/StatusBar.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"
#include "ui/Balloon.h"
#include "ui/BalloonPresenter.h"
#include "ui/CustomView.h"

#include <QMessageBox>
#include <QTimer>

#include <utility>

namespace tarvo {

MainController::MainController(Services services)
    : services_(std::move(services))
{
    log(QStringLiteral("Tarvo init success"));
}

MainController::~MainController()
{
    endAttachment();
}

void MainController::awakeFromNib()
{
    services_.workspace.addSleepObserver([this] { machineWillSleep(); }, [this] { machineDidWake(); });
}

void MainController::applicationDidFinishLaunching()
{
    if (!routerObserver_)
        routerObserver_ =
            std::make_unique<RouterObserver>(services_.dynamicStore, services_.deviceRegistry, services_.systemLog);
    startToolbarStatus();
    routerObserver_->startWatchNetworkInterface(std::make_shared<const RouterReports>(
        RouterReports{[this](const ReadyDictionary &ready) { procECMReady(ready); },
                      [this](const QString &bsdName) { procInterfaceRemoved(bsdName); }}));
}

bool MainController::windowShouldClose()
{
    if (services_.terminate)
        services_.terminate();
    return false;
}

int MainController::applicationShouldTerminate()
{
    routerObserver_.reset();
    return 1;
}

void MainController::applicationWillTerminate() { }

void MainController::machineWillSleep()
{
    log(QStringLiteral("machineWillSleep"));
    stopGetModemStatus();
}

void MainController::machineDidWake()
{
    log(QStringLiteral("machineDidWake"));
    if (!routerObserver_)
        return;
    if (routerObserver_->isInterfaceRouterReady("IOUSBInterface")
        || routerObserver_->isInterfaceRouterReady("IOUSBHostInterface"))
        startGetModemInfo();
}

void MainController::procECMReady(const ReadyDictionary &ready)
{
    if (!ready.router) {
        waitingIPv4Ready();
        return;
    }
    endAttachment(); // what still runs for an earlier device must not see this one's flags and address
    state_.resetForReadyDevice();
    routerAddr_.set(ready.router);
    routerInterface_.set(ready.kOmbraBSDName);
    startGetModemInfo();
    log(QStringLiteral("ECMReady"));
    log(*ready.router);
    log(ready.kOmbraBSDName.value_or(QStringLiteral("(null)")));
}

void MainController::procInterfaceRemoved(const QString &bsdName)
{
    log(bsdName);
    stopGetModemStatus();
}

void MainController::waitingIPv4Ready() { }

void MainController::startGetModemInfo()
{
    log(QStringLiteral("startGetModemInfo"));
    startGetModemStatus();
}

QString MainController::getNetInfoAddress() const
{
    return configurationText(QStringLiteral("NetInfoAddress")).value_or(QStringLiteral("logo_data.asp"));
}

QString MainController::getConnectModeAddress() const
{
    return configurationText(QStringLiteral("ConnectModeAddress")).value_or(QStringLiteral("logo_data.asp"));
}

void MainController::setcurrentNetWorkStatus(int status)
{
    state_.setcurrentNetWorkStatus(status);
}

void MainController::setNetWorkTransferType(int type)
{
    state_.setNetWorkTransferType(type);
}

void MainController::setNetWorkTransferTypeByNewNetStatus(int status)
{
    state_.setNetWorkTransferTypeByNewNetStatus(status);
}

QString MainController::getAppPath() const
{
    return QStringLiteral("/Applications/Safari.app");
}

bool MainController::launchAppFromPath(const std::optional<QString> &path)
{
    return path && services_.workspace.launchApplication(*path);
}

void MainController::openApp()
{
    launchAppFromPath(getAppPath());
}

void MainController::log(const QString &line) const
{
    services_.systemLog.write(line);
}

bool MainController::whileAttached(const std::function<void()> &step)
{
    const std::scoped_lock lock(attachmentMutex_);
    if (WorkScope::current().stop_requested())
        return false;
    step();
    return true;
}

void MainController::onMainThread(std::function<void()> step)
{
    mainThread_.post([stop = WorkScope::current(), step = std::move(step)] {
        if (!stop.stop_requested())
            step();
    });
}

void MainController::endAttachment()
{
    const std::scoped_lock lock(attachmentMutex_);
    if (updateThreadRunLoop_)
        updateThreadRunLoop_->request_stop();
    updateThreadRunLoop_.reset();
}

bool MainController::startThread(std::function<void()> work)
{
    const std::scoped_lock lock(attachmentMutex_);
    if (WorkScope::current().stop_requested())
        return false;
    if (!updateThreadRunLoop_)
        updateThreadRunLoop_.emplace();
    threads_.start([stop = updateThreadRunLoop_->get_token(), work = std::move(work)] {
        const WorkScope scope(stop);
        work();
    });
    return true;
}

} // namespace tarvo
