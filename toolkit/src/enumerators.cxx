#include <qx/enumerators.h>

#include <ostream>

namespace
{
std::string trimmed(const std::string& text)
{
    static const char theBlanks[] = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(theBlanks);
    return begin == std::string::npos ? std::string()
                                      : text.substr(begin, text.find_last_not_of(theBlanks) - begin + 1);
}

bool number(const std::string& text, DtInt64& value)
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

bool resolve(const DtEnumeratorTable& table, const std::string& name, DtInt64& value)
{
    const DtEnumerator* entry = table.find(name);
    if (!entry)
        return number(name, value);
    value = entry->value;
    return true;
}
} // namespace

const DtEnumerator* DtEnumeratorTable::find(const std::string& name) const
{
    for (std::size_t i = 0; i < count; ++i)
        if (name == first[i].name)
            return first + i;
    return nullptr;
}

std::ostream& DtWriteEnumerator(std::ostream& out, const DtEnumeratorTable& table, DtInt64 number)
{
    for (std::size_t i = 0; i < table.count; ++i)
        if (table.first[i].value == number)
            return out << table.first[i].name << " (" << number << ')';
    return out << number;
}

DtEnumeratorTable DtEnumeratorsOf(bool)
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

DtEnumeratorSelector::DtEnumeratorSelector(const DtEnumeratorTable& table, const char* text)
    : myIsOther(trimmed(text) == "HLAother")
{
    if (!myIsOther)
        split(table, text);
}

bool DtEnumeratorSelector::takes(DtInt64 value) const
{
    for (const DtSelectorRange& range : myRanges)
        if (range.first <= value && value <= range.last)
            return true;
    return false;
}

// A comma may be part of an enumerator's name, so the whole text is looked up first.
void DtEnumeratorSelector::split(const DtEnumeratorTable& table, const std::string& text)
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

void DtEnumeratorSelector::add(const DtEnumeratorTable& table, const std::string& piece)
{
    DtSelectorRange range = {0, 0};
    const std::size_t dots = piece.find("..");
    if (piece.size() > 3 && piece[0] == '[' && piece[piece.size() - 1] == ']' && dots != std::string::npos)
    {
        addRange(table, trimmed(piece.substr(1, dots - 1)), trimmed(piece.substr(dots + 2, piece.size() - dots - 3)));
    }
    else if (resolve(table, piece, range.first))
    {
        range.last = range.first;
        myRanges.push_back(range);
    }
}

void DtEnumeratorSelector::addRange(const DtEnumeratorTable& table, const std::string& low, const std::string& high)
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

DtAlternativeTable::DtAlternativeTable(const DtEnumeratorTable& names, const std::vector<const char*>& selectors,
                                       const std::vector<const char*>& valueless)
    : myTable(names)
{
    for (const char* selector : selectors)
        mySelectors.push_back(DtEnumeratorSelector(myTable, selector));
    for (const char* selector : valueless)
        myValueless.push_back(DtEnumeratorSelector(myTable, selector));
    for (int value = 0; value < theKnownValues; ++value)
        myPlaces[value] = search(value);
}

DtInt64 DtAlternativeTable::valueOf(std::size_t place, DtInt64 present) const
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
    for (DtInt64 number = 0; number < theKnownValues; ++number) // one that has no enumerator
        if (find(number) == wanted)
            return number;
    return present;
}

int DtAlternativeTable::search(DtInt64 value) const
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
