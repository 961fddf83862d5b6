#pragma once

#include <optional>

namespace tarvo {

/// Carries out the command line, which only asks for texts. @return the exit status; nil when the program shall run
std::optional<int> answerArguments(int argc, char **argv);

} // namespace tarvo
