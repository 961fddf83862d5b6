#pragma once

#include "modemapi/StatusSnapshot.h"
#include "monitor/DataUsage.h"

#include <QString>

namespace tarvo {

/// @return what the status page @p content tells, with the amounts of @p fields, which were read from it
ModemDetails readModemDetails(const QString &content, const StatusFields &fields);

} // namespace tarvo
