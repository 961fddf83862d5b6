#include "app/MainController.h"
#include "monitor/DataUsage.h"

namespace tarvo {

namespace {

void applyUsage(ModemState &state, const std::optional<MonthlyUsage> &month, const ThreeDayUsage &threeDays)
{
    state.isHaveDataLimitReachedForOneMonth_ = month && month->thresholdPassed;
    state.isHaveDataLimitExceedForOneMonth_ = month && month->limitPassed;
    if (month) {
        state.m_totalMonthData = month->limit;
        state.m_useData = month->used;
        state.m_surplusData = month->surplus;
    }
    state.m_totalThreeData = threeDays.limit;
    state.isHaveDataLimitExceedForThreedays_ = threeDays.limitPassed;
}

void raiseNotices(ModemState &state)
{
    if (state.isHaveNewVersion_)
        state.haveNewVersionFlag_ = true;
    if (state.isHaveDataLimitReachedForOneMonth_ || state.isHaveDataLimitExceedForOneMonth_
        || state.isHaveDataLimitExceedForThreedays_)
        state.haveDataLimitFlag_ = true;
}

} // namespace

void MainController::setAllStatusByUrlContents(const QString &content)
{
    const StatusFields fields = readStatusFields(content);
    const bool attached = whileAttached([&] {
        state_.isRoamOn_ = isRoaming(fields);
        applyUsage(state_, monthlyUsage(fields), threeDayUsage(fields));
        raiseNotices(state_);
    });
    if (!attached)
        return;
    if (!state_.haveNewVersionFlag_ && !state_.haveDataLimitFlag_)
        onMainThread([this] { setStatusImage(QStringLiteral("online")); });
    startDisPlayUIStatusThread();
}

} // namespace tarvo
