#include "setup/text/PropertyListText.h"

#include "RouterObserver/PropertyList.h"
#include "setup/text/PropertyListLayout.h"
#include "setup/text/XmlElements.h"

#include <QMetaType>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QStringConverter::Encoding encodingOf(const QByteArray &bytes)
{
    static const QRegularExpression declared(uR"(^<\?xml[^>]*encoding\s*=\s*["']([\w.:-]+))"_s);
    if (const auto marked = QStringConverter::encodingForData(bytes, u'<'))
        return *marked;
    const QString name = declared.match(QString::fromLatin1(bytes.first(qMin(bytes.size(), 200)))).captured(1);
    return QStringConverter::encodingForName(name.toLatin1().constData()).value_or(QStringConverter::Utf8);
}

bool isBlank(QStringView text)
{
    return text.trimmed().isEmpty();
}

qsizetype lineBegin(const QString &text, qsizetype position)
{
    return position == 0 ? 0 : text.lastIndexOf(u'\n', position - 1) + 1;
}

/// @return the position before the line's end
qsizetype lineEnd(const QString &text, qsizetype position)
{
    const qsizetype feed = text.indexOf(u'\n', position);
    const qsizetype end = feed < 0 ? text.size() : feed;
    return end > position && text[end - 1] == u'\r' ? end - 1 : end;
}

/// @return what stands before @p position on its line, if that is nothing but blanks
QString indentAt(const QString &text, qsizetype position)
{
    const qsizetype begin = lineBegin(text, position);
    const QString before = text.sliced(begin, position - begin);
    return isBlank(before) ? before : QString();
}

QString replaced(const QString &text, TextRange range, const QString &by)
{
    return text.first(range.begin) + by + text.sliced(range.end);
}

/// Takes @p range out, and its lines with it when nothing else is on them.
QString without(const QString &text, TextRange range)
{
    const TextRange lines{lineBegin(text, range.begin), text.indexOf(u'\n', range.end) + 1};
    const QStringView all(text);
    const bool alone = lines.end > 0 && isBlank(all.sliced(lines.begin, range.begin - lines.begin))
        && isBlank(all.sliced(range.end, lines.end - range.end));
    return replaced(text, alone ? lines : range, {});
}

/// @return the end of @p position's line when nothing but a comment follows, which then belongs to what is before it
qsizetype behindRemark(const QString &text, qsizetype position)
{
    const qsizetype end = lineEnd(text, position);
    const QStringView rest = QStringView(text).sliced(position, end - position).trimmed();
    return rest.isEmpty() || (rest.startsWith(u"<!--") && rest.endsWith(u"-->")) ? end : position;
}

struct Entry {
    const XmlElement *key = nullptr;
    const XmlElement *value = nullptr;
};

/// @return the last entry of @p key, which is the one that counts; nil when there is none
std::optional<Entry> entryOf(const XmlElement &dictionary, const QString &key)
{
    std::optional<Entry> found;
    for (std::size_t i = 0; i + 1 < dictionary.children.size(); i += 2) {
        if (dictionary.children[i].text == key)
            found = Entry{&dictionary.children[i], &dictionary.children[i + 1]};
    }
    return found;
}

/// @return where the entry of @p key would come into @p dictionary
qsizetype placeFor(const XmlElement &dictionary, const QString &text, const QString &key)
{
    const auto example = std::ranges::find_if(dictionary.comments, [&](TextRange comment) {
        return QStringView(text)
            .sliced(comment.begin, comment.end - comment.begin)
            .contains(u"<key>%1</key>"_s.arg(key));
    });
    if (example != dictionary.comments.end())
        return behindRemark(text, example->end);
    if (!dictionary.children.empty())
        return behindRemark(text, dictionary.children.back().whole.end);
    return dictionary.comments.empty() ? dictionary.content.begin : dictionary.comments.back().end;
}

/// @return @p text with a new child line in @p parent, at @p place
QString withLine(const QString &text, const XmlElement &parent, qsizetype place, const QString &line,
                 const QString &indent)
{
    const PropertyListLayout layout(text);
    if (parent.isOneTag())
        return replaced(text, parent.whole, layout.nested(parent.name, {line}, indentAt(text, parent.whole.begin)));
    const bool closesThere = parent.content.end == place;
    const QString closing = closesThere ? layout.lineEnd + indentAt(text, parent.whole.begin) : QString();
    return replaced(text, {place, place}, layout.lineEnd + indent + line + closing);
}

QString childIndent(const QString &text, const XmlElement &parent)
{
    const QString own = parent.children.empty() ? QString() : indentAt(text, parent.children.front().whole.begin);
    return own.isEmpty() ? indentAt(text, parent.whole.begin) + PropertyListLayout::indentStep : own;
}

/// @return @p text with @p value as the entry of @p key in @p dictionary
QString withEntry(const QString &text, const XmlElement &dictionary, const QString &key, const QVariant &value)
{
    const PropertyListLayout layout(text);
    if (const auto entry = entryOf(dictionary, key))
        return replaced(text, entry->value->whole, layout.element(value, indentAt(text, entry->key->whole.begin)));
    const QString indent = childIndent(text, dictionary);
    return withLine(text, dictionary, placeFor(dictionary, text, key), layout.entry(key, value, indent), indent);
}

/// Something that is found in a text again after each change of it.
struct Place {
    XmlElement plist;
    const XmlElement *dictionary = nullptr; ///< the one that the path's last key stands in; null when it is missing
};

std::optional<Place> findPlace(const QString &text, const QStringList &path)
{
    auto plist = xmlElements(text);
    if (!plist || plist->children.size() != 1)
        return std::nullopt;
    Place place{std::move(*plist)};
    place.dictionary = &place.plist.children.front();
    if (path.size() == 2) {
        const auto parent = entryOf(*place.dictionary, path[0]);
        place.dictionary = parent && parent->value->name == u"dict" ? parent->value : nullptr;
    }
    return place;
}

void setAt(QVariantMap &map, const QStringList &path, const QVariant &value)
{
    QVariantMap inner = map.value(path.first()).toMap();
    QVariantMap &target = path.size() == 2 ? inner : map;
    if (value.isValid())
        target.insert(path.last(), value);
    else
        target.remove(path.last());
    if (path.size() == 2 && (value.isValid() || map.value(path.first()).typeId() == QMetaType::QVariantMap))
        map.insert(path.first(), inner);
}

/// @return whether two lists are written the same: variants take a number and a text for equal
bool isSame(const QVariant &one, const QVariant &other)
{
    const auto written = writePropertyList(one);
    return written && written == writePropertyList(other);
}

QVariantList toList(const QStringList &texts)
{
    return {texts.begin(), texts.end()};
}

/// @return which of @p wanted are elements of @p list, in their order there
QStringList keptTexts(const XmlElement &list, const QStringList &wanted)
{
    QStringList kept;
    for (const XmlElement &element : list.children) {
        if (element.name == u"string" && wanted.contains(element.text) && !kept.contains(element.text))
            kept.append(element.text);
    }
    return kept;
}

/// @return @p text with only those elements of @p list that are among @p kept, each once
QString withoutOthers(QString text, const XmlElement &list, QStringList kept)
{
    std::vector<TextRange> others;
    for (const XmlElement &element : list.children) {
        if (element.name != u"string" || !kept.removeOne(element.text))
            others.push_back(element.whole);
    }
    for (auto other = others.rbegin(); other != others.rend(); ++other)
        text = without(text, *other);
    return text;
}

/// @return the list at @p path; null when there is none
const XmlElement *listAt(const Place &place, const QString &key)
{
    const auto entry = place.dictionary ? entryOf(*place.dictionary, key) : std::nullopt;
    return entry && entry->value->name == u"array" ? entry->value : nullptr;
}

/// @return @p text with @p element behind the last one of the list at @p path
QString withElement(const QString &text, const QStringList &path, const QString &element)
{
    const auto place = findPlace(text, path);
    const XmlElement *list = place ? listAt(*place, path.last()) : nullptr;
    if (!list)
        return text;
    const qsizetype end = list->children.empty() ? list->content.begin : list->children.back().whole.end;
    return withLine(text, *list, behindRemark(text, end), PropertyListLayout(text).element(element, {}),
                    childIndent(text, *list));
}

} // namespace

