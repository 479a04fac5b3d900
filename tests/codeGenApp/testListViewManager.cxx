// The two class lists: what adding and removing does to the right list and to the project.

#include "registerTest.h"

#include "codeGenApp/listViewManager.h"
#include "fileGenerator/omtEnvReader.h"
#include "fileGenerator/omtProject.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/omtTree.h"
#include "printedLists.h"
#include "smallModels.h"
#include "testSupport.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidget>

#include <memory>

namespace
{
// Full names of the recorded classes, objects ahead of interactions.
QString recorded(const DtOmtProject& project)
{
    QStringList names;
    for (const DtOmtObject& object : project.getObjects())
        names += QString::fromUtf8(object.fullName().c_str());
    for (const DtOmtInteraction& interaction : project.getInteractions())
        names += QString::fromUtf8(interaction.fullName().c_str());
    return names.join(' ');
}

// A model in the left list, an empty right list and an empty project.
struct DtLists
{
    explicit DtLists(const QByteArray& model) : manager(&left, &right)
    {
        const QTemporaryDir directory;
        const QString file = directory.path() + "/model.xml";
        writeTextFile(file, model);
        bool ok = false;
        tree.reset(reader.readMultipleFiles({DtFilename(file.toUtf8().constData())}, ok, DtFomEvolved));
        if (!ok)
            qFatal("unreadable test model");
        reader.constructObjectListView(&left, manager.leftObjectList());
        reader.constructInteractionListView(&left, manager.leftInteractionList());
    }

    void select(QTreeWidget& list, const char* text, int which = 0) const
    {
        itemOf(list, text, which)->setSelected(true);
    }
    void add(bool selectedOnly = true, bool fromProject = false)
    {
        manager.processAddition(selectedOnly, &project, reader.objectWidgetToRootNodeMap(),
                                reader.interactionWidgetToRootNodeMap(), fromProject);
    }
    void addOnly(const char* text, int which = 0)
    {
        left.clearSelection();
        select(left, text, which);
        add();
    }
    void removeOnly(const char* text, int which = 0)
    {
        right.clearSelection();
        select(right, text, which);
        manager.processRemoval(&project);
    }

    QTreeWidget left, right;
    DtOMTEnvReader reader;
    std::unique_ptr<DtOMTTree> tree;
    DtOmtProject project;
    DtListViewManager manager;
};

QByteArray fleetModel()
{
    return moduleText(
        objectText("Ship", attributeText("Speed") + objectText("Ferry", objectText("Fast") + attributeText("Deck")) +
                               objectText("Tug")) +
            objectText("Shipyard"),
        interactionText("Signal", parameterText("Text") + interactionText("Flare")) + interactionText("Ship"));
}

const char theFleetOnTheRight[] = "Objects\n Ship\n  Ferry\n   Fast\n  Tug\n Shipyard\n"
                                  "Interactions\n Signal\n  Flare\n Ship\n";
} // namespace

class TestListViewManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsAreSetUp()
    {
        DtLists lists("<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\"/>");
        QCOMPARE(lists.left.headerItem()->text(0), QString("Objects/Interactions in Data File"));
        QCOMPARE(lists.right.headerItem()->text(0), QString("Objects/Interactions to Generate"));
        for (const QTreeWidget* list : {&lists.left, &lists.right})
        {
            QCOMPARE(list->columnCount(), 1);
            QCOMPARE(list->selectionMode(), QAbstractItemView::ExtendedSelection);
            QVERIFY(list->rootIsDecorated());
        }
        QVERIFY(lists.manager.leftListView() == &lists.left && lists.manager.rightListView() == &lists.right);
    }

    void leftListsAreFoundByTheirLabels()
    {
        DtLists lists(fleetModel());
        QCOMPARE(lists.manager.leftObjectList()->text(0), QString("Objects"));
        QCOMPARE(lists.manager.leftInteractionList()->text(0), QString("Interactions"));
        lists.manager.reset();
        QVERIFY(lists.manager.leftObjectList() == nullptr && lists.manager.leftInteractionList() == nullptr);
    }

    void columnIsAsWideAsItsWidestShownRow_data()
    {
        QTest::addColumn<QByteArray>("hiddenOrCollapsed");
        QTest::newRow("all rows") << QByteArray();
        QTest::newRow("without a hidden one") << QByteArray("hide");
        QTest::newRow("without those below a collapsed one") << QByteArray("collapse");
    }

    // Wide characters, many narrow ones, and a short name far to the right.
    void columnIsAsWideAsItsWidestShownRow()
    {
        QFETCH(QByteArray, hiddenOrCollapsed);
        QByteArray deep = objectText("End");
        for (int level = 0; level < 12; ++level)
            deep = objectText("Level" + QByteArray::number(level), deep);
        DtLists lists(moduleText(objectText(QByteArray(30, 'W')) + objectText(QByteArray(50, 'i')) +
                                     objectText("Outer", objectText("\xc3\x96" + QByteArray(40, 'M'))) + deep,
                                 interactionText("AVAVAVAVAVAVAVAVAVAVAVAVAVAVAVAV")));
        QTreeWidgetItem* const outer = itemOf(lists.left, "Outer");
        outer->setHidden(hiddenOrCollapsed == "hide");
        outer->setExpanded(hiddenOrCollapsed != "collapse");
        lists.manager.fitColumns();
        const QAbstractItemView& list = lists.left;
        const int wanted = list.sizeHintForColumn(0);
        QVERIFY(wanted > 200);
        QCOMPARE(lists.left.header()->minimumSectionSize(), wanted); // the section itself fills the list
        QCOMPARE(lists.right.header()->minimumSectionSize(), 50);
    }

    void deepClassBringsItsSuperclasses()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Fast");
        QCOMPARE(printList(lists.right), QString("Objects\n Ship\n  Ferry\n   Fast\n"));
        QCOMPARE(recorded(lists.project),
                 QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Ferry HLAobjectRoot.Ship.Ferry.Fast"));
        QVERIFY(itemOf(lists.right, "Ship")->isExpanded());
    }

    void recordHoldsTheOwnAttributes()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Ferry");
        const DtOmtObject* const ferry = lists.project.getObjectFromName("HLAobjectRoot.Ship.Ferry");
        QVERIFY(ferry != nullptr && ferry->attributes().size() == 1);
        QCOMPARE(ferry->attributes().begin()->name().c_str(), "Deck");
    }

    void leafAddedTwiceStandsOnce()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Tug");
        QTreeWidgetItem* const first = itemOf(lists.right, "Tug");
        lists.addOnly("Tug");
        QCOMPARE(printList(lists.right), QString("Objects\n Ship\n  Tug\n"));
        QVERIFY(itemOf(lists.right, "Tug") == first);
        QCOMPARE(recorded(lists.project), QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Tug"));
    }

    void recordThatIsThereKeepsItsRename()
    {
        DtLists lists(fleetModel());
        DtOmtObject renamed;
        renamed.setFullName("HLAobjectRoot.Ship");
        renamed.setRename("Vessel");
        lists.project.addObject(renamed);
        lists.addOnly("Ship", 0);
        QCOMPARE(lists.project.getRenameForObject("HLAobjectRoot.Ship").c_str(), "Vessel");
    }

    void labelItselfIsItsOwnRoot()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Objects");
        QCOMPARE(printList(lists.right), QString("Objects\n"));
        QCOMPARE(recorded(lists.project), QString());
        lists.select(lists.left, "Shipyard");
        lists.add();
        QCOMPARE(printList(lists.right), QString("Objects\n Shipyard\n"));
        QCOMPARE(recorded(lists.project), QString("HLAobjectRoot.Shipyard"));
    }

    void nothingSelectedAddsNothing()
    {
        DtLists lists(fleetModel());
        lists.add();
        QCOMPARE(printList(lists.right), QString());
        QCOMPARE(recorded(lists.project), QString());
    }

    void withoutSelectionOnlyEverythingIsAdded()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        QCOMPARE(printList(lists.right), QString(theFleetOnTheRight));
        QCOMPARE(lists.project.getObjects().size(), std::size_t(5));
        QCOMPARE(lists.project.getInteractions().size(), std::size_t(3));
    }

    void equalTextsAreKeptApartByTheLabel()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Ship", 1);
        QCOMPARE(printList(lists.right), QString("Interactions\n Ship\n"));
        QCOMPARE(recorded(lists.project), QString("HLAinteractionRoot.Ship"));
    }

    void projectClassesAreShownAndNothingElse()
    {
        DtLists lists(fleetModel());
        lists.project.addObject("HLAobjectRoot.Ship.Ferry", false, "");
        lists.project.addInteraction("HLAinteractionRoot.Signal", false, "");
        lists.select(lists.left, "Shipyard"); // a selection does not count here
        lists.add(true, true);
        QCOMPARE(printList(lists.right), QString("Objects\n Ship\n  Ferry\nInteractions\n Signal\n"));
        QCOMPARE(recorded(lists.project),
                 QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Ferry HLAinteractionRoot.Signal"));
    }

    void itemOutsideTheMapsIsShownAndNotRecorded()
    {
        DtLists lists(fleetModel());
        DtListViewManager::DtItemMap none;
        lists.manager.processAddition(false, &lists.project, none, none, false);
        QCOMPARE(printList(lists.right), QString(theFleetOnTheRight));
        QCOMPARE(recorded(lists.project), QString());
    }

    void withoutAProjectNothingHappens()
    {
        DtLists lists(fleetModel());
        DtListViewManager::DtItemMap none;
        lists.manager.processAddition(false, nullptr, none, none, false);
        QCOMPARE(printList(lists.right), QString());
        lists.addOnly("Tug");
        lists.right.selectAll();
        lists.manager.processRemoval(nullptr);
        QCOMPARE(printList(lists.right), QString("Objects\n Ship\n  Tug\n"));
    }

    void rightItemLeadsToItsLeftItem()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Flare");
        const auto& pairs = lists.manager.rightWidgetsByLeftWidgets();
        QCOMPARE(pairs.size(), std::size_t(2));
        QVERIFY(pairs.at(itemOf(lists.right, "Flare")) == itemOf(lists.left, "Flare"));
    }

    void childrenAreFoundAheadOfTheirParents()
    {
        DtLists lists(fleetModel());
        std::vector<QTreeWidgetItem*> found;
        const DtListViewManager::DtItemMap none;
        lists.manager.findItems(lists.manager.leftObjectList(), found, false, &lists.project, none, none, false);
        QStringList texts;
        for (const QTreeWidgetItem* item : found)
            texts += item->text(0);
        QCOMPARE(texts.join(' '), QString("Fast Ferry Tug Ship Shipyard Objects"));
    }

    void removedParentTakesItsSubtree()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        lists.removeOnly("Ferry");
        QCOMPARE(printList(lists.right),
                 QString("Objects\n Ship\n  Tug\n Shipyard\nInteractions\n Signal\n  Flare\n Ship\n"));
        QVERIFY(!lists.project.isObjectInProj("HLAobjectRoot.Ship.Ferry.Fast"));
        QCOMPARE(lists.project.getObjects().size(), std::size_t(3));
    }

    void classWhoseNameContainsTheTextLeavesTheProjectToo()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        lists.removeOnly("Ship", 0);
        QCOMPARE(printList(lists.right), QString("Objects\n Shipyard\nInteractions\n Signal\n  Flare\n Ship\n"));
        QCOMPARE(lists.project.getObjects().size(), std::size_t(0)); // "HLAobjectRoot.Ship" is part of Shipyard's name
        QCOMPARE(lists.project.getInteractions().size(), std::size_t(3));
    }

    void removalReachesBothSpellingsOfTheRoot()
    {
        DtLists lists(fleetModel());
        lists.project.addObject("ObjectRoot.Shipyard", false, "");
        lists.addOnly("Shipyard");
        lists.removeOnly("Shipyard");
        QCOMPARE(recorded(lists.project), QString());
        lists.project.addInteraction("InteractionRoot.Signal.Flare", false, "");
        lists.addOnly("Flare");
        lists.removeOnly("Flare");
        QCOMPARE(recorded(lists.project), QString("HLAinteractionRoot.Signal"));
    }

    void removedLabelEmptiesItsKind()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        lists.removeOnly("Objects");
        QCOMPARE(printList(lists.right), QString("Interactions\n Signal\n  Flare\n Ship\n"));
        QCOMPARE(lists.project.getObjects().size(), std::size_t(0));
        lists.removeOnly("Interactions");
        QCOMPARE(printList(lists.right), QString());
        QCOMPARE(recorded(lists.project), QString());
    }

    void parentAndChildSelectedTogetherAreRemovedOnce()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        lists.right.selectAll();
        lists.manager.processRemoval(&lists.project);
        QCOMPARE(printList(lists.right), QString());
        QCOMPARE(recorded(lists.project), QString());
        QVERIFY(lists.manager.rightWidgetsByLeftWidgets().empty());
    }

    void removedClassCanBeAddedAgain()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        lists.removeOnly("Ferry");
        lists.addOnly("Fast");
        QCOMPARE(
            printList(lists.right),
            QString("Objects\n Ship\n  Tug\n  Ferry\n   Fast\n Shipyard\nInteractions\n Signal\n  Flare\n Ship\n"));
        QVERIFY(lists.project.isObjectInProj("HLAobjectRoot.Ship.Ferry.Fast"));
    }

    void removalKnowsNamesBeyondAscii()
    {
        DtLists lists(moduleText(objectText("F\xC3\xA4hre")));
        lists.add(false);
        QCOMPARE(lists.project.getObjects().size(), std::size_t(1));
        lists.right.selectAll();
        lists.manager.processRemoval(&lists.project);
        QCOMPARE(recorded(lists.project), QString());
    }

    void setsAreRebuiltFromTheRightList()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Ferry");
        lists.addOnly("Signal");
        const auto& objects = lists.manager.objectsToGenerate(lists.reader.objectWidgetToRootNodeMap());
        QCOMPARE(objects.size(), std::size_t(2));
        QCOMPARE(objects.begin()->attributes().begin()->name().c_str(), "Speed");
        const auto& interactions = lists.manager.interactionsToGenerate(lists.reader.interactionWidgetToRootNodeMap());
        QCOMPARE(interactions.size(), std::size_t(1));
        QCOMPARE(interactions.begin()->parameters().begin()->name().c_str(), "Text");
        QVERIFY(lists.manager.objectExistsInTree("HLAobjectRoot.Ship.Ferry"));
        QVERIFY(!lists.manager.objectExistsInTree("HLAobjectRoot.Shipyard"));
        QVERIFY(lists.manager.interactionExistsInTree("HLAinteractionRoot.Signal"));
        QVERIFY(!lists.manager.interactionExistsInTree("HLAobjectRoot.Ship"));
        lists.removeOnly("Ferry");
        QCOMPARE(lists.manager.objectsToGenerate(lists.reader.objectWidgetToRootNodeMap()).size(), std::size_t(1));
    }

    void setsLeaveOutRemovedAttributes()
    {
        DtLists lists(fleetModel());
        DtObjectClassFedNode* const ship = lists.tree->getObjectClassNode("HLAobjectRoot.Ship");
        ship->removeAttributes(); // leaves an empty place
        lists.addOnly("Ship");
        const auto& objects = lists.manager.objectsToGenerate(lists.reader.objectWidgetToRootNodeMap());
        QCOMPARE(objects.size(), std::size_t(1));
        QVERIFY(objects.begin()->attributes().empty());
    }

    void resetEmptiesListsAndSets()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        lists.manager.objectsToGenerate(lists.reader.objectWidgetToRootNodeMap());
        lists.manager.interactionsToGenerate(lists.reader.interactionWidgetToRootNodeMap());
        lists.manager.reset();
        QCOMPARE(printList(lists.left) + printList(lists.right), QString());
        QVERIFY(!lists.manager.objectExistsInTree("HLAobjectRoot.Ship"));
        QVERIFY(!lists.manager.interactionExistsInTree("HLAinteractionRoot.Ship"));
        QVERIFY(lists.manager.rightWidgetsByLeftWidgets().empty());
    }

    void selectAllTakesTheListWithTheFocus()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        lists.manager.selectAll(); // neither has it
        QVERIFY(lists.left.selectedItems().isEmpty() && lists.right.selectedItems().isEmpty());
        lists.right.show();
        QApplication::setActiveWindow(&lists.right);
        lists.right.setFocus();
        QTRY_VERIFY(lists.right.hasFocus());
        lists.manager.selectAll();
        QVERIFY(lists.left.selectedItems().isEmpty());
        QCOMPARE(lists.right.selectedItems().size(), 10);
    }

    void selectAllReachesCollapsedItemsButNoHiddenOnes()
    {
        DtLists lists(fleetModel());
        lists.left.show();
        QApplication::setActiveWindow(&lists.left);
        lists.left.setFocus();
        QTRY_VERIFY(lists.left.hasFocus());
        lists.left.collapseAll();
        itemOf(lists.left, "Ferry")->setHidden(true);
        itemOf(lists.left, "Shipyard")->setHidden(true);
        lists.select(lists.left, "Interactions");
        lists.manager.selectAll();
        QCOMPARE(lists.left.selectedItems().size(), 7); // all but Ferry, what is below it, and Shipyard
        lists.add();
        QCOMPARE(printList(lists.right), QString("Objects\n Ship\n  Tug\nInteractions\n Signal\n  Flare\n Ship\n"));
    }

    void removedSelectionLeavesTheRestUnselected()
    {
        DtLists lists(fleetModel());
        lists.add(false);
        for (const char* text : {"Ferry", "Fast", "Signal"})
            lists.select(lists.right, text);
        lists.manager.processRemoval(&lists.project);
        QCOMPARE(printList(lists.right), QString("Objects\n Ship\n  Tug\n Shipyard\nInteractions\n Ship\n"));
        QCOMPARE(recorded(lists.project), QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Tug HLAobjectRoot.Shipyard "
                                                  "HLAinteractionRoot.Ship"));
        QVERIFY(lists.right.selectedItems().isEmpty());
    }

    void addedBranchIsOpenAndItsSelectionIsKept()
    {
        DtLists lists(fleetModel());
        lists.addOnly("Ferry");
        lists.select(lists.right, "Ferry");
        lists.addOnly("Fast");
        QVERIFY(itemOf(lists.right, "Objects")->isExpanded() && itemOf(lists.right, "Ferry")->isExpanded());
        QCOMPARE(lists.right.selectedItems().size(), 1);
        QVERIFY(lists.right.updatesEnabled());
    }
};

QX_REGISTER_TEST(TestListViewManager)
#include "testListViewManager.moc"
