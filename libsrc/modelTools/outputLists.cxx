#include "modelTools/outputLists.h"

#include "foundation/textEnds.h"

#include <algorithm>
#include <fstream>

namespace
{
void appendLines(const std::filesystem::path& list, const std::string& start, std::vector<std::string>& paths)
{
    std::ifstream file(list);
    for (std::string line; std::getline(file, line);)
        if (!line.empty())
            paths.push_back(start + line);
}
} // namespace

std::vector<std::string> DtListedOutputs(const std::filesystem::path& directory, const DtCppPaths& paths)
{
    std::vector<std::string> listed;
    appendLines(directory / (paths.prefix + "Files-cc.txt"), paths.prefix, listed);
    const std::string headers = std::filesystem::path(paths.includePath).lexically_normal().string();
    appendLines(directory / (paths.prefix + "Files-h.txt"), paths.prefix + headers, listed);
    return listed;
}

std::vector<std::string> DtOutputsToList(const std::vector<std::string>& files, const DtCppPaths& paths)
{
    std::vector<std::string> wanted;
    std::copy_if(files.begin(), files.end(), std::back_inserter(wanted),
                 [&paths](const std::string& file)
                 {
                     const std::string extension = std::filesystem::path(file).extension().string();
                     return DtStartsWith(file, paths.prefix) && !DtStartsWith(file, paths.prefix + "Examples/") &&
                            (extension == ".cxx" || extension == ".h");
                 });
    return wanted;
}
