#include "RouterObserver/XmlPropertyList.h"

#include <QDateTime>
#include <QLocale>
#include <QMetaType>
#include <QVariantList>
#include <QVariantMap>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

template <typename T>
std::optional<QVariant> valueIf(bool isValue, const T &value)
{
    return isValue ? std::optional(QVariant(value)) : std::nullopt;
}

/// @return the number that @p text stands for, decimal or, after "0x", hexadecimal; an unsigned one wraps round
std::optional<QVariant> integer(const QString &text)
{
    const int base = text.contains(u'x', Qt::CaseInsensitive) ? 16 : 10;
    bool isNumber = false;
    qlonglong number = text.toLongLong(&isNumber, base);
    if (!isNumber)
        number = static_cast<qlonglong>(text.toULongLong(&isNumber, base));
    return valueIf(isNumber, number);
}

std::optional<QVariant> date(const QString &text)
{
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    return valueIf(moment.isValid() && text.endsWith(u'Z'), moment);
}

std::optional<QVariant> data(const QString &text)
{
    const QByteArray digits = text.simplified().remove(u' ').toLatin1();
    const auto bytes = QByteArray::fromBase64Encoding(digits, QByteArray::AbortOnBase64DecodingErrors);
    return valueIf(bytes.decodingStatus == QByteArray::Base64DecodingStatus::Ok, bytes.decoded);
}

std::optional<QVariant> real(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return valueIf(isNumber, number);
}

/// @return the value of an element named @p kind that holds no elements; nil when there is no such value
std::optional<QVariant> scalar(QStringView kind, const QString &text)
{
    if (kind == u"string")
        return QVariant(text);
    if (kind == u"true" || kind == u"false")
        return QVariant(kind == u"true");
    if (kind == u"integer")
        return integer(text.trimmed());
    if (kind == u"real")
        return real(text.trimmed());
    if (kind == u"date")
        return date(text.trimmed());
    if (kind == u"data")
        return data(text);
    return std::nullopt;
}

/// Builds the values while it reads. After the first fault the reader is at its end, and what was built is dropped.
class Reader {
public:
    explicit Reader(const QByteArray &bytes)
        : m_xml(bytes)
    {
        m_xml.setEntityExpansionLimit(0);
    }

    PropertyListReading read();

private:
    QVariant value(int depth);
    QVariant map(int depth);
    QVariant list(int depth);
    QVariant refuse(const QString &problem);

    QXmlStreamReader m_xml;
};

PropertyListReading Reader::read()
{
    bool hasValue = m_xml.readNextStartElement();
    if (hasValue && m_xml.name() == u"plist")
        hasValue = m_xml.readNextStartElement();
    const QVariant root = hasValue ? value(1) : refuse(u"it is no property list"_s);
    while (!m_xml.atEnd()) {
        if (m_xml.readNext() == QXmlStreamReader::StartElement)
            refuse(u"it holds more than one value"_s);
    }
    if (m_xml.hasError()) {
        QString why = m_xml.errorString();
        if (why.endsWith(u'.')) // it becomes part of sentences
            why.chop(1);
        return {std::nullopt, u"line %1: %2"_s.arg(m_xml.lineNumber()).arg(why)};
    }
    return {root, {}};
}

QVariant Reader::value(int depth)
{
    if (depth > maxPropertyListDepth)
        return refuse(u"it is nested too deeply"_s);
    const QString kind = m_xml.name().toString();
    if (kind == u"dict")
        return map(depth);
    if (kind == u"array")
        return list(depth);
    const auto value = scalar(kind, m_xml.readElementText());
    return value ? *value : refuse(u"it holds a damaged value or one of an unknown kind, %1"_s.arg(kind));
}

QVariant Reader::map(int depth)
{
    QVariantMap map;
    while (m_xml.readNextStartElement()) {
        const bool isKey = m_xml.name() == u"key";
        const QString key = m_xml.readElementText();
        if (!isKey || !m_xml.readNextStartElement())
            return refuse(u"its keys and values do not alternate"_s);
        map.insert(key, value(depth + 1));
    }
    return map;
}

QVariant Reader::list(int depth)
{
    QVariantList list;
    while (m_xml.readNextStartElement())
        list.append(value(depth + 1));
    return list;
}

/// Ends the reading with @p problem, unless it has ended already.
QVariant Reader::refuse(const QString &problem)
{
    if (!m_xml.hasError())
        m_xml.raiseError(problem);
    return {};
}

void writeValue(QXmlStreamWriter &xml, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return xml.writeEmptyElement(value.toBool() ? u"true"_s : u"false"_s);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return xml.writeTextElement(u"integer"_s, QString::number(value.toLongLong()));
    case QMetaType::Double:
        return xml.writeTextElement(u"real"_s, QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest));
    case QMetaType::QString:
        return xml.writeTextElement(u"string"_s, value.toString());
    case QMetaType::QByteArray:
        return xml.writeTextElement(u"data"_s, QString::fromLatin1(value.toByteArray().toBase64()));
    case QMetaType::QDateTime:
        return xml.writeTextElement(u"date"_s, value.toDateTime().toUTC().toString(Qt::ISODate));
    case QMetaType::QVariantMap:
        xml.writeStartElement(u"dict"_s);
        for (const auto &[key, entry] : value.toMap().asKeyValueRange()) {
            xml.writeTextElement(u"key"_s, key);
            writeValue(xml, entry);
        }
        return xml.writeEndElement();
    case QMetaType::QVariantList:
        xml.writeStartElement(u"array"_s);
        for (const QVariant &element : value.toList())
            writeValue(xml, element);
        return xml.writeEndElement();
    default:
        return;
    }
}

} // namespace

PropertyListReading readXmlPropertyList(const QByteArray &bytes)
{
    return Reader(bytes).read();
}

QByteArray xmlPropertyList(const QVariant &root)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(-1);
    xml.writeStartDocument();
    xml.writeDTD(u"<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                 "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"_s);
    xml.writeStartElement(u"plist"_s);
    xml.writeAttribute(u"version"_s, u"1.0"_s);
    writeValue(xml, root);
    xml.writeEndDocument();
    return text;
}

} // namespace tarvo
