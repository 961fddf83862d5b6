#pragma once

#include "status/DetailRows.h"
#include "status/NewsHistory.h"

#include <QList>
#include <QString>
#include <QVariantMap>

namespace tarvo {

/// How things stand, for other programs: what the interface io.github.tarvo.Tarvo1 on the session bus publishes. Its
/// names and words stay as they are; tarvo-dbus(7) explains them.
///
/// What may be unknown is a map: of the one entry "Value", or empty.
///
/// @param news   that the user was told, the newest first
/// @param image  that the icon shows
/// @return properties by name
QVariantMap stateReport(const CompanionStatus &status, const DeviceDetails &device, const QList<ToldNews> &news,
                        const QString &image);

/// @return the property that tells when the modem has answered last; it changes all the time, and no change of it is told
QVariantMap lastAnswerReport(const DeviceDetails &device);

/// @return the page that programs call @p kind: home, firmware, limit or modem; `None` for any other word
Page pageOfKind(const QString &kind);

} // namespace tarvo
