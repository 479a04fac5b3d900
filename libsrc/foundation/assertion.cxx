#include "foundation/assertion.h"

#include <cstdio>
#include <cstdlib>

void DtAssertionFailed(const char* expression, const char* file, int line, const char* function)
{
    std::fprintf(stderr, "%s:%d: %s: Assertion `%s' failed.\n", file, line, function, expression);
    std::abort();
}
