#ifndef MODEL_TOOLS_EXPECTED_LIST_H
#define MODEL_TOOLS_EXPECTED_LIST_H

#include <string>
#include <vector>

// A build system fixes what it compiles ahead of the build, from a list of the outputs. Throws DtToolFailure (Differs)
// when the outputs are no more those that the file names, one a line in any order, and (Unreadable) when it cannot be
// read.
void DtCheckExpectedList(const std::string& file, const std::vector<std::string>& outputs);

#endif
