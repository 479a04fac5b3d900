#ifndef FILE_GENERATOR_SHARED_NAMES_H
#define FILE_GENERATOR_SHARED_NAMES_H

#include "foundation/string.h"

#include <map>
#include <vector>

// Tells on the warning stream which names of a model cannot stand in C++ side by side, or not at all. The code is
// written all the same: what the warning names does not compile, or one of the two takes the other's place.

// Datatypes that are called alike, as such that differ in the case of the first letter only.
class DtSharedClassNames
{
public:
    void add(const DtString& datatype, const DtString& className);

private:
    std::map<DtString, DtString> myDatatypes; // class name to the first datatype of that name
};

// Members of one class or record whose accessors are called alike, and such whose names are no identifiers.
void warnOfMemberNames(const DtString& owner, const std::vector<DtString>& names);

#endif
