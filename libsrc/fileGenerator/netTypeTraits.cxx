#include "fileGenerator/netTypeTraits.h"

#include "fileGenerator/attribute.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/datatypeClosure.h"
#include "foundation/stringUtils.h"
#include "omtReader/visitDatatype.h"

#include <set>

namespace
{

// True when the kind of an array leaves its size open. A bounded array counts as one of fixed size.
bool isOpen(DtArrayCardinality kind)
{
    switch (kind)
    {
    case DtArrayNullTerminated:
    case DtArrayPadded:
    case DtArrayLengthless:
    case DtArrayVariable:
        return true;
    case DtArrayNotDerived:
    case DtArrayFixed:
    case DtArrayBounded:
    case DtArrayOfBits:
    case DtArrayMultiDim:
        break;
    }
    return false;
}

// Walks everything that a datatype is made of, each datatype once. A work list, so that neither cycles nor long chains
// of types do harm.
class DtTraitSearch
{
public:
    explicit DtTraitSearch(const DtOMTTree& tree) : myTree(tree) {}

    void run(const DtString& datatype)
    {
        add(datatype);
        visitStructure(datatype);
        while (!myPending.empty() && !(myIsVariable && myHasVariant))
        {
            const DtString next = myPending.back();
            myPending.pop_back();
            visit(next);
        }
    }
    bool isVariable() const { return myIsVariable; }
    bool hasVariant() const { return myHasVariant; }

private:
    void add(const DtString& datatype)
    {
        if (mySeen.insert(datatype).second)
            myPending.push_back(datatype);
    }

    // A type that the toolkit stands in for is not looked into.
    void visit(const DtString& datatype)
    {
        const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
        const DtString& type = mapper.quorvexType(datatype);
        if (type.isEmpty() || DtDatatypeClassNames::instance().contains(datatype))
            visitStructure(datatype);
        else if (mapper.isVariableSizeNetType(type))
            myIsVariable = true;
    }

    // All that bears the name counts.
    void visitStructure(const DtString& datatype)
    {
        visitEachDatatype(myTree, datatype,
                          DtVisitor{[](const DtBasicDataRepresentationNode&) {},
                                    [this](const DtSimpleDatatypeNode& simple) { add(simple.getRepresentation()); },
                                    [](const DtEnumeratedDatatypeNode&) {},
                                    [this](const DtArrayDatatypeNode& array) { visitArray(array); },
                                    [this](const DtFixedDatatypeNode& record) { addComponents(record); },
                                    [this](const DtComplexDatatypeNode& record) { addComponents(record); },
                                    [this](const DtVariantDatatypeNode& record) { visitVariant(record); },
                                    [this](const DtReferenceDatatypeNode& reference)
                                    { add(reference.getRepresentation()); }});
    }

    void visitVariant(const DtVariantDatatypeNode& record)
    {
        myHasVariant = true;
        add(record.getDatatype());
        addComponents(record);
    }

    void visitArray(const DtArrayDatatypeNode& array)
    {
        if (isOpen(static_cast<DtArrayCardinality>(array.getCardinalityType())))
            myIsVariable = true;
        add(array.getDatatype());
    }

    template <typename Record>
    void addComponents(const Record& record)
    {
        for (const DtString& datatype : componentDatatypes(record))
            add(datatype);
    }

    const DtOMTTree& myTree;
    std::set<DtString> mySeen;
    std::vector<DtString> myPending;
    bool myIsVariable = false;
    bool myHasVariant = false;
};

} // namespace

void registerNetTypeTraits(const DtString& datatype, const DtString& netType, const DtOMTTree* tree)
{
    if (tree == nullptr)
        return;
    DtTraitSearch search(*tree);
    search.run(datatype);
    if (search.isVariable())
        DtDataTypeMapper::instance()->addVariableSizeNetType(netType);
    if (search.hasVariant())
        DtDataTypeMapper::instance()->addNetTypeWithVariantRecord(netType);
}

void registerNetTypeTraits(const DtString& datatype, const DtString& className, const std::vector<DtAttribute>& members,
                           const DtOMTTree* tree)
{
    registerNetTypeTraits(datatype, DtReplaceSubstring(className, "Dt", "DtNet"), tree);
    for (const DtAttribute& member : members)
    {
        if (DtDatatypeClassNames::instance().contains(member.datatype()))
            registerNetTypeTraits(member.datatype(), member.netType(), tree);
    }
}

bool holdsVariantRecord(const DtAttribute& member)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    return mapper.isVariantRecord(member.datatype()) || mapper.hasVariantRecord(member.netType());
}
