#include "fileGenerator/dataTypeMapper.h"

#include "fileGenerator/settings.h"
#include "foundation/stringUtils.h"
#include "omtReader/arrayDatatypeNode.h"
#include "omtReader/basicDataRepresentationNode.h"
#include "omtReader/complexComponentNode.h"
#include "omtReader/complexDatatypeNode.h"
#include "omtReader/fixedDatatypeNode.h"
#include "omtReader/omtTree.h"
#include "omtReader/simpleDatatypeNode.h"
#include "omtReader/variantDatatypeNode.h"

#include <algorithm>

namespace
{

const char* const theKnownTypes[] = {
    "DtU8",
    "DtU16",
    "DtU32",
    "DtU64",
    "DtInt8",
    "DtInt16",
    "DtInt32",
    "DtInt64",
    "DtFloat32",
    "DtFloat64",
    "bool",
    "DtString",
    "DtGlobalObjectDesignator",
    "DtVector",
    "DtVector32",
    "DtVector64",
    "DtEntityType",
    "DtEntityIdentifier",
    "DtTaitBryan",
    "DtHlaLogicalTime",
    "DtHlaLogicalTimeInterval",
};

const char* const theLittleEndianTypes[] = {
    "HLAfloat32LE",        "HLAfloat64LE",        "HLAinteger16LE",      "HLAinteger32LE",
    "HLAinteger64LE",      "Unsignedinteger16LE", "Unsignedinteger32LE", "Unsignedinteger64LE",
    "UnsignedInteger16LE", "UnsignedInteger32LE", "UnsignedInteger64LE",
};

// The toolkit has no signed 8-bit type and no little-endian signed 64-bit type here.
const char* const theNetTypes[] = {
    "DtNetU8",
    "DtNetU16",
    "DtNetU32",
    "DtNetU64",
    "DtNetFloat32",
    "DtNetFloat64",
    "DtNetInt16",
    "DtNetInt32",
    "DtNetInt64",
    "DtLEU8",
    "DtLEU16",
    "DtLEU32",
    "DtLEU64",
    "DtLEFloat32",
    "DtLEFloat64",
    "DtLEInt16",
    "DtLEInt32",
    "DtNetBoolean",
    "DtNetVector32",
    "DtNetVector64",
    "DtNetEntityType",
    "DtNetEulerAngles",
    "DtNetEntityIdentifier",
};

struct DtBoundary
{
    const char* type;
    unsigned int octets;
};
const DtBoundary theBoundaries[] = {
    {"DtU8",                     1},
    {"DtInt8",                   1},
    {"bool",                     1},
    {"DtString",                 1},
    {"DtGlobalObjectDesignator", 1},
    {"DtU16",                    2},
    {"DtInt16",                  2},
    {"DtEntityType",             2},
    {"DtEntityIdentifier",       2},
    {"DtU32",                    4},
    {"DtInt32",                  4},
    {"DtFloat32",                4},
    {"DtVector32",               4},
    {"DtVector",                 4},
    {"DtTaitBryan",              4},
    {"DtHlaLogicalTime",         4},
    {"DtHlaLogicalTimeInterval", 4},
    {"DtU64",                    8},
    {"DtInt64",                  8},
    {"DtFloat64",                8},
    {"DtVector64",               8},
};

// Known types that are not here have neither value, DtInt8 among them.
struct DtTypeValues
{
    const char* type;
    const char* initial;
    const char* sample;
};
const DtTypeValues theTypeValues[] = {
    {"DtU32",     "0",     "32"  },
    {"DtU64",     "0",     "32"  },
    {"DtU16",     "0",     "32"  },
    {"DtInt16",   "0",     "32"  },
    {"DtInt32",   "0",     "32"  },
    {"DtInt64",   "0",     "32"  },
    {"DtU8",      "0",     "32"  },
    {"DtFloat32", "0.0",   "7.02"},
    {"DtFloat64", "0.0",   "7.02"},
    {"bool",      "false", "true"},
};

// Their sample value is the given text as a literal.
const char* const theQuotedTypes[] = {"DtString", "DtGlobalObjectDesignator", "std::vector<DtU8>"};

const char* const theVariableSizeNetTypes[] = {"DtString", "DtNetGlobalObjectDesignator", "DtGlobalObjectDesignator"};

const char theCommonInteger[] = "HLAinteger32BE"; // taken to exist in every model
const char theVectorOpening[] = "std::vector<";

template <typename Table>
bool contains(const Table& table, const DtString& name)
{
    return std::find(std::begin(table), std::end(table), name) != std::end(table);
}

template <typename Table, typename Value>
const Value& lookUp(const Table& table, const DtString& name, const Value& unknown)
{
    const auto found = table.find(name);
    return found != table.end() ? found->second : unknown;
}

template <typename Table>
const DtString& lookUp(const Table& table, const DtString& name)
{
    return lookUp(table, name, DtString::nullString());
}

const DtTypeValues* valuesOf(const DtString& type)
{
    const auto* found = std::find_if(std::begin(theTypeValues), std::end(theTypeValues),
                                     [&type](const DtTypeValues& row) { return type == row.type; });
    return found != std::end(theTypeValues) ? found : nullptr;
}

} // namespace

