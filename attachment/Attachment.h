#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace tarvo {

class StepQueue;
class ThreadGroup;

/// Ties a new socket to the interface that a modem is behind, on any thread.
/// @return false when that is not possible: nothing may be sent over the socket then
using SocketBinder = std::function<bool(int socket)>;

/// Where a modem is.
struct ModemLocation {
    QString router; ///< the address of its web server: IPv4 in dotted form, perhaps with a port
    std::optional<QString> interfaceName; ///< nil when the report named none
    SocketBinder bindSocket; ///< empty leaves sockets to plain routing
};

/// What those who work for one plugged-in modem are given: where it is, and whether it is still there.
///
/// Copies are handles of the same work. It is over when its attachment is dropped: requests and waits that watch the
/// stop token end, and what they still compute reaches nothing. For every thread.
class Work {
public:
    // Where the modem is, as `ModemLocation` says; valid as long as this handle.
    const QString &router() const;
    const std::optional<QString> &interfaceName() const;
    const SocketBinder &bindSocket() const;

    /// @return the token that stops when the work is over
    std::stop_token stopToken() const;
    /// @return whether the attachment was dropped; from then on it stays so
    bool isOver() const { return stopToken().stop_requested(); }

    /// Runs @p step unless the work is over; the work does not end in the middle of it. The step must not wait.
    /// @return whether it ran
    bool whileAttached(const std::function<void()> &step) const;

    /// Runs @p step later on the thread of @p queue, in order, unless the work is over by then.
    void post(StepQueue &queue, std::function<void()> step) const;

    /// Runs @p body on a thread of its own. @return false when the work is over or the system has no thread to give
    bool start(std::function<void(const Work &work)> body) const;

    /// @return whether both are handles of the same work
    bool operator==(const Work &) const = default;

private:
    friend class Attachment;
    struct State;

    Work(ModemLocation modem, ThreadGroup &threads);
    void end() const;

    std::shared_ptr<State> m_state;
};

/// One modem for as long as it is plugged in and may be spoken to: dropping this object ends all work for the modem,
/// without waiting for it. Lives on the main thread.
class Attachment {
public:
    /// @param threads  run the work; outlives the attachment and its work
    Attachment(ModemLocation modem, ThreadGroup &threads);
    ~Attachment();
    Attachment(const Attachment &) = delete;
    Attachment &operator=(const Attachment &) = delete;

    /// @return the handle to give to those who work for this modem
    const Work &work() const { return m_work; }

private:
    Work m_work;
};

} // namespace tarvo
