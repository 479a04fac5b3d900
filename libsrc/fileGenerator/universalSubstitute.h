#ifndef FILE_GENERATOR_UNIVERSAL_SUBSTITUTE_H
#define FILE_GENERATOR_UNIVERSAL_SUBSTITUTE_H

// Kinds of value in a substitution context.
enum DtUniversalSubstituteType
{
    DtStringSubstituteType = 1,
    DtMapSubstituteType = 2
};

// A value in a substitution context: what a template can name is a tree of these, see DtStringSubstitute and
// DtMapSubstitute.
class DtUniversalSubstitute
{
public:
    explicit DtUniversalSubstitute(DtUniversalSubstituteType type) : myType(type) {}
    virtual ~DtUniversalSubstitute() = default;
    DtUniversalSubstitute(const DtUniversalSubstitute&) = delete;
    DtUniversalSubstitute& operator=(const DtUniversalSubstitute&) = delete;

    virtual DtUniversalSubstituteType type() const { return myType; }

private:
    DtUniversalSubstituteType myType;
};

#endif
