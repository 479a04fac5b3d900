#ifndef FILE_GENERATOR_NAMED_UUID_H
#define FILE_GENERATOR_NAMED_UUID_H

#include "foundation/string.h"

// The text of the UUID that follows from a name: version 5 of RFC 4122, in a name space of the generator's own. The
// same name gives the same UUID on every machine.
DtString DtNamedUuid(const DtString& name);

#endif
