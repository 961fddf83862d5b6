#pragma once

#include "apn/ProfileKey.h"

#include <QString>

#include <compare>
#include <optional>

namespace tarvo {

/// @return the decoded text of the profile at @p path; empty when the file is missing, unreadable or empty; nil when it
///         is damaged
std::optional<QString> decryptApnFile(const QString &path);

/// Decodes one block with the built-in key.
/// @return its plain text, zero-terminated; nil when it does not decode
std::optional<PlainBlock> decrypt(ProfileBlock block);

/// Cuts the last component of @p path before its extension. The cut is made one character before the
/// extension's first occurrence in the name, not before the last: `profxml.xml` gives `pro`.
/// @return nil when there is no such place: no extension, or a name that starts with it
std::optional<QString> getFileNameFromAbsolutePath(const QString &path);

/// Orders texts by their code units, upper-case letters before lower-case ones.
std::strong_ordering compareString(const QString &a, const QString &b);

} // namespace tarvo
