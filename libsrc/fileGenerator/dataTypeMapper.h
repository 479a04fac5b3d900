#ifndef FILE_GENERATOR_DATA_TYPE_MAPPER_H
#define FILE_GENERATOR_DATA_TYPE_MAPPER_H

#include "foundation/perRun.h"
#include "foundation/string.h"

#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

class DtOMTTree;

// Who knows what of a datatype. The mapper keeps the tables; the files beside it answer from these or from the tree:
//   which type of C++ stands for it             dataTypeMapper     quorvexType(): what is mapped, and nothing else
//     ... as the type of a record's member      memberTypes        memberType(): also below simple types, and classes
//     ... as that of an attribute or parameter  valueTypeWalk      also over arrays, with their cardinality
//   which class and file this run generates     datatypeClassNames
//   its name as an identifier                   cCompatibleName
//   whether the toolkit has that name already   toolkitNames
//   which other datatypes it needs              datatypeClosure
//   what its chain of representations ends at   memberTypes        lastRepresentation(), by the mapper's tables
//                                               datatypeShape      belowSimpleTypes(), by the tree
//   boundary and size, as templates ask         dataTypeMapper
//   boundary, as command files ask              datatypeBoundaries
//   octets and byte order of a number           numberForm
//   whether its net type has a variable size    netTypeTraits      tells the mapper, which answers templates
//   which numbers it lies as on the wire        datatypeShape
//   how it lies where a toolkit type stands     toolkitLayouts
//   what generated code tells of it on the wire valueForm          encoding, count, number and layout together
// An attribute (attribute.h) gathers the answers for one member on its way into a template.

// Knows what a datatype of the model becomes in generated code. One object for the whole process.
//
// Local types are value types of the toolkit, such as DtU32; net types are its types with a fixed wire encoding, such
// as DtNetU32 (big-endian) or DtLEU32 (little-endian). The tables of the toolkit's own types are there from the start.
// Those of the model grow with each populateFromOmtTree and are never emptied: entries of an earlier model stay, equal
// names are overwritten. File writers add what they have made, so that later writers can name it.
//
// Look-ups never fail: they answer what each of them states for an unknown key.
class DtDataTypeMapper
{
public:
    // The local type that stands in for a type of the model, and the type of the model that caused the entry.
    struct DtReplaceInfo
    {
        DtReplaceInfo() = default;
        DtReplaceInfo(const DtString& replacementType, const DtString& causingType)
            : replacement(replacementType), modelType(causingType)
        {
        }
        DtString replacement;
        DtString modelType;
    };
    struct DtVariantAlternativeStruct
    {
        DtString enumerator;
        DtString name;
        DtString datatype;
    };
    struct DtVariantRecordStruct
    {
        DtString discriminant;
        DtString discriminantType;
        std::vector<DtVariantAlternativeStruct> alternatives; // in the order of the model
    };
    using DtStringMap = std::map<DtString, DtString>;
    using DtNumberMap = std::unordered_map<DtString, unsigned int>;
    using DtBasicTypeInfo = std::pair<DtString, DtString>; // size in bits and endian, as the model has them

    static DtDataTypeMapper* instance();
    DtDataTypeMapper(const DtDataTypeMapper&) = delete;
    DtDataTypeMapper& operator=(const DtDataTypeMapper&) = delete;

    // Basic, simple, array, variant, complex and fixed types, in this order: each finds the boundaries and sizes of the
    // earlier ones.
    virtual void populateFromOmtTree(DtOMTTree* tree);

    // Replaces all mappings of model types to local types. The components of complex and fixed types are mapped by
    // their field names in the same table.
    virtual void setPredefinedTypes(const DtStringMap& types);
    virtual void addMapping(const DtString& name, const DtString& type);
    virtual bool hasMapping(const DtString& name) const;
    virtual void clearMappings();
    virtual const DtString& quorvexType(const DtString& name) const; // empty when unknown

    virtual void initializeKnownTypes();
    virtual void initializeOctetboundaries();
    virtual bool isKnownType(const DtString& name) const;
    virtual bool isQuorvexNetType(const DtString& name) const;
    virtual bool isLittleEndian(const DtString& name) const;

    // Text of a first and of an example value of a local type; empty when there is none.
    virtual DtString initialValueFromType(const DtString& type) const;
    virtual DtString sampleValueFromType(const DtString& type, const DtString& value) const;

    virtual void addVariableSizeNetType(const DtString& name);
    virtual bool isVariableSizeNetType(const DtString& name) const;
    virtual void addNetTypeWithVariantRecord(const DtString& name);
    virtual bool hasVariantRecord(const DtString& name) const;
    virtual void addNonEncodeableDataType(const DtString& name);
    // Also true for a std::vector of such a type; one level of vector is looked through.
    virtual bool isNonEncodeableDataType(const DtString& name) const;
    // A run calls this at its start: generation marks these types, and a second run gives what the first one gave.
    // Reference datatypes are coded as what represents them. Asks for the datatype behind all references; a name that
    // is no reference stands for itself, and so does one that leads back to itself.
    DtString behindReferences(const DtString& name) const;
    // Likewise, unless the run codes datatypes with several open arrays, which is all that makes one non-encodeable.
    bool refusesCoding(const DtString& name) const;
    void forgetNonEncodeableDataTypes() { myNonEncodeableDataTypes.clear(); }

