#include "omtReader/xmlModelReader.h"

#include "foundation/warningRules.h"
#include "omtReader/xmlModelFields.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>

using Reader = DtXMLModelReader;
using Fields = DtXmlModelFields;

int DtXmlToNumber(const DtString& text)
{
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10)); // the low bits count: 4294967295 is -1
}

double DtXmlToRate(const DtString& text)
{
    DtString number(text);
    number.chompFront();
    const char* start = number.c_str() + (number.startsWith("+") ? 1 : 0);
    double rate = 0.0;
    std::from_chars(start, number.c_str() + number.length(), rate); // the same in every locale
    return rate;
}

void DtXMLModelReader::Values::add(const xmlChar* name, const xmlChar* text)
{
    if (myCount == myValues.size())
        myValues.emplace_back();
    Value& value = myValues[myCount++];
    value.name = reinterpret_cast<const char*>(name);
    value.text.assign(text != nullptr ? reinterpret_cast<const char*>(text) : "");
}

const DtXMLModelReader::Values& DtXMLModelReader::valuesOf(xmlNode* node)
{
    myValues.clear();
    listValues(node, myValues);
    return myValues;
}

bool DtXMLModelReader::hasName(const Values& values)
{
    return std::any_of(values.begin(), values.end(), [](const Value& value) { return value.name == attrName; });
}

namespace
{
// "notes" of 2000 and 2010, with "semanticsNotes" and its like in the former, and "noteReferences" of 2025.
bool isOfNotes(const xmlAttr* attribute)
{
    const std::string_view name(reinterpret_cast<const char*>(attribute->name));
    if (name.empty() || name.back() != 's') // asked of each attribute of the model
        return false;
    const std::string_view ending = "Notes";
    return name == "notes" || name == "noteReferences" ||
           (name.size() > ending.size() && name.substr(name.size() - ending.size()) == ending);
}

void addNoteLabels(const xmlNode* node, DtString& labels)
{
    for (const xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next)
    {
        if (isOfNotes(attribute))
            labels +=
                (labels.isEmpty() ? "" : " ") + DtString(reinterpret_cast<const char*>(DtXmlText(attribute->children)));
    }
}
} // namespace

DtString DtXMLModelReader::noteLabelsOf(const xmlNode* node) const
{
    DtString labels;
    addNoteLabels(node, labels);
    if (myFormat.form == DtXml1516Form) // no element in it holds a value of its own
        return labels;
    for (const xmlNode* child = node->children; child != nullptr; child = child->next)
    {
        if (child->type == XML_ELEMENT_NODE && xmlFirstElementChild(const_cast<xmlNode*>(child)) == nullptr)
            addNoteLabels(child, labels);
    }
    return labels;
}

void DtXMLModelReader::warnOfMissing(const xmlNode* node, const char* element, const char* what)
{
    DtTellWarning(DtRules::missingName, DtXmlFileOf(node),
                  DtString("Warning: ") + element + " definition was missing a " + what + "\n");
}

DtString DtXMLModelReader::childNodeString(xmlAttr*& attribute)
{
    return reinterpret_cast<const char*>(DtXmlText(attribute->children));
}

void DtXMLModelReader::readPoc(xmlNode* node, DtOMTTree* tree)
{
    DtOMTTreePOC poc;
    readFields(node, Fields::thePocFields, poc);
    tree->addPOC(poc.type, poc.firstName, poc.lastName, poc.organization, poc.telephone, poc.email);
}

// ---- classes

template <typename Process, typename Find, typename SetRoot>
void DtXMLModelReader::processHierarchy(xmlNode* parent, const Hierarchy& words, Process process, Find find,
                                        SetRoot setRoot)
{
    bool hasTop = false;
    decltype(find(DtString())) top = nullptr;
    for (xmlNode*& element : DtXmlElements(parent))
    {
        if (!DtHasXmlName(element, words.element))
            continue;
        if (hasTop)
            DtTellWarning(DtRules::additionalRoot, DtXmlFileOf(parent),
                          DtString("Warning: Additional ") + words.kind +
                              " node found at the root level when parsing " + myFormat.words +
                              " file has been ignored.\n");
        else
            top = process(element);
        hasTop = true;
    }
    const auto root = find(words.root);
    if (root == nullptr)
        DtTellWarning(DtRules::missingRoot, DtXmlFileOf(parent),
                      DtString("Warning: ") + words.root + " is missing from " + myFormat.words + " file\n");
    else if (root == top)
        setRoot(root);
    else
        DtTellWarning(DtRules::wrongRoot, DtXmlFileOf(parent),
                      DtString("Warning: ") + words.wrongKind + " root is not \"" + words.wrongRoot + "\" in " +
                          myFormat.words + " file\n");
}

void DtXMLModelReader::processObjects(xmlNode*& node, DtOMTTree* tree)
{
    const Hierarchy words = {tagObjectClass, "object", valueObjectRoot, myFormat.wrongKind, myFormat.wrongRoot};
    processHierarchy(
        node, words, [&](xmlNode*& element) { return processObjectClass(element, tree); },
        [&](const DtString& name) { return tree->getObjectClassNode(name); },
        [&](DtObjectClassFedNode* root) { tree->setObjectClassRoot(root); });
}

