#include "codeGenApp/listViewManager.h"

#include "fileGenerator/omtProject.h"
#include "foundation/stringUtils.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"

#include <QtCore/QSet>
#include <QtWidgets/QHeaderView>

#include <algorithm>

namespace
{
const QString theObjectsText = QStringLiteral("Objects");
const QString theInteractionsText = QStringLiteral("Interactions");
const int theLeastWidth = 50; // of a column, in pixels

bool isRootText(const QString& text)
{
    return text == theObjectsText || text == theInteractionsText;
}

DtString textOf(const QTreeWidgetItem* item)
{
    return DtString(item->text(0).toUtf8().constData());
}

QTreeWidgetItem* topLevelItem(const QTreeWidget* list, const QString& text)
{
    const QList<QTreeWidgetItem*> found = list->findItems(text, Qt::MatchExactly, 0);
    return found.isEmpty() ? nullptr : found.first();
}

const DtFedNode* nodeOf(QTreeWidgetItem* item, const DtListViewManager::DtItemMap& items)
{
    const auto found = items.find(item);
    return found == items.end() ? nullptr : found->second;
}

void setUpList(QTreeWidget* list, const char* header)
{
    list->setColumnCount(1);
    list->setColumnWidth(0, 250);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setHeaderLabel(QString::fromLatin1(header));
    list->setAccessibleName(QString::fromLatin1(header));
    list->setUniformRowHeights(true); // long lists are laid out without asking each row
}

// Paints nothing while many items change.
class DtWithoutUpdates
{
public:
    explicit DtWithoutUpdates(QWidget* widget) : myWidget(widget), myWereEnabled(widget->updatesEnabled())
    {
        myWidget->setUpdatesEnabled(false);
    }
    ~DtWithoutUpdates() { myWidget->setUpdatesEnabled(myWereEnabled); }
    DtWithoutUpdates(const DtWithoutUpdates&) = delete;
    DtWithoutUpdates& operator=(const DtWithoutUpdates&) = delete;

private:
    QWidget* myWidget;
    bool myWereEnabled;
};

using DtItemSet = QSet<const QTreeWidgetItem*>;

// One look at the selection: asking each item for its state takes as long as there are selected ranges.
DtItemSet selectedItems(const QTreeWidgetItem* item)
{
    DtItemSet items;
    if (item->treeWidget() != nullptr)
        for (const QTreeWidgetItem* each : item->treeWidget()->selectedItems())
            items.insert(each);
    return items;
}

bool hasAncestorIn(const DtItemSet& items, const QTreeWidgetItem* item)
{
    for (const QTreeWidgetItem* each = item->parent(); each != nullptr; each = each->parent())
        if (items.contains(each))
            return true;
    return false;
}

// Adds the rows below an index, down to the leaves. Rows that are hidden stay out, with all below them.
void addShownRows(const QTreeWidget& list, const QModelIndex& parent, QItemSelection& selection)
{
    const QAbstractItemModel& model = *list.model();
    const int count = model.rowCount(parent);
    int first = 0; // of the run of shown rows
    for (int row = 0; row <= count; ++row)
    {
        const bool isShown = row < count && !list.isRowHidden(row, parent);
        if (isShown)
            addShownRows(list, model.index(row, 0, parent), selection);
        else
        {
            if (first < row)
                selection.append(QItemSelectionRange(model.index(first, 0, parent), model.index(row - 1, 0, parent)));
            first = row + 1;
        }
    }
}

// Guesses how wide texts are drawn in one font: the sum of the advances of their characters, each asked for once. What
// is drawn differs from it by kerning and ligatures.
class DtWidthGuess
{
public:
    explicit DtWidthGuess(const QFont& font) : myMetrics(font) {}

    int operator()(const QString& text)
    {
        int width = 0;
        for (const QChar character : text)
            width += advance(character);
        return width;
    }

private:
    int advance(QChar character)
    {
        const auto known = myAdvances.constFind(character);
        return known != myAdvances.constEnd() ? *known
                                              : *myAdvances.insert(character, myMetrics.horizontalAdvance(character));
    }

