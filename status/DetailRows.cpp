#include "status/DetailRows.h"

#include "status/Situation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString orDash(const QString &text)
{
    return text.isEmpty() ? u"–"_s : text;
}

QString choice(const std::optional<bool> &value, const QString &whenTrue, const QString &whenFalse)
{
    if (!value)
        return {};
    return *value ? whenTrue : whenFalse;
}

QString connectionText(const ModemDetails &details)
{
    if (details.connecting)
        return qtTrId("StatusConnecting");
    return choice(details.connected, qtTrId("StatusConnected"), qtTrId("StatusNotConnected"));
}

QString deviceText(const DeviceDetails &device)
{
    if (device.name.isEmpty() || device.usbIdentity.isEmpty())
        return device.name + device.usbIdentity;
    return u"%1 (%2)"_s.arg(device.name, device.usbIdentity);
}

QString timeText(const QDateTime &time)
{
    return time.isNull() ? QString() : QLocale().toString(time, QLocale::ShortFormat);
}

} // namespace

QList<DetailRow> detailRows(const CompanionStatus &status, const DeviceDetails &device)
{
    const bool attached = isPolled(situationOf(status));
    const ModemDetails details = attached ? status.snapshot.details : ModemDetails();
    const DeviceDetails shown = attached ? device : DeviceDetails();
    const QString firmware =
        status.snapshot.isHaveNewVersion_ ? qtTrId("ValueFirmwareNew") : qtTrId("ValueFirmwareNoneOffered");
    const QString sent = qtTrId("ValueAccessPointsSent", shown.accessPointsSent);
    const DetailRow rows[] = {
        {qtTrId("RowConnection"), connectionText(details)},
        {qtTrId("RowDialMode"), choice(details.dialsByItself, qtTrId("ValueDialAuto"), qtTrId("ValueDialManual"))},
        {qtTrId("RowRoaming"), choice(details.roamingAllowed, qtTrId("ValueOn"), qtTrId("ValueOff"))},
        {qtTrId("RowFirmware"), attached ? firmware : QString()},
        {qtTrId("RowDevice"), deviceText(shown)},
        {qtTrId("RowInterface"), shown.interfaceName},
        {qtTrId("RowAddress"), shown.address},
        {qtTrId("RowGateway"), shown.gateway},
        {qtTrId("RowAccessPoints"), attached ? sent : QString()},
        {qtTrId("RowLastAnswer"), timeText(shown.lastAnswer)},
    };
    QList<DetailRow> filled;
    for (const DetailRow &row : rows)
        filled.append({row.label, orDash(row.value)});
    return filled;
}

QString supportText(const CompanionStatus &status, const DeviceDetails &device)
{
    QStringList lines{u"Tarvo "_s + QCoreApplication::applicationVersion(), summaryOf(status)};
    for (const StandingNews &news : standingNews(status))
        lines << news.text;
    for (const DetailRow &row : detailRows(status, device))
        lines << u"%1: %2"_s.arg(row.label, row.value);
    return lines.join(u'\n') + u'\n';
}

} // namespace tarvo
