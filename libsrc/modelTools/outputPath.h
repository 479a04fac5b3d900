#ifndef MODEL_TOOLS_OUTPUT_PATH_H
#define MODEL_TOOLS_OUTPUT_PATH_H

#include <string>

// Helpers for output paths: names of files relative to the output folder, with '/' between the components. They are
// runs of bytes as the file system knows them, which need not be UTF-8.

// Names at the top of the output folder that begin so belong to the staging of output.
constexpr const char* theReservedPrefix = ".qxgen-";

// True when the first component of the path is one of the staging's own names.
bool DtIsReservedPath(const std::string& path);

// True for a path that leads to a place inside the output folder by its text: relative, without empty components, "."
// and "..", and without NUL.
bool DtIsInnerPath(const std::string& path);

// The path as UTF-8 text for a JSON file, and back. "%" and each byte of a path that is not valid UTF-8 as a whole and
// goes beyond ASCII stand as "%XX". Decoding gives an empty path for a text that encoding never makes.
std::string DtEncodedPath(const std::string& path);
std::string DtDecodedPath(const std::string& text);

#endif
