// Object and interaction classes in the context of DtOMTWriter.

#include "fileGenerator/contextRow.h"
#include "fileGenerator/omtWriter.h"
#include "omtReader/omtTree.h"

namespace
{
constexpr DtKeyForm Plain = DtKeyForm::Plain;
constexpr DtKeyForm Text = DtKeyForm::Text;
constexpr DtKeyForm Name = DtKeyForm::Name;

using Attribute = DtAttributeFedNode;
const DtContextRow<Attribute> theAttributeRows[] = {
    {"AttributeAccuracy",          got<&Attribute::getAccuracy>,           Text },
    {"AttributeAccuracyCondition", got<&Attribute::getAccuracyCondition>,  Text },
    {"AttributeCardinality",       got<&Attribute::getCardinality>,        Text },
    {"AttributeCardinalityMax",    got<&Attribute::getCardinalityMaximum>, Plain},
    {"AttributeCardinalityMin",    got<&Attribute::getCardinalityMinimum>, Plain},
    {"AttributeCardinalityType",   got<&Attribute::getCardinalityType>,    Plain},
    {"AttributeDatatype",          got<&Attribute::getDatatype>,           Name },
    {"AttributeDescription",       got<&Attribute::getDescription>,        Text },
    {"AttributeFullName",          got<&Attribute::getFullName>,           Text },
    {"AttributeName",              got<&Attribute::getName>,               Name },
    {"AttributeNote",              got<&Attribute::getNote>,               Text },
    {"AttributeOrder",             got<&Attribute::getOrder>,              Text },
    {"AttributeSharing",           got<&Attribute::getSharing>,            Text },
    {"AttributeTransferAccept",    got<&Attribute::getTransferAccept>,     Text },
    {"AttributeTransportation",    got<&Attribute::getTransportation>,     Text },
    {"AttributeUpdateCondition",   got<&Attribute::getUpdateCondition>,    Text },
    {"AttributeUpdateType",        got<&Attribute::getUpdateType>,         Text },
};

DtContextValue parameterIdentifier(const DtParameterFedNode& parameter, DtOMTWriter& writer)
{
    return writer.identifierOf(parameter.getName());
}

// The datatype has no identifier beside it, unlike that of an attribute, and the name's is a row of its own.
using Parameter = DtParameterFedNode;
const DtContextRow<Parameter> theParameterRows[] = {
    {"ParameterAccuracy",          got<&Parameter::getAccuracy>,           Text },
    {"ParameterAccuracyCondition", got<&Parameter::getAccuracyCondition>,  Text },
    {"ParameterCardinality",       got<&Parameter::getCardinality>,        Text },
    {"ParameterCardinalityMax",    got<&Parameter::getCardinalityMaximum>, Plain},
    {"ParameterCardinalityMin",    got<&Parameter::getCardinalityMinimum>, Plain},
    {"ParameterCardinalityType",   got<&Parameter::getCardinalityType>,    Plain},
    {"ParameterDatatype",          got<&Parameter::getDatatype>,           Text },
    {"ParameterDescription",       got<&Parameter::getDescription>,        Text },
    {"ParameterFullName",          got<&Parameter::getFullName>,           Text },
    {"ParameterName",              got<&Parameter::getName>,               Text },
    {"ParameterNameId",            parameterIdentifier,                    Plain},
    {"ParameterNote",              got<&Parameter::getNote>,               Text },
    {"ParameterOrder",             got<&Parameter::getOrder>,              Text },
    {"ParameterSharing",           got<&Parameter::getSharing>,            Text },
    {"ParameterTransportation",    got<&Parameter::getTransportation>,     Text },
};

using Object = DtObjectClassFedNode;
const DtContextRow<Object> theObjectRows[] = {
    {"ObjectFullName",   got<&Object::getFullName>,   Text},
    {"ObjectName",       got<&Object::getName>,       Name},
    {"ObjectDescriptor", got<&Object::getDescriptor>, Text},
    {"ObjectNote",       got<&Object::getNote>,       Text},
    {"ObjectSharing",    got<&Object::getSharing>,    Text},
    {"ObjectUniqueId",   got<&Object::getUniqueName>, Text},
};

// The parent's unique name is empty unless the parent came first.
const DtContextRow<DtFedNode> theObjectParentRows[] = {
    {"ObjectParentFullName", got<&DtFedNode::getFullName>,   Text},
    {"ObjectParentName",     got<&DtFedNode::getName>,       Text},
    {"ObjectParentUniqueId", got<&DtFedNode::getUniqueName>, Text},
};

using Interaction = DtInteractionClassFedNode;
const DtContextRow<Interaction> theInteractionRows[] = {
    {"InteractionFullName",       got<&Interaction::getFullName>,       Text},
    {"InteractionName",           got<&Interaction::getName>,           Name},
    {"InteractionDescriptor",     got<&Interaction::getDescriptor>,     Text},
    {"InteractionNote",           got<&Interaction::getNote>,           Text},
    {"InteractionSharing",        got<&Interaction::getSharing>,        Text},
    {"InteractionOrder",          got<&Interaction::getOrder>,          Text},
    {"InteractionTransportation", got<&Interaction::getTransportation>, Text},
    {"InteractionUniqueId",       got<&Interaction::getUniqueName>,     Text},
};

const DtContextRow<DtFedNode> theInteractionParentRows[] = {
    {"InteractionParentFullName", got<&DtFedNode::getFullName>,   Text},
    {"InteractionParentName",     got<&DtFedNode::getName>,       Text},
    {"InteractionParentUniqueId", got<&DtFedNode::getUniqueName>, Text},
};

constexpr const char* theDimensionCount = "NumDimensions";
constexpr const char* theDimensionKey = "Dimension";

void putDimensions(const std::list<DtString>& names, const char* listKey, DtMapSubstitute& entry)
{
    auto dimensions = std::make_unique<DtMapSubstitute>();
    for (const DtString& name : names)
        DtPutValue(dimensions->putMap(name), theDimensionKey, name, Text);
    DtPutList(entry, theDimensionCount, listKey, std::move(dimensions));
}

std::unique_ptr<DtMapSubstitute> attributesOf(const Object& node, DtOMTWriter& writer)
{
    auto attributes = std::make_unique<DtMapSubstitute>();
    for (const Attribute* attribute : node.getAttributes())
    {
        if (attribute == nullptr)
            continue;
        DtMapSubstitute& entry = attributes->putMap(attribute->getFullName());
        DtPutRows(theAttributeRows, *attribute, writer, entry);
        writer.getType("Attribute", attribute->getDatatype(), &entry);
        putDimensions(attribute->getDimensions(), "AttributeDimensions", entry);
    }
    return attributes;
}

std::unique_ptr<DtMapSubstitute> parametersOf(const Interaction& node, DtOMTWriter& writer)
{
    auto parameters = std::make_unique<DtMapSubstitute>();
    for (const Parameter* parameter : node.getParameters())
    {
        if (parameter == nullptr)
            continue;
        DtMapSubstitute& entry = parameters->putMap(parameter->getFullName());
        DtPutRows(theParameterRows, *parameter, writer, entry);
        writer.getType("Parameter", parameter->getDatatype(), &entry);
    }
    return parameters;
}

void putObject(const Object& node, DtOMTWriter& writer, DtMapSubstitute& entry)
{
    DtPutList(entry, "NumAttributes", "Attributes", attributesOf(node, writer));
    DtPutRows(theObjectRows, node, writer, entry);
    if (const DtFedNode* parent = node.getParentObject())
        DtPutRows(theObjectParentRows, *parent, writer, entry);
}

void putInteraction(const Interaction& node, DtOMTWriter& writer, DtMapSubstitute& entry)
{
    DtPutList(entry, "NumParameters", "Parameters", parametersOf(node, writer));
    DtPutRows(theInteractionRows, node, writer, entry);
    putDimensions(node.getDimensions(), "InteractionDimensions", entry);
    if (const DtFedNode* parent = node.getParentObject())
        DtPutRows(theInteractionParentRows, *parent, writer, entry);
}

// Those of an earlier run, which may have had another selection.
template <typename Nodes>
void forgetUniqueNames(const Nodes& nodes)
{
    for (auto* node : nodes)
        node->setUniqueName(DtString());
}
} // namespace

