#include "fileGenerator/tokenNames.h"

#include <deque>
#include <string>
#include <unordered_map>

namespace
{
struct DtTokenText
{
    explicit DtTokenText(std::string_view token) : text(token)
    {
        constexpr std::size_t theBrackets = 4;
        if (token.size() >= theBrackets)
            name = std::string(token.substr(2, token.size() - theBrackets));
    }

    std::string text;
    DtString name;
};

struct DtNames
{
    std::deque<DtTokenText> texts; // by number; they stay where they are
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
    known.numbers.emplace(known.texts.back().text, number);
    return number;
}

std::string_view DtTokenOfNumber(int number)
{
    return names().texts[static_cast<std::size_t>(number)].text;
}

const DtString& DtNameOfToken(int number)
{
    return names().texts[static_cast<std::size_t>(number)].name;
}
