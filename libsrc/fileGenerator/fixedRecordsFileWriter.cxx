#include "fileGenerator/fixedRecordsFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/documentation.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/netTypeTraits.h"
#include "fileGenerator/representationWalk.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"
#include "omtReader/fixedDatatypeNode.h"

static DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, class DtFixedRecordFileWriter>();
}

namespace
{

// A text is encoded like the array that its datatype is built on, when the datatype itself names no encoding.
DtString encodingOfText(const DtString& datatype)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const auto below = [&mapper](const DtString& name) { return mapper.repOfSimpleType(name); };
    for (const DtString& name : followRepresentations(datatype, below).names)
    {
        if (!mapper.encOfDatatype(name).isEmpty())
            return mapper.encOfDatatype(name);
    }
    return DtString();
}

DtAttribute fieldMember(const DtFieldComponentNode& field)
{
    DtAttribute member = makeMember(field.getName(), field.getDatatype(), "1");
    if (member.type() == "DtString")
        member.setEncoding(encodingOfText(field.getDatatype()));
    member.setDocumentation(DtDocumentation::instance().of(field));
    return member;
}

} // namespace

struct DtFixedRecordFileWriter::DtTokens
{
    using Writer = DtFixedRecordFileWriter;
    static const DtTokenTable<Writer>& own()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!ClassNetName!>",       [](const Writer& w) { return DtReplaceSubstring(w.myClassName, "Dt", "DtNet"); }},
            {"<!ClassFixedOctets!>",
             [](const Writer& w) { return w.extent().octets != 0 ? DtString(w.extent().octets) : DtString(); }         },
            {"<!ClassFixedBoundary!>", [](const Writer& w) { return DtString(w.extent().boundary); }                   },
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
    static const DtTokenTable<Writer>& ofAttribute()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!NetTypeIsVariableSize!>",
             [](const Writer& w) -> DtString
             {
                 const DtString& netType = w.currentAttribute()->netType();
                 return DtDataTypeMapper::instance()->isVariableSizeNetType(netType) ? "1" : "";
             }                                                                                               },
            {"<!NetTypeIsVariantRecord!>",
             [](const Writer& w) -> DtString { return holdsVariantRecord(*w.currentAttribute()) ? "1" : ""; }},
        };
        static const DtTokenTable<Writer> theTable(theRows, [](const Writer& w) { return hasCurrentAttribute(w); });
        return theTable;
    }
};

DtFixedRecordFileWriter::DtFixedRecordFileWriter(const DtString& fileName, const DtString& templateName)
    : DtCodedDataTypeFileWriter(fileName, templateName, names()),
      myOwnTokens(DtTokens::own(), this, DtTokenMemory::OneLine),
      myMemberTokens(DtTokens::ofAttribute(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myOwnTokens, &myMemberTokens});
}

void DtFixedRecordFileWriter::compileAttributes(DtFixedDatatypeNode* node, DtOMTTree* tree)
{
    if (isCompiled(*node))
        return;
    std::vector<DtAttribute> members;
    for (const DtFieldComponentNode* field : node->components())
        members.push_back(fieldMember(*field));
    const DtString& name = node->getName();
    registerNetTypeTraits(name, DtDataTypeMapper::instance()->quorvexType(name), members, tree);
    myExtents[node] = DtFixedExtents::instance().ofRecord(*node, *tree);
    addCompiled(node, members, DtDocumentation::instance().of(*node));
}

DtFixedExtent DtFixedRecordFileWriter::extent() const
{
    const auto found = myExtents.find(myCurrentDatatype);
    return found != myExtents.end() ? found->second : DtFixedExtent();
}
