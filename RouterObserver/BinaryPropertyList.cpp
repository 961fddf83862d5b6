#include "RouterObserver/BinaryPropertyList.h"

#include "platform/StrictUtf8.h"

#include <QByteArrayView>
#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>
#include <QtEndian>

#include <bit>
#include <cmath>
#include <optional>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 headerSize = 8;
constexpr quint64 trailerSize = 32;
constexpr quint64 costOfObject = 64;
/// How large the values may become, in bytes, when every shared object is copied to where it is used.
constexpr quint64 maxExpandedSize = 4 << 20;

/// The upper half of an object's first byte.
enum Kind : quint64 {
    Truth = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    Ascii = 0x5,
    Utf16 = 0x6,
    Array = 0xA,
    Dictionary = 0xD,
};

struct Trailer {
    quint64 offsetSize;
    quint64 referenceSize;
    quint64 objectCount;
    quint64 rootObject;
    quint64 offsetTable;
};

/// One object as it lies in the file; a container's payload is its references.
struct Object {
    quint64 kind;
    quint64 count; ///< the lower half of the first byte, or the number of elements
    quint64 payload;
    quint64 payloadSize;
};

/// Reads the values of a file, each where it is used.
class BinaryFile {
public:
    explicit BinaryFile(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    PropertyListReading read();

private:
    quint64 number(quint64 position, quint64 width) const;
    bool readTrailer();
    std::optional<quint64> payloadSize(quint64 kind, quint64 count) const;
    std::optional<Object> object(quint64 index) const;

    std::optional<QVariant> value(quint64 index, int depth);
    std::optional<QVariant> map(const Object &object, int depth);
    std::optional<QVariant> list(const Object &object, int depth);
    QByteArrayView bytesOf(const Object &object) const;
    std::optional<QVariant> scalar(const Object &object) const;
    std::optional<QVariant> text(const Object &object) const;
    std::optional<QVariant> referenced(const Object &container, quint64 element, int depth);
    std::nullopt_t refuse(const QString &problem);

    QByteArrayView m_bytes;
    Trailer m_trailer{};
    quint64 m_expandedSize = 0; ///< of the values so far
    QString m_problem; ///< the first one
};

quint64 BinaryFile::number(quint64 position, quint64 width) const
{
    quint64 value = 0;
    for (quint64 i = 0; i < width; ++i)
        value = value << 8 | static_cast<quint8>(m_bytes[static_cast<qsizetype>(position + i)]);
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
    case Truth:
        return count == 8 || count == 9 ? std::optional<quint64>(0) : std::nullopt;
    case Integer:
        return count <= 4 ? std::optional<quint64>(1ULL << count) : std::nullopt;
    case Real:
        return count == 2 || count == 3 ? std::optional<quint64>(1ULL << count) : std::nullopt;
    case Date:
        return count == 3 ? std::optional<quint64>(8) : std::nullopt;
    case Data:
    case Ascii:
        return count;
    case Utf16:
        return 2 * count;
    case Array:
        return count * m_trailer.referenceSize;
    case Dictionary: // keys, then values
        return 2 * count * m_trailer.referenceSize;
    default:
        return std::nullopt;
    }
}

