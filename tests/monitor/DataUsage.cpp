#include "monitor/DataUsage.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

constexpr float gigabyte = 1024.0F * 1024.0F * 1024.0F;

StatusFields monthly(const QString &limit, const QString &threshold, const QString &sent, const QString &received)
{
    return {.reminderSwitch = u"on"_s,
            .monthlyLimit = limit,
            .monthlyThreshold = threshold,
            .monthlySent = sent,
            .monthlyReceived = received};
}

} // namespace

TEST(DataUsage, LeadingNumbersAreReadAsFarAsTheyGo)
{
    const std::pair<QString, float> cases[] = {
        {u"12.5GB"_s, 12.5F},
        {u" \t-3"_s, -3},
        {u"+4"_s, 4},
        {u"1e3x"_s, 1000},
        {u"2e"_s, 2},
        {u".5"_s, .5F},
        {u"7."_s, 7},
        {u""_s, 0},
        {u"on"_s, 0},
        {u"inf"_s, 0},
        {u"nan"_s, 0},
        {u"0x10"_s, 0},
        {u"--1"_s, 0},
        {u"+-1"_s, 0},
        {u"1e-99"_s, 0},
        {u"1,5"_s, 1},
        {u"16777217"_s, 16777216},
        {u"٣"_s, 0},
    };
    for (const auto &[text, value] : cases)
        EXPECT_EQ(leadingNumber(text), value) << text.toStdString();
    EXPECT_EQ(leadingNumber(u"1e99"_s), std::numeric_limits<float>::infinity());
    EXPECT_EQ(leadingNumber(u"-1e9999"_s), -std::numeric_limits<float>::infinity());
}

TEST(DataUsage, ReadsEachFieldInTheOlderStyleFirst)
{
    const StatusFields fields = readStatusFields(
        u"flow_reminder_switch: 'on', \"flow_reminder_switch\":\"off\", monthly_velta_tx: '', "
        "\"monthly_velta_tx\":\"5\",\"international_roaming_setting\":\"on\",last_three_days_rx_bytes: ''"_s);
    EXPECT_EQ(fields, (StatusFields{.reminderSwitch = u"on"_s, .monthlySent = u"5"_s, .roamingSetting = u"on"_s}));
    EXPECT_TRUE(isRoaming(fields));
    EXPECT_FALSE(isRoaming({.roamingSetting = u"ON"_s}));
    EXPECT_FALSE(isRoaming({}));
}

TEST(DataUsage, CountsAMonthAgainstLimitAndThreshold)
{
    const auto usage = monthlyUsage(monthly(u"2"_s, u"1"_s, u"1073741824"_s, u"536870912"_s));
    EXPECT_EQ(usage, (MonthlyUsage{2, 1.5F, 0.5F, true, false, 1}));
    EXPECT_EQ(monthlyUsage(monthly(u"1"_s, u"9"_s, u"3221225472"_s, u"0"_s)), (MonthlyUsage{1, 3, -2, false, true, 9}));
    EXPECT_EQ(monthlyUsage(monthly(u"1"_s, u"1"_s, u"1073741824"_s, u""_s)), (MonthlyUsage{1, 1, 0, false, false, 1}))
        << "used exactly up is not exceeded";
}

TEST(DataUsage, AddsBytesInSinglePrecision)
{
    // 2^30 and 2^30 + 64 are neighbours in single precision only from 2^30 on: 32 more bytes are lost.
    const auto usage = monthlyUsage(monthly(u"1"_s, u"1"_s, u"1073741824"_s, u"32"_s));
    ASSERT_TRUE(usage);
    EXPECT_FALSE(usage->limitPassed);
    EXPECT_EQ(usage->used, 1.0F);
    EXPECT_TRUE(monthlyUsage(monthly(u"1"_s, u"1"_s, u"1073741824"_s, u"128"_s))->limitPassed);
}

TEST(DataUsage, IsNotCountedWhileTheReminderIsOff)
{
    StatusFields fields = monthly(u"1"_s, u"1"_s, u"9e9"_s, u"0"_s);
    for (const std::optional<QString> &setting :
         {std::optional(u"off"_s), std::optional(u""_s), std::optional<QString>()}) {
        fields.reminderSwitch = setting;
        EXPECT_EQ(monthlyUsage(fields), std::nullopt);
    }
}

TEST(DataUsage, AmountsThatNoModemCanHaveAreUnknownAndTheFlagsStay)
{
    constexpr float none = unknownAmount;
    const auto most = u"1152921504606846976"_s; // 2^60
    const std::pair<StatusFields, MonthlyUsage> cases[] = {
        {monthly(u"1"_s, u"1"_s, most, {}), {1, 1 << 30, 1 - float(1 << 30), true, true, 1}},
        {monthly(u"1"_s, u"1"_s, most, most), {1, none, none, true, true, 1}},
        {monthly(u"1"_s, u"1"_s, u"-1"_s, u"5e9"_s), {1, none, none, true, true, 1}},
        {monthly(u"1"_s, u"1"_s, u"5e9"_s, u"-1"_s), {1, none, none, true, true, 1}},
        {monthly(u"1e99"_s, u"1e99"_s, u"1e99"_s, {}), {none, none, none, false, false, none}},
        {monthly(u"-1"_s, u"-1"_s, {}, {}), {none, 0, none, true, true, none}},
        {monthly(u"1e99"_s, u"0"_s, {}, {}), {none, 0, none, false, false, 0}},
    };
    for (const auto &[fields, usage] : cases)
        EXPECT_EQ(monthlyUsage(fields), usage) << fields.monthlyLimit->toStdString();
    EXPECT_EQ(threeDayUsage({.threeDayLimit = u"-2"_s, .threeDaySent = u"-1"_s}), (ThreeDayUsage{none, true, none}));
}

TEST(DataUsage, ThreeDaysAreAlwaysCounted)
{
    EXPECT_EQ(threeDayUsage({}), (ThreeDayUsage{0, false}));
    EXPECT_EQ(threeDayUsage({.threeDaySent = u"1"_s}), (ThreeDayUsage{0, true, 1.0F / (1 << 30)}))
        << "any traffic passes a limit of zero";
    EXPECT_EQ(threeDayUsage({.threeDayLimit = u"1.5"_s,
                             .threeDaySent = QString::number(gigabyte, 'f', 0),
                             .threeDayReceived = QString::number(gigabyte / 2, 'f', 0)}),
              (ThreeDayUsage{1.5F, false, 1.5F}));
}
