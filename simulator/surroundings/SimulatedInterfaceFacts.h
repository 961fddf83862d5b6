#pragma once

#include "platform/InterfaceFacts.h"

#include <QMap>

namespace tarvo {

/// Interfaces of which is known what is said of them by hand. Sockets are tied to none.
class SimulatedInterfaceFacts final : public InterfaceFacts {
public:
    /// From now on the interface @p name is that of a device called @p deviceName.
    void plug(const QString &name, const InterfaceIdentity &identity, const QString &deviceName = {})
    {
        m_identities[name] = identity;
        m_deviceNames[name] = deviceName;
    }

    std::function<bool(int socket)> socketBinder(const QString &) override { return {}; }
    QString deviceName(const QString &interfaceName) override { return m_deviceNames.value(interfaceName); }
    InterfaceIdentity identity(const QString &interfaceName) override { return m_identities.value(interfaceName); }

private:
    QMap<QString, InterfaceIdentity> m_identities;
    QMap<QString, QString> m_deviceNames;
};

} // namespace tarvo
