#include "setup/checks/ModemAnswers.h"

#include "modemapi/StatusFields.h"
#include "simulator/modem/ModemCondition.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(ModemAnswers, AreReadInBothStyles)
{
    for (const PageStyle style : {PageStyle::Json, PageStyle::ScriptText}) {
        ModemCondition condition;
        condition.pageStyle = style;
        const QString page = QString::fromUtf8(statusPage(condition));
        EXPECT_EQ(connectionStatus(page, {}), u"ppp_connected"_s);
        EXPECT_EQ(missingStatusFields(page), QStringList());
        EXPECT_EQ(missingStatusFields(QString(page).replace(u"monthly_velta_tx"_s, u"x"_s)),
                  QStringList{u"monthly_velta_tx"_s});
    }
    EXPECT_EQ(connectionStatus(u"pppstate: 'on'"_s, {}), u"on"_s);
    EXPECT_EQ(connectionStatus(u"<html>"_s, {}), std::nullopt);
    for (const QString &page : {u"<html>"_s, u""_s, u"{}"_s})
        EXPECT_FALSE(hasStatusFields(page, {}));
    for (const QString &page :
         {u"pppstate: ''"_s, u"monthly_velta_tx: ''"_s, u"\"modem_main_state\":\"\""_s, u"\"dial_mode\":\"\""_s})
        EXPECT_TRUE(hasStatusFields(page, {})) << page.toStdString();
    const QVariantMap manual{{u"NeedManualSetConnectStatus"_s, true}, {u"ConnectStatusKey"_s, u"line: "_s}};
    EXPECT_EQ(connectionStatus(u"ppp_status: 'a' line: 'b'"_s, manual), u"b"_s);
    EXPECT_EQ(statusPagePath({}), u"logo_data.asp"_s);
}
