#ifndef TESTS_DIALOG_WATCH_H
#define TESTS_DIALOG_WATCH_H

#include <QtCore/QEvent>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

#include <utility>

// Answers every message box and file dialog while it lives, so that no test waits for a user.
//
// Message boxes are closed, by a button if one is asked for. A file dialog gets the next answer: a path to choose, or a
// cancel once they have run out.
class DtDialogWatch : public QObject
{
public:
    DtDialogWatch()
    {
        qApp->setAttribute(Qt::AA_DontUseNativeDialogs);
        qApp->installEventFilter(this);
    }
    ~DtDialogWatch() override { qApp->removeEventFilter(this); }

    void setAnswers(const QStringList& answers) { myAnswers = answers; }
    // The button by which the following message boxes are closed.
    void setButton(QMessageBox::StandardButton button) { myButton = button; }
    // The text of each message box and the title of each file dialog that appeared since the last call.
    QStringList takeSeen() { return std::exchange(mySeen, QStringList()); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() != QEvent::Show)
            return false;
        if (auto* box = qobject_cast<QMessageBox*>(object))
        {
            mySeen += box->text();
            QTimer::singleShot(0, box, [this, box] { press(*box); });
        }
        else if (auto* dialog = qobject_cast<QFileDialog*>(object))
        {
            mySeen += dialog->windowTitle();
            QTimer::singleShot(0, dialog, [this, dialog] { answer(*dialog); });
        }
        return false;
    }

private:
    void press(QMessageBox& box) const
    {
        QAbstractButton* const button = box.button(myButton);
        if (button != nullptr)
            button->click();
        else
            box.reject();
    }
    void answer(QFileDialog& dialog)
    {
        if (myAnswers.isEmpty())
            return dialog.reject();
        dialog.selectFile(myAnswers.takeFirst());
        dialog.metaObject()->invokeMethod(&dialog, "accept");
    }

    QStringList myAnswers;
    QStringList mySeen;
    QMessageBox::StandardButton myButton = QMessageBox::NoButton;
};

#endif
