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

DtAttribute::DtAttribute(const DtString& name, const DtString& type)
{
    DtContent& content = change();
    content.name = name;
    content.type = type;
    markEnumeration();
    DtAttribute::obtainNetType();
}

const DtString& DtAttribute::name() const
{
    return myContent->name;
}

const DtString& DtAttribute::type() const
{
    return myContent->type;
}

DtAttribute::DtContent& DtAttribute::change()
{
    DtContent& content = myContent.change();
    content.notes.reset();
    return content;
}

void DtAttribute::keepNotes(std::shared_ptr<DtAttributeNotes> notes)
{
    change().notes = std::move(notes);
}

void DtAttribute::setType(const DtString& type)
{
    change().type = type;
    markEnumeration();
    obtainNetType();
}

void DtAttribute::setCardinality(const DtString& text)
{
    change().cardinality = text;
    change().nonVectorType = myContent->type;
    if (DtContainsSubstring(text, "Dynamic"))
        change().hasPlusCardinality = true;
    if (DtContainsSubstring(text, "+"))
        change().hasPlusCardinality = true;
    else if (DtContainsSubstring(text, "-"))
        setVariantCardinality(text);
    else if (const int count = text.toInt())
        change().numericalCardinality = count;
}

const DtString& DtAttribute::cardinality() const
{
    return myContent->cardinality;
}

void DtAttribute::setDatatype(const DtString& name)
{
    change().datatype = name;
    setLittleEndian(DtDataTypeMapper::instance()->isLittleEndian(name));
    obtainNetType();
}

const DtString& DtAttribute::datatype() const
{
    return myContent->datatype;
}

void DtAttribute::setDatatypeDatatype(const DtString& name)
{
    change().datatypeDatatype = name;
}

const DtString& DtAttribute::datatypeDatatype() const
{
    return myContent->datatypeDatatype;
}

void DtAttribute::setEncoding(const DtString& encoding)
{
    change().encoding = encoding;
}

void DtAttribute::setDocumentation(const DtString& text)
{
    change().documentation = text;
}

const DtString& DtAttribute::encoding() const
{
    return myContent->encoding;
}

const DtString& DtAttribute::netType() const
{
    return myContent->netType;
}

bool DtAttribute::hasPlusCardinality() const
{
    return myContent->hasPlusCardinality;
}

bool DtAttribute::isEnumeration() const
{
    return myContent->isEnumeration;
}

bool DtAttribute::isVariant() const
{
    return myContent->isVariant;
}

int DtAttribute::numericalCardinality() const
{
    return myContent->numericalCardinality;
}

const DtString& DtAttribute::nonVectorType() const
{
    return myContent->nonVectorType;
}

DtString DtAttribute::netSizeString() const
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const bool isArray = myContent->numericalCardinality > 1;
    const DtString factor = isArray ? DtString(myContent->numericalCardinality) + " * " : DtString();
    if (myContent->type == "DtString" || myContent->type == "DtGlobalObjectDesignator")
        return factor + "my" + myContent->name + ".length() + 1";
    if (!mapper.initialValueFromType(myContent->type).isEmpty() || mapper.isKnownType(myContent->type))
        return factor + "sizeof(" + myContent->netType + ")";
    return factor + "my" + myContent->name + (isArray ? "[0]" : "") + ".netSize()";
}

const DtString& DtAttribute::discrimininant() const
{
    return myContent->discriminant;
}

const DtString& DtAttribute::discrimininantValue() const
{
    return myContent->discriminantValue;
}

void DtAttribute::setDiscriminantValue(const DtString& value)
{
    change().discriminantValue = value;
}

void DtAttribute::setIsFloat(bool isFloat)
{
    change().isFloat = isFloat;
}

bool DtAttribute::isFloat() const
{
    return myContent->isFloat;
}

void DtAttribute::setLittleEndian(bool littleEndian)
{
    change().isLittleEndian = littleEndian;
}

bool DtAttribute::isLittleEndian() const
{
    return myContent->isLittleEndian;
}

void DtAttribute::obtainNetType()
{
    if (myContent->isEnumeration)
        return obtainEnumerationNetType();
    if (myContent->type == "bool" && myContent->datatype == "HLAboolean")
    {
        change().netType = "DtNetU32";
        return;
    }
    for (const DtNetTypeRow& row : theNetTypes)
    {
        if (myContent->type == row.type)
        {
            change().netType = row.netType;
            return;
        }
    }
    change().netType = DtReplaceSubstring(myContent->type, "Dt", myContent->isLittleEndian ? "DtLE" : "DtNet");
}

// The type is tested without its "Dt", and again with a small first letter: the mapper knows enumerations by the names
// that the model gives them.
void DtAttribute::markEnumeration()
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const DtString name =
        myContent->type.startsWith("Dt") ? DtString(myContent->type.stdString().substr(2)) : myContent->type;
    if (mapper.isEnumeration(name) || mapper.isEnumeration(DtFirstCharToLowerConditional(name)))
        change().isEnumeration = true;
}

// "0-1 (discriminant=value)": what stands in the last parentheses counts. Anything but one equals sign is no condition.
void DtAttribute::setVariantCardinality(const DtString& text)
{
    change().isVariant = true;
    DtString condition = text;
    condition.snipFrontToLast('(');
    const std::vector<DtString> parts = DtSplit(DtReplaceAllSubstrings(condition, ")", ""), '=', DtEmptyPieces::Keep);
    if (parts.size() != 2)
        return;
    change().discriminant = withoutBlanks(parts[0]);
    change().discriminantValue = withoutBlanks(parts[1]);
}

void DtAttribute::obtainEnumerationNetType()
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    if (mapper.isKnownType(myContent->type) && !myContent->netType.isEmpty())
        return;
    const DtString& size = mapper.enumerationSize(myContent->type);
    change().netType = size.isEmpty() ? DtString("DtNetU32") : "DtNetU" + size;
}
