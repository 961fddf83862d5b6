#include "simulator/surroundings/SimulatedNetwork.h"

#include "platform/StateStore.h"

namespace tarvo {

using namespace Qt::StringLiterals;

SimulatedNetwork::SimulatedNetwork(StateStore &store)
    : m_store(store)
{
    publish();
}

QString SimulatedNetwork::serviceOf(const QString &interfaceName)
{
    return u"service-"_s + interfaceName;
}

void SimulatedNetwork::addInterface(const QString &interfaceName)
{
    m_interfaces.append({.name = interfaceName});
    publish();
}

void SimulatedNetwork::setIPv4(const QString &interfaceName, const std::optional<QString> &router)
{
    change(interfaceName, true, router);
}

void SimulatedNetwork::clearIPv4(const QString &interfaceName)
{
    change(interfaceName, false, std::nullopt);
}

void SimulatedNetwork::removeInterface(const QString &interfaceName)
{
    m_interfaces.removeIf([&](const Interface &interface) { return interface.name == interfaceName; });
    publish();
}

void SimulatedNetwork::change(const QString &interfaceName, bool hasIPv4, const std::optional<QString> &router)
{
    for (Interface &interface : m_interfaces) {
        if (interface.name == interfaceName)
            interface = {.name = interfaceName, .hasIPv4 = hasIPv4, .router = router};
    }
    publish();
}

void SimulatedNetwork::publish()
{
    StateStore::Entries entries;
    QStringList names;
    QStringList services;
    for (const Interface &interface : std::as_const(m_interfaces)) {
        const QString service = serviceOf(interface.name);
        names.append(interface.name);
        services.append(service);
        entries.insert(store::serviceInterfaceSetupKey(service),
                       {{store::kSCPropNetInterfaceDeviceName, interface.name}});
        if (!interface.hasIPv4)
            continue;
        QVariantMap ipv4{{store::kSCPropInterfaceName, interface.name}};
        if (interface.router)
            ipv4.insert(store::kSCPropNetIPv4Router, *interface.router);
        entries.insert(store::serviceIPv4Key(service), ipv4);
    }
    entries.insert(store::interfaceListKey, {{store::kSCDynamicStorePropNetInterfaces, names}});
    entries.insert(store::globalIPv4SetupKey, {{store::kSCPropNetServiceOrder, services}});
    m_store.replaceEntries(entries);
}

} // namespace tarvo
