#include "fileGenerator/tokenNames.h"

#include <deque>
#include <string>
#include <unordered_map>

namespace
{
struct DtNames
{
    std::deque<std::string> texts; // by number; they stay where they are
    std::unordered_map<std::string_view, int> numbers;
};

DtNames& names()
{
    static DtNames theNames;
    return theNames;
}
} // namespace

int DtNumberOfToken(std::string_view token)
{
    DtNames& known = names();
    const auto found = known.numbers.find(token);
    if (found != known.numbers.end())
        return found->second;
    const int number = static_cast<int>(known.texts.size());
    known.texts.emplace_back(token);
    known.numbers.emplace(known.texts.back(), number);
    return number;
}

std::string_view DtTokenOfNumber(int number)
{
    return names().texts[static_cast<std::size_t>(number)];
}
