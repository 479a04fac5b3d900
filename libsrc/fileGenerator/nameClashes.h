#ifndef FILE_GENERATOR_NAME_CLASHES_H
#define FILE_GENERATOR_NAME_CLASHES_H

#include "foundation/warning.h"

#include <map>
#include <vector>

// Warns which names of a model cannot stand in C++ side by side, or not at all. The code is
// written all the same: what the warning names does not compile, or one of the two takes the other's place.

// Warns of datatypes whose classes are called alike, such as two that differ in the case of the first letter only.
class DtClassNameClashes
{
public:
    void add(const DtString& datatype, const DtString& className);

private:
    std::map<DtString, DtString> myDatatypes; // class name to the first datatype of that name
};

// Finds datatypes that hold themselves by value, directly or through records in records. An array in between ends such
// a ring: its elements are not part of the object.
class DtHeldDatatypes
{
public:
    // Takes a datatype that becomes a class, and the datatypes of its members, which may be any.
    void add(const DtString& datatype, const std::vector<DtString>& members);
    // Warns of each datatype that holds itself, directly or through others, and of each that holds such a one.
    void warn() const;

private:
    std::map<DtString, std::vector<DtString>> myMembers;
};

// Warns that a generated type is not called as its datatype has it, since the toolkit has a type of that name.
void warnOfNamesake(const DtString& datatype, const DtString& statedName, const DtString& identifier);

// Warns of a class whose parent has no files that it could include: the parent was not selected, or its files bear
// another name than the class includes.
void warnOfParent(const DtSubject& subclass, const DtString& parent, bool isSelected, const DtString& parentName);

// Warns of a file that the run writes a second time, for another class of the same name. owner: the later of the two.
void warnOfFile(const DtString& fileName, const DtSubject& owner);

// Warns when the name of the model or project, of which macros are made, gives no identifier.
void warnOfBaseName(const DtString& base, const DtString& macroPart);

// Warns of members of one class or record whose accessors are called alike, and of members whose names are no
// identifiers.
void warnOfMemberNames(const DtSubject& owner, const std::vector<DtString>& names);

#endif
