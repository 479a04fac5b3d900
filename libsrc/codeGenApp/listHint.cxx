#include "codeGenApp/listHint.h"

#include <QtCore/QEvent>
#include <QtWidgets/QTreeWidget>

DtListHint::DtListHint(const QString& text, QTreeWidget* list, When when)
    : QLabel(text, list->viewport()), myList(list), myWhen(when)
{
    setObjectName(QStringLiteral("ListHint"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    list->viewport()->installEventFilter(this);
    const QAbstractItemModel* const model = list->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &DtListHint::follow);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &DtListHint::follow);
    connect(model, &QAbstractItemModel::modelReset, this, &DtListHint::follow);
    follow();
}

bool DtListHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        follow();
    return QLabel::eventFilter(watched, event);
}

void DtListHint::follow()
{
    setGeometry(myList->viewport()->rect());
    setVisible(isWanted());
}

bool DtListHint::isWanted() const
{
    const int count = myList->topLevelItemCount();
    for (int index = 0; index < count; ++index)
        if (myWhen == When::Empty || !myList->topLevelItem(index)->isHidden())
            return false;
    return myWhen == When::Empty || count > 0;
}
