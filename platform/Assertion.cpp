#include "platform/Assertion.h"

#include <cstdio>
#include <cstdlib>

namespace tarvo {

void assertionFailed(const char *method, const char *sourceUnit, int line, const char *condition)
{
    std::fprintf(stderr, "Assertion failed: (%s), function %s, file %s, line %d.\n", condition, method, sourceUnit,
                 line);
    std::abort();
}

} // namespace tarvo
