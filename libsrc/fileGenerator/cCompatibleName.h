#ifndef FILE_GENERATOR_C_COMPATIBLE_NAME_H
#define FILE_GENERATOR_C_COMPATIBLE_NAME_H

#include "foundation/string.h"

#include <map>
#include <memory>

// True when the text is exactly a reserved word of C++.
bool isCPlusPlusKeyword(const DtString& text);

// Makes identifiers of model names, and gives names of more than 100 characters a short, numbered form.
//
// Each source file that names things has one object of its own, so one long name can be shortened differently by two of
// them: the numbers in the output depend on that. The same long name gives the same short one on every later call, also
// when the calls differ in case.
class DtCCompatibleNames
{
public:
    // The identifier form. Words of a table get a leading underscore; that table is not the one of isCPlusPlusKeyword.
    DtString MakeCCompatibleString(const DtString& text);
    // The same at its whole length, which takes no number.
    static DtString wholeIdentifier(const DtString& text);

private:
    using ShortNames = std::map<DtString, DtString>; // by the upper-case long name

    DtString shortened(const DtString& name);
    ShortNames& ownShortNames();

    // Copies share the table until one of them takes a number: copies are made for each member, the table may be large.
    std::shared_ptr<ShortNames> longNamesToShortNames = std::make_shared<ShortNames>();
    int myCurrentLargeFileNum = 0;
};

#endif
