#include "modemapi/HttpClient.h"

#include "modemapi/CurlLibrary.h"
#include "modemapi/CurlTransfer.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

constexpr int maximumRedirects = 5;
constexpr milliseconds secondConnectionTimeout{1000};

bool sameServer(const QUrl &one, const QUrl &other)
{
    return one.scheme() == other.scheme() && one.host() == other.host() && one.port(80) == other.port(80);
}

/// @return the server of @p url as the log may name it: what follows may hold secrets, and differ each time
QString serverText(const QUrl &url)
{
    return url.toString(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment);
}

} // namespace

/// What one client knows of its server, and its connection to it.
class HttpClient::Session {
public:
    HttpAnswer exchange(const HttpRequest &request, const std::stop_token &stop)
    {
        const auto deadline = steady_clock::now() + timeout;
        QUrl url = request.url;
        QUrl followed;
        for (int redirects = 0;; ++redirects) {
            HttpAnswer answer = fetch(url, request, deadline, stop);
            const QUrl target = std::exchange(answer.redirect, followed);
            if (answer.error || request.body || target.isEmpty())
                return answer;
            if (!sameServer(target, url) || redirects == maximumRedirects)
                return {.error = u"redirected to %1"_s.arg(serverText(target)),
                        .status = answer.status,
                        .redirect = target};
            url = followed = target;
        }
    }

private:
    HttpAnswer fetch(const QUrl &url, const HttpRequest &request, steady_clock::time_point deadline,
                     const std::stop_token &stop)
    {
        const auto left = [&] { return std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now()); };
        const Link link = linkFor(request);
        if (link == Link::Kept && m_isOpen && !m_canBeKept) {
            const milliseconds limit = std::min(left(), secondConnectionTimeout);
            HttpAnswer answer = m_transfer.fetch(url, request, Link::Own, limit, stop);
            keep(answer.status != 0);
            if (!answer.error)
                return answer;
        }
        HttpAnswer answer = m_transfer.fetch(url, request, linkFor(request), left(), stop);
        if (link != Link::Own)
            m_isOpen = link == Link::Kept && !answer.error;
        if (m_transfer.hadToWait())
            keep(false);
        return answer;
    }

    Link linkFor(const HttpRequest &request) const
    {
        if (request.body)
            return Link::Own; // never sent a second time because an old connection was closed
        const bool close = request.afterwards == Afterwards::Close || m_canBeKept == false;
        return close ? Link::Last : Link::Kept;
    }

    void keep(bool canBeKept)
    {
        m_canBeKept = canBeKept;
        if (!canBeKept)
            m_transfer.closeConnection();
    }

    CurlTransfer m_transfer;
    bool m_isOpen = false; ///< the last exchange but posts left a connection open
    /// The server answers others while our connection is open; nil until that was tried.
    std::optional<bool> m_canBeKept;
};

void HttpClient::prepare()
{
    try {
        CurlLibrary::shared();
    } catch (const std::runtime_error &) { // told by who needs it
    }
}

HttpClient::HttpClient() = default;
HttpClient::~HttpClient() = default;

HttpAnswer HttpClient::exchange(const HttpRequest &request, std::stop_token stop)
{
    try {
        if (!m_session)
            m_session = std::make_unique<Session>();
    } catch (const std::runtime_error &missing) {
        qWarning("%s", missing.what());
        return {.error = QString::fromLocal8Bit(missing.what())};
    }
    return m_session->exchange(request, stop);
}

} // namespace tarvo
