#include "platform/LogLine.h"

#include "fuzz/Input.h"

#include <QList>

#include <algorithm>

using namespace tarvo;

namespace {

/// @return whether @p character moves the cursor, turns the direction of writing, or begins a line
bool isControl(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Other_Format || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

} // namespace

/// The input is what a modem or a file may have said.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QString text = QString::fromUtf8(bytesOf(bytes, size));
    const QByteArray line = logLine(text);
    check(line.size() <= maxLogLineSize);
    for (const QByteArray &shown : {line, escapedText(text)}) {
        check(QString::fromUtf8(shown).toUtf8() == shown);
        check(std::ranges::none_of(QString::fromUtf8(shown).toUcs4(), isControl));
    }
    return 0;
}
