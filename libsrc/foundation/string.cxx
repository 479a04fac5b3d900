#include "foundation/string.h"

#include "foundation/stringUtils.h"

#include <algorithm>
#include <charconv>
#include <istream>
#include <limits>
#include <ostream>

DtString::DtString(int number) : myText(std::to_string(number))
{
}

DtString::DtString(unsigned int number) : myText(std::to_string(number))
{
}

DtString& DtString::operator=(const char* text)
{
    myText = std::string(text != nullptr ? text : ""); // a copy first: text may point into this one
    return *this;
}

DtString& DtString::operator+=(const DtString& text)
{
    myText += text.myText;
    return *this;
}

DtString& DtString::operator+=(const char* text)
{
    if (text != nullptr)
        myText += text;
    return *this;
}

DtString& DtString::operator+=(char character)
{
    myText += character;
    return *this;
}

bool DtString::caseCompare(const char* text) const
{
    const std::string other(text != nullptr ? text : "");
    return std::equal(myText.begin(), myText.end(), other.begin(), other.end(),
                      [](char left, char right) { return DtToLower(left) == DtToLower(right); });
}

unsigned int DtString::findString(const DtString& part) const
{
    return static_cast<unsigned int>(myText.find(part.myText)); // npos keeps all its bits
}

unsigned int DtString::findLastString(const DtString& part) const
{
    return static_cast<unsigned int>(myText.rfind(part.myText));
}

bool DtString::startsWith(const DtString& prefix) const
{
    return myText.compare(0, prefix.myText.size(), prefix.myText) == 0;
}

void DtString::snipBack(char character, bool toFirst)
{
    const std::size_t at = toFirst ? myText.find(character) : myText.rfind(character);
    if (at != std::string::npos)
        myText.resize(at);
}

void DtString::snipFront(char character, bool toLast)
{
    const std::size_t at = toLast ? myText.rfind(character) : myText.find(character);
    if (at != std::string::npos)
        myText.erase(0, at + 1);
}

void DtString::chompFront()
{
    myText.erase(myText.begin(), std::find_if_not(myText.begin(), myText.end(), DtIsSpace));
}

void DtString::toUpper()
{
    std::transform(myText.begin(), myText.end(), myText.begin(), DtToUpper);
}

void DtString::toLower()
{
    std::transform(myText.begin(), myText.end(), myText.begin(), DtToLower);
}

namespace
{
// "+5" is a number here as it is for the C library; from_chars does not know the plus.
const char* numberStart(const std::string& text)
{
    const char* start = text.c_str();
    while (DtIsSpace(*start))
        ++start;
    return *start == '+' && DtIsDigit(start[1]) ? start + 1 : start;
}

template <typename T>
T parseNumber(const std::string& text, bool* ok)
{
    const char* const end = text.c_str() + text.size();
    const char* const start = numberStart(text);
    T number = 0;
    const auto [stop, error] = std::from_chars(start, end, number);
    if (error == std::errc::result_out_of_range)
        number = *start == '-' ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
    if (ok != nullptr)
        *ok = error == std::errc() && stop == end;
    return number;
}
} // namespace

int DtString::toInt(bool* ok) const
{
    return parseNumber<int>(myText, ok);
}

unsigned int DtString::toUInt(bool* ok) const
{
    return parseNumber<unsigned int>(myText, ok);
}

const DtString& DtString::nullString()
{
    static const DtString theNullString;
    return theNullString;
}

DtString operator+(const DtString& left, const char* right)
{
    DtString result(left);
    result += right;
    return result;
}

DtString operator+(const char* left, const DtString& right)
{
    DtString result(left);
    result += right;
    return result;
}

DtString operator+(const DtString& left, const DtString& right)
{
    DtString result(left);
    result += right;
    return result;
}

DtString operator+(const DtString& left, char right)
{
    DtString result(left);
    result += right;
    return result;
}

bool operator==(const DtString& left, const DtString& right)
{
    return left.stdString() == right.stdString();
}

bool operator==(const DtString& left, const char* right)
{
    return left.stdString() == (right != nullptr ? right : "");
}

bool operator==(const char* left, const DtString& right)
{
    return right == left;
}

bool operator!=(const DtString& left, const DtString& right)
{
    return !(left == right);
}

bool operator!=(const DtString& left, const char* right)
{
    return !(left == right);
}

bool operator!=(const char* left, const DtString& right)
{
    return !(right == left);
}

bool operator<(const DtString& left, const DtString& right)
{
    return left.stdString() < right.stdString(); // char_traits compares bytes as unsigned
}

std::ostream& operator<<(std::ostream& out, const DtString& text)
{
    return out << text.stdString();
}

std::istream& operator>>(std::istream& in, DtString& text)
{
    std::string word;
    in >> word;
    text = DtString(word);
    return in;
}
