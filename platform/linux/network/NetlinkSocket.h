#pragma once

#include <functional>
#include <memory>
#include <vector>

struct nl_msg;
struct nl_sock;

namespace tarvo {

/// A connection to the kernel's routing netlink (rtnetlink(7)). Used on one thread.
class NetlinkSocket {
public:
    /// Given one message at a time, which it must not keep.
    using Handler = std::function<void(nl_msg *message)>;

    struct Received {
        bool lost = false; ///< messages were lost before or between those that came
        bool everything = false; ///< the socket was empty in the end, so that a later loss will be told again
    };

    enum class Dumped {
        Complete,
        Interrupted, ///< what was read may lack objects that are there, because others came or went meanwhile
        Failed,
    };

    /// Opens a socket; @ref isOpen tells whether that succeeded.
    NetlinkSocket();

    bool isOpen() const { return m_open; }
    int descriptor() const;

    /// Asks for events of links, IPv4 addresses and IPv4 routes, and stops waiting for messages.
    /// @return whether the kernel agreed
    bool subscribe();

    /// Hands each event that is there to @p handler, those that were held first, up to a bound that keeps the caller's
    /// event loop alive.
    Received receiveEvents(const Handler &handler);

    /// Takes the events that are there out of the socket, which holds few, for the next @ref receiveEvents.
    void holdEvents();

    /// Reads all objects of one kind, and hands each to @p handler.
    /// @param request  an `RTM_GET...` message type
    /// @param family   an address family; AF_UNSPEC for links
    Dumped dump(int request, int family, const Handler &handler);

private:
    using Message = std::unique_ptr<nl_msg, void (*)(nl_msg *)>;

    Received receiveNow(const Handler &handler);
    int receive(const Handler &handler);

    std::unique_ptr<nl_sock, void (*)(nl_sock *)> m_socket;
    bool m_open = false;
    std::vector<Message> m_held;
    bool m_heldLost = false;
};

} // namespace tarvo
