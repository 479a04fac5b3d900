#ifndef FILE_GENERATOR_RELATIVE_PATH_H
#define FILE_GENERATOR_RELATIVE_PATH_H

#include "foundation/filename.h"

// False for a path that leads away from the directory it is joined to: nothing is made there.
inline bool staysBelow(const DtString& path)
{
    const DtString normal = DtFilename::normalized(path);
    return !DtFilename(path).isAbsolute() && normal != ".." && !normal.startsWith("../");
}

#endif
