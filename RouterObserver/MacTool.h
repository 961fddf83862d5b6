#pragma once

#include "platform/DeviceRegistry.h"
#include "platform/DynamicStore.h"

#include <QString>

#include <memory>
#include <optional>

namespace tarvo {

/// The configured services and their order. Opened by the first look-up of a service by name, and kept from then on.
struct NetworkPreferences {
    DynamicStore &store; ///< holds them in its setup domain; outlives this object
    std::unique_ptr<DynamicStoreSession> prefRef{}; ///< null until it is opened
};

/// @return the address of the service's IPv4 router right now; nil when it has none
std::optional<QString> MacTool_GetIPV4Router(DynamicStore &store, const std::optional<QString> &serviceID);

/// @param setPath  the domain of the store that holds the set of services, e.g. "Setup:"
/// @return the name of the interface that the service uses in that set; nil when unknown, or when the preferences have
///         not been opened yet
std::optional<QString> MacTool_GetNetWorkBSDNameOfService(const NetworkPreferences &preferences,
                                                          const std::optional<QString> &serviceID,
                                                          const std::optional<QString> &setPath);

/// @return the first service in the service order that uses the interface @p bsdName; nil when there is none
std::optional<QString> MacTool_GetServiceIDByBSDName(NetworkPreferences &preferences,
                                                     const std::optional<QString> &bsdName);

/// @return the interface name of the device @p service or of one below it; nil when there is none
std::optional<QString> getBSDNameOfService(DeviceRegistry &registry, IOServiceHandle service);

} // namespace tarvo
