#include "fileGenerator/arrayDataTypeFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/documentation.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/netTypeTraits.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/settings.h"
#include "fileGenerator/valueForm.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"
#include "omtReader/arrayDatatypeNode.h"

static DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, class DtArrayDataTypeFileWriter>();
}

static const char theEncodingToken[] = "<!MyEncoding!>";

// The encoding that the kind of an array tells by itself; empty when it tells none.
static DtString encodingOf(DtArrayCardinality kind)
{
    switch (kind)
    {
    case DtArrayFixed:
        return "HLAfixedArray";
    case DtArrayNullTerminated:
        return "HLAnullTerminatedArray";
    case DtArrayLengthless:
        return "HLAlengthlessVarArray";
    case DtArrayVariable:
        return "HLAvariableArray";
    case DtArrayNotDerived:
    case DtArrayBounded:
    case DtArrayPadded:
    case DtArrayOfBits:
    case DtArrayMultiDim:
        break;
    }
    return DtString();
}

struct DtArrayDataTypeFileWriter::DtTokens
{
    using Writer = DtArrayDataTypeFileWriter;
    static const DtTokenTable<Writer>& encoding()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {theEncodingToken, [](const Writer& w) { return w.encodingOrToken(); }},
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
    static const DtTokenTable<Writer>& own()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!ClassPrefix!>",       [](const Writer&) { return DtSettings::instance().cpp.prefixName; }             },
            {"<!ArrayElementCount!>", [](const Writer& w) { return DtString(elementCountOf(w.currentCardinality())); }},
            {"<!ArrayEncoding!>",     [](const Writer& w) { return w.currentEncoding(); }                             },
            {"<!ArrayLayout!>",       [](const Writer& w) { return w.currentLayout(); }                               },
        };
        static const DtTokenTable<Writer> theTable(theRows);
        return theTable;
    }
    static const DtTokenTable<Writer>& ofTokenArray()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!TokenCardinality!>", [](const Writer&) { return DtString("-1"); }},
        };
        static const DtTokenTable<Writer> theTable(theRows, [](const Writer& w)
                                                   { return DtContainsSubstring(w.myOriginalName, "HLAtoken"); });
        return theTable;
    }
};

DtArrayDataTypeFileWriter::DtArrayDataTypeFileWriter(const DtString& fileName, const DtString& templateName,
                                                     const DtString& encoding)
    : DtCodedDataTypeFileWriter(fileName, templateName, names()),
      myEncoding(encoding),
      myEncodingTokens(DtTokens::encoding(), this, DtTokenMemory::OneLine),
      myOwnTokens(DtTokens::own(), this, DtTokenMemory::OneLine),
      myTokenArrayTokens(DtTokens::ofTokenArray(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myEncodingTokens, &myOwnTokens, &myTokenArrayTokens});
}

void DtArrayDataTypeFileWriter::compileAttributes(DtArrayDatatypeNode* node, DtOMTTree* tree)
{
    if (isCompiled(*node))
        return;
    const DtString& name = node->getName();
    const std::vector<DtAttribute> members = {
        makeMember(identifier(name), node->getDatatype(), node->getCardinality())};
    registerNetTypeTraits(name, DtDataTypeMapper::instance()->quorvexType(name), members, tree);
    addCompiled(node, members, DtDocumentation::instance().of(*node));
}

DtString DtArrayDataTypeFileWriter::encodingName() const
{
    if (!myEncoding.isEmpty())
        return myEncoding;
    const DtArrayDatatypeNode* node = currentNode();
    if (node == nullptr)
        return DtString();
    return encodingOf(static_cast<DtArrayCardinality>(node->getCardinalityType()));
}

// The token stays in a line where nothing tells the encoding.
DtString DtArrayDataTypeFileWriter::encodingOrToken() const
{
    const DtString name = encodingName();
    if (!name.isEmpty())
        return name;
    const DtArrayDatatypeNode* node = currentNode();
    DtTellWarning(DtRules::unknownCardinality,
                  node != nullptr ? DtSubject::datatype(node->getName()) : DtSubject::none(),
                  "Warning: Cannot find cardinality of " + myClassName + "\n");
    return theEncodingToken;
}

// The encoding goes by the kind of array ahead of the model's word, and is warned about as where a template names it.
DtString DtArrayDataTypeFileWriter::currentLayout() const
{
    const DtString encoding = encodingOrToken();
    const bool isTold = encoding != theEncodingToken;
    return arrayLayoutCall(isTold ? encoding : currentEncoding(), elementCountOf(currentCardinality()));
}

const DtArrayDatatypeNode* DtArrayDataTypeFileWriter::currentNode() const
{
    const DtOMTNode* node = myCurrentDatatype;
    if (node == nullptr && !myCompiledDatatypes.empty())
        node = myCompiledDatatypes.front().first;
    return static_cast<const DtArrayDatatypeNode*>(node);
}

DtString DtArrayDataTypeFileWriter::currentCardinality() const
{
    const DtArrayDatatypeNode* node = currentNode();
    return node == nullptr ? DtString() : node->getCardinality();
}

DtString DtArrayDataTypeFileWriter::currentEncoding() const
{
    const DtArrayDatatypeNode* node = currentNode();
    return node == nullptr ? DtString() : node->getEncoding();
}
