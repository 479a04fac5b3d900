// Projects of the unseen window: new, saved and loaded ones.

#include "registerTest.h"

#include "codeGenApp/keepFile.h"
#include "codeGenApp/listViewManager.h"
#include "dialogWatch.h"
#include "fileGenerator/omtProject.h"
#include "foundation/fileUtils.h"
#include "omtReader/omtTree.h"
#include "scratchProgram.h"
#include "smallModels.h"

#include <filesystem>

namespace
{
// A project file over these entries of name and location, with this configuration.
QByteArray projectText(const QByteArray& files, const QByteArray& classes = QByteArray())
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<project><baseName name=\"harbour\"/><includeDir name=\"inc\"/>"
           "<classPrefix name=\"Port\"/><foms>" +
           files + "</foms><configurationRoot>" + classes +
           "<predefinedTypes><type name=\"Old\" representation=\"DtU8\"/></predefinedTypes></configurationRoot>"
           "</project>\n";
}

QByteArray fomText(const QByteArray& name, const QByteArray& location)
{
    return "<fom name=\"" + name + "\" location=\"" + location + "\"/>";
}
} // namespace

namespace
{
// Notes the name that each file dialog proposes when it comes up.
class DtFileNameWatch : public QObject
{
public:
    DtFileNameWatch() { qApp->installEventFilter(this); }
    const QStringList& seen() const { return mySeen; }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QFileDialog*>(object) : nullptr;
        if (dialog != nullptr)
            mySeen += dialog->findChild<QLineEdit*>("fileNameEdit")->text();
        return false;
    }

private:
    QStringList mySeen;
};
} // namespace

class TestWindowProject : public QObject
{
    Q_OBJECT

private:
    DtFilename file(const char* name) const { return myProgram->bytes(myProgram->path("work/") + name); }
    QByteArray text(const char* name) const { return readTextFile(myProgram->path("work/") + name); }
    DtFilename write(const char* name, const QByteArray& content) const
    {
        writeTextFile(myProgram->path("work/") + name, content);
        return file(name);
    }
    QByteArray location(const char* directory) const { return myProgram->path(directory).toUtf8(); }
    DtString module(const char* name, const char* className) const
    {
        return myProgram->model(name, moduleText(objectText(className), interactionText(className)));
    }
    QString status() const { return myWindow->statusBar()->currentMessage(); }
    bool isEnabled(const char* action) const
    {
        for (const QAction* each : myWindow->findChildren<QAction*>())
            if (each->text() == action)
                return each->isEnabled();
        qFatal("no action %s", action);
    }
    QString actions() const // those that need a project
    {
        return QString(isEnabled("Save Project") ? "save " : "") + (isEnabled("Import FOM") ? "import" : "");
    }
    QString readClasses(const QByteArray& stem) const // letters of the classes of that stem in the tree
    {
        QString letters;
        for (const char letter : {'A', 'B'})
            if (myWindow->tree()->getObjectClassNode(("HLAobjectRoot." + stem + letter).constData()) != nullptr)
                letters += QLatin1Char(letter);
        return letters;
    }
    int topItems(bool right) const
    {
        const DtListViewManager& manager = *myWindow->listViewManager();
        return (right ? manager.rightListView() : manager.leftListView())->topLevelItemCount();
    }

    DtScratchTree myTree;
    std::unique_ptr<DtScratchProgram> myProgram;
    std::unique_ptr<DtCodeGenAppGui> myWindow;
    std::unique_ptr<DtDialogWatch> myDialogs;

private Q_SLOTS:
    void init()
    {
        myProgram = std::make_unique<DtScratchProgram>(myTree);
        QDir().mkpath(myProgram->path("work"));
        myWindow = myProgram->makeWindow();
        myDialogs = std::make_unique<DtDialogWatch>();
    }
    void cleanup()
    {
        QCOMPARE(myDialogs->takeSeen(), QStringList());
        myDialogs.reset();
        myWindow.reset();
        myProgram.reset();
    }

    // New projects

    void projectActionsWaitForAProject()
    {
        QVERIFY(myWindow->omtProject() == nullptr && !myWindow->isValidProject());
        QCOMPARE(actions(), QString());
    }

