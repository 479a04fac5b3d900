#ifndef CODE_GEN_APP_FIND_BAR_H
#define CODE_GEN_APP_FIND_BAR_H

#include <QtWidgets/QWidget>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

// Narrows a tree to the items whose text holds what the user types, in any case of letters, and to the items above
// them.
//
// Hidden until open() is called. Escape in the bar closes it. The list is not owned and must outlive the bar. Items
// that are hidden lose their selection, so nothing is picked that the user cannot see.
class DtFindBar : public QWidget
{
public:
    explicit DtFindBar(QTreeWidget* list, QWidget* parent = nullptr);

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
    void goToFirstMatch();

    QTreeWidget* myList;
    QLineEdit* myText;
};

#endif
