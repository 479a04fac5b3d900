#include "omtReader/xmlEvolvedFileReader.h"

#include "omtReader/xmlEvolvedFields.h"

namespace
{
const DtString& nameOf(const DtOMTNode& node)
{
    return node.getName();
}

const DtString& nameOf(const DtEnumerationNode& node)
{
    return node.getEnum();
}

const char theFormatWords[] = "1516 Evolved XML";
} // namespace

DtXMLEvolvedFileReader::DtXMLEvolvedFileReader(DtExerciseConn* connection, DtHLAProtocolVersion version)
    : DtXMLModelReader(connection), myVersion(version)
{
}

// ---- the way through a document

template <std::size_t theCount>
void DtXMLEvolvedFileReader::dispatch(xmlNode* node, const Construct (&constructs)[theCount], DtOMTTree* tree)
{
    for (xmlNode*& child : DtXmlElements(node))
        for (const Construct& construct : constructs)
            if (DtHasXmlName(child, construct.element))
                (this->*construct.operation)(child, tree);
}

template <typename Target>
void DtXMLEvolvedFileReader::processEach(xmlNode* node, const char* element, Operation<Target> operation,
                                         Target* target)
{
    for (xmlNode*& child : DtXmlElements(node))
        if (DtHasXmlName(child, element))
            (this->*operation)(child, target);
}

template <typename Node, std::size_t theCount>
void DtXMLEvolvedFileReader::readFields(xmlNode* node, const DtXmlField<Node> (&fields)[theCount], Node& target)
{
    for (xmlNode*& child : DtXmlElements(node))
    {
        const DtString text = childNodeString(child);
        if (!text.isEmpty())
            DtSetXmlField(target, fields, child, text);
    }
}

template <typename Node, std::size_t theCount>
std::unique_ptr<Node> DtXMLEvolvedFileReader::readItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount])
{
    auto item = std::make_unique<Node>();
    readFields(node, fields, *item);
    return item;
}

// Null, with a warning, when the item has no name.
template <typename Node, std::size_t theCount>
std::unique_ptr<Node> DtXMLEvolvedFileReader::readNamedItem(xmlNode* node, const DtXmlField<Node> (&fields)[theCount],
                                                            const char* element, const char* what)
{
    auto item = readItem(node, fields);
    if (!nameOf(*item).isEmpty())
        return item;
    warnOfMissing(element, what);
    return nullptr;
}

// Null, with a warning, when there is a name element and the name is empty all the same.
template <typename Node, std::size_t theCount>
std::unique_ptr<Node> DtXMLEvolvedFileReader::readMember(xmlNode* node, const DtXmlField<Node> (&fields)[theCount],
                                                         const char* element)
{
    auto member = readItem(node, fields);
    const auto hasNameElement = [](xmlNode* parent)
    {
        for (const xmlNode* child : DtXmlElements(parent))
            if (DtHasXmlName(child, "name"))
                return true;
        return false;
    };
    if (!member->getName().isEmpty() || !hasNameElement(node))
        return member;
    warnOfMissing(element);
    return nullptr;
}

template <typename Node>
void DtXMLEvolvedFileReader::readDimensions(xmlNode* node, Node& target)
{
    for (xmlNode* dimensions : DtXmlElements(node))
    {
        if (!DtHasXmlName(dimensions, "dimensions"))
            continue;
        for (xmlNode*& dimension : DtXmlElements(dimensions))
        {
            const DtString text = childNodeString(dimension);
            if (DtHasXmlName(dimension, "dimension") && !text.isEmpty())
                target.addDimension(text);
        }
    }
}

DtString DtXMLEvolvedFileReader::childNodeString(xmlAttr*& attribute)
{
    return reinterpret_cast<const char*>(DtXmlText(attribute->children));
}

DtString DtXMLEvolvedFileReader::childNodeString(xmlNode*& node)
{
    return reinterpret_cast<const char*>(DtXmlText(node->children));
}

DtOMTTree* DtXMLEvolvedFileReader::processObjectModel(xmlNode*& root)
{
    using Reader = DtXMLEvolvedFileReader;
    static const Construct theConstructs[] = {
        {"modelIdentification", &Reader::processModelIdentification},
        {"objects",             &Reader::processObjects            },
        {"interactions",        &Reader::processInteractions       },
        {"dataTypes",           &Reader::processDatatypes          },
        {"notes",               &Reader::processNotes              },
        {"switches",            &Reader::processSwitches           },
        {"dimensions",          &Reader::processDimensions         },
        {"time",                &Reader::processTimeRepresentation },
        {"tags",                &Reader::processTags               },
        {"synchronizations",    &Reader::processSynchronizations   },
        {"transportations",     &Reader::processTransportations    },
        {"updateRates",         &Reader::processUpdateRates        },
    };
    auto tree = std::make_unique<DtOMTTree>();
    tree->setHlaVersion(myVersion);
    dispatch(root, theConstructs, tree.get());
    return tree.release();
}

