#include "fileGenerator/datatypeClosure.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/settings.h"
#include "foundation/exception.h"
#include "foundation/warningRules.h"
#include "omtReader/visitDatatype.h"

#include <memory>

// An array that a cardinality implies: the kind of cardinality, and encoding and name of the array.
struct DtArrayShape
{
    int cardinalityType;
    const char* encoding;
    const char* suffix;    // behind the element datatype
    bool namesCardinality; // its text comes last in the name

    // Arrays with equal elements and equal shape share one name, and so one type.
    DtString nameOf(const DtString& datatype, const DtString& cardinality) const
    {
        const DtString name = datatype + suffix;
        return namesCardinality ? name + cardinality : name;
    }
};

namespace
{
// The numbers mean different things for components and for members of classes: 1 is a range there and "1+" here.
//   type, encoding,                name,                  with cardinality
const DtArrayShape theComponentShapes[] = {
    {0, "HLAfixedArray",          "FixedArray",          true },
    {3, "HLAnullTerminatedArray", "NullTerminatedArray", false},
    {6, "HLApaddingTo32Array",    "PaddingTo32Array",    false},
};

const DtArrayShape theMemberShapes[] = {
    {0, "HLAfixedArray",    "FixedArray",    true },
    {1, "HLAvariableArray", "VariableArray", false},
};

template <std::size_t N>
const DtArrayShape* findShape(const DtArrayShape (&shapes)[N], int cardinalityType)
{
    for (const DtArrayShape& shape : shapes)
    {
        if (shape.cardinalityType == cardinalityType)
            return &shape;
    }
    return nullptr;
}

void warnUnknownEncoding(const DtSubject& subject, const DtString& item, const DtString& cardinality,
                         const DtString& start = DtString())
{
    DtTellWarning(DtRules::unknownCardinality, subject,
                  start + "Unknown Encoding for: " + item + "\nCardinality: " + cardinality);
}

template <typename Members>
void insertDatatypes(const Members& members, std::set<DtString>& datatypes)
{
    for (const auto* member : members)
    {
        if (member != nullptr)
            datatypes.insert(member->getDatatype());
    }
}

// One without a name cannot be used by anything.
template <typename Nodes>
void insertNames(const Nodes& nodes, std::set<DtString>& names)
{
    for (const auto* node : nodes)
    {
        if (!node->getName().isEmpty())
            names.insert(node->getName());
    }
}

// Neither an optional component nor one that depends on another, nor a single value.
bool hasArray(const DtComplexComponentNode& component)
{
    const int type = component.getCardinalityType();
    const DtString& cardinality = component.getCardinality();
    return type != 5 && type != 2 && cardinality != "1 (Type)" && cardinality != "1";
}
} // namespace

DtDatatypeClosure::DtDatatypeClosure(DtOMTTree* tree, std::set<DtString>& used, DtCCompatibleNames& names)
    : myTree(tree), myUsed(used), myNames(names)
{
}

void DtDatatypeClosure::insertAllArrays()
{
    for (const DtArrayDatatypeNode* node : myTree->arrayDatatypes())
        myUsed.insert(node->getName());
}

void DtDatatypeClosure::complete(const std::set<DtOmtObject>& objects, const std::set<DtOmtInteraction>& interactions)
{
    insertMemberDatatypes(objects, interactions);
    if (DtSettings::instance().files.takesAllDatatypes)
        insertAllDatatypes();
    std::vector<DtString> open(myUsed.begin(), myUsed.end());
    while (!open.empty())
    {
        const DtString name = open.back();
        open.pop_back();
        for (const DtString& datatype : subDatatypes(name))
        {
            if (myUsed.insert(datatype).second)
                open.push_back(datatype);
        }
    }
}

void DtDatatypeClosure::insertAllDatatypes()
{
    static_assert(theFamilyCount == 8, "The names of a new family of datatypes belong here too");
    insertNames(myTree->basicDataRepresentations(), myUsed);
    insertNames(myTree->simpleDatatypes(), myUsed);
    insertNames(myTree->referenceDatatypes(), myUsed);
    insertNames(myTree->enumeratedDatatypes(), myUsed);
    insertNames(myTree->arrayDatatypes(), myUsed);
    insertNames(myTree->fixedDatatypes(), myUsed);
    insertNames(myTree->complexDatatypes(), myUsed);
    insertNames(myTree->variantDatatypes(), myUsed);
}

void DtDatatypeClosure::insertMemberDatatypes(const std::set<DtOmtObject>& objects,
                                              const std::set<DtOmtInteraction>& interactions)
{
    for (const DtOmtObject& object : objects)
    {
        if (const DtObjectClassFedNode* node = myTree->getObjectClassNode(object.fullName()))
            insertDatatypes(node->getAttributes(), myUsed);
    }
    for (const DtOmtInteraction& interaction : interactions)
    {
        if (const DtInteractionClassFedNode* node = myTree->getInteractionClassNode(interaction.fullName()))
            insertDatatypes(node->getParameters(), myUsed);
    }
}

