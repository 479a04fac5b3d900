#include "fileGenerator/attribute.h"

#include "fileGenerator/dataTypeMapper.h"
#include "foundation/stringUtils.h"

namespace
{

struct DtNetTypeRow
{
    const char* type;
    const char* netType;
};

// Types whose net type does not follow from their name.
const DtNetTypeRow theNetTypes[] = {
    {"bool",                     "DtNetBoolean"            },
    {"DtString",                 "DtString"                },
    {"DtHlaLogicalTime",         "DtHlaLogicalTime"        },
    {"DtHlaLogicalTimeInterval", "DtHlaLogicalTimeInterval"},
    {"DtGlobalObjectDesignator", "DtGlobalObjectDesignator"},
    {"DtVector",                 "DtNetVector64"           },
    {"DtTaitBryan",              "DtNetEulerAngles"        },
};

DtString withoutBlanks(const DtString& text)
{
    return DtReplaceAllSubstrings(text, " ", "");
}

} // namespace

DtAttribute::DtAttribute(const DtString& name, const DtString& type) : myName(name), myType(type)
{
    markEnumeration();
    DtAttribute::obtainNetType();
}

const DtString& DtAttribute::name() const
{
    return myName;
}

const DtString& DtAttribute::type() const
{
    return myType;
}

void DtAttribute::setType(const DtString& type)
{
    myType = type;
    markEnumeration();
    obtainNetType();
}

void DtAttribute::setCardinality(const DtString& text)
{
    myCardinality = text;
    myNonVectorType = myType;
    if (DtContainsSubstring(text, "Dynamic"))
        myHasPlusCardinality = true;
    if (DtContainsSubstring(text, "+"))
        myHasPlusCardinality = true;
    else if (DtContainsSubstring(text, "-"))
        setVariantCardinality(text);
    else if (const int count = text.toInt())
        myNumericalCardinality = count;
}

const DtString& DtAttribute::cardinality() const
{
    return myCardinality;
}

void DtAttribute::setDatatype(const DtString& name)
{
    myDatatype = name;
    setLittleEndian(DtDataTypeMapper::instance()->isLittleEndian(name));
    obtainNetType();
}

const DtString& DtAttribute::datatype() const
{
    return myDatatype;
}

void DtAttribute::setDatatypeDatatype(const DtString& name)
{
    myDatatypeDatatype = name;
}

const DtString& DtAttribute::datatypeDatatype() const
{
    return myDatatypeDatatype;
}

void DtAttribute::setEncoding(const DtString& encoding)
{
    myEncoding = encoding;
}

const DtString& DtAttribute::encoding() const
{
    return myEncoding;
}

const DtString& DtAttribute::netType() const
{
    return myNetType;
}

bool DtAttribute::hasPlusCardinality() const
{
    return myHasPlusCardinality;
}

bool DtAttribute::isEnumeration() const
{
    return myIsEnumeration;
}

bool DtAttribute::isVariant() const
{
    return myIsVariant;
}

int DtAttribute::numericalCardinality() const
{
    return myNumericalCardinality;
}

const DtString& DtAttribute::nonVectorType() const
{
    return myNonVectorType;
}

DtString DtAttribute::netSizeString() const
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const bool isArray = myNumericalCardinality > 1;
    const DtString factor = isArray ? DtString(myNumericalCardinality) + " * " : DtString();
    if (myType == "DtString" || myType == "DtGlobalObjectDesignator")
        return factor + "my" + myName + ".length() + 1";
    if (!mapper.initialValueFromType(myType).isEmpty() || mapper.isKnownType(myType))
        return factor + "sizeof(" + myNetType + ")";
    return factor + "my" + myName + (isArray ? "[0]" : "") + ".netSize()";
}

const DtString& DtAttribute::discrimininant() const
{
    return myDiscriminant;
}

const DtString& DtAttribute::discrimininantValue() const
{
    return myDiscriminantValue;
}

void DtAttribute::setDiscriminantValue(const DtString& value)
{
    myDiscriminantValue = value;
}

void DtAttribute::setIsFloat(bool isFloat)
{
    myIsFloat = isFloat;
}

bool DtAttribute::isFloat() const
{
    return myIsFloat;
}

void DtAttribute::setLittleEndian(bool littleEndian)
{
    myIsLittleEndian = littleEndian;
}

bool DtAttribute::isLittleEndian() const
{
    return myIsLittleEndian;
}

void DtAttribute::obtainNetType()
{
    if (myIsEnumeration)
        return obtainEnumerationNetType();
    if (myType == "bool" && myDatatype == "HLAboolean")
    {
        myNetType = "DtNetU32";
        return;
    }
    for (const DtNetTypeRow& row : theNetTypes)
    {
        if (myType == row.type)
        {
            myNetType = row.netType;
            return;
        }
    }
    myNetType = DtReplaceSubstring(myType, "Dt", myIsLittleEndian ? "DtLE" : "DtNet");
}

// The type is tested without its "Dt", and again with a small first letter: the mapper knows enumerations by the names
// that the model gives them.
void DtAttribute::markEnumeration()
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const DtString name = myType.startsWith("Dt") ? DtString(myType.stdString().substr(2)) : myType;
    if (mapper.isEnumeration(name) || mapper.isEnumeration(DtFirstCharToLowerConditional(name)))
        myIsEnumeration = true;
}

// "0-1 (discriminant=value)": what stands in the last parentheses counts. Anything but one equals sign is no condition.
void DtAttribute::setVariantCardinality(const DtString& text)
{
    myIsVariant = true;
    DtString condition = text;
    condition.snipFrontToLast('(');
    const std::vector<DtString> parts = DtSplit(DtReplaceAllSubstrings(condition, ")", ""), '=', DtEmptyPieces::Keep);
    if (parts.size() != 2)
        return;
    myDiscriminant = withoutBlanks(parts[0]);
    myDiscriminantValue = withoutBlanks(parts[1]);
}

void DtAttribute::obtainEnumerationNetType()
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    if (mapper.isKnownType(myType) && !myNetType.isEmpty())
        return;
    const DtString& size = mapper.enumerationSize(myType);
    myNetType = size.isEmpty() ? DtString("DtNetU32") : "DtNetU" + size;
}
