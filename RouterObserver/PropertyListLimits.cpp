#include "RouterObserver/PropertyListLimits.h"

#include <QXmlStreamReader>

#include <vector>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 headerSize = 8;
constexpr quint64 trailerSize = 32;
constexpr quint64 costOfObject = 64;

struct Trailer {
    quint64 offsetSize;
    quint64 referenceSize;
    quint64 objectCount;
    quint64 rootObject;
    quint64 offsetTable;
};

/// One object as it lies in the file; a container's payload is its references.
struct Object {
    quint64 payload;
    quint64 payloadSize;
    bool isContainer;
};

/// Reads numbers and objects from a file whose trailer fits it.
class BinaryFile {
public:
    explicit BinaryFile(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    bool readTrailer();
    const Trailer &trailer() const { return m_trailer; }
    std::optional<Object> object(quint64 index) const;
    quint64 number(quint64 position, quint64 width) const;

private:
    quint64 byteAt(quint64 position) const { return static_cast<quint8>(m_bytes[static_cast<qsizetype>(position)]); }
    std::optional<quint64> payloadSize(quint64 kind, quint64 count) const;

    const QByteArray &m_bytes;
    Trailer m_trailer{};
};

quint64 BinaryFile::number(quint64 position, quint64 width) const
{
    quint64 value = 0;
    for (quint64 i = 0; i < width; ++i)
        value = value << 8 | byteAt(position + i);
    return value;
}

bool BinaryFile::readTrailer()
{
    const auto size = static_cast<quint64>(m_bytes.size());
    if (size < headerSize + trailerSize)
        return false;
    const quint64 start = size - trailerSize;
    m_trailer = {number(start + 6, 1), number(start + 7, 1), number(start + 8, 8), number(start + 16, 8),
                 number(start + 24, 8)};
    const auto fits = [](quint64 width) { return width >= 1 && width <= 8; };
    if (!fits(m_trailer.offsetSize) || !fits(m_trailer.referenceSize))
        return false;
    return m_trailer.offsetTable >= headerSize && m_trailer.offsetTable <= start
        && m_trailer.objectCount <= (start - m_trailer.offsetTable) / m_trailer.offsetSize;
}

std::optional<quint64> BinaryFile::payloadSize(quint64 kind, quint64 count) const
{
    switch (kind) {
    case 0x0: // false or true
        return count == 8 || count == 9 ? std::optional<quint64>(0) : std::nullopt;
    case 0x1: // integer
        return count <= 4 ? std::optional<quint64>(1ULL << count) : std::nullopt;
    case 0x2: // real
        return count == 2 || count == 3 ? std::optional<quint64>(1ULL << count) : std::nullopt;
    case 0x3: // date
        return count == 3 ? std::optional<quint64>(8) : std::nullopt;
    case 0x4: // data
    case 0x5: // ASCII text
        return count;
    case 0x6: // UTF-16 text
        return 2 * count;
    case 0xA: // array
        return count * m_trailer.referenceSize;
    case 0xD: // dictionary: keys, then values
        return 2 * count * m_trailer.referenceSize;
    default:
        return std::nullopt;
    }
}

std::optional<Object> BinaryFile::object(quint64 index) const
{
    if (index >= m_trailer.objectCount)
        return std::nullopt;
    const quint64 end = m_trailer.offsetTable;
    quint64 position = number(end + index * m_trailer.offsetSize, m_trailer.offsetSize);
    if (position < headerSize || position >= end)
        return std::nullopt;
    const quint64 marker = byteAt(position++);
    const quint64 kind = marker >> 4;
    quint64 count = marker & 0xF;
    if (count == 0xF && kind >= 0x4) {
        const quint64 width = position < end ? 1ULL << (byteAt(position++) & 0xF) : 0;
        if (width == 0 || width > 8 || width > end - position)
            return std::nullopt;
        count = number(position, width);
        position += width;
    }
    if (count > end)
        return std::nullopt;
    const auto size = payloadSize(kind, count);
    if (!size || *size > end - position)
        return std::nullopt;
    return Object{position, *size, kind == 0xA || kind == 0xD};
}

} // namespace

std::optional<QString> xmlPropertyListFault(const QByteArray &bytes)
{
    // libplist takes some texts for elements that no XML parser does, so its recursion is bounded by what it could
    // at most find.
    if (bytes.count("<array") + bytes.count("<dict") > maxPropertyListContainers)
        return u"it has too many dictionaries and arrays"_s;
    QXmlStreamReader reader(bytes);
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && ++depth > maxPropertyListDepth)
            return u"it is nested too deeply"_s;
        if (reader.isEndElement())
            --depth;
    }
    if (reader.hasError())
        return u"line %1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString());
    return std::nullopt;
}

std::optional<QString> binaryPropertyListFault(const QByteArray &bytes)
{
    struct Reference {
        quint64 object;
        int depth;
    };
    BinaryFile file(bytes);
    if (!file.readTrailer())
        return u"its trailer does not fit the file"_s;
    const quint64 width = file.trailer().referenceSize;
    std::vector<Reference> pending{{file.trailer().rootObject, 1}};
    for (quint64 cost = 0; !pending.empty();) {
        const Reference reference = pending.back();
        pending.pop_back();
        const auto object = file.object(reference.object);
        if (!object)
            return u"object %1 is damaged"_s.arg(reference.object);
        if (reference.depth > maxPropertyListDepth)
            return u"it is nested too deeply"_s;
        cost += object->payloadSize + costOfObject;
        if (cost > maxExpandedPropertyList)
            return u"its shared objects make it too large"_s;
        const quint64 end = object->isContainer ? object->payload + object->payloadSize : object->payload;
        for (quint64 position = object->payload; position < end; position += width)
            pending.push_back({file.number(position, width), reference.depth + 1});
    }
    return std::nullopt;
}

} // namespace tarvo
