#include "fileGenerator/templateCondition.h"

#include <algorithm>
#include <iterator>

namespace
{
std::string_view trimmedFront(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view trimmedBack(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// A text cut at its first blank. One without a blank is whole in both parts.
struct DtCut
{
    explicit DtCut(std::string_view text) : left(text), right(text)
    {
        const std::size_t blank = text.find(' ');
        if (blank == std::string_view::npos)
            return;
        left = text.substr(0, blank);
        right = text.substr(blank + 1);
    }

    std::string_view left;
    std::string_view right;
};

// An unknown token is still in the decoded text, with its bracket first.
bool isPresent(const DtString& value)
{
    return !value.isEmpty() && value[0] != '<';
}
} // namespace

struct DtTemplateCondition::DtVerb
{
    std::string_view name;
    bool hasTwoOperands;
    DtTest test;
};

const DtTemplateCondition::DtVerb* DtTemplateCondition::findVerb(std::string_view name)
{
    static const DtVerb theVerbs[] = {
        {"exists",      false, [](const DtString& value, const DtString&) { return isPresent(value); }                  },
        {"notexists",   false, [](const DtString& value, const DtString&) { return !isPresent(value); }                 },
        {"greaterthan", true,  [](const DtString& left,  const DtString& right) { return left.toInt() > right.toInt(); }},
        {"lessthan",    true,  [](const DtString& left,  const DtString& right) { return left.toInt() < right.toInt(); }},
        {"equals",      true,  [](const DtString& left,  const DtString& right) { return left == right; }               },
        {"notequals",   true,  [](const DtString& left,  const DtString& right) { return left != right; }               },
    };
    const auto* found =
        std::find_if(std::begin(theVerbs), std::end(theVerbs), [&](const DtVerb& row) { return row.name == name; });
    return found != std::end(theVerbs) ? found : nullptr;
}

DtTemplateCondition::DtTemplateCondition(std::string_view header)
{
    if (trimmedFront(header).empty())
        return;
    const DtCut statement(header); // a blank in front leaves an empty verb, which is none
    const DtVerb* const verb = findVerb(statement.left);
    if (verb == nullptr)
        return;
    myTest = verb->test;
    myHasTwoOperands = verb->hasTwoOperands;
    const std::string_view rest = trimmedBack(trimmedFront(statement.right));
    const DtCut operands(rest);
    myLeft = DtCompiledLine(myHasTwoOperands ? operands.left : rest);
    if (myHasTwoOperands)
        myRight = DtCompiledLine(trimmedFront(operands.right));
}
