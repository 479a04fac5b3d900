#include "fileGenerator/omtEnvironment.h"

#include "foundation/stringUtils.h"
#include "omtReader/arrayDatatypeNode.h"
#include "omtReader/attributeFedNode.h"
#include "omtReader/basicDataRepresentationNode.h"
#include "omtReader/complexComponentNode.h"
#include "omtReader/complexDatatypeNode.h"
#include "omtReader/fixedDatatypeNode.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/omtTree.h"
#include "omtReader/parameterFedNode.h"
#include "omtReader/simpleDatatypeNode.h"
#include "omtReader/variantDatatypeNode.h"

namespace
{

const char theCommonInteger[] = "HLAinteger32BE"; // shown for every model

} // namespace

DtOMTEnvironment::DtOMTEnvironment()
    : myEnumerations(addObject("enumerations", "branch")),
      myObjects(addObject("objects", "branch")),
      myInteractions(addObject("interactions", "branch")),
      myBasicDatatypes(addObject("basic datatypes", "branch")),
      myDatatypes(addObject("datatypes", "branch")),
      mySimpleDatatypes(addObject("simple datatypes", "branch")),
      myArrayDatatypes(addObject("array datatypes", "branch")),
      myVariantDatatypes(addObject("variant datatypes", "branch"))
{
}

DtOMTEnvironment::~DtOMTEnvironment() = default;

void DtOMTEnvironment::populateFromOmtTree(DtOMTTree* tree)
{
    if (tree == nullptr)
        return;
    addFomObjects(tree);
    addInteractions(tree);
    addBasicTypes(tree);
    addSimpleTypes(tree);
    addArrayTypes(tree);
    addDatatypes(tree);
    addVariantTypes(tree);
}

void DtOMTEnvironment::addFomObjects(DtOMTTree* tree)
{
    const DtObjectClassFedNode* root = tree->objectClassRoot();
    if (root == nullptr)
        return;
    for (const DtObjectClassFedNode* each : root->getChildObjects())
        addToObjectBranch(each, myObjects);
}

void DtOMTEnvironment::addInteractions(DtOMTTree* tree)
{
    const DtInteractionClassFedNode* root = tree->interactionClassRoot();
    if (root == nullptr)
        return;
    for (const DtInteractionClassFedNode* each : root->getChildInteractions())
        addToInteractionBranch(each, myInteractions);
}

void DtOMTEnvironment::addDatatypes(DtOMTTree* tree)
{
    for (const DtComplexDatatypeNode* each : tree->complexDatatypes())
        addComplexDatatypeNode(each);
    for (const DtFixedDatatypeNode* each : tree->fixedDatatypes())
        addFixedDatatypeNode(each);
}

void DtOMTEnvironment::addToObjectBranch(const DtObjectClassFedNode* node, const DtBranch& parent)
{
    const DtBranch entry = addEntry(node->getName(), "object name", node->getFullName(), parent);
    for (const DtObjectClassFedNode* each : node->getChildObjects())
        addToObjectBranch(each, entry);
    addAttributes(node, entry);
}

void DtOMTEnvironment::addToInteractionBranch(const DtInteractionClassFedNode* node, const DtBranch& parent)
{
    const DtBranch entry = addEntry(node->getName(), "interaction name", node->getFullName(), parent);
    for (const DtInteractionClassFedNode* each : node->getChildInteractions())
        addToInteractionBranch(each, entry);
    addParameters(node, entry);
}

void DtOMTEnvironment::addAttributes(const DtObjectClassFedNode* node, const DtBranch& parent)
{
    for (const DtAttributeFedNode* each : node->getAttributes())
        if (each != nullptr) // stands where an attribute was removed
            addMember(*each, parent, "Attribute", "AttrCardinality");
}

void DtOMTEnvironment::addParameters(const DtInteractionClassFedNode* node, const DtBranch& parent)
{
    for (const DtParameterFedNode* each : node->getParameters())
        if (each != nullptr)
            addMember(*each, parent, "Parameter", "ParamCardinality");
}

void DtOMTEnvironment::addMember(const DtDatatypeFedNode& node, const DtBranch& parent, const char* typeEnd,
                                 const char* cardinalityEnd)
{
    const DtBranch entry = addEntry(node.getName(), parent->name() + typeEnd, node.getDatatype(), parent);
    addEntry(node.getName() + cardinalityEnd, "cardinality", node.getCardinality(), entry);
}

void DtOMTEnvironment::addComplexDatatypeNode(const DtComplexDatatypeNode* node)
{
    const DtBranch entry = addObject(node->getName(), "datatype name", myDatatypes);
    for (const DtComplexComponentNode* each : node->components())
    {
        const DtString& name = each->getName();
        const DtBranch component = addEntry(name, "component", each->getDatatype(), entry);
        addEntry(name + "Cardinality", "cardinality", each->getCardinality(), component);
    }
}

void DtOMTEnvironment::addFixedDatatypeNode(const DtFixedDatatypeNode* node)
{
    const DtBranch entry = addObject(node->getName(), "datatype name", myDatatypes);
    for (const DtFieldComponentNode* each : node->components())
        addEntry(each->getName(), "component", each->getDatatype(), entry);
}

void DtOMTEnvironment::addBasicTypes(DtOMTTree* tree)
{
    bool hasCommonInteger = false;
    for (const DtBasicDataRepresentationNode* each : tree->basicDataRepresentations())
    {
        const DtString& name = each->getName();
        addEntry(name, "basic type", name, myBasicDatatypes);
        hasCommonInteger = hasCommonInteger || DtContainsSubstring(name, theCommonInteger);
    }
    if (!hasCommonInteger)
        addEntry(theCommonInteger, "basic type", theCommonInteger, myBasicDatatypes);
}

void DtOMTEnvironment::addSimpleTypes(DtOMTTree* tree)
{
    for (const DtSimpleDatatypeNode* each : tree->simpleDatatypes())
        addEntry(each->getName(), "simple type", each->getRepresentation(), mySimpleDatatypes);
    for (const DtReferenceDatatypeNode* each : tree->referenceDatatypes())
        addEntry(each->getName(), "reference", each->getRepresentation(), mySimpleDatatypes);
}

void DtOMTEnvironment::addArrayTypes(DtOMTTree* tree)
{
    for (const DtArrayDatatypeNode* each : tree->arrayDatatypes())
    {
        const DtString& name = each->getName();
        const DtBranch entry = addEntry(name, "array type", each->getDatatype(), myArrayDatatypes);
        addEntry(name + "Cardinality", "cardinality", each->getCardinality(), entry);
    }
}

void DtOMTEnvironment::addVariantTypes(DtOMTTree* tree)
{
    for (const DtVariantDatatypeNode* each : tree->variantDatatypes())
    {
        const DtBranch entry = addObject(each->getName(), "variant type", myVariantDatatypes);
        for (const DtAlternativeComponentNode* part : each->components())
            addEntry(part->getName(), "component", part->getDatatype(), entry);
    }
}

DtOMTEnvironment::DtBranch DtOMTEnvironment::addEntry(const DtString& name, const DtString& type, const DtString& value,
                                                      const DtBranch& parent)
{
    DtBranch entry = addObject(name, type, parent);
    entry->setValue(value);
    return entry;
}
