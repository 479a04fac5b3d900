#ifndef MODEL_TOOLS_OUTPUT_LISTS_H
#define MODEL_TOOLS_OUTPUT_LISTS_H

#include <filesystem>
#include <string>
#include <vector>

// How the names of generated C++ files begin.
struct DtCppPaths
{
    std::string prefix;      // "cpp\", or nothing
    std::string includePath; // directory of the headers with a separator at its end, or nothing
};

// The output paths that the lists of generated C++ name, Files-cc.txt and Files-h.txt; empty when there are no lists.
std::vector<std::string> DtListedOutputs(const std::filesystem::path& directory, const DtCppPaths& paths);

// Those files of the C++ script that are C++ of the library (not of the examples), which the lists should name. Other
// scripts may write C++ too, and answer for it themselves.
std::vector<std::string> DtOutputsToList(const std::vector<std::string>& files, const DtCppPaths& paths);

#endif
