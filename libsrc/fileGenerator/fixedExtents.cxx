#include "fileGenerator/fixedExtents.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/datatypeShape.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/toolkitLayouts.h"
#include "foundation/perRun.h"
#include "omtReader/omtTree.h"

#include <algorithm>

namespace
{

constexpr int theMostDepth = 64;           // records within records, for the sake of the stack
constexpr int theMostOctets = 1 << 20;     // what a buffer is asked for at once
constexpr int theLongestEnumeration = 8;   // octets
constexpr std::size_t theMostNumbers = 16; // more than any record of the toolkit has

DtFixedExtent ofShape(const DtString& datatype, const DtOMTTree& tree)
{
    const DtDatatypeShape shape = shapeOf(datatype, tree, theMostNumbers);
    return shape.fault.isEmpty() ? DtFixedExtent{shape.octets, shape.boundary} : DtFixedExtent();
}

// Of datatypes with one class the last in line decides what the class is like.
bool hasClassOfItsOwn(const DtString& record, const DtOMTTree& tree)
{
    const DtDatatypeClassNames& names = DtDatatypeClassNames::instance();
    return names.contains(record) && !names.isShared(record) && tree.getVariantDatatypeNode(record) == nullptr;
}

// As the enumerations header tells it, unless it had to guess.
DtFixedExtent ofEnumeration(const DtEnumeratedDatatypeNode& enumeration, const DtOMTTree& tree)
{
    const DtFixedExtent extent = ofShape(enumeration.getName(), tree);
    const bool isTold = extent.octets == numberFormOf(enumeration.getRepresentation()).octets;
    return isTold && extent.octets <= theLongestEnumeration ? extent : DtFixedExtent();
}

} // namespace

DtFixedExtents& DtFixedExtents::instance()
{
    return DtPerRun<DtFixedExtents>();
}

DtFixedExtent DtFixedExtents::ofRecord(const DtFixedDatatypeNode& record, const DtOMTTree& tree)
{
    if (!hasClassOfItsOwn(record.getName(), tree))
        return {};
    const auto known = myRecords.emplace(record.getName(), DtFixedExtent());
    if (!known.second || myDepth >= theMostDepth)
        return known.first->second;
    ++myDepth;
    const DtFixedExtent extent = ofFields(record, tree);
    --myDepth;
    return myRecords[record.getName()] = extent;
}

// Each field begins at its boundary, and nothing is added behind the last (IEEE 1516.2, HLAfixedRecord).
DtFixedExtent DtFixedExtents::ofFields(const DtFixedDatatypeNode& record, const DtOMTTree& tree)
{
    DtFixedExtent whole;
    for (const DtFieldComponentNode* field : record.components())
    {
        const DtFixedExtent part = ofField(field->getDatatype(), tree);
        if (part.octets == 0 || whole.octets > theMostOctets)
            return {};
        whole.octets = nextPlace(whole.octets, part.boundary) + part.octets;
        whole.boundary = std::max(whole.boundary, part.boundary);
    }
    return whole;
}

DtFixedExtent DtFixedExtents::ofField(const DtString& fieldType, const DtOMTTree& tree)
{
    const DtDatatypeClassNames& names = DtDatatypeClassNames::instance();
    const DtString datatype = DtDataTypeMapper::instance()->behindReferences(fieldType);
    const DtFixedDatatypeNode* record = tree.getFixedDatatypeNode(datatype);
    if (record != nullptr && names.contains(datatype))
        return ofRecord(*record, tree);
    const DtEnumeratedDatatypeNode* enumeration = tree.getEnumeratedDatatypeNode(datatype);
    if (names.isGeneratedEnumeration(datatype) && enumeration != nullptr)
        return ofEnumeration(*enumeration, tree);
    return hasToolkitNumbers(datatype, tree) ? ofShape(datatype, tree) : DtFixedExtent();
}
