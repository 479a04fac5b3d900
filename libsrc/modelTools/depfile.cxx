#include "modelTools/depfile.h"

namespace
{
std::string escaped(const std::string& name)
{
    std::string result;
    for (const char letter : name)
    {
        if (letter == '$')
            result += '$';
        else if (letter == ' ' || letter == '#' || letter == '\t')
            result += '\\';
        result += letter;
    }
    return result;
}
} // namespace

std::string DtDepfileText(const std::string& target, const std::set<std::string>& files)
{
    std::string text = escaped(target) + ":";
    for (const std::string& file : files)
        text += " \\\n  " + escaped(file);
    return text + "\n";
}
