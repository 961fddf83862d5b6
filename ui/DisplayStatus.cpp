#include "ui/DisplayStatus.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <cmath>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// Puts @p amounts in the place of %1, %2; a text that lacks a placeholder is left without the amount.
QString withAmounts(QString text, std::initializer_list<float> amounts)
{
    int number = 0;
    for (const float amount : amounts)
        text.replace(u'%' + QString::number(++number), dataAmount(static_cast<double>(amount)));
    return text;
}

QString threeDayTip(ModemState &state)
{
    return withAmounts(qtTrId("DatalimitExceedForThreedays"), {state.m_totalThreeData});
}

QString monthlyLimitTip(ModemState &state)
{
    return withAmounts(qtTrId("DatalimitExceed"), {state.m_totalMonthData});
}

QString monthlyReminderTip(ModemState &state)
{
    const float surplus = state.m_surplusData;
    if (!(surplus < 0))
        return withAmounts(qtTrId("DatalimitReachedForOneMonth"), {state.m_useData, surplus});
    state.m_surplusData = -surplus;
    return withAmounts(qtTrId("DatalimitReachedForOneMonth_Negative"), {state.m_useData, -surplus});
}

struct DataLimitNews {
    int type;
    std::atomic<bool> ModemState::*present;
    std::atomic<bool> ModemState::*previous;
    QStringView image;
    QString (*tip)(ModemState &state);
};

// Both monthly kinds share an image; the three-day kind has the one that looks like a mere warning.
constexpr DataLimitNews dataLimitNews[] = {
    {DisplayType::ThreeDayLimitExceeded, &ModemState::isHaveDataLimitExceedForThreedays_,
     &ModemState::previousHaveDateLimitExceededForThreedays_, u"dataFluxReached", threeDayTip},
    {DisplayType::MonthlyLimitExceeded, &ModemState::isHaveDataLimitExceedForOneMonth_,
     &ModemState::previousHaveDateLimitExceeded_, u"dataFluxExceeded", monthlyLimitTip},
    {DisplayType::MonthlyLimitReached, &ModemState::isHaveDataLimitReachedForOneMonth_,
     &ModemState::previousHaveDateLimitReached_, u"dataFluxExceeded", monthlyReminderTip},
};

DisplayStatus shown(QStringView image, const QString &tip, bool seenBefore)
{
    return {.image = image.toString(), .tip = tip, .balloonText = seenBefore ? QString() : tip};
}

DisplayStatus evaluateNewVersion(ModemState &state)
{
    DisplayStatus status{.tip = QString()};
    state.openUpdateUrlWhileHasNewVersion_ = state.isHaveNewVersion_.load();
    if (state.isHaveNewVersion_) {
        if (state.haveDataLimitFlag_)
            state.openDateLimitUrlWhileHasLimit_ = false;
        status = shown(u"newVersion", qtTrId("HaveNewVersionTipWhenConnected"), state.previousHaveNewVersion_);
        status.announcesUpdate = !state.previousHaveNewVersion_;
    }
    state.previousHaveNewVersion_ = state.isHaveNewVersion_.load();
    return status;
}

DisplayStatus evaluateDataLimit(ModemState &state, const DataLimitNews &news)
{
    const bool present = state.*news.present;
    DisplayStatus status{.tip = QString()};
    state.openDateLimitUrlWhileHasLimit_ = present;
    if (present) {
        if (state.isHaveNewVersion_)
            state.openUpdateUrlWhileHasNewVersion_ = false;
        status = shown(news.image, news.tip(state), state.*news.previous);
    }
    state.*news.previous = present;
    return status;
}

} // namespace

DisplayStatus evaluateDisplayType(ModemState &state, int type)
{
    if (state.stopProcModemStatus_)
        return {};
    if (type == DisplayType::NewVersion)
        return evaluateNewVersion(state);
    for (const DataLimitNews &news : dataLimitNews)
        if (news.type == type)
            return evaluateDataLimit(state, news);
    if (state.haveNewVersionFlag_ || state.haveDataLimitFlag_)
        return {};
    return {.tip = QString()};
}

QString dataAmount(double gigabytes)
{
    constexpr double gigabyte = 1024.0 * 1024.0 * 1024.0;
    constexpr double mostGigabytes = 1e9; // in bytes still far from the largest integer
    const QLocale locale;
    if (!(std::abs(gigabytes) <= mostGigabytes))
        return locale.toString(gigabytes, 'g', 3) + u" GB"_s;
    return locale.formattedDataSize(std::llround(gigabytes * gigabyte), 2, QLocale::DataSizeTraditionalFormat);
}

} // namespace tarvo
