#include "omtReader/omtFileReader.h"

#include "foundation/mtlReader.h"
#include "foundation/warningRules.h"
#include "foundation/xmlText.h"
#include "omtReader/omtItems.h"
#include "omtReader/omtSuperclasses.h"
#include "omtReader/xmlDocument.h"

#include <new>

namespace
{
using DtFile = std::unique_ptr<FILE, int (*)(FILE*)>;

DtFile openFile(const DtString& name)
{
    return DtFile(DtStreamOf(DtOpenPlainFile(name)), std::fclose);
}

// Completes messages; what has no such name has no message that wants one.
DtString nameOf(const DtOMTNode& node)
{
    return node.getName();
}
DtString nameOf(const DtEnumerationNode& /*node*/)
{
    return DtString();
}
DtString nameOf(const DtNoteNode& /*node*/)
{
    return DtString();
}

template <typename Node>
DtString faultText(const char* fault, const Node& node)
{
    DtString text = DtString("Badly formatted ") + fault;
    if (text[text.length() - 1] == ' ')
        text += nameOf(node);
    return text;
}

using DtIdentificationSetter = void (DtOMTTree::*)(const DtString&);

void setIfString(const DtlObjPtr& list, DtOMTTree& tree, DtIdentificationSetter setter)
{
    const DtlObjPtr value = DtcCar(list);
    if (DtcStringp(value))
        (tree.*setter)(DtUtf8Text(value->string()));
}

// The class that `node` names as its superclass; null when there is none.
template <typename Class>
Class* namedSuperclass(const Class& node, const DtOmtHierarchy<Class>& hierarchy, const DtOMTTree& tree)
{
    if (node.getParentIdentifier() == 0)
        return nullptr;
    Class* parent = (tree.*hierarchy.findByNumber)(node.getParentIdentifier());
    if (parent != &node)
        return parent;
    DtTellWarning(DtRules::ownSuperclass, {hierarchy.subjectKind, node.getName(), {}},
                  DtString("Warning: ") + hierarchy.kind + " " + node.getName() + " names itself as its superclass\n");
    return nullptr;
}
} // namespace

void DtOMTFileReader::fail(const DtString& message)
{
    myLastError = message;
    throw DtOMTReadException(message);
}

DtOMTTree* DtOMTFileReader::readFile(const DtString& name, DtExerciseConn* connection)
{
    myConnection = connection;
    const DtMtlEnvironment environment;
    DtlObjPtr elements = DtcCdr(readObjectModel(name, environment.env()));
    return processObjectModel(elements);
}

DtlObjPtr DtOMTFileReader::readObjectModel(const DtString& name, const DtlObjPtr& env)
{
    const DtFile file = openFile(name);
    if (file == nullptr)
        fail("Failed to Open OMT File");
    const std::unique_ptr<DtlInputStream> stream = openStream(file.get());
    if (stream == nullptr)
        fail("Failed to Open OMT Input Stream");
    const DtMtlBackslashEscapes escapes;
    const DtlObjPtr model = findObjectModel(*stream, env);
    if (stream->hasEndedEarly())
        DtTellWarning(DtRules::fileEndsEarly, DtSubject::file(name),
                      name + ": the file ends within a list or a string\n");
    return model;
}

DtlObjPtr DtOMTFileReader::findObjectModel(DtlInputStream& stream, const DtlObjPtr& env)
{
    const DtlObjPtr end = DtcIntern("eof", env);
    const DtlObjPtr tag = DtcMakeSymbol("ObjectModel");
    DtlObjPtr object = DtcRead(&stream, env);
    if (DtcEq(object, end))
        fail("OMT Input file is empty");
    while (!DtcConsp(object) || !DtcEqual(DtcCar(object), tag))
    {
        object = DtcRead(&stream, env);
        if (DtcEq(object, end))
            fail("Could not find ObjectModel tag");
    }
    return object;
}

std::unique_ptr<DtlInputStream> DtOMTFileReader::openStream(FILE* file)
{
    return std::unique_ptr<DtlInputStream>(new (std::nothrow) DtlFileInputStream(file));
}