DtDataTypeMapper* DtDataTypeMapper::instance()
{
    return &DtPerRun<DtDataTypeMapper>();
}

DtDataTypeMapper::DtDataTypeMapper()
{
    DtDataTypeMapper::initializeKnownTypes();
    DtDataTypeMapper::initializeOctetboundaries();
}

DtDataTypeMapper::~DtDataTypeMapper() = default;

void DtDataTypeMapper::populateFromOmtTree(DtOMTTree* tree)
{
    if (tree == nullptr)
        return;
    myReferences.clear(); // those of an earlier model, whose names may be other datatypes here
    for (const DtReferenceDatatypeNode* node : tree->referenceDatatypes())
        myReferences[node->getName()] = node->getRepresentation();
    addBasicTypes(tree);
    addSimpleTypes(tree);
    addArrayTypes(tree);
    addVariantTypes(tree);
    addComplexTypes(tree);
    addFixedTypes(tree);
}

void DtDataTypeMapper::setPredefinedTypes(const DtStringMap& types)
{
    myMappings = {types.begin(), types.end()};
}

void DtDataTypeMapper::addMapping(const DtString& name, const DtString& type)
{
    myMappings[name] = type;
}

bool DtDataTypeMapper::hasMapping(const DtString& name) const
{
    return myMappings.count(name) != 0;
}

void DtDataTypeMapper::clearMappings()
{
    myMappings.clear();
}

const DtString& DtDataTypeMapper::quorvexType(const DtString& name) const
{
    return lookUp(myMappings, name);
}

void DtDataTypeMapper::initializeKnownTypes()
{
    myKnownTypes.assign(std::begin(theKnownTypes), std::end(theKnownTypes));
    myNetTypes.assign(std::begin(theNetTypes), std::end(theNetTypes));
    myLittleEndianTypes.assign(std::begin(theLittleEndianTypes), std::end(theLittleEndianTypes));
}

void DtDataTypeMapper::initializeOctetboundaries()
{
    for (const DtBoundary& boundary : theBoundaries)
        addDataTypeNameToBoundary(boundary.type, boundary.octets);
}

bool DtDataTypeMapper::isKnownType(const DtString& name) const
{
    return contains(myKnownTypes, name);
}

bool DtDataTypeMapper::isQuorvexNetType(const DtString& name) const
{
    return contains(myNetTypes, name);
}

bool DtDataTypeMapper::isLittleEndian(const DtString& name) const
{
    return contains(myLittleEndianTypes, name);
}

DtString DtDataTypeMapper::initialValueFromType(const DtString& type) const
{
    if (const DtTypeValues* values = valuesOf(type))
        return values->initial;
    return isEnumeration(type) ? type + "(0)" : DtString();
}

