#include "platform/linux/network/RouteMessages.h"

#include "platform/linux/network/NetworkModel.h"

#include <QtEndian>

#include <gtest/gtest.h>
#include <linux/rtnetlink.h>
#include <netlink/attr.h>
#include <netlink/msg.h>

#include <initializer_list>
#include <memory>
#include <utility>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

struct Hop {
    rtnexthop head{};
    nlattr gatewayHead{.nla_len = 8, .nla_type = RTA_GATEWAY};
    quint32 gateway = 0;

    Hop(int index, quint32 address)
        : head{.rtnh_len = sizeof(Hop), .rtnh_flags = 0, .rtnh_hops = 0, .rtnh_ifindex = index}
        , gateway(qToBigEndian(address))
    {
    }
};

/// @return the gateways of the two links of a route over both
std::pair<quint32, quint32> gateways(const Hop &first, const Hop &second)
{
    rtmsg route{};
    route.rtm_family = AF_INET;
    route.rtm_table = RT_TABLE_MAIN;
    route.rtm_type = RTN_UNICAST;
    const Hop hops[]{first, second};
    const std::unique_ptr<nl_msg, decltype(&nlmsg_free)> message(nlmsg_alloc_simple(RTM_NEWROUTE, 0), &nlmsg_free);
    nlmsg_append(message.get(), &route, sizeof route, NLMSG_ALIGNTO);
    nla_put(message.get(), RTA_MULTIPATH, sizeof hops, hops);
    NetworkModel model;
    model.setLink(first.head.rtnh_ifindex, u"en1"_s, true);
    model.setLink(second.head.rtnh_ifindex, u"en2"_s, true);
    applyRouteMessage(message.get(), model);
    model.takeChangedLinks();
    return {model.gateway(first.head.rtnh_ifindex), model.gateway(second.head.rtnh_ifindex)};
}

TEST(RouteMessages, ReadSoundHopsAndDropRoutesWithOthers)
{
    const Hop first(1, 10);
    Hop second(2, 20);
    const auto withLength = [&](unsigned short length) {
        second.head.rtnh_len = length;
        return gateways(first, second);
    };
    const std::pair<quint32, quint32> none;
    EXPECT_EQ(gateways(first, second), std::pair(10U, 20U));
    for (const unsigned short length : std::initializer_list<unsigned short>{0, 7, 17, 65535})
        EXPECT_EQ(withLength(length), none) << length;
    second.head.rtnh_len = sizeof(Hop);
    second.gatewayHead.nla_len = 9;
    EXPECT_EQ(gateways(first, second), std::pair(10U, 0U)) << "an attribute that is too long";
    second = Hop(2, 20);
    second.head.rtnh_flags = RTNH_F_DEAD;
    EXPECT_EQ(gateways(first, second), std::pair(10U, 0U)) << "dead";
}

} // namespace
