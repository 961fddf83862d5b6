#pragma once

#include <QString>
#include <QStringList>

namespace tarvo {

/// Carries out what the command line asks for; starts no companion.
/// @param arguments      without the program's name; not empty
/// @param applicationId  of the running companion, on the session bus at @p busAddress
/// @return the exit status: 0 done, 1 not done or not connected, 2 wrong arguments, 3 no companion runs
int runCommand(int argc, char **argv, const QString &busAddress, const QString &applicationId);

} // namespace tarvo
