#include "omtReader/xmlEvolvedFileReader.h"

#include "omtReader/xmlModelFields.h"

using Reader = DtXMLEvolvedFileReader;
using Fields = DtXmlModelFields;

// A wrong object root is reported as one of the interactions, as users of the format know it.
DtXMLEvolvedFileReader::DtXMLEvolvedFileReader(DtExerciseConn* connection, DtHLAProtocolVersion version)
    : DtXMLModelReader(connection, {DtXmlEvolvedForm, "1516 Evolved XML", "Interaction", valueInteractionRoot}),
      myVersion(version)
{
}

void DtXMLEvolvedFileReader::listValues(xmlNode* node, Values& values)
{
    for (const xmlNode* child : DtXmlElements(node))
        values.add(child->name, DtXmlText(child->children));
}

DtString DtXMLEvolvedFileReader::childNodeString(xmlNode*& node)
{
    return reinterpret_cast<const char*>(DtXmlText(node->children));
}

DtOMTTree* DtXMLEvolvedFileReader::processObjectModel(xmlNode*& root)
{
    static const Construct<Reader> theConstructs[] = {
        {tagModelIdentification, &Reader::processModelIdentification},
        {tagObjects,             &Reader::processObjects            },
        {tagInteractions,        &Reader::processInteractions       },
        {tagDataTypes,           &Reader::processDatatypes          },
        {tagNotes,               &Reader::processNotes              },
        {tagSwitches,            &Reader::processSwitches           },
        {tagDimensions,          &Reader::processDimensions         },
        {tagTime,                &Reader::processTimeRepresentation },
        {tagTags,                &Reader::processTags               },
        {tagSynchronizations,    &Reader::processSynchronizations   },
        {tagTransportations,     &Reader::processTransportations    },
        {tagUpdateRates,         &Reader::processUpdateRates        },
    };
    auto tree = std::make_unique<DtOMTTree>();
    tree->setHlaVersion(myVersion);
    dispatch(root, theConstructs, tree.get());
    return tree.release();
}

// ---- identification

void DtXMLEvolvedFileReader::processModelIdentification(xmlNode*& node, DtOMTTree* tree)
{
    readFields(node, Fields::theIdentificationFields, *tree);
    static const Construct<Reader> theConstructs[] = {
        {tagReference, &Reader::processReference},
        {tagPoc,       &Reader::processPoc      },
    };
    dispatch(node, theConstructs, tree);
}

void DtXMLEvolvedFileReader::processPoc(xmlNode*& node, DtOMTTree* tree)
{
    readPoc(node, tree);
}

void DtXMLEvolvedFileReader::processReference(xmlNode*& node, DtOMTTree* tree)
{
    bool hasType = false;
    bool hasIdentification = false;
    for (xmlNode*& child : DtXmlElements(node))
    {
        if (childNodeString(child).isEmpty())
            continue;
        hasType = hasType || DtHasXmlName(child, attrType);
        hasIdentification = hasIdentification || DtHasXmlName(child, attrIdentification);
    }
    if (hasType && hasIdentification)
        tree->addReference(childNodeString(node), childNodeString(node));
}

// ---- classes

template <typename Node>
void DtXMLEvolvedFileReader::readDimensions(xmlNode* node, Node& target)
{
    for (xmlNode* dimensions : DtXmlElements(node))
    {
        if (!DtHasXmlName(dimensions, tagDimensions))
            continue;
        for (const Value& value : valuesOf(dimensions))
            if (!value.text.isEmpty() && value.name == tagDimension)
                target.addDimension(value.text);
    }
}

DtAttributeFedNode* DtXMLEvolvedFileReader::processAttribute(xmlNode*& node, DtObjectClassFedNode* objectClass)
{
    DtAttributeFedNode* attribute = DtXMLModelReader::processAttribute(node, objectClass);
    if (attribute != nullptr)
        readDimensions(node, *attribute);
    return attribute;
}

DtInteractionClassFedNode* DtXMLEvolvedFileReader::processInteractionClass(xmlNode*& node, DtOMTTree* tree)
{
    DtInteractionClassFedNode* interaction = DtXMLModelReader::processInteractionClass(node, tree);
    if (interaction != nullptr)
        readDimensions(node, *interaction);
    return interaction;
}

// ---- the small tables

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
        if (name == attrIsEnabled && (value == valueTrue || value == valueFalse))
            item->setEnabled(value == valueTrue);
        else if (name == attrResignAction && item->getName() == tagAutomaticResignAction)
            item->setNote(value);
    }
    tree->addSwitchNode(item.release());
}

void DtXMLEvolvedFileReader::processTags(xmlNode*& node, DtOMTTree* tree)
{
    for (xmlNode*& child : DtXmlElements(node))
        processTag(child, tree);
}

void DtXMLEvolvedFileReader::processUpdateRates(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagUpdateRate, &Reader::processUpdateRate, tree);
}

void DtXMLEvolvedFileReader::processUpdateRate(xmlNode*& node, DtOMTTree* tree)
{
    tree->addUpdateRateNode(readNamedItem(node, Fields::theUpdateRateFields, tagUpdateRate).release());
}

void DtXMLEvolvedFileReader::processEmbeddedNote(xmlNode*& node, DtOMTNode* target)
{
    for (const Value& value : valuesOf(node))
        if (!value.text.isEmpty() && value.name == tagNote)
            target->setNote(value.text);
}
