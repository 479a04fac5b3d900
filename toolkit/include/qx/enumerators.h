#ifndef QX_ENUMERATORS_H
#define QX_ENUMERATORS_H

// Names of enumerators at run time, and the lists of them that select an alternative of a variant record.

#include <qx/numberForm.h>

#include <iosfwd>

struct DtEnumerator
{
    const char* name;
    DtInt64 value;
};

// The enumerators of one enumeration, in the model's order and with the model's names, and its form on the wire.
struct DtEnumeratorTable
{
    DtEnumeratorTable(const char* nameOfType = "", const DtEnumerator* firstEntry = nullptr, std::size_t size = 0,
                      const DtNumberForm& numberForm = DtNumberForm())
        : typeName(nameOfType), first(firstEntry), count(size), number(numberForm)
    {
    }

    // Null when there is none of that name.
    const DtEnumerator* find(const std::string& name) const;

    const char* typeName; // in generated code
    const DtEnumerator* first;
    std::size_t count;
    DtNumberForm number;
};

// Writes a number by the name that it has in the table, and behind that the number. In the library, not in a header:
// what is only coded needs no streams.
std::ostream& DtWriteEnumerator(std::ostream& out, const DtEnumeratorTable& table, DtInt64 number);

// Generated headers overload this for their enumerations; any other type has no names.
template <class Type>
DtEnumeratorTable DtEnumeratorsOf(Type)
{
    return DtEnumeratorTable();
}

DtEnumeratorTable DtEnumeratorsOf(bool);

// Generated headers overload this as well, so that what is coded needs no names.
template <class Type>
DtNumberForm DtNumberFormOf(Type value)
{
    return DtEnumeratorsOf(value).number;
}

// The names of a type, also from inside a namespace whose own overloads hide the others.
template <class Type>
DtEnumeratorTable DtNamesOfType()
{
    return DtEnumeratorsOf(Type());
}

// A piece of a selector: one enumerator, or both ends of a range.
struct DtSelectorRange
{
    DtInt64 first, last;
};

class DtEnumeratorSelector
{
public:
    // Text in the model's form: "A", "A, B" or "[A .. B], C"; names that the table does not hold may be numbers, others
    // select nothing. A range of enumerators holds those that are declared from the first to the last, whatever their
    // numbers are; one of numbers holds all between them. "HLAother" is for every value that no other alternative
    // takes.
    DtEnumeratorSelector(const DtEnumeratorTable& table, const char* text);

    bool isOther() const { return myIsOther; }
    const std::vector<DtSelectorRange>& ranges() const { return myRanges; }
    bool takes(DtInt64 value) const;

private:
    void split(const DtEnumeratorTable& table, const std::string& text);
    void add(const DtEnumeratorTable& table, const std::string& piece);
    void addRange(const DtEnumeratorTable& table, const std::string& low, const std::string& high);

    bool myIsOther;
    std::vector<DtSelectorRange> myRanges;
};

// The alternatives of one variant record.
class DtAlternativeTable
{
public:
    // The selectors of the alternatives that have a value, and those of the others, which take their values out of
    // "HLAother".
    DtAlternativeTable(const DtEnumeratorTable& names, const std::vector<const char*>& selectors,
                       const std::vector<const char*>& valueless = std::vector<const char*>());

    // Place of the alternative that a value selects, from 0; -1 when it selects none.
    int find(DtInt64 value) const { return value >= 0 && value < theKnownValues ? myPlaces[value] : search(value); }
    // A discriminant value that selects the alternative: the present one if it does, else the first that is found.
    DtInt64 valueOf(std::size_t place, DtInt64 present) const;

private:
    int search(DtInt64 value) const;

    enum
    {
        theKnownValues = 256 // which most discriminants stay below
    };

    DtEnumeratorTable myTable;
    int myPlaces[theKnownValues];
    std::vector<DtEnumeratorSelector> mySelectors;
    std::vector<DtEnumeratorSelector> myValueless;
};

#endif
