#ifndef FILE_GENERATOR_NAME_PATTERN_H
#define FILE_GENERATOR_NAME_PATTERN_H

#include "foundation/string.h"

// The names that the letters of a name pattern stand for. Holds no copies: made on the spot for one call.
//   %P class prefix     %N class's short name     %n the same with its first letter lowered
//   %C include path     %Q parent's short name    %q the same with its first letter lowered
//   %K generated class's name     %U full class name     %F output file without its extension
// Prefix and include path are those of the run. Lowering leaves a name alone that starts with two capitals.
struct DtPatternNames
{
    const DtString& name;
    const DtString& parent;
    const DtString& className;
    const DtString& fullClassName;
    const DtString& fileBase;
};

// The pattern with its letters filled in. "%%" gives "%"; an unknown letter stays with its "%".
DtString fillPattern(const char* pattern, const DtPatternNames& names);

#endif
