#ifndef OMT_READER_FED_READER_H
#define OMT_READER_FED_READER_H

#include "foundation/fomType.h"
#include "foundation/string.h"

#include <cstdio>

// Finds out about model files ahead of their reading.
//
// Models are local, plain files: a name that is none (a URL, a directory, a device) counts as a missing file.
class DtFedReader
{
public:
    // Format of the file by the rules of modelFormat.h, DtFomUnknown when it is missing or in none. What is wrong with
    // an XML file that had to be read beyond its root element goes to DtWarn.
    static DtFomType checkFomType(const char* file);
    // The same for a file opened by openFedFile, which is closed. A null handle is a missing file. Without a report
    // nothing goes to DtWarn: for a look ahead of the reading, which tells what is wrong.
    static DtFomType checkFomType(const char* file, void* handle, bool reportFailure = true);

    // Opens the file of that name or else the one below the directory in RTI_CONFIG. The handle is a FILE* at the start
    // of the file, null when there is none. The second argument has no effect.
    static void* openFedFile(const char* file, bool reportFailure);

    // The name below the directory in the environment variable RTI_CONFIG, one trailing separator of which is dropped;
    // empty when that is unset or leaves nothing.
    static DtString pathBelowRtiConfig(const char* file);

    // Reads from the present position to the end into a new[] buffer that the caller deletes. A NUL follows the last
    // byte, not counted in the size. False, with a null buffer, on a failure.
    static bool readFileIntoBuffer(FILE* file, char** buffer, unsigned int* size);

    // "HLAstandardMIM.xml", for every type.
    static DtString standardMimFileName(DtFomType type);
};

#endif
