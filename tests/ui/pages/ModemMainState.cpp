#include "ui/pages/ModemMainState.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(ModemMainState, DecidesWhatOpensAtStartUp)
{
    const StartUpAction nothing;
    EXPECT_EQ(startUpAction(u"modem_waitpin"_s, 0), (StartUpAction{StartUpPage::HomeOrModem, true}));
    EXPECT_EQ(startUpAction(u"modem_imsi_waitnck"_s, 0), (StartUpAction{StartUpPage::HomeOrModem, true}));
    EXPECT_EQ(startUpAction(u"modem_handover"_s, 5), (StartUpAction{StartUpPage::Home, true}));
    EXPECT_EQ(startUpAction(u"modem_handover"_s, 6), nothing) << "only the fifth counts";
    EXPECT_EQ(startUpAction(u"modem_init_complete"_s, 5), (StartUpAction{StartUpPage::None, true}));
    EXPECT_EQ(startUpAction(u"modem_waitpin "_s, 0), nothing);
    EXPECT_EQ(startUpAction(std::nullopt, 5), nothing);
}
