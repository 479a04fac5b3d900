#ifndef CODE_GEN_APP_FIND_BAR_H
#define CODE_GEN_APP_FIND_BAR_H

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <functional>

class DtListHint;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

// Narrows a tree to the items whose text, or the name of one of whose members, holds what the user types, in any case
// of letters, and to the items above them. It counts them, and steps from one to the next.
//
// Hidden until open() is called. Escape in the bar closes it. The list is not owned and must outlive the bar. Items
// that are hidden lose their selection, so nothing is picked that the user cannot see.
class DtFindBar : public QWidget
{
public:
    explicit DtFindBar(QTreeWidget* list, QWidget* parent = nullptr);

    // Tells the names of an item's members, which are found too. None without it.
    using DtMembers = std::function<QStringList(QTreeWidgetItem*)>;
    void setMembers(const DtMembers& members) { myMembers = members; }
    // Shows the bar, with the text of the last time selected.
    void open();
    // Hides the bar, shows all items again and gives the focus to the list.
    void dismiss();
    // Hides and shows the items anew; to be called when the list was filled again. Nothing while the bar is closed.
    void refresh();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showMatches(const QString& text);
    bool showMatchesBelow(QTreeWidgetItem* item, const QString& text);
    bool isMatch(QTreeWidgetItem* item, const QString& text) const;
    void tellCount();
    void goToFirstMatch();
    void step(int direction);

    QTreeWidget* myList;
    QLineEdit* myText;
    QLabel* myCount;
    DtListHint* myHint; // of the list
    DtMembers myMembers;
    QList<QTreeWidgetItem*> myMatches; // below the top items, in their order
};

#endif