// ---- identification

void DtXMLEvolvedFileReader::processModelIdentification(xmlNode*& node, DtOMTTree* tree)
{
    readFields(node, theIdentificationFields, *tree);
    static const Construct theConstructs[] = {
        {"reference", &DtXMLEvolvedFileReader::processReference},
        {"poc",       &DtXMLEvolvedFileReader::processPoc      },
    };
    dispatch(node, theConstructs, tree);
}

void DtXMLEvolvedFileReader::processPoc(xmlNode*& node, DtOMTTree* tree)
{
    DtOMTTreePOC poc;
    readFields(node, thePocFields, poc);
    tree->addPOC(poc.type, poc.firstName, poc.lastName, poc.organization, poc.telephone, poc.email);
}

void DtXMLEvolvedFileReader::processReference(xmlNode*& node, DtOMTTree* tree)
{
    bool hasType = false;
    bool hasIdentification = false;
    for (xmlNode*& child : DtXmlElements(node))
    {
        if (childNodeString(child).isEmpty())
            continue;
        hasType = hasType || DtHasXmlName(child, "type");
        hasIdentification = hasIdentification || DtHasXmlName(child, "identification");
    }
    if (hasType && hasIdentification)
        tree->addReference(childNodeString(node), childNodeString(node));
}

// ---- classes

void DtXMLEvolvedFileReader::processObjects(xmlNode*& node, DtOMTTree* tree)
{
    // A wrong object root is reported as one of the interactions, as users of the format know it.
    static const Hierarchy theWords = {"objectClass",        "object",      "HLAobjectRoot", "Interaction",
                                       "HLAinteractionRoot", theFormatWords};
    processHierarchy(
        node, theWords, [&](xmlNode*& element) { return processObjectClass(element, tree); },
        [&](const DtString& name) { return tree->getObjectClassNode(name); },
        [&](DtObjectClassFedNode* root) { tree->setObjectClassRoot(root); });
}

// A class comes into the flat list behind its subclasses.
DtObjectClassFedNode* DtXMLEvolvedFileReader::processObjectClass(xmlNode*& node, DtOMTTree* tree)
{
    auto objectClass = readMember(node, theObjectClassFields, "objectClass");
    if (objectClass == nullptr)
        return nullptr;
    for (xmlNode*& child : DtXmlElements(node))
    {
        if (DtHasXmlName(child, "objectClass"))
            objectClass->addChildObject(processObjectClass(child, tree)); // null is ignored
        else if (DtHasXmlName(child, "attribute"))
            objectClass->addAttribute(processAttribute(child, objectClass.get()));
    }
    tree->addObjectClassNode(objectClass.get());
    return objectClass.release();
}

DtAttributeFedNode* DtXMLEvolvedFileReader::processAttribute(xmlNode*& node, DtObjectClassFedNode* /*objectClass*/)
{
    auto attribute = readMember(node, theAttributeFields, "attribute");
    if (attribute != nullptr)
        readDimensions(node, *attribute);
    return attribute.release();
}

void DtXMLEvolvedFileReader::processInteractions(xmlNode*& node, DtOMTTree* tree)
{
    static const Hierarchy theWords = {"interactionClass", "interaction",        "HLAinteractionRoot",
                                       "Interaction",      "HLAinteractionRoot", theFormatWords};
    processHierarchy(
        node, theWords, [&](xmlNode*& element) { return processInteractionClass(element, tree); },
        [&](const DtString& name) { return tree->getInteractionClassNode(name); },
        [&](DtInteractionClassFedNode* root) { tree->setInteractionClassRoot(root); });
}

DtInteractionClassFedNode* DtXMLEvolvedFileReader::processInteractionClass(xmlNode*& node, DtOMTTree* tree)
{
    auto interaction = readMember(node, theInteractionClassFields, "interactionClass");
    if (interaction == nullptr)
        return nullptr;
    readDimensions(node, *interaction);
    for (xmlNode*& child : DtXmlElements(node))
    {
        if (DtHasXmlName(child, "interactionClass"))
            interaction->addChildInteraction(processInteractionClass(child, tree)); // null is ignored
        else if (DtHasXmlName(child, "parameter"))
            processParameter(child, interaction.get());
    }
    tree->addInteractionClassNode(interaction.get());
    return interaction.release();
}

