#include "setup/command/Report.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(Report, ShowsDevicesAsWordsOfOneLanguage)
{
    const Device modem{
        {0x19d2, 7, u"A"_s, u"B"_s, u"rndis"_s, u"u1"_s}, {true, {u"10.0.0.2"_s}, u"10.0.0.1"_s}, Support::Supported};
    const Device stranger{{.vendor = 1, .product = 2, .interfaceName = u"u\x1b"_s}, {}, Support::Excluded};
    EXPECT_EQ(devicesAsText({}), u"NoDevices\n"_s);
    EXPECT_EQ(devicesAsText({{modem, true}, {stranger}, {modem, false}}),
              u"19d2:0007  A B\n    u1 (rndis), 10.0.0.2, DeviceGateway\n    DeviceSupported, DeviceIsModem\n"
              "0001:0002  0001:0002\n    u\\x1b, LinkDown, DeviceNoGateway\n    DeviceExcluded\n    UseCommand\n"
              "19d2:0007  A B\n    u1 (rndis), 10.0.0.2, DeviceGateway\n    DeviceSupported, DeviceIsNoModem\n"_s);
}

TEST(Report, ShowsChecksWithWhatToDo)
{
    const QList<Check> checks{
        {"a", Mark::Ok}, {"b", Mark::Broken, {"FixNoTray"}, {u"x\ny"_s}}, {"c", Mark::Unknown}, {"d", Mark::Skipped}};
    EXPECT_EQ(
        checksAsText(checks),
        u"Check_a: MarkOk\nCheck_b: MarkBroken\n    FixNoTray\n    x\\ny\nCheck_c: MarkUnknown\nCheck_d: MarkSkipped\n"_s);
}

TEST(Report, ShowsEachSettingAndThoseThatAreAbsent)
{
    const QString text = settingsAsText(
        {u"/a\nb"_s,
         {{u"NeedDialModeJudge"_s, true}, {u"ManualDialKey"_s, u"a:"_s}, {u"ConnectStatusKey"_s, u"\u009b1m"_s}}});
    for (const QString &line : {u"/a\\nb\n"_s, u"\nNeedDialModeJudge: true\n"_s, u"\nManualDialKey: \"a:\"\n"_s,
                                u"\nNeedCheckFotaUpdate: -\n"_s, u"\nConnectStatusKey: \"\\x9b1m\"\n"_s})
        EXPECT_TRUE(text.contains(line)) << text.toStdString();
}
