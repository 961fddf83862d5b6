#pragma once

#include "modemapi/StatusSnapshot.h"
#include "monitor/DataUsage.h"

#include <QString>

namespace tarvo {

/// @return whether @p content has any of the fields that the snapshot is made of: a page of a server that is busy, or asks
///         for a password, has none
bool isStatusPage(const QString &content);

/// @return what the status page @p content tells, with the amounts of @p fields, which were read from it
ModemDetails readModemDetails(const QString &content, const StatusFields &fields);

} // namespace tarvo