    QFontMetrics myMetrics;
    QHash<QChar, int> myAdvances;
};

struct DtShownRow
{
    QModelIndex index;
    int indentation; // in pixels
    int guessedWidth;
};

// Adds the rows below an index, but for hidden ones and for what is below a collapsed one.
void addShownRows(const QTreeWidget& list, const QModelIndex& parent, int indentation, DtWidthGuess& guess,
                  std::vector<DtShownRow>& shown)
{
    const QAbstractItemModel& model = *list.model();
    for (int row = 0; row < model.rowCount(parent); ++row)
    {
        if (list.isRowHidden(row, parent))
            continue;
        const QModelIndex index = model.index(row, 0, parent);
        shown.push_back({index, indentation, indentation + guess(index.data().toString())});
        if (model.hasChildren(index) && list.isExpanded(index))
            addShownRows(list, index, indentation + list.indentation(), guess, shown);
    }
}

// Width in pixels that the column needs for the rows that are not hidden or collapsed, 0 for an empty list. The widths
// of all are guessed, and those that are the widest by that are asked for.
int widthOfShownRows(QTreeWidget& list)
{
    constexpr std::size_t theMostCandidates = 8;
    list.ensurePolished(); // the style sheet may set the font
    DtWidthGuess guess(list.font());
    std::vector<DtShownRow> shown;
    addShownRows(list, QModelIndex(), list.rootIsDecorated() ? list.indentation() : 0, guess, shown);
    const auto end = shown.begin() + static_cast<std::ptrdiff_t>(qMin(shown.size(), theMostCandidates));
    std::partial_sort(shown.begin(), end, shown.end(),
                      [](const DtShownRow& left, const DtShownRow& right)
                      { return left.guessedWidth > right.guessedWidth; });
    int width = 0;
    for (auto each = shown.begin(); each != end; ++each)
        width = qMax(width, each->indentation + list.sizeHintForIndex(each->index).width());
    return width;
}

// How the root of one kind of class is called in the lists and in the two families of models.
struct DtRootNames
{
    const char* label;
    const char* root;
    const char* hlaRoot;
    DtOmtProject::itemType type;
};

const DtRootNames theRootNames[] = {
    {"Objects",      "ObjectRoot",      "HLAobjectRoot",      static_cast<DtOmtProject::itemType>(0)},
    {"Interactions", "InteractionRoot", "HLAinteractionRoot", static_cast<DtOmtProject::itemType>(1)},
};
} // namespace

DtListViewManager::DtListViewManager(QTreeWidget* left, QTreeWidget* right)
    : myLeftListView(left), myRightListView(right)
{
    setUpList(left, "Objects/Interactions in Data File");
    setUpList(right, "Objects/Interactions to Generate");
    DtListViewManager::reset();
}

DtListViewManager::~DtListViewManager() = default;

QTreeWidgetItem* DtListViewManager::leftObjectList() const
{
    return topLevelItem(myLeftListView, theObjectsText);
}

QTreeWidgetItem* DtListViewManager::leftInteractionList() const
{
    return topLevelItem(myLeftListView, theInteractionsText);
}

void DtListViewManager::processAddition(bool selectedOnly, DtOmtProject* project, DtItemMap& objectItems,
                                        DtItemMap& interactionItems, bool fromProject)
{
    if (project == nullptr)
        return;
    if (fromProject)
        selectAll();
    std::vector<QTreeWidgetItem*> found;
    findObjectsAndInteractions(found, false, selectedOnly, project, objectItems, interactionItems, fromProject);
    const DtWithoutUpdates quiet(myRightListView);
    for (QTreeWidgetItem* item : found)
        addPath(item, project, objectItems, interactionItems);
    fitColumns();
}

void DtListViewManager::addPath(QTreeWidgetItem* leaf, DtOmtProject* project, const DtItemMap& objectItems,
                                const DtItemMap& interactionItems)
{
    std::vector<QTreeWidgetItem*> path; // the leaf first
    QTreeWidgetItem* item = leaf;
    for (; !isRootText(item->text(0)) && item->parent() != nullptr; item = item->parent())
        path.push_back(item);
    const bool isObject = item->text(0) == theObjectsText;
    QTreeWidgetItem* right = rightTopLevelItem(item->text(0));
    for (auto each = path.rbegin(); each != path.rend(); ++each)
    {
        QTreeWidgetItem* const present = rightChild(right, (*each)->text(0));
        if (present == nullptr)
        {
            right = addRightChild(right, *each);
            record(*each, isObject ? objectItems : interactionItems, isObject, project);
        }
        else
            right = present;
    }
}

QTreeWidgetItem* DtListViewManager::rightTopLevelItem(const QString& text)
{
    QTreeWidgetItem* const present = topLevelItem(myRightListView, text);
    return present != nullptr ? present : new QTreeWidgetItem(myRightListView, QStringList(text));
}

QTreeWidgetItem* DtListViewManager::rightChild(QTreeWidgetItem* parent, const QString& text) const
{
    return myRightChildren.value({parent, text}, nullptr);
}

QTreeWidgetItem* DtListViewManager::addRightChild(QTreeWidgetItem* parent, QTreeWidgetItem* leftItem)
{
    const QString text = leftItem->text(0);
    auto* const item = new QTreeWidgetItem(parent, QStringList(text));
    if (!parent->isExpanded())
        parent->setExpanded(true);
    myRightChildren.insert({parent, text}, item);
    myRightWidgetsByLeftWidgets[item] = leftItem;
    return item;
}

