#pragma once

#include "modemapi/CurlLibrary.h"
#include "modemapi/HttpClient.h"

#include <QList>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>

namespace tarvo {

/// Which connection a transfer goes over.
enum class Link {
    Kept, ///< the one that is open, else a new one; it stays open
    Last, ///< the one that is open, else a new one; it is closed afterwards
    Own, ///< a new one, which is closed afterwards; the one that is open stays so
};

/// Carries out one transfer after the other. For one thread.
class CurlTransfer {
public:
    /// @throws std::runtime_error when there is no libcurl
    CurlTransfer();

    /// Makes the request @p request to @p url, which may be another than its own, within @p limit. A redirect is told,
    /// not followed.
    HttpAnswer fetch(const QUrl &url, const HttpRequest &request, Link link, std::chrono::milliseconds limit,
                     const std::stop_token &stop);

    /// @return whether the last transfer had to wait until the server took its new connection
    bool hadToWait() const { return m_hadToWait; }

    /// Closes the connection that is open.
    void closeConnection();

private:
    struct EasyDeleter {
        void operator()(CURL *handle) const;
    };
    struct MultiDeleter {
        void operator()(CURLM *handle) const;
    };
    struct ListDeleter {
        void operator()(curl_slist *list) const;
    };
    using HeaderList = std::unique_ptr<curl_slist, ListDeleter>;

    /// What the next transfer of a read finds prepared: the usual one asks for the same page as the last.
    struct Prepared {
        QUrl url;
        QList<QByteArray> headers;
        Link link;

        bool operator==(const Prepared &) const = default;
    };

    static HeaderList headerList(const QList<QByteArray> &lines, Link link);
    void prepare(const QUrl &url, const HttpRequest &request, Link link);
    void prepareOptions(const QUrl &url);
    void preparePost(const QByteArray &body);
    CURLcode perform(const std::stop_token &stop);
    template <typename Value>
    Value told(CURLINFO what) const;
    /// Puts what is known of the answer's head, and of the connection, into @p answer.
    void describe(HttpAnswer &answer) const;

    HeaderList m_headers; ///< used by the handle
    std::optional<Prepared> m_prepared; ///< nil when the handle is prepared for nothing, or for a post
    bool m_hadToWait = false;
    std::unique_ptr<CURL, EasyDeleter> m_easy;
    std::unique_ptr<CURLM, MultiDeleter> m_multi; ///< drives the easy handle; another thread may wake it
};

} // namespace tarvo
