#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// How new lines of an XML property list are written.
struct PropertyListLayout {
    inline static const QString indentStep = u"  "_s;

    QString lineEnd;

    /// The layout of @p text, to which the lines are to be added.
    explicit PropertyListLayout(const QString &text);

    /// @return an element with a line for each of @p lines; the first and the last line of it begin at @p indent, which
    ///         is not part of the first
    QString nested(const QString &tag, const QStringList &lines, const QString &indent) const;
    /// @return the lines of a dictionary's entry
    QString entry(const QString &key, const QVariant &value, const QString &indent) const;
    /// @return the element of a truth value, a text, or a list or dictionary of them; empty for anything else
    QString element(const QVariant &value, const QString &indent) const;
};

} // namespace tarvo
