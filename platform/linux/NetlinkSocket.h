#pragma once

#include <functional>
#include <memory>

struct nl_msg;
struct nl_sock;

namespace tarvo {

/// A connection to the kernel's routing netlink (rtnetlink(7)). Used on one thread.
class NetlinkSocket {
public:
    /// Given one message at a time, which it must not keep.
    using Handler = std::function<void(nl_msg *message)>;

    /// What is left after events were received.
    enum class Received {
        Everything, ///< the socket is empty now
        Some, ///< there is more to receive
        Lost, ///< messages were lost before the next one
    };

    /// Opens a socket; @ref isOpen tells whether that succeeded.
    NetlinkSocket();

    bool isOpen() const { return m_open; }
    int descriptor() const;

    /// Asks for events of links, IPv4 addresses and IPv4 routes, and stops waiting for messages.
    /// @return whether the kernel agreed
    bool subscribe();

    /// Hands each event that is there to @p handler, up to a bound that keeps the caller's event loop alive.
    Received receiveEvents(const Handler &handler);

    /// Reads all objects of one kind, and hands each to @p handler.
    /// @param request  an `RTM_GET...` message type
    /// @param family   an address family; AF_UNSPEC for links
    /// @return false when what was read may be incomplete, because it changed meanwhile or an error came
    bool dump(int request, int family, const Handler &handler);

private:
    int receive(const Handler &handler);

    std::unique_ptr<nl_sock, void (*)(nl_sock *)> m_socket;
    bool m_open = false;
};

} // namespace tarvo
