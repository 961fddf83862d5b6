#include "modemapi/StatusFields.h"

#include "simulator/modem/ModemCondition.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(StatusFields, AreMissedInBothStyles)
{
    for (const PageStyle style : {PageStyle::Json, PageStyle::ScriptText}) {
        ModemCondition condition;
        condition.pageStyle = style;
        const QString page = QString::fromUtf8(statusPage(condition));
        EXPECT_EQ(missingStatusFields(page), QStringList());
        EXPECT_EQ(missingStatusFields(QString(page).replace(u"monthly_velta_tx"_s, u"x"_s)),
                  QStringList{u"monthly_velta_tx"_s});
    }
}
