#ifndef FILE_GENERATOR_OMT_ENV_READER_H
#define FILE_GENERATOR_OMT_ENV_READER_H

#include "foundation/filename.h"
#include "foundation/fomType.h"

#include <map>
#include <vector>

class DtFedNode;
class DtInteractionClassFedNode;
class DtOMTTree;
class DtObjectClassFedNode;
class QTreeWidget;
class QTreeWidgetItem;

// Loads one or several model files into a tree and shows its classes in the lists of the window.
//
// Used once: made anew for each load, first one of the reading operations and then the two list views. The tree belongs
// to the caller and outlives the reader. Why a file could not be read goes to DtWarn.
class DtOMTEnvReader
{
public:
    using DtNodeMap = std::map<QTreeWidgetItem*, const DtFedNode*>;

    virtual ~DtOMTEnvReader();

    // Several XML modules, their type taken from the first. `ok` is true whatever happens: whether the read succeeded
    // shows in the result alone.
    virtual DtOMTTree* readFiles(const std::vector<DtFilename>& files, bool& ok);
    // Files of a known type. Only types 3 and 4 have modules; of the others the first file alone is read.
    virtual DtOMTTree* readMultipleFiles(const std::vector<DtFilename>& files, bool& ok, DtFomType type);
    // One file, the reader chosen by its extension, "xml" or "omt" in small letters. Any other is not even opened.
    virtual DtOMTTree* readFile(const DtFilename& file, bool& ok);

    // Adds a top item "Objects" or "Interactions" with one item for each class below the root, all expanded. Adds
    // nothing for a model without root; throws DtException without a tree. The second argument is not used: the new top
    // item is the parent.
    virtual void constructObjectListView(QTreeWidget* list, QTreeWidgetItem* parent);
    virtual void constructInteractionListView(QTreeWidget* list, QTreeWidgetItem* parent);

    // The class behind each item of the lists.
    virtual DtNodeMap& objectWidgetToRootNodeMap();
    virtual DtNodeMap& interactionWidgetToRootNodeMap();
    virtual const DtNodeMap& objectWidgetToRootNodeMap() const;
    virtual const DtNodeMap& interactionWidgetToRootNodeMap() const;

    virtual DtOMTTree* tree() const; // null until a read succeeded

    // One class and its subclasses below the parent, which is expanded.
    virtual void addToObjectListView(const DtObjectClassFedNode* node, QTreeWidgetItem* parent, QTreeWidget* list);
    virtual void addToInteractionListView(const DtInteractionClassFedNode* node, QTreeWidgetItem* parent,
                                          QTreeWidget* list);

private:
    // False when there is no reader for the type; the tree stays as it was then.
    bool readTypedFiles(const std::vector<DtFilename>& files, DtFomType type);
    void clearMaps();

    DtNodeMap myObjectWidgetToRootNodeMap;
    DtNodeMap myInteractionWidgetToRootNodeMap;
    DtOMTTree* myTree = nullptr; // not owned
};

#endif