DtObjectClassFedNode* DtXMLModelReader::processObjectClass(xmlNode*& node, DtOMTTree* tree)
{
    auto objectClass = readMember(node, Fields::theObjectClassFields, tagObjectClass);
    if (objectClass == nullptr)
        return nullptr;
    for (xmlNode*& child : DtXmlElements(node))
    {
        if (DtHasXmlName(child, tagObjectClass))
            objectClass->addChildObject(processObjectClass(child, tree)); // null is ignored
        else if (DtHasXmlName(child, tagAttribute))
            objectClass->addAttribute(processAttribute(child, objectClass.get()));
    }
    tree->addObjectClassNode(objectClass.get());
    return objectClass.release();
}

DtAttributeFedNode* DtXMLModelReader::processAttribute(xmlNode*& node, DtObjectClassFedNode* /*objectClass*/)
{
    return readMember(node, Fields::theAttributeFields, tagAttribute).release();
}

void DtXMLModelReader::processInteractions(xmlNode*& node, DtOMTTree* tree)
{
    static const Hierarchy theWords = {tagInteractionClass, "interaction", valueInteractionRoot, "Interaction",
                                       valueInteractionRoot};
    processHierarchy(
        node, theWords, [&](xmlNode*& element) { return processInteractionClass(element, tree); },
        [&](const DtString& name) { return tree->getInteractionClassNode(name); },
        [&](DtInteractionClassFedNode* root) { tree->setInteractionClassRoot(root); });
}

DtInteractionClassFedNode* DtXMLModelReader::processInteractionClass(xmlNode*& node, DtOMTTree* tree)
{
    auto interaction = readMember(node, Fields::theInteractionClassFields, tagInteractionClass);
    if (interaction == nullptr)
        return nullptr;
    for (xmlNode*& child : DtXmlElements(node))
    {
        if (DtHasXmlName(child, tagInteractionClass))
            interaction->addChildInteraction(processInteractionClass(child, tree)); // null is ignored
        else if (DtHasXmlName(child, tagParameter))
            processParameter(child, interaction.get());
    }
    tree->addInteractionClassNode(interaction.get());
    return interaction.release();
}

DtParameterFedNode* DtXMLModelReader::processParameter(xmlNode*& node, DtInteractionClassFedNode* interaction)
{
    auto parameter = readMember(node, Fields::theParameterFields, tagParameter);
    interaction->addParameter(parameter.get()); // null is ignored
    return parameter.release();
}

// ---- datatypes

void DtXMLModelReader::processDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    static const Construct<Reader> theConstructs[] = {
        {tagSimpleDataTypes,          &Reader::processSimpleDatatypes         },
        {tagReferenceDataTypes,       &Reader::processReferenceDatatypes      },
        {tagEnumeratedDataTypes,      &Reader::processEnumeratedDatatypes     },
        {tagArrayDataTypes,           &Reader::processArrayDatatypes          },
        {tagFixedRecordDataTypes,     &Reader::processFixedRecordDatatypes    },
        {tagVariantRecordDataTypes,   &Reader::processVariantRecordDatatypes  },
        {tagBasicDataRepresentations, &Reader::processBasicDataRepresentations},
    };
    dispatch(node, theConstructs, tree);
}

void DtXMLModelReader::processSimpleDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagSimpleData, &Reader::processSimpleData, tree);
}

void DtXMLModelReader::processSimpleData(xmlNode*& node, DtOMTTree* tree)
{
    tree->addSimpleDatatypeNode(readNamedItem(node, Fields::theSimpleFields, tagSimpleData).release());
}

void DtXMLModelReader::processReferenceDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagReferenceDataType, &Reader::processReferenceData, tree);
}

void DtXMLModelReader::processReferenceData(xmlNode*& node, DtOMTTree* tree)
{
    tree->addReferenceDatatypeNode(readNamedItem(node, Fields::theReferenceFields, tagReferenceDataType).release());
}

void DtXMLModelReader::processEnumeratedDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagEnumeratedData, &Reader::processEnumeratedData, tree);
}

void DtXMLModelReader::processEnumeratedData(xmlNode*& node, DtOMTTree* tree)
{
    auto datatype = readNamedItem(node, Fields::theEnumeratedFields, tagEnumeratedData);
    if (datatype == nullptr)
        return;
    myOddEnumerators.clear();
    processEach(node, tagEnumerator, &Reader::processEnumerator, datatype.get());
    warnOfOddEnumerators(*datatype);
    tree->addEnumeratedDatatypeNode(datatype.release());
}

void DtXMLModelReader::processEnumerator(xmlNode*& node, DtEnumeratedDatatypeNode* datatype)
{
    auto enumerator = readNamedItem(node, Fields::theEnumeratorFields, tagEnumerator);
    if (enumerator == nullptr)
        return;
    const bool isTaken = datatype->addEnumerationNode(enumerator.get());
    if (!enumerator->isNumberTheValue())
        myOddEnumerators.push_back(enumerator->getEnum() + (isTaken ? "" : " (left out)"));
    if (isTaken)
        static_cast<void>(enumerator.release()); // the datatype owns it now
}

