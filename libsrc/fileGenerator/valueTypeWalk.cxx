#include "fileGenerator/valueTypeWalk.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/settings.h"
#include "foundation/filename.h"
#include "foundation/warningRules.h"

namespace
{
// The old text format has no tables of datatypes to walk.
bool modelHasDatatypeTables()
{
    return DtFilename(DtSettings::instance().cpp.fomDefinitionFileName).extension() == "xml";
}

void warnUnknownType(const DtString& datatype)
{
    DtTellWarning(DtRules::undeterminedType, DtSubject::datatype(datatype),
                  "Warning: Cannot determine type: " + datatype + ".\n");
}
} // namespace

DtValueTypeWalk::DtValueTypeWalk(Kind kind, DtString& cardinality, DtString& type)
    : myKind(kind), myCardinality(cardinality), myType(type), myMapper(*DtDataTypeMapper::instance())
{
}

void DtValueTypeWalk::run(const DtString& datatype)
{
    if (!modelHasDatatypeTables())
    {
        warnUnknownType(datatype);
        myType = datatype;
        return;
    }
    DtString current = datatype;
    while (next(current))
    {
    }
    if (!myFollowedArray.isEmpty())
        myType = myFollowedArray;
}

bool DtValueTypeWalk::next(DtString& datatype)
{
    if (!myVisited.insert(datatype).second)
    {
        myType = datatype;
        return false;
    }
    const DtString element = myMapper.repOfArrayType(datatype);
    return element.isEmpty() ? overSimpleType(datatype) : overArray(datatype, element);
}

bool DtValueTypeWalk::overSimpleType(DtString& datatype)
{
    const DtString representation = myMapper.repOfSimpleType(datatype);
    if (representation.isEmpty())
    {
        if (myKind == Kind::Interaction)
            warnUnknownType(datatype);
        myType = datatype;
        return false;
    }
    const DtString target = myMapper.quorvexType(representation);
    if (target.isEmpty())
    {
        datatype = representation;
        return true;
    }
    myType = target;
    myMapper.addMapping(datatype, target);
    return false;
}

bool DtValueTypeWalk::overArray(DtString& datatype, const DtString& element)
{
    myCardinality = myMapper.cardinalityOfArrayType(datatype);
    if (myCardinality == "Dynamic")
        myCardinality = "0+";
    myType = myMapper.quorvexType(element);
    return myType.isEmpty() && overElement(datatype, element);
}

bool DtValueTypeWalk::overElement(DtString& datatype, const DtString& element)
{
    const DtString representation = myMapper.repOfSimpleType(element);
    myType = myMapper.quorvexType(representation);
    if (myKind == Kind::Interaction)
        return false;
    if (!representation.isEmpty())
    {
        if (myType.isEmpty())
            myType = datatype;
        return false;
    }
    if (myFollowedArray.isEmpty())
        myFollowedArray = datatype;
    datatype = element;
    return true;
}
