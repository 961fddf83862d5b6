#pragma once

#include "status/CompanionStatus.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace tarvo {

/// What is known of the device that is attached, beside what it tells itself. A text may be empty: not known.
struct DeviceDetails {
    QString name{};
    QString usbIdentity{}; ///< vendor and product in hexadecimal, such as 1234:5678
    QString interfaceName{};
    QString address{}; ///< of the computer, behind that interface
    QString gateway{}; ///< of the modem
    int accessPointsSent = 0;
    QDateTime lastAnswer{}; ///< null before the first

    bool operator==(const DeviceDetails &) const = default;
};

/// One line of the status window: what it is, and what it is at present.
struct DetailRow {
    QString label;
    QString value;

    bool operator==(const DetailRow &) const = default;
};

/// @return the status window's lines, always the same ones; what is not known is a dash
QList<DetailRow> detailRows(const CompanionStatus &status, const DeviceDetails &device);

/// @return a text for a support request: the summary, the news and the lines. It holds no names or passwords of access
///         points
QString supportText(const CompanionStatus &status, const DeviceDetails &device);

} // namespace tarvo
