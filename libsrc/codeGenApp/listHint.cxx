#include "codeGenApp/listHint.h"

#include <QtCore/QEvent>
#include <QtWidgets/QTreeWidget>

DtListHint::DtListHint(const QString& text, QTreeWidget* list) : QLabel(text, list->viewport()), myList(list)
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
    setVisible(myList->topLevelItemCount() == 0);
}
