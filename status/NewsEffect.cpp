#include "status/NewsEffect.h"

#include "status/DataAmounts.h"

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

QString threeDayText(const StatusSnapshot &snapshot)
{
    return withAmounts(qtTrId("DatalimitExceedForThreedays"), {snapshot.m_totalThreeData});
}

QString monthlyLimitText(const StatusSnapshot &snapshot)
{
    return withAmounts(qtTrId("DatalimitExceed"), {snapshot.m_totalMonthData});
}

QString monthlyReminderText(const StatusSnapshot &snapshot)
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
    QString (*text)(const StatusSnapshot &snapshot);
};

// Both monthly kinds share an image; the three-day kind has the one that looks like a mere warning.
constexpr DataLimitNews dataLimitNews[] = {
    {DisplayType::ThreeDayLimitExceeded, &StatusSnapshot::isHaveDataLimitExceedForThreedays_, u"dataFluxReached",
     threeDayText},
    {DisplayType::MonthlyLimitExceeded, &StatusSnapshot::isHaveDataLimitExceedForOneMonth_, u"dataFluxExceeded",
     monthlyLimitText},
    {DisplayType::MonthlyLimitReached, &StatusSnapshot::isHaveDataLimitReachedForOneMonth_, u"dataFluxExceeded",
     monthlyReminderText},
};

NewsEffect shown(QStringView image, const QString &text, bool seenBefore)
{
    return {.image = image.toString(), .balloonText = seenBefore ? QString() : text, .isNews = !text.isEmpty()};
}

NewsEffect evaluateNewVersion(const StatusSnapshot &snapshot, bool seenBefore)
{
    if (!snapshot.isHaveNewVersion_)
        return {.clickOpensUpdatePage = false};
    NewsEffect effect = shown(u"newVersion", qtTrId("HaveNewVersionTipWhenConnected"), seenBefore);
    effect.announcesUpdate = !seenBefore;
    effect.clickOpensUpdatePage = true;
    if (snapshot.haveDataLimitFlag_)
        effect.clickOpensLimitPage = false;
    return effect;
}

NewsEffect evaluateDataLimit(const StatusSnapshot &snapshot, const DataLimitNews &news, bool seenBefore)
{
    if (!(snapshot.*news.present))
        return {.clickOpensLimitPage = false};
    NewsEffect effect = shown(news.image, news.text(snapshot), seenBefore);
    effect.clickOpensLimitPage = true;
    if (snapshot.isHaveNewVersion_)
        effect.clickOpensUpdatePage = false;
    effect.tellsOverrun = news.type == DisplayType::MonthlyLimitReached && snapshot.m_surplusData < 0;
    return effect;
}

} // namespace

NewsEffect evaluateDisplayType(const StatusSnapshot &snapshot, int type, bool seenBefore)
{
    if (type == DisplayType::NewVersion)
        return evaluateNewVersion(snapshot, seenBefore);
    for (const DataLimitNews &news : dataLimitNews)
        if (news.type == type)
            return evaluateDataLimit(snapshot, news, seenBefore);
    return {};
}

} // namespace tarvo
