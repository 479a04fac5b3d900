#ifndef OMT_READER_UNREAD_FORMATS_H
#define OMT_READER_UNREAD_FORMATS_H

#include "foundation/fomType.h"

// Says in one line on DtWarn what of a model in that format is not read: all of an OMT text or IEEE 1516 XML file, the
// standard management model of IEEE 1516-2025. Nothing for the other types.
void DtWarnOfUnreadFormat(DtFomType type, const char* file);

#endif
