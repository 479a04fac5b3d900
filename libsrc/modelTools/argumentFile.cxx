#include "modelTools/argumentFile.h"

#include "modelTools/toolFailure.h"

#include <fstream>

namespace
{
[[noreturn]] void fail(const std::string& path)
{
    throw DtToolFailure(DtExitCode::Usage, "the file of arguments " + path + " cannot be read.");
}

// Editors of some systems put one ahead of every text.
void dropByteOrderMark(std::string& line)
{
    static const std::string theMark = "\xEF\xBB\xBF";
    if (line.compare(0, theMark.size(), theMark) == 0)
        line.erase(0, theMark.size());
}

void appendLines(const std::string& path, std::vector<std::string>& arguments)
{
    std::ifstream file(path);
    if (!file)
        fail(path);
    bool isFirst = true;
    for (std::string line; std::getline(file, line); isFirst = false)
    {
        if (isFirst)
            dropByteOrderMark(line);
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
