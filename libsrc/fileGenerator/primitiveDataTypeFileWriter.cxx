#include "fileGenerator/primitiveDataTypeFileWriter.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/settings.h"
#include "foundation/stringUtils.h"
#include "omtReader/omtNode.h"

struct DtPrimitiveDataTypeFileWriter::DtTokens
{
    using Writer = DtPrimitiveDataTypeFileWriter;
    static const DtTokenTable<Writer>& ofAttribute()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!NumberType!>",
             [](const Writer& w) { return numberTypeOf(numberFormOf(w.currentAttribute()->datatype())); }},
        };
        static const DtTokenTable<Writer> theTable(theRows, [](const Writer& w) { return hasCurrentAttribute(w); });
        return theTable;
    }
};

namespace
{

struct DtPrimitiveRow
{
    const char *bits8, *bits16, *bits32, *bits64, *other;
};

const DtPrimitiveRow theFloats = {"DtFloat", "DtFloat", "DtFloat32", "DtFloat64", "DtFloat"};
const DtPrimitiveRow theSigned = {"DtInt8", "DtInt16", "DtInt32", "DtInt64", "DtInt64"};
const DtPrimitiveRow theUnsigned = {"DtU8", "DtU16", "DtU32", "DtU64", "DtU8"}; // and all that is no number

const DtPrimitiveRow& rowFor(const DtString& representation)
{
    if (isFloatRepresentation(representation))
        return theFloats;
    return isSignedRepresentation(representation) ? theSigned : theUnsigned;
}

} // namespace

DtString primitiveType(const DtString& representation, int bits)
{
    const DtPrimitiveRow& row = rowFor(representation);
    switch (bits)
    {
    case 8:
        return row.bits8;
    case 16:
        return row.bits16;
    case 32:
        return row.bits32;
    case 64:
        return row.bits64;
    default:
        return row.other;
    }
}

DtPrimitiveDataTypeFileWriter::DtPrimitiveDataTypeFileWriter(const DtString& fileName, const DtString& templateName,
                                                             DtCCompatibleNames& names)
    : DtCodedDataTypeFileWriter(fileName, templateName, names),
      myMemberTokens(DtTokens::ofAttribute(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myMemberTokens});
}

void DtPrimitiveDataTypeFileWriter::compileIncludeList()
{
}

void DtPrimitiveDataTypeFileWriter::compilePrimitive(DtOMTNode* node, const DtString& representation,
                                                     const DtString& documentation)
{
    if (isCompiled(*node))
        return;
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const DtString& name = node->getName();
    const DtString prefixed = DtSettings::instance().cpp.prefixName + name;
    myIncludeFiles.push_back(DtFirstCharToLowerConditional(prefixed));
    DtAttribute number(identifier(name), "Dt" + prefixed);
    number.setCardinality(mapper.cardinalityOfArrayType(name));
    number.setDatatype(name);
    number.setEncoding(mapper.encOfDatatype(name));
    number.setDatatypeDatatype(primitiveType(representation, mapper.infoForBasicType(name).first.toInt()));
    number.setIsFloat(isFloatRepresentation(representation));
    addCompiled(node, {number}, documentation);
}
