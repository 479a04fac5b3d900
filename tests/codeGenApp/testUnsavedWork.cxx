// Work that is not saved: what asks about it, and what the answers do.

#include "registerTest.h"

#include "codeGenApp/customCodeGui.h"
#include "windowFixture.h"

#include <functional>

class TestUnsavedWork : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    // A visible window with one class that is saved and one that is not.
    void changeFleet() const
    {
        loadModel(objectText("Ship", attributeText("Speed")) + objectText("Tug"));
        add("Ship");
        myWindow->saveOmtProject();
        show();
        add("Tug");
    }
    void add(const char* text) const
    {
        left().clearSelection();
        itemOf(left(), text)->setSelected(true);
        myWindow->addSelectedItems();
    }
    bool isSaved(const char* text) const { return readTextFile(path("models/p.qxproj")).contains(text); }
    void drop(const QString& file) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(20, 80), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(myWindow.get(), &enter);
        QDropEvent event(QPoint(20, 80), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(myWindow.get(), &event);
    }
    // What leaves the project behind, by name.
    std::map<QString, std::function<void()>> ways() const
    {
        return {
            {"close the window", [this] { myWindow->close(); }              },
            {"load",             [this] { myWindow->slot_loadOmtProject(); }},
            {"close the files",  [this] { myWindow->slot_closeOpenFiles(); }},
            {"drop",             [this] { drop(path("models/p.qxproj")); }  },
        };
    }
    // Whether the window still has its project with the change.
    bool isUntouched() const
    {
        return myWindow->isVisible() && !myWindow->projectFile().isEmpty() &&
               recorded() == "HLAobjectRoot.Ship HLAobjectRoot.Tug";
    }
    static QString question() { return QStringLiteral("The project p.qxproj has changes that are not saved."); }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void answerIsTaken_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("button");
        for (const auto& [way, leave] : ways())
            for (const auto button : {QMessageBox::Save, QMessageBox::Discard, QMessageBox::Cancel})
                QTest::addRow("%s %x", qPrintable(way), unsigned(button)) << way << int(button);
    }
    void answerIsTaken()
    {
        QFETCH(QString, way);
        QFETCH(int, button);
        changeFleet();
        myDialogs->setButton(QMessageBox::StandardButton(button));
        ways().at(way)();
        QCOMPARE(myDialogs->takeSeen(), QStringList(question()));
        QCOMPARE(isSaved("Tug"), button == QMessageBox::Save);
        QVERIFY(isSaved("Ship"));
        if (button == QMessageBox::Cancel)
            QVERIFY(isUntouched());
        else if (way == "close the window")
            QVERIFY(!myWindow->isVisible());
        else if (way == "close the files")
            QVERIFY(myWindow->projectFile().isEmpty());
        else
            QCOMPARE(printList(right()),
                     button == QMessageBox::Save ? QString("Objects\n Ship\n Tug\n") : QString("Objects\n Ship\n"));
    }

    // What could be imported then could not be saved.
    void importAndSaveWaitForAProjectBehindClose()
    {
        changeFleet();
        myWindow->saveOmtProject();
        QVERIFY(action("Import FOM").isEnabled() && action("Save Project").isEnabled());
        action("Close").trigger();
        QVERIFY(!action("Import FOM").isEnabled() && !action("Save Project").isEnabled());
        myWindow->loadOmtProject(DtFilename(bytes("models/p.qxproj")));
        QVERIFY(action("Import FOM").isEnabled() && action("Save Project").isEnabled());
    }

    void importAndSaveWaitForAProjectBehindALoadThatIsGivenUp()
    {
        changeFleet();
        myWindow->saveOmtProject();
        QFile::remove(path("models/m.xml"));
        myWindow->loadOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(myDialogs->takeSeen(), (QStringList{"m.xml could not be found", "Open File"}));
        QVERIFY(!action("Import FOM").isEnabled() && !action("Save Project").isEnabled());
    }

    void savedWorkIsNotAskedAbout_data()
    {
        QTest::addColumn<QString>("way");
        for (const auto& [way, leave] : ways())
            QTest::newRow(qPrintable(way)) << way;
    }
    void savedWorkIsNotAskedAbout()
    {
        QFETCH(QString, way);
        changeFleet();
        myWindow->saveOmtProject();
        ways().at(way)();
        QCOMPARE(myDialogs->takeSeen(), QStringList());
    }

    void unseenWindowAsksNothing()
    {
        changeFleet();
        myWindow->hide();
        for (const auto& [way, leave] : ways())
            leave();
        QVERIFY(!myDialogs->takeSeen().contains(question()));
        QVERIFY(!isSaved("Tug"));
    }

    void newProjectSavesWithoutAQuestion()
    {
        changeFleet();
        myWindow->slot_newOmtProject();
        QCOMPARE(myDialogs->takeSeen(), QStringList("New Project File"));
        QVERIFY(isSaved("Tug"));
    }

    // Exit ends the process, so only its return can be looked at here.
    void cancelledExitReturns()
    {
        changeFleet();
        myDialogs->setButton(QMessageBox::Cancel);
        myWindow->slot_quitMe();
        QCOMPARE(myDialogs->takeSeen(), QStringList(question()));
        QVERIFY(isUntouched());
    }

    void projectThatCannotBeSavedIsKeptOpen()
    {
        changeFleet();
        QFile::remove(path("models/p.qxproj"));
        QDir().mkpath(path("models/p.qxproj/in the way"));
        myDialogs->setButton(QMessageBox::Save);
        myWindow->close();
        QCOMPARE(myDialogs->takeSeen(), QStringList(question()));
        QVERIFY(isUntouched());
        QVERIFY2(status().endsWith(" could not be written."), qPrintable(status()));
        myWindow->hide();
    }

    void newProjectAsksWhenThePresentOneCannotBeSaved_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("cancel") << int(QMessageBox::Cancel);
        QTest::newRow("discard") << int(QMessageBox::Discard);
    }
    void newProjectAsksWhenThePresentOneCannotBeSaved()
    {
        QFETCH(int, button);
        changeFleet();
        QVERIFY(QDir().rename(path("models"), path("elsewhere")));
        myDialogs->setAnswers({path("out/new.qxproj")});
        myDialogs->setButton(QMessageBox::StandardButton(button));
        myWindow->slot_newOmtProject();
        if (button == QMessageBox::Cancel)
        {
            QCOMPARE(myDialogs->takeSeen(), QStringList(question()));
            QVERIFY(isUntouched());
        }
        else
        {
            QCOMPARE(myDialogs->takeSeen(), (QStringList{question(), "New Project File"}));
            QVERIFY(QFile::exists(path("out/new.qxproj")));
        }
        myWindow->hide();
    }

    void saveThatFailsTellsItsReason()
    {
        changeFleet();
        QVERIFY(QDir().rename(path("models"), path("elsewhere")));
        const DtCapture warnings(DtWarn);
        myWindow->saveOmtProject();
        const QString text = "Project file " + path("models/p.qxproj") + " could not be written.";
        QCOMPARE(status(), text);
        QVERIFY2(myWindow->statusBar()->toolTip().contains("No such file or directory"),
                 qPrintable(myWindow->statusBar()->toolTip()));
        QCOMPARE(warnings.text(), text + " No such file or directory\n");
        myWindow->hide();
    }

    void projectThatChangedOnDiskIsAskedAbout()
    {
        changeFleet();
        myWindow->saveOmtProject();
        QFile::remove(path("models/p.qxproj"));
        myDialogs->setButton(QMessageBox::Discard);
        QVERIFY(myWindow->close());
        QCOMPARE(myDialogs->takeSeen(), QStringList(question()));
    }

    void customCodeWindowIsAskedFirst()
    {
        changeFleet();
        myWindow->slot_itemDoubleClicked(itemOf(right(), "Ship"), 0);
        auto* const editor = myWindow->customCodeGui();
        auto* const list = editor->findChild<QTreeWidget*>();
        list->setCurrentItem(list->topLevelItem(0));
        editor->findChild<QPlainTextEdit*>("myEncEditor")->insertPlainText("// mine\n");
        myDialogs->setButton(QMessageBox::Cancel);
        QVERIFY(!myWindow->close());
        QCOMPARE(myDialogs->takeSeen(), QStringList("The document has been modified."));
        myWindow->slot_newOmtProject();
        QCOMPARE(myDialogs->takeSeen(), QStringList("The document has been modified."));
        myDialogs->setButton(QMessageBox::Discard);
        QVERIFY(myWindow->close());
        QCOMPARE(myDialogs->takeSeen(), (QStringList{"The document has been modified.", question()}));
    }
};

QX_REGISTER_TEST(TestUnsavedWork)
#include "testUnsavedWork.moc"
