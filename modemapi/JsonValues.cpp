#include "modemapi/JsonValues.h"

#include <QJsonParseError>

#include <cmath>
#include <limits>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

qint64 integerFromText(const QString &text)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    const QString number = text.trimmed();
    const bool negative = number.startsWith(u'-');
    qint64 value = 0;
    for (qsizetype i = negative || number.startsWith(u'+') ? 1 : 0; i < number.size(); ++i) {
        const int digit = number[i].unicode() - u'0';
        if (digit < 0 || digit > 9)
            break;
        value = value > (largest - digit) / 10 ? largest : value * 10 + digit;
    }
    return negative ? -value : value;
}

qint64 integerFromNumber(const QJsonValue &value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63, the first that does not fit
    const double number = value.toDouble();
    if (std::abs(number) >= limit)
        return number < 0 ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    return value.toInteger(static_cast<qint64>(number)); // exact where a double is not
}

} // namespace

ParsedJson parseJson(const QString &text)
{
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        return {std::nullopt, error.errorString()};
    return {std::move(document), {}};
}

ParsedObject parseJsonObject(const QString &text)
{
    const ParsedJson parsed = parseJson(text);
    if (!parsed.document)
        return {std::nullopt, parsed.error};
    if (!parsed.document->isObject())
        return {std::nullopt, u"it is an array"_s};
    return {parsed.document->object(), {}};
}

qint64 integerValue(const QJsonValue &value)
{
    if (value.isString())
        return integerFromText(value.toString());
    if (value.isDouble())
        return integerFromNumber(value);
    return value.toBool() ? 1 : 0;
}

} // namespace tarvo