DtString DtDataTypeMapper::sampleValueFromType(const DtString& type, const DtString& value) const
{
    if (const DtTypeValues* values = valuesOf(type))
        return values->sample;
    if (isEnumeration(type))
        return type + "(2)";
    return contains(theQuotedTypes, type) ? "\"" + value + "\"" : DtString();
}

void DtDataTypeMapper::addVariableSizeNetType(const DtString& name)
{
    myVariableSizeNetTypes.insert(name);
}

bool DtDataTypeMapper::isVariableSizeNetType(const DtString& name) const
{
    return contains(theVariableSizeNetTypes, name) || myVariableSizeNetTypes.count(name) != 0;
}

void DtDataTypeMapper::addNetTypeWithVariantRecord(const DtString& name)
{
    myNetTypesWithVariantRecord.insert(name);
}

bool DtDataTypeMapper::hasVariantRecord(const DtString& name) const
{
    return myNetTypesWithVariantRecord.count(name) != 0;
}

void DtDataTypeMapper::addNonEncodeableDataType(const DtString& name)
{
    myNonEncodeableDataTypes.insert(name);
}

DtString DtDataTypeMapper::behindReferences(const DtString& name) const
{
    DtString behind = name;
    for (std::size_t steps = 0; steps <= myReferences.size(); ++steps)
    {
        const auto reference = myReferences.find(behind);
        if (reference == myReferences.end())
            return behind;
        behind = reference->second;
    }
    return name;
}

bool DtDataTypeMapper::refusesCoding(const DtString& name) const
{
    return !DtSettings::instance().files.codesOpenArrays && isNonEncodeableDataType(name);
}

bool DtDataTypeMapper::isNonEncodeableDataType(const DtString& name) const
{
    if (!DtContainsSubstring(name, theVectorOpening))
        return myNonEncodeableDataTypes.count(name) != 0;
    const DtString element = DtReplaceSubstring(DtReplaceSubstring(name, theVectorOpening, ""), ">", "");
    return myNonEncodeableDataTypes.count(element) != 0;
}

void DtDataTypeMapper::addDataTypeNameToBoundary(const DtString& name, unsigned int boundary)
{
    myDataTypeNameToBoundary[name] = boundary;
}

const DtDataTypeMapper::DtNumberMap& DtDataTypeMapper::dataTypeNameToBoundary() const
{
    return myDataTypeNameToBoundary;
}

unsigned int DtDataTypeMapper::boundaryFromDataTypeName(const DtString& name) const
{
    return lookUp(myDataTypeNameToBoundary, name, 0U);
}

void DtDataTypeMapper::addDataTypeNameToSize(const DtString& name, unsigned int size)
{
    myDataTypeNameToSize[name] = size;
}

const DtDataTypeMapper::DtNumberMap& DtDataTypeMapper::dataTypeNameToSize() const
{
    return myDataTypeNameToSize;
}

unsigned int DtDataTypeMapper::sizeFromDataTypeName(const DtString& name) const
{
    return lookUp(myDataTypeNameToSize, name, 0U);
}

void DtDataTypeMapper::addEnumerationSizeMapping(const DtString& name, const DtString& size)
{
    myEnumerationSizes[name] = size;
}

const DtString& DtDataTypeMapper::enumerationSize(const DtString& name) const
{
    return lookUp(myEnumerationSizes, name, myDefaultEnumerationSize);
}

void DtDataTypeMapper::addEnumeration(const DtString& name)
{
    myEnumerations.insert(name);
}

bool DtDataTypeMapper::isEnumeration(const DtString& name) const
{
    return myEnumerations.count(name) != 0;
}

void DtDataTypeMapper::addEnumNameToRepMapping(const DtString& name, const DtString& representation)
{
    myEnumNameToRep[name] = representation;
}

const DtString& DtDataTypeMapper::repForEnumName(const DtString& name) const
{
    return lookUp(myEnumNameToRep, name);
}

void DtDataTypeMapper::addSimpleTypeToRepresentationMapping(const DtString& name, const DtString& representation)
{
    mySimpleTypeToRepresentation[name] = representation;
}

