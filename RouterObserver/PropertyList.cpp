#include "RouterObserver/PropertyList.h"

#include "RouterObserver/PropertyListLimits.h"
#include "platform/StrictUtf8.h"

#include <QDateTime>
#include <QMetaType>
#include <QVariantList>
#include <QVariantMap>

#include <locale.h>
#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <type_traits>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

struct NodeDeleter {
    void operator()(plist_t node) const { plist_free(node); }
};
using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, NodeDeleter>;

struct FreeDeleter {
    void operator()(void *memory) const { std::free(memory); }
};
template <typename T>
using Allocated = std::unique_ptr<T, FreeDeleter>;

/// libplist reads and writes reals with the decimal sign of the calling thread's locale; the format knows the point
/// only.
class PointAsDecimalSign {
public:
    PointAsDecimalSign()
        : m_numbers(newlocale(LC_NUMERIC_MASK, "C", nullptr))
        , m_previous(uselocale(m_numbers))
    {
    }
    ~PointAsDecimalSign()
    {
        uselocale(m_previous);
        freelocale(m_numbers);
    }
    PointAsDecimalSign(const PointAsDecimalSign &) = delete;
    PointAsDecimalSign &operator=(const PointAsDecimalSign &) = delete;

private:
    locale_t m_numbers;
    locale_t m_previous;
};

const QDateTime &dateEpoch()
{
    static const QDateTime epoch(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return epoch;
}

std::optional<QVariant> toValue(plist_t node);

std::optional<QString> toText(const char *bytes, quint64 size)
{
    return strictUtf8(QByteArrayView(bytes, static_cast<qsizetype>(size)), ByteOrderMark::Drop);
}

std::optional<QVariant> toMap(plist_t node)
{
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const Allocated<void> owner(position);
    QVariantMap map;
    for (;;) {
        char *key = nullptr;
        plist_t entry = nullptr;
        plist_dict_next_item(node, position, &key, &entry);
        const Allocated<char> keyOwner(key);
        if (!entry)
            return map;
        const auto name = key ? toText(key, qstrlen(key)) : std::nullopt;
        const auto value = toValue(entry);
        if (!name || !value)
            return std::nullopt;
        map.insert(*name, *value);
    }
}

std::optional<QVariant> toList(plist_t node)
{
    QVariantList list;
    for (quint32 i = 0; i < plist_array_get_size(node); ++i) {
        const auto value = toValue(plist_array_get_item(node, i));
        if (!value)
            return std::nullopt;
        list.append(*value);
    }
    return list;
}

std::optional<QVariant> toDate(plist_t node)
{
    qint32 seconds = 0;
    qint32 microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return dateEpoch().addSecs(seconds);
}

template <typename T>
T scalar(plist_t node, void (*get)(plist_t, T *))
{
    T value{};
    get(node, &value);
    return value;
}

std::optional<QVariant> toValue(plist_t node)
{
    std::uint64_t size = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return QVariant(scalar(node, plist_get_bool_val) != 0);
    case PLIST_UINT:
        return QVariant(static_cast<qlonglong>(scalar(node, plist_get_uint_val)));
    case PLIST_REAL:
        return QVariant(scalar(node, plist_get_real_val));
    case PLIST_STRING: {
        const char *bytes = plist_get_string_ptr(node, &size);
        return toText(bytes, size);
    }
    case PLIST_DATA: {
        const char *bytes = plist_get_data_ptr(node, &size);
        return QVariant(QByteArray(bytes, static_cast<qsizetype>(size)));
    }
    case PLIST_DATE:
        return toDate(node);
    case PLIST_DICT:
        return toMap(node);
    case PLIST_ARRAY:
        return toList(node);
    default:
        return std::nullopt;
    }
}

Node toNode(const QVariant &value);

Node mapNode(const QVariantMap &map)
{
    Node dictionary(plist_new_dict());
    for (const auto &[key, value] : map.asKeyValueRange()) {
        Node node = toNode(value);
        if (!node)
            return nullptr;
        plist_dict_set_item(dictionary.get(), key.toUtf8().constData(), node.release());
    }
    return dictionary;
}

Node listNode(const QVariantList &list)
{
    Node array(plist_new_array());
    for (const QVariant &value : list) {
        Node node = toNode(value);
        if (!node)
            return nullptr;
        plist_array_append_item(array.get(), node.release());
    }
    return array;
}

Node dataNode(const QByteArray &bytes)
{
    return Node(plist_new_data(bytes.constData(), static_cast<quint64>(bytes.size())));
}

Node toNode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return Node(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return Node(plist_new_uint(static_cast<quint64>(value.toLongLong())));
    case QMetaType::Double:
        return Node(plist_new_real(value.toDouble()));
    case QMetaType::QString:
        return Node(plist_new_string(value.toString().toUtf8().constData()));
    case QMetaType::QByteArray:
        return dataNode(value.toByteArray());
    case QMetaType::QDateTime:
        return Node(plist_new_date(static_cast<qint32>(dateEpoch().secsTo(value.toDateTime())), 0));
    case QMetaType::QVariantMap:
        return mapNode(value.toMap());
    case QMetaType::QVariantList:
        return listNode(value.toList());
    default:
        return nullptr;
    }
}

PropertyListReading refused(const QString &problem)
{
    return {std::nullopt, problem};
}

} // namespace

PropertyListReading readPropertyList(const QByteArray &bytes)
{
    if (bytes.size() > maxPropertyListSize)
        return refused(u"it is larger than %1 bytes"_s.arg(maxPropertyListSize));
    const PointAsDecimalSign point;
    plist_t parsed = nullptr;
    if (bytes.startsWith("bplist00")) {
        if (const auto fault = binaryPropertyListFault(bytes))
            return refused(*fault);
        plist_from_bin(bytes.constData(), static_cast<quint32>(bytes.size()), &parsed);
    } else {
        const auto [text, fault] = plainPropertyListXml(bytes);
        if (!text)
            return refused(fault);
        plist_from_xml(text->constData(), static_cast<quint32>(text->size()), &parsed);
    }
    const Node root(parsed);
    if (!root)
        return refused(u"it is no property list"_s);
    const auto value = toValue(root.get());
    return value ? PropertyListReading{value, {}} : refused(u"it holds a value of an unknown kind"_s);
}

std::optional<QByteArray> writePropertyList(const QVariant &root)
{
    const Node node = toNode(root);
    if (!node)
        return std::nullopt;
    const PointAsDecimalSign point;
    char *text = nullptr;
    quint32 size = 0;
    plist_to_xml(node.get(), &text, &size);
    const Allocated<char> owner(text);
    const QByteArray bytes(text, static_cast<qsizetype>(size));
    // Control characters, NaN and the like have no XML form, but libplist writes something.
    if (readPropertyList(bytes).root != root)
        return std::nullopt;
    return bytes;
}

} // namespace tarvo
