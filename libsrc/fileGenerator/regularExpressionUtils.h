#ifndef FILE_GENERATOR_REGULAR_EXPRESSION_UTILS_H
#define FILE_GENERATOR_REGULAR_EXPRESSION_UTILS_H

#include "foundation/string.h"

// Search and replacement by case-sensitive regular expressions (those of QRegExp), the pattern first. Texts are taken
// byte by byte, as Latin-1, so a dot matches one byte of a longer UTF-8 character. Replacements are plain text.
class DtRegularExpressionUtils
{
public:
    // True when the pattern occurs anywhere in the text.
    static bool regExpMatch(const DtString& pattern, const DtString& text);
    // The text with its first match replaced.
    static DtString regExpReplace(const DtString& pattern, const DtString& text, const DtString& replacement);
    // The text with every match replaced. The search starts again at the front after each replacement, so matches that
    // a replacement brings about go too, and a replacement that matches by itself never ends.
    static DtString regExpReplaceAll(const DtString& pattern, const DtString& text, const DtString& replacement);
};

#endif