/// @return the object, which lies wholly in the file; nil when it does not, or is of no known kind
std::optional<Object> BinaryFile::object(quint64 index) const
{
    if (index >= m_trailer.objectCount)
        return std::nullopt;
    const quint64 end = m_trailer.offsetTable;
    quint64 position = number(end + index * m_trailer.offsetSize, m_trailer.offsetSize);
    if (position < headerSize || position >= end)
        return std::nullopt;
    const quint64 marker = number(position++, 1);
    const quint64 kind = marker >> 4;
    quint64 count = marker & 0xF;
    if (count == 0xF && kind >= Data) {
        const quint64 width = position < end ? 1ULL << (number(position++, 1) & 0xF) : 0;
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
    return Object{kind, count, position, *size};
}

PropertyListReading BinaryFile::read()
{
    if (!readTrailer())
        return {std::nullopt, u"its trailer does not fit the file"_s};
    auto root = value(m_trailer.rootObject, 1);
    return {std::move(root), m_problem};
}

std::optional<QVariant> BinaryFile::value(quint64 index, int depth)
{
    const auto found = object(index);
    if (!found)
        return refuse(u"object %1 is damaged"_s.arg(index));
    if (depth > maxPropertyListDepth)
        return refuse(u"it is nested too deeply"_s);
    m_expandedSize += found->payloadSize + costOfObject;
    if (m_expandedSize > maxExpandedSize)
        return refuse(u"its shared objects make it too large"_s);
    if (found->kind == Array)
        return list(*found, depth);
    if (found->kind == Dictionary)
        return map(*found, depth);
    const auto value = scalar(*found);
    return value ? value : refuse(u"object %1 is damaged"_s.arg(index));
}

std::optional<QVariant> BinaryFile::referenced(const Object &container, quint64 element, int depth)
{
    const quint64 width = m_trailer.referenceSize;
    return value(number(container.payload + element * width, width), depth + 1);
}

std::optional<QVariant> BinaryFile::map(const Object &object, int depth)
{
    QVariantMap map;
    for (quint64 i = 0; i < object.count; ++i) {
        const auto key = referenced(object, i, depth);
        const auto value = key ? referenced(object, object.count + i, depth) : std::nullopt;
        if (!value)
            return std::nullopt;
        if (key->typeId() != QMetaType::QString)
            return refuse(u"it has a key that is no text"_s);
        map.insert(key->toString(), *value);
    }
    return map;
}

std::optional<QVariant> BinaryFile::list(const Object &object, int depth)
{
    QVariantList list;
    for (quint64 i = 0; i < object.count; ++i) {
        const auto value = referenced(object, i, depth);
        if (!value)
            return std::nullopt;
        list.append(*value);
    }
    return list;
}

QByteArrayView BinaryFile::bytesOf(const Object &object) const
{
    return m_bytes.sliced(static_cast<qsizetype>(object.payload), static_cast<qsizetype>(object.payloadSize));
}

/// @param seconds  since the beginning of 2001, UTC
std::optional<QVariant> date(double seconds)
{
    static const QDateTime epoch = QDateTime::fromString(QStringLiteral("2001-01-01T00:00:00Z"), Qt::ISODate);
    constexpr double tenThousandYears = 3.2e11;
    return std::abs(seconds) < tenThousandYears ? std::optional(QVariant(epoch.addSecs(static_cast<qint64>(seconds))))
                                                : std::nullopt; // NaN too
}

std::optional<QVariant> BinaryFile::scalar(const Object &object) const
{
    const auto bits = [&] { return number(object.payload, object.payloadSize); };
    switch (object.kind) {
    case Truth:
        return QVariant(object.count == 9);
    case Integer: // of 16 bytes, the lower half
        return QVariant(static_cast<qlonglong>(bits()));
    case Real:
        return object.payloadSize == sizeof(float)
            ? QVariant(static_cast<double>(std::bit_cast<float>(static_cast<quint32>(bits()))))
            : QVariant(std::bit_cast<double>(bits()));
    case Date:
        return date(std::bit_cast<double>(bits()));
    case Data:
        return QVariant(bytesOf(object).toByteArray());
    default:
        return text(object);
    }
}

/// @return the text; nil when it is no sound Unicode or holds a NUL, which no other form of it could
std::optional<QVariant> BinaryFile::text(const Object &object) const
{
    const QByteArrayView bytes = bytesOf(object);
    if (object.kind == Ascii)
        return bytes.contains('\0') ? std::nullopt : strictUtf8(bytes, ByteOrderMark::Drop);
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromBigEndian<quint16>(bytes.data(), text.size(), text.data());
    return text.isValidUtf16() && !text.contains(QChar::Null) ? std::optional(QVariant(text)) : std::nullopt;
}

std::nullopt_t BinaryFile::refuse(const QString &problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
    return std::nullopt;
}

} // namespace

PropertyListReading readBinaryPropertyList(const QByteArray &bytes)
{
    return BinaryFile(bytes).read();
}

} // namespace tarvo
