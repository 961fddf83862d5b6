#include "setup/text/PropertyListLayout.h"

#include <QMetaType>
#include <QVariantList>
#include <QVariantMap>

namespace tarvo {

using namespace Qt::StringLiterals;

PropertyListLayout::PropertyListLayout(const QString &text)
    : lineEnd(text.contains(u"\r\n"_s) ? u"\r\n"_s : u"\n"_s)
{
}

QString PropertyListLayout::nested(const QString &tag, const QStringList &lines, const QString &indent) const
{
    if (lines.isEmpty())
        return u"<%1/>"_s.arg(tag);
    const QString newLine = lineEnd + indent;
    const QString begin = u"<"_s + tag + u">"_s + newLine + indentStep;
    return begin + lines.join(newLine + indentStep) + newLine + u"</"_s + tag + u">"_s;
}

QString PropertyListLayout::entry(const QString &key, const QVariant &value, const QString &indent) const
{
    return u"<key>"_s + key.toHtmlEscaped() + u"</key>"_s + lineEnd + indent + element(value, indent);
}

QString PropertyListLayout::element(const QVariant &value, const QString &indent) const
{
    QStringList lines;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"<true/>"_s : u"<false/>"_s;
    case QMetaType::QString:
        return u"<string>"_s + value.toString().toHtmlEscaped() + u"</string>"_s;
    case QMetaType::QVariantList:
        for (const QVariant &one : value.toList())
            lines.append(element(one, indent + indentStep));
        return nested(u"array"_s, lines, indent);
    case QMetaType::QVariantMap:
        for (const auto &[key, one] : value.toMap().asKeyValueRange())
            lines.append(entry(key, one, indent + indentStep));
        return nested(u"dict"_s, lines, indent);
    default:
        return {};
    }
}

} // namespace tarvo
