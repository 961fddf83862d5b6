#include "modemapi/CurlTransfer.h"

#include <sys/socket.h>

#include <new>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace {

constexpr milliseconds slowConnectTime{500}; // a modem is a cable's length away

const CurlLibrary &curl()
{
    return CurlLibrary::shared();
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

/// @return path and query of @p url as they go into the request line, with the question mark of an empty query
QByteArray requestTarget(const QUrl &url)
{
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray query = url.hasQuery() ? '?' + url.query(QUrl::FullyEncoded).toLatin1() : QByteArray();
    return (path.isEmpty() ? "/" : path) + query;
}

} // namespace

void CurlTransfer::EasyDeleter::operator()(CURL *handle) const
{
    curl().easy_cleanup(handle);
}

void CurlTransfer::MultiDeleter::operator()(CURLM *handle) const
{
    curl().multi_cleanup(handle);
}

void CurlTransfer::ListDeleter::operator()(curl_slist *list) const
{
    curl().slist_free_all(list);
}

CurlTransfer::CurlTransfer()
    : m_easy(curl().easy_init())
    , m_multi(curl().multi_init())
{
    if (!m_easy || !m_multi)
        throw std::bad_alloc();
}

void CurlTransfer::closeConnection()
{
    m_multi.reset(curl().multi_init()); // it holds the connections
}

HttpAnswer CurlTransfer::fetch(const QUrl &url, const HttpRequest &request, Link link, milliseconds limit,
                               const std::stop_token &stop)
{
    m_hadToWait = false;
    if (stop.stop_requested() || limit.count() <= 0)
        return {.error = u"stopped"_s};
    if (request.body || m_prepared != Prepared{url, request.headers, link})
        prepare(url, request, link);
    Receipt receipt;
    curl().easy_setopt(m_easy.get(), CURLOPT_TIMEOUT_MS, static_cast<long>(limit.count()));
    curl().easy_setopt(m_easy.get(), CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(limit.count()));
    curl().easy_setopt(m_easy.get(), CURLOPT_SOCKOPTDATA, &request.prepareSocket);
    curl().easy_setopt(m_easy.get(), CURLOPT_WRITEDATA, &receipt);
    curl().easy_setopt(m_easy.get(), CURLOPT_HEADERDATA, &receipt);
    const CURLcode result = perform(stop);

    HttpAnswer answer;
    describe(answer);
    const bool inVain = result == CURLE_OPERATION_TIMEDOUT && receipt.size == 0;
    const milliseconds connecting(told<curl_off_t>(CURLINFO_CONNECT_TIME_T) / 1000);
    m_hadToWait = told<long>(CURLINFO_NUM_CONNECTS) > 0 && (inVain || connecting >= slowConnectTime);
    if (result == CURLE_OK)
        answer.data = std::move(receipt.body);
    else
        answer.error = QString::fromUtf8(stop.stop_requested() ? "stopped" : curl().easy_strerror(result));
    return answer;
}

void CurlTransfer::describe(HttpAnswer &answer) const
{
    answer.connected = told<curl_off_t>(CURLINFO_CONNECT_TIME_T) > 0;
    answer.status = static_cast<int>(told<long>(CURLINFO_RESPONSE_CODE));
    answer.contentType = told<const char *>(CURLINFO_CONTENT_TYPE);
    const char *target = told<const char *>(CURLINFO_REDIRECT_URL);
    if (!target)
        return;
    answer.redirect = QUrl::fromEncoded(target);
    answer.redirect.setUserInfo({}); // a server must not have us send what it makes up
}

CurlTransfer::HeaderList CurlTransfer::headerList(const QList<QByteArray> &lines, Link link)
{
    HeaderList list;
    // No value: not sent. An answer is decoded if need be, and not asked to be encoded.
    QList<QByteArray> all{"Expect:", "Accept-Encoding:"};
    if (link != Link::Kept)
        all.append("Connection: close");
    for (const QByteArray &line : all + lines) {
        if (line.contains('\r') || line.contains('\n'))
            continue; // would smuggle in further lines
        if (curl_slist *longer = curl().slist_append(list.get(), line.constData())) {
            static_cast<void>(list.release());
            list.reset(longer);
        }
    }
    return list;
}

void CurlTransfer::prepare(const QUrl &url, const HttpRequest &request, Link link)
{
    CURL *easy = m_easy.get();
    curl().easy_reset(easy); // keeps the open connection
    m_headers = headerList(request.headers, link);
    prepareOptions(url);
    curl().easy_setopt(easy, CURLOPT_FRESH_CONNECT, link == Link::Own ? 1L : 0L);
    curl().easy_setopt(easy, CURLOPT_FORBID_REUSE, link == Link::Kept ? 0L : 1L);
    m_prepared.reset();
    if (request.body)
        preparePost(*request.body);
    else
        m_prepared = {url, request.headers, link};
}

void CurlTransfer::prepareOptions(const QUrl &url)
{
    CURL *easy = m_easy.get();
    curl().easy_setopt(easy, CURLOPT_URL, url.toEncoded().constData());
    curl().easy_setopt(easy, CURLOPT_REQUEST_TARGET, requestTarget(url).constData());
    curl().easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http");
    curl().easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl().easy_setopt(easy, CURLOPT_PROXY, "");
    curl().easy_setopt(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl().easy_setopt(easy, CURLOPT_ACCEPT_ENCODING, "gzip");
    curl().easy_setopt(easy, CURLOPT_HTTPHEADER, m_headers.get());
    curl().easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, openSocket);
    curl().easy_setopt(easy, CURLOPT_SOCKOPTFUNCTION, prepareSocket);
    curl().easy_setopt(easy, CURLOPT_WRITEFUNCTION, receiveBody);
    curl().easy_setopt(easy, CURLOPT_HEADERFUNCTION, receiveHeaderLine);
}

void CurlTransfer::preparePost(const QByteArray &body)
{
    curl().easy_setopt(m_easy.get(), CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    curl().easy_setopt(m_easy.get(), CURLOPT_COPYPOSTFIELDS, body.constData());
}

CURLcode CurlTransfer::perform(const std::stop_token &stop)
{
    curl().multi_add_handle(m_multi.get(), m_easy.get());
    const std::stop_callback wake(stop, [this] { curl().multi_wakeup(m_multi.get()); });
    CURLMcode state = CURLM_OK;
    int running = 1;
    while (state == CURLM_OK && running > 0 && !stop.stop_requested()) {
        state = curl().multi_perform(m_multi.get(), &running);
        if (state == CURLM_OK && running > 0)
            state =
                curl().multi_poll(m_multi.get(), nullptr, 0, static_cast<int>(HttpClient::timeout.count()), nullptr);
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

template <typename Value>
Value CurlTransfer::told(CURLINFO what) const
{
    Value value{};
    curl().easy_getinfo(m_easy.get(), what, &value);
    return value;
}

} // namespace tarvo
