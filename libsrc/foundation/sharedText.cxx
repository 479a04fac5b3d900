#include "foundation/sharedText.h"

#include <array>

namespace
{
constexpr std::size_t theCountOfRecent = 256;
using DtRecentTexts = std::array<DtSharedText, theCountOfRecent>;

// Never destroyed: texts may go with the process.
DtRecentTexts& recentTexts()
{
    static auto* const theTexts = new DtRecentTexts;
    return *theTexts;
}

// Texts of one list tend to differ in length and at their ends.
std::size_t placeOf(const std::string& text)
{
    const auto byte = [&text](std::size_t index) -> std::size_t { return static_cast<unsigned char>(text[index]); };
    return (text.size() * 31 + byte(0) * 7 + byte(text.size() / 2) * 5 + byte(text.size() - 1)) % theCountOfRecent;
}
} // namespace

DtSharedText DtSharedText::recent(const DtString& text)
{
    if (text.length() == 0)
        return DtSharedText();
    DtSharedText& last = recentTexts()[placeOf(text.stdString())];
    if (last.get().stdString() != text.stdString())
        last = DtSharedText(text);
    return last;
}
