// What the menus, buttons and context menus of the window lead to.

#include "registerTest.h"

#include "codeGenApp/aboutBox.h"
#include "codeGenApp/customCodeGui.h"
#include "menuWatch.h"
#include "windowFixture.h"

namespace
{
const char theQuitVariable[] = "QX_QUIT_IN"; // set in a process that is to leave by the window's Exit

QByteArray fleetObjects()
{
    return objectText("Ship", attributeText("Speed") + objectText("Ferry", attributeText("Deck"))) + objectText("Tug");
}
QByteArray fleetInteractions()
{
    return interactionText("Signal", parameterText("Text"));
}
} // namespace

class TestWindowSlots : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    void loadFleet() const { loadModel(fleetObjects(), fleetInteractions()); }
    void select(QTreeWidget& list, const char* text) const { itemOf(list, text)->setSelected(true); }
    void waitForEditor(bool isOpen) const { QTRY_VERIFY((myWindow->customCodeGui() != nullptr) == isOpen); }
    // The class that the custom code window is open on, by the first key of its list.
    QString customizedKey() const
    {
        const QWidget* const editor = myWindow->customCodeGui();
        const auto* const list = editor != nullptr ? editor->findChild<QTreeWidget*>() : nullptr;
        return list != nullptr && list->topLevelItemCount() > 0 ? list->topLevelItem(0)->text(0) : QString();
    }
    void closeEditor() const
    {
        myWindow->customCodeGui()->close();
        waitForEditor(false);
    }

    QUrl myPage;

public Q_SLOTS:
    void takePage(const QUrl& page) { myPage = page; }

