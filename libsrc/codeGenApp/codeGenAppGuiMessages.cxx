// The messages of the streams, in the window.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/findBar.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/messageDock.h"
#include "codeGenApp/messageLog.h"
#include "omtReader/fedNode.h"

#include <QtCore/QRegularExpression>
#include <QtWidgets/QShortcut>

#include <algorithm>

namespace
{
using DtItemsByName = QHash<QString, QTreeWidgetItem*>;

// By full name and, where that is not taken, by the last part of it.
void addNames(const DtCodeGenAppGui::DtItemMap& items, DtItemsByName& full, DtItemsByName& last)
{
    for (const auto& [item, node] : items)
    {
        full.insert(QString::fromUtf8(node->getFullName().c_str()), item);
        const QString name = QString::fromUtf8(node->getName().c_str());
        if (!last.contains(name))
            last.insert(name, item);
    }
}

bool isOutOfSight(const QTreeWidgetItem& item)
{
    return item.isHidden() || (item.parent() != nullptr && isOutOfSight(*item.parent()));
}
} // namespace

void DtCodeGenAppGui::createMessages()
{
    myMessages = std::make_unique<DtMessageLog>();
    connect(myMessages.get(), &DtMessageLog::added, this, &DtCodeGenAppGui::openMessages);
    connect(new QShortcut(QKeySequence(Qt::Key_F5), this), &QShortcut::activated, this,
            &DtCodeGenAppGui::toggleMessages);
}

void DtCodeGenAppGui::takeEarlierMessages(const QStringList& lines)
{
    myMessages->putInFront(lines);
}

// The user may close the dock; then it stays closed until the user asks for it.
void DtCodeGenAppGui::openMessages()
{
    if (isVisible() && myMessageDock == nullptr)
        makeMessageDock();
}

void DtCodeGenAppGui::toggleMessages()
{
    if (myMessageDock == nullptr)
        makeMessageDock();
    else
        myMessageDock->setVisible(!myMessageDock->isVisible());
}

void DtCodeGenAppGui::makeMessageDock()
{
    myMessageDock = new DtMessageDock(*myMessages, this);
    connect(myMessageDock, &DtMessageDock::lineChosen, this, &DtCodeGenAppGui::selectNamedClass);
    addDockWidget(Qt::BottomDockWidgetArea, myMessageDock);
    myMessageDock->show();
    resizeDocks({myMessageDock}, {height() / 4}, Qt::Vertical);
}

// The first class of the left list that a word of the line names, by its full name if there is such a word. What stands
// behind the last dot may be an attribute of it.
void DtCodeGenAppGui::selectNamedClass(const QString& line)
{
    DtItemsByName full;
    DtItemsByName last;
    addNames(myObjectItems, full, last);
    addNames(myInteractionItems, full, last);
    const QStringList words = line.split(QRegularExpression(QStringLiteral("[^\\w.]+")), Qt::SkipEmptyParts);
    for (const DtItemsByName* names : {&full, &last})
        for (QString word : words)
            for (word.remove(QRegularExpression(QStringLiteral("^\\.+|\\.+$"))); !word.isEmpty();
                 word.truncate(qMax(0, word.lastIndexOf('.'))))
                if (QTreeWidgetItem* const item = names->value(word))
                {
                    if (isOutOfSight(*item)) // by the find bar
                        myFindBar->dismiss();
                    QTreeWidget* const list = myListViewManager->leftListView();
                    list->setCurrentItem(item);
                    return list->scrollToItem(item);
                }
}
