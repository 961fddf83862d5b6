#include "simulator/modem/ModemConsole.h"

#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"

#include <QMap>

#include <chrono>
#include <functional>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

using Setter = std::function<void(ModemCondition &condition, const QString &value)>;

bool isYes(const QString &value)
{
    return value == u"1" || value == u"on" || value == u"yes";
}

Setter text(QString ModemCondition::*field)
{
    return [field](ModemCondition &condition, const QString &value) { condition.*field = value; };
}

Setter flag(bool ModemCondition::*field)
{
    return [field](ModemCondition &condition, const QString &value) { condition.*field = isYes(value); };
}

Setter amount(double ModemCondition::*field)
{
    return [field](ModemCondition &condition, const QString &value) { condition.*field = value.toDouble(); };
}

Setter bytes(quint64 ModemCondition::*field)
{
    return [field](ModemCondition &condition, const QString &value) { condition.*field = value.toULongLong(); };
}

const QMap<QString, Setter> &setters()
{
    static const QMap<QString, Setter> all{
        {u"page"_s, text(&ModemCondition::statusPagePath)},
        {u"style"_s,
         [](ModemCondition &condition, const QString &value) {
             condition.pageStyle = value == u"script" ? PageStyle::ScriptText : PageStyle::Json;
         }},
        {u"sessions"_s, flag(&ModemCondition::grantsSessions)},
        {u"main-state"_s, text(&ModemCondition::mainState)},
        {u"ppp-status"_s, text(&ModemCondition::pppStatus)},
        {u"dial-mode"_s, text(&ModemCondition::dialMode)},
        {u"roaming"_s, flag(&ModemCondition::roamingAllowed)},
        {u"firmware"_s, text(&ModemCondition::firmwarePackage)},
        {u"reminder"_s, flag(&ModemCondition::reminderOn)},
        {u"month-limit"_s, amount(&ModemCondition::monthlyLimit)},
        {u"month-threshold"_s, amount(&ModemCondition::reminderThreshold)},
        {u"month-sent"_s, bytes(&ModemCondition::monthlySent)},
        {u"month-received"_s, bytes(&ModemCondition::monthlyReceived)},
        {u"three-day-limit"_s, amount(&ModemCondition::threeDayLimit)},
        {u"three-day-sent"_s, bytes(&ModemCondition::threeDaysSent)},
        {u"three-day-received"_s, bytes(&ModemCondition::threeDaysReceived)},
        {u"traffic"_s, bytes(&ModemCondition::trafficPerPage)},
        {u"web-start"_s, flag(&ModemCondition::startsWebUI)},
        {u"password"_s, flag(&ModemCondition::needsConnectionPassword)},
        {u"pc-profiles"_s, flag(&ModemCondition::isPCProfileType)},
        {u"default-profile"_s, text(&ModemCondition::defaultProfileName)},
    };
    return all;
}

QString setFault(ModemServer &server, const QString &words)
{
    const QString name = words.section(u' ', 0, 0);
    const QString detail = name.section(u'=', 1);
    const auto kind = faultKind(name.section(u'=', 0, 0));
    if (!kind)
        return u"unknown fault"_s;
    ModemFault fault{.kind = *kind, .part = words.section(u' ', 1).toUtf8(), .text = "/redirected"};
    if (fault.kind == FaultKind::SlowAnswer && !detail.isEmpty())
        fault.delay = std::chrono::milliseconds(detail.toInt());
    if (fault.kind == FaultKind::Redirect && !detail.isEmpty())
        fault.text = detail.toUtf8();
    server.setFault(fault);
    return u"ok"_s;
}

} // namespace

QString modemSettingsHelp()
{
    return QStringList(setters().keys()).join(u'\n');
}

bool setModemValue(SimulatedModem &modem, const QString &assignment)
{
    const auto setter = setters().constFind(assignment.section(u'=', 0, 0));
    if (setter == setters().cend() || !assignment.contains(u'='))
        return false;
    modem.change([&](ModemCondition &condition) { (*setter)(condition, assignment.section(u'=', 1)); });
    return true;
}

QString runModemCommand(SimulatedModem &modem, ModemServer &server, const QString &line)
{
    const QString rest = line.section(u' ', 1).trimmed();
    const QString word = line.section(u' ', 0, 0).trimmed();
    if (word == u"set")
        return setModemValue(modem, rest) ? u"ok"_s : u"unknown value"_s;
    if (word == u"fault")
        return setFault(server, rest);
    if (word == u"requests")
        return QString::number(modem.requests().size());
    return u"unknown command"_s;
}

} // namespace tarvo
