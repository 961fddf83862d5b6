#include "monitor/DataUsage.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr double step = 1024; // one unit to the next, bytes to gigabytes in three
constexpr double inverseStep = 1 / step;

float number(const std::optional<QString> &text)
{
    return text ? leadingNumber(*text) : 0.0F;
}

float bytesOfGigabytes(float gigabytes)
{
    return static_cast<float>(static_cast<double>(gigabytes) * step * step * step);
}

float gigabytesOfBytes(float bytes)
{
    return static_cast<float>(static_cast<double>(bytes) * inverseStep * inverseStep * inverseStep);
}

/// @return @p gigabytes, unless no modem can have so many or so few
float plausible(float gigabytes)
{
    constexpr float most = 1 << 30; // 2^60 bytes
    return gigabytes >= 0 && gigabytes <= most ? gigabytes : unknownAmount;
}

float plausibleSum(float sentBytes, float receivedBytes)
{
    if (std::min(sentBytes, receivedBytes) < 0)
        return unknownAmount;
    return plausible(gigabytesOfBytes(sentBytes + receivedBytes));
}

bool isSpace(char character)
{
    return QByteArrayView(" \t\n\v\f\r").contains(character);
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

} // namespace

float leadingNumber(const QString &text)
{
    const QByteArray bytes = text.toLatin1(); // what is not in it ends a number, as a question mark does
    const char *const begin = bytes.constData(); // ends in a zero, unlike what iterators of a null array point at
    const char *const end = begin + bytes.size();
    const char *start = std::find_if_not(begin, end, isSpace);
    if (*start == '+' && start[1] != '-')
        ++start;
    const char first = *start == '-' ? start[1] : *start;
    if (first != '.' && !isDigit(first))
        return 0; // nor is it a name of a number
    float value = 0;
    const auto result = std::from_chars(start, end, value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    const auto digits = QString::fromLatin1(QByteArrayView(start, result.ptr));
    const double wide = QLocale::c().toDouble(digits); // infinite when it overflows
    return std::abs(wide) > 1 ? std::copysign(std::numeric_limits<float>::infinity(), wide < 0 ? -1.0F : 1.0F) : 0.0F;
}

bool isRoaming(const StatusFields &fields)
{
    return fields.roamingSetting == u"on"_s;
}

std::optional<MonthlyUsage> monthlyUsage(const StatusFields &fields)
{
    if (fields.reminderSwitch != u"on"_s)
        return std::nullopt;
    const float limit = number(fields.monthlyLimit);
    const float limitBytes = bytesOfGigabytes(limit);
    const float threshold = number(fields.monthlyThreshold);
    const float sent = number(fields.monthlySent);
    const float received = number(fields.monthlyReceived);
    const float used = sent + received;
    MonthlyUsage usage{.limit = plausible(limit),
                       .used = plausibleSum(sent, received),
                       .surplus = unknownAmount,
                       .thresholdPassed = used > bytesOfGigabytes(threshold),
                       .limitPassed = used > limitBytes,
                       .threshold = plausible(threshold)};
    if (usage.limit != unknownAmount && usage.used != unknownAmount)
        usage.surplus = gigabytesOfBytes(limitBytes - used);
    return usage;
}

ThreeDayUsage threeDayUsage(const StatusFields &fields)
{
    const float limit = number(fields.threeDayLimit);
    const float sent = number(fields.threeDaySent);
    const float received = number(fields.threeDayReceived);
    return {plausible(limit), sent + received > bytesOfGigabytes(limit), plausibleSum(sent, received)};
}

} // namespace tarvo
