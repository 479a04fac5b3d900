#ifndef FOUNDATION_MTL_SCANNER_H
#define FOUNDATION_MTL_SCANNER_H

#include "foundation/mtlInputStream.h"
#include "foundation/string.h"

#include <limits>
#include <string>

enum class DtMtlToken
{
    End,
    Open,  // "("
    Close, // ")"
    Text,  // in double quotes
    Word   // a symbol or an integer
};

// Cuts the text of s-expressions into tokens:
//   - white space separates, and a semicolon where a token may begin starts a comment that runs to the end of the line;
//   - a text stands in double quotes and may hold line ends. The escape character, if there is one, makes a line feed,
//     a carriage return and a tab of "n", "r" and "t" behind it, and of anything else that character itself;
//   - a word is any other run of characters but white space, double quotes and parentheses; a semicolon in it is a
//     letter like others.
// A byte of 0 is a letter too. Keeps nothing but the text of the present token, and looks one byte ahead of it at most.
class DtMtlScanner
{
public:
    // escape: points to the escape character of texts, null for none. textLimit: bytes kept of a token, the rest of
    // which is passed over. The stream outlives the scanner.
    explicit DtMtlScanner(DtlInputStream& stream, const char* escape,
                          std::size_t textLimit = std::numeric_limits<std::size_t>::max())
        : myStream(stream), myEscape(escape), myTextLimit(textLimit)
    {
    }

    DtMtlToken next();
    // Content of the last text or word, up to its first byte of 0.
    DtString text() const { return DtString(myText.c_str()); }

private:
    void skipBlanksAndComments();
    void readText();
    void readWord();
    bool isEscape(int byte) const { return myEscape != nullptr && byte == static_cast<unsigned char>(*myEscape); }
    void keep(int byte);

    DtlInputStream& myStream;
    const char* myEscape;
    std::size_t myTextLimit;
    std::string myText;
};

#endif
