#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvo {

/// The largest property-list file that is read, in bytes.
inline constexpr qsizetype maxPropertyListSize = 1 << 20;
/// How deep the elements of a property list may be nested.
inline constexpr int maxPropertyListDepth = 32;
/// How large a binary property list may become, in bytes, when every shared object is copied to where it is used.
inline constexpr quint64 maxExpandedPropertyList = 4 << 20;

/// An XML property list as libplist may be given it, or why there is none.
struct PlainXml {
    std::optional<QByteArray> text;
    QString fault;
};

/// Writes the elements and texts of an XML property list, and nothing else of it, in UTF-8.
///
/// libplist finds elements where no XML parser does, in quotes for example, so it gets nothing but plain elements.
PlainXml plainPropertyListXml(const QByteArray &bytes);

/// Follows the references of a binary property list as a parser would, without parsing it.
///
/// The format is that of Apple's CFBinaryPList.c (opensource.apple.com, CF): header, objects, a table of their offsets,
/// and a trailer of 32 bytes.
/// @return why libplist must not be given @p bytes as a binary property list; nil when it may
std::optional<QString> binaryPropertyListFault(const QByteArray &bytes);

} // namespace tarvo
