#ifndef OMT_READER_OMT_READ_EXCEPTION_H
#define OMT_READER_OMT_READ_EXCEPTION_H

#include "foundation/exception.h"

// Ends the reading of a file in the OMT text format. The reader's getLastError() has the same text.
class DtOMTReadException : public DtException
{
public:
    explicit DtOMTReadException(const char* message) : DtException(message) {}
};

#endif
