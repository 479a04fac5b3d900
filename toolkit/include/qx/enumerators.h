#ifndef QX_ENUMERATORS_H
#define QX_ENUMERATORS_H

// Names of enumerators at run time, and the lists of them that select an alternative of a variant record.

#include <qx/wireForm.h>

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

    const DtEnumerator* find(const std::string& name) const
    {
        for (std::size_t i = 0; i < count; ++i)
            if (name == first[i].name)
                return first + i;
        return nullptr;
    }

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

inline DtEnumeratorTable DtEnumeratorsOf(bool)
{
    static const DtEnumerator theNames[] = {
        {"HLAfalse", 0},
        {"HLAtrue",  1},
        {"False",    0},
        {"True",     1},
        {"false",    0},
        {"true",     1}
    };
    return DtEnumeratorTable("bool", theNames, sizeof theNames / sizeof *theNames);
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
    DtEnumeratorSelector(const DtEnumeratorTable& table, const char* text) : myIsOther(trimmed(text) == "HLAother")
    {
        if (!myIsOther)
            split(table, text);
    }

    bool isOther() const { return myIsOther; }
    const std::vector<DtSelectorRange>& ranges() const { return myRanges; }
    bool takes(DtInt64 value) const
    {
        for (const DtSelectorRange& range : myRanges)
            if (range.first <= value && value <= range.last)
                return true;
        return false;
    }

private:
    static std::string trimmed(const std::string& text)
    {
        static const char theBlanks[] = " \t\r\n";
        const std::size_t begin = text.find_first_not_of(theBlanks);
        return begin == std::string::npos ? std::string()
                                          : text.substr(begin, text.find_last_not_of(theBlanks) - begin + 1);
    }
    static bool number(const std::string& text, DtInt64& value)
    {
        std::size_t i = text.size() > 1 && text[0] == '-' ? 1 : 0;
        if (i == text.size() || text.size() > 18)
            return false;
        value = 0;
        for (std::size_t k = i; k < text.size(); ++k)
        {
            if (text[k] < '0' || text[k] > '9')
                return false;
            value = value * 10 + (text[k] - '0');
        }
        if (i == 1)
            value = -value;
        return true;
    }
    static bool resolve(const DtEnumeratorTable& table, const std::string& name, DtInt64& value)
    {
        const DtEnumerator* entry = table.find(name);
        if (!entry)
            return number(name, value);
        value = entry->value;
        return true;
    }
    // A comma may be part of an enumerator's name, so the whole text is looked up first.
    void split(const DtEnumeratorTable& table, const std::string& text)
    {
        if (table.find(trimmed(text)))
            return add(table, trimmed(text));
        for (std::size_t begin = 0; begin <= text.size();)
        {
            std::size_t end = text.find(',', begin);
            if (end == std::string::npos)
                end = text.size();
            const std::string piece = trimmed(text.substr(begin, end - begin));
            if (!piece.empty())
                add(table, piece);
            begin = end + 1;
        }
    }
    void add(const DtEnumeratorTable& table, const std::string& piece)
    {
        DtSelectorRange range = {0, 0};
        const std::size_t dots = piece.find("..");
        if (piece.size() > 3 && piece[0] == '[' && piece[piece.size() - 1] == ']' && dots != std::string::npos)
        {
            addRange(table, trimmed(piece.substr(1, dots - 1)),
                     trimmed(piece.substr(dots + 2, piece.size() - dots - 3)));
        }
        else if (resolve(table, piece, range.first))
        {
            range.last = range.first;
            myRanges.push_back(range);
        }
    }
    void addRange(const DtEnumeratorTable& table, const std::string& low, const std::string& high)
    {
        const DtEnumerator* const first = table.find(low);
        const DtEnumerator* const last = table.find(high);
        DtSelectorRange range = {0, 0};
        if (first && last)
        {
            for (const DtEnumerator* each = first; each <= last; ++each)
                myRanges.push_back({each->value, each->value});
        }
        else if (resolve(table, low, range.first) && resolve(table, high, range.last))
            myRanges.push_back(range);
    }

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
                       const std::vector<const char*>& valueless = std::vector<const char*>())
        : myTable(names)
    {
        for (const char* selector : selectors)
            mySelectors.push_back(DtEnumeratorSelector(myTable, selector));
        for (const char* selector : valueless)
            myValueless.push_back(DtEnumeratorSelector(myTable, selector));
        for (int value = 0; value < theKnownValues; ++value)
            myPlaces[value] = search(value);
    }

    // Place of the alternative that a value selects, from 0; -1 when it selects none.
    int find(DtInt64 value) const { return value >= 0 && value < theKnownValues ? myPlaces[value] : search(value); }
    // A discriminant value that selects the alternative: the present one if it does, else the first that is found.
    DtInt64 valueOf(std::size_t place, DtInt64 present) const
    {
        const int wanted = static_cast<int>(place);
        if (find(present) == wanted)
            return present;
        for (const DtSelectorRange& range : mySelectors[place].ranges())
            if (find(range.first) == wanted)
                return range.first;
        for (std::size_t i = 0; i < myTable.count; ++i)
            if (find(myTable.first[i].value) == wanted)
                return myTable.first[i].value;
        for (DtInt64 number = 0; number < 256; ++number) // one that has no enumerator
            if (find(number) == wanted)
                return number;
        return present;
    }

private:
    int search(DtInt64 value) const
    {
        int other = -1;
        for (std::size_t i = 0; i < mySelectors.size(); ++i)
        {
            if (mySelectors[i].takes(value))
                return static_cast<int>(i);
            if (mySelectors[i].isOther() && other < 0)
                other = static_cast<int>(i);
        }
        for (const DtEnumeratorSelector& selector : myValueless)
            if (selector.takes(value))
                return -1;
        return other;
    }

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
