#include "RouterObserver/RouterObserver.h"

#include "RouterObserver/DeviceSupport.h"
#include "RouterObserver/UsbIdentity.h"
#include "platform/Assertion.h"
#include "platform/SystemLog.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// The longest interface name that is looked up, in bytes of UTF-8.
constexpr qsizetype maxBSDNameSize = 255;

/// How long a router may come after its interface's address.
constexpr std::chrono::seconds gatewayTimeout(3);

std::optional<QString> interfaceNameOf(const QVariantMap &ipv4State)
{
    const auto name = ipv4State.constFind(store::kSCPropInterfaceName);
    return name == ipv4State.cend() ? std::nullopt : std::optional(name->toString());
}

ReadyDictionary readyDictionary(const QVariantMap &ipv4State, IOServiceHandle service)
{
    ReadyDictionary ready{
        .router{}, .kOmbraIOService = service, .kOmbraBSDName = interfaceNameOf(ipv4State), .addresses{}};
    ready.addresses = ipv4State.value(store::kSCPropNetIPv4Addresses).toStringList();
    if (ipv4State.contains(store::kSCPropNetIPv4Router))
        ready.router = ipv4State[store::kSCPropNetIPv4Router].toString();
    return ready;
}

} // namespace

RouterObserver::RouterObserver(DynamicStore &dynamicStore, DeviceRegistry &deviceRegistry, SystemLog &systemLog,
                               const ConfigManager &settings)
    : dynamicStore_(dynamicStore)
    , deviceRegistry_(deviceRegistry)
    , systemLog_(systemLog)
    , settings_(settings)
    , preferences_{dynamicStore}
{
    gatewayTimer_.setSingleShot(true);
    QObject::connect(&gatewayTimer_, &QTimer::timeout, &gatewayTimer_, [this] { noteMissingGateways(); });
}

RouterObserver::~RouterObserver() = default;

bool RouterObserver::startWatchNetworkInterface(const std::shared_ptr<const RouterReports> &observer)
{
    observer_ = observer;
    auto session = dynamicStore_.createSession(u"RouterObserver"_s, [this](auto &changed, const QStringList &keys) {
        updateSupportedNetworkInterface(changed, keys);
    });
    if (!session)
        return false;
    interfaceMonitorRls_ = std::move(session);
    const QStringList keys{store::interfaceListKey};
    interfaceMonitorRls_->setNotificationPatterns(keys);
    updateSupportedNetworkInterface(*interfaceMonitorRls_, keys);
    return true;
}

void RouterObserver::updateSupportedNetworkInterface(DynamicStoreSession &session, const QStringList &keys)
{
    const auto value = session.copyValue(keys.value(0));
    if (!value)
        return;
    const QStringList interfaces = value->value(store::kSCDynamicStorePropNetInterfaces).toStringList();
    const bool watchedIPv4 = watchIPv4On_;
    const bool newSupportedInterface = addSupportedInterfaces(interfaces);
    const bool deviceGone = reportVanishedInterfaces(interfaces);
    preInterfaces_ = interfaces;
    if ((newSupportedInterface || deviceGone) && observer_ && observer_->supportedInterfacesChanged)
        observer_->supportedInterfacesChanged();
    if (newSupportedInterface)
        startWatchSupportedInterfaceIPv4(observer_);
    // A removal ends the work with whichever device was in use, so that one that remains is to be reported once more.
    if (deviceGone && watchedIPv4)
        updateSupportedInterfaceIPv4(*ipv4MonitorRls_, {store::anyServiceIPv4Pattern});
}

bool RouterObserver::addSupportedInterfaces(const QStringList &interfaces)
{
    const qsizetype before = supportedBSDNames_.size();
    for (const QString &bsdName : interfaces) {
        if (isSupportedEnthernetBSDName(bsdName))
            supportedBSDNames_.insert(bsdName, getIOServiceOfBSDName(bsdName));
        else
            explainRefusal(bsdName);
    }
    return supportedBSDNames_.size() > before;
}

void RouterObserver::explainRefusal(const QString &bsdName)
{
    const IOServiceHandle service = getIOServiceOfBSDName(bsdName);
    const auto identity = service == 0 ? std::nullopt : usbIdentity(deviceRegistry_, service);
    if (!identity || explainedServices_.contains(service))
        return;
    explainedServices_.insert(service);
    const QString reason = isSupportedVendorID(identity->vendor)
        ? u"its product %1 is in eliminate_product_ids"_s.arg(identity->product)
        : u"its vendor %1 is not in vendor_ids"_s.arg(identity->vendor);
    systemLog_.write(u"%1: USB device %2 is left alone: %3"_s.arg(bsdName, identity->text(), reason));
}

bool RouterObserver::reportVanishedInterfaces(const QStringList &interfaces)
{
    bool reported = false;
    for (const QString &bsdName : std::as_const(preInterfaces_)) {
        const auto known = supportedBSDNames_.constFind(bsdName);
        if (known == supportedBSDNames_.cend() || interfaces.contains(bsdName))
            continue;
        if (supportedBSDNames_.keys(*known).size() == 1) {
            withoutGateway_.remove(*known);
            interfaceRemoved(bsdName);
            reported = true;
        }
        supportedBSDNames_.remove(bsdName);
    }
    return reported;
}

