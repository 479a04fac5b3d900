#include "fileGenerator/basicDataTypeFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/documentation.h"
#include "fileGenerator/settings.h"
#include "foundation/perRun.h"
#include "omtReader/basicDataRepresentationNode.h"

static DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, class DtBasicDataTypeFileWriter>();
}

struct DtBasicDataTypeFileWriter::DtTokens
{
    using Writer = DtBasicDataTypeFileWriter;
    static const DtTokenTable<Writer>& ofAttribute()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!BasicSize!>", [](const Writer& w) { return w.sizeOfAttribute(); }},
        };
        static const DtTokenTable<Writer> theTable(theRows, [](const Writer& w) { return hasCurrentAttribute(w); });
        return theTable;
    }
    static const DtTokenTable<Writer>& own()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!ClassPrefix!>", [](const Writer&) { return DtSettings::instance().cpp.prefixName; }                  },
            {"<!size!>",        [](const Writer& w) { return DtString(w.basicInfo().first.toInt() / 8); }            },
            {"<!EndianMatch!>", [](const Writer& w) -> DtString { return w.basicInfo().second == "Big" ? "0" : "1"; }},
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
};

DtBasicDataTypeFileWriter::DtBasicDataTypeFileWriter(const DtString& fileName, const DtString& templateName)
    : DtPrimitiveDataTypeFileWriter(fileName, templateName, names()),
      myMemberTokens(DtTokens::ofAttribute(), this, DtTokenMemory::OneLine),
      myOwnTokens(DtTokens::own(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myMemberTokens, &myOwnTokens});
}

void DtBasicDataTypeFileWriter::compileAttributes(DtBasicDataRepresentationNode* node)
{
    compilePrimitive(node, node->getName(), DtDocumentation::instance().of(*node));
}

DtDataTypeMapper::DtBasicTypeInfo DtBasicDataTypeFileWriter::basicInfo() const
{
    const DtOMTNode* node = myCurrentDatatype;
    if (node == nullptr && !myCompiledDatatypes.empty())
        node = myCompiledDatatypes.front().first;
    return node == nullptr ? DtDataTypeMapper::DtBasicTypeInfo()
                           : DtDataTypeMapper::instance()->infoForBasicType(node->getName());
}

// The attribute bears the type's name, as an identifier where that differs.
DtString DtBasicDataTypeFileWriter::sizeOfAttribute() const
{
    const DtString& size = DtDataTypeMapper::instance()->infoForBasicType(currentAttribute()->name()).first;
    return size.isEmpty() ? basicInfo().first : size;
}
