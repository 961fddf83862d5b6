#include "monitor/StatusMonitor.h"

#include "modemapi/StatusFields.h"
#include "tests/support/Companion.h"

using namespace tarvo;

TEST(StatusMonitor, DerivesTheTransferTypeFromTheNewStatus)
{
    SharedSnapshot snapshot;
    StatusMonitor monitor(snapshot, configured(), {});
    const std::tuple<int, int, int> cases[] = {{0, 0, 2}, {0, 1, 0}, {0, 7, 1}, {1, 1, 2}, {1, 0, 1}, {3, 1, 0}};
    for (const auto &[current, next, type] : cases) {
        monitor.setcurrentNetWorkStatus(current);
        monitor.setNetWorkTransferTypeByNewNetStatus(next);
        EXPECT_EQ(monitor.netWorkTransferType(), type) << current << " -> " << next;
    }
}

TEST_F(AttachedModem, NothingOfWorkThatIsOverIsPublished)
{
    int published = 0;
    int changed = 0;
    StatusMonitor monitor(snapshot, configured(),
                          {.evaluated = [&](const Work &) { ++published; },
                           .changed = [&](const Work &, const StatusSnapshot &) { ++changed; }});
    const Work work = attachment->work();
    const QString page = u"last_three_days_tx_bytes: '1' international_roaming_setting: 'on'"_s;
    monitor.setAllStatusByUrlContents(work, page);
    EXPECT_TRUE(monitor.isAutoConnect(work, u"auto_dial"_s));
    EXPECT_TRUE(snapshot.get().isRoamOn_ && snapshot.get().dormant.isAutoConnectOn_);
    EXPECT_TRUE(snapshot.get().haveDataLimitFlag_) << "any traffic passes a limit of nothing";

    monitor.setAllStatusByUrlContents(work, page);
    EXPECT_EQ(changed, 2) << "the same page is no change";
    attachment.reset();
    monitor.resetForStop();
    const StatusSnapshot empty{.haveNewVersionFlag_ = true, .haveDataLimitFlag_ = true};
    monitor.setAllStatusByUrlContents(work, page);
    EXPECT_EQ(snapshot.get(), empty);
    EXPECT_EQ(published, 2);
}

TEST_F(AttachedModem, TheModemCountsAsSilentAfterTwoFailures)
{
    StatusMonitor monitor(snapshot, configured(), {});
    constexpr auto silent = Obstacle::NoAnswer;
    constexpr auto busy = Obstacle::Busy;
    using Known = std::pair<std::optional<bool>, std::optional<Obstacle>>;
    const std::pair<std::optional<Obstacle>, Known> cases[] = {
        {silent, {}},          {{}, {true, {}}}, {silent, {true, {}}}, {silent, {false, silent}},
        {busy, {false, busy}}, {{}, {true, {}}}, {busy, {true, {}}},
    };
    for (const auto &[obstacle, known] : cases) {
        monitor.noteAnswer(client.work(), obstacle);
        const StatusSnapshot shown = snapshot.get();
        EXPECT_EQ(Known(shown.answering, shown.obstacle), known);
    }
    monitor.noteAnswer(client.work(), busy);
    monitor.resetForReadyDevice(false);
    EXPECT_EQ(snapshot.get().answering, std::nullopt);
    EXPECT_EQ(snapshot.get().obstacle, std::nullopt);
}

TEST_F(AttachedModem, TheSamePageIsReadAnewForTheNextDevice)
{
    StatusMonitor monitor(snapshot, configured(), {});
    for (int device = 0; device < 2; ++device) {
        monitor.resetForReadyDevice(false);
        EXPECT_EQ(snapshot.get(), StatusSnapshot());
        monitor.setAllStatusByUrlContents(client.work(),
                                          u"flow_reminder_switch: 'on' monthly_velta_tx: '1'"
                                          " max_usage_set_for_month: '3'"_s);
        const StatusSnapshot seen = snapshot.get();
        EXPECT_TRUE(seen.haveDataLimitFlag_ && seen.isHaveDataLimitReachedForOneMonth_);
        EXPECT_FALSE(seen.isHaveDataLimitExceedForOneMonth_ || seen.isHaveDataLimitExceedForThreedays_);
        EXPECT_EQ(seen.m_totalMonthData, 3);
        monitor.resetForStop();
    }
}

TEST_F(AttachedModem, APageWithoutFieldsChangesNothing)
{
    int evaluated = 0;
    StatusMonitor monitor(snapshot, configured(), {.evaluated = [&](const Work &) { ++evaluated; }});
    monitor.setAllStatusByUrlContents(client.work(), u"last_three_days_tx_bytes: '1'"_s);
    const StatusSnapshot before = snapshot.get();
    EXPECT_TRUE(before.isHaveDataLimitExceedForThreedays_);
    for (const QString &page : {u""_s, u"{}"_s, u"<html>busy</html>"_s, u"{\"result\":\"failure\"}"_s}) {
        monitor.setAllStatusByUrlContents(client.work(), page);
        EXPECT_EQ(snapshot.get(), before);
    }
    EXPECT_EQ(evaluated, 1);
    for (const QString &page : {u"flow_reminder_switch: ''"_s, u"{\"last_three_days_rx_bytes\":\"\"}"_s,
                                u"pppstate: 'on'"_s, u"\"modem_main_state\":\"\""_s, u"\"dial_mode\":\"\""_s}) {
        EXPECT_TRUE(isStatusPage(page, configured())) << page.toStdString();
        monitor.setAllStatusByUrlContents(client.work(), page);
        EXPECT_FALSE(snapshot.get().isHaveDataLimitExceedForThreedays_);
    }
    EXPECT_EQ(evaluated, 6);
}
