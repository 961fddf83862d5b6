#pragma once

#include <QString>

namespace tarvo {

class ModemServer;
class SimulatedModem;

/// The texts that may follow "set" in `runModemCommand`, one a line.
QString modemSettingsHelp();

/// Sets one value of the modem's condition, given as `name=value`. @return whether the name is known
bool setModemValue(SimulatedModem &modem, const QString &assignment);

/// Carries out one line of text: `set name=value`, `fault KIND[=DETAIL] [PART]` (the milliseconds of a slow
/// answer, the address of a redirect), or `requests` (how many came so far).
/// @return what to tell whoever typed it
QString runModemCommand(SimulatedModem &modem, ModemServer &server, const QString &line);

} // namespace tarvo
