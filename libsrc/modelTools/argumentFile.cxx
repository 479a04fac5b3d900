#include "modelTools/argumentFile.h"

#include "modelTools/toolFailure.h"

#include <fstream>

namespace
{
[[noreturn]] void fail(const std::string& path)
{
    throw DtToolFailure(DtExitCode::Usage, "the file of arguments " + path + " cannot be read.");
}

void appendLines(const std::string& path, std::vector<std::string>& arguments)
{
    std::ifstream file(path);
    if (!file)
        fail(path);
    for (std::string line; std::getline(file, line);)
    {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!line.empty())
            arguments.push_back(line);
    }
    if (file.bad()) // a directory can be opened
        fail(path);
}
} // namespace

std::vector<std::string> DtExpandedArguments(const std::vector<std::string>& arguments)
{
    std::vector<std::string> expanded;
    for (const std::string& argument : arguments)
    {
        if (argument.size() > 1 && argument.front() == '@')
            appendLines(argument.substr(1), expanded);
        else
            expanded.push_back(argument);
    }
    return expanded;
}
