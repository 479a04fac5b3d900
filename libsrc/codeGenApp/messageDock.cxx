#include "codeGenApp/messageDock.h"

#include "codeGenApp/messageLog.h"

#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

DtMessageDock::DtMessageDock(const DtMessageLog& log, QWidget* parent)
    : QDockWidget(QStringLiteral("Messages"), parent), myLog(log), myList(new QListWidget)
{
    setObjectName(QStringLiteral("Messages"));
    setFeatures(QDockWidget::DockWidgetClosable);
    setAllowedAreas(Qt::BottomDockWidgetArea);
    myList->setAccessibleName(windowTitle());
    myList->setUniformItemSizes(true);
    myList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* const copy = new QPushButton(QStringLiteral("Copy"));
    auto* const clear = new QPushButton(QStringLiteral("Clear"));
    auto* const buttons = new QVBoxLayout;
    buttons->addWidget(copy);
    buttons->addWidget(clear);
    buttons->addStretch();
    auto* const content = new QWidget(this);
    auto* const row = new QHBoxLayout(content);
    row->addWidget(myList, 1);
    row->addLayout(buttons);
    setWidget(content);
    connect(copy, &QPushButton::clicked, this, &DtMessageDock::copyLines);
    connect(clear, &QPushButton::clicked, myList, &QListWidget::clear);
    for (const auto isChosen : {&QListWidget::itemClicked, &QListWidget::itemActivated}) // by the mouse, by Enter
        connect(myList, isChosen, this, [this](const QListWidgetItem* item) { Q_EMIT lineChosen(item->text()); });
    connect(&log, &DtMessageLog::added, this,
            [this]
            {
                if (!myIsWaiting) // many lines come at a time
                    QTimer::singleShot(0, this, &DtMessageDock::takeLines);
                myIsWaiting = true;
            });
    takeLines();
}

void DtMessageDock::takeLines()
{
    myIsWaiting = false;
    for (const QString& line : myLog.linesSince(myTaken))
    {
        auto* const item = new QListWidgetItem(line, myList);
        item->setToolTip(line);
    }
    myTaken = myLog.count();
    while (myList->count() > DtMessageLog::theMostLines)
        delete myList->takeItem(0);
    myList->scrollToBottom();
}

// The selected lines, or all when none is selected.
void DtMessageDock::copyLines() const
{
    const bool isAll = myList->selectedItems().isEmpty();
    QString text;
    for (int row = 0; row < myList->count(); ++row)
        if (isAll || myList->item(row)->isSelected())
            text += myList->item(row)->text() + '\n';
    QApplication::clipboard()->setText(text);
}
