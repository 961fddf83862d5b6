#include "modemapi/HttpClient.h"

#include "modemapi/CurlLibrary.h"

#include <sys/socket.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int maximumRedirects = 5;

const CurlLibrary &curl()
{
    return CurlLibrary::shared();
}

struct EasyDeleter {
    void operator()(CURL *handle) const { curl().easy_cleanup(handle); }
};
struct MultiDeleter {
    void operator()(CURLM *handle) const { curl().multi_cleanup(handle); }
};
struct ListDeleter {
    void operator()(curl_slist *list) const { curl().slist_free_all(list); }
};
using HeaderList = std::unique_ptr<curl_slist, ListDeleter>;

HeaderList headerList(const QList<QByteArray> &lines)
{
    HeaderList list(curl().slist_append(nullptr, "Expect:"));
    for (const QByteArray &line : lines) {
        if (line.contains('\r') || line.contains('\n'))
            continue; // would smuggle in further lines
        if (curl_slist *longer = curl().slist_append(list.get(), line.constData())) {
            static_cast<void>(list.release());
            list.reset(longer);
        }
    }
    return list;
}

/// What has come of an answer so far.
struct Receipt {
    QByteArray body;
    qsizetype size = 0; ///< of all that came: heads, body and trailers

    /// @return whether @p length more bytes are within the bound
    bool count(size_t length)
    {
        size += static_cast<qsizetype>(length);
        return size <= HttpClient::maximumAnswerSize;
    }
};

size_t receiveBody(char *bytes, size_t size, size_t count, void *context)
{
    auto &receipt = *static_cast<Receipt *>(context);
    const size_t length = size * count;
    if (!receipt.count(length))
        return CURL_WRITEFUNC_ERROR;
    receipt.body.append(bytes, static_cast<qsizetype>(length));
    return length;
}

size_t receiveHeaderLine(char *, size_t size, size_t count, void *context)
{
    return static_cast<Receipt *>(context)->count(size * count) ? size * count : CURL_WRITEFUNC_ERROR;
}

curl_socket_t openSocket(void *, curlsocktype, curl_sockaddr *address)
{
    // Programs that are started meanwhile must not inherit it.
    return ::socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
}

int prepareSocket(void *context, curl_socket_t socket, curlsocktype)
{
    const auto &prepare = *static_cast<const std::function<bool(int)> *>(context);
    return !prepare || prepare(socket) ? CURL_SOCKOPT_OK : CURL_SOCKOPT_ERROR;
}

int portOf(const QUrl &url)
{
    return url.port(url.scheme() == u"https" ? 443 : 80);
}

bool sameServer(const QUrl &one, const QUrl &other)
{
    return one.scheme() == other.scheme() && one.host() == other.host() && portOf(one) == portOf(other);
}

/// @return path and query of @p url as they go into the request line, with the question mark of an empty query
QByteArray requestTarget(const QUrl &url)
{
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray query = url.hasQuery() ? '?' + url.query(QUrl::FullyEncoded).toLatin1() : QByteArray();
    return (path.isEmpty() ? "/" : path) + query;
}

} // namespace

/// The handles of one client: an easy handle for the exchange, driven by a multi handle that another thread may wake.
class HttpClient::Transfer {
public:
    /// @throws std::runtime_error when there is no libcurl
    Transfer()
        : m_easy(curl().easy_init())
        , m_multi(curl().multi_init())
    {
        if (!m_easy || !m_multi)
            throw std::bad_alloc();
    }

    HttpAnswer run(const HttpRequest &request, std::stop_token stop)
    {
        const auto deadline = std::chrono::steady_clock::now() + timeout;
        QUrl url = request.url;
        for (int redirects = 0;; ++redirects) {
            HttpAnswer answer = fetch(url, request, deadline, stop);
            const std::optional<QUrl> target = redirectTarget();
            if (answer.error || request.body || !target)
                return answer;
            if (!sameServer(*target, url) || redirects == maximumRedirects)
                return {{}, u"redirected to %1"_s.arg(target->toString())};
            url = *target;
        }
    }

private:
    /// What the next transfer of a read finds prepared: the usual one asks for the same page as the last.
    struct Prepared {
        QUrl url;
        QList<QByteArray> headers;

        bool operator==(const Prepared &) const = default;
    };