DtOMTTree* DtOMTFileReader::processObjectModel(DtlObjPtr& list)
{
    if (!DtcListp(list))
    {
        myLastError = "Could not find ObjectModel tree";
        return nullptr;
    }
    auto tree = std::make_unique<DtOMTTree>();
    tree->setHlaVersion(DtHla13);
    DtOMTTreePOC contact;
    for (DtlObjPtr at = list; DtcConsp(at); at = DtcCdr(at))
        processElement(DtcCar(at), *tree, contact);
    tree->addPOC(contact.type, contact.firstName, contact.lastName, contact.organization, contact.telephone,
                 contact.email);
    buildObjectClassTree(tree.get());
    buildInteractionClassTree(tree.get());
    return tree.release();
}

void DtOMTFileReader::processElement(const DtlObjPtr& element, DtOMTTree& tree, DtOMTTreePOC& contact)
{
    const DtlObjPtr keyword = DtcCar(element);
    if (!DtcSymbolp(keyword))
        return;
    if (const DtOmtModelItem* item = DtFindOmtItem(theModelItems, keyword->string()))
        (this->*item->process)(DtcCdr(element), &tree);
    else if (const DtOmtContactItem* field = DtFindOmtItem(theContactItems, keyword->string()))
        if (DtcStringp(DtcCadr(element)))
            contact.*field->field = DtUtf8Text(DtcCadr(element)->string());
}

template <typename Items, typename Node>
void DtOMTFileReader::readItems(const Items& items, const DtlObjPtr& list, Node& node, const char* fault,
                                const char* place)
{
    if (!DtcListp(list))
        fail(faultText(fault, node));
    for (DtlObjPtr at = list; DtcConsp(at); at = DtcCdr(at))
    {
        const DtlObjPtr element = DtcCar(at);
        const DtlObjPtr keyword = DtcCar(element);
        if (!DtcSymbolp(keyword))
            continue;
        if (const auto* item = DtFindOmtItem(items, keyword->string()))
            readItem(*item, DtcCdr(element), node, place);
    }
}

template <typename Item, typename Node>
void DtOMTFileReader::readItem(const Item& item, const DtlObjPtr& value, Node& node, const char* place)
{
    if (item.fault != nullptr && !DtcListp(value))
        fail(faultText(item.fault, node));
    if (item.target.setText != nullptr)
        return (node.*item.target.setText)(DtUtf8Text(DtcCar(value)->string()));
    if (item.target.setNumber != nullptr)
        return (node.*item.target.setNumber)(DtcCar(value)->fixnum());
    try
    {
        (this->*item.target.process)(value, &node);
    }
    catch (const DtOMTReadException&)
    {
        fail(myLastError + place + nameOf(node));
    }
}

void DtOMTFileReader::processComplexDataType(const DtlObjPtr& list, DtOMTTree* tree)
{
    auto node = std::make_unique<DtComplexDatatypeNode>();
    readItems(theComplexDatatypeItems, list, *node, "Complex Datatype", " in Datatype ");
    tree->addComplexDatatypeNode(node.release());
}

void DtOMTFileReader::processComplexComponent(const DtlObjPtr& list, DtComplexDatatypeNode* datatype)
{
    auto node = std::make_unique<DtComplexComponentNode>();
    readItems(theComplexComponentItems, list, *node, "Complex Component");
    datatype->addComponentNode(node.release());
}

void DtOMTFileReader::processEnumeratedDataType(const DtlObjPtr& list, DtOMTTree* tree)
{
    auto node = std::make_unique<DtEnumeratedDatatypeNode>();
    readItems(theEnumeratedDatatypeItems, list, *node, "Enumerated Datatype", " in Datatype ");
    tree->addEnumeratedDatatypeNode(node.release());
}

