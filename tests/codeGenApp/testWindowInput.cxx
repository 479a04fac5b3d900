// What the window takes beside its menus: dropped files, keys in the lists, the find bar, its place on the screen.

#include "registerTest.h"

#include "codeGenApp/customCodeGui.h"
#include "codeGenApp/windowPlace.h"
#include "windowFixture.h"

#include <QtCore/QSettings>

class TestWindowInput : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    // Drops files on the window; false when it does not let them in.
    bool drop(const QStringList& files) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files)
            urls += file.contains("://") ? QUrl(file) : QUrl::fromLocalFile(file);
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(20, 80), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(myWindow.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(QPoint(20, 80), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(myWindow.get(), &event);
        return event.isAccepted();
    }
    QString module(const char* file, const char* className) const
    {
        myProgram->model(file, moduleText(objectText(className)));
        return path("models/") + file;
    }
    void newProject() const
    {
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(bytes("models/p.qxproj")));
    }
    QString loaded() const
    {
        QStringList names;
        for (const auto& file : myWindow->loadedFiles())
            names += QString::fromUtf8(file.first.c_str());
        return names.join(' ');
    }
    void loadFleet() const
    {
        loadModel(
            objectText("Ship", attributeText("Speed") + objectText("Ferry", objectText("Fast")) + objectText("Tug")) +
                objectText("Pier"),
            interactionText("Signal"));
    }
    QLineEdit& findText() const { return *myWindow->findChild<QLineEdit*>(); }
    void openFindBar() const
    {
        QTest::keyClick(myWindow->focusWidget() != nullptr ? myWindow->focusWidget() : myWindow.get(), Qt::Key_F,
                        Qt::ControlModifier);
        QTRY_VERIFY(myWindow->findChild<QLineEdit*>() != nullptr && findText().isVisible());
    }
    QString shown() const { return printList(left(), DtPrinted::ShownOnly); }
    void pressOn(QTreeWidget& list, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(&list, Qt::Key(key), modifiers);
    }
    QSettings settings() const { return QSettings(DtWindowPlaceFile(), QSettings::IniFormat); }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    // Files that are dropped

    void droppedModelsAreMergedInOrder()
    {
        newProject();
        QVERIFY(drop({module("b.xml", "Tug"), module("a.xml", "Ship")}));
        QCOMPARE(loaded(), QString("b.xml a.xml"));
        QCOMPARE(printList(left()), QString("Objects\n Tug\n Ship\nInteractions\n"));
    }

    void withoutAProjectModelsAreNotTaken()
    {
        QVERIFY(!drop({module("a.xml", "Ship")}));
        QVERIFY(myWindow->tree() == nullptr);
        QCOMPARE(status(), QString());
    }

    void droppedProjectIsLoaded()
    {
        newProject();
        QVERIFY(drop({module("a.xml", "Ship")}));
        myWindow->addAllObjectInteractions();
        myWindow->saveOmtProject();
        makeWindow();
        myWindow->preferences()->setIncludeStandardMIM(false);
        QVERIFY(drop({path("models/p.qxproj")}));
        QVERIFY(myWindow->isValidProject());
        QCOMPARE(printList(right()), QString("Objects\n Ship\n"));
    }

    void modelsBehindADroppedProjectAreAddedToIt()
    {
        newProject();
        QVERIFY(drop({module("a.xml", "Ship")}));
        myWindow->saveOmtProject();
        makeWindow();
        myWindow->preferences()->setIncludeStandardMIM(false);
        QVERIFY(drop({module("b.xml", "Tug"), path("models/p.qxproj"), module("c.xml", "Pier")}));
        QCOMPARE(loaded(), QString("a.xml c.xml")); // b.xml came too early
    }

    void onlyFilesOfItsOwnKindsAreTaken_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isTaken");
        for (const char* name : {"a.xml", "a.omt", "a.fdd", "a.XML", "p.qxproj", "P.QXPROJ"})
            QTest::newRow(name) << QString(name) << true;
        for (const char* name : {"a.txt", "a", "xml", "qxproj", "a.xml.bak", "https://example/a.xml"})
            QTest::newRow(name) << QString(name) << false;
    }
    void onlyFilesOfItsOwnKindsAreTaken()
    {
        QFETCH(QString, name);
        QFETCH(bool, isTaken);
        newProject();
        const DtCapture warnings(DtWarn); // the files are not there
        QCOMPARE(drop({name.contains("://") ? name : path("none/") + name}), isTaken);
        QCOMPARE(warnings.text().isEmpty(), !isTaken);
    }

    void droppedPathKeepsItsCharacters()
    {
        newProject();
        const QString name = path("models/") + QString::fromUtf8("F\xC3\xA4hre \xCE\xA9.xml");
        writeTextFile(name, moduleText(objectText("Ship")));
        QVERIFY(drop({name}));
        QCOMPARE(loaded(), QString::fromUtf8("F\xC3\xA4hre \xCE\xA9.xml"));
    }

    void nothingIsTakenWhileADialogIsOpen()
    {
        newProject();
        show();
        QDialog dialog(myWindow.get());
        dialog.open();
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        QVERIFY(!drop({module("a.xml", "Ship")}));
        dialog.close();
        QVERIFY(drop({path("models/a.xml")}));
    }

    void listsLeaveDroppedFilesToTheWindow()
    {
        QVERIFY(myWindow->acceptDrops());
        for (const QTreeWidget* list : {&left(), &right()})
            QVERIFY(!list->acceptDrops() && !list->viewport()->acceptDrops());
    }

    // Keys

    void insertAddsAndDeleteRemoves()
    {
        loadFleet();
        itemOf(left(), "Tug")->setSelected(true);
        pressOn(left(), Qt::Key_Insert, Qt::ShiftModifier); // means something else
        QCOMPARE(printList(right()), QString());
        pressOn(left(), Qt::Key_Insert);
        QCOMPARE(printList(right()), QString("Objects\n Ship\n  Tug\n"));
        QCOMPARE(recorded(), QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Tug"));
        itemOf(right(), "Tug")->setSelected(true);
        pressOn(right(), Qt::Key_Delete, Qt::KeypadModifier);
        QCOMPARE(printList(right()), QString("Objects\n Ship\n"));
        QCOMPARE(recorded(), QString("HLAobjectRoot.Ship"));
    }

    void insertBehindALoadAddsNothing()
    {
        loadFleet();
        itemOf(left(), "Pier")->setSelected(true);
        pressOn(left(), Qt::Key_Insert);
        myWindow->saveOmtProject();
        show();
        for (QTreeWidget* focused : {&left(), &right()})
        {
            focused->setFocus();
            QTRY_VERIFY(focused->hasFocus());
            myWindow->loadOmtProject(DtFilename(bytes("models/p.qxproj")));
            QCOMPARE(left().selectedItems().size() + right().selectedItems().size(), 0);
            QVERIFY(left().hasFocus());
            QCOMPARE(left().currentItem()->text(0), QString("Objects"));
            pressOn(left(), Qt::Key_Insert);
            QCOMPARE(printList(right()), QString("Objects\n Pier\n"));
            QCOMPARE(recorded(), QString("HLAobjectRoot.Pier"));
        }
        pressOn(left(), Qt::Key_Down); // the keyboard goes on from the top
        QCOMPARE(left().selectedItems().size(), 1);
    }

    void insertBehindAnImportAddsNothing()
    {
        loadFleet();
        itemOf(left(), "Pier")->setSelected(true);
        pressOn(left(), Qt::Key_Insert);
        show();
        for (QTreeWidget* focused : {&left(), &right()})
        {
            focused->setFocus();
            QTRY_VERIFY(focused->hasFocus());
            QVERIFY(drop({module(focused == &left() ? "a.xml" : "b.xml", focused == &left() ? "Crane" : "Buoy")}));
            QCOMPARE(left().selectedItems().size() + right().selectedItems().size(), 0);
            QVERIFY(left().hasFocus() && left().currentItem() == left().topLevelItem(0));
            pressOn(left(), Qt::Key_Insert);
            QCOMPARE(printList(right()), QString("Objects\n Pier\n"));
        }
        QCOMPARE(recorded(), QString("HLAobjectRoot.Pier"));
        itemOf(left(), "Buoy")->setSelected(true);
        pressOn(left(), Qt::Key_Insert);
        QCOMPARE(printList(right()), QString("Objects\n Pier\n Buoy\n"));
    }

    // What is removed has to be in sight of who presses the key.
    void insertWorksInBothListsAndDeleteInTheRightOne()
    {
        loadFleet();
        itemOf(left(), "Pier")->setSelected(true);
        pressOn(right(), Qt::Key_Insert);
        QCOMPARE(printList(right()), QString("Objects\n Pier\n"));
        itemOf(right(), "Pier")->setSelected(true);
        pressOn(left(), Qt::Key_Delete);
        QCOMPARE(printList(right()), QString("Objects\n Pier\n"));
        pressOn(right(), Qt::Key_Delete);
        QCOMPARE(printList(right()), QString("Objects\n"));
    }

    void customizeKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("F2") << int(Qt::Key_F2) << 0;
        QTest::newRow("Return") << int(Qt::Key_Return) << 0;
        QTest::newRow("Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier);
    }
    void customizeKeys()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        pressOn(right(), key, Qt::KeyboardModifiers(modifiers)); // no item is the current one
        QVERIFY(myWindow->customCodeGui() == nullptr);
        left().setCurrentItem(itemOf(left(), "Ship"));
        pressOn(left(), key, Qt::KeyboardModifiers(modifiers)); // nothing to customize here
        QVERIFY(myWindow->customCodeGui() == nullptr);
        right().setCurrentItem(itemOf(right(), "Ship"));
        pressOn(right(), key, Qt::KeyboardModifiers(modifiers));
        QVERIFY(myWindow->customCodeGui() != nullptr);
        myWindow->customCodeGui()->close();
        QTRY_VERIFY(myWindow->customCodeGui() == nullptr);
    }

    // The find bar

    void findBarIsHiddenUntilItIsUsed()
    {
        show();
        QVERIFY(myWindow->findChild<QWidget*>("FindBar") == nullptr);
        openFindBar();
        QVERIFY(findText().hasFocus());
        QVERIFY(!findText().accessibleName().isEmpty());
        const QWidget* const bar = myWindow->findChild<QWidget*>("FindBar");
        QVERIFY(bar->mapTo(myWindow.get(), QPoint()).y() >=
                left().mapTo(myWindow.get(), QPoint(0, left().height())).y());
        QCOMPARE(bar->mapTo(myWindow.get(), QPoint()).x(), left().mapTo(myWindow.get(), QPoint()).x());
        QVERIFY(left().nextInFocusChain() == bar || left().nextInFocusChain() == left().viewport());
    }

    void matchesAndTheirParentsStay()
    {
        loadFleet();
        show();
        openFindBar();
        QTest::keyClicks(&findText(), "FA");
        QCOMPARE(shown(), QString("Objects\n Ship\n  Ferry\n   Fast\n"));
        QTest::keyClick(&findText(), Qt::Key_Backspace);
        QCOMPARE(shown(), QString("Objects\n Ship\n  Ferry\n   Fast\n")); // two match
        findText().setText("sh");
        QCOMPARE(shown(), QString("Objects\n Ship\n")); // a match is no reason to show what is below it
        findText().setText("zz");
        QCOMPARE(shown(), QString());
        findText().setText("");
        QCOMPARE(shown(), printList(left()));
        QCOMPARE(printList(right()), QString());
    }

    void escapeShowsAllAgain()
    {
        loadFleet();
        show();
        openFindBar();
        findText().setText("tug");
        QTest::keyClick(&findText(), Qt::Key_Escape);
        QVERIFY(!findText().isVisible());
        QVERIFY(left().hasFocus());
        QCOMPARE(shown(), printList(left()));
        openFindBar(); // remembers
        QCOMPARE(findText().selectedText(), QString("tug"));
        QCOMPARE(shown(), QString("Objects\n Ship\n  Tug\n"));
        left().setFocus();
        pressOn(left(), Qt::Key_Escape); // also from the list
        QVERIFY(!findText().isVisible());
        QCOMPARE(shown(), printList(left()));
    }

    void returnGoesToTheFirstMatch()
    {
        loadFleet();
        show();
        openFindBar();
        findText().setText("fa");
        QTest::keyClick(&findText(), Qt::Key_Return);
        QVERIFY(left().hasFocus());
        QCOMPARE(left().currentItem()->text(0), QString("Fast"));
        QVERIFY(findText().isVisible());
        findText().setText("zz");
        findText().setFocus();
        QTest::keyClick(&findText(), Qt::Key_Return);
        QVERIFY(findText().hasFocus());
    }

    void matchInACollapsedBranchIsShown()
    {
        loadFleet();
        show();
        left().collapseAll();
        openFindBar();
        findText().setText("fast");
        QVERIFY(itemOf(left(), "Objects")->isExpanded() && itemOf(left(), "Ferry")->isExpanded());
    }

    void hiddenItemsAreNotPicked()
    {
        loadFleet();
        show();
        itemOf(left(), "Pier")->setSelected(true);
        openFindBar();
        findText().setText("tug");
        left().setFocus();
        myWindow->selectAllObjectsInteractions();
        myWindow->addSelectedItems();
        QCOMPARE(printList(right()), QString("Objects\n Ship\n  Tug\n"));
        findText().setText("");
        QVERIFY(!itemOf(left(), "Pier")->isSelected());
    }

    void newModelIsNarrowedToo()
    {
        loadFleet();
        show();
        openFindBar();
        findText().setText("tug");
        myWindow->closeOpenFiles();
        QCOMPARE(shown(), QString());
        loadModel(objectText("Tugboat") + objectText("Raft"));
        QCOMPARE(shown(), QString("Objects\n Tugboat\n"));
        QTest::keyClick(&findText(), Qt::Key_Escape);
        QCOMPARE(shown(), QString("Objects\n Tugboat\n Raft\nInteractions\n"));
    }

    // The window's place

    void placeIsKeptForTheNextStart()
    {
        myWindow->keepPlace();
        QCOMPARE(myWindow->size(), QSize(640, 582)); // nothing is known yet
        myWindow->show();
        myWindow->setGeometry(40, 50, 500, 400);
        myWindow->close();
        makeWindow();
        myWindow->keepPlace();
        QCOMPARE(myWindow->geometry(), QRect(40, 50, 500, 400));
        QVERIFY(!myWindow->isMaximized());
    }

    void maximizedWindowComesBackMaximized()
    {
        myWindow->keepPlace();
        myWindow->setGeometry(40, 50, 500, 400);
        myWindow->show();
        myWindow->showMaximized();
        myWindow->close();
        makeWindow();
        myWindow->keepPlace();
        QVERIFY(myWindow->isMaximized());
        QCOMPARE(settings().value("window/rectangle").toRect(), QRect(40, 50, 500, 400));
    }

    void placeOnNoScreenIsForgotten_data()
    {
        QTest::addColumn<QVariant>("rectangle");
        QTest::newRow("far away") << QVariant(QRect(5000, 5000, 500, 400));
        QTest::newRow("partly outside") << QVariant(QRect(-200, 50, 500, 400));
        QTest::newRow("too large") << QVariant(QRect(0, 0, 50000, 40000));
        QTest::newRow("empty") << QVariant(QRect());
        QTest::newRow("no rectangle") << QVariant("elsewhere");
    }
    void placeOnNoScreenIsForgotten()
    {
        QFETCH(QVariant, rectangle);
        {
            QSettings store(DtWindowPlaceFile(), QSettings::IniFormat);
            store.setValue("window/rectangle", rectangle);
            store.setValue("window/maximized", true);
        }
        const QRect before = myWindow->geometry();
        QVERIFY(!DtRestoreWindowPlace(*myWindow));
        QCOMPARE(myWindow->geometry(), before);
        QVERIFY(!myWindow->isMaximized());
    }

    void windowThatKeepsNoPlaceWritesNothing()
    {
        myWindow->show();
        myWindow->close();
        QCOMPARE(filesBelow(path("home")), QStringList());
    }

    void placeHasAFileOfItsOwn()
    {
        QCOMPARE(DtWindowPlaceFile(), path("home/quorvex/codeGeneratorWindow.ini"));
        myWindow->keepPlace();
        myWindow->show();
        myWindow->close();
        QCOMPARE(filesBelow(path("home")), QStringList("quorvex/codeGeneratorWindow.ini"));
    }
};

QX_REGISTER_TEST(TestWindowInput)
#include "testWindowInput.moc"