    HttpAnswer fetch(const QUrl &url, const HttpRequest &request, std::chrono::steady_clock::time_point deadline,
                     const std::stop_token &stop)
    {
        using std::chrono::milliseconds;
        const auto left = std::chrono::duration_cast<milliseconds>(deadline - std::chrono::steady_clock::now()).count();
        if (stop.stop_requested() || left <= 0)
            return {{}, u"stopped"_s};

        Receipt receipt;
        if (request.body || m_prepared != Prepared{url, request.headers})
            prepare(url, request);
        curl().easy_setopt(m_easy.get(), CURLOPT_TIMEOUT_MS, static_cast<long>(left));
        curl().easy_setopt(m_easy.get(), CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(left));
        curl().easy_setopt(m_easy.get(), CURLOPT_SOCKOPTDATA, &request.prepareSocket);
        curl().easy_setopt(m_easy.get(), CURLOPT_WRITEDATA, &receipt);
        curl().easy_setopt(m_easy.get(), CURLOPT_HEADERDATA, &receipt);
        const CURLcode result = perform(stop);
        if (result != CURLE_OK)
            return {{}, QString::fromUtf8(stop.stop_requested() ? "stopped" : curl().easy_strerror(result))};
        return {std::move(receipt.body), std::nullopt};
    }

    void prepare(const QUrl &url, const HttpRequest &request)
    {
        CURL *easy = m_easy.get();
        curl().easy_reset(easy); // keeps the open connections
        m_headers = headerList(request.headers);
        curl().easy_setopt(easy, CURLOPT_URL, url.toEncoded().constData());
        curl().easy_setopt(easy, CURLOPT_REQUEST_TARGET, requestTarget(url).constData());
        curl().easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
        curl().easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
        curl().easy_setopt(easy, CURLOPT_PROXY, "");
        curl().easy_setopt(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
        curl().easy_setopt(easy, CURLOPT_HTTPHEADER, m_headers.get());
        curl().easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, openSocket);
        curl().easy_setopt(easy, CURLOPT_SOCKOPTFUNCTION, prepareSocket);
        curl().easy_setopt(easy, CURLOPT_WRITEFUNCTION, receiveBody);
        curl().easy_setopt(easy, CURLOPT_HEADERFUNCTION, receiveHeaderLine);
        m_prepared.reset();
        if (request.body)
            preparePost(*request.body);
        else
            m_prepared = {url, request.headers};
    }

    void preparePost(const QByteArray &body)
    {
        CURL *easy = m_easy.get();
        curl().easy_setopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
        curl().easy_setopt(easy, CURLOPT_COPYPOSTFIELDS, body.constData());
        curl().easy_setopt(easy, CURLOPT_FRESH_CONNECT, 1L);
        curl().easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
    }

    CURLcode perform(const std::stop_token &stop)
    {
        curl().multi_add_handle(m_multi.get(), m_easy.get());
        const std::stop_callback wake(stop, [this] { curl().multi_wakeup(m_multi.get()); });
        CURLMcode state = CURLM_OK;
        int running = 1;
        while (state == CURLM_OK && running > 0 && !stop.stop_requested()) {
            state = curl().multi_perform(m_multi.get(), &running);
            if (state == CURLM_OK && running > 0)
                state = curl().multi_poll(m_multi.get(), nullptr, 0, static_cast<int>(timeout.count()), nullptr);
        }
        CURLcode result = CURLE_ABORTED_BY_CALLBACK;
        int queued = 0;
        while (const CURLMsg *message = curl().multi_info_read(m_multi.get(), &queued)) {
            if (message->msg == CURLMSG_DONE)
                result = message->data.result;
        }
        curl().multi_remove_handle(m_multi.get(), m_easy.get());
        return result;
    }

    std::optional<QUrl> redirectTarget() const
    {
        const char *target = nullptr;
        curl().easy_getinfo(m_easy.get(), CURLINFO_REDIRECT_URL, &target);
        return target ? std::optional(QUrl::fromEncoded(target)) : std::nullopt;
    }

    HeaderList m_headers; ///< used by the handle
    std::optional<Prepared> m_prepared; ///< nil when the handle is prepared for nothing, or for a post
    std::unique_ptr<CURL, EasyDeleter> m_easy;
    std::unique_ptr<CURLM, MultiDeleter> m_multi;
};

HttpClient::HttpClient() = default;
HttpClient::~HttpClient() = default;

HttpAnswer HttpClient::exchange(const HttpRequest &request, std::stop_token stop)
{
    try {
        if (!m_transfer)
            m_transfer = std::make_unique<Transfer>();
    } catch (const std::runtime_error &missing) {
        qWarning("%s", missing.what());
        return {{}, QString::fromLocal8Bit(missing.what())};
    }
    return m_transfer->run(request, std::move(stop));
}

} // namespace tarvo