const DtString& DtDataTypeMapper::repOfSimpleType(const DtString& name) const
{
    return lookUp(mySimpleTypeToRepresentation, name);
}

void DtDataTypeMapper::addBasicTypeInfoMapping(const DtString& name, const DtBasicTypeInfo& info)
{
    myBasicTypeInfo[name] = info;
}

const DtDataTypeMapper::DtBasicTypeInfo& DtDataTypeMapper::infoForBasicType(const DtString& name) const
{
    static const DtBasicTypeInfo theUnknown;
    return lookUp(myBasicTypeInfo, name, theUnknown);
}

void DtDataTypeMapper::addDatatypeToEncodingMapping(const DtString& name, const DtString& encoding)
{
    myDatatypeToEncoding[name] = encoding;
}

const DtString& DtDataTypeMapper::encOfDatatype(const DtString& name) const
{
    return lookUp(myDatatypeToEncoding, name);
}

void DtDataTypeMapper::addArrayTypeToRepresentationMapping(const DtString& name, const DtString& representation)
{
    myArrayTypeToRepresentation[name] = representation;
}

const DtString& DtDataTypeMapper::repOfArrayType(const DtString& name) const
{
    return lookUp(myArrayTypeToRepresentation, name);
}

bool DtDataTypeMapper::isArrayRecord(const DtString& name) const
{
    return myArrayTypeToRepresentation.count(name) != 0;
}

void DtDataTypeMapper::addArrayTypeToCardinalityMapping(const DtString& name, const DtString& cardinality)
{
    myArrayTypeToCardinality[name] = cardinality;
}

const DtString& DtDataTypeMapper::cardinalityOfArrayType(const DtString& name) const
{
    return lookUp(myArrayTypeToCardinality, name);
}

void DtDataTypeMapper::addDatatypeToDiscriminantMapping(const DtString& name, const DtString& type)
{
    myDatatypeToDiscriminant[name] = type;
}

const DtString& DtDataTypeMapper::discriminantOfDatatype(const DtString& name) const
{
    return lookUp(myDatatypeToDiscriminant, name);
}

void DtDataTypeMapper::addDatatypeToVariantDataMapping(const DtString& name, const DtVariantRecordStruct& record)
{
    myVariantData[name] = record;
}

bool DtDataTypeMapper::variantData(const DtString& name, DtVariantRecordStruct& record) const
{
    const auto found = myVariantData.find(name);
    if (found == myVariantData.end())
        return false;
    record = found->second;
    return true;
}

bool DtDataTypeMapper::isVariantRecord(const DtString& name) const
{
    return myVariantData.count(name) != 0;
}

void DtDataTypeMapper::addToBeReplacedItem(const DtString& name, const DtReplaceInfo& info)
{
    myToBeReplaced.emplace(name, info);
}

bool DtDataTypeMapper::isToBeReplaced(const DtString& name) const
{
    return myToBeReplaced.count(name) != 0;
}

const std::map<DtString, DtDataTypeMapper::DtReplaceInfo>& DtDataTypeMapper::toBeReplacedMap() const
{
    return myToBeReplaced;
}

DtDataTypeMapper::DtReplaceInfo DtDataTypeMapper::findToBeReplaced(const DtString& name) const
{
    return lookUp(myToBeReplaced, name, DtReplaceInfo());
}

bool DtDataTypeMapper::mapRtiObjectIdToGlobalId() const
{
    return myMapRtiObjectIdToGlobalId;
}

void DtDataTypeMapper::setMapRtiObjectIdToGlobalId(bool isMapped)
{
    myMapRtiObjectIdToGlobalId = isMapped;
}

