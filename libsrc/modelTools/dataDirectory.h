#ifndef MODEL_TOOLS_DATA_DIRECTORY_H
#define MODEL_TOOLS_DATA_DIRECTORY_H

#include <string>

// The directory with templates, command files and configuration, absolute, with a separator at the end: the given one
// if it is not empty, else the one that QX_DATA_DIR names, else the one beside the program: "../data" (build tree), or
// where the program's installation has put it. Throws DtToolFailure (Unreadable) when there is none.
std::string DtFindDataDirectory(const std::string& given);

#endif
