#include "fileGenerator/compiledLine.h"

#include "fileGenerator/tokenNames.h"

namespace
{
constexpr std::size_t theNowhere = std::string_view::npos;
constexpr std::string_view theOpening = "<!";
constexpr std::string_view theClosing = "!>";
} // namespace

DtCompiledLine::DtCompiledLine(std::string_view text) : myText(text)
{
    myIsPlain = findSlots();
}

// False for a line with an opening inside a token or without an end, and for one in which a value stands beside half an
// opening, which it might complete.
bool DtCompiledLine::findSlots()
{
    for (std::size_t at = myText.find(theOpening), next = 0; at != theNowhere; at = next)
    {
        const std::size_t close = myText.find(theClosing, at + 2);
        next = myText.find(theOpening, at + 2);
        if (close == theNowhere || next < close)
            return false;
        const std::size_t end = close + 2;
        const bool isBesideHalf = (at > 0 && myText[at - 1] == '<') || (end < myText.size() && myText[end] == '!');
        if (isBesideHalf)
            return false;
        mySlots.push_back({at, end, DtNumberOfToken(myText.substr(at, end - at))});
    }
    return true;
}

bool DtCompiledLine::isQuiet(std::string_view value)
{
    return value.empty() || (value.front() != '!' && value.back() != '<' && value.find(theOpening) == theNowhere);
}
