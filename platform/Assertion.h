#pragma once

namespace tarvo {

/// Ends the process with a message that names the method, source unit, line and broken condition.
[[noreturn]] void assertionFailed(const char *method, const char *sourceUnit, int line, const char *condition);

} // namespace tarvo

/// Ends the process unless @p condition holds; @p text names it as the message shows it.
#define TARVO_ASSERT(condition, text, method, sourceUnit, line)                                                        \
    (static_cast<bool>(condition) ? static_cast<void>(0) : ::tarvo::assertionFailed(method, sourceUnit, line, text))
