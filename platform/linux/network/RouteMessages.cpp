#include "platform/linux/network/RouteMessages.h"

#include "platform/linux/network/NetworkModel.h"

#include <QtEndian>

#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netlink/attr.h>
#include <netlink/msg.h>

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace tarvo {

namespace {

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

constexpr auto routePolicy = [] {
    std::array<nla_policy, RTA_TABLE + 1> policy{};
    policy[RTA_OIF] = {.type = NLA_U32, .minlen = 4, .maxlen = 4};
    policy[RTA_PRIORITY] = {.type = NLA_U32, .minlen = 4, .maxlen = 4};
    policy[RTA_TABLE] = {.type = NLA_U32, .minlen = 4, .maxlen = 4};
    return policy;
}();

using RouteAttributes = Attributes<routePolicy.size()>;

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

/// @return the IPv4 address in @p gateway; 0 when there is none, as where the next hop is reached by another protocol
quint32 gatewayOf(const nlattr *gateway)
{
    return gateway && nla_len(gateway) == sizeof(quint32) ? qFromBigEndian(nla_get_u32(gateway)) : 0;
}

/// @return the gateway of one of several next hops; nil when the attributes behind it are not well formed
std::optional<quint32> gatewayBehind(const rtnexthop *hop)
{
    const int length = hop->rtnh_len - int(sizeof(rtnexthop));
    std::array<nlattr *, routePolicy.size()> attributes{};
    auto *const first = reinterpret_cast<nlattr *>(RTNH_DATA(hop));
    if (length > 0 && nla_parse(attributes.data(), int(attributes.size()) - 1, first, length, routePolicy.data()) < 0)
        return std::nullopt;
    return gatewayOf(attributes[RTA_GATEWAY]);
}

/// @return the next hops that are not dead; nil when one does not lead to the next, or is itself damaged
std::optional<std::vector<NextHop>> nextHops(const nlattr *multipath)
{
    std::vector<NextHop> hops;
    const auto *position = static_cast<const char *>(nla_data(multipath));
    int remaining = nla_len(multipath);
    while (remaining >= int(sizeof(rtnexthop))) {
        const auto *const hop = reinterpret_cast<const rtnexthop *>(position);
        if (hop->rtnh_len < sizeof(rtnexthop) || hop->rtnh_len > remaining)
            return std::nullopt;
        const std::optional<quint32> gateway = gatewayBehind(hop);
        if (!gateway)
            return std::nullopt;
        if ((hop->rtnh_flags & RTNH_F_DEAD) == 0)
            hops.push_back({hop->rtnh_ifindex, *gateway});
        position += RTNH_ALIGN(hop->rtnh_len);
        remaining -= int(RTNH_ALIGN(hop->rtnh_len));
    }
    return hops;
}

/// @return the next hops of a route, whether it has one or several; nil when they are damaged
std::optional<std::vector<NextHop>> nextHops(const rtmsg &info, const RouteAttributes &attributes)
{
    if (const nlattr *const multipath = attributes.byType[RTA_MULTIPATH])
        return nextHops(multipath);
    const nlattr *const link = attributes.byType[RTA_OIF];
    if (!link || (info.rtm_flags & RTNH_F_DEAD) != 0)
        return std::vector<NextHop>{};
    return std::vector<NextHop>{{int(nla_get_u32(link)), gatewayOf(attributes.byType[RTA_GATEWAY])}};
}

/// @return the route in the message; nil when it is no default route that carries traffic
std::optional<DefaultRoute> defaultRoute(nlmsghdr *header)
{
    const RouteAttributes attributes(header, sizeof(rtmsg), routePolicy);
    if (!attributes.valid)
        return std::nullopt;
    const auto *const info = static_cast<const rtmsg *>(nlmsg_data(header));
    if (info->rtm_family != AF_INET || info->rtm_dst_len != 0 || info->rtm_type != RTN_UNICAST
        || (info->rtm_flags & RTM_F_CLONED) != 0)
        return std::nullopt;
    std::optional<std::vector<NextHop>> hops = nextHops(*info, attributes);
    if (!hops)
        return std::nullopt;
    const nlattr *const table = attributes.byType[RTA_TABLE]; // there where the number takes more than a byte
    const nlattr *const metric = attributes.byType[RTA_PRIORITY];
    return DefaultRoute{table ? nla_get_u32(table) : info->rtm_table, metric ? nla_get_u32(metric) : 0, info->rtm_tos,
                        std::move(*hops)};
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
