#include "ui/DisplayStatus.h"

#include "ui/DataAmounts.h"

#include <QCoreApplication>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// Puts @p amounts in the place of %1, %2; a text that lacks a placeholder is left without the amount.
/// @return the text; empty when one of the amounts is not known
QString withAmounts(QString text, std::initializer_list<float> amounts)
{
    if (!std::ranges::all_of(amounts, [](float amount) { return isKnownAmount(static_cast<double>(amount)); }))
        return {};
    int number = 0;
    for (const float amount : amounts)
        text.replace(u'%' + QString::number(++number), dataAmount(static_cast<double>(amount)));
    return text;
}

QString threeDayTip(const StatusSnapshot &snapshot)
{
    return withAmounts(qtTrId("DatalimitExceedForThreedays"), {snapshot.m_totalThreeData});
}

QString monthlyLimitTip(const StatusSnapshot &snapshot)
{
    return withAmounts(qtTrId("DatalimitExceed"), {snapshot.m_totalMonthData});
}

QString monthlyReminderTip(const StatusSnapshot &snapshot)
{
    const float surplus = snapshot.m_surplusData;
    if (surplus < 0)
        return withAmounts(qtTrId("DatalimitReachedForOneMonth_Negative"), {snapshot.m_useData, -surplus});
    return withAmounts(qtTrId("DatalimitReachedForOneMonth"), {snapshot.m_useData, surplus});
}

struct DataLimitNews {
    int type;
    bool StatusSnapshot::*present;
    QStringView image;
    QString (*tip)(const StatusSnapshot &snapshot);
};

// Both monthly kinds share an image; the three-day kind has the one that looks like a mere warning.
constexpr DataLimitNews dataLimitNews[] = {
    {DisplayType::ThreeDayLimitExceeded, &StatusSnapshot::isHaveDataLimitExceedForThreedays_, u"dataFluxReached",
     threeDayTip},
    {DisplayType::MonthlyLimitExceeded, &StatusSnapshot::isHaveDataLimitExceedForOneMonth_, u"dataFluxExceeded",
     monthlyLimitTip},
    {DisplayType::MonthlyLimitReached, &StatusSnapshot::isHaveDataLimitReachedForOneMonth_, u"dataFluxExceeded",
     monthlyReminderTip},
};

DisplayStatus shown(QStringView image, const QString &tip, bool seenBefore)
{
    return {
        .image = image.toString(), .tip = tip, .balloonText = seenBefore ? QString() : tip, .isNews = !tip.isEmpty()};
}

DisplayStatus evaluateNewVersion(const StatusSnapshot &snapshot, bool seenBefore)
{
    if (!snapshot.isHaveNewVersion_)
        return {.tip = QString(), .clickOpensUpdatePage = false};
    DisplayStatus status = shown(u"newVersion", qtTrId("HaveNewVersionTipWhenConnected"), seenBefore);
    status.announcesUpdate = !seenBefore;
    status.clickOpensUpdatePage = true;
    if (snapshot.haveDataLimitFlag_)
        status.clickOpensLimitPage = false;
    return status;
}

DisplayStatus evaluateDataLimit(const StatusSnapshot &snapshot, const DataLimitNews &news, bool seenBefore)
{
    if (!(snapshot.*news.present))
        return {.tip = QString(), .clickOpensLimitPage = false};
    DisplayStatus status = shown(news.image, news.tip(snapshot), seenBefore);
    status.clickOpensLimitPage = true;
    if (snapshot.isHaveNewVersion_)
        status.clickOpensUpdatePage = false;
    if (news.type == DisplayType::MonthlyLimitReached && snapshot.m_surplusData < 0)
        status.surplus = -snapshot.m_surplusData;
    return status;
}

} // namespace

DisplayStatus evaluateDisplayType(const StatusSnapshot &snapshot, int type, bool seenBefore)
{
    if (type == DisplayType::NewVersion)
        return evaluateNewVersion(snapshot, seenBefore);
    for (const DataLimitNews &news : dataLimitNews)
        if (news.type == type)
            return evaluateDataLimit(snapshot, news, seenBefore);
    if (snapshot.haveNewVersionFlag_ || snapshot.haveDataLimitFlag_)
        return {};
    return {.tip = QString()};
}

} // namespace tarvo