void RouterObserver::startWatchSupportedInterfaceIPv4(const std::shared_ptr<const RouterReports> &observer)
{
    if (watchIPv4On_)
        return;
    observer_ = observer;
    auto session = dynamicStore_.createSession(u"RouterObserver"_s, [this](auto &changed, const QStringList &keys) {
        updateSupportedInterfaceIPv4(changed, keys);
    });
    if (!session)
        return;
    ipv4MonitorRls_ = std::move(session);
    const QStringList keys{store::anyServiceIPv4Pattern};
    ipv4MonitorRls_->setNotificationPatterns(keys);
    updateSupportedInterfaceIPv4(*ipv4MonitorRls_, keys);
    watchIPv4On_ = true;
}

void RouterObserver::updateSupportedInterfaceIPv4(DynamicStoreSession &session, const QStringList &keys)
{
    const auto entries = session.copyMultiple(keys);
    for (const QString &key : session.copyKeyList(keys.value(0))) {
        if (key.isEmpty())
            continue;
        const auto entry = entries.value(key);
        const auto bsdName = interfaceNameOf(entry);
        const IOServiceHandle service = bsdName ? getIOServiceOfBSDName(*bsdName) : 0;
        if (service == 0 || !isSupportedIOService(service))
            continue;
        resetModemPlugedInTime();
        const ReadyDictionary ready = readyDictionary(entry, service);
        if (!ready.router)
            gatewayTimer_.start(gatewayTimeout);
        ipv4Observer(ready);
        return;
    }
    releaseModemPlugedInTime();
}

void RouterObserver::noteMissingGateways()
{
    if (!watchIPv4On_)
        return;
    for (const QVariantMap &state : ipv4MonitorRls_->copyMultiple({store::anyServiceIPv4Pattern})) {
        const QString bsdName = interfaceNameOf(state).value_or(QString());
        const IOServiceHandle service = supportedBSDNames_.value(bsdName);
        if (service == 0 || state.contains(store::kSCPropNetIPv4Router) || withoutGateway_.contains(service))
            continue;
        withoutGateway_.insert(service);
        systemLog_.write(bsdName + u": an address but no gateway"_s);
    }
}

void RouterObserver::stopWatchSupportedInterfaceIPv4()
{
    if (ipv4MonitorRls_)
        ipv4MonitorRls_->setNotificationPatterns({});
    watchIPv4On_ = false;
}

void RouterObserver::ipv4Observer(const ReadyDictionary &ready) const
{
    if (observer_ && observer_->procECMReady)
        observer_->procECMReady(ready);
}

void RouterObserver::interfaceRemoved(const QString &bsdName) const
{
    if (observer_ && observer_->procInterfaceRemoved)
        observer_->procInterfaceRemoved(bsdName);
}

void RouterObserver::resetModemPlugedInTime()
{
    modemPlugedInTime_ = QDateTime::currentDateTimeUtc();
}

void RouterObserver::releaseModemPlugedInTime()
{
    modemPlugedInTime_.reset();
}

std::optional<QDateTime> RouterObserver::getModemPlugedInTime() const
{
    return modemPlugedInTime_;
}

bool RouterObserver::isInterfaceRouterReady(const QByteArray &className)
{
    const auto services = deviceRegistry_.servicesMatchingClass(className);
    if (!services)
        return false;
    const bool ready = std::ranges::any_of(*services, [this](IOServiceHandle service) {
        return isSupportedIOService(service) && hasEthernetRouter(service);
    });
    systemLog_.write(ready ? u"ethernet router is ready"_s : u"no ethernet router is found"_s);
    return ready;
}

bool RouterObserver::hasEthernetRouter(IOServiceHandle service)
{
    const auto bsdName = getBSDNameOfService(deviceRegistry_, service);
    if (!bsdName || !bsdName->startsWith(u"en"))
        return false;
    systemLog_.write(u"bsd name has ethernet interface"_s);
    const auto serviceID = MacTool_GetServiceIDByBSDName(preferences_, bsdName);
    return MacTool_GetIPV4Router(dynamicStore_, serviceID).has_value();
}

bool RouterObserver::isSupportedVendorID(qint64 vendorID) const
{
    return listsIdentifier(settings_, u"vendor_ids"_s, vendorID);
}

bool RouterObserver::isSupportedProductID(qint64 productID) const
{
    return listsIdentifier(settings_, u"product_ids"_s, productID);
}

bool RouterObserver::isExcludedProductID(qint64 productID) const
{
    return listsIdentifier(settings_, u"eliminate_product_ids"_s, productID);
}

bool RouterObserver::isSupportedIOService(IOServiceHandle service) const
{
    const auto vendor = deviceRegistry_.searchProperty(service, u"idVendor"_s, RegistrySearch::Upward);
    if (!vendor)
        return false;
    const auto product = deviceRegistry_.searchProperty(service, u"idProduct"_s, RegistrySearch::Upward);
    const auto productID = product ? std::optional(product->toLongLong()) : std::nullopt;
    return supportOf(vendor->toLongLong(), productID, settings_) == Support::Supported;
}

IOServiceHandle RouterObserver::getIOServiceOfBSDName(const QString &bsdName) const
{
    return bsdName.toUtf8().size() > maxBSDNameSize ? 0 : deviceRegistry_.serviceMatchingBSDName(bsdName);
}

bool RouterObserver::isSupportedEnthernetBSDName(const std::optional<QString> &bsdName) const
{
    TARVO_ASSERT(bsdName, "bsdNameRef != NULL", "-[RouterObserver isSupportedEnthernetBSDName:]",
                 "RouterObserver/RouterObserver", 144);
    const IOServiceHandle service = getIOServiceOfBSDName(*bsdName);
    return service != 0 && isSupportedIOService(service);
}

} // namespace tarvo
