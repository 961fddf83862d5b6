#include "modemapi/AnswerFields.h"

#include "modemapi/JsonValues.h"

#include <QByteArrayView>
#include <QJsonArray>
#include <QJsonObject>

#include <cstdlib>

using namespace tarvo;

namespace {

/// Ends the program unless the value is what stands between the key's quotes in the answer.
void checkValue(const std::optional<QString> &value, const QString &key, const QString &answer, QChar quote)
{
    if (!value)
        return;
    const qsizetype found = answer.indexOf(key);
    const qsizetype begin = answer.indexOf(*value + quote, found + key.size() + 1);
    if (found < 0 || begin < 0 || begin > found + key.size() + 2 || value->contains(quote))
        std::abort();
}

} // namespace

/// The input is a key, a line feed and an answer of a modem.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QString input = QString::fromUtf8(QByteArrayView(bytes, static_cast<qsizetype>(size)));
    const QString key = input.section(u'\n', 0, 0);
    const QString answer = input.section(u'\n', 1);
    checkValue(getModemInfoFromKey(key, answer), key, answer, u'\'');
    checkValue(getModemInfoFromKeyForWeb5(key, answer), key, answer, u'"');

    const ParsedJson parsed = parseJson(answer);
    if (parsed.document.has_value() != parsed.error.isEmpty())
        std::abort();
    if (parsed.document) {
        integerValue(parsed.document->object().value(key));
        integerValue(parsed.document->array().at(0));
    }
    return 0;
}
