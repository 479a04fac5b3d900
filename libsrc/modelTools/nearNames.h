#ifndef MODEL_TOOLS_NEAR_NAMES_H
#define MODEL_TOOLS_NEAR_NAMES_H

#include <string>
#include <vector>

// The names that somebody may have meant: those of `names` that are nearest to what was typed, the nearest first, at
// most three. Capitals count little. Empty when none is near.
std::vector<std::string> DtNearNames(const std::string& typed, const std::vector<std::string>& names);

// A sentence for the end of a message: " Did you mean A, B or C?", or empty when no name is near.
std::string DtNearNamesHint(const std::string& typed, const std::vector<std::string>& names);

#endif