DtParameterFedNode* DtXMLEvolvedFileReader::processParameter(xmlNode*& node, DtInteractionClassFedNode* interaction)
{
    auto parameter = readMember(node, theParameterFields, "parameter");
    interaction->addParameter(parameter.get()); // null is ignored
    return parameter.release();
}

// ---- datatypes

void DtXMLEvolvedFileReader::processDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    using Reader = DtXMLEvolvedFileReader;
    static const Construct theConstructs[] = {
        {"simpleDataTypes",          &Reader::processSimpleDatatypes         },
        {"enumeratedDataTypes",      &Reader::processEnumeratedDatatypes     },
        {"arrayDataTypes",           &Reader::processArrayDatatypes          },
        {"fixedRecordDataTypes",     &Reader::processFixedRecordDatatypes    },
        {"variantRecordDataTypes",   &Reader::processVariantRecordDatatypes  },
        {"basicDataRepresentations", &Reader::processBasicDataRepresentations},
    };
    dispatch(node, theConstructs, tree);
}

void DtXMLEvolvedFileReader::processSimpleDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "simpleData", &DtXMLEvolvedFileReader::processSimpleData, tree);
}

void DtXMLEvolvedFileReader::processSimpleData(xmlNode*& node, DtOMTTree* tree)
{
    tree->addSimpleDatatypeNode(readNamedItem(node, theSimpleFields, "simpleData").release());
}

void DtXMLEvolvedFileReader::processEnumeratedDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "enumeratedData", &DtXMLEvolvedFileReader::processEnumeratedData, tree);
}

void DtXMLEvolvedFileReader::processEnumeratedData(xmlNode*& node, DtOMTTree* tree)
{
    auto datatype = readNamedItem(node, theEnumeratedFields, "enumeratedData");
    if (datatype == nullptr)
        return;
    processEach(node, "enumerator", &DtXMLEvolvedFileReader::processEnumerator, datatype.get());
    tree->addEnumeratedDatatypeNode(datatype.release());
}

void DtXMLEvolvedFileReader::processEnumerator(xmlNode*& node, DtEnumeratedDatatypeNode* datatype)
{
    auto enumerator = readNamedItem(node, theEnumeratorFields, "enumerator");
    if (enumerator != nullptr && datatype->addEnumerationNode(enumerator.get()))
        static_cast<void>(enumerator.release()); // the datatype owns it now
}

void DtXMLEvolvedFileReader::processArrayDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "arrayData", &DtXMLEvolvedFileReader::processArrayData, tree);
}

void DtXMLEvolvedFileReader::processArrayData(xmlNode*& node, DtOMTTree* tree)
{
    tree->addArrayDatatypeNode(readNamedItem(node, theArrayFields, "arrayData").release());
}

void DtXMLEvolvedFileReader::processFixedRecordDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "fixedRecordData", &DtXMLEvolvedFileReader::processFixedRecordData, tree);
}

void DtXMLEvolvedFileReader::processFixedRecordData(xmlNode*& node, DtOMTTree* tree)
{
    auto datatype = readNamedItem(node, theFixedFields, "fixedRecordData");
    if (datatype == nullptr)
        return;
    processEach(node, "field", &DtXMLEvolvedFileReader::processField, datatype.get());
    tree->addFixedDatatypeNode(datatype.release());
}

void DtXMLEvolvedFileReader::processField(xmlNode*& node, DtFixedDatatypeNode* datatype)
{
    datatype->addComponentNode(readNamedItem(node, theFieldFields, "fixedRecordData field").release());
}

void DtXMLEvolvedFileReader::processVariantRecordDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "variantRecordData", &DtXMLEvolvedFileReader::processVariantRecordData, tree);
}

void DtXMLEvolvedFileReader::processVariantRecordData(xmlNode*& node, DtOMTTree* tree)
{
    auto datatype = readNamedItem(node, theVariantFields, "variantRecordData");
    if (datatype == nullptr)
        return;
    processEach(node, "alternative", &DtXMLEvolvedFileReader::processAlternative, datatype.get());
    tree->addVariantDatatypeNode(datatype.release());
}

void DtXMLEvolvedFileReader::processAlternative(xmlNode*& node, DtVariantDatatypeNode* datatype)
{
    datatype->addComponentNode(readItem(node, theAlternativeFields).release());
}

