#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>

#include <chrono>
#include <functional>
#include <future>
#include <optional>
#include <thread>

class QEventLoop;

namespace tarvo {

class ModemListener;
class StepQueue;
class SimulatedModem;

/// What a server does wrong.
enum class FaultKind {
    None,
    NoAnswer, ///< takes the request and says nothing
    SlowAnswer, ///< answers after a delay
    HalfAnswer, ///< breaks off in the middle of the body
    EndlessAnswer, ///< never stops sending
    DrippingAnswer, ///< sends a byte of the body now and then, without end
    EndlessHead, ///< never stops sending header lines
    WrongBytes, ///< a body that is no UTF-8
    CloseAtOnce, ///< closes instead of answering
    ResetAtOnce, ///< resets the connection instead of answering
    CloseKeptAlive, ///< answers a connection's first request and closes at the next
    OneConnection, ///< serves one connection at a time, and the others when that is closed
    Redirect, ///< sends the client to another address, as the same request
    Verbatim, ///< sends a text of one's own, head and all
    Refuse, ///< closes all connections and takes no new ones
};

/// A fault and the requests that it befalls.
struct ModemFault {
    FaultKind kind = FaultKind::None; ///< `None` ends an earlier fault
    QByteArray part{}; ///< only requests that hold this; empty for all. Not for `Refuse` and `OneConnection`
    std::chrono::milliseconds delay{2000}; ///< of `SlowAnswer`
    QByteArray text{}; ///< where `Redirect` points to, or what `Verbatim` sends
};

/// @return the fault's kind for a name such as "slow" or "half"; nil when the name is unknown
std::optional<FaultKind> faultKind(const QString &name);

/// Serves a simulated modem over HTTP/1.1 with connections that are kept open, on a thread of its own.
class ModemServer {
public:
    /// Listens at once. @param modem  outlives the server
    /// @param port  0 takes any free port
    explicit ModemServer(SimulatedModem &modem, const QHostAddress &address = QHostAddress::LocalHost,
                         quint16 port = 0);
    ~ModemServer();
    ModemServer(const ModemServer &) = delete;
    ModemServer &operator=(const ModemServer &) = delete;

    /// @return why nothing is listened to; nil when all is well
    const std::optional<QString> &error() const { return m_error; }
    /// @return the port that is listened to
    quint16 port() const { return m_port; }
    /// @return "address:port", as it stands in a URL
    QString authority() const;

    /// Takes effect, when this returns, for all requests that are answered from then on.
    void setFault(const ModemFault &fault);

private:
    /// The thread's body: listens, then serves until it is told to quit.
    void serve(SimulatedModem &modem, quint16 port, std::promise<void> &started);
    /// Runs @p step on the thread, and waits until it has.
    void onThread(const std::function<void()> &step);

    QHostAddress m_address;
    quint16 m_port = 0;
    std::optional<QString> m_error;
    /// These three live on the thread.
    ModemListener *m_listener = nullptr;
    StepQueue *m_steps = nullptr;
    QEventLoop *m_loop = nullptr;
    std::thread m_thread;
};

} // namespace tarvo
