#ifndef MODEL_TOOLS_ARGUMENT_FILE_H
#define MODEL_TOOLS_ARGUMENT_FILE_H

#include <string>
#include <vector>

// The arguments with each "@FILE" replaced by the lines of that file, one argument a line, blanks kept; empty lines are
// left out. Lines that begin with "@" are arguments like any other, so a file cannot name another one. "@" alone stays.
// Throws DtToolFailure (Usage) when a file cannot be read.
std::vector<std::string> DtExpandedArguments(const std::vector<std::string>& arguments);

#endif
