#include "setup/checks/Chain.h"

#include "tests/support/PrintQt.h"

#include <QByteArrayList>

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

/// @return the links that are not in order, one after the other as one: "port broken, page to session skipped"
std::string flaws(const QList<Check> &checks)
{
    const QByteArray words[] = {{}, " broken", " unknown", " skipped"};
    QByteArrayList runs;
    for (qsizetype first = 0, end = 0; first < checks.size(); first = end) {
        const Mark mark = checks[first].mark;
        while (end < checks.size() && checks[end].mark == mark)
            ++end;
        const QByteArray ids = checks[first].id + (end - first > 1 ? " to " + checks[end - 1].id : "");
        if (mark != Mark::Ok)
            runs.append(ids + words[static_cast<int>(mark)]);
    }
    return runs.join(", ").toStdString();
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
        {[](auto &) {}, "", {}},
        {[](auto &f) { f.settingsPath.clear(); }, "settings broken, keys to session skipped", {"FixNoSettings"}},
        {[](auto &f) { f.settingsProblem = u"why"_s; },
         "settings broken, keys to session skipped",
         {"FixUnreadable", {u"/c"_s, u"why"_s}}},
        {[](auto &f) {
             f.findings = {{Fault::NoVendor, {}}, {Fault::UnknownKey, u"x"_s}};
         },
         "keys broken",
         {"FaultNoVendor"}},
        {[](auto &f) { f.devices.clear(); }, "device broken, link to session skipped", {"FixNoDevice"}},
        {[](auto &f) { f.devices[0].support = Support::Unsupported; },
         "device broken, link to session skipped",
         {"FixUnsupported"}},
        {[](auto &f) { f.devices[0].support = Support::Excluded; },
         "device broken, link to session skipped",
         {"FixExcluded", {u"0001:0000"_s}}},
        {[](auto &f) { f.devices[0].network.isUp = false; },
         "link broken, address to session skipped",
         {"FixLinkDown", {u"u1"_s}}},
        {[](auto &f) { f.devices[0].network.addresses.clear(); },
         "address broken, gateway to session skipped",
         {"FixNoAddress", {u"u1"_s}}},
        {[](auto &f) { f.devices[0].network.gateway.clear(); },
         "gateway broken, port to session skipped",
         {"FixNoGateway", {u"u1"_s}}},
        {[](auto &f) {
             f.devices[0].network.gateway.clear();
             f.devices[0].network.routeWithoutMetric = u"e0"_s;
         },
         "gateway broken, port to session skipped",
         {"FixHiddenGateway", {u"u1"_s, u"e0"_s}}},
        {[](auto &f) { f.modem.reset(); }, "port to session unknown", {}},
        {[](auto &f) { f.modem->answers = false; },
         "port broken, page to session skipped",
         {"FixNoAnswer", {u"10.0.0.1"_s}}},
        {[](auto &f) { f.modem->hasPage = false; },
         "page broken, connection to session skipped",
         {"FixNoPage", {u"page"_s}}},
        {[](auto &f) { *f.modem = {.obstacle = Obstacle::Silence}; },
         "port broken, page to session skipped",
         {"FixBusy", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::Busy}; },
         "page broken, connection to session skipped",
         {"FixBusy", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::WantsPassword}; },
         "page broken, connection to session skipped",
         {"FixPassword", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::WantsHttps}; },
         "page broken, connection to session skipped",
         {"FixHttps", {u"10.0.0.1"_s}}},
        {[](auto &f) { *f.modem = {.answers = true, .obstacle = Obstacle::OtherPage}; },
         "page broken, connection to session skipped",
         {"FixOtherPage", {u"page"_s}}},
        {[](auto &f) { f.modem->connection.reset(); }, "connection broken", {"FixNoConnection", {u"page"_s}}},
        {[](auto &f) {
             f.modem->missingFields = QStringList{u"a"_s, u"b"_s};
         },
         "data broken",
         {"FixNoData", {u"a, b"_s}}},
        {[](auto &f) { f.modem->givesSession = false; }, "session broken", {"FixNoSession"}},
        {[](auto &f) { f.profiles.wanted = f.profiles.folderExists = false; }, "profiles skipped", {}},
        {[](auto &f) { f.profiles.folderExists = false; }, "profiles broken", {"FixNoProfiles", {u"/p"_s}}},
        {[](auto &f) { f.profiles.problems = QStringList{u"x"_s}; }, "profiles broken", {"FixProfiles", {u"/p"_s}}},
        {[](auto &f) {
             f.desktop = {false, {}, true, {}};
         },
         "tray broken, notifications unknown, companion unknown",
         {"FixNoTray"}},
        {[](auto &f) { f.desktop.runsApplication = false; }, "companion broken", {"FixNotRunning"}},
        {[](auto &f) { f.settingsDigest = u"changed"_s; }, "companion broken", {"FixOlderSettings"}},
        {[](auto &f) { f.desktop.applicationProperties.clear(); }, "companion unknown", {}},
    };
    for (const auto &[change, expected, advice] : cases) {
        ChainFacts facts = wholeFacts();
        change(facts);
        const QList<Check> checks = checkChain(facts);
        EXPECT_EQ(flaws(checks), expected) << advice.id.constData();
        EXPECT_EQ(firstAdvice(checks), advice) << firstAdvice(checks).id.constData();
        EXPECT_EQ(isWhole(checks), advice == UserText());
    }
}