    void newProjectIsWrittenAtOnce()
    {
        myWindow->setOutputDirectory(myProgram->path("out/"));
        myWindow->newOmtProject(file("port.v2.qxproj"));
        QVERIFY(text("port.v2.qxproj").contains("<baseName name=\"port.v2\"/>"));
        QVERIFY(text("port.v2.qxproj").contains("<type name=\"HLAinteger32BE\" representation=\"DtInt32\"/>"));
        QVERIFY(myWindow->omtProject() != nullptr);
        QCOMPARE(myWindow->projectFile().c_str(), file("port.v2.qxproj").c_str());
        QCOMPARE(actions(), QString("save import"));
        QCOMPARE(myWindow->outputDirectory().c_str(), "");
        QCOMPARE(DtDataTypeMapper::instance()->quorvexType("HLAinteger32BE").c_str(), "DtInt32");
        QVERIFY(!myWindow->isValidProject()); // only a load makes one valid
    }

    void newProjectStartsWithoutFilesAndSelection()
    {
        myWindow->newOmtProject(file("old.qxproj"));
        myWindow->loadFile(module("a.xml", "Ship"), "");
        myWindow->addAllObjectInteractions();
        QVERIFY(topItems(true) > 0);
        myWindow->newOmtProject(file("p.qxproj"));
        QVERIFY(myWindow->loadedFiles().empty());
        QCOMPARE(topItems(false) + topItems(true), 0);
        QVERIFY(myWindow->omtProject()->getObjects().empty());
        QVERIFY(text("p.qxproj").contains("<foms/>"));
    }

    void titleOfAVisibleWindowForgetsTheModelOfTheProjectBefore()
    {
        const QString noFile = "Quorvex Code Generator - No File Loaded";
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->show();
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        QVERIFY(myWindow->windowTitle() != noFile);
        myWindow->newOmtProject(file("q.qxproj"));
        QCOMPARE(myWindow->windowTitle(), noFile);
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        write("empty.qxproj", projectText(QByteArray()));
        myWindow->loadOmtProject(file("empty.qxproj"));
        QCOMPARE(myWindow->windowTitle(), noFile);
    }

    void replacedProjectFilesAreKeptUnderNumbers()
    {
        for (const char* old : {"first", "second", "second", "third"})
        {
            write("p.qxproj", old);
            myWindow->newOmtProject(file("p.qxproj"));
        }
        QCOMPARE(text("p.qxproj~"), QByteArray("first"));
        QCOMPARE(text("p.qxproj~2~"), QByteArray("second")); // once, for the newest copy was equal
        QCOMPARE(text("p.qxproj~3~"), QByteArray("third"));
        QCOMPARE(filesBelow(myProgram->path("work")).size(), 4);
        QVERIFY(text("p.qxproj").startsWith("<?xml"));
    }

    void olderCopyDoesNotCountAsKept()
    {
        for (const char* old : {"first", "second", "first"})
        {
            write("p.qxproj", old);
            QVERIFY(DtKeepFile(file("p.qxproj")));
        }
        QCOMPARE(text("p.qxproj~3~"), QByteArray("first"));
    }

    void nothingToKeepIsNoFailure()
    {
        QVERIFY(DtKeepFile(file("p.qxproj")));
        QCOMPARE(filesBelow(myProgram->path("work")), QStringList());
    }

    void copyThatCannotBeKeptIsTold()
    {
        QDir().mkpath(myProgram->path("work/p.qxproj"));
        const DtCapture warnings(DtWarn);
        myWindow->newOmtProject(file("p.qxproj"));
        QVERIFY(warnings.text().contains(QString("Cannot keep a copy of project file ") + file("p.qxproj").c_str()));
        QVERIFY(QFileInfo(myProgram->path("work/p.qxproj")).isDir());
    }

    void projectThatCannotBeKeptIsNotWrittenOver()
    {
        const QByteArray name = QByteArray(241, 'n') + ".qxproj"; // leaves no room for the ending of a copy
        write(name.constData(), "the only one");
        const DtCapture warnings(DtWarn);
        myWindow->newOmtProject(file(name.constData()));
        QVERIFY(warnings.text().contains("Cannot keep a copy of project file "));
        QVERIFY(status().endsWith(", so it is not written."));
        myWindow->saveOmtProject();
        QCOMPARE(text(name.constData()), QByteArray("the only one"));
    }