void DtOMTFileReader::processEnumeration(const DtlObjPtr& list, DtEnumeratedDatatypeNode* datatype)
{
    auto node = std::make_unique<DtEnumerationNode>();
    readItems(theEnumerationItems, list, *node, "Enumeration");
    if (datatype->addEnumerationNode(node.get()))
        static_cast<void>(node.release());
}

void DtOMTFileReader::processObjectClass(const DtlObjPtr& list, DtOMTTree* tree)
{
    auto node = std::make_unique<DtObjectClassFedNode>();
    readItems(theObjectClassItems, list, *node, "Class", " in Class ");
    tree->addObjectClassNode(node.release());
}

void DtOMTFileReader::processAttribute(const DtlObjPtr& list, DtObjectClassFedNode* objectClass)
{
    auto node = std::make_unique<DtAttributeFedNode>();
    readItems(theAttributeItems, list, *node, "Attribute");
    objectClass->addAttribute(node.release());
}

void DtOMTFileReader::processInteractionClass(const DtlObjPtr& list, DtOMTTree* tree)
{
    auto node = std::make_unique<DtInteractionClassFedNode>();
    readItems(theInteractionClassItems, list, *node, "Interaction", " in Interaction  "); // with two blanks
    tree->addInteractionClassNode(node.release());
}

void DtOMTFileReader::processParameter(const DtlObjPtr& list, DtInteractionClassFedNode* interaction)
{
    auto node = std::make_unique<DtParameterFedNode>();
    readItems(theParameterItems, list, *node, "Parameter");
    interaction->addParameter(node.release());
}

void DtOMTFileReader::processNote(const DtlObjPtr& list, DtOMTTree* tree)
{
    auto node = std::make_unique<DtNoteNode>();
    readItems(theNoteItems, list, *node, "Note");
    tree->addNoteNode(node.release());
}

void DtOMTFileReader::processName(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setName);
}

void DtOMTFileReader::processVersionNo(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setVersionNo);
}

void DtOMTFileReader::processType(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setType);
}

void DtOMTFileReader::processPurpose(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setPurpose);
}

void DtOMTFileReader::processApplicationDomain(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setApplicationDomain);
}

void DtOMTFileReader::processSponsorOrgName(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setSponsorOrgName);
}

void DtOMTFileReader::processModificationDate(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setModificationDate);
}

void DtOMTFileReader::processMOMVersion(const DtlObjPtr& list, DtOMTTree* tree)
{
    setIfString(list, *tree, &DtOMTTree::setMOMVersion);
}

template <typename Class>
void DtOMTFileReader::buildClassTree(const DtOmtHierarchy<Class>& hierarchy, DtOMTTree& tree)
{
    if ((tree.*hierarchy.root)() != nullptr)
        return;
    const std::vector<Class*> classes((tree.*hierarchy.begin)(), (tree.*hierarchy.end)());
    auto* root = new Class;
    root->setName(hierarchy.rootName);
    root->setDescriptor(hierarchy.rootDescription);
    root->setIdentifier(0);
    (tree.*hierarchy.add)(root);
    (tree.*hierarchy.setRoot)(root);
    DtOmtSuperclasses<Class> superclasses(hierarchy.kind, hierarchy.subjectKind);
    for (Class* each : classes)
        superclasses.add(each, namedSuperclass(*each, hierarchy, tree));
    for (Class* each : classes)
    {
        Class* parent = superclasses.superclassOf(each);
        ((parent != nullptr ? parent : root)->*hierarchy.addChild)(each);
        if (myConnection != nullptr)
            (this->*hierarchy.setHandles)(each);
    }
}

void DtOMTFileReader::buildObjectClassTree(DtOMTTree* tree)
{
    buildClassTree(theObjectHierarchy, *tree);
}

void DtOMTFileReader::buildInteractionClassTree(DtOMTTree* tree)
{
    buildClassTree(theInteractionHierarchy, *tree);
}

void DtOMTFileReader::setAttributeHandles(DtObjectClassFedNode* /*objectClass*/)
{
}

void DtOMTFileReader::setParameterHandles(DtInteractionClassFedNode* /*interaction*/)
{
}