// The datatypes that one datatype is made of. The first kind that has the name counts, and beside it the simple
// datatypes. An enumeration adds nothing.
std::vector<DtString> DtDatatypeClosure::subDatatypes(const DtString& name) const
{
    static_assert(theFamilyCount == 8, "A new family of datatypes may be made of others");
    std::vector<DtString> datatypes;
    if (const DtArrayDatatypeNode* array = myTree->getArrayDatatypeNode(name))
        datatypes.push_back(array->getDatatype());
    else if (const DtFixedDatatypeNode* fixed = myTree->getFixedDatatypeNode(name))
        datatypes = componentDatatypes(*fixed);
    else if (const DtComplexDatatypeNode* complex = myTree->getComplexDatatypeNode(name))
        datatypes = componentDatatypes(*complex);
    else if (const DtVariantDatatypeNode* variant = myTree->getVariantDatatypeNode(name))
    {
        datatypes = componentDatatypes(*variant);
        datatypes.push_back(variant->getDatatype());
    }
    else if (const DtReferenceDatatypeNode* reference = myTree->getReferenceDatatypeNode(name))
        datatypes.push_back(reference->getRepresentation());
    if (const DtSimpleDatatypeNode* simple = myTree->getSimpleDatatypeNode(name))
        datatypes.push_back(simple->getRepresentation());
    return datatypes;
}

void DtDatatypeClosure::makeArraysOf(const std::set<DtOmtObject>& objects)
{
    for (const DtOmtObject& object : objects)
    {
        const DtObjectClassFedNode* node = myTree != nullptr ? myTree->getObjectClassNode(object.fullName()) : nullptr;
        if (node == nullptr)
            continue;
        for (const DtAttributeFedNode* attribute : node->getAttributes())
        {
            if (attribute != nullptr)
                mapToArray(*attribute, DtSubject::objectClass(object.fullName()));
        }
    }
}

void DtDatatypeClosure::makeArraysOf(const std::set<DtOmtInteraction>& interactions)
{
    for (const DtOmtInteraction& interaction : interactions)
    {
        const DtInteractionClassFedNode* node =
            myTree != nullptr ? myTree->getInteractionClassNode(interaction.fullName()) : nullptr;
        if (node == nullptr)
            continue;
        for (const DtParameterFedNode* parameter : node->getParameters())
        {
            if (parameter != nullptr)
                mapToArray(*parameter, DtSubject::interactionClass(interaction.fullName()));
        }
    }
}

// The mapping is by the member's own name, whatever its class: the first member of a name decides for all of them.
void DtDatatypeClosure::mapToArray(const DtDatatypeFedNode& member, const DtSubject& owner)
{
    const DtString& name = member.getName();
    const DtString& cardinality = member.getCardinality();
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    if (cardinality == "1" || mapper.hasMapping(name))
        return;
    const DtString array =
        makeArrayOf(owner.member(name), name, cardinality, member.getCardinalityType(), member.getDatatype());
    if (!array.isEmpty())
        mapper.addMapping(name, array);
}

DtString DtDatatypeClosure::makeArrayOf(const DtString& itemName, const DtString& cardinality,
                                        DtDatatypeFedNode::DtCardinalityType type, const DtString& datatype)
{
    return makeArrayOf(DtSubject::datatype(datatype), itemName, cardinality, type, datatype);
}

DtString DtDatatypeClosure::makeArrayOf(const DtSubject& subject, const DtString& itemName, const DtString& cardinality,
                                        DtDatatypeFedNode::DtCardinalityType type, const DtString& datatype)
{
    if (const DtArrayShape* shape = findShape(theMemberShapes, type))
        return addArray(*shape, cardinality, datatype);
    warnUnknownEncoding(subject, itemName, cardinality);
    return DtString();
}

void DtDatatypeClosure::makeArraysOf(const DtComplexDatatypeNode& node)
{
    for (DtComplexComponentNode* component : node.components())
    {
        if (hasArray(*component))
            makeArrayOf(DtSubject::field(component->getName(), node.getName()), *component);
    }
}

void DtDatatypeClosure::makeArrayOf(DtComplexComponentNode& component)
{
    makeArrayOf(DtSubject::datatype(component.getDatatype()), component);
}

// The component itself stays as it is when an array is made: its writer finds the array by building the same name.
void DtDatatypeClosure::makeArrayOf(const DtSubject& subject, DtComplexComponentNode& component)
{
    const DtString cardinality = component.getCardinality();
    const int type = component.getCardinalityType();
    if (const DtArrayShape* shape = findShape(theComponentShapes, type))
    {
        addArray(*shape, cardinality, component.getDatatype());
        return;
    }
    // An alternative becomes a single value, and its warning starts with that.
    const bool isAlternative = type == 2;
    if (isAlternative)
        component.setCardinality("1");
    warnUnknownEncoding(subject, component.getName(), cardinality,
                        isAlternative ? "Variant datatype" + component.getName() : DtString());
}

DtString DtDatatypeClosure::arrayNameOf(const DtComplexComponentNode& component, DtCCompatibleNames& names)
{
    const DtArrayShape* shape = findShape(theComponentShapes, component.getCardinalityType());
    if (shape == nullptr || !hasArray(component))
        return DtString();
    return names.MakeCCompatibleString(shape->nameOf(component.getDatatype(), component.getCardinality()));
}

DtString DtDatatypeClosure::addArray(const DtArrayShape& shape, const DtString& cardinality, const DtString& datatype)
{
    if (myTree == nullptr)
        DT_THROW("An array needs a tree to stand in");
    const DtString name = myNames.MakeCCompatibleString(shape.nameOf(datatype, cardinality));
    if (myTree->getArrayDatatypeNode(name) != nullptr)
        return name;
    auto node = std::make_unique<DtArrayDatatypeNode>();
    node->setCardinality(cardinality);
    node->setDatatype(datatype);
    node->setEncoding(shape.encoding);
    node->setName(name);
    myTree->addArrayDatatypeNode(node.release());
    myUsed.insert(name);
    return name;
}
