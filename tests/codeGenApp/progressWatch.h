#ifndef TESTS_PROGRESS_WATCH_H
#define TESTS_PROGRESS_WATCH_H

#include <QtCore/QEvent>
#include <QtCore/QStringList>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

#include <functional>

// Notes the files that the progress dialog names, and presses Cancel at one of them, counted from 0. The dialog hides
// then, and names no more. It looks whenever the event loop is turned, whether the dialog is painted or not.
class DtCancelAfter : public QObject
{
public:
    explicit DtCancelAfter(int count, const std::function<void()>& note = {}) : myCount(count), myNote(note)
    {
        startTimer(0);
    }
    const QStringList& files() const { return myFiles; }
    bool isDone() const { return myIsDone; }

private:
    void timerEvent(QTimerEvent*) override
    {
        const QString prefix = QStringLiteral("Generating: ");
        auto* const dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || myIsDone || !dialog->labelText().startsWith(prefix))
            return;
        const QString file = dialog->labelText().mid(prefix.size());
        if (!myFiles.contains(file))
            myFiles += file;
        if (myFiles.size() <= myCount || myCount < 0)
            return;
        myIsDone = true;
        if (myNote)
            myNote();
        dialog->findChild<QPushButton*>()->click();
    }

    int myCount;
    std::function<void()> myNote; // called ahead of the click
    QStringList myFiles;
    bool myIsDone = false;
};

#endif