void DtXMLEvolvedFileReader::processBasicDataRepresentations(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "basicData", &DtXMLEvolvedFileReader::processBasicData, tree);
}

void DtXMLEvolvedFileReader::processBasicData(xmlNode*& node, DtOMTTree* tree)
{
    tree->addBasicDataRepresentationNode(readNamedItem(node, theBasicFields, "basicData").release());
}

// ---- the small tables

void DtXMLEvolvedFileReader::processNotes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "note", &DtXMLEvolvedFileReader::processNote, tree);
}

void DtXMLEvolvedFileReader::processNote(xmlNode*& node, DtOMTTree* tree)
{
    tree->addNoteNode(readItem(node, theNoteFields).release());
}

void DtXMLEvolvedFileReader::processSwitches(xmlNode*& node, DtOMTTree* tree)
{
    for (xmlNode*& child : DtXmlElements(node))
        processSwitch(child, tree);
}

void DtXMLEvolvedFileReader::processSwitch(xmlNode*& node, DtOMTTree* tree)
{
    auto item = std::make_unique<DtBoolAttrNode>();
    item->setName(reinterpret_cast<const char*>(node->name));
    for (xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next)
    {
        const DtString name(reinterpret_cast<const char*>(attribute->name));
        const DtString value = childNodeString(attribute);
        if (name == "isEnabled" && (value == "true" || value == "false"))
            item->setEnabled(value == "true");
        else if (name == "resignAction" && item->getName() == "automaticResignAction")
            item->setNote(value);
    }
    tree->addSwitchNode(item.release());
}

void DtXMLEvolvedFileReader::processDimensions(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "dimension", &DtXMLEvolvedFileReader::processDimension, tree);
}

void DtXMLEvolvedFileReader::processDimension(xmlNode*& node, DtOMTTree* tree)
{
    tree->addDimensionNode(readNamedItem(node, theDimensionFields, "dimension").release());
}

void DtXMLEvolvedFileReader::processTimeRepresentation(xmlNode*& node, DtOMTTree* tree)
{
    DtTimeRepNode& time = *tree->getTimeRepNode();
    for (xmlNode* child : DtXmlElements(node))
    {
        if (DtHasXmlName(child, "timeStamp"))
            readFields(child, theTimeStampFields, time);
        else if (DtHasXmlName(child, "lookahead"))
            readFields(child, theLookaheadFields, time);
    }
}

void DtXMLEvolvedFileReader::processTags(xmlNode*& node, DtOMTTree* tree)
{
    for (xmlNode* child = node->children; child != nullptr; child = child->next)
        if (child->type == XML_ELEMENT_NODE || child->type == XML_TEXT_NODE)
            processTag(child, tree);
}

void DtXMLEvolvedFileReader::processTag(xmlNode*& node, DtOMTTree* tree)
{
    auto tag = node->type == XML_ELEMENT_NODE ? readItem(node, theTagFields) : std::make_unique<DtTagNode>();
    tag->setName(reinterpret_cast<const char*>(node->name));
    tree->addTagNode(tag.release());
}

void DtXMLEvolvedFileReader::processTransportations(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "transportation", &DtXMLEvolvedFileReader::processTransportation, tree);
}

void DtXMLEvolvedFileReader::processTransportation(xmlNode*& node, DtOMTTree* tree)
{
    tree->addTransportationNode(readItem(node, theTransportationFields).release());
}

void DtXMLEvolvedFileReader::processSynchronizations(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "synchronization", &DtXMLEvolvedFileReader::processSynchronization, tree);
}

void DtXMLEvolvedFileReader::processSynchronization(xmlNode*& node, DtOMTTree* tree)
{
    tree->addSynchroNode(readNamedItem(node, theSynchronizationFields, "synchronization", "label").release());
}

void DtXMLEvolvedFileReader::processUpdateRates(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, "updateRate", &DtXMLEvolvedFileReader::processUpdateRate, tree);
}

void DtXMLEvolvedFileReader::processUpdateRate(xmlNode*& node, DtOMTTree* tree)
{
    tree->addUpdateRateNode(readNamedItem(node, theUpdateRateFields, "updateRate").release());
}

void DtXMLEvolvedFileReader::processEmbeddedNote(xmlNode*& node, DtOMTNode* target)
{
    for (xmlNode*& child : DtXmlElements(node))
    {
        const DtString text = childNodeString(child);
        if (DtHasXmlName(child, "note") && !text.isEmpty())
            target->setNote(text);
    }
}
