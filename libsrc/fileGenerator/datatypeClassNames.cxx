#include "fileGenerator/datatypeClassNames.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/settings.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"

namespace
{

const DtString& valueOrEmpty(const std::unordered_map<DtString, DtString>& map, const DtString& key)
{
    const auto entry = map.find(key);
    return entry == map.end() ? DtString::nullString() : entry->second;
}

} // namespace

DtDatatypeClassNames& DtDatatypeClassNames::instance()
{
    return DtPerRun<DtDatatypeClassNames>();
}

DtString DtDatatypeClassNames::fileStem(const DtString& datatype, DtCCompatibleNames& names)
{
    return names.MakeCCompatibleString(DtFirstCharToLowerConditional(DtSettings::instance().cpp.prefixName + datatype));
}

DtString DtDatatypeClassNames::classNameOfStem(const DtString& stem)
{
    return "Dt" + DtFirstCharToUpper(stem);
}

void DtDatatypeClassNames::clear()
{
    myClassNames.clear();
    myFileStems.clear();
    mySharedStems.clear();
    myNamesakes.clear();
    myGeneratedEnumerations.clear();
    myEnumerationRepresentations.clear();
}

void DtDatatypeClassNames::add(const DtString& datatype, const DtString& className)
{
    myClassNames[datatype] = className;
    const DtString stem = fileStemOf(datatype);
    if (!myFileStems.insert(stem).second)
        mySharedStems.insert(stem);
}

bool DtDatatypeClassNames::contains(const DtString& datatype) const
{
    return myClassNames.count(datatype) != 0;
}

const DtString& DtDatatypeClassNames::className(const DtString& datatype) const
{
    return valueOrEmpty(myClassNames, datatype);
}

// A small first letter of the model's name is one in the file's, also where a capital follows.
DtString DtDatatypeClassNames::fileStemOf(const DtString& datatype) const
{
    const DtString& name = className(datatype);
    if (name.isEmpty())
        return DtString();
    const DtString bare = name.stdString().substr(2);
    const DtString modelName = DtSettings::instance().cpp.prefixName + datatype;
    const bool startsSmall = !modelName.isEmpty() && DtToUpper(modelName[0]) != modelName[0];
    return startsSmall ? DtFirstCharToLower(bare) : DtFirstCharToLowerConditional(bare);
}

void DtDatatypeClassNames::addNamesake(const DtString& datatype, const DtString& statedName, const DtString& identifier)
{
    myNamesakes[datatype] = {statedName, identifier};
}

const DtString& DtDatatypeClassNames::identifierOf(const DtString& datatype, const DtString& statedName) const
{
    const auto namesake = myNamesakes.find(datatype);
    const bool isNamed = namesake != myNamesakes.end() && namesake->second.statedName == statedName;
    return isNamed ? namesake->second.identifier : statedName;
}

void DtDatatypeClassNames::addEnumeration(const DtString& enumeration, const DtString& representation)
{
    myEnumerationRepresentations[enumeration] = representation;
}

const DtString& DtDatatypeClassNames::enumerationRepresentation(const DtString& enumeration) const
{
    return valueOrEmpty(myEnumerationRepresentations, enumeration);
}
