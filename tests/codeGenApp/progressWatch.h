#ifndef TESTS_PROGRESS_WATCH_H
#define TESTS_PROGRESS_WATCH_H

#include <QtCore/QEvent>
#include <QtCore/QStringList>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

// Notes the files that the progress dialog names, and presses Cancel at one of them, counted from 0.
class DtCancelAfter : public QObject
{
public:
    explicit DtCancelAfter(int count) : myCount(count) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent*) override
    {
        auto* const dialog = qobject_cast<QProgressDialog*>(object);
        if (dialog == nullptr || !dialog->labelText().startsWith("Generating: ") || files.contains(dialog->labelText()))
            return false;
        files += dialog->labelText();
        if (files.size() == myCount + 1)
            dialog->findChild<QPushButton*>()->click();
        return false;
    }
    QStringList files;

private:
    int myCount;
};

#endif
