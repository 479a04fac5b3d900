// The list of scripts: its map follows the check boxes.

#include "registerTest.h"

#include "codeGenApp/generateListView.h"

#include <QtTest/QtTest>
#include <QtWidgets/QHeaderView>

namespace
{
// The map as text: "+" ahead of a script that is to run, "-" ahead of the others.
QString scripts(const DtGenerateListView& list)
{
    QStringList texts;
    for (const auto& [name, isWanted] : list.generateScripts())
        texts += (isWanted ? "+" : "-") + QString(name.c_str());
    return texts.join(' ');
}

QStringList names(const QTreeWidget& list)
{
    QStringList texts;
    for (int row = 0; row < list.topLevelItemCount(); ++row)
        texts += list.topLevelItem(row)->text(1);
    return texts;
}
} // namespace

class TestGenerateListView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnsAreSetUp()
    {
        const DtGenerateListView list;
        QCOMPARE(list.columnCount(), 2);
        QCOMPARE(list.headerItem()->text(0), QString("Generate?"));
        QCOMPARE(list.headerItem()->text(1), QString("Script file name"));
        QCOMPARE(list.selectionMode(), QAbstractItemView::ExtendedSelection);
        QVERIFY(list.allColumnsShowFocus() && !list.rootIsDecorated() && list.isSortingEnabled());
        QCOMPARE(list.header()->sortIndicatorSection(), 1);
        QCOMPARE(list.header()->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    void nameColumnHasTheWidthOfAWord()
    {
        const DtGenerateListView list;
        QCOMPARE(list.columnWidth(1), list.fontMetrics().horizontalAdvance("Description") + 31);
        QVERIFY(list.columnWidth(0) >= 36);
    }

    void addedItemsEnterTheMapWithTheirState()
    {
        DtGenerateListView list;
        list.addItem("genCpp.txt", true);
        list.addItem("other.txt", false);
        QCOMPARE(scripts(list), QString("+genCpp.txt -other.txt"));
    }

    void itemsStandInTheOrderOfTheirNames()
    {
        DtGenerateListView list;
        for (const char* name : {"c.txt", "a.txt", "b.txt"})
            list.addItem(name, true);
        QCOMPARE(names(list).join(' '), QString("a.txt b.txt c.txt"));
        list.sortByColumn(1, Qt::DescendingOrder);
        QCOMPARE(names(list).join(' '), QString("c.txt b.txt a.txt"));
    }

    void sortingByTheBoxesPutsUncheckedItemsFirst()
    {
        DtGenerateListView list;
        list.addItem("a.txt", true);
        list.addItem("b.txt", false);
        list.sortByColumn(0, Qt::AscendingOrder);
        QCOMPARE(names(list).join(' '), QString("b.txt a.txt"));
    }

    void mapFollowsTheBox()
    {
        DtGenerateListView list;
        list.addItem("genCpp.txt", true);
        list.topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(scripts(list), QString("-genCpp.txt"));
        list.setItemGenerated(list.topLevelItem(0), true);
        QCOMPARE(scripts(list), QString("+genCpp.txt"));
    }

    void partlyCheckedCountsAsOff()
    {
        DtGenerateListView list;
        list.addItem("genCpp.txt", true);
        list.topLevelItem(0)->setCheckState(0, Qt::PartiallyChecked);
        QCOMPARE(scripts(list), QString("-genCpp.txt"));
    }

    void itemWithoutNameIsLeftOut()
    {
        DtGenerateListView list;
        list.addItem("", true);
        QVERIFY(list.generateScripts().empty());
    }

    void boxesAreSpokenByTheNamesOfTheirScripts()
    {
        DtGenerateListView list;
        list.addItem("a.txt", true);
        QCOMPARE(list.topLevelItem(0)->data(0, Qt::AccessibleTextRole).toString(), QString("a.txt"));
        QCOMPARE(scripts(list), QString("+a.txt"));
    }

    void changesOfTheNameColumnLeaveTheMapAlone()
    {
        DtGenerateListView list;
        list.addItem("genCpp.txt", true);
        list.topLevelItem(0)->setText(1, "renamed.txt");
        QCOMPARE(scripts(list), QString("+genCpp.txt"));
    }

    void selectedItemsAreSetTogether()
    {
        DtGenerateListView list;
        for (const char* name : {"a.txt", "b.txt", "c.txt"})
            list.addItem(name, false);
        list.topLevelItem(0)->setSelected(true);
        list.topLevelItem(2)->setSelected(true);
        list.selectAllItems(true);
        QCOMPARE(scripts(list), QString("+a.txt -b.txt +c.txt"));
        list.selectAllItems(false);
        QCOMPARE(scripts(list), QString("-a.txt -b.txt -c.txt"));
    }

    void selectedItemsAreInverted()
    {
        DtGenerateListView list;
        list.addItem("a.txt", true);
        list.addItem("b.txt", false);
        list.addItem("c.txt", false);
        list.topLevelItem(0)->setSelected(true);
        list.topLevelItem(1)->setSelected(true);
        list.toggleAllSelectedItems();
        QCOMPARE(scripts(list), QString("-a.txt +b.txt -c.txt"));
    }
};

QX_REGISTER_TEST(TestGenerateListView)
#include "testGenerateListView.moc"
