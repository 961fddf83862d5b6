#pragma once

#include "RouterObserver/MacTool.h"
#include "platform/DeviceRegistry.h"
#include "platform/DynamicStore.h"

#include <QByteArray>
#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

class SystemLog;

/// What a ready report carries.
struct ReadyDictionary {
    std::optional<QString> router; ///< the router's IPv4 address; nil while the interface has none
    IOServiceHandle kOmbraIOService = 0; ///< the device behind the interface
    std::optional<QString> kOmbraBSDName; ///< the interface's name

    bool operator==(const ReadyDictionary &) const = default;
};

/// Who is told of devices. A report that nobody takes is left empty.
struct RouterReports {
    std::function<void(const ReadyDictionary &)> procECMReady;
    std::function<void(const QString &bsdName)> procInterfaceRemoved;
};

/// Watches the network for a supported modem, and reports when its interface has IPv4 state and when it is gone.
/// Of a USB device that is no supported one, the log says why.
///
/// Everything runs on the main thread, and reports are made synchronously from the store's callbacks.
class RouterObserver {
public:
    RouterObserver(DynamicStore &dynamicStore, DeviceRegistry &deviceRegistry, SystemLog &systemLog);
    ~RouterObserver();
    RouterObserver(const RouterObserver &) = delete;
    RouterObserver &operator=(const RouterObserver &) = delete;

    /// Starts to watch the interface list. @return false when the network state cannot be had
    bool startWatchNetworkInterface(const std::shared_ptr<const RouterReports> &observer);
    void updateSupportedNetworkInterface(DynamicStoreSession &session, const QStringList &keys);
    /// Starts to watch the IPv4 state of all services; does nothing when that is on already.
    void startWatchSupportedInterfaceIPv4(const std::shared_ptr<const RouterReports> &observer);
    void updateSupportedInterfaceIPv4(DynamicStoreSession &session, const QStringList &keys);
    void stopWatchSupportedInterfaceIPv4();

    void ipv4Observer(const ReadyDictionary &ready) const;
    void interfaceRemoved(const QString &bsdName) const;

    void resetModemPlugedInTime();
    void releaseModemPlugedInTime();
    /// @return the time of the last ready report; nil when the last IPv4 change was of no supported modem
    std::optional<QDateTime> getModemPlugedInTime() const;

    /// @return whether a supported modem among the devices of @p className has an Ethernet interface with a router
    bool isInterfaceRouterReady(const QByteArray &className);

    bool isSupportedVendorID(qint64 vendorID) const;
    bool isSupportedProductID(qint64 productID) const;
    bool isExcludedProductID(qint64 productID) const;
    bool isSupportedIOService(IOServiceHandle service) const;
    IOServiceHandle getIOServiceOfBSDName(const QString &bsdName) const;
    /// @param bsdName must not be nil
    bool isSupportedEnthernetBSDName(const std::optional<QString> &bsdName) const;

private:
    /// Adds the supported ones among @p interfaces to the known. @return whether one of them is new
    bool addSupportedInterfaces(const QStringList &interfaces);
    /// Reports and forgets the supported interfaces that were there at the last update and are not in @p interfaces.
    void reportVanishedInterfaces(const QStringList &interfaces);
    bool hasEthernetRouter(IOServiceHandle service);
    /// Logs, once for each USB device, why the one behind @p bsdName is not supported.
    void explainRefusal(const QString &bsdName);

    DynamicStore &dynamicStore_;
    DeviceRegistry &deviceRegistry_;
    SystemLog &systemLog_;
    NetworkPreferences preferences_;

    std::shared_ptr<const RouterReports> observer_;
    QStringList preInterfaces_;
    QSet<QString> supportedBSDNames_;
    QSet<IOServiceHandle> explainedServices_;
    std::unique_ptr<DynamicStoreSession> interfaceMonitorRls_;
    std::unique_ptr<DynamicStoreSession> ipv4MonitorRls_;
    bool watchIPv4On_ = false;
    std::optional<QDateTime> modemPlugedInTime_;
};

} // namespace tarvo
