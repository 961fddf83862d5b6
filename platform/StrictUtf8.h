#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvo {

/// What becomes of a byte-order mark (U+FEFF) at the start of a text.
enum class ByteOrderMark { Drop, Keep };

/// Decodes @p bytes as UTF-8 (RFC 3629), the whole of them or nothing.
/// @return the text; nil when the bytes are no UTF-8
std::optional<QString> strictUtf8(QByteArrayView bytes, ByteOrderMark mark);

/// Decodes @p bytes as UTF-8 without a byte-order mark, or as ISO 8859-1 when they are no UTF-8: what is ASCII in them
/// is right in either.
QString utf8OrLatin1(QByteArrayView bytes);

} // namespace tarvo
