#ifndef TESTS_MENU_WATCH_H
#define TESTS_MENU_WATCH_H

#include <QtCore/QEvent>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <utility>

// Notes every menu that pops up while it lives and closes it again, after a click on the entry that was asked for.
class DtMenuWatch : public QObject
{
public:
    DtMenuWatch() { qApp->installEventFilter(this); }
    ~DtMenuWatch() override { qApp->removeEventFilter(this); }

    void setChoice(const QString& choice) { myChoice = choice; } // empty for a user who clicks elsewhere
    // The entries of each menu that appeared since the last call, joined by blanks.
    QStringList takeSeen() { return std::exchange(mySeen, QStringList()); }
    QPoint position() const { return myPosition; } // of the last one, on the screen

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const menu = qobject_cast<QMenu*>(object);
        if (menu == nullptr || event->type() != QEvent::Show)
            return false;
        QStringList entries;
        for (const QAction* action : menu->actions())
            entries += action->text();
        mySeen += entries.join(' ');
        myPosition = menu->pos();
        QTimer::singleShot(0, menu, [this, menu] { choose(*menu); });
        return false;
    }

private:
    void choose(QMenu& menu) const
    {
        for (QAction* action : menu.actions())
            if (!myChoice.isEmpty() && action->text() == myChoice)
            {
                menu.setActiveAction(action);
                return QTest::keyClick(&menu, Qt::Key_Return);
            }
        menu.close();
    }

    QString myChoice;
    QStringList mySeen;
    QPoint myPosition;
};

#endif
