#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace tarvo {

/// What becomes of a connection after an exchange.
enum class Afterwards {
    KeepIfAffordable, ///< it stays open for the next exchange, if the server can do without it meanwhile
    Close,
};

/// One HTTP exchange to make.
struct HttpRequest {
    QUrl url; ///< http; anything else is an error
    QList<QByteArray> headers; ///< whole header lines, e.g. `Referer: http://192.0.2.1/`
    std::optional<QByteArray> body; ///< posted when set; nil makes a GET request
    /// Called with each new socket before it is connected; false fails the exchange. May be empty.
    std::function<bool(int socket)> prepareSocket;
    Afterwards afterwards = Afterwards::KeepIfAffordable; ///< a post's connection is closed in any case
};

/// What came of an exchange.
struct HttpAnswer {
    QByteArray data{}; ///< the decoded body as far as it is usable; empty after an error
    std::optional<QString> error{}; ///< why the exchange failed; nil when an answer came, whatever its status

    // What the answer says of itself, for words to the user only.
    bool connected = false; ///< the server took the connection
    int status = 0; ///< of HTTP (RFC 9110); 0 when no head came
    QByteArray contentType{}; ///< the header's value
    QUrl redirect{}; ///< where the server pointed to last, followed or not; empty for nowhere
};

/// Makes HTTP exchanges one after the other. For one thread.
///
/// An exchange ends after five seconds at the latest, or at once when its token is stopped. Proxies are never used,
/// redirects are followed for reads and on the same server only, an answer of more than 4 MiB in all is an error. A
/// post always has a connection of its own, so that it is never sent a second time because an old one was closed.
///
/// A connection is kept open between reads only where the server can do without it: one that serves a single connection
/// would serve nobody else. The second read finds that out, over a second connection while the first is open; unless it
/// is answered within a second, and whenever a new connection has to wait later on, each exchange closes its own.
class HttpClient {
public:
    static constexpr std::chrono::milliseconds timeout{5000}; ///< of one exchange, redirects included
    static constexpr qsizetype maximumAnswerSize{4 << 20}; ///< in bytes, heads and bodies together

    /// Loads what exchanges take, if that is possible, so that the first one need not: takes a while. Any thread.
    static void prepare();

    /// Neither connects to anything nor loads what it takes: the first exchange does.
    HttpClient();
    ~HttpClient();
    HttpClient(const HttpClient &) = delete;
    HttpClient &operator=(const HttpClient &) = delete;

    /// Makes one exchange, and blocks the calling thread until it has ended.
    /// @param stop  ends it early, with an error
    HttpAnswer exchange(const HttpRequest &request, std::stop_token stop);

private:
    class Session;

    std::unique_ptr<Session> m_session; ///< null until the first exchange
};

} // namespace tarvo
