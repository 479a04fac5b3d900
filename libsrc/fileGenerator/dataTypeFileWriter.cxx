#include "fileGenerator/dataTypeFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/settings.h"
#include "foundation/stringUtils.h"
#include "omtReader/omtNode.h"

#include <algorithm>

struct DtDataTypeFileWriter::DtTokens
{
    using Writer = DtDataTypeFileWriter;
    static const DtTokenTable<Writer>& head()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!MyHeaderInclude!>", [](const Writer& w) { return w.myFileStem + ".h"; }},
            {"<!ClassIdentifier!>", [](const Writer& w) { return w.classIdentifier(); }},
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
    static const DtTokenTable<Writer>& ofAttribute()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!AttributeMutableName!>", [](const Writer& w) { return w.mutableName(); }},
        };
        static const DtTokenTable<Writer> theTable(theRows, [](const Writer& w) { return hasCurrentAttribute(w); });
        return theTable;
    }
};

DtDataTypeFileWriter::DtDataTypeFileWriter(const DtString& fileName, const DtString& templateName,
                                           DtCCompatibleNames& names)
    : DtClassFileWriter(fileName, templateName),
      myIsXmlModel(DtFilename(DtSettings::instance().cpp.fomDefinitionFileName).extension() == "xml"),
      myNames(names),
      myHeadTokens(DtTokens::head(), this, DtTokenMemory::OneLine),
      myMemberTokens(DtTokens::ofAttribute(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myHeadTokens, &myMemberTokens});
}

void DtDataTypeFileWriter::writeMultipleTimes(const DtString& loopName, std::istream& stream)
{
    if (loopName == "ClassDatatypes")
        writeClassDatatypes(stream);
    else
        DtClassFileWriter::writeMultipleTimes(loopName, stream);
}

void DtDataTypeFileWriter::compileIncludeList()
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const DtDatatypeClassNames& names = DtDatatypeClassNames::instance();
    for (const DtCompiledDatatype& compiled : myCompiledDatatypes)
    {
        for (const DtAttribute& member : compiled.second)
        {
            const DtString& type = member.nonVectorType();
            const bool isOfToolkit = mapper.isKnownType(type) && !names.isNamesake(member.datatype());
            if (member.isEnumeration() || isOfToolkit || isOwnClass(type))
                continue;
            const DtString stem = names.fileStemOf(member.datatype());
            myIncludeFiles.push_back(stem.isEmpty() ? includeNameOf(type) : stem);
        }
    }
    myIncludeFiles.unique();
}

void DtDataTypeFileWriter::determineDecodeability()
{
}

bool DtDataTypeFileWriter::isCompiled(const DtOMTNode& node) const
{
    return myCompiledTypes.count(DtDataTypeMapper::instance()->quorvexType(node.getName())) != 0;
}

void DtDataTypeFileWriter::addCompiled(DtOMTNode* node, std::vector<DtAttribute> attributes,
                                       const DtString& documentation)
{
    myDocumentations[node] = documentation;
    myCompiledDatatypes.emplace_back(node, std::move(attributes));
    myCompiledTypes.insert(DtDataTypeMapper::instance()->quorvexType(node->getName()));
}

void DtDataTypeFileWriter::enterDatatype(const DtCompiledDatatype& compiled)
{
    const DtString& target = DtDataTypeMapper::instance()->quorvexType(compiled.first->getName());
    setCurrentClass(identifier(target), compiled.second);
    setDocumentation(myDocumentations[compiled.first]);
}

void DtDataTypeFileWriter::setCurrentClass(const DtString& className, const std::vector<DtAttribute>& attributes)
{
    setCurrentAttribute(nullptr); // it points into the list that goes
    myClassName = className;
    myAttributes = attributes;
    myMutableMembers.clear();
    for (const DtAttribute& member : myAttributes)
        if (DtFirstCharToLower(member.name()).startsWith("mutable"))
            myMutableMembers.push_back(member.name());
    namesChanged();
}

DtString DtDataTypeFileWriter::identifier(const DtString& text)
{
    return myNames.MakeCCompatibleString(text);
}

DtString DtDataTypeFileWriter::classIdentifier() const
{
    if (myCurrentDatatype == nullptr)
        return DtClassFileWriter::identifierOf(myClassName);
    return DtDatatypeClassNames::instance().identifierOf(myCurrentDatatype->getName(), myClassName);
}

DtString DtDataTypeFileWriter::mutableName() const
{
    DtCCompatibleNames names = namesSoFar();
    const DtString name = "mutable" + accessorNamesOf(currentAttribute()->name(), names).setter;
    const auto isCalledSo = [&](const DtString& member) { return accessorNamesOf(member, names).getter == name; };
    return std::any_of(myMutableMembers.begin(), myMutableMembers.end(), isCalledSo) ? DtString() : name;
}

void DtDataTypeFileWriter::writeClassDatatypes(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    for (const DtCompiledDatatype& compiled : myCompiledDatatypes)
    {
        myCurrentDatatype = compiled.first;
        enterDatatype(compiled);
        writeBodyFrom(stream, start);
    }
    myCurrentDatatype = nullptr;
}

bool DtDataTypeFileWriter::isOwnClass(const DtString& type) const
{
    return myCompiledTypes.count(type) != 0;
}
