#include "RouterObserver/MacTool.h"

#include <QStringList>
#include <QVariantMap>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// The one set of configured services: the store's setup domain.
const QString &currentSet()
{
    static const QString path = u"Setup:"_s;
    return path;
}

std::optional<QString> textEntry(const QVariantMap &dictionary, const QString &key)
{
    const auto entry = dictionary.constFind(key);
    return entry == dictionary.cend() ? std::nullopt : std::optional(entry->toString());
}

} // namespace

std::optional<QString> MacTool_GetIPV4Router(DynamicStore &store, const std::optional<QString> &serviceID)
{
    if (!serviceID)
        return std::nullopt;
    const auto session = store.createSession(u"GetIPSession"_s, {});
    const auto state = session ? session->copyValue(store::serviceIPv4Key(*serviceID)) : std::nullopt;
    return state ? textEntry(*state, store::kSCPropNetIPv4Router) : std::nullopt;
}

std::optional<QString> MacTool_GetNetWorkBSDNameOfService(const NetworkPreferences &preferences,
                                                          const std::optional<QString> &serviceID,
                                                          const std::optional<QString> &setPath)
{
    if (!preferences.prefRef || !serviceID || !setPath)
        return std::nullopt;
    const auto setup = preferences.prefRef->copyValue(u"%1/Network/Service/%2/Interface"_s.arg(*setPath, *serviceID));
    return setup ? textEntry(*setup, store::kSCPropNetInterfaceDeviceName) : std::nullopt;
}

std::optional<QString> MacTool_GetServiceIDByBSDName(NetworkPreferences &preferences,
                                                     const std::optional<QString> &bsdName)
{
    if (!bsdName)
        return std::nullopt;
    if (!preferences.prefRef)
        preferences.prefRef = preferences.store.createSession(u"SCPreferencesTools"_s, {});
    if (!preferences.prefRef)
        return std::nullopt;
    const auto global = preferences.prefRef->copyValue(u"%1/Network/Global/IPv4"_s.arg(currentSet()));
    const auto serviceOrder = global.value_or(QVariantMap()).value(store::kSCPropNetServiceOrder).toStringList();
    for (const QString &serviceID : serviceOrder) {
        if (MacTool_GetNetWorkBSDNameOfService(preferences, serviceID, currentSet()) == bsdName)
            return serviceID;
    }
    return std::nullopt;
}

std::optional<QString> getBSDNameOfService(DeviceRegistry &registry, IOServiceHandle service)
{
    const auto name = registry.searchProperty(service, u"BSD Name"_s, RegistrySearch::Downward);
    return name ? std::optional(name->toString()) : std::nullopt;
}

} // namespace tarvo
