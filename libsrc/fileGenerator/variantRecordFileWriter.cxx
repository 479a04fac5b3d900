#include "fileGenerator/variantRecordFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/documentation.h"
#include "fileGenerator/enumFileWriter.h"
#include "fileGenerator/literalText.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/netTypeTraits.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/valueForm.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"
#include "omtReader/omtTree.h"
#include "omtReader/variantDatatypeNode.h"

static DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, class DtVariantRecordFileWriter>();
}

struct DtVariantRecordFileWriter::DtTokens
{
    using Writer = DtVariantRecordFileWriter;
    static const DtTokenTable<Writer>& own()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!ClassNetName!>",          [](const Writer& w) { return DtReplaceSubstring(w.myClassName, "Dt", "DtNet"); }},
            {"<!ClassDiscriminantName!>", [](const Writer& w) { return w.discriminantName(); }                            },
            {"<!ClassDiscriminantType!>", [](const Writer& w) { return w.discriminantType(); }                            },
            {"<!ClassEncoding!>",         [](const Writer& w) { return literalText(w.currentEncoding()); }                },
            {"<!ClassVariantKind!>",      [](const Writer& w) { return toolkitKindOfVariant(w.currentEncoding()); }       },
            {"<!AlternativeSelector!>",   [](const Writer& w) { return literalText(w.currentSelector()); }                },
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
    // The same text as in the enumerations header; a list or a range keeps its commas and brackets.
    static DtString currentEnumerator(const Writer& w)
    {
        return DtEnumerationFileWriter::cleanedValueName(w.currentAttribute()->discrimininantValue());
    }
    static DtString isVariantRecord(const Writer& w) { return holdsVariantRecord(*w.currentAttribute()) ? "1" : ""; }
    static const DtTokenTable<Writer>& ofAttribute()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!CurrentDiscriminantEnumerator!>", currentEnumerator},
            {"<!NetTypeIsVariantRecord!>",        isVariantRecord  },
        };
        static const DtTokenTable<Writer> theTable(theRows, [](const Writer& w) { return hasCurrentAttribute(w); });
        return theTable;
    }
};

namespace
{

// A number, a truth value or an enumeration, ready-made or generated.
bool canSelect(const DtString& type, const DtOMTTree* tree)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    if (mapper.isEnumeration(type) || memberType(type) == "bool")
        return true;
    if (DtDatatypeClassNames::instance().contains(type))
        return tree != nullptr &&
               (tree->getSimpleDatatypeNode(type) != nullptr || tree->getBasicDataRepresentationNode(type) != nullptr);
    const DtNumberForm form = numberFormOf(type);
    return form.octets > 0 && !form.isFloat && memberType(type) == numberTypeOf(form);
}

} // namespace

bool hasVariantMember(const DtString& datatype)
{
    return !datatype.isEmpty() && datatype != "NA" && datatype != "N/A";
}

DtVariantRecordFileWriter::DtVariantRecordFileWriter(const DtString& fileName, const DtString& templateName)
    : DtCodedDataTypeFileWriter(fileName, templateName, names()),
      myDiscriminant("", "DtInt32"),
      myOwnTokens(DtTokens::own(), this, DtTokenMemory::OneLine),
      myMemberTokens(DtTokens::ofAttribute(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myOwnTokens, &myMemberTokens});
}

void DtVariantRecordFileWriter::writeMultipleTimes(const DtString& loopName, std::istream& stream)
{
    if (loopName == "Discriminant")
        writeDiscriminant(stream);
    else if (loopName == "ValuelessAlternatives")
        writeValuelessAlternatives(stream);
    else
        DtCodedDataTypeFileWriter::writeMultipleTimes(loopName, stream);
}

void DtVariantRecordFileWriter::compileIncludeList()
{
    DtCodedDataTypeFileWriter::compileIncludeList();
    const DtString stem = DtDatatypeClassNames::instance().fileStemOf(myDiscriminant.datatype());
    if (!stem.isEmpty())
        myIncludeFiles.push_back(stem);
}

void DtVariantRecordFileWriter::determineDecodeability()
{
    DtCodedDataTypeFileWriter::determineDecodeability();
    if (!myHasFittingDiscriminant)
        DtTellWarning(DtRules::unfitDiscriminant, discriminantSubject(),
                      "Warning: The discriminant of " + myClassName + " is no number and no enumeration: " +
                          myDiscriminant.datatype() + ". A number of 32 bits stands for it.\n");
}

// The discriminant is that of the datatype that was compiled last.
DtSubject DtVariantRecordFileWriter::discriminantSubject() const
{
    if (myCompiledDatatypes.empty())
        return DtSubject::none();
    return DtSubject::field(myDiscriminant.name(), myCompiledDatatypes.back().first->getName());
}

void DtVariantRecordFileWriter::compileAttributes(DtVariantDatatypeNode* node, DtOMTTree* tree)
{
    if (isCompiled(*node))
        return;
    setDiscriminant(node->getDiscriminant(), node->getDatatype(), tree);
    myValuelessSelectors.clear();
    std::vector<DtAttribute> members;
    for (const DtAlternativeComponentNode* alternative : node->components())
    {
        if (!hasVariantMember(alternative->getDatatype()))
        {
            myValuelessSelectors.push_back(alternative->getEnumerator());
            continue;
        }
        members.push_back(makeMember(alternative->getName(), alternative->getDatatype(), "0-1"));
        members.back().setDiscriminantValue(alternative->getEnumerator());
        members.back().setDocumentation(DtDocumentation::instance().of(*alternative));
    }
    const DtString& name = node->getName();
    registerNetTypeTraits(name, DtDataTypeMapper::instance()->quorvexType(name), members, tree);
    addCompiled(node, members, DtDocumentation::instance().of(*node));
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

void DtVariantRecordFileWriter::setDiscriminant(const DtString& name, const DtString& type, const DtOMTTree* tree)
{
    myHasFittingDiscriminant = canSelect(type, tree);
    myDiscriminant = makeMember(name, type, "1");
    if (!myHasFittingDiscriminant)
        myDiscriminant.setType("DtInt32");
}

std::vector<const DtAttribute*> DtVariantRecordFileWriter::typedMembers() const
{
    std::vector<const DtAttribute*> members = DtCodedDataTypeFileWriter::typedMembers();
    members.insert(members.begin(), &myDiscriminant);
    return members;
}

void DtVariantRecordFileWriter::writeDiscriminant(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    setCurrentAttribute(&myDiscriminant);
    writeBodyFrom(stream, start);
    setCurrentAttribute(nullptr);
}

void DtVariantRecordFileWriter::writeValuelessAlternatives(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    for (const DtString& selector : myValuelessSelectors)
    {
        myCurrentSelector = selector;
        writeBodyFrom(stream, start);
    }
    myCurrentSelector = DtString();
}

DtString DtVariantRecordFileWriter::currentSelector() const
{
    return currentAttribute() != nullptr ? currentAttribute()->discrimininantValue() : myCurrentSelector;
}

DtString DtVariantRecordFileWriter::currentEncoding() const
{
    const DtOMTNode* node = myCurrentDatatype;
    return node == nullptr ? DtString() : static_cast<const DtVariantDatatypeNode*>(node)->getEncoding();
}
