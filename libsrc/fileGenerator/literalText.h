#ifndef FILE_GENERATOR_LITERAL_TEXT_H
#define FILE_GENERATOR_LITERAL_TEXT_H

#include "foundation/string.h"

// The text as it stands between the quotes of a C++ string literal.
inline DtString literalText(const DtString& text)
{
    std::string result;
    for (const char character : text.stdString())
    {
        if (character == '"' || character == '\\' || character == '?') // of two "?" another character can come
            result += '\\';
        const bool isControl = static_cast<unsigned char>(character) < ' ';
        result += isControl ? ' ' : character;
    }
    return DtString(result);
}

#endif
