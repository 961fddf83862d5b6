#include "platform/linux/NetlinkSocket.h"

#include <linux/rtnetlink.h>
#include <netlink/errno.h>
#include <netlink/handlers.h>
#include <netlink/netlink.h>
#include <netlink/route/rtnl.h>
#include <netlink/socket.h>
#include <sys/socket.h>
#include <sys/time.h>

namespace tarvo {

namespace {

constexpr int receiveBufferBytes = 1 << 20; // the kernel gives less to a user's program
constexpr int mostMessagesAtOnce = 4096;

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
    const timeval patience{.tv_sec = 1, .tv_usec = 0}; // the kernel answers at once, or not at all
    m_open = setsockopt(descriptor(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience) == 0;
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
    for (int i = 0; i < mostMessagesAtOnce; ++i) {
        const int result = receive(handler);
        if (result < 0)
            return result == -NLE_AGAIN ? Received::Everything : Received::Lost;
    }
    return Received::Some;
}

bool NetlinkSocket::dump(int request, int family, const Handler &handler)
{
    return nl_rtgen_request(m_socket.get(), request, family, NLM_F_DUMP) >= 0 && receive(handler) >= 0;
}

/// @return a negative libnl error code when something went wrong
int NetlinkSocket::receive(const Handler &handler)
{
    Handler borrowed = handler;
    nl_socket_modify_cb(m_socket.get(), NL_CB_VALID, NL_CB_CUSTOM, &handOver, &borrowed);
    return nl_recvmsgs_default(m_socket.get());
}

} // namespace tarvo
