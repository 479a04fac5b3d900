// What helps to find a class and to know it: hints, tooltips, marks, the find bar and the panel of details; and the
// keys of the window.

#include "registerTest.h"

#include "windowFixture.h"

namespace
{
// Notes the directory in which each file dialog comes up.
class DtDirectoryWatch : public QObject
{
public:
    DtDirectoryWatch() { qApp->installEventFilter(this); }
    const QStringList& seen() const { return mySeen; }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QFileDialog*>(object) : nullptr;
        if (dialog != nullptr)
            mySeen += dialog->directory().absolutePath();
        return false;
    }

private:
    QStringList mySeen;
};
} // namespace

class TestWindowClasses : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    static QByteArray described(const QByteArray& text, const QByteArray& semantics)
    {
        return QByteArray(text).replace("</name>", "</name><semantics>" + semantics + "</semantics>");
    }
    void loadFleet() const
    {
        const QByteArray tug = objectText("Tug", attributeText("Pull", "HLAfloat32BE"));
        const QByteArray ship = objectText("Ship", attributeText("Speed") + attributeText("Heading"));
        loadModel(described(ship, "What floats. It &lt;moves&gt;.").replace("</objectClass>", tug + "</objectClass>") +
                      objectText("Pier"),
                  interactionText("Signal", parameterText("Code")));
    }
    void pressKeys(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QApplication::setActiveWindow(myWindow.get()); // a dialog may have been closed
        QTest::keyClick(myWindow->focusWidget() != nullptr ? myWindow->focusWidget() : myWindow.get(), Qt::Key(key),
                        modifiers);
    }
    QStringList hints() const
    {
        QStringList texts;
        for (const QLabel* hint : myWindow->findChildren<QLabel*>("ListHint"))
            if (hint->isVisible())
                texts += hint->text();
        return texts;
    }
    QString boldClasses() const
    {
        QStringList names;
        for (QTreeWidgetItemIterator each(&left()); *each != nullptr; ++each)
            if ((*each)->font(0).bold())
                names += (*each)->text(0);
        return names.join(' ');
    }
    QString toolTipOf(QTreeWidget& list, const char* text) const
    {
        const QPoint at = list.visualItemRect(itemOf(list, text)).center();
        QHelpEvent event(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(list.viewport(), &event);
        return QToolTip::text();
    }
    void find(const char* text) const
    {
        if (myWindow->findChild<QWidget*>("FindBar") == nullptr)
            pressKeys(Qt::Key_F, Qt::ControlModifier);
        myWindow->findChild<QLineEdit*>()->setText(text);
    }
    QString found() const { return myWindow->findChild<QLabel*>("FindCount")->text(); }
    QToolButton& step(const char* name) const
    {
        for (QToolButton* button : myWindow->findChild<QWidget*>("FindBar")->findChildren<QToolButton*>())
            if (button->accessibleName() == name)
                return *button;
        qFatal("no step %s", name);
    }
    QString details() const
    {
        const auto* const panel = myWindow->findChild<QDockWidget*>("Details");
        return panel != nullptr && panel->isVisible() ? panel->findChild<QTextBrowser*>()->toPlainText() : QString();
    }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    // Lists

    void emptyListsSayWhatToDo()
    {
        show();
        QCOMPARE(hints(), (QStringList{"1. New Project\n2. Import FOM\n\nF4 shows the details of a class.",
                                       "Classes that you add appear here."}));
        loadFleet();
        QCOMPARE(hints(), QStringList("Classes that you add appear here."));
        myWindow->addAllObjectInteractions();
        QCOMPARE(hints(), QStringList());
        myWindow->closeOpenFiles();
        QCOMPARE(hints().size(), 2);
        for (const QLabel* hint : myWindow->findChildren<QLabel*>("ListHint"))
            QCOMPARE(hint->geometry(), hint->parentWidget()->rect());
    }

    void toolTipTellsOfAClass()
    {
        loadFleet();
        show();
        left().expandAll();
        QCOMPARE(toolTipOf(left(), "Ship"),
                 QString("<p><b>HLAobjectRoot.Ship</b></p><p>What floats.</p><p>2 attributes</p>"));
        QCOMPARE(toolTipOf(left(), "Signal"), QString("<p><b>HLAinteractionRoot.Signal</b></p><p>1 parameter</p>"));
        myWindow->addAllObjectInteractions();
        QCOMPARE(toolTipOf(right(), "Tug"), QString("<p><b>HLAobjectRoot.Ship.Tug</b></p><p>1 attribute</p>"));
    }

    void takenClassesAreMarked()
    {
        loadFleet();
        show();
        QCOMPARE(boldClasses(), QString());
        itemOf(left(), "Tug")->setSelected(true);
        myWindow->addSelectedItems();
        QCOMPARE(boldClasses(), QString("Ship Tug"));
        itemOf(right(), "Tug")->setSelected(true);
        myWindow->removeSelectedItems();
        QCOMPARE(boldClasses(), QString("Ship"));
    }

    void takenClassesAreMarkedBehindAFailedImport()
    {
        loadFleet();
        show();
        itemOf(left(), "Tug")->setSelected(true);
        myWindow->addSelectedItems();
        QCOMPARE(myWindow->loadFile(myProgram->model("bad.xml", moduleText("").replace("</objectModel>", "")), ""), 0);
        QCOMPARE(boldClasses(), QString("Ship Tug"));
    }

    void toolBarHasTextBesideItsIconsWhereThereIsRoom()
    {
        show();
        const QToolBar& bar = *myWindow->findChild<QToolBar*>();
        for (const int width : {640, 1200})
        {
            myWindow->resize(width, 582);
            QTRY_COMPARE(bar.width(), width);
            QCOMPARE(bar.toolButtonStyle() == Qt::ToolButtonTextBesideIcon, width == 1200);
            QCOMPARE(bar.height(), 30);
            for (QAction* each : bar.actions())
                QTRY_VERIFY2(bar.widgetForAction(each)->isVisible(), qPrintable(each->text()));
        }
    }

    // Find bar

    void findBarCountsWhatItFinds()
    {
        loadFleet();
        show();
        find("i");
        QCOMPARE(found(), QString("3 found")); // Ship, Pier, Signal
        QCOMPARE(myWindow->findChild<QLineEdit*>()->property("isFaulty").toBool(), false);
        find("nothing");
        QCOMPARE(found(), QString("0 found"));
        QCOMPARE(myWindow->findChild<QLineEdit*>()->property("isFaulty").toBool(), true);
        find("");
        QCOMPARE(found(), QString());
        QCOMPARE(myWindow->findChild<QLineEdit*>()->property("isFaulty").toBool(), false);
    }

    void findBarSaysWhenNothingIsFound()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        find("no such class");
        QCOMPARE(hints(), QStringList("Nothing is found."));
        find("Tug");
        QCOMPARE(hints(), QStringList());
        find("no such class");
        pressKeys(Qt::Key_Escape);
        QCOMPARE(hints(), QStringList());
    }

    void findBarStepsThroughWhatItFinds()
    {
        loadFleet();
        show();
        find("i");
        QStringList visited;
        for (int turn = 0; turn < 4; ++turn)
        {
            step("Next").click();
            visited += left().currentItem()->text(0);
        }
        QCOMPARE(visited.join(' '), QString("Ship Pier Signal Ship"));
        step("Previous").click();
        QCOMPARE(left().currentItem()->text(0), QString("Signal"));
        pressKeys(Qt::Key_F3, Qt::ShiftModifier);
        QTRY_COMPARE(left().currentItem()->text(0), QString("Pier"));
        find("nothing");
        step("Next").click();
        QCOMPARE(left().currentItem()->text(0), QString("Pier"));
    }

    void membersAreFoundWithTheirClass()
    {
        loadFleet();
        show();
        find("pull");
        QCOMPARE(printList(left(), DtPrinted::ShownOnly), QString("Objects\n Ship\n  Tug\n"));
        find("code");
        QCOMPARE(printList(left(), DtPrinted::ShownOnly), QString("Interactions\n Signal\n"));
        QCOMPARE(found(), QString("1 found"));
    }

    // Details

    void panelTellsAllOfTheCurrentClass()
    {
        loadFleet();
        show();
        left().setCurrentItem(itemOf(left(), "Ship"));
        QCOMPARE(details(), QString());
        pressKeys(Qt::Key_F4);
        QVERIFY2(details().contains("What floats. It <moves>."), qPrintable(details()));
        QVERIFY(!details().contains("Pull"));
        left().setCurrentItem(itemOf(left(), "Tug"));
        const QString text = details();
        QVERIFY(text.contains("HLAobjectRoot.Ship.Tug") && text.contains("Pull") && text.contains("HLAfloat32BE"));
        QVERIFY(text.indexOf("Heading") > 0 && text.indexOf("Heading") < text.indexOf("Pull")); // inherited
        myWindow->addAllObjectInteractions();
        right().setCurrentItem(itemOf(right(), "Signal"));
        QVERIFY(details().contains("HLAinteractionRoot.Signal") && details().contains("Code"));
        myWindow->closeOpenFiles();
        QCOMPARE(details(), QString("No class is current in the lists."));
        pressKeys(Qt::Key_F4);
        QCOMPARE(details(), QString());
        pressKeys(Qt::Key_F4);
        QCOMPARE(details(), QString("No class is current in the lists."));
    }

    // Keys

    void keysOfTheFileMenu()
    {
        show();
        pressKeys(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(myDialogs->takeSeen(), QStringList("New Project File"));
        pressKeys(Qt::Key_S, Qt::ControlModifier);                                    // disabled without a project
        QCOMPARE(status(), QString("No Project loaded... Cannot save OMT Project.")); // of the new project
        loadFleet();
        pressKeys(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(status(), QString("Project p.qxproj saved"));
        pressKeys(Qt::Key_W, Qt::ControlModifier);
        QVERIFY(myWindow->projectFile().isEmpty());
        loadFleet();
        myDialogs->setButton(QMessageBox::Cancel);
        pressKeys(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(myDialogs->takeSeen(), QStringList("The project p.qxproj has changes that are not saved."));
        QVERIFY(myWindow->isVisible());
    }

    void lastAdditionOrRemovalIsTakenBack()
    {
        loadFleet();
        show();
        pressKeys(Qt::Key_Z, Qt::ControlModifier);
        itemOf(left(), "Tug")->setSelected(true);
        myWindow->addSelectedItems();
        const QString both = recorded();
        itemOf(right(), "Ship")->setSelected(true);
        myWindow->removeSelectedItems();
        QCOMPARE(recorded(), QString());
        pressKeys(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(recorded(), both);
        QCOMPARE(printList(right()), QString("Objects\n Ship\n  Tug\n"));
        QCOMPARE(status(), QString("The last change of the selection is taken back"));
        pressKeys(Qt::Key_Z, Qt::ControlModifier); // the last one only
        QCOMPARE(recorded(), both);
        itemOf(left(), "Pier")->setSelected(true);
        myWindow->addSelectedItems();
        pressKeys(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(recorded(), both);
        QCOMPARE(printList(right()), QString("Objects\n Ship\n  Tug\n"));
    }

    void changeOfNothingIsNotTakenBack()
    {
        loadFleet();
        show();
        itemOf(left(), "Tug")->setSelected(true);
        myWindow->addSelectedItems();
        const QString both = recorded();
        itemOf(right(), "Tug")->setSelected(true);
        myWindow->removeSelectedItems();
        QVERIFY(recorded() != both);
        myWindow->removeSelectedItems(); // nothing is selected
        left().clearSelection();
        itemOf(left(), "Ship")->setSelected(true);
        myWindow->addSelectedItems(); // it is there
        pressKeys(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(recorded(), both);
    }

    void dialogsStartWhereTheLastFileWasChosen()
    {
        show();
        const DtDirectoryWatch directories;
        myDialogs->setAnswers({path("models/p.qxproj")});
        action("New Project").trigger();
        action("Import FOM").trigger();
        QCOMPARE(myDialogs->takeSeen(), (QStringList{"New Project File", "Open File"}));
        QCOMPARE(directories.seen(), (QStringList{QDir::currentPath(), QDir(path("models")).absolutePath()}));
    }
};

QX_REGISTER_TEST(TestWindowClasses)
#include "testWindowClasses.moc"
