#ifndef OMT_READER_CARDINALITY_TEXT_H
#define OMT_READER_CARDINALITY_TEXT_H

#include "foundation/string.h"

#include <istream>

// Reads an integer, white space ahead of it skipped. When no integer stands there, the answer is 0, and so is every
// later one from that stream.
inline int DtReadInteger(std::istream& in)
{
    int number = 0;
    return in >> number ? number : 0;
}

// True for an empty text and for one of white space only.
bool DtIsBlank(const DtString& text);

#endif