// The numbers of such values clash more often than not, and then all but the first enumerator are left out.
void DtXMLModelReader::warnOfOddEnumerators(const DtEnumeratedDatatypeNode& datatype) const
{
    DtString names;
    for (const DtString& name : myOddEnumerators)
        names += (names.isEmpty() ? "" : ", ") + name;
    if (!names.isEmpty())
        DtTellWarning(DtRules::enumeratorValue, DtSubject::datatype(datatype.getName()),
                      "Warning: Enumeration " + datatype.getName() +
                          " has values that are no numbers from -2147483648 to 2147483647: " + names + "\n");
}

void DtXMLModelReader::processArrayDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagArrayData, &Reader::processArrayData, tree);
}

void DtXMLModelReader::processArrayData(xmlNode*& node, DtOMTTree* tree)
{
    tree->addArrayDatatypeNode(readNamedItem(node, Fields::theArrayFields, tagArrayData).release());
}

void DtXMLModelReader::processFixedRecordDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagFixedRecordData, &Reader::processFixedRecordData, tree);
}

void DtXMLModelReader::processFixedRecordData(xmlNode*& node, DtOMTTree* tree)
{
    auto datatype = myFormat.form == DtXml1516Form ? readItem(node, Fields::theFixedFields)
                                                   : readNamedItem(node, Fields::theFixedFields, tagFixedRecordData);
    if (datatype == nullptr)
        return;
    processEach(node, tagField, &Reader::processField, datatype.get());
    tree->addFixedDatatypeNode(datatype.release());
}

void DtXMLModelReader::processField(xmlNode*& node, DtFixedDatatypeNode* datatype)
{
    datatype->addComponentNode(readNamedItem(node, Fields::theFieldFields, "fixedRecordData field").release());
}

void DtXMLModelReader::processVariantRecordDatatypes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagVariantRecordData, &Reader::processVariantRecordData, tree);
}

void DtXMLModelReader::processVariantRecordData(xmlNode*& node, DtOMTTree* tree)
{
    auto datatype = readNamedItem(node, Fields::theVariantFields, tagVariantRecordData);
    if (datatype == nullptr)
        return;
    processEach(node, tagAlternative, &Reader::processAlternative, datatype.get());
    tree->addVariantDatatypeNode(datatype.release());
}

void DtXMLModelReader::processAlternative(xmlNode*& node, DtVariantDatatypeNode* datatype)
{
    datatype->addComponentNode(readItem(node, Fields::theAlternativeFields).release());
}

void DtXMLModelReader::processBasicDataRepresentations(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagBasicData, &Reader::processBasicData, tree);
}

void DtXMLModelReader::processBasicData(xmlNode*& node, DtOMTTree* tree)
{
    tree->addBasicDataRepresentationNode(readNamedItem(node, Fields::theBasicFields, tagBasicData).release());
}

// ---- the small tables

void DtXMLModelReader::processNotes(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagNote, &Reader::processNote, tree);
}

void DtXMLModelReader::processNote(xmlNode*& node, DtOMTTree* tree)
{
    tree->addNoteNode(readItem(node, Fields::theNoteFields).release());
}

void DtXMLModelReader::processDimensions(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagDimension, &Reader::processDimension, tree);
}

void DtXMLModelReader::processDimension(xmlNode*& node, DtOMTTree* tree)
{
    tree->addDimensionNode(readNamedItem(node, Fields::theDimensionFields, tagDimension).release());
}

void DtXMLModelReader::processTimeRepresentation(xmlNode*& node, DtOMTTree* tree)
{
    DtTimeRepNode& time = *tree->getTimeRepNode();
    for (xmlNode* child : DtXmlElements(node))
    {
        if (DtHasXmlName(child, tagTimeStamp))
            readFields(child, Fields::theTimeStampFields, time);
        else if (DtHasXmlName(child, tagLookahead))
            readFields(child, Fields::theLookaheadFields, time);
    }
}

void DtXMLModelReader::processTag(xmlNode*& node, DtOMTTree* tree)
{
    auto tag = std::make_unique<DtTagNode>();
    if (node->type == XML_ELEMENT_NODE) // no other kind has values
        readFields(node, Fields::theTagFields, *tag);
    tag->setName(reinterpret_cast<const char*>(node->name)); // null of a CDATA section
    tree->addTagNode(tag.release());
}

void DtXMLModelReader::processTransportations(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagTransportation, &Reader::processTransportation, tree);
}

void DtXMLModelReader::processTransportation(xmlNode*& node, DtOMTTree* tree)
{
    tree->addTransportationNode(readItem(node, Fields::theTransportationFields).release());
}

void DtXMLModelReader::processSynchronizations(xmlNode*& node, DtOMTTree* tree)
{
    processEach(node, tagSynchronization, &Reader::processSynchronization, tree);
}

void DtXMLModelReader::processSynchronization(xmlNode*& node, DtOMTTree* tree)
{
    tree->addSynchroNode(
        readNamedItem(node, Fields::theSynchronizationFields, tagSynchronization, attrLabel).release());
}
