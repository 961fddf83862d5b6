#include "monitor/ModemDetails.h"

#include "RouterObserver/ConfigManager.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(ModemDetails, AreWhatThePageTells)
{
    const ConfigManager settings((QVariantMap()));
    EXPECT_EQ(readModemDetails({}, {}, settings), ModemDetails());
    const QString page =
        uR"("modem_main_state":"modem_waitpuk","ppp_status":"ppp_connected","dial_mode":"manual_dial",)"
        uR"("international_roaming_setting":"on","flow_reminder_switch":"on",)"
        uR"("reminder_threshold_for_data_usage":"8","last_three_days_rx_bytes":"1073741824")"_s;
    EXPECT_EQ(readModemDetails(page, readStatusFields(page), settings),
              (ModemDetails{true, false, SimState::NeedsPuk, false, true, true, 8, 1}));
    EXPECT_TRUE(readModemDetails(u"ppp_status: 'ppp_connecting'"_s, {}, settings).connecting);
    EXPECT_FALSE(readModemDetails(u"ppp_status: 'ppp_disconnecting'"_s, {}, settings).connecting);
}
