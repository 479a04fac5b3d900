#ifndef FILE_GENERATOR_MEMBER_TYPES_H
#define FILE_GENERATOR_MEMBER_TYPES_H

#include "fileGenerator/attribute.h"

// How the members of generated datatypes find their types. Every walk remembers what it has seen: a type that leads
// back to itself ends the walk, silently, with the datatype's own name.

// The target type of a member: the mapped type; for a simple type the first mapped type below it, which is then entered
// as its mapping; the class that the datatype gets in this run; else the name as it is.
DtString memberType(const DtString& datatype);

// The last name that the tables of simple types, enumerations and arrays lead to below a datatype; empty when it stands
// in none of them. Templates find the byte order and the kind of strings and booleans with it.
DtString lastRepresentation(const DtString& datatype);

// The encoding that the templates ask for of a value of this datatype: the mapper's; that of terminated text for object
// identifiers, in both spellings; else the one that was set for the member, or that of a variable array.
DtString encodingOf(const DtString& datatype, const DtString& ofMember);

// A member with its cardinality, datatype, encoding and last representation set.
DtAttribute makeMember(const DtString& name, const DtString& datatype, const DtString& cardinality);

#endif