    // Saving

    void savingNeedsAProject()
    {
        const DtCapture warnings(DtWarn);
        myWindow->saveOmtProject();
        QCOMPARE(status(), QString("No Project loaded... Cannot save OMT Project."));
        QCOMPARE(warnings.text(), QString("No Project loaded... Cannot save OMT Project.\n"));
    }

    void savedProjectHoldsFilesSelectionAndPreferences()
    {
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->loadFile(module("a.xml", "Ship"), "");
        myWindow->addAllObjectInteractions();
        myWindow->setIncludeDirectory("inc");
        myWindow->setClassPrefix("Port");
        myWindow->slot_saveOmtProject();
        const QByteArray saved = text("p.qxproj");
        QVERIFY(saved.contains("<fom name=\"a.xml\" location=\"" + location("models/") + "\"/>"));
        QVERIFY(saved.contains("<objectClass name=\"HLAobjectRoot.Ship\" rename=\"\""));
        QVERIFY(saved.contains("<interactionClass name=\"HLAinteractionRoot.HLAmanager\""));
        QVERIFY(saved.contains("<includeDir name=\"inc\"/>"));
        QVERIFY(saved.contains("<classPrefix name=\"Port\"/>"));
        QCOMPARE(status(), QString());
    }

    void closedProjectIsNotWrittenAgain()
    {
        myWindow->newOmtProject(file("p.qxproj"));
        write("p.qxproj", "as it was");
        myWindow->closeOpenFiles();
        myWindow->saveOmtProject();
        QCOMPARE(status(), QString("No Project loaded... Cannot save OMT Project."));
        QCOMPARE(text("p.qxproj"), QByteArray("as it was"));
    }

    // Loading

    void savedProjectLoadsAgain()
    {
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->loadFile(module("a.xml", "Ship"), "");
        myWindow->addAllObjectInteractions();
        myWindow->saveOmtProject();
        const QByteArray saved = text("p.qxproj");

        myWindow = myProgram->makeWindow();
        myWindow->setOutputDirectory(myProgram->path("out/"));
        myWindow->loadOmtProject(file("p.qxproj"));
        QVERIFY(myWindow->isValidProject() && myWindow->isFileLoaded());
        QCOMPARE(myWindow->projectFile().c_str(), file("p.qxproj").c_str());
        QCOMPARE(myWindow->loadedFiles().size(), std::size_t(1));
        QCOMPARE(topItems(true), 2);
        QCOMPARE(actions(), QString("save import"));
        QCOMPARE(myWindow->outputDirectory().c_str(), "");
        myWindow->saveOmtProject();
        QCOMPARE(text("p.qxproj"), saved);
    }

    void projectWithSeveralFilesLoadsAgain()
    {
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->loadFiles({
            {module("a.xml", "Ship"), ""},
            {module("b.xml", "Tug"),  ""}
        });
        myWindow->addAllObjectInteractions();
        myWindow->saveOmtProject();
        const QByteArray saved = text("p.qxproj");
        QVERIFY(saved.contains("<fom name=\"HLAstandardMIM.xml\" location=\"\"/>")); // found without a file

        myWindow = myProgram->makeWindow();
        myWindow->loadOmtProject(file("p.qxproj"));
        QVERIFY(myWindow->isValidProject());
        QCOMPARE(myWindow->windowTitle(), QString("Quorvex Code Generator - /a.xml/b.xml/HLAstandardMIM.xml"));
        myWindow->saveOmtProject();
        QCOMPARE(text("p.qxproj"), saved);
    }

    void reopenedProjectOfSeveralFilesTakesAFurtherOne()
    {
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->loadFiles({
            {module("a.xml", "Ship"), ""},
            {module("b.xml", "Tug"),  ""}
        });
        myWindow->saveOmtProject();

        myWindow = myProgram->makeWindow();
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(myWindow->loadFile(module("c.xml", "Buoy"), ""), 1);
        QCOMPARE(status(), QString());
        QVERIFY(myWindow->tree()->getObjectClassNode("HLAobjectRoot.Tug") != nullptr);
        QVERIFY(myWindow->tree()->getObjectClassNode("HLAobjectRoot.Buoy") != nullptr);
        QCOMPARE(myWindow->loadedFiles().size(), std::size_t(4));
    }

