#pragma once

#include "modemapi/StatusSnapshot.h"
#include "monitor/DataUsage.h"

#include <QString>

namespace tarvo {

class ConfigManager;

/// @return what the status page @p content tells, read as @p settings say, with the amounts of @p fields, which were read
///         from it
ModemDetails readModemDetails(const QString &content, const StatusFields &fields, const ConfigManager &settings);

} // namespace tarvo
