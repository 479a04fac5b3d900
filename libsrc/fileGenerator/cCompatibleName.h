#ifndef FILE_GENERATOR_C_COMPATIBLE_NAME_H
#define FILE_GENERATOR_C_COMPATIBLE_NAME_H

#include "foundation/string.h"

#include <map>

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
    DtString shortened(const DtString& name);

    std::map<DtString, DtString> longNamesToShortNames; // upper-case long name to short name
    int myCurrentLargeFileNum = 0;
};

#endif
