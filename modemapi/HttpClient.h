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

/// One HTTP exchange to make.
struct HttpRequest {
    QUrl url; ///< http or https; anything else is an error
    QList<QByteArray> headers; ///< whole header lines, e.g. `Referer: http://192.0.2.1/`
    std::optional<QByteArray> body; ///< posted when set; nil makes a GET request
    /// Called with each new socket before it is connected; false fails the exchange. May be empty.
    std::function<bool(int socket)> prepareSocket;
};

/// What came of an exchange.
struct HttpAnswer {
    QByteArray data; ///< the body as far as it is usable; empty after an error
    std::optional<QString> error; ///< why the exchange failed; nil when an answer came, whatever its status
};

/// Makes HTTP exchanges one after the other, over a connection that is kept open between them. For one thread.
///
/// An exchange ends after five seconds at the latest, or at once when its token is stopped. Proxies are never used,
/// redirects are followed for reads and on the same server only, an answer of more than 4 MiB in all is an error. A
/// post always has a connection of its own, so that it is never sent a second time because an old one was closed.
class HttpClient {
public:
    static constexpr std::chrono::milliseconds timeout{5000}; ///< of one exchange, redirects included
    static constexpr qsizetype maximumAnswerSize{4 << 20}; ///< in bytes, heads and bodies together

    /// Neither connects to anything nor loads what it takes: the first exchange does.
    HttpClient();
    ~HttpClient();
    HttpClient(const HttpClient &) = delete;
    HttpClient &operator=(const HttpClient &) = delete;

    /// Makes one exchange, and blocks the calling thread until it has ended.
    /// @param stop  ends it early, with an error
    HttpAnswer exchange(const HttpRequest &request, std::stop_token stop);

private:
    class Transfer;

    std::unique_ptr<Transfer> m_transfer; ///< null until the first exchange
};

} // namespace tarvo
