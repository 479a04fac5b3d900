#ifndef FOUNDATION_WARNING_RULES_H
#define FOUNDATION_WARNING_RULES_H

#include "foundation/warning.h"

#include <vector>

// The rules by which the libraries warn. An id never changes its meaning: builds and filters name it.
namespace DtRules
{
inline constexpr DtWarningRule outputNotWritten = {"output-not-written",
                                                   "A file of the output could not be opened or written."};

// All of them, in the order of their ids.
const std::vector<const DtWarningRule*>& all();
} // namespace DtRules

#endif