void DtDataTypeMapper::addBasicTypes(DtOMTTree* tree)
{
    bool hasCommonInteger = false;
    for (const DtBasicDataRepresentationNode* node : tree->basicDataRepresentations())
    {
        const DtString& name = node->getName();
        // The interpretation is a text for people, so the replacement is empty unless it happens to name a mapped type.
        if (hasMapping(name))
            addToBeReplacedItem(name, DtReplaceInfo(quorvexType(node->getInterpretation()), name));
        hasCommonInteger = hasCommonInteger || DtContainsSubstring(name, theCommonInteger);
        addBasicTypeInfoMapping(name, DtBasicTypeInfo(node->getSize(), node->getEndian()));
        const unsigned int octets = node->getSize().toUInt() >> 3;
        addDataTypeNameToBoundary(name, octets);
        addDataTypeNameToSize(name, octets);
    }
    if (!hasCommonInteger)
        addBasicTypeInfoMapping(theCommonInteger, DtBasicTypeInfo("32", "Big")); // without boundary and size
}

void DtDataTypeMapper::addSimpleTypes(DtOMTTree* tree)
{
    for (const DtSimpleDatatypeNode* node : tree->simpleDatatypes())
    {
        const DtString& name = node->getName();
        const DtString& representation = node->getRepresentation();
        if (hasMapping(representation))
            addToBeReplacedItem(name, DtReplaceInfo(quorvexType(representation), representation));
        addSimpleTypeToRepresentationMapping(name, representation);
        takeOverLayout(name, representation);
    }
}

void DtDataTypeMapper::addArrayTypes(DtOMTTree* tree)
{
    for (const DtArrayDatatypeNode* node : tree->arrayDatatypes())
    {
        const DtString& name = node->getName();
        addArrayTypeToRepresentationMapping(name, node->getDatatype());
        if (!node->getDatatype().isEmpty())
            addDatatypeToEncodingMapping(name, node->getEncoding());
        addArrayTypeToCardinalityMapping(name, node->getCardinality());
        takeOverLayout(name, node->getDatatype()); // the size of one element
    }
}

void DtDataTypeMapper::addVariantTypes(DtOMTTree* tree)
{
    for (const DtVariantDatatypeNode* node : tree->variantDatatypes())
    {
        const DtString& name = node->getName();
        DtVariantRecordStruct record = {node->getDiscriminant(), node->getDatatype(), {}};
        addDatatypeToDiscriminantMapping(name, node->getDatatype());
        // By the name of the discriminant's field, not by its type: 0 unless a type of that name exists.
        unsigned int boundary = boundaryFromDataTypeName(node->getDiscriminant());
        for (const DtAlternativeComponentNode* part : node->components())
        {
            record.alternatives.push_back({part->getEnumerator(), part->getName(), part->getDatatype()});
            boundary = std::max(boundary, boundaryFromDataTypeName(part->getDatatype()));
        }
        addDataTypeNameToBoundary(name, boundary);
        addDatatypeToVariantDataMapping(name, record);
    }
}

void DtDataTypeMapper::addComplexTypes(DtOMTTree* tree)
{
    for (const DtComplexDatatypeNode* node : tree->complexDatatypes())
        addRecord(*node);
}

void DtDataTypeMapper::addFixedTypes(DtOMTTree* tree)
{
    for (const DtFixedDatatypeNode* node : tree->fixedDatatypes())
        addRecord(*node);
}

template <typename Node>
void DtDataTypeMapper::addRecord(const Node& node)
{
    unsigned int boundary = 0;
    unsigned int size = 0;
    for (const auto* part : node.components())
    {
        const DtString& datatype = part->getDatatype();
        addMapping(part->getName(), datatype);
        size += sizeFromDataTypeName(datatype); // without gaps; a component of unknown size counts as nothing
        boundary = std::max(boundary, boundaryFromDataTypeName(datatype));
    }
    addDataTypeNameToBoundary(node.getName(), boundary);
    addDataTypeNameToSize(node.getName(), size);
}

void DtDataTypeMapper::takeOverLayout(const DtString& name, const DtString& from)
{
    const auto boundary = myDataTypeNameToBoundary.find(from);
    if (boundary != myDataTypeNameToBoundary.end())
        addDataTypeNameToBoundary(name, boundary->second);
    const auto size = myDataTypeNameToSize.find(from);
    if (size != myDataTypeNameToSize.end())
        addDataTypeNameToSize(name, size->second);
}
