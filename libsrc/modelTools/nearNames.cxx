#include "modelTools/nearNames.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <numeric>
#include <set>
#include <utility>

namespace
{
constexpr std::size_t theLongestName = 200; // compared; the rest of a longer one does not matter
constexpr std::size_t theMostNames = 3;
constexpr std::size_t theOtherLetter = 10; // what a letter more, less or other costs
constexpr std::size_t theOtherCase = 1;

std::size_t costOf(char one, char other)
{
    if (one == other)
        return 0;
    const auto lower = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    return lower(one) == lower(other) ? theOtherCase : theOtherLetter;
}

// Whether the letters ahead of these places are the same two in another order.
bool areSwapped(const std::string& one, std::size_t atOne, const std::string& other, std::size_t atOther)
{
    return atOne > 1 && atOther > 1 && costOf(one[atOne - 1], other[atOther - 2]) <= theOtherCase &&
           costOf(one[atOne - 2], other[atOther - 1]) <= theOtherCase;
}

// Edit distance in which two neighbours that were swapped cost as one letter, three rows of the table at a time.
std::size_t distance(const std::string& one, const std::string& other)
{
    using Row = std::vector<std::size_t>;
    Row earlier(other.size() + 1), previous(other.size() + 1), row(other.size() + 1);
    for (std::size_t at = 0; at < row.size(); ++at)
        row[at] = at * theOtherLetter;
    for (std::size_t line = 1; line <= one.size(); ++line)
    {
        earlier.swap(previous);
        previous.swap(row);
        row[0] = line * theOtherLetter;
        for (std::size_t at = 1; at < row.size(); ++at)
        {
            row[at] = std::min({previous[at] + theOtherLetter, row[at - 1] + theOtherLetter,
                                previous[at - 1] + costOf(one[line - 1], other[at - 1])});
            if (areSwapped(one, line, other, at))
                row[at] = std::min(row[at], earlier[at - 2] + theOtherLetter);
        }
    }
    return row.back();
}
} // namespace

std::vector<std::string> DtNearNames(const std::string& typed, const std::vector<std::string>& names)
{
    const std::string start = typed.substr(0, theLongestName);
    const std::size_t limit = std::max<std::size_t>(1, start.size() / 3) * theOtherLetter + start.size();
    std::set<std::pair<std::size_t, std::string>> near;
    for (const std::string& name : names)
    {
        const std::size_t cost = distance(start, name.substr(0, theLongestName));
        if (cost <= limit)
            near.emplace(cost, name);
    }
    std::vector<std::string> result;
    for (auto each = near.begin(); each != near.end() && result.size() < theMostNames; ++each)
        result.push_back(each->second);
    return result;
}

std::string DtNearNamesHint(const std::string& typed, const std::vector<std::string>& names)
{
    const std::vector<std::string> near = DtNearNames(typed, names);
    if (near.empty())
        return std::string();
    std::string hint = " Did you mean " + near.front();
    for (std::size_t index = 1; index < near.size(); ++index)
        hint += (index + 1 == near.size() ? " or " : ", ") + near[index];
    return hint + "?";
}
