#ifndef MODEL_TOOLS_INPUT_PATH_H
#define MODEL_TOOLS_INPUT_PATH_H

#include <string>

// Helpers for paths that users give.

// False too for what cannot be looked at.
bool DtIsFile(const std::string& path);

// Counted from the working directory, without "." and ".."; an empty path stays.
std::string DtAbsolutePath(const std::string& path);

#endif
