#include "status/CompanionStatus.h"

#include "tests/status/Statuses.h"

#include <iterator>
#include <limits>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

CompanionStatus hindered(Obstacle obstacle)
{
    return {.detection = Detection::Attached, .snapshot = {.answering = false, .obstacle = obstacle}};
}

} // namespace

TEST(CompanionStatus, SaysWhatIsKnownAndNothingElse)
{
    const InLanguage english(QLocale::English);
    const std::pair<CompanionStatus, QString> cases[] = {
        {{}, u"No modem"_s},
        {{.settingsProblem = SettingsProblem::NoVendor}, u"No modem is set up"_s},
        {{.detection = Detection::NotSetUp, .unknownDevice = u"1234:5678"_s},
         u"USB network device 1234:5678 is not set up"_s},
        {{.detection = Detection::WaitingForAddress}, u"Modem found, waiting for an address"_s},
        {{.detection = Detection::NoGateway}, u"Modem found, without a gateway"_s},
        {{.detection = Detection::LeftAlone}, u"Paused, the modem is not asked at present"_s},
        {attached(std::nullopt), u"Modem found"_s},
        {attached(true), u"Modem found"_s},
        {attached(false, {.connected = true}), u"The modem does not answer"_s},
        {hindered(Obstacle::NoAnswer), u"The modem does not answer"_s},
        {hindered(Obstacle::Silence), u"The modem does not answer"_s},
        {hindered(Obstacle::Busy), u"The modem is busy"_s},
        {hindered(Obstacle::WantsPassword), u"The modem asks for a password"_s},
        {hindered(Obstacle::WantsHttps), u"The modem wants https, which is not supported"_s},
        {hindered(Obstacle::OtherPage), u"The modem does not answer with a status page"_s},
        {attached(true, {.countsMonth = true}), u"Modem found · 12.0 of 10.0 GB"_s},
        {attached(true, {.connected = false}), u"Not connected"_s},
        {attached(true, {.connected = false, .connecting = true}), u"Connecting"_s},
        {attached(true, {.connected = false, .sim = SimState::Missing}), u"Not connected: no SIM card"_s},
        {attached(true, {.connected = true, .roamingAllowed = false, .countsMonth = true}),
         u"Connected · 12.0 of 10.0 GB · roaming off"_s},
    };
    for (const auto &[status, summary] : cases)
        EXPECT_EQ(summaryOf(status), summary);
    const InLanguage german{QLocale(QLocale::German)};
    EXPECT_EQ(summaryOf(std::rbegin(cases)->first), u"Verbunden · 12,0 von 10,0 GB · Roaming aus"_s);
}

TEST(CompanionStatus, TheTipHoldsEachStandingNewsInALine)
{
    const InLanguage english(QLocale::English);
    CompanionStatus status = attached(true, {.connected = true});
    EXPECT_EQ(tipOf(status), u"Connected"_s);
    status.snapshot.isHaveNewVersion_ = status.snapshot.isHaveDataLimitExceedForOneMonth_ = true;
    EXPECT_EQ(tipOf(status),
              u"Connected\nNew firmware is available for your modem.\n"
              "You have used more than your monthly limit of 10.0 GB."_s);
    status.snapshot.m_totalMonthData = std::numeric_limits<float>::infinity();
    EXPECT_EQ(tipOf(status), u"Connected\nNew firmware is available for your modem."_s) << "nothing that is not known";
    status.detection = Detection::NoModem;
    EXPECT_EQ(tipOf(status), u"No modem"_s);
}

TEST(CompanionStatus, ThePictureIsTheOneThatWasAskedForUnlessTheModemIsLeftAlone)
{
    EXPECT_EQ(pictureOf({.detection = Detection::Attached}, u"newVersion"_s), u"newVersion"_s);
    EXPECT_EQ(pictureOf({}, {}), u"ready"_s);
    EXPECT_EQ(pictureOf({.detection = Detection::LeftAlone}, u"newVersion"_s), u"ready"_s);
}
