#include "fileGenerator/omtEnvReader.h"

#include "fileGenerator/settings.h"

#include "foundation/exception.h"
#include "foundation/warningRules.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/omtFileReader.h"
#include "omtReader/omtReadException.h"
#include "omtReader/omtTree.h"
#include "omtReader/xmlFileReader.h"

#include <QtWidgets/QTreeWidget>

namespace
{

// Says why there is no tree; texts of the reader may lack their line end.
DtOMTTree* reported(DtOMTTree* tree, const DtString& error, const DtFilename& file)
{
    if (tree != nullptr || error.isEmpty())
        return tree;
    const bool hasLineEnd = error[error.length() - 1] == '\n';
    DtTellWarning(DtRules::unreadableModel, DtSubject::file(file), error + (hasLineEnd ? "" : "\n"));
    return nullptr;
}

DtOMTTree* reportedXml(DtOMTTree* tree, const DtXMLFileReader& reader)
{
    return reader.isErrorTold() ? tree : reported(tree, reader.getLastError(), reader.lastFile());
}

DtOMTTree* readXmlFile(DtXMLFileReader& reader, const DtFilename& file)
{
    DtOMTTree* const tree = reader.readFile(file, nullptr); // ahead of the look at its error
    return reportedXml(tree, reader);
}

DtOMTTree* readXmlModules(const std::vector<DtFilename>& files, DtFomType type)
{
    DtXMLFileReader reader;
    DtOMTTree* const tree = reader.readFiles(files, type, nullptr);
    return reportedXml(tree, reader);
}

DtOMTTree* readOmtFile(const DtFilename& file)
{
    DtOMTFileReader reader;
    try
    {
        return reported(reader.readFile(file, nullptr), reader.getLastError(), file);
    }
    catch (const DtOMTReadException&)
    {
        return reported(nullptr, reader.getLastError(), file);
    }
}

QTreeWidgetItem* addItem(QTreeWidgetItem* parent, const DtString& name)
{
    auto* item = new QTreeWidgetItem(parent); // the parent owns it
    item->setText(0, QString::fromUtf8(name.c_str()));
    parent->setExpanded(true);
    return item;
}

QTreeWidgetItem* addTopItem(QTreeWidget* list, const char* text)
{
    return new QTreeWidgetItem(list, QStringList(QString::fromLatin1(text)));
}

} // namespace

DtOMTEnvReader::~DtOMTEnvReader() = default;

DtOMTTree* DtOMTEnvReader::readFiles(const std::vector<DtFilename>& files, bool& ok)
{
    if (!files.empty() && files.front().extension() == "xml")
        myTree = readXmlModules(files, DtFomUnknown);
    clearMaps();
    ok = true; // also without a tree: callers look at the result
    return myTree;
}

DtOMTTree* DtOMTEnvReader::readMultipleFiles(const std::vector<DtFilename>& files, bool& ok, DtFomType type)
{
    clearMaps();
    ok = readTypedFiles(files, type) && myTree != nullptr;
    return myTree;
}

bool DtOMTEnvReader::readTypedFiles(const std::vector<DtFilename>& files, DtFomType type)
{
    DtXMLFileReader reader;
    switch (type)
    {
    case DtFomOmt13:
        myTree = files.empty() ? nullptr : readOmtFile(files.front());
        return true;
    case DtFom1516:
        myTree = files.empty() ? nullptr : readXmlFile(reader, files.front());
        return true;
    case DtFomEvolved:
    case DtFomHla4:
        myTree = readXmlModules(files, type);
        return true;
    default:
        return false;
    }
}

DtOMTTree* DtOMTEnvReader::readFile(const DtFilename& file, bool& ok)
{
    ok = false;
    const DtString extension = file.extension();
    if (extension == "omt")
        myTree = readOmtFile(file);
    else if (extension == "xml")
    {
        DtXMLFileReader reader;
        reader.includeMIM(DtSettings::instance().cpp.includesMim);
        myTree = readXmlFile(reader, file);
    }
    else
        return nullptr;
    if (myTree == nullptr)
        return nullptr;
    clearMaps();
    ok = true;
    return myTree;
}

void DtOMTEnvReader::constructObjectListView(QTreeWidget* list, QTreeWidgetItem* parent)
{
    if (myTree == nullptr)
        DT_THROW("readFile() must be called before constructing object list view.");
    const DtObjectClassFedNode* root = myTree->objectClassRoot();
    if (root == nullptr)
        return;
    parent = addTopItem(list, "Objects");
    for (const DtObjectClassFedNode* each : root->getChildObjects())
        addToObjectListView(each, parent, list);
}

void DtOMTEnvReader::constructInteractionListView(QTreeWidget* list, QTreeWidgetItem* parent)
{
    if (myTree == nullptr)
        DT_THROW("readFile() must be called before constructing interaction list view.");
    const DtInteractionClassFedNode* root = myTree->interactionClassRoot();
    if (root == nullptr)
        return;
    parent = addTopItem(list, "Interactions");
    for (const DtInteractionClassFedNode* each : root->getChildInteractions())
        addToInteractionListView(each, parent, list);
}

DtOMTEnvReader::DtNodeMap& DtOMTEnvReader::objectWidgetToRootNodeMap()
{
    return myObjectWidgetToRootNodeMap;
}

DtOMTEnvReader::DtNodeMap& DtOMTEnvReader::interactionWidgetToRootNodeMap()
{
    return myInteractionWidgetToRootNodeMap;
}

const DtOMTEnvReader::DtNodeMap& DtOMTEnvReader::objectWidgetToRootNodeMap() const
{
    return myObjectWidgetToRootNodeMap;
}

const DtOMTEnvReader::DtNodeMap& DtOMTEnvReader::interactionWidgetToRootNodeMap() const
{
    return myInteractionWidgetToRootNodeMap;
}

DtOMTTree* DtOMTEnvReader::tree() const
{
    return myTree;
}

void DtOMTEnvReader::addToObjectListView(const DtObjectClassFedNode* node, QTreeWidgetItem* parent, QTreeWidget* list)
{
    QTreeWidgetItem* item = addItem(parent, node->getName());
    myObjectWidgetToRootNodeMap[item] = node;
    for (const DtObjectClassFedNode* each : node->getChildObjects())
        addToObjectListView(each, item, list);
}

void DtOMTEnvReader::addToInteractionListView(const DtInteractionClassFedNode* node, QTreeWidgetItem* parent,
                                              QTreeWidget* list)
{
    QTreeWidgetItem* item = addItem(parent, node->getName());
    myInteractionWidgetToRootNodeMap[item] = node;
    for (const DtInteractionClassFedNode* each : node->getChildInteractions())
        addToInteractionListView(each, item, list);
}

void DtOMTEnvReader::clearMaps()
{
    myObjectWidgetToRootNodeMap.clear();
    myInteractionWidgetToRootNodeMap.clear();
}
