#include "fileGenerator/variantRecordFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/enumFileWriter.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/netTypeTraits.h"
#include "foundation/stringUtils.h"
#include "omtReader/variantDatatypeNode.h"

static DtCCompatibleNames theNames;

struct DtVariantRecordFileWriter::DtTokens
{
    using Writer = DtVariantRecordFileWriter;
    static const DtTokenTable<Writer>& own()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!ClassNetName!>",          [](const Writer& w) { return DtReplaceSubstring(w.myClassName, "Dt", "DtNet"); }},
            {"<!ClassDiscriminantName!>", [](const Writer& w) { return w.discriminantName(); }                            },
            {"<!ClassDiscriminantType!>", [](const Writer& w) { return w.discriminantType(); }                            },
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
    static const DtTokenTable<Writer>& ofAttribute()
    {
        static const DtTokenRow<Writer> theRows[] = {
  // the same text as in the enumerations header; a list or a range keeps its commas and brackets
            {"<!CurrentDiscriminantEnumerator!>", [](const Writer& w)
             { return DtEnumerationFileWriter::cleanedValueName(w.currentAttribute()->discrimininantValue()); }},
            {"<!NetTypeIsVariantRecord!>",
             [](const Writer& w) -> DtString { return holdsVariantRecord(*w.currentAttribute()) ? "1" : ""; }                                                   },
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
};

bool hasVariantMember(const DtString& datatype)
{
    return !datatype.isEmpty() && datatype != "NA" && datatype != "N/A";
}

DtVariantRecordFileWriter::DtVariantRecordFileWriter(const DtString& fileName, const DtString& templateName)
    : DtCodedDataTypeFileWriter(fileName, templateName, theNames)
{
}

void DtVariantRecordFileWriter::compileAttributes(DtVariantDatatypeNode* node, DtOMTTree* tree)
{
    if (isCompiled(*node))
        return;
    std::vector<DtAttribute> members;
    for (auto alternative = node->getComponentNodeList(); alternative != node->getComponentNodeEnd(); ++alternative)
    {
        if (!hasVariantMember((*alternative)->getDatatype()))
            continue;
        members.push_back(makeMember((*alternative)->getName(), (*alternative)->getDatatype(), "0-1"));
        members.back().setDiscriminantValue((*alternative)->getEnumerator());
    }
    const DtString& name = node->getName();
    registerNetTypeTraits(name, DtDataTypeMapper::instance()->quorvexType(name), members, tree);
    addCompiled(node, members);
}

void DtVariantRecordFileWriter::setDiscriminantName(const DtString& name)
{
    myDiscriminantName = name;
}

const DtString& DtVariantRecordFileWriter::discriminantName() const
{
    return myDiscriminantName;
}

void DtVariantRecordFileWriter::setDiscriminantType(const DtString& type)
{
    myDiscriminantType = type;
}

const DtString& DtVariantRecordFileWriter::discriminantType() const
{
    return myDiscriminantType;
}

// Members stand in the order of the alternatives, without those that have no value, so both lists are walked in step;
// names may repeat.
void DtVariantRecordFileWriter::addEnumerators(const DtDataTypeMapper::DtVariantRecordStruct& record)
{
    for (DtCompiledDatatype& compiled : myCompiledDatatypes)
    {
        auto member = compiled.second.begin();
        for (const DtDataTypeMapper::DtVariantAlternativeStruct& alternative : record.alternatives)
        {
            if (member == compiled.second.end())
                break;
            if (hasVariantMember(alternative.datatype) && member->name() == alternative.name)
                (member++)->setDiscriminantValue(alternative.enumerator);
        }
    }
}

void DtVariantRecordFileWriter::decodeOwnTokens(DtString& line)
{
    DtTokenValues<DtVariantRecordFileWriter> own(DtTokens::own(), this);
    DtTokenValues<DtVariantRecordFileWriter> ofAttribute(DtTokens::ofAttribute(), this);
    DtExpandTokens(line, {&own, currentAttribute() != nullptr ? &ofAttribute : nullptr});
    DtCodedDataTypeFileWriter::decodeOwnTokens(line);
}

std::vector<const DtTokenIndex*> DtVariantRecordFileWriter::ownTokens() const
{
    std::vector<const DtTokenIndex*> tokens = DtCodedDataTypeFileWriter::ownTokens();
    tokens.insert(tokens.end(), {&DtTokens::own().index(), &DtTokens::ofAttribute().index()});
    return tokens;
}
