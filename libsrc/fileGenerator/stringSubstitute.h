#ifndef FILE_GENERATOR_STRING_SUBSTITUTE_H
#define FILE_GENERATOR_STRING_SUBSTITUTE_H

#include "fileGenerator/universalSubstitute.h"
#include "foundation/string.h"

#include <utility>

// A text in a substitution context: the leaf of the tree. Never changes.
class DtStringSubstitute : public DtUniversalSubstitute
{
public:
    explicit DtStringSubstitute(DtString value)
        : DtUniversalSubstitute(DtStringSubstituteType), myValue(std::move(value))
    {
    }

    virtual const DtString* value() const { return &myValue; }

private:
    DtString myValue;
};

#endif
