#include "status/DataAmounts.h"

#include "tests/support/PrintQt.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(DataAmounts, AreWrittenInTheUsersWay)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English));
    const std::pair<double, QString> cases[] = {
        {0, u"0 bytes"_s},     {-0.5, u"-512 MB"_s},  {0.99999, u"1.00 GB"_s}, {0.999, u"1,023 MB"_s},
        {9.996, u"10.0 GB"_s}, {12.04, u"12.0 GB"_s}, {100, u"100 GB"_s},      {2048, u"2.00 TB"_s},
    };
    for (const auto &[gigabytes, text] : cases)
        EXPECT_EQ(dataAmount(gigabytes), text);
    EXPECT_EQ(amountOfLimit(1.5, 0), u"1.50 GB"_s);
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(dataAmount(1 << 30), u"1.00 EB"_s);
    for (const double unknown : {1.1 * (1 << 30), infinity, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(dataAmount(unknown), u"–"_s);
    EXPECT_EQ(amountOfLimit(infinity, 1), u"–"_s);
    QLocale::setDefault(QLocale(QLocale::French));
    EXPECT_EQ(dataAmount(1.5), u"1,50 Go"_s);
    QLocale::setDefault(before);
}
