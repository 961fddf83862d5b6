#pragma once

#include <QByteArray>
#include <QString>
#include <QStringConverter>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace tarvo {

/// An XML property list as the text that somebody wrote, comments, layout, line ends and encoding included.
///
/// A change touches the text of the changed entry only. What a change gives is read back before it is handed out, so
/// that it holds the wanted values and nothing else.
class PropertyListText {
public:
    /// @return nil when @p bytes are no XML property list whose root is a dictionary
    static std::optional<PropertyListText> fromBytes(const QByteArray &bytes);

    QByteArray toBytes() const;
    const QVariantMap &values() const { return m_values; }

    /// Puts @p value (truth values, texts, and lists and dictionaries of them) at @p path: one key, or two for a key in
    /// a dictionary, which is made when there is none. A new entry comes after the comment that shows it as an example,
    /// or else last.
    /// @return nil when it cannot be done
    std::optional<PropertyListText> withValue(const QStringList &path, const QVariant &value) const;
    /// Makes the list at @p path hold @p texts and nothing else, keeping the elements that stay as they are.
    std::optional<PropertyListText> withTexts(const QStringList &path, const QStringList &texts) const;
    /// Takes the entry at @p path out; one that is not there is no fault.
    std::optional<PropertyListText> withoutValue(const QStringList &path) const;

private:
    std::optional<PropertyListText> withText(const QString &text, const QStringList &path, const QVariant &value) const;

    QString m_text; ///< without a byte order mark
    QStringConverter::Encoding m_encoding = QStringConverter::Utf8;
    bool m_hasByteOrderMark = false;
    QVariantMap m_values;
};

} // namespace tarvo