    // Boundaries and sizes are in octets; those of unknown types are 0.
    virtual void addDataTypeNameToBoundary(const DtString& name, unsigned int boundary);
    virtual const DtNumberMap& dataTypeNameToBoundary() const;
    virtual unsigned int boundaryFromDataTypeName(const DtString& name) const;
    virtual void addDataTypeNameToSize(const DtString& name, unsigned int size);
    virtual const DtNumberMap& dataTypeNameToSize() const;
    virtual unsigned int sizeFromDataTypeName(const DtString& name) const;

    // Size text of an enumeration; "32" when unknown.
    virtual void addEnumerationSizeMapping(const DtString& name, const DtString& size);
    virtual const DtString& enumerationSize(const DtString& name) const;
    virtual void addEnumeration(const DtString& name);
    virtual bool isEnumeration(const DtString& name) const;

    // The texts below are empty when unknown.
    virtual void addEnumNameToRepMapping(const DtString& name, const DtString& representation);
    virtual const DtString& repForEnumName(const DtString& name) const;
    virtual void addSimpleTypeToRepresentationMapping(const DtString& name, const DtString& representation);
    virtual const DtString& repOfSimpleType(const DtString& name) const;
    virtual void addBasicTypeInfoMapping(const DtString& name, const DtBasicTypeInfo& info);
    virtual const DtBasicTypeInfo& infoForBasicType(const DtString& name) const;
    virtual void addDatatypeToEncodingMapping(const DtString& name, const DtString& encoding);
    virtual const DtString& encOfDatatype(const DtString& name) const;
    virtual void addArrayTypeToRepresentationMapping(const DtString& name, const DtString& representation);
    virtual const DtString& repOfArrayType(const DtString& name) const;
    virtual bool isArrayRecord(const DtString& name) const;
    virtual void addArrayTypeToCardinalityMapping(const DtString& name, const DtString& cardinality);
    virtual const DtString& cardinalityOfArrayType(const DtString& name) const;
    virtual void addDatatypeToDiscriminantMapping(const DtString& name, const DtString& type);
    virtual const DtString& discriminantOfDatatype(const DtString& name) const;

    virtual void addDatatypeToVariantDataMapping(const DtString& name, const DtVariantRecordStruct& record);
    // False, and the record left alone, when unknown.
    virtual bool variantData(const DtString& name, DtVariantRecordStruct& record) const;
    virtual bool isVariantRecord(const DtString& name) const;

    // Types whose generated class is left out in favour of a local type. The first entry for a name stands, while all
    // other additions overwrite.
    virtual void addToBeReplacedItem(const DtString& name, const DtReplaceInfo& info);
    virtual bool isToBeReplaced(const DtString& name) const;
    virtual const std::map<DtString, DtReplaceInfo>& toBeReplacedMap() const;
    virtual DtReplaceInfo findToBeReplaced(const DtString& name) const;

    // Whether object identifiers of the runtime infrastructure are treated as global identifiers; false at first.
    virtual bool mapRtiObjectIdToGlobalId() const;
    virtual void setMapRtiObjectIdToGlobalId(bool isMapped);

    virtual void addBasicTypes(DtOMTTree* tree);
    virtual void addSimpleTypes(DtOMTTree* tree);
    virtual void addArrayTypes(DtOMTTree* tree);
    virtual void addVariantTypes(DtOMTTree* tree);
    virtual void addComplexTypes(DtOMTTree* tree);
    virtual void addFixedTypes(DtOMTTree* tree);

    virtual ~DtDataTypeMapper();

    const std::map<DtString, DtBasicTypeInfo>& basicTypeInfoMap() const { return myBasicTypeInfo; }

protected:
    DtDataTypeMapper();

private:
    template <typename Part, typename Key>
    friend Part& DtPerRun();

    // Gives a type the boundary and size of another, as far as these are known.
    void takeOverLayout(const DtString& name, const DtString& from);
    template <typename Node>
    void addRecord(const Node& node);

    // What is asked for by name only, many times for each attribute.
    using DtNamedTexts = std::unordered_map<DtString, DtString>;

    DtNamedTexts myMappings;
    DtNamedTexts myEnumerationSizes;
    DtNamedTexts mySimpleTypeToRepresentation;
    DtNamedTexts myArrayTypeToRepresentation;
    DtNamedTexts myArrayTypeToCardinality;
    DtNamedTexts myDatatypeToEncoding;
    DtNamedTexts myEnumNameToRep;
    std::map<DtString, DtBasicTypeInfo> myBasicTypeInfo;
    std::map<DtString, DtVariantRecordStruct> myVariantData;
    DtNamedTexts myDatatypeToDiscriminant;
    std::set<DtString> myVariableSizeNetTypes; // beyond those built in
    std::unordered_set<DtString> myNonEncodeableDataTypes;
    DtNamedTexts myReferences; // representations by name
    std::unordered_set<DtString> myEnumerations;
    std::set<DtString> myNetTypesWithVariantRecord;
    bool myMapRtiObjectIdToGlobalId = false;
    DtString myDefaultEnumerationSize = "32";
    DtNumberMap myDataTypeNameToBoundary;
    DtNumberMap myDataTypeNameToSize;
    std::map<DtString, DtReplaceInfo> myToBeReplaced;
    std::vector<DtString> myKnownTypes;
    std::vector<DtString> myNetTypes;
    std::vector<DtString> myLittleEndianTypes;
};

#endif
