#include "codeGenApp/findBar.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QTreeWidgetItemIterator>

namespace
{
void setHidden(QTreeWidgetItem* item, bool isHidden)
{
    if (item->isHidden() != isHidden)
        item->setHidden(isHidden);
}

// False when nothing at and below the item matches; all of it is hidden then.
bool showMatchesBelow(QTreeWidgetItem* item, const QString& text)
{
    bool isMatchBelow = false;
    for (int index = 0; index < item->childCount(); ++index)
        isMatchBelow |= showMatchesBelow(item->child(index), text);
    if (isMatchBelow && !item->isExpanded())
        item->setExpanded(true);
    const bool isShown = isMatchBelow || item->text(0).contains(text, Qt::CaseInsensitive);
    setHidden(item, !isShown);
    return isShown;
}

void deselectHidden(QTreeWidget* list)
{
    QTreeWidgetItemIterator each(list, QTreeWidgetItemIterator::Hidden | QTreeWidgetItemIterator::Selected);
    for (; *each != nullptr; ++each)
        (*each)->setSelected(false);
}
} // namespace

DtFindBar::DtFindBar(QTreeWidget* list, QWidget* parent) : QWidget(parent), myList(list), myText(new QLineEdit(this))
{
    setObjectName(QStringLiteral("FindBar"));
    auto* const label = new QLabel(QStringLiteral("Fi&nd:"), this);
    label->setBuddy(myText);
    myText->setAccessibleName(QStringLiteral("Find in the list above"));
    myText->setClearButtonEnabled(true);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(myText);
    setFocusProxy(myText);
    hide();
    connect(myText, &QLineEdit::textChanged, this, [this](const QString& text) { showMatches(text); });
    connect(myText, &QLineEdit::returnPressed, this, [this] { goToFirstMatch(); });
}

void DtFindBar::open()
{
    show();
    myText->setFocus(Qt::ShortcutFocusReason);
    myText->selectAll();
    refresh();
}

void DtFindBar::dismiss()
{
    hide();
    showMatches(QString());
    myList->setFocus(Qt::OtherFocusReason);
}

void DtFindBar::refresh()
{
    if (!isHidden())
        showMatches(myText->text());
}

void DtFindBar::showMatches(const QString& text)
{
    myList->setUpdatesEnabled(false);
    for (int index = 0; index < myList->topLevelItemCount(); ++index)
        showMatchesBelow(myList->topLevelItem(index), text);
    deselectHidden(myList);
    myList->setUpdatesEnabled(true);
}

void DtFindBar::goToFirstMatch()
{
    QTreeWidgetItemIterator each(myList, QTreeWidgetItemIterator::NotHidden);
    while (*each != nullptr && !(*each)->text(0).contains(myText->text(), Qt::CaseInsensitive))
        ++each;
    if (*each == nullptr)
        return;
    myList->setCurrentItem(*each);
    myList->setFocus(Qt::OtherFocusReason);
}

void DtFindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QWidget::keyPressEvent(event);
}
