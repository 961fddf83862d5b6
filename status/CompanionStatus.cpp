#include "status/CompanionStatus.h"

#include "status/DataAmounts.h"
#include "status/DisplayStatus.h"

#include <QCoreApplication>
#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString connectionText(const ModemDetails &details)
{
    switch (details.sim) {
    case SimState::Missing:
        return qtTrId("StatusSimMissing");
    case SimState::Damaged:
        return qtTrId("StatusSimDamaged");
    case SimState::NeedsPin:
        return qtTrId("StatusSimNeedsPin");
    case SimState::NeedsPuk:
        return qtTrId("StatusSimNeedsPuk");
    case SimState::Locked:
        return qtTrId("StatusSimLocked");
    case SimState::Unknown:
        break;
    }
    if (!details.connected)
        return qtTrId("StatusModemFound");
    return *details.connected ? qtTrId("StatusConnected") : qtTrId("StatusNotConnected");
}

QString withoutModem(SettingsProblem problem)
{
    switch (problem) {
    case SettingsProblem::NoFile:
        return qtTrId("ProblemNoSettings");
    case SettingsProblem::Unreadable:
        return qtTrId("ProblemUnreadable");
    case SettingsProblem::NoVendor:
        return qtTrId("ProblemNoVendor");
    case SettingsProblem::VendorIsNumber:
        return qtTrId("ProblemVendorType");
    case SettingsProblem::None:
        break;
    }
    return qtTrId("StatusNoModem");
}

QString obstacleText(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::WantsPassword:
        return qtTrId("StatusWantsPassword");
    case Obstacle::Busy:
        return qtTrId("StatusBusy");
    case Obstacle::WantsHttps:
        return qtTrId("StatusWantsHttps");
    case Obstacle::OtherPage:
        return qtTrId("StatusOtherPage");
    case Obstacle::NoAnswer:
    case Obstacle::Silence:
        break;
    }
    return qtTrId("StatusNotAnswering");
}

QString attachedSummary(const StatusSnapshot &snapshot)
{
    if (!snapshot.answering)
        return qtTrId("StatusModemFound");
    if (!*snapshot.answering)
        return obstacleText(snapshot.obstacle.value_or(Obstacle::NoAnswer));
    QString summary = connectionText(snapshot.details);
    const auto add = [&](const QString &part) { summary = qtTrId("StatusAnd").arg(summary, part); };
    if (snapshot.details.countsMonth)
        add(amountOfLimit(static_cast<double>(snapshot.m_useData), static_cast<double>(snapshot.m_totalMonthData)));
    if (snapshot.details.roamingAllowed)
        add(*snapshot.details.roamingAllowed ? qtTrId("StatusRoamingOn") : qtTrId("StatusRoamingOff"));
    return summary;
}

Page pageOf(int displayType)
{
    return displayType == DisplayType::NewVersion ? Page::Firmware : Page::DataLimit;
}

} // namespace

QString summaryOf(const CompanionStatus &status)
{
    switch (status.detection) {
    case Detection::NoModem:
        return withoutModem(status.settingsProblem);
    case Detection::NotSetUp:
        return qtTrId("StatusNotSetUp").arg(status.unknownDevice);
    case Detection::WaitingForAddress:
        return qtTrId("StatusWaitingForAddress");
    case Detection::NoGateway:
        return qtTrId("StatusNoGateway");
    case Detection::Attached:
        break;
    }
    return attachedSummary(status.snapshot);
}

QList<StandingNews> standingNews(const CompanionStatus &status)
{
    QList<StandingNews> news;
    if (status.detection != Detection::Attached)
        return news;
    for (const int type : displayTypes) {
        const DisplayStatus shown = evaluateDisplayType(status.snapshot, type, false);
        if (shown.isNews)
            news.append({shown.balloonText, pageOf(type)});
    }
    return news;
}

QString tipOf(const CompanionStatus &status)
{
    QStringList lines{summaryOf(status)};
    for (const StandingNews &news : standingNews(status))
        lines << news.text;
    return lines.join(u'\n');
}

} // namespace tarvo
