#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace tarvo {

/// The largest property-list file that is read, in bytes.
inline constexpr qsizetype maxPropertyListSize = 1 << 20;
/// How deep the values of a property list may be nested.
inline constexpr int maxPropertyListDepth = 32;

/// What reading a property list gave: its root, or why there is none.
struct PropertyListReading {
    std::optional<QVariant> root; ///< nil when the list was refused
    QString problem; ///< empty when there is a root
};

/// Reads a property list (plist(5) of macOS) in its XML or its binary form.
///
/// Dictionaries become `QVariantMap`, arrays `QVariantList`, texts `QString`, truth values `bool`, integers `qint64`,
/// reals `double`, dates `QDateTime` (UTC), data `QByteArray`. Safe on bytes of any origin: what is too large, nested
/// too deeply, damaged or of another kind costs the whole list.
PropertyListReading readPropertyList(const QByteArray &bytes);

/// Writes @p root, made of the kinds that `readPropertyList` gives, as an XML property list.
/// @return nil when @p root would not be read back the same
std::optional<QByteArray> writePropertyList(const QVariant &root);

} // namespace tarvo
