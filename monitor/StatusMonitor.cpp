#include "monitor/StatusMonitor.h"

#include "monitor/DataUsage.h"

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

void applyUsage(StatusSnapshot &snapshot, const std::optional<MonthlyUsage> &month, const ThreeDayUsage &threeDays)
{
    snapshot.isHaveDataLimitReachedForOneMonth_ = month && month->thresholdPassed;
    snapshot.isHaveDataLimitExceedForOneMonth_ = month && month->limitPassed;
    if (month) {
        snapshot.m_totalMonthData = month->limit;
        snapshot.m_useData = month->used;
        snapshot.m_surplusData = month->surplus;
    }
    snapshot.m_totalThreeData = threeDays.limit;
    snapshot.isHaveDataLimitExceedForThreedays_ = threeDays.limitPassed;
}

void raiseNotices(StatusSnapshot &snapshot)
{
    snapshot.haveNewVersionFlag_ = snapshot.haveNewVersionFlag_ || snapshot.isHaveNewVersion_;
    snapshot.haveDataLimitFlag_ = snapshot.haveDataLimitFlag_ || snapshot.hasDataLimitNews();
}

} // namespace

StatusMonitor::StatusMonitor(std::function<void(const Work &work)> published)
    : m_published(std::move(published))
{
}

void StatusMonitor::setAllStatusByUrlContents(const Work &work, const QString &content)
{
    const StatusFields fields = readStatusFields(content);
    const bool attached = m_snapshot.update(work, [&](StatusSnapshot &snapshot) {
        snapshot.isRoamOn_ = isRoaming(fields);
        applyUsage(snapshot, monthlyUsage(fields), threeDayUsage(fields));
        raiseNotices(snapshot);
    });
    if (attached)
        m_published(work);
}

bool StatusMonitor::isAutoConnect(const Work &work, const std::optional<QString> &dialMode)
{
    const bool automatic = dialMode == u"auto_dial"_s;
    m_snapshot.update(work, [&](StatusSnapshot &snapshot) { snapshot.isAutoConnectOn_ = automatic; });
    return automatic;
}

void StatusMonitor::setcurrentNetWorkStatus(std::int32_t status)
{
    currentNetWorkStatus_ = status;
}

void StatusMonitor::setNetWorkTransferType(std::int32_t type)
{
    netWorkTransferType_ = type;
}

void StatusMonitor::setNetWorkTransferTypeByNewNetStatus(std::int32_t status)
{
    if (currentNetWorkStatus_ == status)
        setNetWorkTransferType(2);
    else
        setNetWorkTransferType(status == 1 ? 0 : 1);
}

void StatusMonitor::resetForReadyDevice()
{
    StatusSnapshot snapshot = m_snapshot.get();
    snapshot.haveNewVersionFlag_ = false;
    snapshot.haveDataLimitFlag_ = false;
    m_snapshot.reset(snapshot);
}

void StatusMonitor::resetForStop()
{
    m_snapshot.reset({.haveNewVersionFlag_ = true, .haveDataLimitFlag_ = true});
    setNetWorkTransferTypeByNewNetStatus(0);
    setcurrentNetWorkStatus(0);
}

} // namespace tarvo
