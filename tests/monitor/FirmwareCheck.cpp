#include "monitor/FirmwareCheck.h"

#include "tests/support/Companion.h"

using namespace tarvo;
using namespace std::chrono_literals;

namespace {

struct Firmware : Companion {
    Firmware()
    {
        QVariantMap settings = usualSettings();
        settings.insert(u"NeedCheckFotaUpdate"_s, true);
        configure(settings);
    }

    /// Lets one pass run whole. @return how often the modem has been asked for firmware
    qsizetype pass(qsizetype times)
    {
        tick(modem, times);
        EXPECT_TRUE(clock.waitForSleepers(1)); // the worker, or the sequence that the pass ends with
        return modem.device.requests("dm_find_package&multi_data=1").size();
    }

    void connected(const QString &status)
    {
        modem.device.change([&](ModemCondition &condition) { condition.pppStatus = status; });
    }
};

} // namespace

TEST(FirmwareCheck, ReadsTheOfferLoosely)
{
    for (const QString &offer :
         {u"10"_s, u"version_has_new_critical_software"_s, u"version_has_new_optional_software"_s})
        EXPECT_TRUE(offersNewFirmware(offer)) << offer.toStdString();
    for (const QString &none : {u""_s, u"0"_s, u"version_idle"_s})
        EXPECT_FALSE(offersNewFirmware(none)) << none.toStdString();
}

TEST_F(Firmware, IsAskedForOnceConnectedAndSeenInTheSamePass)
{
    connected(u"ppp_disconnected"_s);
    modem.device.change(
        [](ModemCondition &condition) { condition.firmwarePackage = u"version_has_new_optional_software"_s; });
    plugIn(modem);
    EXPECT_EQ(pass(1), 0);
    connected(u"ppp_connected"_s);
    EXPECT_EQ(pass(2), 1);
    EXPECT_TRUE(controller.snapshot().isHaveNewVersion_ && controller.snapshot().haveNewVersionFlag_);
    EXPECT_EQ(pass(3), 1);

    clock.advance(10min);
    ASSERT_TRUE(modem.device.waitForRequests(2, "dm_find_package"));
    unplug();
    EXPECT_FALSE(controller.snapshot().isHaveNewVersion_);
}

TEST_F(AttachedModem, AFailedFirmwareCheckChangesNothingAndIsTriedAgainInAMinute)
{
    configure({{u"NeedCheckFotaUpdate"_s, true}});
    modem.device.setFixedAnswer("dm_find_package", "{}");
    snapshot.reset({.isHaveNewVersion_ = true});
    ManualClock clock;
    FirmwareCheck check(snapshot, clock);
    const auto askedAfter = [&](std::chrono::seconds pause) {
        clock.advance(pause);
        check.checkFotaUpdateWhenDue(client, u"ppp_status: 'ppp_connected'"_s);
        return modem.device.requests("dm_find_package").size();
    };
    EXPECT_EQ(askedAfter(0s), 1);
    EXPECT_TRUE(systemLog.contains(u"fotaOtaState  is null!"_s));
    EXPECT_TRUE(snapshot.get().isHaveNewVersion_);
    EXPECT_EQ(askedAfter(59s), 1);
    EXPECT_EQ(askedAfter(1s), 2);
    configure(usualSettings());
    EXPECT_EQ(askedAfter(1h), 2) << "the settings forbid it";
}
