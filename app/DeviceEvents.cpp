#include "app/MainController.h"

#include <QCoreApplication>

#include <utility>

// What the controller does when a modem comes or goes, and when it is to be left alone for a while.

namespace tarvo {

using namespace Qt::StringLiterals;

void MainController::machineWillSleep()
{
    log(u"machineWillSleep"_s);
    m_asleep = true;
    rest();
}

void MainController::machineDidWake()
{
    log(u"machineDidWake"_s);
    m_asleep = false;
    resume();
}

void MainController::sessionActivityChanged(bool active)
{
    if (std::exchange(m_active, active) == active)
        return;
    log(active ? u"the session is active again"_s : u"another session is active: the modem is left alone"_s);
    if (active)
        resume();
    else
        rest();
}

void MainController::rest()
{
    stopGetModemStatus();
    m_plugIns.restore({}); // to be done again after a rest, as for a device that comes
}

void MainController::resume()
{
    if (!routerObserver_ || isResting())
        return;
    if (routerObserver_->isInterfaceRouterReady("IOUSBInterface")
        || routerObserver_->isInterfaceRouterReady("IOUSBHostInterface"))
        startGetModemInfo();
    detect();
}

void MainController::procECMReady(const ReadyDictionary &ready)
{
    if (!ready.router) {
        waitingIPv4Ready();
        return;
    }
    const bool changed = m_device.keep(ready);
    m_hasNoGateway = false;
    if (isResting())
        return; // what ends the rest starts with it
    if (!m_device.identity().isSamePlugIn(m_plugIns.current())) {
        endPlugIn(); // what still runs for an earlier device must not see this one's flags
        resetForReadyDevice(m_plugIns.begin(m_device.identity()));
        startGetModemInfo();
    } else if (changed) {
        attach();
    }
    log(u"ECMReady"_s);
    log(*ready.router);
    log(ready.kOmbraBSDName.value_or(u"(null)"_s));
}

void MainController::endPlugIn()
{
    m_work.end();
    m_plugIns.end({.openedPages = m_pages.hasOpenedWebUI(),
                   .accessPoints = m_provisioner.progress(),
                   .hasNewVersion = m_snapshot.get().isHaveNewVersion_,
                   .seenNews = m_news.seenTypes()});
}

void MainController::resetForReadyDevice(const PlugInState &done)
{
    m_recentDeeds.setDevice(m_device.identity().address);
    m_pages.reset(done.openedPages);
    m_provisioner.resume(done.accessPoints);
    m_monitor.resetForReadyDevice(done.hasNewVersion);
    m_news.resetForReadyDevice(done.seenNews);
}

void MainController::procInterfaceRemoved(const QString &bsdName)
{
    log(bsdName);
    m_hasNoGateway = false; // one that remains without a gateway is reported once more
    stopGetModemStatus();
}

void MainController::waitingIPv4Ready()
{
    m_hasNoGateway = true;
    detect();
}

void MainController::startGetModemInfo()
{
    log(u"startGetModemInfo"_s);
    startGetModemStatus();
}

void MainController::startGetModemStatus()
{
    m_presentation.setImage(u"online"_s);
    attach();
    m_icon.startToolbarStatus();
}

void MainController::attach()
{
    m_work.end();
    m_provisioner.resume(m_provisioner.progress()); // what was cut off begins anew
    m_poller.start(m_work.begin(m_device.location().value_or(ModemLocation())));
    detect();
}

void MainController::stopGetModemStatus()
{
    log(u"DeviceRemoved,stopGetModemStatus"_s);
    endPlugIn();
    resetForStop();
    if (m_balloon.isShown())
        m_balloon.toggleAttachedWindowAtPoint(qtTrId("DeviceRemovedTip"));
    m_balloon.withdraw();
    m_updateAlert.close();
    m_presentation.setImage({});
    m_icon.showRemoval();
    detect();
}

void MainController::resetForStop()
{
    m_poller.stop();
    m_monitor.resetForStop();
    m_pages.reset();
    m_provisioner.reset();
    m_news.resetForStop();
}

} // namespace tarvo
