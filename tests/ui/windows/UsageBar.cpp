#include "ui/windows/UsageBar.h"

#include "ui/windows/UsagePlot.h"

#include <QAccessible>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(Usage, HasRolesForScreenReaders)
{
    UsageBar bar(u"Used"_s);
    UsagePlot plot;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bar)->role(), QAccessible::ProgressBar);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&plot)->role(), QAccessible::Chart);
}
