#include "modemapi/AnswerFields.h"

namespace tarvo {

namespace {

/// Code units that the whole character at @p index takes.
qsizetype characterLength(const QString &text, qsizetype index)
{
    const bool pair = index + 1 < text.size() && text[index].isHighSurrogate() && text[index + 1].isLowSurrogate();
    return pair ? 2 : 1;
}

std::optional<QString> valueAfterKey(const std::optional<QString> &key, const std::optional<QString> &infoString,
                                     QChar closingQuote)
{
    if (!key || !infoString || key->isEmpty())
        return std::nullopt;
    const qsizetype found = infoString->indexOf(*key);
    if (found < 0)
        return std::nullopt;
    const qsizetype quote = found + key->size();
    const qsizetype begin = quote + characterLength(*infoString, quote);
    const qsizetype end = infoString->indexOf(closingQuote, begin);
    if (end < 0)
        return std::nullopt;
    return infoString->mid(begin, end - begin);
}

} // namespace

std::optional<QString> getModemInfoFromKey(const std::optional<QString> &key, const std::optional<QString> &infoString)
{
    return valueAfterKey(key, infoString, u'\'');
}

std::optional<QString> getModemInfoFromKeyForWeb5(const std::optional<QString> &key,
                                                  const std::optional<QString> &infoString)
{
    return valueAfterKey(key, infoString, u'"');
}

} // namespace tarvo
