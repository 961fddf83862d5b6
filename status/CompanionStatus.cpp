#include "status/CompanionStatus.h"

#include "status/DataAmounts.h"
#include "status/NewsEffect.h"
#include "status/Situation.h"

#include <QCoreApplication>
#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

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

QString simText(SimState sim)
{
    switch (sim) {
    case SimState::Missing:
        return qtTrId("StatusSimMissing");
    case SimState::Damaged:
        return qtTrId("StatusSimDamaged");
    case SimState::NeedsPin:
        return qtTrId("StatusSimNeedsPin");
    case SimState::NeedsPuk:
        return qtTrId("StatusSimNeedsPuk");
    case SimState::Locked:
    case SimState::Unknown:
        break;
    }
    return qtTrId("StatusSimLocked");
}

QString situationText(Situation situation, const CompanionStatus &status)
{
    switch (situation) {
    case Situation::NoSettings:
    case Situation::NoModem:
        return withoutModem(status.settingsProblem);
    case Situation::NotSetUp:
        return qtTrId("StatusNotSetUp").arg(status.unknownDevice);
    case Situation::WaitingForAddress:
        return qtTrId("StatusWaitingForAddress");
    case Situation::NoGateway:
        return qtTrId("StatusNoGateway");
    case Situation::Asleep:
        return qtTrId("StatusAsleep");
    case Situation::Found:
    case Situation::Answering:
        break;
    case Situation::NotAnswering:
        return obstacleText(status.snapshot.obstacle.value_or(Obstacle::NoAnswer));
    case Situation::SimNeedsUser:
        return simText(status.snapshot.details.sim);
    case Situation::Connecting:
        return qtTrId("StatusConnecting");
    case Situation::NotConnected:
        return qtTrId("StatusNotConnected");
    case Situation::Connected:
        return qtTrId("StatusConnected");
    }
    return qtTrId("StatusModemFound");
}

Page pageOf(int displayType)
{
    return displayType == DisplayType::NewVersion ? Page::Firmware : Page::DataLimit;
}

} // namespace

QString summaryOf(const CompanionStatus &status)
{
    const Situation situation = situationOf(status);
    QString summary = situationText(situation, status);
    if (!answers(situation))
        return summary;
    const StatusSnapshot &snapshot = status.snapshot;
    const auto add = [&](const QString &part) { summary = qtTrId("StatusAnd").arg(summary, part); };
    if (snapshot.details.countsMonth)
        add(amountOfLimit(static_cast<double>(snapshot.m_useData), static_cast<double>(snapshot.m_totalMonthData)));
    if (snapshot.details.roamingAllowed)
        add(*snapshot.details.roamingAllowed ? qtTrId("StatusRoamingOn") : qtTrId("StatusRoamingOff"));
    return summary;
}

QList<StandingNews> standingNews(const CompanionStatus &status)
{
    QList<StandingNews> news;
    if (!isPolled(situationOf(status)))
        return news;
    for (const int type : displayTypes) {
        const NewsEffect shown = evaluateDisplayType(status.snapshot, type, false);
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

QString pictureOf(const CompanionStatus &status, const QString &image)
{
    const bool isAsleep = situationOf(status) == Situation::Asleep;
    return isAsleep || image.isEmpty() ? u"ready"_s : image;
}

} // namespace tarvo
