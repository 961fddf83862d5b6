#include "monitor/StatusMonitor.h"

#include "tests/support/Companion.h"

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(StatusMonitor, DerivesTheTransferTypeFromTheNewStatus)
{
    StatusMonitor monitor({});
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
    StatusMonitor monitor([&](const Work &) { ++published; });
    const Work work = attachment->work();
    const QString page = u"last_three_days_tx_bytes: '1' international_roaming_setting: 'on'"_s;
    monitor.setAllStatusByUrlContents(work, page);
    EXPECT_TRUE(monitor.isAutoConnect(work, u"auto_dial"_s));
    EXPECT_TRUE(monitor.snapshot().get().isRoamOn_ && monitor.snapshot().get().isAutoConnectOn_);
    EXPECT_TRUE(monitor.snapshot().get().haveDataLimitFlag_) << "any traffic passes a limit of nothing";

    attachment.reset();
    monitor.resetForStop();
    const StatusSnapshot empty{.haveNewVersionFlag_ = true, .haveDataLimitFlag_ = true};
    monitor.setAllStatusByUrlContents(work, page);
    EXPECT_EQ(monitor.snapshot().get(), empty);
    EXPECT_EQ(published, 1);
}
