#ifndef FILE_GENERATOR_ESCAPED_TEXT_H
#define FILE_GENERATOR_ESCAPED_TEXT_H

#include "foundation/string.h"

// Texts of a model in forms that cannot break a product.

// The text in both forms. What is not valid UTF-8 is taken as Latin-1, and characters that XML cannot carry are left
// out, with one warning. No form holds a token of a template, so no text is taken for one when it is put in.
struct DtSafeForms
{
    explicit DtSafeForms(const DtString& text);

    DtString html; // for XML text and for attributes, line ends and tabs included
    // Text for a string in double quotes of C, Python or JSON, without the quotes. "<!" comes as "\u003c!", which C
    // knows from C++11 on.
    DtString quoted;
};

#endif
