#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <chrono>
#include <optional>

namespace tarvo {

/// One HTTP request (RFC 9112) as it came over the wire.
struct ReceivedRequest {
    QByteArray method; ///< e.g. "GET"
    QByteArray target; ///< path and query, as sent
    QByteArray head; ///< all header lines, each with its CR LF, without the request line
    QByteArray body; ///< as long as "Content-Length" says; empty without
    std::chrono::steady_clock::time_point time{}; ///< when it was complete
    quint64 connection = 0; ///< counts the accepted connections from 1

    /// @return the value of the first header named @p name, whatever its letters' case; nil when there is none
    std::optional<QByteArray> header(const QByteArray &name) const;
    /// @return the target up to the question mark
    QByteArray path() const;
    /// @return what follows the question mark; empty when there is none
    QByteArray query() const;
    /// @return whether target or body holds @p part; an empty part is in every request
    bool holds(const QByteArray &part) const;
};

/// What became of the bytes that have come.
enum class TakeResult {
    Taken, ///< one request was cut off the front of the buffer
    Incomplete, ///< more bytes are needed
    Malformed, ///< the bytes are no request, or too many
};

/// Cuts the first complete request off @p buffer; heads of up to 64 KiB and bodies of up to 4 MiB are accepted.
TakeResult takeRequest(QByteArray &buffer, ReceivedRequest &request);

} // namespace tarvo