    void loadTakesOverWhatTheProjectSays()
    {
        module("a.xml", "Ship");
        write("p.qxproj", projectText(fomText("a.xml", location("models")),
                                      "<objectClass name=\"HLAobjectRoot.Ship\" rename=\"Vessel\"/>"
                                      "<objectClass name=\"HLAobjectRoot.Gone\" rename=\"\"/>"));
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(myWindow->preferences()->includeName().c_str(), "inc");
        QCOMPARE(myWindow->preferences()->prefixName().c_str(), "Port");
        QCOMPARE(DtOMTEnvWriter::prefixName().c_str(), "Port");
        QCOMPARE(myWindow->omtProject()->baseName().c_str(), "harbour");
        QCOMPARE(myWindow->omtProject()->getRenameForObject("HLAobjectRoot.Ship").c_str(), "Vessel");
        QCOMPARE(topItems(true), 1);
        QCOMPARE(DtDataTypeMapper::instance()->quorvexType("Old").c_str(), "DtU8");
        QCOMPARE(DtDataTypeMapper::instance()->quorvexType("HLAinteger32BE").c_str(), ""); // the whole table
        myWindow->saveOmtProject();
        QVERIFY(text("p.qxproj").contains("<baseName name=\"harbour\"/>"));
        QVERIFY(text("p.qxproj").contains("HLAobjectRoot.Gone")); // no class of the model, but the user's choice
    }

    void extensionIsAddedWhenTheFileIsMissing()
    {
        module("a.xml", "Ship");
        write("p.qxproj", projectText(fomText("a.xml", location("models"))));
        myWindow->loadOmtProject(file("p"));
        QCOMPARE(myWindow->projectFile().c_str(), file("p.qxproj").c_str());
        myWindow->loadOmtProject(file("p.xml")); // in place of another one
        QCOMPARE(myWindow->projectFile().c_str(), file("p.qxproj").c_str());
        write("p", projectText(fomText("a.xml", location("models"))));
        myWindow->loadOmtProject(file("p")); // a file that exists keeps its name
        QCOMPARE(myWindow->projectFile().c_str(), file("p").c_str());
    }

    void emptyPathLoadsThePresentProjectAgain()
    {
        module("a.xml", "Ship");
        write("p.qxproj", projectText(fomText("a.xml", location("models"))));
        myWindow->loadOmtProject(file("p.qxproj"));
        myWindow->omtProject()->setBaseName("changed");
        myWindow->slot_loadOmtProject();
        QCOMPARE(myWindow->omtProject()->baseName().c_str(), "harbour");
        QCOMPARE(myWindow->projectFile().c_str(), file("p.qxproj").c_str());
    }

    void emptyPathWithoutAProjectEndsUnattended()
    {
        const DtCapture warnings(DtWarn);
        myWindow->loadOmtProject(DtFilename());
        QVERIFY(myWindow->omtProject() == nullptr);
        QCOMPARE(warnings.text(), QString("Open Project File\n"));
    }

    void fileThatCannotBeOpenedLeavesNoProject_data()
    {
        QTest::addColumn<bool>("isDirectory");
        QTest::newRow("missing") << false;
        QTest::newRow("directory") << true;
    }
    void fileThatCannotBeOpenedLeavesNoProject()
    {
        QFETCH(bool, isDirectory);
        if (isDirectory)
            QDir().mkpath(myProgram->path("work/none.qxproj"));
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->loadFile(module("a.xml", "Ship"), "");
        myWindow->addAllObjectInteractions();
        myWindow->setValidProject(true);
        write("p.qxproj", "as it was");
        const DtCapture warnings(DtWarn);
        myWindow->loadOmtProject(file("none.qxproj"));
        const QString expected = QString("Project file %1 could not be opened.").arg(file("none.qxproj").c_str());
        QCOMPARE(status(), expected);
        QCOMPARE(warnings.text(), expected + "\n");
        QVERIFY(myWindow->omtProject() == nullptr && !myWindow->isValidProject());
        QCOMPARE(actions(), QString());
        QCOMPARE(topItems(false) + topItems(true), 0);
        myWindow->saveOmtProject();
        QCOMPARE(text("p.qxproj"), QByteArray("as it was"));
        myWindow->addAllObjectInteractions();
        myWindow->newOmtProject(file("new.qxproj"));
        QCOMPARE(actions(), QString("save import"));
    }

