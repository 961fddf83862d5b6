#include "monitor/StatusMonitor.h"

#include "monitor/DataUsage.h"
#include "monitor/ModemDetails.h"

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

StatusMonitor::StatusMonitor(SharedSnapshot &snapshot, const ConfigManager &settings, Listeners listeners)
    : m_snapshot(snapshot)
    , m_settings(settings)
    , m_listeners(std::move(listeners))
{
}

/// Publishes what @p change makes of the snapshot, and tells of it when it is another one than was last told.
void StatusMonitor::publish(const Work &work, const std::function<void(StatusSnapshot &snapshot)> &change)
{
    std::optional<StatusSnapshot> changed;
    const bool attached = m_snapshot.update(work, [&](StatusSnapshot &snapshot) {
        change(snapshot);
        if (m_told != snapshot)
            m_told = changed.emplace(snapshot);
    });
    if (attached && changed && m_listeners.changed)
        m_listeners.changed(work, *changed);
}

void StatusMonitor::setAllStatusByUrlContents(const Work &work, const QString &content)
{
    bool known = false; // nearly always: the same page makes nothing else of the snapshot that it made
    work.whileAttached([&] { known = content == m_content && m_snapshot.get() == m_evaluated; });
    if (!known) {
        if (!isStatusPage(content, m_settings))
            return;
        evaluate(work, content);
    }
    if (m_listeners.evaluated && !work.isOver())
        m_listeners.evaluated(work);
}

void StatusMonitor::evaluate(const Work &work, const QString &content)
{
    const StatusFields fields = readStatusFields(content);
    publish(work, [&](StatusSnapshot &snapshot) {
        snapshot.isRoamOn_ = isRoaming(fields);
        applyUsage(snapshot, monthlyUsage(fields), threeDayUsage(fields));
        raiseNotices(snapshot);
        snapshot.details = readModemDetails(content, fields, m_settings);
        m_content = content;
        m_evaluated = snapshot;
    });
}

void StatusMonitor::noteAnswer(const Work &work, std::optional<Obstacle> obstacle)
{
    constexpr int failuresThatCount = 2;
    publish(work, [&](StatusSnapshot &snapshot) {
        m_failures = obstacle ? m_failures + 1 : 0;
        if (obstacle && m_failures < failuresThatCount)
            return;
        snapshot.answering = !obstacle;
        snapshot.obstacle = obstacle;
    });
}

bool StatusMonitor::isAutoConnect(const Work &work, const std::optional<QString> &dialMode)
{
    const bool automatic = dialMode == u"auto_dial"_s;
    m_snapshot.update(work, [&](StatusSnapshot &snapshot) { snapshot.dormant.isAutoConnectOn_ = automatic; });
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

void StatusMonitor::resetForReadyDevice(bool hasNewVersion)
{
    StatusSnapshot snapshot = m_snapshot.get();
    snapshot.isHaveNewVersion_ = hasNewVersion;
    snapshot.haveNewVersionFlag_ = false;
    snapshot.haveDataLimitFlag_ = false;
    snapshot.answering.reset();
    snapshot.obstacle.reset();
    m_snapshot.reset(snapshot);
    m_failures = 0;
}

void StatusMonitor::resetForStop()
{
    m_snapshot.reset({.haveNewVersionFlag_ = true, .haveDataLimitFlag_ = true});
    m_told = {};
    m_failures = 0;
    setNetWorkTransferTypeByNewNetStatus(0);
    setcurrentNetWorkStatus(0);
}

} // namespace tarvo
