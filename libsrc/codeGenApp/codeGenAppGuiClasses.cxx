// What the window tells of single classes: hints in empty lists, tooltips, marks and the panel of details.

#include "codeGenApp/classFacts.h"
#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/detailPanel.h"
#include "codeGenApp/findBar.h"
#include "codeGenApp/listHint.h"
#include "codeGenApp/listViewManager.h"
#include "omtReader/fedNode.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QToolTip>

void DtCodeGenAppGui::createClassViews()
{
    QTreeWidget* const left = myListViewManager->leftListView();
    QTreeWidget* const right = myListViewManager->rightListView();
    new DtListHint(QStringLiteral("1. New Project\n2. Import FOM\n\nF4 shows the details of a class."), left);
    new DtListHint(QStringLiteral("Classes that you add appear here."), right);
    for (QTreeWidget* list : {left, right})
    {
        list->viewport()->installEventFilter(this);
        connect(list, &QTreeWidget::currentItemChanged, this, &DtCodeGenAppGui::showDetails);
    }
    connect(new QShortcut(QKeySequence(Qt::Key_F4), this), &QShortcut::activated, this,
            &DtCodeGenAppGui::toggleDetails);
}

// Null for an item that is no class.
const DtFedNode* DtCodeGenAppGui::nodeOf(QTreeWidgetItem* item) const
{
    const auto& lefts = myListViewManager->rightWidgetsByLeftWidgets();
    const auto left = lefts.find(item);
    QTreeWidgetItem* const key = left == lefts.end() ? item : left->second;
    for (const DtItemMap* items : {&myObjectItems, &myInteractionItems})
    {
        const auto found = items->find(key);
        if (found != items->end())
            return found->second;
    }
    return nullptr;
}

// True when the event was that of a class. The texts are made when they are asked for: a model has thousands.
bool DtCodeGenAppGui::showClassToolTip(const QTreeWidget* list, const QHelpEvent& event)
{
    const DtFedNode* const node = nodeOf(list->itemAt(event.pos()));
    if (node != nullptr)
        QToolTip::showText(event.globalPos(), DtClassToolTip(*node), list->viewport());
    return node != nullptr;
}

// What is on the right is bold on the left.
void DtCodeGenAppGui::markTakenClasses()
{
    QSet<const QTreeWidgetItem*> taken;
    for (const auto& [right, left] : myListViewManager->rightWidgetsByLeftWidgets())
        taken.insert(left);
    for (const DtItemMap* items : {&myObjectItems, &myInteractionItems})
        for (const auto& [item, node] : *items)
        {
            QFont font = item->font(0);
            if (font.bold() == taken.contains(item))
                continue;
            font.setBold(!font.bold());
            item->setFont(0, font);
        }
}

void DtCodeGenAppGui::toggleDetails()
{
    if (myDetailPanel == nullptr)
    {
        myDetailPanel = new DtDetailPanel(this);
        addDockWidget(Qt::RightDockWidgetArea, myDetailPanel);
        myDetailPanel->show();
    }
    else
        myDetailPanel->setVisible(!myDetailPanel->isVisible());
    const QTreeWidget* const right = myListViewManager->rightListView();
    const QTreeWidget* const list = right->hasFocus() ? right : myListViewManager->leftListView();
    showDetails(list->currentItem());
}

void DtCodeGenAppGui::showDetails(QTreeWidgetItem* item)
{
    if (myDetailPanel != nullptr && !myDetailPanel->isHidden())
        myDetailPanel->showClass(nodeOf(item));
}
