#include "codeGenApp/findBar.h"

#include "codeGenApp/listHint.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QTreeWidgetItemIterator>

#include <algorithm>
#include <tuple>

namespace
{
void hideItem(QTreeWidgetItem* item, bool isHidden)
{
    if (item->isHidden() != isHidden)
        item->setHidden(isHidden);
}

void deselectHidden(QTreeWidget* list)
{
    QTreeWidgetItemIterator each(list, QTreeWidgetItemIterator::Hidden | QTreeWidgetItemIterator::Selected);
    for (; *each != nullptr; ++each)
        (*each)->setSelected(false);
}
} // namespace

DtFindBar::DtFindBar(QTreeWidget* list, QWidget* parent)
    : QWidget(parent), myList(list), myText(new QLineEdit(this)), myCount(new QLabel(this))
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
    row->addWidget(myCount);
    const std::tuple<const char*, Qt::ArrowType, int, QKeySequence> theSteps[] = {
        {"Previous", Qt::UpArrow,   -1, QKeySequence(Qt::SHIFT + Qt::Key_F3)},
        {"Next",     Qt::DownArrow, 1,  QKeySequence(Qt::Key_F3)            },
    };
    for (const auto& [name, arrow, direction, key] : theSteps)
    {
        auto* const button = new QToolButton(this);
        button->setArrowType(arrow);
        button->setAccessibleName(QString::fromLatin1(name));
        button->setToolTip(QString::fromLatin1(name) + " (" + key.toString() + ")");
        button->setShortcut(key);
        connect(button, &QToolButton::clicked, this, [this, turn = direction] { step(turn); });
        row->addWidget(button);
    }
    myCount->setObjectName(QStringLiteral("FindCount"));
    setFocusProxy(myText);
    myHint = new DtListHint(QStringLiteral("Nothing is found."), myList, DtListHint::When::AllHidden);
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
    myMatches.clear();
    for (int index = 0; index < myList->topLevelItemCount(); ++index)
        showMatchesBelow(myList->topLevelItem(index), text);
    deselectHidden(myList);
    myList->setUpdatesEnabled(true);
    myHint->follow();
    tellCount();
}

// False when nothing at and below the item matches; all of it is hidden then.
bool DtFindBar::showMatchesBelow(QTreeWidgetItem* item, const QString& text)
{
    const bool isMatching = isMatch(item, text);
    if (isMatching && item->parent() != nullptr)
        myMatches += item;
    bool isMatchBelow = false;
    for (int index = 0; index < item->childCount(); ++index)
        isMatchBelow |= showMatchesBelow(item->child(index), text);
    if (isMatchBelow && !item->isExpanded())
        item->setExpanded(true);
    hideItem(item, !isMatching && !isMatchBelow);
    return isMatching || isMatchBelow;
}

bool DtFindBar::isMatch(QTreeWidgetItem* item, const QString& text) const
{
    if (item->text(0).contains(text, Qt::CaseInsensitive))
        return true;
    const QStringList members = myMembers ? myMembers(item) : QStringList();
    return std::any_of(members.begin(), members.end(),
                       [&text](const QString& member) { return member.contains(text, Qt::CaseInsensitive); });
}

void DtFindBar::tellCount()
{
    const bool isAsked = !myText->text().isEmpty();
    myCount->setText(isAsked ? QString::number(myMatches.size()) + " found" : QString());
    myText->setProperty("isFaulty", isAsked && myMatches.isEmpty());
    style()->unpolish(myText); // the style sheet looks at properties only then
    style()->polish(myText);
}

void DtFindBar::goToFirstMatch()
{
    if (myMatches.isEmpty())
        return;
    myList->setCurrentItem(myMatches.first());
    myList->setFocus(Qt::OtherFocusReason);
}

// From the current item on, and round the end.
void DtFindBar::step(int direction)
{
    if (myMatches.isEmpty())
        return;
    const int at = myMatches.indexOf(myList->currentItem());
    const int count = myMatches.size();
    const int next = at < 0 ? (direction > 0 ? 0 : count - 1) : (at + direction + count) % count;
    myList->setCurrentItem(myMatches[next]);
}

void DtFindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QWidget::keyPressEvent(event);
}
