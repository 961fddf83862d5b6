#include "status/DataAmounts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr double gigabyte = 1024.0 * 1024.0 * 1024.0;
constexpr double mostGigabytes = 1 << 30;

/// @return how many decimals leave @p number three digits
int decimalsFor(double number)
{
    if (number >= 99.95)
        return 0;
    return number >= 9.995 ? 1 : 2;
}

/// @return the bytes of the unit that suits @p bytes: what rounding makes 1024 of a unit is one of the next
double unitFor(double bytes)
{
    double unit = 1;
    while (std::round(bytes / unit) >= 1024)
        unit *= 1024;
    return unit;
}

} // namespace

bool isKnownAmount(double gigabytes)
{
    return std::abs(gigabytes) <= mostGigabytes;
}

QString dataAmount(double gigabytes)
{
    if (!isKnownAmount(gigabytes))
        return u"–"_s;
    const QLocale locale;
    const double bytes = std::abs(gigabytes) * gigabyte;
    const double unit = unitFor(bytes);
    const int decimals = unit == 1 ? 0 : decimalsFor(bytes / unit);
    const qint64 whole = std::llround(unit == 1 ? bytes : std::max(bytes, unit));
    return locale.formattedDataSize(gigabytes < 0 ? -whole : whole, decimals, QLocale::DataSizeTraditionalFormat);
}

QString amountOfLimit(double used, double limit)
{
    if (limit <= 0 || !isKnownAmount(used))
        return dataAmount(used);
    if (!isKnownAmount(limit))
        return qtTrId("AmountOfLimit").arg(dataAmount(used), dataAmount(limit));
    const double inUnitOfLimit = used * gigabyte / unitFor(limit * gigabyte);
    const QString number = QLocale().toString(inUnitOfLimit, 'f', decimalsFor(std::abs(inUnitOfLimit)));
    return qtTrId("AmountOfLimit").arg(number, dataAmount(limit));
}

} // namespace tarvo
