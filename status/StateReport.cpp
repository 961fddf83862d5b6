#include "status/StateReport.h"

#include "status/DataAmounts.h"
#include "status/Situation.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString wordOf(Situation situation)
{
    switch (situation) {
    case Situation::NoSettings:
        return u"no-settings"_s;
    case Situation::NoModem:
        return u"no-modem"_s;
    case Situation::NotSetUp:
        return u"not-set-up"_s;
    case Situation::WaitingForAddress:
        return u"waiting-address"_s;
    case Situation::NoGateway:
        return u"no-gateway"_s;
    case Situation::Asleep:
        return u"asleep"_s;
    case Situation::Found:
        return u"found"_s;
    case Situation::NotAnswering:
        return u"no-answer"_s;
    case Situation::Answering:
        return u"answering"_s;
    case Situation::SimNeedsUser:
        return u"sim"_s;
    case Situation::Connecting:
        return u"connecting"_s;
    case Situation::NotConnected:
        return u"not-connected"_s;
    case Situation::Connected:
        return u"connected"_s;
    }
    return {};
}

QString wordOf(SimState sim)
{
    switch (sim) {
    case SimState::Unknown:
        return u"unknown"_s;
    case SimState::Missing:
        return u"missing"_s;
    case SimState::Damaged:
        return u"damaged"_s;
    case SimState::NeedsPin:
        return u"needs-pin"_s;
    case SimState::NeedsPuk:
        return u"needs-puk"_s;
    case SimState::Locked:
        return u"locked"_s;
    }
    return {};
}

QVariantMap value(const QVariant &known)
{
    return {{u"Value"_s, known}};
}

/// @return @p gigabytes in bytes; empty for what no modem can have
QVariantMap amount(bool known, float gigabytes)
{
    constexpr double gigabyte = 1 << 30;
    const auto wide = static_cast<double>(gigabytes);
    if (!known || wide < 0 || !isKnownAmount(wide))
        return {};
    return value(static_cast<qulonglong>(std::llround(wide * gigabyte)));
}

/// @return the same for a limit: there is none at zero
QVariantMap limit(bool known, float gigabytes)
{
    return amount(known && gigabytes > 0, gigabytes);
}

QVariantMap amounts(const StatusSnapshot &snapshot, bool known)
{
    const bool month = known && snapshot.details.countsMonth;
    return {{u"MonthUsed"_s, amount(month, snapshot.m_useData)},
            {u"MonthLimit"_s, limit(month, snapshot.m_totalMonthData)},
            {u"MonthReminder"_s, limit(month, snapshot.details.reminderThreshold)},
            {u"ThreeDayUsed"_s, amount(known, snapshot.details.threeDayUse)},
            {u"ThreeDayLimit"_s, limit(known, snapshot.m_totalThreeData)}};
}

QVariantMap deviceReport(const DeviceDetails &device)
{
    return {{u"Vendor"_s, device.usbIdentity.section(u':', 0, 0)},
            {u"Product"_s, device.usbIdentity.section(u':', 1)},
            {u"Name"_s, device.name},
            {u"Interface"_s, device.interfaceName}};
}

QList<QVariantMap> newsReport(const QList<ToldNews> &news)
{
    QList<QVariantMap> report;
    for (const auto &[time, told] : news)
        report.append({{u"Kind"_s, told.page == Page::Firmware ? u"firmware"_s : u"limit"_s},
                       {u"Text"_s, told.text},
                       {u"Time"_s, time.toSecsSinceEpoch()}});
    return report;
}

} // namespace

QVariantMap stateReport(const CompanionStatus &status, const DeviceDetails &device, const QList<ToldNews> &news,
                        const QString &image)
{
    const Situation situation = situationOf(status);
    const bool answered = answers(situation);
    const ModemDetails details = answered ? status.snapshot.details : ModemDetails();
    QVariantMap report = amounts(status.snapshot, answered);
    report.insert({{u"State"_s, wordOf(situation)},
                   {u"SimState"_s, wordOf(details.sim)},
                   {u"Roaming"_s, details.roamingAllowed ? value(*details.roamingAllowed) : QVariantMap()},
                   {u"FirmwareOffered"_s, isPolled(situation) && status.snapshot.isHaveNewVersion_},
                   {u"News"_s, QVariant::fromValue(newsReport(news))},
                   {u"Device"_s, isPolled(situation) ? deviceReport(device) : QVariantMap()},
                   {u"Gateway"_s, isPolled(situation) ? device.gateway : QString()},
                   {u"IconName"_s, u"tarvo-"_s + image},
                   {u"Summary"_s, summaryOf(status)}});
    return report;
}

QVariantMap lastAnswerReport(const DeviceDetails &device)
{
    const bool has = device.lastAnswer.isValid();
    const qint64 seconds = has ? std::max<qint64>(0, device.lastAnswer.secsTo(QDateTime::currentDateTime())) : 0;
    return {{u"LastAnswer"_s, has ? value(static_cast<qulonglong>(seconds)) : QVariantMap()}};
}

Page pageOfKind(const QString &kind)
{
    if (kind == u"home")
        return Page::Home;
    if (kind == u"firmware")
        return Page::Firmware;
    if (kind == u"limit")
        return Page::DataLimit;
    return kind == u"modem" ? Page::Modem : Page::None;
}

} // namespace tarvo
