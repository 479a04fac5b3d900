#ifndef FOUNDATION_STRING_H
#define FOUNDATION_STRING_H

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

// The text value of the whole program: a run of bytes with a terminating NUL, mutable, copied by value.
//
// Lengths and positions count bytes. Comparison is byte-wise and exact, so the order of every map and set of strings,
// and with it of every generated list, is the same on each machine. Case changes touch ASCII letters only and numbers
// are read and written independently of the locale.
class DtString
{
public:
    DtString() = default;
    DtString(const char* text) : myText(text != nullptr ? text : "") {} // null counts as empty
    DtString(std::string text) : myText(std::move(text)) {}
    explicit DtString(char character) : myText(1, character) {}
    explicit DtString(int number);
    explicit DtString(unsigned int number);

    const char* c_str() const { return myText.c_str(); }
    const char* string() const { return myText.c_str(); }
    operator const char*() const { return myText.c_str(); }
    const std::string& stdString() const { return myText; }

    unsigned int length() const { return static_cast<unsigned int>(myText.size()); }
    unsigned int size() const { return length(); }
    // True when the first byte is NUL.
    bool isEmpty() const { return *myText.c_str() == '\0'; }

    char operator[](int index) const { return myText[static_cast<std::size_t>(index)]; }
    char& operator[](int index) { return myText[static_cast<std::size_t>(index)]; }
    char operator[](unsigned int index) const { return myText[index]; }
    char& operator[](unsigned int index) { return myText[index]; }
    char operator[](std::size_t index) const { return myText[index]; }
    char& operator[](std::size_t index) { return myText[index]; }

    DtString& operator=(const char* text);
    // Takes the text, which is none of this one, into the memory that is there where it suffices.
    void assign(std::string_view text) { myText.assign(text.data(), text.size()); }
    DtString& operator+=(const DtString& text);
    DtString& operator+=(const char* text);
    DtString& operator+=(char character);

    // True when the texts are equal but for the case of ASCII letters.
    bool caseCompare(const char* text) const;
    // Index of the first or last occurrence; all bits set when there is none.
    unsigned int findString(const DtString& part) const;
    unsigned int findLastString(const DtString& part) const;
    bool startsWith(const DtString& prefix) const;

    // Removes the tail from the last occurrence of the character on (from the first when toFirst), that one included.
    void snipBack(char character, bool toFirst = false);
    void snipBackToFirst(char character) { snipBack(character, true); }
    // Removes the head through the first occurrence of the character (through the last when toLast). The writers take
    // the prefix "Dt" off a class name with snipFront('t'): everything through the first 't' goes, whatever it is.
    void snipFront(char character, bool toLast = false);
    void snipFrontToLast(char character) { snipFront(character, true); }
    void chompFront(); // removes leading white space

    void toUpper();
    void toLower();

    // Decimal number at the start of the text, white space and a sign ahead of it allowed. ok (may be null) tells
    // whether the whole text is one number that fits; the result is 0 when there are no digits and the limit of the
    // type when the number does not fit.
    int toInt(bool* ok = nullptr) const;
    unsigned int toUInt(bool* ok = nullptr) const;

    static const DtString& nullString();

private:
    std::string myText;
};

DtString operator+(const DtString& left, const char* right);
DtString operator+(const char* left, const DtString& right);
DtString operator+(const DtString& left, const DtString& right);
DtString operator+(const DtString& left, char right);
DtString operator+(const DtString& left, int right) = delete; // pointer arithmetic on the text otherwise

bool operator==(const DtString& left, const DtString& right);
bool operator==(const DtString& left, const char* right);
bool operator==(const char* left, const DtString& right);
bool operator!=(const DtString& left, const DtString& right);
bool operator!=(const DtString& left, const char* right);
bool operator!=(const char* left, const DtString& right);
bool operator<(const DtString& left, const DtString& right);

std::ostream& operator<<(std::ostream& out, const DtString& text);
// Reads one word that ends at white space.
std::istream& operator>>(std::istream& in, DtString& text);

template <>
struct std::hash<DtString>
{
    std::size_t operator()(const DtString& text) const noexcept { return std::hash<std::string>()(text.stdString()); }
};

#endif
