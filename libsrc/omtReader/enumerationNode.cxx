#include "omtReader/enumerationNode.h"

#include "foundation/stringUtils.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

namespace
{
const std::string theLeast = "9223372036854775808"; // with a "-" in front
const std::string theGreatest = "18446744073709551615";

std::string trimmed(const std::string& text)
{
    static const char theBlanks[] = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(theBlanks);
    return begin == std::string::npos ? std::string()
                                      : text.substr(begin, text.find_last_not_of(theBlanks) - begin + 1);
}

// Of two numbers without zeros in front the one with more digits is greater.
bool isGreater(const std::string& left, const std::string& right)
{
    return left.size() != right.size() ? left.size() > right.size() : left > right;
}

// The integer without what it can be written without; empty when the text is none, or has more than 64 bits.
std::string integerOf(const DtString& text)
{
    std::string digits = trimmed(text.stdString());
    const bool isNegative = !digits.empty() && digits[0] == '-';
    if (isNegative || (!digits.empty() && digits[0] == '+'))
        digits.erase(0, 1);
    if (digits.empty() || !std::all_of(digits.begin(), digits.end(), DtIsDigit))
        return std::string();
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    if (isGreater(digits, isNegative ? theLeast : theGreatest))
        return std::string();
    return (isNegative && digits != "0" ? "-" : "") + digits;
}
} // namespace

DtString DtEnumerationNode::numberText() const
{
    const std::string integer = integerOf(myValueText.get());
    return integer.empty() ? DtString(myNumber) : DtString(integer);
}

// Nearly all models state each value as the digits of the number.
void DtEnumerationNode::setValueText(const DtString& text)
{
    char digits[16];
    const char* const end = std::to_chars(std::begin(digits), std::end(digits), myNumber).ptr;
    const bool isNumber = std::string_view(digits, static_cast<std::size_t>(end - digits)) == text.stdString();
    myValueText = isNumber ? DtSharedText() : DtSharedText(text);
}

bool DtEnumerationNode::isNumberTheValue() const
{
    const DtString& text = myValueText.get();
    return trimmed(text.stdString()).empty() || DtString(integerOf(text)) == DtString(myNumber);
}
