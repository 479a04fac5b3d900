#ifndef CODE_GEN_APP_LIST_HINT_H
#define CODE_GEN_APP_LIST_HINT_H

#include <QtWidgets/QLabel>

class QTreeWidget;

// A text in the middle of a list, as long as the list is empty, or as all that it has is hidden. It takes no clicks.
// The list owns it.
class DtListHint : public QLabel
{
public:
    enum class When
    {
        Empty,
        AllHidden
    };

    DtListHint(const QString& text, QTreeWidget* list, When when = When::Empty);
    // To be called when items were hidden or shown, which the list does not tell.
    void follow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isWanted() const;

    QTreeWidget* myList;
    When myWhen;
};

#endif
