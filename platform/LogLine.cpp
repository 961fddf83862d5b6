#include "platform/LogLine.h"

#include <QList>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

const QByteArray cutMark = QByteArrayLiteral("…");

QByteArray escaped(char32_t character)
{
    switch (character) {
    case U'\n':
        return "\\n";
    case U'\r':
        return "\\r";
    case U'\t':
        return "\\t";
    case U'\\':
        return "\\\\";
    default:
        break;
    }
    const auto [start, digits] = character < 0x100 ? std::pair("\\x", 2)
        : character < 0x10000                      ? std::pair("\\u", 4)
                                                   : std::pair("\\U", 8);
    return start + QByteArray::number(static_cast<uint>(character), 16).rightJustified(digits, '0');
}

bool needsEscape(char32_t character)
{
    if (character == U'\\')
        return true;
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QByteArray escapedText(const QString &text)
{
    QByteArray line;
    for (const char32_t character : text.toUcs4())
        line += needsEscape(character) ? escaped(character) : QString::fromUcs4(&character, 1).toUtf8();
    return line;
}

QByteArray logLine(const QString &text)
{
    // Every character takes a byte or more: what is cut off here would be cut off below.
    QByteArray line = escapedText(text.left(maxLogLineSize + 1));
    if (line.size() <= maxLogLineSize)
        return line;
    qsizetype end = maxLogLineSize - cutMark.size();
    while ((static_cast<unsigned char>(line.at(end)) & 0xC0U) == 0x80U)
        --end;
    return line.first(end) + cutMark;
}

} // namespace tarvo
