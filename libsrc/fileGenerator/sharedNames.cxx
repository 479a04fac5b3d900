#include "fileGenerator/sharedNames.h"

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/dataTypeMapper.h"
#include "foundation/outputStream.h"
#include "foundation/stringUtils.h"

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

void DtSharedClassNames::add(const DtString& datatype, const DtString& className)
{
    if (DtDataTypeMapper::instance()->isKnownType(className))
        DtWarn << "Warning: Datatype " << datatype << " is called " << className
               << " in C++, like a type of the toolkit.\n";
    if (!isIdentifier(className))
        DtWarn << "Warning: Datatype " << datatype << " is called " << className
               << " in C++, which is no identifier.\n";
    const auto [first, isNew] = myDatatypes.emplace(className, datatype);
    if (!isNew && first->second != datatype)
        DtWarn << "Warning: Datatypes " << first->second << " and " << datatype << " are both called " << className
               << " in C++.\n";
}

void warnOfMemberNames(const DtString& owner, const std::vector<DtString>& names)
{
    std::map<DtString, DtString> getters;
    std::map<DtString, DtString> setters;
    for (const DtString& name : names)
    {
        const DtAccessorNames accessors = DtClassFileWriter::accessorNamesOf(name);
        const auto [getter, isNewGetter] = getters.emplace(accessors.getter, name);
        const auto [setter, isNewSetter] = setters.emplace(accessors.setter, name);
        if (!isNewGetter || !isNewSetter)
            DtWarn << "Warning: Members " << (isNewGetter ? setter : getter)->second << " and " << name << " of "
                   << owner << " are called alike in C++.\n";
        else if (!isIdentifier(accessors.getter))
            DtWarn << "Warning: Member " << name << " of " << owner << " is called " << accessors.getter
                   << " in C++, which is no identifier.\n";
    }
}
