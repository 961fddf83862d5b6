#include "platform/linux/NetworkModel.h"

#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tarvo {

namespace {

constexpr quint32 mainTable = 254; // rtnetlink(7): RT_TABLE_MAIN

bool sameSlot(const DefaultRoute &a, const DefaultRoute &b)
{
    return std::tie(a.table, a.metric, a.typeOfService) == std::tie(b.table, b.metric, b.typeOfService);
}

/// A smaller rank is the better route. The main table comes first among equal metrics.
auto rank(const DefaultRoute &route)
{
    return std::tuple(route.metric, route.table != mainTable, route.table);
}

QString dotted(quint32 address)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(address >> 24)
        .arg((address >> 16) & 0xff)
        .arg((address >> 8) & 0xff)
        .arg(address & 0xff);
}

void insertService(StateStore::Entries &entries, const QString &name, const QString &router)
{
    QVariantMap state{{store::kSCPropInterfaceName, name}};
    if (!router.isEmpty())
        state.insert(store::kSCPropNetIPv4Router, router);
    entries.insert(store::serviceIPv4Key(name), state);
    entries.insert(store::serviceInterfaceSetupKey(name), {{store::kSCPropNetInterfaceDeviceName, name}});
}

} // namespace

void NetworkModel::setLink(int index, const QString &name, bool up)
{
    Link &link = m_links[index];
    if (link.up && !up)
        dropRoutesOf(index);
    if (!link.up && up)
        m_routesUncertain = true;
    link.name = name;
    link.up = up;
}

void NetworkModel::removeLink(int index)
{
    if (m_links.erase(index) != 0)
        m_removedLinks.insert(index);
    dropRoutesOf(index);
}

void NetworkModel::addAddress(int index, const InterfaceAddress &address)
{
    const auto link = m_links.find(index);
    if (link != m_links.end())
        link->second.addresses.insert(address);
}

void NetworkModel::removeAddress(int index, const InterfaceAddress &address)
{
    const auto link = m_links.find(index);
    if (link == m_links.end())
        return;
    link->second.addresses.erase(address);
    if (!m_routes.empty())
        m_routesUncertain = true; // routes that prefer this source address, or all of the link's, left silently
}

void NetworkModel::addRoute(const DefaultRoute &route)
{
    if (std::ranges::find(m_routes, route) == m_routes.end())
        m_routes.push_back(route);
}

void NetworkModel::replaceRoute(const DefaultRoute &route)
{
    const auto old = onlyRouteLike(route);
    if (old != m_routes.end())
        *old = route;
    else
        addRoute(route);
}

void NetworkModel::removeRoute(const DefaultRoute &route)
{
    auto gone = std::ranges::find(m_routes, route);
    if (gone == m_routes.end())
        gone = onlyRouteLike(route); // next hops may have been dropped from it since
    if (gone != m_routes.end())
        m_routes.erase(gone);
}

/// @return the one route that @p route can mean; the end when there is none, or when several leave it open which
std::vector<DefaultRoute>::iterator NetworkModel::onlyRouteLike(const DefaultRoute &route)
{
    const auto alike = [&](const DefaultRoute &other) { return sameSlot(route, other); };
    const auto first = std::ranges::find_if(m_routes, alike);
    if (first == m_routes.end() || std::find_if(first + 1, m_routes.end(), alike) == m_routes.end())
        return first;
    m_routesUncertain = true;
    return m_routes.end();
}

void NetworkModel::dropRoutesOf(int index)
{
    for (DefaultRoute &route : m_routes)
        std::erase_if(route.nextHops, [=](const NextHop &hop) { return hop.interfaceIndex == index; });
    std::erase_if(m_routes, [](const DefaultRoute &route) { return route.nextHops.empty(); });
}

void NetworkModel::takeRoutes(NetworkModel read)
{
    m_routes = std::move(read.m_routes);
    setRoutesCertain();
}

QHash<QString, int> NetworkModel::interfaceIndexes() const
{
    QHash<QString, int> indexes;
    for (const auto &[index, link] : m_links)
        indexes.insert(link.name, index);
    return indexes;
}

QHash<int, QString> NetworkModel::routers() const
{
    std::vector<DefaultRoute> routes = m_routes;
    std::ranges::stable_sort(routes, {}, rank);
    QHash<int, QString> best;
    for (const DefaultRoute &route : routes) {
        for (const NextHop &hop : route.nextHops) {
            if (hop.gateway != 0 && !best.contains(hop.interfaceIndex))
                best.insert(hop.interfaceIndex, dotted(hop.gateway));
        }
    }
    return best;
}

QString NetworkModel::routeWithoutMetricBeside(int index) const
{
    const auto route = std::ranges::find_if(
        m_routes, [](const DefaultRoute &one) { return one.table == mainTable && one.metric == 0; });
    if (route == m_routes.end() || route->nextHops.empty() || route->nextHops.front().interfaceIndex == index)
        return {};
    const auto link = m_links.find(route->nextHops.front().interfaceIndex);
    return link == m_links.end() ? QString() : link->second.name;
}

InterfaceState NetworkModel::interfaceState(int index) const
{
    const auto link = m_links.find(index);
    if (link == m_links.end())
        return {};
    InterfaceState state{.isUp = link->second.up, .gateway = routers().value(index)};
    for (const InterfaceAddress &address : link->second.addresses)
        state.addresses.append(dotted(address.local));
    if (state.gateway.isEmpty())
        state.routeWithoutMetric = routeWithoutMetricBeside(index);
    return state;
}

StateStore::Entries NetworkModel::entries(const QSet<QString> &hidden) const
{
    const QHash<int, QString> routerOf = routers();
    StateStore::Entries entries;
    QStringList names;
    QStringList services;
    for (const auto &[index, link] : m_links) {
        if (hidden.contains(link.name))
            continue;
        names.append(link.name);
        if (!link.up || link.addresses.empty())
            continue;
        services.append(link.name);
        insertService(entries, link.name, routerOf.value(index));
    }
    entries.insert(store::interfaceListKey, {{store::kSCDynamicStorePropNetInterfaces, names}});
    entries.insert(store::globalIPv4SetupKey, {{store::kSCPropNetServiceOrder, services}});
    return entries;
}

} // namespace tarvo
