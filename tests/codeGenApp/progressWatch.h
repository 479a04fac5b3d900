#ifndef TESTS_PROGRESS_WATCH_H
#define TESTS_PROGRESS_WATCH_H

#include <QtCore/QEvent>
#include <QtCore/QStringList>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

#include <functional>

// Presses Cancel in the progress dialog when it is time. It looks whenever the event loop is turned, whether the dialog
// is painted or not.
class DtCancelWatch : public QObject
{
public:
    DtCancelWatch() { startTimer(0); }
    bool isDone() const { return myIsDone; }

protected:
    virtual bool isTime(const QString& label) = 0;

private:
    void timerEvent(QTimerEvent*) override
    {
        auto* const dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || myIsDone || !isTime(dialog->labelText()))
            return;
        myIsDone = true;
        dialog->findChild<QPushButton*>()->click();
    }

    bool myIsDone = false;
};

// As soon as the label has this text in it.
class DtCancelAt : public DtCancelWatch
{
public:
    explicit DtCancelAt(const QString& text) : myText(text) {}

private:
    bool isTime(const QString& label) override { return label.contains(myText); }

    QString myText;
};

// At one of the files that the dialog names, counted from 0, and notes them all until then; the dialog hides behind it,
// and names no more.
class DtCancelAfter : public DtCancelWatch
{
public:
    explicit DtCancelAfter(int count, const std::function<void()>& note = {}) : myCount(count), myNote(note) {}
    const QStringList& files() const { return myFiles; }

private:
    bool isTime(const QString& label) override
    {
        const QString prefix = QStringLiteral("Generating: ");
        if (!label.startsWith(prefix))
            return false;
        const QString file = label.mid(prefix.size());
        if (!myFiles.contains(file))
            myFiles += file;
        if (myFiles.size() <= myCount || myCount < 0)
            return false;
        if (myNote)
            myNote();
        return true;
    }

    int myCount;
    std::function<void()> myNote; // called ahead of the click
    QStringList myFiles;
};

#endif
