#pragma once

#include <QString>

#include <optional>

namespace tarvo {

/// Cuts one field's value out of a modem answer of the older style: key, colon, blank, value in single quotes.
///
/// Answers are searched, not parsed: some firmware writes JSON, some writes script text, and both are read the same
/// way. The first occurrence of @p key wins; the one character after it, the opening quote, is skipped.
/// @param key         the field's name with its separator, e.g. `ppp_status: `
/// @param infoString  the whole answer
/// @return the text up to the closing quote; nil when the key is absent or the quote never closes
std::optional<QString> getModemInfoFromKey(const std::optional<QString> &key, const std::optional<QString> &infoString);

/// The same for the JSON style, in which values stand in double quotes, e.g. key `ppp_status":`.
std::optional<QString> getModemInfoFromKeyForWeb5(const std::optional<QString> &key,
                                                  const std::optional<QString> &infoString);

} // namespace tarvo
