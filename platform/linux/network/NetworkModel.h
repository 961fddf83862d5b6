#pragma once

#include "platform/InterfaceState.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <compare>
#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace tarvo {

/// An IPv4 address of an interface, as the kernel tells one from another. Addresses are in host byte order.
struct InterfaceAddress {
    quint32 local = 0; ///< the interface's own
    quint32 peer = 0; ///< the far end of a point-to-point link, else the same as `local`
    quint8 prefixLength = 0; ///< of the network, in bits

    auto operator<=>(const InterfaceAddress &) const = default;
};

/// One way out of a default route.
struct NextHop {
    int interfaceIndex = 0; ///< the kernel's number of the link it leads to
    quint32 gateway = 0; ///< IPv4 address in host byte order; 0 when the route names none

    bool operator==(const NextHop &) const = default;
};

/// An IPv4 default route; more than one next hop makes it a multipath route.
struct DefaultRoute {
    quint32 table = 0; ///< the routing table it is in
    quint32 metric = 0; ///< the lower one is preferred
    quint8 typeOfService = 0; ///< of the packets it is for; 0 is for all
    std::vector<NextHop> nextHops; ///< in the kernel's order

    bool operator==(const DefaultRoute &) const = default;
};

/// A link of the machine, and its IPv4 addresses.
struct NetworkLink {
    QString name;
    bool up = false;
    std::set<InterfaceAddress> addresses;

    /// @return whether the link can carry IPv4 traffic
    bool isService() const { return up && !addresses.empty(); }

    bool operator==(const NetworkLink &) const = default;
};

/// @return @p address, in host byte order, as four decimal numbers with dots
QString dotted(quint32 address);

/// The machine's links, IPv4 addresses and IPv4 default routes, kept up to date one kernel message at a time.
///
/// The kernel does not say when routes leave with a link that goes down, with an address, or with a nexthop object,
/// nor when they return with a link that comes up. The model drops what must be gone and otherwise marks its routes as
/// uncertain: they are then to be read again.
class NetworkModel {
public:
    /// A link came, or its name or state is another one. A link that went down loses its routes.
    void setLink(int index, const QString &name, bool up);
    /// The link is gone, with its addresses and routes.
    void removeLink(int index);
    /// An address of a link that the model does not know is ignored: the link's own message is still to come.
    void addAddress(int index, const InterfaceAddress &address);
    void removeAddress(int index, const InterfaceAddress &address);
    /// A route that is known already is not added again.
    void addRoute(const DefaultRoute &route);
    /// Puts @p route where the kernel had another one with the same table, metric and type of service.
    void replaceRoute(const DefaultRoute &route);
    /// Takes @p route away, also when next hops of it were dropped before.
    void removeRoute(const DefaultRoute &route);

    void setRoutesUncertain() { m_routesUncertain = true; }
    void setRoutesCertain() { m_routesUncertain = false; }
    /// @return whether the routes are to be read again
    bool areRoutesUncertain() const { return m_routesUncertain; }
    /// Takes the routes of @p read, a model into which all routes have just been read, for certain.
    void takeRoutes(NetworkModel read);
    /// Takes all of @p read, a model into which everything has just been read, for certain.
    void takeAll(NetworkModel read);

    /// Adds what a model into which everything has just been read may lack because links came and went meanwhile: the
    /// links of @p before that are still there, and the addresses of those that seem to have none.
    /// @param currentName  the name that a link has by now; empty when it is gone
    void keepLinks(const NetworkModel &before, const std::function<QString(int index)> &currentName);

    /// @return the link of @p index; null when there is none. Valid until the next change.
    const NetworkLink *link(int index) const;
    /// @return the best default gateway of a link, as of the last @ref takeChangedLinks; 0 when it has none
    quint32 gateway(int index) const { return m_gateways.value(index); }

    /// @return the indexes of the links that came, went or changed since the last call, they or their gateways
    QSet<int> takeChangedLinks();
    /// @return the indexes of the links that were removed since the last call
    QSet<int> takeRemovedLinks() { return std::exchange(m_removedLinks, {}); }

    /// @return what is known of the link @p index
    InterfaceState interfaceState(int index) const;

private:
    std::vector<DefaultRoute>::iterator onlyRouteLike(const DefaultRoute &route);
    void dropRoutesOf(int index);
    /// @return a link other than @p index, over which the main table's default route of metric 0 leads; empty for none
    QString routeWithoutMetricBeside(int index) const;
    QHash<int, quint32> bestGateways() const;

    std::map<int, NetworkLink> m_links;
    std::vector<DefaultRoute> m_routes;
    QHash<int, quint32> m_gateways;
    bool m_routesUncertain = false;
    bool m_routesChanged = false;
    QSet<int> m_changedLinks;
    QSet<int> m_removedLinks;
};

} // namespace tarvo
