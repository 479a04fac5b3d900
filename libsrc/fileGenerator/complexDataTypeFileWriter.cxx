#include "fileGenerator/complexDataTypeFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/documentation.h"
#include "fileGenerator/memberTypes.h"
#include "foundation/perRun.h"
#include "omtReader/complexDatatypeNode.h"

static DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, class DtComplexDataTypeFileWriter>();
}

namespace
{

const DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

// A class made in this run has an entry of its own among the mappings as soon as its turn has come; it stays a class.
bool isBasicType(const DtAttribute& attribute)
{
    const DtString& datatype = attribute.datatype();
    return !DtDatatypeClassNames::instance().contains(datatype) && !mapper().quorvexType(datatype).isEmpty();
}

DtString boundaryOf(const DtAttribute& attribute)
{
    return DtString(mapper().boundaryFromDataTypeName(attribute.type()));
}

DtString withoutDt(const DtString& className)
{
    return className.startsWith("Dt") ? DtString(className.stdString().substr(2)) : className;
}

bool isSingle(const DtString& cardinality)
{
    return cardinality == "1" || cardinality == "1 (Type)";
}

// The model name of the array for a component, as the driver forms it; empty for a component without one. A range has
// an array only where a member of a class with the same element made it up.
DtString arrayName(const DtAttribute& attribute)
{
    const DtString& element = attribute.datatype();
    DtComplexComponentNode component;
    component.setCardinality(attribute.cardinality());
    switch (component.getCardinalityType())
    {
    case 0:
        return isSingle(attribute.cardinality()) ? DtString() : element + "FixedArray" + attribute.cardinality();
    case 1:
    {
        const DtString name = names().MakeCCompatibleString(element + "VariableArray");
        return DtDatatypeClassNames::instance().contains(name) ? name : DtString();
    }
    case 3:
        return element + "NullTerminatedArray";
    case 6:
        return element + "PaddingTo32Array";
    default:
        return DtString();
    }
}

} // namespace

struct DtComplexDataTypeFileWriter::DtTokens
{
    using Writer = DtComplexDataTypeFileWriter;
    static const DtTokenTable<Writer>& own()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!ArrayFileToInclude!>", [](const Writer& w) { return w.myCurrentArrayInclude + ".h"; }},
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
    static const DtTokenTable<Writer>& ofAttribute()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!DatatypeArrayName!>",      [](const Writer& w) { return w.getDatatypeArrayName(*w.currentAttribute()); }},
            {"<!NonDtDatatypeArrayName!>",
             [](const Writer& w) { return withoutDt(w.getDatatypeArrayName(*w.currentAttribute())); }                   },
            {"<!IsBasicType!>",
             [](const Writer& w) -> DtString { return isBasicType(*w.currentAttribute()) ? "1" : ""; }                  },
            {"<!OctetBoundary!>",          [](const Writer& w) { return boundaryOf(*w.currentAttribute()); }            },
        };
        static const DtTokenTable<Writer> theTable(theRows, [](const Writer& w) { return hasCurrentAttribute(w); });
        return theTable;
    }
};

DtComplexDataTypeFileWriter::DtComplexDataTypeFileWriter(const DtString& fileName, const DtString& templateName)
    : DtDataTypeFileWriter(fileName, templateName, names()),
      myOwnTokens(DtTokens::own(), this, DtTokenMemory::OneLine),
      myMemberTokens(DtTokens::ofAttribute(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myOwnTokens, &myMemberTokens});
}

void DtComplexDataTypeFileWriter::writeMultipleTimes(const DtString& loopName, std::istream& stream)
{
    if (loopName == "ArrayIncludeFiles")
        writeArrayIncludeFiles(stream);
    else
        DtDataTypeFileWriter::writeMultipleTimes(loopName, stream);
}

void DtComplexDataTypeFileWriter::compileAttributes(DtComplexDatatypeNode* node)
{
    if (isCompiled(*node))
        return;
    std::vector<DtAttribute> members;
    for (const DtComplexComponentNode* component : node->components())
    {
        members.push_back(makeMember(component->getName(), component->getDatatype(), component->getCardinality()));
        members.back().setDocumentation(DtDocumentation::instance().of(*component));
    }
    addCompiled(node, members, DtDocumentation::instance().of(*node));
}

DtString DtComplexDataTypeFileWriter::getDatatypeArrayName(const DtAttribute& attribute) const
{
    const DtString stem = arrayStem(attribute);
    return stem.isEmpty() ? stem : DtDatatypeClassNames::classNameOfStem(stem);
}

void DtComplexDataTypeFileWriter::compileArrayIncludeList()
{
    for (const DtCompiledDatatype& compiled : myCompiledDatatypes)
    {
        for (const DtAttribute& member : compiled.second)
        {
            const DtString stem = arrayStem(member);
            if (!stem.isEmpty())
                myArrayIncludeFiles.push_back(stem);
        }
    }
    myArrayIncludeFiles.unique();
}

void DtComplexDataTypeFileWriter::writeArrayIncludeFiles(std::istream& stream)
{
    if (myArrayIncludeFiles.empty())
        compileArrayIncludeList();
    const std::streampos start = stream.tellg();
    for (const DtString& include : myArrayIncludeFiles)
    {
        myCurrentArrayInclude = include;
        writeBodyFrom(stream, start);
    }
    myCurrentArrayInclude = DtString();
}

DtString DtComplexDataTypeFileWriter::arrayStem(const DtAttribute& attribute) const
{
    const DtString name = arrayName(attribute);
    return name.isEmpty() ? name : DtDatatypeClassNames::fileStem(names().MakeCCompatibleString(name), names());
}