std::optional<PropertyListText> PropertyListText::fromBytes(const QByteArray &bytes)
{
    const auto root = bytes.startsWith("bplist") ? std::nullopt : readPropertyList(bytes).root;
    if (!root || root->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    PropertyListText list;
    list.m_values = root->toMap();
    list.m_encoding = encodingOf(bytes);
    QStringDecoder decoder(list.m_encoding, QStringConverter::Flag::ConvertInitialBom);
    list.m_text = decoder(bytes);
    list.m_hasByteOrderMark = list.m_text.startsWith(QChar::ByteOrderMark);
    if (list.m_hasByteOrderMark)
        list.m_text.remove(0, 1);
    return decoder.hasError() || list.toBytes() != bytes ? std::nullopt : std::optional(list);
}

QByteArray PropertyListText::toBytes() const
{
    QStringEncoder encoder(m_encoding);
    return encoder(m_hasByteOrderMark ? QChar(QChar::ByteOrderMark) + m_text : m_text);
}

/// @return the list with the text @p text, if that holds @p value at @p path and is otherwise as before
std::optional<PropertyListText> PropertyListText::withText(const QString &text, const QStringList &path,
                                                           const QVariant &value) const
{
    PropertyListText changed = *this;
    changed.m_text = text;
    setAt(changed.m_values, path, value);
    const auto read = readPropertyList(changed.toBytes()).root;
    return read && isSame(*read, changed.m_values) ? std::optional(changed) : std::nullopt;
}

std::optional<PropertyListText> PropertyListText::withValue(const QStringList &path, const QVariant &value) const
{
    const auto place = findPlace(m_text, path);
    if (!place)
        return std::nullopt;
    if (place->dictionary)
        return withText(withEntry(m_text, *place->dictionary, path.last(), value), path, value);
    return withValue({path.first()}, QVariantMap{{path.last(), value}});
}

std::optional<PropertyListText> PropertyListText::withTexts(const QStringList &path, const QStringList &texts) const
{
    const auto place = findPlace(m_text, path);
    const XmlElement *list = place ? listAt(*place, path.last()) : nullptr;
    if (!list)
        return withValue(path, toList(texts));
    QStringList result = keptTexts(*list, texts);
    QString text = withoutOthers(m_text, *list, result);
    for (const QString &one : texts) {
        if (result.contains(one))
            continue;
        result.append(one);
        text = withElement(text, path, one);
    }
    return withText(text, path, toList(result));
}

std::optional<PropertyListText> PropertyListText::withoutValue(const QStringList &path) const
{
    const auto place = findPlace(m_text, path);
    if (!place)
        return std::nullopt;
    const auto entry = place->dictionary ? entryOf(*place->dictionary, path.last()) : std::nullopt;
    if (!entry)
        return *this;
    return withText(without(without(m_text, entry->value->whole), entry->key->whole), path, {});
}

} // namespace tarvo
