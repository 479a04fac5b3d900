#ifndef FILE_GENERATOR_NAME_CLASHES_H
#define FILE_GENERATOR_NAME_CLASHES_H

#include "foundation/string.h"

#include <map>
#include <vector>

// Tells on the warning stream which names of a model cannot stand in C++ side by side, or not at all. The code is
// written all the same: what the warning names does not compile, or one of the two takes the other's place.

// Datatypes that are called alike, as such that differ in the case of the first letter only.
class DtClassNameClashes
{
public:
    void add(const DtString& datatype, const DtString& className);

private:
    std::map<DtString, DtString> myDatatypes; // class name to the first datatype of that name
};

// Datatypes that hold themselves by value, directly or through records in records. An array in between ends such a
// ring: its elements are not part of the object.
class DtHeldDatatypes
{
public:
    // A datatype that becomes a class, and the datatypes of its members; these may be any.
    void add(const DtString& datatype, const std::vector<DtString>& members);
    // Of every datatype in a ring, and of those that hold one.
    void warn() const;

private:
    std::map<DtString, std::vector<DtString>> myMembers;
};

// A generated type that is not called as its datatype has it, since the toolkit has a type of that name.
void warnOfNamesake(const DtString& datatype, const DtString& statedName, const DtString& identifier);

// A class whose parent has no files: it was not selected, or they are named by another name than the class includes.
void warnOfParent(const DtString& className, const DtString& parent, bool isSelected, const DtString& parentName);

// A file that the run writes a second time, for another class of the same name.
void warnOfFile(const DtString& fileName);

// The name of the model or project, of which macros are made.
void warnOfBaseName(const DtString& base, const DtString& macroPart);

// Members of one class or record whose accessors are called alike, and such whose names are no identifiers.
void warnOfMemberNames(const DtString& owner, const std::vector<DtString>& names);

#endif
