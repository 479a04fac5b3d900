#ifndef FILE_GENERATOR_TOOLKIT_NAMES_H
#define FILE_GENERATOR_TOOLKIT_NAMES_H

#include "foundation/string.h"

// The names that the toolkit's public headers declare. A generated type must not be called like one of them: it would
// not compile, or take its place without a word.

// True when the toolkit has a type, function or constant of this name.
bool isToolkitName(const DtString& name);
// True when generated code itself uses the name. Such a name cannot be a generated type even in a namespace of its own.
bool isToolkitNameInGeneratedCode(const DtString& name);

#endif
