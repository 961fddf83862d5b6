#pragma once

#include "setup/settings/Devices.h"
#include "setup/settings/RootRights.h"

#include <QString>
#include <QStringList>

namespace tarvo {

class Survey;

/// Exit statuses of the program.
namespace exit_status {
inline constexpr int inOrder = 0;
inline constexpr int failed = 1; ///< a link of the chain is broken, or something could not be done
inline constexpr int wrongUse = 2;
} // namespace exit_status

/// What the program was asked for on its command line.
struct Command {
    QStringList words{}; ///< the command and its operands; empty for the window
    DeviceId device{}; ///< the operand, where the command has one
    bool asJson = false;
    bool force = false;
    Scope scope = Scope::User;
    QString output{}; ///< to be printed instead of anything else, such as help
    QString error{}; ///< what is wrong with the command line; empty when nothing is
};

/// Reads the command line. @param arguments  the program's name first
Command commandFrom(const QStringList &arguments);

/// Carries out @p command, which has words, and prints what comes of it.
/// @return the exit status
int runCommand(const Command &command, Survey &survey);

} // namespace tarvo
