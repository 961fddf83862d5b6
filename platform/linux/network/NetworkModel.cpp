#include "platform/linux/network/NetworkModel.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

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

} // namespace

QString dotted(quint32 address)
{
    return u"%1.%2.%3.%4"_s.arg(address >> 24)
        .arg((address >> 16) & 0xff)
        .arg((address >> 8) & 0xff)
        .arg(address & 0xff);
}

void NetworkModel::setLink(int index, const QString &name, bool up)
{
    const auto [known, isNew] = m_links.try_emplace(index);
    NetworkLink &link = known->second;
    if (link.up && !up)
        dropRoutesOf(index);
    if (!link.up && up)
        m_routesUncertain = true;
    if (isNew || link.up != up || link.name != name)
        m_changedLinks.insert(index);
    link.name = name;
    link.up = up;
}

void NetworkModel::removeLink(int index)
{
    if (m_links.erase(index) != 0) {
        m_removedLinks.insert(index);
        m_changedLinks.insert(index);
    }
    dropRoutesOf(index);
}

void NetworkModel::addAddress(int index, const InterfaceAddress &address)
{
    const auto link = m_links.find(index);
    if (link != m_links.end() && link->second.addresses.insert(address).second)
        m_changedLinks.insert(index);
}

void NetworkModel::removeAddress(int index, const InterfaceAddress &address)
{
    const auto link = m_links.find(index);
    if (link == m_links.end())
        return;
    if (link->second.addresses.erase(address) != 0)
        m_changedLinks.insert(index);
    if (!m_routes.empty())
        m_routesUncertain = true; // routes that prefer this source address, or all of the link's, left silently
}

void NetworkModel::addRoute(const DefaultRoute &route)
{
    if (std::ranges::find(m_routes, route) != m_routes.end())
        return;
    m_routes.push_back(route);
    m_routesChanged = true;
}

void NetworkModel::replaceRoute(const DefaultRoute &route)
{
    const auto old = onlyRouteLike(route);
    if (old == m_routes.end()) {
        addRoute(route);
        return;
    }
    *old = route;
    m_routesChanged = true;
}

void NetworkModel::removeRoute(const DefaultRoute &route)
{
    auto gone = std::ranges::find(m_routes, route);
    if (gone == m_routes.end()) {
        gone = onlyRouteLike(route); // next hops may have been dropped from it since, or it took the other's place
        m_routesUncertain |= gone != m_routes.end();
    }
    if (gone == m_routes.end())
        return;
    m_routes.erase(gone);
    m_routesChanged = true;
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
        m_routesChanged |=
            std::erase_if(route.nextHops, [=](const NextHop &hop) { return hop.interfaceIndex == index; }) != 0;
    std::erase_if(m_routes, [](const DefaultRoute &route) { return route.nextHops.empty(); });
}

void NetworkModel::takeRoutes(NetworkModel read)
{
    m_routes = std::move(read.m_routes);
    m_routesChanged = true;
    setRoutesCertain();
}

void NetworkModel::takeAll(NetworkModel read)
{
    for (const auto &[index, link] : m_links) {
        const NetworkLink *const now = read.link(index);
        if (!now)
            m_removedLinks.insert(index);
        if (!now || *now != link)
            m_changedLinks.insert(index);
    }
    for (const auto &[index, link] : read.m_links) {
        if (!m_links.contains(index))
            m_changedLinks.insert(index);
    }
    m_links = std::move(read.m_links);
    takeRoutes(std::move(read));
}

void NetworkModel::keepLinks(const NetworkModel &before, const std::function<QString(int index)> &currentName)
{
    for (const auto &[index, old] : before.m_links) {
        const auto link = m_links.find(index);
        const QString name = link == m_links.end() ? currentName(index) : QString();
        if (!name.isEmpty())
            m_links.insert({index, {name, old.up, old.addresses}});
        else if (link != m_links.end() && link->second.addresses.empty())
            link->second.addresses = old.addresses;
    }
}

const NetworkLink *NetworkModel::link(int index) const
{
    const auto link = m_links.find(index);
    return link == m_links.end() ? nullptr : &link->second;
}

QHash<int, quint32> NetworkModel::bestGateways() const
{
    std::vector<DefaultRoute> routes = m_routes;
    std::ranges::stable_sort(routes, {}, rank);
    QHash<int, quint32> best;
    for (const DefaultRoute &route : routes) {
        for (const NextHop &hop : route.nextHops) {
            if (hop.gateway != 0 && !best.contains(hop.interfaceIndex))
                best.insert(hop.interfaceIndex, hop.gateway);
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
    InterfaceState state{.isUp = link->second.up, .gateway = {}};
    if (const quint32 gateway = bestGateways().value(index))
        state.gateway = dotted(gateway);
    for (const InterfaceAddress &address : link->second.addresses)
        state.addresses.append(dotted(address.local));
    if (state.gateway.isEmpty())
        state.routeWithoutMetric = routeWithoutMetricBeside(index);
    return state;
}

QSet<int> NetworkModel::takeChangedLinks()
{
    if (std::exchange(m_routesChanged, false)) {
        const QHash<int, quint32> before = std::exchange(m_gateways, bestGateways());
        for (const auto &[index, gateway] : before.asKeyValueRange()) {
            if (m_gateways.value(index) != gateway)
                m_changedLinks.insert(index);
        }
        for (const auto &[index, gateway] : m_gateways.asKeyValueRange()) {
            if (!before.contains(index))
                m_changedLinks.insert(index);
        }
    }
    return std::exchange(m_changedLinks, {});
}

} // namespace tarvo