void DtListViewManager::record(QTreeWidgetItem* leftItem, const DtItemMap& items, bool isObject,
                               DtOmtProject* project) const
{
    const DtFedNode* const node = nodeOf(leftItem, items);
    if (node == nullptr)
        return;
    if (isObject && !project->isObjectInProj(node->getFullName()))
        project->addObject(static_cast<const DtObjectClassFedNode*>(node));
    else if (!isObject && !project->isInteractionInProj(node->getFullName()))
        project->addInteraction(static_cast<const DtInteractionClassFedNode*>(node));
}

void DtListViewManager::processRemoval(DtOmtProject* project)
{
    if (project == nullptr)
        return;
    std::vector<QTreeWidgetItem*> found;
    const DtItemMap noItems;
    findObjectsAndInteractions(found, true, true, project, noItems, noItems, false);
    const DtItemSet selected(found.begin(), found.end());
    const DtWithoutUpdates quiet(myRightListView);
    myRightListView->clearSelection();
    for (QTreeWidgetItem* item : found)
    {
        if (hasAncestorIn(selected, item)) // goes with it, from the list and from the project
            continue;
        removeFromProject(item, project);
        forget(item);
        delete item;
    }
}

void DtListViewManager::removeFromProject(QTreeWidgetItem* item, DtOmtProject* project) const
{
    QTreeWidgetItem* step = item->parent() != nullptr ? item->parent() : item;
    DtString path;
    DtString rootText;
    for (; step != nullptr; step = step->parent())
    {
        rootText = textOf(step);
        path = rootText + "." + path;
    }
    for (const DtRootNames& names : theRootNames)
    {
        if (rootText != names.label)
            continue;
        const DtString own = textOf(item);
        const DtString below(path.c_str() + rootText.length()); // begins with the dot behind the label
        const bool isRoot = below + own == DtString(".") + names.label;
        // Models call their root by the one or the other name; a pass with the wrong one finds nothing.
        for (const char* root : {names.root, names.hlaRoot})
            project->removeAllChildren(isRoot ? DtString(root) : DtString(root) + below + own, names.type);
    }
}

void DtListViewManager::forget(QTreeWidgetItem* item)
{
    for (int index = 0; index < item->childCount(); ++index)
        forget(item->child(index));
    myRightWidgetsByLeftWidgets.erase(item);
    const auto entry = myRightChildren.find({item->parent(), item->text(0)});
    if (entry != myRightChildren.end() && entry.value() == item)
        myRightChildren.erase(entry);
}

const std::set<DtOmtObject>& DtListViewManager::objectsToGenerate(const DtItemMap& objectItems)
{
    objects.clear();
    QTreeWidgetItem* const root = topLevelItem(myRightListView, theObjectsText);
    for (int index = 0; root != nullptr && index < root->childCount(); ++index)
        compileObjectSet(root->child(index), objectItems);
    return objects;
}

const std::set<DtOmtInteraction>& DtListViewManager::interactionsToGenerate(const DtItemMap& interactionItems)
{
    interactions.clear();
    QTreeWidgetItem* const root = topLevelItem(myRightListView, theInteractionsText);
    for (int index = 0; root != nullptr && index < root->childCount(); ++index)
        compileInteractionSet(root->child(index), interactionItems);
    return interactions;
}

const DtFedNode* DtListViewManager::nodeOfRightItem(QTreeWidgetItem* item, const DtItemMap& items) const
{
    const auto left = myRightWidgetsByLeftWidgets.find(item);
    return left == myRightWidgetsByLeftWidgets.end() ? nullptr : nodeOf(left->second, items);
}

void DtListViewManager::compileObjectSet(QTreeWidgetItem* item, const DtItemMap& objectItems)
{
    if (const auto* node = static_cast<const DtObjectClassFedNode*>(nodeOfRightItem(item, objectItems)))
    {
        DtOmtObject object;
        object.setFullName(node->getFullName());
        object.setName(node->getName());
        for (const DtAttributeFedNode* attribute : node->getAttributes())
        {
            if (attribute == nullptr) // stands where an attribute was removed from the model
                continue;
            DtOmtAttribute own;
            own.setFullName(attribute->getName());
            own.setName(attribute->getName());
            own.setOwningObject(object.fullName());
            object.addAttribute(own);
        }
        objects.insert(object);
    }
    for (int index = 0; index < item->childCount(); ++index)
        compileObjectSet(item->child(index), objectItems);
}

void DtListViewManager::compileInteractionSet(QTreeWidgetItem* item, const DtItemMap& interactionItems)
{
    if (const auto* node = static_cast<const DtInteractionClassFedNode*>(nodeOfRightItem(item, interactionItems)))
    {
        DtOmtInteraction interaction;
        interaction.setFullName(node->getFullName());
        interaction.setName(node->getName());
        for (const DtParameterFedNode* parameter : node->getParameters())
        {
            if (parameter == nullptr)
                continue;
            DtOmtParameter own;
            own.setFullName(parameter->getName());
            own.setName(parameter->getName());
            own.setOwningInteraction(interaction.fullName());
            interaction.addParameter(own);
        }
        interactions.insert(interaction);
    }
    for (int index = 0; index < item->childCount(); ++index)
        compileInteractionSet(item->child(index), interactionItems);
}

