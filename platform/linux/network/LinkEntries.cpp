#include "platform/linux/network/LinkEntries.h"

#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QVariantMap serviceState(const NetworkLink &link, quint32 gateway)
{
    QStringList addresses;
    for (const InterfaceAddress &address : link.addresses)
        addresses.append(u"%1/%2"_s.arg(dotted(address.local)).arg(address.prefixLength));
    QVariantMap state{{store::kSCPropInterfaceName, link.name}, {store::kSCPropNetIPv4Addresses, addresses}};
    if (gateway != 0)
        state.insert(store::kSCPropNetIPv4Router, dotted(gateway));
    return state;
}

void removeService(const QString &name, StateStore::Changes &changes)
{
    changes[store::serviceIPv4Key(name)] = std::nullopt;
    changes[store::serviceInterfaceSetupKey(name)] = std::nullopt;
}

QStringList inIndexOrder(const std::map<int, QString> &names)
{
    QStringList list;
    list.reserve(qsizetype(names.size()));
    for (const auto &[index, name] : names)
        list.append(name);
    return list;
}

} // namespace

std::vector<StateStore::Changes> LinkEntries::update(const NetworkModel &model, const QSet<int> &changed,
                                                     const QSet<int> &removed, const GatewayOf &gatewayOf)
{
    std::vector<StateStore::Changes> steps(1);
    QSet<QString> free;
    for (const int index : changed) {
        const auto known = m_names.find(index);
        const NetworkLink *const link = model.link(index);
        if (known == m_names.end() || (link && link->name == known->second && !removed.contains(index)))
            continue;
        free.insert(known->second);
        giveUp(index, steps.front());
    }
    std::vector<int> changedHands;
    for (const int index : changed) {
        const NetworkLink *const link = model.link(index);
        if (link && free.contains(link->name))
            changedHands.push_back(index);
        else if (link)
            place(index, *link, gatewayOf, steps.front());
    }
    addLists(steps.front());
    if (changedHands.empty())
        return steps;
    steps.emplace_back();
    for (const int index : changedHands)
        place(index, *model.link(index), gatewayOf, steps.back());
    addLists(steps.back());
    return steps;
}

void LinkEntries::giveUp(int index, StateStore::Changes &changes)
{
    const auto known = m_names.find(index);
    if (m_services.erase(index) != 0) {
        removeService(known->second, changes);
        m_servicesChanged = true;
    }
    m_indexes.remove(known->second);
    m_names.erase(known);
    m_namesChanged = true;
}

void LinkEntries::place(int index, const NetworkLink &link, const GatewayOf &gatewayOf, StateStore::Changes &changes)
{
    m_namesChanged |= m_names.insert_or_assign(index, link.name).second;
    m_indexes.insert(link.name, index);
    if (link.isService()) {
        m_servicesChanged |= m_services.insert_or_assign(index, link.name).second;
        changes[store::serviceIPv4Key(link.name)] = serviceState(link, gatewayOf(index));
        changes[store::serviceInterfaceSetupKey(link.name)] = {{store::kSCPropNetInterfaceDeviceName, link.name}};
    } else if (m_services.erase(index) != 0) {
        m_servicesChanged = true;
        removeService(link.name, changes);
    }
}

void LinkEntries::addLists(StateStore::Changes &changes)
{
    if (std::exchange(m_namesChanged, false))
        changes[store::interfaceListKey] = {{store::kSCDynamicStorePropNetInterfaces, inIndexOrder(m_names)}};
    if (std::exchange(m_servicesChanged, false))
        changes[store::globalIPv4SetupKey] = {{store::kSCPropNetServiceOrder, inIndexOrder(m_services)}};
}

} // namespace tarvo
