#include "modelTools/expectedList.h"

#include "foundation/fileUtils.h"
#include "modelTools/toolFailure.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

namespace
{
constexpr std::size_t theMostNamed = 3;

std::set<std::string> linesOf(const std::string& file)
{
    std::string text;
    if (!DtReadFile(DtString(file), text))
        throw DtToolFailure(DtExitCode::Unreadable, "the list of expected outputs " + file + " cannot be read.");
    std::set<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        if (!line.empty())
            lines.insert(line);
    return lines;
}

std::vector<std::string> missingFrom(const std::set<std::string>& some, const std::set<std::string>& others)
{
    std::vector<std::string> missing;
    std::set_difference(others.begin(), others.end(), some.begin(), some.end(), std::back_inserter(missing));
    return missing;
}

// " New: a.h, b.h and 3 more."; empty without names.
std::string told(const char* label, const std::vector<std::string>& names)
{
    std::string text;
    for (std::size_t index = 0; index < std::min(names.size(), theMostNamed); ++index)
        text += (index == 0 ? "" : ", ") + names[index];
    if (names.size() > theMostNamed)
        text += " and " + std::to_string(names.size() - theMostNamed) + " more";
    return text.empty() ? text : std::string(" ") + label + ": " + text + ".";
}
} // namespace

void DtCheckExpectedList(const std::string& file, const std::vector<std::string>& outputs)
{
    const std::set<std::string> expected = linesOf(file);
    const std::set<std::string> actual(outputs.begin(), outputs.end());
    if (actual != expected)
        throw DtToolFailure(DtExitCode::Differs, "the outputs are not those that " + file +
                                                     " lists, so nothing is written; run cmake again." +
                                                     told("New", missingFrom(expected, actual)) +
                                                     told("Gone", missingFrom(actual, expected)));
}
