#ifndef CODE_GEN_APP_LIST_VIEW_MANAGER_H
#define CODE_GEN_APP_LIST_VIEW_MANAGER_H

#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtObject.h"

#include <QtCore/QHash>
#include <QtCore/QPair>
#include <QtWidgets/QTreeWidget>

#include <map>
#include <set>
#include <vector>

class DtFedNode;
class DtOmtProject;

// Drives the two class lists of the main window: the model's classes on the left, those to generate on the right.
//
// Adding copies a class and the path above it to the right and records the classes in the project; removing takes
// them out again. The lists are not owned. Items of the right list may only go through processRemoval() and reset(),
// which keep the look-up of children by text up to date.
class DtListViewManager
{
public:
    // A left list item and its class in the parse tree.
    using DtItemMap = std::map<QTreeWidgetItem*, const DtFedNode*>;

    DtListViewManager(QTreeWidget* left, QTreeWidget* right);
    virtual ~DtListViewManager();
    DtListViewManager(const DtListViewManager&) = delete;
    DtListViewManager& operator=(const DtListViewManager&) = delete;

    virtual QTreeWidget* leftListView() const { return myLeftListView; }
    virtual QTreeWidget* rightListView() const { return myRightListView; }
    // Top-level item of each kind in the left list, null when it is not there.
    virtual QTreeWidgetItem* leftObjectList() const;
    virtual QTreeWidgetItem* leftInteractionList() const;
    // Right item to the left item it came from.
    virtual const std::map<QTreeWidgetItem*, QTreeWidgetItem*>& rightWidgetsByLeftWidgets() const
    {
        return myRightWidgetsByLeftWidgets;
    }

    // Copies left items to the right, each with the path above it, and records the new ones in the project: the
    // selected items, or all, or (fromProject) those whose class the project holds already.
    virtual void processAddition(bool selectedOnly, DtOmtProject* project, DtItemMap& objectItems,
                                 DtItemMap& interactionItems, bool fromProject);
    // Removes the selected right items and, from the project, every class whose full name contains theirs.
    virtual void processRemoval(DtOmtProject* project);
    // Rebuild the two sets from the right list and return them.
    virtual const std::set<DtOmtObject>& objectsToGenerate(const DtItemMap& objectItems);
    virtual const std::set<DtOmtInteraction>& interactionsToGenerate(const DtItemMap& interactionItems);
    // Selects all items of the list that has the focus.
    virtual void selectAll();
    // Clears both lists and empties the sets.
    virtual void reset();
    void clearRightList();
    // Selects nothing, and leads the keyboard to the first item of the left list.
    void startAtTheTop() const;
    virtual void findObjectsAndInteractions(std::vector<QTreeWidgetItem*>& found, bool rightList, bool selectedOnly,
                                            DtOmtProject* project, const DtItemMap& objectItems,
                                            const DtItemMap& interactionItems, bool fromProject);
    virtual void compileObjectSet(QTreeWidgetItem* item, const DtItemMap& objectItems);
    virtual void compileInteractionSet(QTreeWidgetItem* item, const DtItemMap& interactionItems);
    // Appends the items to take, children ahead of their parent.
    virtual void findItems(QTreeWidgetItem* root, std::vector<QTreeWidgetItem*>& found, bool selectedOnly,
                           DtOmtProject* project, const DtItemMap& objectItems, const DtItemMap& interactionItems,
                           bool fromProject);

    // Makes the columns at least as wide as what stands in them, so that a long name scrolls and is not cut off. To be
    // called when the left list was filled; the right one is seen to.
    void fitColumns() const;

    // Look into the sets as they were built last.
    bool objectExistsInTree(const DtString& fullName) const;
    bool interactionExistsInTree(const DtString& fullName) const;

private:
    void addPath(QTreeWidgetItem* leaf, DtOmtProject* project, const DtItemMap& objectItems,
                 const DtItemMap& interactionItems);
    QTreeWidgetItem* rightTopLevelItem(const QString& text);
    QTreeWidgetItem* rightChild(QTreeWidgetItem* parent, const QString& text) const;
    QTreeWidgetItem* addRightChild(QTreeWidgetItem* parent, QTreeWidgetItem* leftItem);
    void record(QTreeWidgetItem* leftItem, const DtItemMap& items, bool isObject, DtOmtProject* project) const;
    const DtFedNode* nodeOfRightItem(QTreeWidgetItem* item, const DtItemMap& items) const;
    void removeFromProject(QTreeWidgetItem* item, DtOmtProject* project) const;
    void forget(QTreeWidgetItem* item);

    QTreeWidget* myLeftListView;
    QTreeWidget* myRightListView;
    std::set<DtOmtObject> objects;
    std::set<DtOmtInteraction> interactions;
    std::map<QTreeWidgetItem*, QTreeWidgetItem*> myRightWidgetsByLeftWidgets;
    QHash<QPair<QTreeWidgetItem*, QString>, QTreeWidgetItem*> myRightChildren; // by parent, the first of each text
};

#endif
