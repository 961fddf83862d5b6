#include "modemapi/ConnectionStatus.h"

#include "RouterObserver/ConfigManager.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(ConnectionStatus, AndDialModeFollowTheSettings)
{
    const ConfigManager usual((QVariantMap()));
    const auto answer = u"ppp_status: '' pppstate: 'old' my: 'mine' \"dial_mode\":\"auto_dial\""_s;
    EXPECT_EQ(getConnectionStatusWithWebContent(answer, usual), u""_s) << "empty is found";
    EXPECT_EQ(getConnectionStatusWithWebContent(u"pppstate: 'old'"_s, usual), u"old"_s);
    EXPECT_EQ(getConnectMode(answer, usual), std::nullopt) << "not wanted";
    EXPECT_TRUE(isConnectedWithStautusContent(u"ipv4_ipv6_connected"_s, usual));
    EXPECT_FALSE(isConnectedWithStautusContent(u"Connected"_s, usual));
    EXPECT_FALSE(isConnectedWithStautusContent(std::nullopt, usual)) << "not equal to an absent setting";

    QVariantMap values{{u"NeedManualSetConnectStatus"_s, u"yes"_s},
                       {u"ConnectedStatusValue"_s, u"Connected"_s},
                       {u"NeedDialModeJudge"_s, 1}};
    EXPECT_EQ(getConnectionStatusWithWebContent(answer, ConfigManager(values)), std::nullopt) << "no key configured";
    values.insert(u"ConnectStatusKey"_s, u"my: "_s);
    const ConfigManager manual(values);
    EXPECT_EQ(getConnectionStatusWithWebContent(answer, manual), u"mine"_s);
    EXPECT_EQ(getConnectMode(answer, manual), u"auto_dial"_s);
    EXPECT_TRUE(isConnectedWithStautusContent(u"Connected"_s, manual));
}
