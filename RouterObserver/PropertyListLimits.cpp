#include "RouterObserver/PropertyListLimits.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <vector>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 headerSize = 8;
constexpr quint64 trailerSize = 32;
constexpr quint64 costOfObject = 64;

// The upper half of an object's first byte.
constexpr quint64 asciiKind = 0x5;
constexpr quint64 utf16Kind = 0x6;
constexpr quint64 arrayKind = 0xA;
constexpr quint64 dictionaryKind = 0xD;

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
    quint64 kind;

    bool isContainer() const { return kind == arrayKind || kind == dictionaryKind; }
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
    /// @return whether the object is a text with a NUL in it, at which libplist ends the process if it is a key
    bool endsEarly(const Object &object) const;

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
    case asciiKind:
        return count;
    case utf16Kind:
        return 2 * count;
    case arrayKind:
        return count * m_trailer.referenceSize;
    case dictionaryKind: // keys, then values
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
    const Object found{position, *size, kind};
    return endsEarly(found) ? std::nullopt : std::optional(found);
}

bool BinaryFile::endsEarly(const Object &object) const
{
    if (object.kind != asciiKind && object.kind != utf16Kind)
        return false;
    const quint64 width = object.kind == utf16Kind ? 2 : 1;
    for (quint64 i = 0; i < object.payloadSize; i += width) {
        if (number(object.payload + i, width) == 0)
            return true;
    }
    return false;
}

} // namespace

PlainXml plainPropertyListXml(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    QByteArray plain;
    QXmlStreamWriter writer(&plain);
    int depth = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth > maxPropertyListDepth)
            return {std::nullopt, u"it is nested too deeply"_s};
        if (token == QXmlStreamReader::StartElement)
            writer.writeStartElement(reader.qualifiedName().toString());
        if (token == QXmlStreamReader::Characters)
            writer.writeCharacters(reader.text().toString());
        if (token == QXmlStreamReader::EndElement) {
            writer.writeEndElement();
            --depth;
        }
    }
    if (reader.hasError())
        return {std::nullopt, u"line %1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString())};
    return {plain, {}};
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
        const quint64 end = object->isContainer() ? object->payload + object->payloadSize : object->payload;
        for (quint64 position = object->payload; position < end; position += width)
            pending.push_back({file.number(position, width), reference.depth + 1});
    }
    return std::nullopt;
}

} // namespace tarvo
