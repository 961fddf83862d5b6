#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

/// Keys of the store and names of the properties in its values.
///
/// The state domain says what the network is like now; the setup domain says what is configured and in which order. A
/// pattern is a key with `[^/]+` for any name at one place.
namespace store {

using Qt::StringLiterals::operator""_s;

/// Value holds `kSCDynamicStorePropNetInterfaces`.
inline const QString interfaceListKey = u"State:/Network/Interface"_s;
/// Matches the keys that `serviceIPv4Key` gives.
inline const QString anyServiceIPv4Pattern = u"State:/Network/Service/[^/]+/IPv4"_s;
/// Value holds `kSCPropNetServiceOrder`.
inline const QString globalIPv4SetupKey = u"Setup:/Network/Global/IPv4"_s;

/// In the interface list: the names of all interfaces (`QStringList`).
inline const QString kSCDynamicStorePropNetInterfaces = u"Interfaces"_s;
/// In a service's IPv4 state: the name of the interface that carries the service.
inline const QString kSCPropInterfaceName = u"InterfaceName"_s;
/// In a service's IPv4 state: the interface's addresses with their prefix lengths, such as 192.168.8.100/24
/// (`QStringList`).
inline const QString kSCPropNetIPv4Addresses = u"Addresses"_s;
/// In a service's IPv4 state: the address of its default gateway; absent when it has none.
inline const QString kSCPropNetIPv4Router = u"Router"_s;
/// In the global setup: the service identifiers, the preferred one first (`QStringList`).
inline const QString kSCPropNetServiceOrder = u"ServiceOrder"_s;
/// In a service's interface setup: the name of the interface.
inline const QString kSCPropNetInterfaceDeviceName = u"DeviceName"_s;

/// The key of one service's IPv4 state.
QString serviceIPv4Key(const QString &serviceID);
/// The key of one service's interface setup.
QString serviceInterfaceSetupKey(const QString &serviceID);
} // namespace store

/// One client's view of the network state. Lives on the thread of the store that made it, and not longer.
class DynamicStoreSession {
public:
    virtual ~DynamicStoreSession() = default;

    /// Asks for the session's callback whenever the value of a key that matches changes.
    /// @param patterns  keys, or patterns of keys; they replace earlier ones
    virtual void setNotificationPatterns(const QStringList &patterns) = 0;

    /// @return the value of @p key; nil when the store has no such key
    virtual std::optional<QVariantMap> copyValue(const QString &key) const = 0;

    /// @return all entries whose keys match any of @p patterns
    virtual QMap<QString, QVariantMap> copyMultiple(const QStringList &patterns) const = 0;

    /// @return the keys that match @p pattern, in the store's order
    virtual QStringList copyKeyList(const QString &pattern) const = 0;
};

/// The network state of the machine as key/value entries, with notification of changes.
///
/// Used on the main thread only. Callbacks come from the event loop, one changed key at a time, and only when the
/// key's value really changed. What is announced afresh comes as one pattern of keys.
class DynamicStore {
public:
    /// Told the session that was notified and the key that changed, or the pattern of the keys that were announced
    /// afresh (one element).
    using Callback = std::function<void(DynamicStoreSession &session, const QStringList &changedKeys)>;

    virtual ~DynamicStore() = default;

    /// Opens a session. An empty @p callback makes a session that only reads.
    /// @return the session, owned by the caller; null when the network state cannot be had
    virtual std::unique_ptr<DynamicStoreSession> createSession(const QString &name, Callback callback) = 0;
};

} // namespace tarvo
