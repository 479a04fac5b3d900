#ifndef TESTS_PROGRESS_WATCH_H
#define TESTS_PROGRESS_WATCH_H

#include <QtCore/QEvent>
#include <QtCore/QStringList>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

#include <functional>

// Notes the files that the progress dialog names, and presses Cancel at one of them, counted from 0. The dialog hides
// then, and names no more.
class DtCancelAfter : public QObject
{
public:
    explicit DtCancelAfter(int count, const std::function<void()>& note = {}) : myCount(count), myNote(note)
    {
        qApp->installEventFilter(this);
    }
    const QStringList& files() const { return myFiles; }
    bool isDone() const { return myIsDone; }

    bool eventFilter(QObject* object, QEvent*) override
    {
        const QString prefix = QStringLiteral("Generating: ");
        auto* const dialog = qobject_cast<QProgressDialog*>(object);
        if (dialog == nullptr || myIsDone || !dialog->labelText().startsWith(prefix))
            return false;
        const QString file = dialog->labelText().mid(prefix.size());
        if (!myFiles.contains(file))
            myFiles += file;
        if (myFiles.size() <= myCount || myCount < 0)
            return false;
        myIsDone = true;
        if (myNote)
            myNote();
        dialog->findChild<QPushButton*>()->click();
        return false;
    }

private:
    int myCount;
    std::function<void()> myNote; // called ahead of the click
    QStringList myFiles;
    bool myIsDone = false;
};

#endif
