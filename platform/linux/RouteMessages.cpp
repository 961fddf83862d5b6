#include "platform/linux/RouteMessages.h"

#include "platform/linux/NetworkModel.h"

#include <QtEndian>

#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netlink/addr.h>
#include <netlink/attr.h>
#include <netlink/msg.h>
#include <netlink/route/nexthop.h>
#include <netlink/route/route.h>

#include <array>
#include <cstring>
#include <memory>
#include <optional>

namespace tarvo {

namespace {

using RoutePointer = std::unique_ptr<rtnl_route, decltype(&rtnl_route_put)>;

/// The attributes of a message by their type. Only those that have a policy are checked, and may be used.
template <std::size_t Count>
struct Attributes {
    std::array<nlattr *, Count> byType{};
    bool valid = false;

    Attributes(nlmsghdr *header, int headerLength, const std::array<nla_policy, Count> &policy)
        : valid(nlmsg_parse(header, headerLength, byType.data(), int(Count) - 1, policy.data()) == 0)
    {
    }
};

constexpr auto linkPolicy = [] {
    std::array<nla_policy, IFLA_IFNAME + 1> policy{};
    policy[IFLA_IFNAME] = {.type = NLA_STRING, .minlen = 2, .maxlen = IFNAMSIZ};
    return policy;
}();

constexpr auto addressPolicy = [] {
    std::array<nla_policy, IFA_LOCAL + 1> policy{};
    policy[IFA_ADDRESS] = {.type = NLA_U32, .minlen = 4, .maxlen = 4};
    policy[IFA_LOCAL] = {.type = NLA_U32, .minlen = 4, .maxlen = 4};
    return policy;
}();

void applyLink(nlmsghdr *header, NetworkModel &model)
{
    const Attributes attributes(header, sizeof(ifinfomsg), linkPolicy);
    if (!attributes.valid)
        return;
    const auto *const info = static_cast<const ifinfomsg *>(nlmsg_data(header));
    if (info->ifi_family != AF_UNSPEC)
        return; // a bridge tells of its ports in the same form
    if (header->nlmsg_type == RTM_DELLINK) {
        model.removeLink(info->ifi_index);
        return;
    }
    if (const nlattr *const name = attributes.byType[IFLA_IFNAME])
        model.setLink(info->ifi_index, QString::fromUtf8(nla_get_string(name)), (info->ifi_flags & IFF_UP) != 0);
}

void applyAddress(nlmsghdr *header, NetworkModel &model)
{
    const Attributes attributes(header, sizeof(ifaddrmsg), addressPolicy);
    if (!attributes.valid)
        return;
    const auto *const info = static_cast<const ifaddrmsg *>(nlmsg_data(header));
    const nlattr *const local = attributes.byType[IFA_LOCAL];
    if (info->ifa_family != AF_INET || !local)
        return;
    const nlattr *const peer = attributes.byType[IFA_ADDRESS] ? attributes.byType[IFA_ADDRESS] : local;
    const InterfaceAddress address{qFromBigEndian(nla_get_u32(local)), qFromBigEndian(nla_get_u32(peer)),
                                   info->ifa_prefixlen};
    const int index = int(info->ifa_index);
    if (header->nlmsg_type == RTM_NEWADDR)
        model.addAddress(index, address);
    else
        model.removeAddress(index, address);
}

quint32 gatewayOf(rtnl_nexthop *hop)
{
    nl_addr *const gateway = rtnl_route_nh_get_gateway(hop);
    if (!gateway || nl_addr_get_family(gateway) != AF_INET || nl_addr_get_len(gateway) != sizeof(quint32))
        return 0;
    return qFromBigEndian<quint32>(nl_addr_get_binary_addr(gateway));
}

void collectNextHop(rtnl_nexthop *hop, void *route)
{
    if ((rtnl_route_nh_get_flags(hop) & RTNH_F_DEAD) == 0)
        static_cast<DefaultRoute *>(route)->nextHops.push_back({rtnl_route_nh_get_ifindex(hop), gatewayOf(hop)});
}

/// @return whether each next hop says a length that leads to the one after it: libnl follows them without looking
bool areHopsSound(const nlattr *multipath)
{
    int remaining = nla_len(multipath);
    const auto *hop = static_cast<const rtnexthop *>(nla_data(multipath));
    while (remaining >= int(sizeof(rtnexthop))) {
        if (hop->rtnh_len < sizeof(rtnexthop) || hop->rtnh_len > remaining)
            return false;
        remaining -= int(RTNH_ALIGN(hop->rtnh_len));
        hop = reinterpret_cast<const rtnexthop *>(reinterpret_cast<const char *>(hop) + RTNH_ALIGN(hop->rtnh_len));
    }
    return true;
}

bool areHopsSound(nlmsghdr *header)
{
    const nlattr *attribute = nullptr;
    int remaining = 0;
    nlmsg_for_each_attr(attribute, header, sizeof(rtmsg), remaining)
    {
        if (nla_type(attribute) == RTA_MULTIPATH && !areHopsSound(attribute))
            return false;
    }
    return true;
}

/// @return the route in the message; nil when it is no default route that carries traffic
std::optional<DefaultRoute> defaultRoute(nlmsghdr *header)
{
    if (!nlmsg_valid_hdr(header, sizeof(rtmsg)))
        return std::nullopt;
    const auto *const info = static_cast<const rtmsg *>(nlmsg_data(header));
    if (info->rtm_family != AF_INET || info->rtm_dst_len != 0 || info->rtm_type != RTN_UNICAST
        || (info->rtm_flags & RTM_F_CLONED) != 0 || !areHopsSound(header))
        return std::nullopt;
    rtnl_route *parsed = nullptr;
    if (rtnl_route_parse(header, &parsed) < 0)
        return std::nullopt;
    const RoutePointer owner(parsed, &rtnl_route_put);
    DefaultRoute route{rtnl_route_get_table(parsed), rtnl_route_get_priority(parsed), rtnl_route_get_tos(parsed), {}};
    rtnl_route_foreach_nexthop(parsed, collectNextHop, &route);
    return route;
}

void applyRoute(nlmsghdr *header, NetworkModel &model)
{
    const std::optional<DefaultRoute> route = defaultRoute(header);
    if (!route)
        return;
    if (header->nlmsg_type == RTM_DELROUTE)
        model.removeRoute(*route);
    else if ((header->nlmsg_flags & NLM_F_REPLACE) != 0)
        model.replaceRoute(*route);
    else
        model.addRoute(*route);
}

} // namespace

void applyRouteMessage(nl_msg *message, NetworkModel &model)
{
    nlmsghdr *const header = nlmsg_hdr(message);
    if (nlmsg_get_src(message)->nl_pid != 0)
        return;
    switch (header->nlmsg_type) {
    case RTM_NEWLINK:
    case RTM_DELLINK:
        applyLink(header, model);
        break;
    case RTM_NEWADDR:
    case RTM_DELADDR:
        applyAddress(header, model);
        break;
    case RTM_NEWROUTE:
    case RTM_DELROUTE:
        applyRoute(header, model);
        break;
    case RTM_NEWNEXTHOP:
    case RTM_DELNEXTHOP:
        model.setRoutesUncertain();
        break;
    default:
        break;
    }
}

} // namespace tarvo
