#include "setup/checks/Chain.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

#include <functional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// Facts with which every link holds.
ChainFacts wholeFacts()
{
    ChainFacts facts;
    facts.settingsPath = u"/c"_s;
    facts.statusPage = u"page"_s;
    facts.devices = {
        {{.vendor = 1, .interfaceName = u"u1"_s}, {true, {u"10.0.0.2"_s}, u"10.0.0.1"_s}, Support::Supported}};
    facts.modem = ModemFacts{true, true, u"connect"_s, {}, true, true};
    facts.profiles = {true, u"/p"_s, true};
    facts.settingsDigest = u"d"_s;
    facts.desktop = {true, true, true, true, {{u"SettingsDigest"_s, u"d"_s}}};
    return facts;
}

/// @return the marks, a letter each: o, B, u or s
std::string marks(const QList<Check> &checks)
{
    std::string letters;
    for (const Check &check : checks)
        letters += "oBus"[static_cast<int>(check.mark)];
    return letters;
}

UserText firstAdvice(const QList<Check> &checks)
{
    for (const Check &check : checks) {
        if (check.mark == Mark::Broken)
            return check.advice;
    }
    return {};
}

} // namespace

TEST(Chain, SaysForEachBrokenLinkWhatToDo)
{
    const std::tuple<std::function<void(ChainFacts &)>, std::string, UserText> cases[] = {
        {[](auto &) {}, "oooooooooooooooo", {}},
        {[](auto &f) { f.settingsPath.clear(); }, "Bssssssssssooooo", {"FixNoSettings"}},
        {[](auto &f) { f.settingsProblem = u"why"_s; }, "Bssssssssssooooo", {"FixUnreadable", {u"/c"_s, u"why"_s}}},
        {[](auto &f) {
             f.findings = {{Fault::NoVendor, {}}, {Fault::UnknownKey, u"x"_s}};
         },
         "oBoooooooooooooo",
         {"FaultNoVendor"}},
        {[](auto &f) { f.devices.clear(); }, "ooBssssssssooooo", {"FixNoDevice"}},
        {[](auto &f) { f.devices[0].support = Support::Unsupported; }, "ooBssssssssooooo", {"FixUnsupported"}},
        {[](auto &f) { f.devices[0].support = Support::Excluded; },
         "ooBssssssssooooo",
         {"FixExcluded", {u"0001:0000"_s}}},
        {[](auto &f) { f.devices[0].network.isUp = false; }, "oooBsssssssooooo", {"FixLinkDown", {u"u1"_s}}},
        {[](auto &f) { f.devices[0].network.addresses.clear(); }, "ooooBssssssooooo", {"FixNoAddress", {u"u1"_s}}},
        {[](auto &f) { f.devices[0].network.gateway.clear(); }, "oooooBsssssooooo", {"FixNoGateway", {u"u1"_s}}},
        {[](auto &f) {
             f.devices[0].network.gateway.clear();
             f.devices[0].network.routeWithoutMetric = u"e0"_s;
         },
         "oooooBsssssooooo",
         {"FixHiddenGateway", {u"u1"_s, u"e0"_s}}},
        {[](auto &f) { f.modem.reset(); }, "oooooouuuuuooooo", {}},
        {[](auto &f) { f.modem->answers = false; }, "ooooooBssssooooo", {"FixNoAnswer", {u"10.0.0.1"_s}}},
        {[](auto &f) { f.modem->hasPage = false; }, "oooooooBsssooooo", {"FixNoPage", {u"page"_s}}},
        {[](auto &f) { *f.modem = {.obstacle = Obstacle::Silence}; }, "ooooooBssssooooo", {"FixBusy", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::Busy}; },
         "oooooooBsssooooo",
         {"FixBusy", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::WantsPassword}; },
         "oooooooBsssooooo",
         {"FixPassword", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::WantsHttps}; },
         "oooooooBsssooooo",
         {"FixHttps", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::OtherPage}; },
         "oooooooBsssooooo",
         {"FixOtherPage", {u"page"_s}}},
        {[](auto &f) { f.modem->connection.reset(); }, "ooooooooBooooooo", {"FixNoConnection", {u"page"_s}}},
        {[](auto &f) {
             f.modem->missingFields = QStringList{u"a"_s, u"b"_s};
         },
         "oooooooooBoooooo",
         {"FixNoData", {u"a, b"_s}}},
        {[](auto &f) { f.modem->givesSession = false; }, "ooooooooooBooooo", {"FixNoSession"}},
        {[](auto &f) { f.profiles.wanted = f.profiles.folderExists = false; }, "ooooooooooosoooo", {}},
        {[](auto &f) { f.profiles.folderExists = false; }, "oooooooooooBoooo", {"FixNoProfiles", {u"/p"_s}}},
        {[](auto &f) { f.profiles.problems = QStringList{u"x"_s}; }, "oooooooooooBoooo", {"FixProfiles", {u"/p"_s}}},
        {[](auto &f) {
             f.desktop = {false, {}, true, {}};
         },
         "ooooooooooooBuou",
         {"FixNoTray"}},
        {[](auto &f) { f.desktop.runsApplication = false; }, "oooooooooooooooB", {"FixNotRunning"}},
        {[](auto &f) { f.settingsDigest = u"changed"_s; }, "oooooooooooooooB", {"FixOlderSettings"}},
        {[](auto &f) { f.desktop.applicationProperties.clear(); }, "ooooooooooooooou", {}},
    };
    for (const auto &[change, expected, advice] : cases) {
        ChainFacts facts = wholeFacts();
        change(facts);
        const QList<Check> checks = checkChain(facts);
        EXPECT_EQ(marks(checks), expected) << advice.id.constData();
        EXPECT_EQ(firstAdvice(checks), advice) << firstAdvice(checks).id.constData();
        EXPECT_EQ(isWhole(checks), advice == UserText());
    }
}

TEST(Chain, LooksAtTheSupportedDeviceThatCameFurthest)
{
    const Device foreign{{.vendor = 9}, {true, {u"a"_s}, u"g"_s}, Support::Unsupported};
    const Device down{{.vendor = 1}, {}, Support::Supported};
    const Device addressed{{.vendor = 2}, {true, {u"a"_s}}, Support::Supported};
    const Device later{{.vendor = 3}, {true, {u"a"_s}}, Support::Supported};
    EXPECT_EQ(deviceToCheck({foreign, down, addressed, later}), addressed);
    EXPECT_EQ(deviceToCheck({foreign}), std::nullopt);

    const QVariantMap settings{{u"device_info"_s,
                                QVariantMap{{u"vendor_ids"_s, QVariantList{u"4660"_s, 1}},
                                            {u"eliminate_product_ids"_s, QVariantList{u"7"_s}}}}};
    EXPECT_EQ(supportOf({.vendor = 4660, .product = 8}, settings), Support::Supported);
    EXPECT_EQ(supportOf({.vendor = 4660, .product = 7}, settings), Support::Excluded);
    EXPECT_EQ(supportOf({.vendor = 1}, settings), Support::Unsupported) << "a number never matches";
    EXPECT_EQ(deviceIdFrom(u"12d1:Ff"_s), (DeviceId{0x12d1, 0xff}));
    for (const QString &wrong : {u"12d1"_s, u"12d1:"_s, u"12d11:1"_s, u"0x1:2"_s, u"1:2 "_s, u""_s})
        EXPECT_EQ(deviceIdFrom(wrong), std::nullopt) << wrong.toStdString();
}