void DtListViewManager::selectAll()
{
    for (QTreeWidget* list : {myLeftListView, myRightListView})
    {
        if (!list->hasFocus())
            continue;
        const DtWithoutUpdates quiet(list);
        QItemSelection everything;
        addShownRows(*list, QModelIndex(), everything); // also what is collapsed
        list->selectionModel()->select(everything, QItemSelectionModel::ClearAndSelect);
        return;
    }
}

void DtListViewManager::reset()
{
    for (QTreeWidget* list : {myLeftListView, myRightListView})
    {
        list->clear();
        list->setRootIsDecorated(true);
    }
    objects.clear();
    interactions.clear();
    clearRightList();
    fitColumns(); // an empty list has nothing to scroll
}

void DtListViewManager::clearRightList()
{
    myRightListView->clear();
    myRightWidgetsByLeftWidgets.clear();
    myRightChildren.clear();
}

void DtListViewManager::startAtTheTop() const
{
    for (QTreeWidget* list : {myLeftListView, myRightListView})
        list->clearSelection();
    if (myLeftListView->topLevelItemCount() > 0)
        myLeftListView->setCurrentItem(myLeftListView->topLevelItem(0), 0, QItemSelectionModel::NoUpdate);
    myLeftListView->setFocus(Qt::OtherFocusReason);
}

void DtListViewManager::findObjectsAndInteractions(std::vector<QTreeWidgetItem*>& found, bool rightList,
                                                   bool selectedOnly, DtOmtProject* project,
                                                   const DtItemMap& objectItems, const DtItemMap& interactionItems,
                                                   bool fromProject)
{
    const QTreeWidget* const list = rightList ? myRightListView : myLeftListView;
    for (int index = 0; index < list->topLevelItemCount(); ++index)
        findItems(list->topLevelItem(index), found, selectedOnly, project, objectItems, interactionItems, fromProject);
}

namespace
{
bool isInProject(QTreeWidgetItem* item, const DtOmtProject* project, const DtListViewManager::DtItemMap& objectItems,
                 const DtListViewManager::DtItemMap& interactionItems)
{
    if (const DtFedNode* node = nodeOf(item, objectItems))
        return project->isObjectInProj(node->getFullName());
    if (const DtFedNode* node = nodeOf(item, interactionItems))
        return project->isInteractionInProj(node->getFullName());
    return false;
}

// The items that are taken, children ahead of their parent.
template <typename IsTaken>
void appendIf(QTreeWidgetItem* root, std::vector<QTreeWidgetItem*>& found, const IsTaken& isTaken)
{
    for (int index = 0; index < root->childCount(); ++index)
        appendIf(root->child(index), found, isTaken);
    if (isTaken(root))
        found.push_back(root);
}
} // namespace

void DtListViewManager::findItems(QTreeWidgetItem* root, std::vector<QTreeWidgetItem*>& found, bool selectedOnly,
                                  DtOmtProject* project, const DtItemMap& objectItems,
                                  const DtItemMap& interactionItems, bool fromProject)
{
    if (fromProject)
        appendIf(root, found,
                 [&](QTreeWidgetItem* item) { return isInProject(item, project, objectItems, interactionItems); });
    else if (selectedOnly)
        appendIf(root, found,
                 [selected = selectedItems(root)](QTreeWidgetItem* item) { return selected.contains(item); });
    else
        appendIf(root, found, [](QTreeWidgetItem*) { return true; });
}

// Asking Qt for the hint of the whole column would lay out the list and shape the text of every row.
void DtListViewManager::fitColumns() const
{
    for (QTreeWidget* list : {myLeftListView, myRightListView})
    {
        list->header()->setMinimumSectionSize(qMax(widthOfShownRows(*list), theLeastWidth));
        list->header()->setStretchLastSection(false);
        list->setColumnWidth(0, list->header()->minimumSectionSize());
        list->header()->setStretchLastSection(true); // sees the new limit
    }
}

bool DtListViewManager::objectExistsInTree(const DtString& fullName) const
{
    return std::any_of(objects.begin(), objects.end(),
                       [&fullName](const DtOmtObject& object) { return object.fullName() == fullName; });
}

bool DtListViewManager::interactionExistsInTree(const DtString& fullName) const
{
    return std::any_of(interactions.begin(), interactions.end(),
                       [&fullName](const DtOmtInteraction& interaction) { return interaction.fullName() == fullName; });
}
