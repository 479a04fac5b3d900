#include "codeGenApp/generateListView.h"

#include <QtCore/QFile>
#include <QtWidgets/QHeaderView>

namespace
{
// Sorts by the column that the header shows as sorted.
class QCustomTreeWidgetItem : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;

    bool operator<(const QTreeWidgetItem& other) const override
    {
        const int column = treeWidget() != nullptr ? treeWidget()->header()->sortIndicatorSection() : 0;
        if (column == 0)
            return checkState(column) < other.checkState(column);
        return text(column) < other.text(column);
    }
};
} // namespace

DtGenerateListView::DtGenerateListView(QWidget* parent) : QTreeWidget(parent)
{
    setAllColumnsShowFocus(true);
    setColumnCount(2);
    setRootIsDecorated(false);
    setSortingEnabled(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAccessibleName(QStringLiteral("Scripts"));
    setHeaderLabels({QStringLiteral("Generate?"), QStringLiteral("Script file name")});
    myNameColumnWidth = fontMetrics().horizontalAdvance(QStringLiteral("Description")) + 31;
    myGenerateColumnWidth = qMax(myGenerateColumnWidth, header()->sectionSizeHint(myGenerateColumn)); // whole header
    setColumnWidth(myGenerateColumn, myGenerateColumnWidth);
    setColumnWidth(myNameColumn, myNameColumnWidth);
    sortByColumn(myNameColumn, Qt::AscendingOrder);
    connect(this, &QTreeWidget::itemChanged, this, &DtGenerateListView::checkCallback);
}

namespace
{
// The sentence with which a command file begins; "genCpp.txt" stands for the C++ without being a file.
QString firstComment(const QString& script)
{
    if (script == QLatin1String("genCpp.txt"))
        return QStringLiteral("Classes of C++ for the selected classes, and what builds them.");
    QFile file("../data/" + script);
    QString text;
    if (file.open(QIODevice::ReadOnly))
        for (QString line = file.readLine(); line.startsWith('#') && line.trimmed() != "#"; line = file.readLine())
            text += line.mid(1).trimmed() + ' ';
    const int end = text.indexOf(QStringLiteral(". "));
    return end < 0 ? text.trimmed() : text.left(end + 1);
}
} // namespace

void DtGenerateListView::addItem(const char* name, bool generate)
{
    // In the tree first: the map is kept by the signal of the check box.
    auto* const item = new QCustomTreeWidgetItem(this);
    item->setText(myNameColumn, QString::fromUtf8(name));
    item->setToolTip(myNameColumn, firstComment(item->text(myNameColumn)));
    item->setData(myGenerateColumn, Qt::AccessibleTextRole, item->text(myNameColumn));
    setItemGenerated(item, generate);
}

void DtGenerateListView::setItemGenerated(QTreeWidgetItem* item, bool generate)
{
    item->setCheckState(myGenerateColumn, generate ? Qt::Checked : Qt::Unchecked);
}

void DtGenerateListView::selectAllItems(bool generate)
{
    for (QTreeWidgetItem* item : selectedItems())
        setItemGenerated(item, generate);
}

void DtGenerateListView::toggleAllSelectedItems()
{
    for (QTreeWidgetItem* item : selectedItems())
        setItemGenerated(item, !isGenerated(item));
}

void DtGenerateListView::checkCallback(QTreeWidgetItem* item, int column)
{
    if (column != myGenerateColumn)
        return;
    const DtString name(item->text(myNameColumn).toUtf8().constData());
    if (!name.isEmpty())
        myGenerateScripts[name] = isGenerated(item);
}

bool DtGenerateListView::isGenerated(const QTreeWidgetItem* item) const
{
    return item->checkState(myGenerateColumn) == Qt::Checked;
}
