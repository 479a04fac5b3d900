#ifndef TESTS_PRINTED_LISTS_H
#define TESTS_PRINTED_LISTS_H

#include <QtCore/QString>
#include <QtWidgets/QTreeWidget>

// Trees as text, one item a line, each level a blank further in.

enum class DtPrinted
{
    All,
    ShownOnly, // without the items that are hidden
};

inline QString printItem(const QTreeWidgetItem& item, const QString& indent, DtPrinted which)
{
    if (which == DtPrinted::ShownOnly && item.isHidden())
        return QString();
    QString text = indent + item.text(0) + "\n";
    for (int index = 0; index < item.childCount(); ++index)
        text += printItem(*item.child(index), indent + " ", which);
    return text;
}

inline QString printList(const QTreeWidget& list, DtPrinted which = DtPrinted::All)
{
    QString text;
    for (int index = 0; index < list.topLevelItemCount(); ++index)
        text += printItem(*list.topLevelItem(index), QString(), which);
    return text;
}

inline QTreeWidgetItem* itemOf(const QTreeWidget& list, const char* text, int which = 0)
{
    return list.findItems(text, Qt::MatchExactly | Qt::MatchRecursive, 0).value(which);
}

#endif
