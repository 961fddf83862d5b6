#pragma once

#include <QByteArray>
#include <QString>

namespace tarvo {

/// The size of the longest log line, in bytes.
inline constexpr qsizetype maxLogLineSize = 1024;

/// @return @p text as UTF-8 in which what moves the cursor or cannot be seen is escaped as in C: it is one line, and nobody's
///         control sequence
QByteArray escapedText(const QString &text);

/// Makes one line for a log of @p text, which may hold what a modem said.
///
/// Control characters, line separators, characters that cannot be seen or turn the direction of writing, and the backslash
/// are escaped as in C: no text looks like several lines, or like another text. What is too long ends in "…".
/// @return UTF-8 without a line end
QByteArray logLine(const QString &text);

} // namespace tarvo