    void badContentGivesASilentEmptyProject_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no XML") << QByteArray("no project");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("foreign root") << QByteArray("<other/>");
    }
    void badContentGivesASilentEmptyProject()
    {
        QFETCH(QByteArray, content);
        write("bad.qxproj", content);
        const DtCapture warnings(DtWarn);
        myWindow->loadOmtProject(file("bad.qxproj"));
        QCOMPARE(warnings.text(), QString());
        QCOMPARE(status(), QString());
        QVERIFY(myWindow->omtProject() != nullptr && !myWindow->isValidProject());
        QVERIFY(myWindow->omtProject()->getObjects().empty() && myWindow->omtProject()->predefinedTypes().empty());
        QVERIFY(!myWindow->isFileLoaded());
        myWindow->saveOmtProject();
        QCOMPARE(text("bad.qxproj"), content);
    }

    void projectWithoutFilesEndsTheLoad()
    {
        myWindow->newOmtProject(file("old.qxproj"));
        const QByteArray old = text("old.qxproj");
        write("p.qxproj", projectText(QByteArray()));
        const QByteArray before = text("p.qxproj");
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(myWindow->omtProject()->baseName().c_str(), "harbour");
        QVERIFY(!myWindow->isValidProject());
        QCOMPARE(DtDataTypeMapper::instance()->quorvexType("Old").c_str(), "DtU8");
        myWindow->saveOmtProject(); // of no file: neither the old project nor this one is written
        QCOMPARE(text("old.qxproj"), old);
        QCOMPARE(text("p.qxproj"), before);
    }

    void projectWithoutFilesIsOpenInAVisibleWindow()
    {
        myWindow->show();
        write("p.qxproj", projectText(QByteArray()));
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(status(), QString("Project p.qxproj read: it has no models"));
        QCOMPARE(actions(), QString("save import"));
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        myWindow->saveOmtProject();
        QVERIFY(text("p.qxproj").contains("a.xml") && text("p.qxproj").contains("harbour"));
        write("p.qxproj", projectText(QByteArray()));
        myWindow->loadOmtProject(DtFilename());
        QCOMPARE(status(), QString("Project p.qxproj read again: it has no models"));
        QVERIFY(myWindow->loadedFiles().empty());
    }

    void emptyProjectThatIsReadAgainCanBeSaved()
    {
        myWindow->newOmtProject(file("new.qxproj"));
        myWindow->loadOmtProject(DtFilename()); // the present one, without a dialog
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        myWindow->saveOmtProject();
        QVERIFY(text("new.qxproj").contains("a.xml"));
    }

    void damagedProjectThatIsReadAgainIsNotWrittenOver_data()
    {
        QTest::addColumn<QByteArray>("damaged");
        QTest::newRow("not XML") << QByteArray("<project><configurationRoot><objectClass name=\"R.A\"></project>");
        QTest::newRow("other root") << QByteArray("<projects/>");
        QTest::newRow("empty") << QByteArray();
    }
    void damagedProjectThatIsReadAgainIsNotWrittenOver()
    {
        QFETCH(QByteArray, damaged);
        module("a.xml", "Ship");
        write("p.qxproj", projectText(fomText("a.xml", location("models"))));
        myWindow->loadOmtProject(file("p.qxproj"));
        write("p.qxproj", damaged);
        myWindow->loadOmtProject(DtFilename()); // the present one, without a dialog
        myWindow->saveOmtProject();
        QCOMPARE(text("p.qxproj"), damaged);
    }

    void earlierFilesAreForgottenByALoad()
    {
        myWindow->loadFile(module("other.xml", "Tug"), "");
        module("a.xml", "Ship");
        write("p.qxproj", projectText(fomText("a.xml", location("models"))));
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(myWindow->loadedFiles().size(), std::size_t(1));
        QVERIFY(myWindow->tree()->getObjectClassNode("HLAobjectRoot.Tug") == nullptr);
        QVERIFY(myWindow->tree()->getObjectClassNode("HLAobjectRoot.HLAmanager") != nullptr); // a first load again
    }

    // A visible window looks at the file ahead of all else.
    void fileThatIsNoProjectClosesNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expected");
        QTest::newRow("model") << moduleText(objectText("Ship")) << "%1 is no project file, and is not loaded.";
        QTest::newRow("no XML") << QByteArray("no project") << "%1 is no project file, and is not loaded.";
        QTest::newRow("missing") << QByteArray() << "Project file %1 could not be opened.";
    }
    void fileThatIsNoProjectClosesNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, expected);
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->loadFile(module("a.xml", "Ship"), "");
        myWindow->addAllObjectInteractions();
        if (!content.isEmpty())
            write("other.qxproj", content);
        myWindow->show();
        myWindow->loadOmtProject(file("other.qxproj"));
        QCOMPARE(status(), expected.arg(file("other.qxproj").c_str()));
        QCOMPARE(myWindow->projectFile().c_str(), file("p.qxproj").c_str());
        QVERIFY(myWindow->isFileLoaded() && topItems(true) > 0);
        QCOMPARE(actions(), QString("save import"));
    }

    // Where the model files are

    void missingModelEndsTheLoadUnattended()
    {
        myWindow->newOmtProject(file("old.qxproj"));
        const QByteArray old = text("old.qxproj");
        write("p.qxproj", projectText(fomText("none.xml", "nowhere/")));
        const QByteArray before = text("p.qxproj");
        const DtCapture warnings(DtWarn);
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(warnings.text(), QString("none.xml could not be found\nOpen File\n"));
        QCOMPARE(myWindow->omtProject()->baseName().c_str(), "harbour"); // the new project is in place
        QVERIFY(!myWindow->isValidProject() && !myWindow->isFileLoaded());
        myWindow->saveOmtProject();
        QCOMPARE(text("old.qxproj"), old);
        QCOMPARE(text("p.qxproj"), before);
    }

    // A project file holds names in UTF-8 alone, and takes others for Latin-1.
    void modelsWithNamesInLatin1AreFoundAgain_data()
    {
        QTest::addColumn<QByteArray>("directory"); // beside the project
        QTest::addColumn<QList<QByteArray>>("names");
        QTest::newRow("name") << QByteArray("models/") << QList<QByteArray>{"caf\xe9.xml"};
        QTest::newRow("directory") << QByteArray("d\xe9p\xf4t/") << QList<QByteArray>{"a.xml"};
        QTest::newRow("both, in two encodings") << QByteArray("d\xc3\xa9p\xf4t/") << QList<QByteArray>{"caf\xe9.xml"};
        QTest::newRow("two models") << QByteArray("models/") << QList<QByteArray>{"caf\xe9.xml", "th\xc3\xa9.xml"};
    }
    void modelsWithNamesInLatin1AreFoundAgain()
    {
        QFETCH(QByteArray, directory);
        QFETCH(QList<QByteArray>, names);
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(file("p.qxproj"));
        std::vector<DtCodeGenAppGui::DtModelFile> models;
        for (const QByteArray& name : names)
        {
            const DtFilename path((myProgram->path("work/").toUtf8() + directory + name).constData());
            DtFilename parent(path);
            parent.stripFilename();
            QVERIFY(DtMakeDirectory(parent));
            const QByteArray ship = "Ship" + QByteArray::number(int(models.size()));
            QVERIFY(DtReplaceFile(path, moduleText(objectText(ship)).toStdString()));
            models.emplace_back(path, "");
        }
        QCOMPARE(models.size() > 1 ? myWindow->loadFiles(models) : myWindow->loadFile(models.front().first, ""), 1);
        const auto loaded = myWindow->loadedFiles();
        myWindow->saveOmtProject();
        const DtCapture warnings(DtWarn);
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(warnings.text(), QString());
        QVERIFY(myWindow->isValidProject());
        QVERIFY(myWindow->loadedFiles() == loaded);
        for (std::size_t index = 0; index < models.size(); ++index)
            QVERIFY(myWindow->tree()->getObjectClassNode("HLAobjectRoot.Ship" + DtString(int(index))) != nullptr);
        std::filesystem::remove_all(myProgram->path("work").toStdString()); // Qt would not find all of it
    }

    void userGivesAnotherFileForAMissingModel()
    {
        module("b.xml", "Tug");
        write("p.qxproj", projectText(fomText("none.xml", "nowhere/")));
        myWindow->setUnattended(false);
        myDialogs->setAnswers({myProgram->path("models/b.xml")});
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(myDialogs->takeSeen(), (QStringList{"none.xml could not be found", "Open File"}));
        QVERIFY(myWindow->isValidProject());
        QCOMPARE(myWindow->loadedFiles().front().first.c_str(), "b.xml");
        QCOMPARE(myWindow->loadedFiles().front().second.c_str(), location("models/").constData());
    }

    void userCancelsTheSearchForAMissingModel()
    {
        write("p.qxproj", projectText(fomText("none.xml", "nowhere/") + fomText("more.xml", "nowhere/")));
        myWindow->setUnattended(false);
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(myDialogs->takeSeen(), (QStringList{"none.xml could not be found", "Open File"}));
        QVERIFY(myWindow->omtProject() != nullptr && !myWindow->isValidProject());
        QCOMPARE(status(), QString());
    }

    void missingModelIsNamedInTheDialogAndBehindACancel()
    {
        write("p.qxproj", projectText(fomText("none.xml", "nowhere/")));
        myWindow->setUnattended(false);
        myWindow->show();
        const DtFileNameWatch names;
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(myDialogs->takeSeen(), (QStringList{"none.xml could not be found", "Open File"}));
        QCOMPARE(names.seen(), QStringList("none.xml"));
        QCOMPARE(status(),
                 QString("Project file %1 is not loaded: none.xml could not be found.").arg(file("p.qxproj").c_str()));
    }

    void modelIsFoundByEachRoad_data()
    {
        QTest::addColumn<QString>("present"); // files in the scratch directory, each with a class of its own
        QTest::addColumn<QString>("location");
        QTest::addColumn<QString>("expected"); // directory of the file that is read
        const struct
        {
            const char* name;
            QString present, location, expected;
        } theRows[] = {
            {"location",                                 "bin/sub/a.xml",            "sub/",  "sub/"  },
            {"location wins over the working directory", "bin/sub/a.xml bin/a.xml",  "sub",   "sub/"  },
            {"location wins over the project",           "bin/sub/a.xml work/a.xml", "sub",   "sub/"  },
            {"working directory",                        "bin/a.xml work/a.xml",     "gone/", ""      },
            {"beside the project",                       "work/a.xml",               "gone/", "%work/"},
            {"below RTI_CONFIG",                         "search/a.xml",             "gone/", ""      },
            {"empty location",                           "bin/a.xml",                "",      ""      },
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << row.present << row.location << row.expected;
    }
    void modelIsFoundByEachRoad()
    {
        QFETCH(QString, present);
        QFETCH(QString, location);
        QFETCH(QString, expected);
        for (const QString& name : present.split(' '))
            writeTextFile(myProgram->path("") + name, moduleText(objectText("Ship")));
        const DtWithEnvironment search("RTI_CONFIG", myProgram->path("search").toUtf8().constData());
        write("p.qxproj", projectText(fomText("a.xml", location.toUtf8())));
        myWindow->loadOmtProject(file("p.qxproj"));
        QVERIFY(myWindow->isValidProject() && myWindow->isFileLoaded());
        QCOMPARE(QString(myWindow->loadedFiles().front().second.c_str()), expected.replace("%", myProgram->path("")));
    }

    void locatedModelsWinOverFilesOfTheWorkingDirectory_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("isAbsolute");
        QTest::newRow("one model") << QStringList{"a.xml"} << false;
        QTest::newRow("one model, absolute location") << QStringList{"a.xml"} << true;
        QTest::newRow("two models") << QStringList{"a.xml", "b.xml"} << false;
        QTest::newRow("two models, absolute location") << QStringList{"a.xml", "b.xml"} << true;
    }
    void locatedModelsWinOverFilesOfTheWorkingDirectory()
    {
        QFETCH(QStringList, names);
        QFETCH(bool, isAbsolute);
        const QByteArray where = isAbsolute ? location("bin/sub/") : QByteArray("sub/");
        QByteArray entries;
        for (const QString& name : names)
        {
            const QByteArray letter = name.left(1).toUpper().toLatin1();
            writeTextFile(myProgram->path("bin/sub/") + name, moduleText(objectText("Located" + letter)));
            writeTextFile(myProgram->path("bin/") + name, moduleText(objectText("Stray" + letter)));
            entries += fomText(name.toLatin1(), where);
        }
        write("p.qxproj", projectText(entries));
        for (int load = 0; load < 2; ++load) // the project as written by hand, then as the program saves it
        {
            myWindow = myProgram->makeWindow();
            myWindow->loadOmtProject(file("p.qxproj"));
            QCOMPARE(readClasses("Stray"), QString());
            QCOMPARE(readClasses("Located"), names.size() == 1 ? QString("A") : QString("AB"));
            QCOMPARE(myWindow->loadedFiles().size(), static_cast<std::size_t>(names.size()));
            myWindow->saveOmtProject();
            QVERIFY(text("p.qxproj").contains(fomText("a.xml", where)));
            QCOMPARE(text("p.qxproj").contains(fomText("b.xml", where)), names.size() == 2);
            QCOMPARE(text("p.qxproj").count("<fom "), names.size());
        }
    }

    void directoryIsNoModelFile()
    {
        QDir().mkpath(myProgram->path("bin/a.xml"));
        QVERIFY(!myWindow->findFile(DtFilename("a.xml")));
        QVERIFY(!myWindow->findFile(DtFilename()));
        QVERIFY(myWindow->findFile(DtFilename("HLAstandardMIM.xml")));
        QVERIFY(!QFile::exists("HLAstandardMIM.xml"));
    }

    void modelThatFailsToLoadLeavesTheProjectUsable()
    {
        myProgram->model("a.xml", "no model");
        write("p.qxproj", projectText(fomText("a.xml", location("models")),
                                      "<objectClass name=\"HLAobjectRoot.Ship\" rename=\"Vessel\"/>"));
        myWindow->loadOmtProject(file("p.qxproj"));
        QCOMPARE(status(), QString("Error Loading File, please try a different file."));
        QVERIFY(myWindow->isValidProject() && !myWindow->isFileLoaded());
        myWindow->saveOmtProject(); // keeps files and selection
        QVERIFY(text("p.qxproj").contains("<fom name=\"a.xml\" location=\"" + location("models/") + "\"/>"));
        QVERIFY(text("p.qxproj").contains("rename=\"Vessel\""));
    }

    // What the user starts

    void newProjectGetsTheExtension()
    {
        myDialogs->setAnswers({myProgram->path("work/chosen")});
        myWindow->slot_newOmtProject();
        QCOMPARE(myDialogs->takeSeen(), QStringList("New Project File"));
        QCOMPARE(myWindow->projectFile().c_str(), file("chosen.qxproj").c_str());
        QVERIFY(QFile::exists(myProgram->path("work/chosen.qxproj")));
    }

    void presentProjectIsSavedAheadOfANewOne()
    {
        myWindow->newOmtProject(file("p.qxproj"));
        myWindow->loadFile(module("a.xml", "Ship"), "");
        myWindow->slot_newOmtProject();
        QCOMPARE(myDialogs->takeSeen(), QStringList("New Project File"));
        QVERIFY(text("p.qxproj").contains("<fom name=\"a.xml\"")); // saved although the user cancelled
        QCOMPARE(myWindow->projectFile().c_str(), file("p.qxproj").c_str());
    }

    void chosenProjectIsLoaded()
    {
        module("a.xml", "Ship");
        write("p.qxproj", projectText(fomText("a.xml", location("models"))));
        myWindow->setUnattended(false);
        myDialogs->setAnswers({myProgram->path("work/p.qxproj")});
        myWindow->slot_loadOmtProject();
        QCOMPARE(myDialogs->takeSeen(), QStringList("Open Project File"));
        QVERIFY(myWindow->isValidProject());
    }
};

QX_REGISTER_TEST(TestWindowProject)
#include "testWindowProject.moc"
