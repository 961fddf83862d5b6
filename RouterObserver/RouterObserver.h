#pragma once

#include "RouterObserver/MacTool.h"
#include "platform/DeviceRegistry.h"
#include "platform/DynamicStore.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

class ConfigManager;
class SystemLog;

/// What a ready report carries.
struct ReadyDictionary {
    std::optional<QString> router; ///< the router's IPv4 address; nil while the interface has none
    IOServiceHandle kOmbraIOService = 0; ///< the device behind the interface
    std::optional<QString> kOmbraBSDName; ///< the interface's name
    QStringList addresses{}; ///< of the interface, with their prefix lengths

    bool operator==(const ReadyDictionary &) const = default;
};

/// Who is told of devices. A report that nobody takes is left empty.
struct RouterReports {
    /// A supported interface has IPv4 state, with a router or without.
    std::function<void(const ReadyDictionary &)> procECMReady;
    /// A supported interface has gone.
    std::function<void(const QString &bsdName)> procInterfaceRemoved;
    /// A supported interface has come, with or without an address, or gone.
    std::function<void()> supportedInterfacesChanged{};
};

/// Watches the network for a supported modem, and reports when its interface has IPv4 state and when it is gone.
/// Of a USB device that is no supported one, the log says why.
///
/// Everything runs on the main thread, and reports are made synchronously from the store's callbacks. A modem that has an
/// address but stays without a router is logged, once for each device.
class RouterObserver {
public:
    /// Watches nothing yet. Everything referred to outlives the observer.
    RouterObserver(DynamicStore &dynamicStore, DeviceRegistry &deviceRegistry, SystemLog &systemLog,
                   const ConfigManager &settings);
    ~RouterObserver();
    RouterObserver(const RouterObserver &) = delete;
    RouterObserver &operator=(const RouterObserver &) = delete;

    /// Starts to watch the interface list. @return false when the network state cannot be had
    bool startWatchNetworkInterface(const std::shared_ptr<const RouterReports> &observer);
    /// Reads the interface list at the first of @p keys: reports what has gone, and starts to watch IPv4 when a
    /// supported interface has come. A list that cannot be read changes nothing.
    void updateSupportedNetworkInterface(DynamicStoreSession &session, const QStringList &keys);
    /// Starts to watch the IPv4 state of all services; does nothing when that is on already.
    void startWatchSupportedInterfaceIPv4(const std::shared_ptr<const RouterReports> &observer);
    /// Looks for the first service on a supported interface, among those whose keys match the first of @p keys, and
    /// reports it. Its time becomes the plugged-in time; when there is no such service, that time is forgotten.
    void updateSupportedInterfaceIPv4(DynamicStoreSession &session, const QStringList &keys);
    /// Ends what `startWatchSupportedInterfaceIPv4` began. Nothing calls it at present.
    void stopWatchSupportedInterfaceIPv4();

    // Make the reports, to the observer that was given last.
    void ipv4Observer(const ReadyDictionary &ready) const;
    void interfaceRemoved(const QString &bsdName) const;

    /// Takes this moment for the time at which the modem was plugged in.
    void resetModemPlugedInTime();
    /// Forgets the time at which the modem was plugged in.
    void releaseModemPlugedInTime();
    /// @return the time of the last ready report; nil when the last IPv4 change was of no supported modem
    std::optional<QDateTime> getModemPlugedInTime() const;

    /// @return whether a supported modem among the devices of @p className has an Ethernet interface with a router
    bool isInterfaceRouterReady(const QByteArray &className);

    /// @return whether a supported interface is there, with or without an address
    bool hasSupportedInterface() const { return !supportedBSDNames_.isEmpty(); }

    // Whether the settings list a USB identifier, of which the lower 32 bits count: among the vendors whose devices are
    // ours, the products (which detection does not ask for), and the products that are left alone.
    bool isSupportedVendorID(qint64 vendorID) const;
    bool isSupportedProductID(qint64 productID) const;
    bool isExcludedProductID(qint64 productID) const;
    /// @return whether the device is of a supported vendor and no excluded product; false for one without a vendor
    bool isSupportedIOService(IOServiceHandle service) const;
    /// @return the device behind the interface @p bsdName; 0 when there is none, or the name has more than 255 bytes
    IOServiceHandle getIOServiceOfBSDName(const QString &bsdName) const;
    /// @param bsdName must not be nil
    bool isSupportedEnthernetBSDName(const std::optional<QString> &bsdName) const;

private:
    /// Adds the supported ones among @p interfaces to the known. @return whether one of them is new
    bool addSupportedInterfaces(const QStringList &interfaces);
    /// Forgets the supported interfaces that were there at the last update and are not in @p interfaces, and reports
    /// those whose device is gone: a device whose interface has another name by now is still there.
    /// @return whether one was reported
    bool reportVanishedInterfaces(const QStringList &interfaces);
    bool hasEthernetRouter(IOServiceHandle service);
    void noteMissingGateways();
    /// Logs, once for each USB device, why the one behind @p bsdName is not supported.
    void explainRefusal(const QString &bsdName);

    DynamicStore &dynamicStore_;
    DeviceRegistry &deviceRegistry_;
    SystemLog &systemLog_;
    const ConfigManager &settings_;
    NetworkPreferences preferences_;

    std::shared_ptr<const RouterReports> observer_;
    QStringList preInterfaces_;
    QHash<QString, IOServiceHandle> supportedBSDNames_; ///< with the devices behind them
    QSet<IOServiceHandle> explainedServices_;
    std::unique_ptr<DynamicStoreSession> interfaceMonitorRls_;
    std::unique_ptr<DynamicStoreSession> ipv4MonitorRls_;
    bool watchIPv4On_ = false;
    std::optional<QDateTime> modemPlugedInTime_;
    QTimer gatewayTimer_; ///< runs when an interface had no router lately
    QSet<IOServiceHandle> withoutGateway_; ///< devices of which that has been logged
};

} // namespace tarvo
