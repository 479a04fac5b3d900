#ifndef FILE_GENERATOR_RELATIVE_PATH_H
#define FILE_GENERATOR_RELATIVE_PATH_H

#include "foundation/string.h"

// False when the path that directory and name make together leads away from the directory: nothing is made there. What
// stands behind the last separator of the directory's text is part of the names in it; an empty one is the directory
// that the name is joined to later. An absolute name is never below.
bool staysBelow(const DtString& name, const DtString& directory = DtString());

#endif
