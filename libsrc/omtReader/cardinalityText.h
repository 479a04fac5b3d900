#ifndef OMT_READER_CARDINALITY_TEXT_H
#define OMT_READER_CARDINALITY_TEXT_H

#include "foundation/string.h"

#include <istream>

// Reads an integer, white space ahead of it skipped. A failed extraction gives 0, and so do all that follow it.
inline int DtReadInteger(std::istream& in)
{
    int number = 0;
    return in >> number ? number : 0;
}

// True for an empty text and for one of white space only.
bool DtIsBlank(const DtString& text);

#endif
