#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace tarvo {

class StateStore;

/// Puts network interfaces into a state store and takes them out, as the kernel's reports would.
///
/// Every interface has one service of its own, named by `serviceOf`, and the order of the services is the
/// order in which the interfaces came. Each call tells the store's sessions before it returns.
class SimulatedNetwork {
public:
    /// @param store  outlives this object, which owns its whole content
    explicit SimulatedNetwork(StateStore &store);

    /// The name of the service that uses @p interfaceName.
    static QString serviceOf(const QString &interfaceName);

    /// A new interface appears, with no address yet.
    void addInterface(const QString &interfaceName);
    /// The interface has IPv4 state, with a default gateway unless @p router is nil.
    void setIPv4(const QString &interfaceName, const std::optional<QString> &router);
    /// The interface loses its IPv4 state.
    void clearIPv4(const QString &interfaceName);
    /// The interface goes, with its service.
    void removeInterface(const QString &interfaceName);

private:
    struct Interface {
        QString name;
        bool hasIPv4 = false;
        std::optional<QString> router{};
    };

    void change(const QString &interfaceName, bool hasIPv4, const std::optional<QString> &router);
    void publish();

    StateStore &m_store;
    QList<Interface> m_interfaces;
};

} // namespace tarvo
