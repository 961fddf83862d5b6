#include "platform/linux/network/NetlinkSocket.h"

#include <linux/rtnetlink.h>
#include <netlink/errno.h>
#include <netlink/handlers.h>
#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/socket.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <utility>

namespace tarvo {

namespace {

constexpr int receiveBufferBytes = 1 << 20; // the kernel gives less to a user's program
constexpr int mostMessagesAtOnce = 4096;
constexpr std::size_t mostMessagesHeld = 1 << 16;

int handOver(nl_msg *message, void *handler)
{
    (*static_cast<const NetlinkSocket::Handler *>(handler))(message);
    return NL_OK;
}

} // namespace

NetlinkSocket::NetlinkSocket()
    : m_socket(nl_socket_alloc(), &nl_socket_free)
{
    if (!m_socket || nl_connect(m_socket.get(), NETLINK_ROUTE) < 0)
        return;
    nl_socket_set_buffer_size(m_socket.get(), receiveBufferBytes, 0);
    const timeval timeout{.tv_sec = 1, .tv_usec = 0}; // the kernel answers at once, or not at all
    m_open = setsockopt(descriptor(), SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout) == 0;
}

int NetlinkSocket::descriptor() const
{
    return nl_socket_get_fd(m_socket.get());
}

bool NetlinkSocket::subscribe()
{
    nl_socket_disable_seq_check(m_socket.get());
    nl_socket_add_memberships(m_socket.get(), RTNLGRP_NEXTHOP, 0); // Linux 5.3; without it there are no such objects
    return nl_socket_set_nonblocking(m_socket.get()) == 0
        && nl_socket_add_memberships(m_socket.get(), RTNLGRP_LINK, RTNLGRP_IPV4_IFADDR, RTNLGRP_IPV4_ROUTE, 0) == 0;
}

NetlinkSocket::Received NetlinkSocket::receiveEvents(const Handler &handler)
{
    for (const Message &message : std::exchange(m_held, {}))
        handler(message.get());
    Received received = receiveNow(handler);
    received.lost |= std::exchange(m_heldLost, false);
    return received;
}

void NetlinkSocket::holdEvents()
{
    if (m_held.size() >= mostMessagesHeld)
        return;
    const Received received = receiveNow([this](nl_msg *message) {
        nlmsg_get(message);
        m_held.emplace_back(message, &nlmsg_free);
    });
    m_heldLost |= received.lost;
}

/// A loss is told before the messages that came before it, and no other one until the socket has been empty.
NetlinkSocket::Received NetlinkSocket::receiveNow(const Handler &handler)
{
    Received received;
    for (int i = 0; i < mostMessagesAtOnce && !received.everything; ++i) {
        const int result = receive(handler);
        received.everything = result == -NLE_AGAIN;
        received.lost |= result < 0 && result != -NLE_AGAIN;
    }
    return received;
}

NetlinkSocket::Dumped NetlinkSocket::dump(int request, int family, const Handler &handler)
{
    rtgenmsg which{.rtgen_family = static_cast<unsigned char>(family)};
    if (nl_send_simple(m_socket.get(), request, NLM_F_DUMP, &which, sizeof which) < 0)
        return Dumped::Failed;
    const int result = receive(handler);
    if (result == -NLE_DUMP_INTR)
        return Dumped::Interrupted;
    return result < 0 ? Dumped::Failed : Dumped::Complete;
}

/// @return a negative libnl error code when something went wrong
int NetlinkSocket::receive(const Handler &handler)
{
    Handler borrowed = handler;
    nl_socket_modify_cb(m_socket.get(), NL_CB_VALID, NL_CB_CUSTOM, &handOver, &borrowed);
    return nl_recvmsgs_default(m_socket.get());
}

} // namespace tarvo
