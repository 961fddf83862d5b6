#pragma once

#include "app/command/StateText.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace tarvo {

inline constexpr int notRunning = 3; ///< the exit status when there is no companion to ask

/// What the command line asks the running companion for.
struct Request {
    enum class Kind { Help, Version, Status, Show, Open, Quit };

    Kind kind = Kind::Help;
    StateForm form = StateForm::Line;
    bool follows = false; ///< prints a line for each change, until the companion ends
    bool waits = false; ///< for the companion to begin
    QString page{}; ///< the kind of page to open

    bool operator==(const Request &) const = default;
};

/// @param arguments  without the program's name; not empty
/// @return what is asked for, or what is wrong with the arguments, in one sentence
std::variant<Request, QString> parseArguments(const QStringList &arguments);

/// @return the text of `tarvo --help`
QString helpText();

} // namespace tarvo
