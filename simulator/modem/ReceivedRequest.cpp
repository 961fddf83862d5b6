#include "simulator/modem/ReceivedRequest.h"

#include <QList>

namespace tarvo {

namespace {
constexpr qsizetype maximumHeadSize = 64 << 10;
constexpr qsizetype maximumBodySize = 4 << 20;

/// @return the body's announced length; nil when it is no acceptable number
std::optional<qsizetype> bodySize(const ReceivedRequest &request)
{
    const auto text = request.header("Content-Length");
    if (!text)
        return 0;
    bool isNumber = false;
    const qlonglong size = text->toLongLong(&isNumber);
    return isNumber && size >= 0 && size <= maximumBodySize ? std::optional<qsizetype>(size) : std::nullopt;
}
} // namespace

std::optional<QByteArray> ReceivedRequest::header(const QByteArray &name) const
{
    const auto lines = head.split('\n');
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (colon >= 0 && line.left(colon).compare(name, Qt::CaseInsensitive) == 0)
            return line.mid(colon + 1).trimmed();
    }
    return std::nullopt;
}

QByteArray ReceivedRequest::path() const
{
    const qsizetype mark = target.indexOf('?');
    return mark < 0 ? target : target.left(mark);
}

QByteArray ReceivedRequest::query() const
{
    const qsizetype mark = target.indexOf('?');
    return mark < 0 ? QByteArray() : target.mid(mark + 1);
}

bool ReceivedRequest::holds(const QByteArray &part) const
{
    return target.contains(part) || body.contains(part);
}

TakeResult takeRequest(QByteArray &buffer, ReceivedRequest &request)
{
    const qsizetype headEnd = buffer.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return buffer.size() > maximumHeadSize ? TakeResult::Malformed : TakeResult::Incomplete;
    const qsizetype firstLineEnd = buffer.indexOf("\r\n");
    const auto words = buffer.left(firstLineEnd).split(' ');
    if (headEnd > maximumHeadSize || words.size() != 3 || !words[2].startsWith("HTTP/1."))
        return TakeResult::Malformed;
    request = {.method = words[0],
               .target = words[1],
               .head = buffer.mid(firstLineEnd + 2, headEnd - firstLineEnd),
               .body = {}};
    const auto size = bodySize(request);
    if (!size)
        return TakeResult::Malformed;
    const qsizetype bodyStart = headEnd + 4;
    if (buffer.size() - bodyStart < *size)
        return TakeResult::Incomplete;
    request.body = buffer.mid(bodyStart, *size);
    request.time = std::chrono::steady_clock::now();
    buffer.remove(0, bodyStart + *size);
    return TakeResult::Taken;
}

} // namespace tarvo
