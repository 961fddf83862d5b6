#include "setup/settings/Devices.h"

#include "RouterObserver/ConfigManager.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(Devices, AreCheckedFromTheSupportedOneThatCameFurthest)
{
    const Device foreign{{.vendor = 9}, {true, {u"a"_s}, u"g"_s}, Support::Unsupported};
    const Device down{{.vendor = 1}, {}, Support::Supported};
    const Device addressed{{.vendor = 2}, {true, {u"a"_s}}, Support::Supported};
    const Device later{{.vendor = 3}, {true, {u"a"_s}}, Support::Supported};
    EXPECT_EQ(deviceToCheck({foreign, down, addressed, later}), addressed);
    EXPECT_EQ(deviceToCheck({foreign}), std::nullopt);

    const ConfigManager settings(QVariantMap{{u"device_info"_s,
                                              QVariantMap{{u"vendor_ids"_s, QVariantList{u"4660"_s, 1}},
                                                          {u"eliminate_product_ids"_s, QVariantList{u"7"_s}}}}});
    EXPECT_EQ(supportOf(4660, 8, settings), Support::Supported);
    EXPECT_EQ(supportOf(4660, 7, settings), Support::Excluded);
    EXPECT_EQ(supportOf(4660, std::nullopt, settings), Support::Supported);
    EXPECT_EQ(supportOf(1, 0, settings), Support::Unsupported) << "a number never matches";
    EXPECT_EQ(deviceIdFrom(u"12d1:Ff"_s), (DeviceId{0x12d1, 0xff}));
    for (const QString &wrong : {u"12d1"_s, u"12d1:"_s, u"12d11:1"_s, u"0x1:2"_s, u"1:2 "_s, u""_s})
        EXPECT_EQ(deviceIdFrom(wrong), std::nullopt) << wrong.toStdString();
}
