#include "fileGenerator/nameClashes.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/classFileWriter.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"

#include <algorithm>

namespace
{

bool isNameCharacter(char character)
{
    const char lower = DtToLower(character);
    return DtIsDigit(character) || (lower >= 'a' && lower <= 'z') || character == '_';
}

bool isIdentifier(const DtString& name)
{
    const std::string& text = name.stdString();
    return !text.empty() && !DtIsDigit(text[0]) && std::all_of(text.begin(), text.end(), isNameCharacter);
}

} // namespace

void DtClassNameClashes::add(const DtString& datatype, const DtString& className)
{
    if (!isIdentifier(className))
        DtTellWarning(DtRules::noIdentifier, DtSubject::datatype(datatype),
                      "Warning: Datatype " + datatype + " is called " + className +
                          " in C++, which is no identifier.\n");
    const auto [first, isNew] = myDatatypes.emplace(className, datatype);
    if (!isNew && first->second != datatype)
        DtTellWarning(DtRules::nameClash, DtSubject::datatype(datatype),
                      "Warning: Datatypes " + first->second + " and " + datatype + " are both called " + className +
                          " in C++.\n");
}

void DtHeldDatatypes::add(const DtString& datatype, const std::vector<DtString>& members)
{
    myMembers.emplace(datatype, members);
}

// Takes away, again and again, what holds none of those that are left; the rings stay, and what holds them.
void DtHeldDatatypes::warn() const
{
    std::map<DtString, std::vector<DtString>> holders; // by member
    std::map<DtString, std::size_t> counts;            // members that are left
    for (const auto& [datatype, members] : myMembers)
    {
        counts[datatype] = 0;
        for (const DtString& member : members)
        {
            if (myMembers.count(member) == 0)
                continue;
            holders[member].push_back(datatype);
            ++counts[datatype];
        }
    }
    std::vector<DtString> done;
    for (const auto& [datatype, count] : counts)
        if (count == 0)
            done.push_back(datatype);
    while (!done.empty())
    {
        const DtString datatype = done.back();
        done.pop_back();
        for (const DtString& holder : holders[datatype])
            if (--counts[holder] == 0)
                done.push_back(holder);
    }
    for (const auto& [datatype, count] : counts)
        if (count != 0)
            DtTellWarning(DtRules::recursiveDatatype, DtSubject::datatype(datatype),
                          "Warning: Datatype " + datatype +
                              " holds itself, or one that does, which no C++ class can.\n");
}

void warnOfNamesake(const DtString& datatype, const DtString& statedName, const DtString& identifier)
{
    DtTellWarning(DtRules::toolkitName, DtSubject::datatype(datatype),
                  "Warning: Datatype " + datatype + " is called " + identifier + " in C++: the toolkit has a " +
                      statedName + " of its own. A class prefix or a namespace gives generated code other names.\n");
}

void warnOfParent(const DtSubject& subclass, const DtString& parent, bool isSelected, const DtString& parentName)
{
    if (!isSelected)
        DtTellWarning(DtRules::parentNotSelected, subclass,
                      "Warning: " + subclass.name + " needs the files of " + parent + ", which is not selected.\n");
    if (!isIdentifier(parentName))
        DtTellWarning(DtRules::noIdentifier, subclass,
                      "Warning: " + subclass.name + " calls its parent " + parentName +
                          " in C++, which is no identifier.\n");
}

void warnOfFile(const DtString& fileName, const DtSubject& owner)
{
    DtTellWarning(DtRules::nameClash, owner,
                  "Warning: File " + fileName + " is written a second time: two classes are called alike in C++.\n");
}

void warnOfBaseName(const DtString& base, const DtString& macroPart)
{
    if (!isIdentifier(macroPart))
        DtTellWarning(DtRules::noIdentifier, DtSubject::none(),
                      "Warning: " + base + " is called " + macroPart + " in C++, which is no identifier.\n");
}

void warnOfMemberNames(const DtSubject& owner, const std::vector<DtString>& names)
{
    std::map<DtString, DtString> getters;
    std::map<DtString, DtString> setters;
    DtCCompatibleNames identifiers;
    for (const DtString& name : names)
    {
        const DtAccessorNames accessors = DtClassFileWriter::accessorNamesOf(name, identifiers);
        const auto [getter, isNewGetter] = getters.emplace(accessors.getter, name);
        const auto [setter, isNewSetter] = setters.emplace(accessors.setter, name);
        if (!isNewGetter || !isNewSetter)
            DtTellWarning(DtRules::nameClash, owner.member(name),
                          "Warning: Members " + (isNewGetter ? setter : getter)->second + " and " + name + " of " +
                              owner.name + " are called alike in C++.\n");
        else if (!isIdentifier(accessors.getter))
            DtTellWarning(DtRules::noIdentifier, owner.member(name),
                          "Warning: Member " + name + " of " + owner.name + " is called " + accessors.getter +
                              " in C++, which is no identifier.\n");
    }
}
