#ifndef FOUNDATION_STRING_UTILS_H
#define FOUNDATION_STRING_UTILS_H

#include "foundation/string.h"

#include <vector>

// Free helpers on texts. None of them changes its argument.

// Give the text with the first occurrence, or with every occurrence, replaced. An empty `from` changes nothing, and the
// search goes on behind the inserted text, so a replacement may hold what is searched.
DtString DtReplaceSubstring(const DtString& text, const DtString& from, const DtString& to);
DtString DtReplaceAllSubstrings(const DtString& text, const DtString& from, const DtString& to);
bool DtContainsSubstring(const DtString& text, const DtString& part);

DtString DtFirstCharToUpper(const DtString& text);
DtString DtFirstCharToLower(const DtString& text);
// Lowers the first letter unless the second is a capital too: "Entity" gives "entity", "HLAname" stays. A single
// letter is lowered.
DtString DtFirstCharToLowerConditional(const DtString& text);

enum class DtEmptyPieces
{
    Keep,
    Drop
};
// The pieces between the separators, in order; one more than there are separators when empty pieces are kept.
std::vector<DtString> DtSplit(const DtString& text, char separator, DtEmptyPieces emptyPieces = DtEmptyPieces::Keep);

// ASCII forms of the classification functions, safe for every byte and for any locale.
bool DtIsSpace(char character);
bool DtIsDigit(char character);
char DtToUpper(char character);
char DtToLower(char character);

#endif
