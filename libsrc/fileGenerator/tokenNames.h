#ifndef FILE_GENERATOR_TOKEN_NAMES_H
#define FILE_GENERATOR_TOKEN_NAMES_H

#include "foundation/string.h"

#include <string_view>

// Numbers for the texts of tokens, so that whoever has met a token once never compares its text again.
//
// A text has the same number as long as the process runs. The numbers go from 0 up without gaps, so tables by number
// are plain arrays.
int DtNumberOfToken(std::string_view token);
// The text of that number.
std::string_view DtTokenOfNumber(int number);
// What stands between the brackets of the token of that number.
const DtString& DtNameOfToken(int number);

#endif