void DtAddClassKeys(std::vector<DtContextKey>& keys)
{
    DtContextKeyList(keys, "Objects")
        .addList("NumAttributes", "Attributes")
        .add(theObjectRows)
        .add(theObjectParentRows);
    DtContextKeyList(keys, "Attributes")
        .add(theAttributeRows)
        .addType("Attribute")
        .addList(theDimensionCount, "AttributeDimensions");
    DtContextKeyList(keys, "AttributeDimensions").add(theDimensionKey, Text);
    DtContextKeyList(keys, "Interactions")
        .addList("NumParameters", "Parameters")
        .add(theInteractionRows)
        .addList(theDimensionCount, "InteractionDimensions")
        .add(theInteractionParentRows);
    DtContextKeyList(keys, "Parameters").add(theParameterRows).addType("Parameter");
    DtContextKeyList(keys, "InteractionDimensions").add(theDimensionKey, Text);
}

void DtOMTWriter::noteUniqueName(DtOMTNode& node)
{
    node.setUniqueName(getUniqueName(identifierOf(node.getName())));
}

DtMapSubstitute* DtOMTWriter::getObjectContext()
{
    forgetUniqueNames(tree().objectClasses());
    auto objects = std::make_unique<DtMapSubstitute>();
    for (const DtOmtObject& object : myObjectsToGenerate)
    {
        DtObjectClassFedNode* node = tree().getObjectClassNode(object.fullName());
        if (node == nullptr || node->getFullName() == "HLAobjectRoot")
            continue;
        noteUniqueName(*node);
        putObject(*node, *this, objects->putMap(node->getFullName()));
    }
    return objects.release();
}

DtMapSubstitute* DtOMTWriter::getInteractionContext()
{
    forgetUniqueNames(tree().interactionClasses());
    auto interactions = std::make_unique<DtMapSubstitute>();
    for (const DtOmtInteraction& interaction : myInteractionsToGenerate)
    {
        DtInteractionClassFedNode* node = tree().getInteractionClassNode(interaction.fullName());
        if (node == nullptr || node->getFullName() == "HLAinteractionRoot")
            continue;
        noteUniqueName(*node);
        putInteraction(*node, *this, interactions->putMap(node->getFullName()));
    }
    return interactions.release();
}