private Q_SLOTS:
    void init()
    {
        if (!qEnvironmentVariableIsSet(theQuitVariable))
            open();
    }
    void cleanup()
    {
        if (!qEnvironmentVariableIsSet(theQuitVariable))
            close();
    }

    // Lists

    void buttonsAddAndRemove()
    {
        loadFleet();
        select(left(), "Ferry");
        const auto buttons = myWindow->findChildren<QPushButton*>("MiddleButton");
        buttons.first()->click();
        QCOMPARE(printList(right()), QString("Objects\n Ship\n  Ferry\n"));
        QCOMPARE(recorded(), QString("HLAobjectRoot.Ship HLAobjectRoot.Ship.Ferry"));
        select(right(), "Ferry");
        buttons.last()->click();
        QCOMPARE(printList(right()), QString("Objects\n Ship\n"));
        QCOMPARE(recorded(), QString("HLAobjectRoot.Ship"));
    }

    void emptiedListHasNothingToScroll()
    {
        loadModel(objectText(QByteArray(200, 'w')));
        show();
        QVERIFY(left().horizontalScrollBar()->maximum() > 0);
        myWindow->closeOpenFiles();
        QTRY_COMPARE(left().horizontalScrollBar()->maximum(), 0);
    }

    void gripOfAFileDialogLeavesItsButtonsAlone()
    {
        show();
        bool isLooked = false;
        QTimer::singleShot(0, this,
                           [&isLooked]
                           {
                               auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                               for (const QSizeGrip* grip : dialog->findChildren<QSizeGrip*>())
                                   QVERIFY2(grip->width() * grip->height() == 0,
                                            qPrintable(QString::number(grip->width())));
                               isLooked = true;
                           });
        qApp->removeEventFilter(myDialogs.get());
        QTimer::singleShot(300, this, [] { QApplication::activeModalWidget()->close(); });
        myWindow->slot_openFile();
        QVERIFY(isLooked);
    }

    void selectAllTakesTheListWithTheFocus()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        left().setFocus();
        action("Select All").trigger();
        QCOMPARE(left().selectedItems().size(), 6);
        QCOMPARE(right().selectedItems().size(), 0);
        right().setFocus();
        myWindow->selectAllObjectsInteractions();
        QCOMPARE(right().selectedItems().size(), 6);
        myWindow->removeSelectedItems();
        QCOMPARE(recorded(), QString());
    }

    void importFillsTheRightListFromTheProject()
    {
        loadFleet();
        for (const char* name : {"Ferry", "Signal"})
            select(left(), name);
        myWindow->addSelectedItems();
        const QString classes = recorded();
        QCOMPARE(myWindow->loadFile(myProgram->model("b.xml", moduleText(objectText("Pier"))), ""), 1);
        QCOMPARE(printList(right()), QString("Objects\n Ship\n  Ferry\nInteractions\n Signal\n"));
        QCOMPARE(recorded(), classes);
        select(right(), "Ferry");
        myWindow->removeSelectedItems();
        QCOMPARE(recorded(), QString("HLAobjectRoot.Ship HLAinteractionRoot.Signal"));
    }

    // Removing "Ship" takes "Shipyard" out of the project too, by its text, and leaves it on the right.
    void removedSuperclassStaysOutOfTheProjectAtAnImport()
    {
        loadModel(objectText("Ship") + objectText("Shipyard", objectText("Dock") + objectText("Slip")));
        myWindow->addAllObjectInteractions();
        select(right(), "Ship");
        myWindow->removeSelectedItems();
        select(right(), "Dock");
        myWindow->removeSelectedItems();
        select(left(), "Dock");
        myWindow->addSelectedItems();
        QCOMPARE(recorded(), QString("HLAobjectRoot.Shipyard.Dock"));
        QCOMPARE(myWindow->loadFile(myProgram->model("b.xml", moduleText(objectText("Pier"))), ""), 1);
        QCOMPARE(recorded(), QString("HLAobjectRoot.Shipyard.Dock"));
        QCOMPARE(printList(right()), QString("Objects\n Shipyard\n  Dock\n"));
    }

    // The entry of the menu that is made for the left list knows no classes.
    void additionPressedShowsWithoutRecording()
    {
        loadFleet();
        select(left(), "Tug");
        myWindow->additionPressed();
        QCOMPARE(printList(right()), QString("Objects\n Tug\n"));
        QCOMPARE(recorded(), QString());
        myWindow->addSelectedItems(); // what is on the right already is not touched
        QCOMPARE(recorded(), QString());
    }

    void removalPressedRemoves()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        select(right(), "Objects");
        myWindow->removalPressed();
        QCOMPARE(printList(right()), QString("Interactions\n Signal\n"));
        QCOMPARE(recorded(), QString("HLAinteractionRoot.Signal"));
    }

    // Context menus

    void menuOfTheLeftListAdds()
    {
        loadFleet();
        show();
        select(left(), "Tug");
        DtMenuWatch menus;
        myWindow->leftListRightButtonPressedCb(nullptr, QPoint(5, 5), 0);
        QCOMPARE(menus.takeSeen(), QStringList());
        QVERIFY(myWindow->findChild<QMenu*>("AdditionMenuPop") == nullptr);
        menus.setChoice("Add");
        for (int round = 0; round < 2; ++round)
        {
            myWindow->leftListRightButtonPressedCb(itemOf(left(), "Tug"), QPoint(50, 60), 0);
            QCOMPARE(menus.takeSeen(), QStringList("Add"));
            QCOMPARE(menus.position(), QPoint(50, 60));
            QTRY_COMPARE(printList(right()), QString("Objects\n Tug\n"));
            QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        }
        QCOMPARE(myWindow->findChildren<QMenu*>("AdditionMenuPop").size(), 1);
    }

    void menuOfTheRightListRemoves()
    {
        loadFleet();
        show();
        myWindow->addAllObjectInteractions();
        select(right(), "Tug");
        DtMenuWatch menus;
        myWindow->rightListRightButtonPressedCb(nullptr, QPoint(5, 5), 0);
        QCOMPARE(menus.takeSeen(), QStringList());
        menus.setChoice("Remove");
        myWindow->rightListRightButtonPressedCb(itemOf(right(), "Tug"), QPoint(50, 60), 0);
        QCOMPARE(menus.takeSeen(), QStringList("Remove"));
        QTRY_VERIFY(itemOf(right(), "Tug") == nullptr);
        QCOMPARE(myWindow->findChildren<QMenu*>("RemovalMenuPop").size(), 1);
    }

    void customizeOpensOnTheFirstSelectedItem()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        select(right(), "Ferry");
        DtMenuWatch menus;
        menus.setChoice("Customize");
        Q_EMIT right().customContextMenuRequested(QPoint(7, 9));
        QCOMPARE(menus.takeSeen(), QStringList("Customize"));
        QCOMPARE(menus.position(), right().viewport()->mapToGlobal(QPoint(7, 9)));
        QCOMPARE(customizedKey(), QString("HLAobjectRoot.Ship.Ferry.Deck"));
        closeEditor();
    }

    void customizeNeedsAChoiceAndASelection()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        DtMenuWatch menus;
        menus.setChoice("Customize");
        myWindow->slot_showContextMenu(QPoint(7, 9)); // nothing is selected
        QVERIFY(myWindow->customCodeGui() == nullptr);
        select(right(), "Ferry");
        menus.setChoice("");
        myWindow->slot_showContextMenu(QPoint(7, 9));
        QVERIFY(myWindow->customCodeGui() == nullptr);
        QCOMPARE(menus.takeSeen(), (QStringList{"Customize", "Customize"}));
    }

    void doubleClickCustomizesTheItem()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        Q_EMIT right().itemDoubleClicked(itemOf(right(), "Signal"), 0);
        QCOMPARE(customizedKey(), QString("HLAinteractionRoot.Signal.Text"));
        closeEditor();
        myWindow->slot_itemDoubleClicked(nullptr, 0);
        QVERIFY(myWindow->customCodeGui() == nullptr);
    }

    void labelCanBeCustomizedWithoutAList()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        myWindow->slot_itemDoubleClicked(itemOf(right(), "Objects"), 0);
        QVERIFY(myWindow->customCodeGui() != nullptr);
        QCOMPARE(customizedKey(), QString()); // the root of the model has no attributes
        closeEditor();
    }

    // Dialogs

    void preferencesAreShownOnDemand()
    {
        show();
        action("Preferences...").trigger();
        QTRY_VERIFY(myWindow->preferences()->isVisible());
        myWindow->preferences()->cancelButtonPressed();
        QVERIFY(!myWindow->preferences()->isVisible());
    }

    void aboutBoxIsShownOnDemand()
    {
        show();
        action("About Quorvex Code Generator").trigger();
        QTRY_VERIFY(myWindow->aboutBox()->isVisible());
        QCOMPARE(myWindow->aboutBox()->windowTitle(), QString("About Quorvex Code Generator"));
        myWindow->aboutBox()->accept();
        QVERIFY(!myWindow->aboutBox()->isVisible());
    }

    void outputDirectoryIsAskedForFromTheMenu()
    {
        myDialogs->setAnswers({path("out")});
        action("Choose Output Directory...").trigger();
        QCOMPARE(myDialogs->takeSeen(), QStringList("Choose an Output Directory"));
        QCOMPARE(myWindow->outputDirectory().c_str(), bytes("out/").c_str());
    }

    void severalFilesAreChosenAtOnce()
    {
        myWindow->preferences()->setIncludeStandardMIM(false);
        myProgram->model("a.xml", moduleText(objectText("Ship")));
        myDialogs->setAnswers({path("models/a.xml")});
        myWindow->slot_openFiles();
        QCOMPARE(myDialogs->takeSeen(), QStringList("Open File"));
        QCOMPARE(myWindow->windowTitle(), QString("Quorvex Code Generator - /a.xml"));
    }

    void everyFileDialogSaysWhatItIsFor()
    {
        struct DtFileDialogNote : QObject
        {
            DtFileDialogNote() { qApp->installEventFilter(this); }
            bool eventFilter(QObject* object, QEvent* event) override
            {
                const auto* const dialog = qobject_cast<QFileDialog*>(object);
                if (dialog != nullptr && event->type() == QEvent::Show)
                    text += dialog->windowTitle() + "|" + dialog->nameFilters().join(',') + "|" +
                            (dialog->directory() == QDir::current() ? "." : dialog->directory().path()) + "\n";
                return false;
            }
            QString text;
        } note;
        myWindow->slot_openFile();
        myWindow->slot_openFiles();
        myWindow->slot_newOmtProject();
        myWindow->slot_loadOmtProject();
        QCOMPARE(note.text, QString("Open File|Object Model Files (*.omt *.xml *.fdd)|.\n"
                                    "Open File|Object Model Files (*.omt *.xml *.fdd)|.\n"
                                    "New Project File|Project Files (*.qxproj)|.\n"
                                    "Open Project File|Project Files (*.qxproj)|.\n"));
        myDialogs->takeSeen();
    }

    // Only the road of "Import FOM" turns a path into Latin-1 bytes, which name no file on a system of UTF-8 names.
    void importLosesWhatIsBeyondLatin1()
    {
        const QString name = path("models/") + QString::fromUtf8("\xCE\xA9.xml");
        writeTextFile(name, moduleText(objectText("Ship")));
        myDialogs->setAnswers({name});
        myWindow->slot_openFile();
        QCOMPARE(myDialogs->takeSeen(), QStringList("Open File"));
        QCOMPARE(status(), QString("Error Loading File, please try a different file."));
        myDialogs->setAnswers({name});
        myWindow->slot_openFiles();
        QCOMPARE(myDialogs->takeSeen(), QStringList("Open File"));
        QVERIFY(itemOf(left(), "Ship") != nullptr);
    }

    void projectPathsKeepTheirCharacters()
    {
        const QString name = path("models/") + QString::fromUtf8("\xCE\xA9.qxproj");
        myDialogs->setAnswers({name});
        myWindow->slot_newOmtProject();
        QCOMPARE(myDialogs->takeSeen(), QStringList("New Project File"));
        QVERIFY(QFile::exists(name));
        myWindow->closeOpenFiles();
        myDialogs->setAnswers({name});
        myWindow->slot_loadOmtProject();
        QCOMPARE(myDialogs->takeSeen(), QStringList("Open Project File"));
        QVERIFY(myWindow->omtProject() != nullptr);
        QCOMPARE(status(), QString("No Project loaded... Cannot save OMT Project.")); // of the first slot
    }

    // The page of versions

    void browserIsStartedWithThePageOfTheDeployment()
    {
        openOnOwnData();
        writeTextFile(path("data/config/deployment.xml"),
                      "<deployment><versionPage>https://versions.example/list</versionPage></deployment>");
        writeTextFile(path("home/htmlview"), "#!/bin/sh\necho \"$#:$1\" > \"$QX_SEEN\"\n");
        QFile::setPermissions(path("home/htmlview"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const DtWithEnvironment search("PATH", (bytes("home") + ":/usr/bin:/bin").c_str());
        const DtWithEnvironment seen("QX_SEEN", bytes("home/seen").c_str());
        action("Version Web Site...").trigger();
        QTRY_COMPARE(readTextFile(path("home/seen")), QByteArray("1:https://versions.example/list\n"));
        QCOMPARE(status(), QString());
    }

    void missingBrowserIsTold()
    {
        openOnOwnData();
        const DtWithEnvironment search("PATH", bytes("home").c_str());
        writeTextFile(path("data/config/deployment.xml"),
                      "<deployment><versionPage>https://versions.example/list</versionPage></deployment>");
        myWindow->launchUpdate();
        QCOMPARE(status(), QString("The program htmlview could not be started."));
    }

    void browserOfTheUserIsTheSecondChoice()
    {
        openOnOwnData();
        writeTextFile(path("data/config/deployment.xml"),
                      "<deployment><versionPage>https://versions.example/list</versionPage></deployment>");
        const DtWithEnvironment search("PATH", bytes("home").c_str());
        QDesktopServices::setUrlHandler("https", this, "takePage");
        action("Version Web Site...").trigger();
        QDesktopServices::unsetUrlHandler("https");
        QCOMPARE(myPage, QUrl("https://versions.example/list"));
        QCOMPARE(status(), QString());
    }

    // Nothing is started then, whatever there is to start.
    void missingPageIsTold()
    {
        const DtWithEnvironment search("PATH", bytes("home").c_str());
        myWindow->launchUpdate();
        QCOMPARE(status(), QString("No version page is set in ../data/config/deployment.xml."));
    }

    // Leaving

    // Runs itself in a process of its own, which leaves from inside the test.
    void exitLeavesTheProgramAndKeepsTheConfiguration()
    {
        if (qEnvironmentVariableIsSet(theQuitVariable))
        {
            const DtInDirectory work(qEnvironmentVariable(theQuitVariable) + "/bin");
            DtCodeGenInitializer initializer;
            initializer.parseConfigFile("../data/config/codeGenConfig.xml");
            DtCodeGenAppGui window(initializer, qApp, nullptr);
            window.keepPlace();
            window.show();
            initializer.setNamespaceName("harbour");
            window.slot_quitMe();
            QFAIL("still here");
        }
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(theQuitVariable, path(""));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {"TestWindowSlots", "--", QTest::currentTestFunction()});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(!process.readAllStandardOutput().contains("still here"));
        QVERIFY(readTextFile(path("data/config/customCodeGenConfig.xml")).contains("harbour"));
        QVERIFY(!filesBelow(path("home")).isEmpty()); // the window was closed, and noted its place
    }

    void configurationThatCannotBeSavedIsTold_data()
    {
        QTest::addColumn<bool>("isVisible");
        QTest::newRow("visible") << true;
        QTest::newRow("not visible") << false;
    }
    void configurationThatCannotBeSavedIsTold()
    {
        QFETCH(bool, isVisible);
        QDir().mkpath(path("data/config/customCodeGenConfig.xml")); // a directory in the way
        if (isVisible)
            show();
        QString status;
        QObject::connect(myWindow->statusBar(), &QStatusBar::messageChanged,
                         [&status](const QString& text) { status = text; });
        const DtCapture warnings(DtWarn);
        myWindow.reset();
        const QString text = "The configuration could not be saved to ../data/config/customCodeGenConfig.xml: "
                             "Is a directory";
        QCOMPARE(warnings.text(), text + "\n");
        QCOMPARE(status, text);
    }
    void configurationThatIsNotToBeSavedIsNotTold()
    {
        myProgram->initializer().setSaved(false);
        const DtCapture warnings(DtWarn);
        myWindow.reset();
        QCOMPARE(warnings.text(), QString());
        QVERIFY(!QFile::exists(path("data/config/customCodeGenConfig.xml")));
    }
};

QX_REGISTER_TEST(TestWindowSlots)
#include "testWindowSlots.moc"
