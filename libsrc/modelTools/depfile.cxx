#include "modelTools/depfile.h"

#include <initializer_list>
#include <string_view>

namespace
{
constexpr std::string_view theEscapedLetters = " \t#:|";

// A backslash stands for itself, but where it is ahead of a letter that needs one: there two stand for one.
std::string escaped(const std::string& name)
{
    std::string result;
    std::size_t backslashes = 0; // right ahead of the letter
    for (const char letter : name)
    {
        if (letter == '$')
            result += '$';
        else if (theEscapedLetters.find(letter) != std::string_view::npos)
            result.append(backslashes + 1, '\\');
        result += letter;
        backslashes = letter == '\\' ? backslashes + 1 : 0;
    }
    return result.append(backslashes, '\\'); // a blank or a colon follows
}
} // namespace

// A backslash at the end of the last name would continue the line, so names that end in one come first.
std::string DtDepfileText(const std::string& target, const std::set<std::string>& files)
{
    std::string text = escaped(target) + ":";
    for (const bool areOfBackslash : {true, false})
        for (const std::string& file : files)
            if ((!file.empty() && file.back() == '\\') == areOfBackslash)
                text += " \\\n  " + escaped(file);
    text += "\n";
    for (const std::string& file : files)
        text += escaped(file) + ":\n";
    return text;
}
