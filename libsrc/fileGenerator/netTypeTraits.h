#ifndef FILE_GENERATOR_NET_TYPE_TRAITS_H
#define FILE_GENERATOR_NET_TYPE_TRAITS_H

#include "foundation/string.h"

#include <vector>

class DtAttribute;
class DtOMTTree;

// Tell the mapper whether the net type of a generated class has a variable size and whether it holds a variant record,
// so that templates can ask for either. An array of no fixed length has a variable size, and so has all that holds one.
// The tree answers, whatever has been generated so far: families and their order make no difference.

void registerNetTypeTraits(const DtString& datatype, const DtString& netType, const DtOMTTree* tree);
// Registers a datatype and those of its members that get a class in this run. className is the generated class, whose
// net type has "DtNet" for "Dt".
void registerNetTypeTraits(const DtString& datatype, const DtString& className, const std::vector<DtAttribute>& members,
                           const DtOMTTree* tree);

// True when the member is a variant record or holds one.
bool holdsVariantRecord(const DtAttribute& member);

#endif
