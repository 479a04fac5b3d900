#ifndef FILE_GENERATOR_DATATYPE_CLASS_NAMES_H
#define FILE_GENERATOR_DATATYPE_CLASS_NAMES_H

#include "foundation/string.h"

#include <map>
#include <set>
#include <unordered_map>

class DtCCompatibleNames;

// The names of what the present run generates for the model's datatypes, known before the first datatype file is
// written.
//
// A datatype's members can have types whose own turn comes later; their class names are needed at once, while the
// mapper learns each name only in its turn. The driver clears this at the start of a run and fills it ahead of the
// datatype files: one add() for each datatype that passes its family's filter, one addEnumeration() for each
// enumeration that is generated.
class DtDatatypeClassNames
{
public:
    static DtDatatypeClassNames& instance();

    // File name without directory and extension: the prefix and the name, first letter lowered, as an identifier.
    static DtString fileStem(const DtString& datatype, DtCCompatibleNames& names);
    // The name of the class: "Dt" and the stem with a capital.
    static DtString classNameOfStem(const DtString& stem);

    void clear();
    void add(const DtString& datatype, const DtString& className);
    bool contains(const DtString& datatype) const;
    // Empty when the datatype gets no class in this run.
    const DtString& className(const DtString& datatype) const;
    // File name without directory and extension of that class; empty likewise.
    DtString fileStemOf(const DtString& datatype) const;

    // Whether a class of this run stands in files of that name, without directory and extension.
    bool isFileStem(const DtString& stem) const { return myFileStems.count(stem) != 0; }
    // Whether other datatypes get the class of this one too.
    bool isShared(const DtString& datatype) const { return mySharedStems.count(fileStemOf(datatype)) != 0; }

    // Records that the toolkit has a type of the name that a generated class or enumeration is stated to have, and what
    // it is called in C++ instead. The identifier may be that name where a namespace keeps the two apart.
    void addNamesake(const DtString& datatype, const DtString& statedName, const DtString& identifier);
    bool isNamesake(const DtString& datatype) const { return myNamesakes.count(datatype) != 0; }
    // The C++ name of a type that is stated to be called so; that name itself unless it is the one of a namesake.
    const DtString& identifierOf(const DtString& datatype, const DtString& statedName) const;

    // Records an enumeration that the enumerations header of this run has, by its name and that of its type.
    void addGeneratedEnumeration(const DtString& enumeration, const DtString& type)
    {
        myGeneratedEnumerations.insert(enumeration);
        myGeneratedEnumerations.insert(type);
    }
    bool isGeneratedEnumeration(const DtString& enumerationOrType) const
    {
        return myGeneratedEnumerations.count(enumerationOrType) != 0;
    }

    // Records the model's representation of an enumeration.
    void addEnumeration(const DtString& enumeration, const DtString& representation);
    // Empty when it was not recorded.
    const DtString& enumerationRepresentation(const DtString& enumeration) const;

private:
    struct DtNamesake
    {
        DtString statedName;
        DtString identifier;
    };

    std::unordered_map<DtString, DtString> myClassNames; // asked for by name only, like the representations
    std::set<DtString> myFileStems;
    std::set<DtString> mySharedStems;
    std::map<DtString, DtNamesake> myNamesakes;
    std::set<DtString> myGeneratedEnumerations;
    std::unordered_map<DtString, DtString> myEnumerationRepresentations;
};

#endif
