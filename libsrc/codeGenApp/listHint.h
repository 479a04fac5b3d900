#ifndef CODE_GEN_APP_LIST_HINT_H
#define CODE_GEN_APP_LIST_HINT_H

#include <QtWidgets/QLabel>

class QTreeWidget;

// A text in the middle of a list, as long as the list is empty. It takes no clicks. The list owns it.
class DtListHint : public QLabel
{
public:
    DtListHint(const QString& text, QTreeWidget* list);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();

    QTreeWidget* myList;
};

#endif
