// Loading and merging of model files by the unseen window.

#include "registerTest.h"

#include "codeGenApp/listViewManager.h"
#include "dialogWatch.h"
#include "omtReader/omtTree.h"
#include "printedLists.h"
#include "scratchProgram.h"
#include "smallModels.h"

namespace
{
using DtModels = std::vector<DtCodeGenAppGui::DtModelFile>;

const char theFailure[] = "Error Loading File, please try a different file.";

// Names of the classes right below a label of the left list.
QString classesBelow(QTreeWidgetItem* label)
{
    if (label == nullptr)
        return "no list";
    QStringList names;
    for (int index = 0; index < label->childCount(); ++index)
        names += label->child(index)->text(0);
    return names.join(' ');
}
QString leftObjects(const DtCodeGenAppGui& window)
{
    return classesBelow(window.listViewManager()->leftObjectList());
}
QString leftInteractions(const DtCodeGenAppGui& window)
{
    return classesBelow(window.listViewManager()->leftInteractionList());
}

// Names and directories, one pair a line.
QString loaded(const DtCodeGenAppGui& window)
{
    QString text;
    for (const auto& [name, directory] : window.loadedFiles())
        text += QString("%1|%2\n").arg(QString(name.c_str()), QString(directory.c_str()));
    return text;
}

// The left list's classes come and go with the tree.
bool isEmpty(const DtCodeGenAppGui& window)
{
    return window.tree() == nullptr && window.listViewManager()->leftListView()->topLevelItemCount() == 0;
}
} // namespace

class TestWindowModels : public QObject
{
    Q_OBJECT

private:
    DtString module(const char* file, const char* name) const
    {
        return myProgram->model(file, moduleText(objectText(name), interactionText(name)));
    }
    QString status() const { return myWindow->statusBar()->currentMessage(); }
    QString models(const QString& text) const { return QString(text).replace("%", myProgram->path("models/")); }
    void withoutMim() const { myWindow->preferences()->setIncludeStandardMIM(false); }

    DtScratchTree myTree;
    std::unique_ptr<DtScratchProgram> myProgram;
    std::unique_ptr<DtCodeGenAppGui> myWindow;
    std::unique_ptr<DtDialogWatch> myDialogs;

private Q_SLOTS:
    void init()
    {
        myProgram = std::make_unique<DtScratchProgram>(myTree);
        QDir().mkpath(myProgram->path("models"));
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

    void singleLoadReadsTheManagementModelAhead()
    {
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("HLAmanager Ship"));
        QCOMPARE(leftInteractions(*myWindow), QString("HLAmanager Ship"));
        QVERIFY(myWindow->isFileLoaded());
        QVERIFY(DtOMTEnvWriter::MIMincluded());
        QCOMPARE(loaded(*myWindow), models("a.xml|%\n"));
        QCOMPARE(myWindow->windowTitle(), models("Quorvex Code Generator - %a.xml"));
        QCOMPARE(int(myWindow->tree()->hlaVersion()), 3);
        QCOMPARE(status(), QString());
    }

    void severalFilesHaveTheManagementModelBehind()
    {
        QCOMPARE(myWindow->loadFiles({
                     {module("a.xml", "Ship"), ""},
                     {module("b.xml", "Tug"),  ""}
        }),
                 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug HLAmanager"));
        QCOMPARE(leftInteractions(*myWindow), QString("Ship Tug HLAmanager"));
        QCOMPARE(loaded(*myWindow), models("a.xml|%\nb.xml|%\nHLAstandardMIM.xml|\n"));
        QCOMPARE(myWindow->windowTitle(), QString("Quorvex Code Generator - /a.xml/b.xml/HLAstandardMIM.xml"));
        QVERIFY(myWindow->isFileLoaded());
    }

    void optionLeavesTheManagementModelOut()
    {
        withoutMim();
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship"));
        QVERIFY(!DtOMTEnvWriter::MIMincluded());
        QCOMPARE(myWindow->loadFiles({
                     {module("a.xml", "Ship"), ""},
                     {module("b.xml", "Tug"),  ""}
        }),
                 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug"));
        QCOMPARE(loaded(*myWindow), models("a.xml|%\nb.xml|%\n"));
    }

    void listedManagementModelStaysInItsPlace()
    {
        const DtModels files = {
            {module("a.xml",       "Ship"), ""},
            {"HLAstandardMIM.xml", ""     },
            {module("b.xml",              "Tug"),      ""  }
        };
        QCOMPARE(myWindow->loadFiles(files), 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship HLAmanager Tug"));
        QCOMPARE(loaded(*myWindow), models("a.xml|%\nHLAstandardMIM.xml|\nb.xml|%\n"));
    }

    void managementModelInsideTheProgramCannotStandFirst()
    {
        QCOMPARE(myWindow->loadFiles({
                     {"HLAstandardMIM.xml", ""},
                     { module("a.xml",             "Ship"), ""}
        }),
                 0);
        QCOMPARE(status(), QString(theFailure)); // the first file decides the format, and this one is none
    }

    void fileWithTheManagementModelInItsNameCountsAsIt()
    {
        QCOMPARE(myWindow->loadFiles({
                     {module("myHLAstandardMIM.xml", "Ship"), ""},
                     {module("b.xml",                "Tug"),  ""}
        }),
                 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug"));
    }

    void joinedPathIsOpened()
    {
        module("a.xml", "Ship");
        module("b.xml", "Tug");
        const DtString directory = myProgram->bytes(myProgram->path("models"));
        QCOMPARE(myWindow->loadFile("a.xml", directory), 1);
        QCOMPARE(loaded(*myWindow), models("a.xml|%\n"));
        QCOMPARE(myWindow->windowTitle(), models("Quorvex Code Generator - %a.xml"));
        QCOMPARE(myWindow->loadFiles({
                     {"a.xml", directory},
                     {"b.xml", directory}
        }),
                 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug HLAmanager"));
    }

    void searchDirectoryOfTheEnvironmentIsUsed()
    {
        module("a.xml", "Ship");
        const DtWithEnvironment search("RTI_CONFIG", myProgram->path("models").toUtf8().constData());
        QCOMPARE(myWindow->loadFile("a.xml", ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("HLAmanager Ship"));
        QCOMPARE(loaded(*myWindow), QString("a.xml|\n"));
        QVERIFY(myWindow->findFile(DtFilename("a.xml")));
        QVERIFY(!myWindow->findFile(DtFilename("b.xml")));
    }

    void secondModuleIsMergedByReadingAllAgain()
    {
        const DtString first = module("a.xml", "Ship");
        myWindow->loadFile(first, "");
        DtOMTEnvReader* const reader = myWindow->reader();
        writeTextFile(first.c_str(), moduleText(objectText("Barge"))); // seen by the second reading
        QCOMPARE(myWindow->loadFile(module("b.xml", "Tug"), ""), 1);
        QVERIFY(reader != nullptr && myWindow->reader() != nullptr);
        // The management model is added to the first module only, and is not among the loaded files.
        QCOMPARE(leftObjects(*myWindow), QString("Barge Tug"));
        QCOMPARE(loaded(*myWindow), models("a.xml|%\nb.xml|%\n"));
        QCOMPARE(myWindow->windowTitle(), models("Quorvex Code Generator - %b.xml"));
    }

    void loadedManagementModelIsLeftOutOfAMerge()
    {
        QCOMPARE(myWindow->loadFiles({
                     {module("a.xml", "Ship"), ""},
                     {module("b.xml", "Tug"),  ""}
        }),
                 1);
        QCOMPARE(myWindow->loadFile(module("c.xml", "Buoy"), ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug Buoy"));
        QCOMPARE(loaded(*myWindow), models("a.xml|%\nb.xml|%\nHLAstandardMIM.xml|\nc.xml|%\n"));
    }

    void severalFilesSetTheFormat_data()
    {
        QTest::addColumn<bool>("withMim");
        QTest::addColumn<QByteArray>("year");
        for (const bool withMim : {true, false})
            for (const char* year : {"2010", "2025"})
                QTest::addRow("%s%s", year, withMim ? " with the management model" : "") << withMim << QByteArray(year);
    }
    // Whatever was loaded before them.
    void severalFilesSetTheFormat()
    {
        QFETCH(bool, withMim);
        QFETCH(QByteArray, year);
        const auto moduleOf = [this, &year](const char* file, const char* name)
        { return myProgram->model(file, moduleText(objectText(name), QByteArray(), year)); };
        myWindow->preferences()->setIncludeStandardMIM(withMim);
        for (const QByteArray& earlier : {QByteArray(), QByteArray(theOmtText), QByteArray("no model")})
        {
            myWindow->closeOpenFiles();
            if (!earlier.isEmpty())
                myWindow->loadFile(myProgram->model("earlier.xml", earlier), "");
            QCOMPARE(myWindow->loadFiles({
                         {moduleOf("a.xml", "Ship"), ""},
                         {moduleOf("b.xml", "Tug"),  ""}
            }),
                     1);
            QCOMPARE(myWindow->loadFile(moduleOf("c.xml", "Buoy"), ""), 1);
            QCOMPARE(leftObjects(*myWindow), QString("Ship Tug Buoy"));
        }
    }

    void managementModelAheadDoesNotSetTheFormat()
    {
        writeTextFile("HLAstandardMIM.xml", moduleText(objectText("HLAmanager")));
        QCOMPARE(myWindow->loadFiles({
                     {"HLAstandardMIM.xml", ""},
                     { module("a.xml",             "Ship"), ""}
        }),
                 1);
        QCOMPARE(myWindow->loadFile(module("b.xml", "Tug"), ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug"));
    }

    void severalFilesThatFailLeaveTheFormat()
    {
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        QCOMPARE(myWindow->loadFiles({
                     {myProgram->model("old.xml", the1516Text), ""},
                     {module("b.xml",             "Tug"),       ""}
        }),
                 0);
        QCOMPARE(myWindow->loadFile(module("c.xml", "Buoy"), ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Buoy"));
    }

    void otherFormatIsRefusedAndNothingChanges_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("OMT") << QByteArray(theOmtText);
        QTest::newRow("1516") << QByteArray(the1516Text);
        QTest::newRow("2025") << moduleText(objectText("Tug"), QByteArray(), "2025");
        QTest::newRow("none") << QByteArray("no model");
        QTest::newRow("malformed") << QByteArray("<objectModel");
    }
    void otherFormatIsRefusedAndNothingChanges()
    {
        QFETCH(QByteArray, text);
        myWindow->loadFile(module("a.xml", "Ship"), "");
        const DtOMTTree* const tree = myWindow->tree();
        QCOMPARE(myWindow->loadFile(myProgram->model("b.xml", text), ""), 0);
        QCOMPARE(status(),
                 models("Error Loading File, Protocol of %b.xml does not match those currently loaded a.xml"));
        QVERIFY(myWindow->tree() == tree && myWindow->isFileLoaded());
        QCOMPARE(leftObjects(*myWindow), QString("HLAmanager Ship"));
        QCOMPARE(loaded(*myWindow), models("a.xml|%\n"));
        QCOMPARE(myWindow->windowTitle(), models("Quorvex Code Generator - %a.xml"));
    }

    void oldFormatsLoadAlone_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("version");
        QTest::newRow("OMT") << "a.omt" << QByteArray(theOmtText) << 1;
        QTest::newRow("1516") << "a.xml" << QByteArray(the1516Text) << 2;
        QTest::newRow("OMT by its content") << "a.xml" << QByteArray(theOmtText) << 1;
        QTest::newRow("1516 by its content") << "a.fdd" << QByteArray(the1516Text) << 2;
    }
    // The option adds no management model to them, and a further file of their format does not merge.
    void oldFormatsLoadAlone()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, text);
        QFETCH(int, version);
        const DtCapture warnings(DtWarn);
        const DtString file = myProgram->model(name.toLatin1().constData(), text);
        QCOMPARE(myWindow->loadFile(file, ""), 1);
        QCOMPARE(warnings.text(), QString());
        QCOMPARE(leftObjects(*myWindow), QString("Barge"));
        QCOMPARE(leftInteractions(*myWindow), QString("Horn"));
        QCOMPARE(int(myWindow->tree()->hlaVersion()), version);
        QCOMPARE(loaded(*myWindow), models(name + "|%\n"));
        const DtString second = myProgram->model(("b" + name).toLatin1().constData(), text);
        QCOMPARE(myWindow->loadFile(second, ""), 0);
        QCOMPARE(status(), models("Error Loading File, Cannot merge non HLA1516-2010 FOMs.  %b" + name +
                                  " cannot merge with currently loaded " + name));
        QCOMPARE(leftObjects(*myWindow), QString("Barge"));
        QCOMPARE(loaded(*myWindow), models(name + "|%\n"));
    }

    void oldFormatsDoNotMerge()
    {
        const DtString old = myProgram->model("old.xml", the1516Text);
        QCOMPARE(myWindow->loadFiles({
                     {module("a.xml", "Ship"), ""},
                     {module("b.xml", "Tug"),  ""}
        }),
                 1);
        QCOMPARE(myWindow->loadFile(old, ""), 0);
        QCOMPARE(status(), models("Error Loading File, Protocol of %old.xml does not match those currently loaded "
                                  "a.xml b.xml HLAstandardMIM.xml"));
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug HLAmanager"));
        QCOMPARE(myWindow->loadFiles({
                     {old,           ""},
                     { myProgram->model("c.xml", the1516Text), ""}
        }),
                 0);
        QCOMPARE(status(), QString(theFailure));
    }

    void malformedTextModelFailsWithItsCause()
    {
        const DtCapture warnings(DtWarn);
        QCOMPARE(myWindow->loadFile(
                     myProgram->model("a.omt", "(ObjectModel (Class (Name . 5) (Attribute (Name . 3))))"), ""),
                 0);
        QCOMPARE(status(), QString(theFailure));
        QVERIFY2(warnings.text().contains("Badly formatted"), qPrintable(warnings.text()));
        QVERIFY(isEmpty(*myWindow));
    }

    void laterModelsMergeWithTheirManagementModel()
    {
        const auto later = [this](const char* file, const char* name)
        { return myProgram->model(file, moduleText(objectText(name), QByteArray(), "2025")); };
        const DtCapture warnings(DtWarn);
        QCOMPARE(myWindow->loadFile(later("a.xml", "Ship"), ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("HLAmanager Ship"));
        QCOMPARE(int(myWindow->tree()->hlaVersion()), 4);
        QVERIFY(myWindow->tree()->getEnumeratedDatatypeNode("HLAargumentType") != nullptr); // not in the model of 2010
        QCOMPARE(myWindow->loadFiles({
                     {later("a.xml", "Ship"), ""},
                     {later("b.xml", "Tug"),  ""}
        }),
                 1);
        QCOMPARE(leftObjects(*myWindow), QString("Ship Tug HLAmanager"));
        QVERIFY(myWindow->tree()->getEnumeratedDatatypeNode("HLAargumentType") != nullptr);
        QCOMPARE(warnings.text(), QString());
    }

    void failedLoadEmptiesTheLists_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no model") << QByteArray("no model");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut short") << moduleText(objectText("Ship")).left(150);
        QTest::newRow("malformed") << QByteArray("<objectModel");
    }
    void failedLoadEmptiesTheLists()
    {
        QFETCH(QByteArray, text);
        const DtString bad = myProgram->model("bad.xml", text);
        QCOMPARE(myWindow->loadFile(bad, ""), 0);
        QCOMPARE(status(), QString(theFailure));
        QVERIFY(isEmpty(*myWindow) && !myWindow->isFileLoaded() && myWindow->loadedFiles().empty());
        // After a good load too.
        QCOMPARE(myWindow->loadFiles({
                     {module("a.xml", "Ship"), ""}
        }),
                 1);
        QCOMPARE(myWindow->loadFiles({
                     {bad,     ""},
                     { module("b.xml", "Tug"), ""}
        }),
                 0);
        QCOMPARE(status(), QString(theFailure));
        QVERIFY(isEmpty(*myWindow));
        myWindow->addAllObjectInteractions();
        myWindow->generateAllFiles();
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
    }

    void failedImportOfAVisibleWindowReadsTheLoadedFilesAgain_data()
    {
        QTest::addColumn<bool>("withMim");
        QTest::addColumn<bool>("several");
        QTest::newRow("one file") << false << false;
        QTest::newRow("one file and the management model") << true << false;
        QTest::newRow("several files") << false << true;
        QTest::newRow("several files and the management model") << true << true;
    }
    void failedImportOfAVisibleWindowReadsTheLoadedFilesAgain()
    {
        QFETCH(bool, withMim);
        QFETCH(bool, several);
        myWindow->preferences()->setIncludeStandardMIM(withMim);
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/p.qxproj"))));
        const DtString first = module("a.xml", "Ship");
        const DtString second = module("b.xml", "Tug");
        const int isLoaded = several ? myWindow->loadFiles({
                                           {first,  ""},
                                           {second, ""}
        })
                                     : myWindow->loadFile(first, "");
        QCOMPARE(isLoaded, 1);
        myWindow->addAllObjectInteractions();
        const DtListViewManager& manager = *myWindow->listViewManager();
        const QString left = printList(*manager.leftListView());
        const QString right = printList(*manager.rightListView());
        const QString title = myWindow->windowTitle();
        const QString files = loaded(*myWindow);
        myWindow->show();
        // Of a module that is cut short the format is known, so it is read together with the others.
        QCOMPARE(myWindow->loadFile(
                     myProgram->model("bad.xml", moduleText(objectText("Buoy")).replace("</objectModel>", "")), ""),
                 0);
        QCOMPARE(status(), QString(theFailure));
        QCOMPARE(printList(*manager.leftListView()), left);
        QCOMPARE(printList(*manager.rightListView()), right);
        QCOMPARE(manager.leftListView()->selectedItems().size(), 0);
        QCOMPARE(myWindow->windowTitle(), title);
        QCOMPARE(loaded(*myWindow), files);
        QVERIFY(myWindow->tree() != nullptr && myWindow->tree()->getObjectClassNode("HLAobjectRoot.Ship") != nullptr);
        myWindow->setOutputDirectory(myProgram->path("out/"));
        myWindow->generateAllFiles();
        QVERIFY(QFile::exists(myProgram->path("out/cpp\\shipStateRepository.h")));
        QCOMPARE(myWindow->loadFile(module("c.xml", "Buoy"), ""), 1); // the next one is added as ever
    }

    void failedImportOfAnUnseenWindowLeavesNothing()
    {
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        QCOMPARE(myWindow->loadFile(
                     myProgram->model("bad.xml", moduleText(objectText("Buoy")).replace("</objectModel>", "")), ""),
                 0);
        QCOMPARE(status(), QString(theFailure));
        QVERIFY(isEmpty(*myWindow));
    }

    void loadedFilesThatCannotBeReadAgainLeaveNothing()
    {
        const DtString first = module("a.xml", "Ship");
        QCOMPARE(myWindow->loadFile(first, ""), 1);
        myWindow->show();
        writeTextFile(first.c_str(), moduleText(objectText("Ship")).left(150));
        QCOMPARE(myWindow->loadFile(module("b.xml", "Tug"), ""), 0);
        QCOMPARE(status(), QString(theFailure));
        QVERIFY(isEmpty(*myWindow));
        myWindow->generateAllFiles();
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
    }

    void loadedFileThatIsGoneIsNamed()
    {
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/p.qxproj"))));
        const DtString first = module("a.xml", "Ship");
        QCOMPARE(myWindow->loadFile(first, ""), 1);
        QCOMPARE(myWindow->loadFile(module("b.xml", "Tug"), ""), 1);
        myWindow->show();
        QVERIFY(QFile::rename(first.c_str(), myProgram->path("a.xml")));
        const DtCapture warnings(DtWarn);
        QCOMPARE(myWindow->loadFile(module("c.xml", "Buoy"), ""), 0);
        QCOMPARE(status(), QString(theFailure));
        const QString text = QString("%1 is loaded, but cannot be opened any more.").arg(first.c_str());
        QCOMPARE(warnings.text().count("any more."), 1);
        QVERIFY2(warnings.text().contains(text), qPrintable(warnings.text()));
        QVERIFY(myWindow->statusBar()->toolTip().contains(text));
        QVERIFY(QFile::rename(myProgram->path("a.xml"), first.c_str()));
        QCOMPARE(myWindow->loadFile(module("c.xml", "Buoy"), ""), 1);
        QVERIFY(myWindow->tree()->getObjectClassNode("HLAobjectRoot.Ship") != nullptr);
    }

    void closedFilesAreNotReadAgain()
    {
        QCOMPARE(myWindow->loadFile(module("a.xml", "Ship"), ""), 1);
        myWindow->show();
        myWindow->closeOpenFiles();
        QCOMPARE(myWindow->loadFile(myProgram->model("bad.xml", "<objectModel"), ""), 0);
        QVERIFY(isEmpty(*myWindow));
        QCOMPARE(status(), QString(theFailure));
    }

    void causeOfAMalformedFileIsToldOnce_data()
    {
        QTest::addColumn<bool>("asOneOfSeveral");
        QTest::addColumn<QByteArray>("text");
        for (const bool several : {false, true})
        {
            QTest::newRow(several ? "behind the root, several" : "behind the root")
                << several << moduleText(objectText("Ship")).left(150);
            QTest::newRow(several ? "at the root, several" : "at the root")
                << several << QByteArray("<objectModel>\n<");
        }
    }
    void causeOfAMalformedFileIsToldOnce()
    {
        QFETCH(bool, asOneOfSeveral);
        QFETCH(QByteArray, text);
        const DtCapture warnings(DtWarn);
        const DtString bad = myProgram->model("bad.xml", text);
        if (asOneOfSeveral)
            myWindow->loadFiles({
                {bad,     ""},
                { module("b.xml", "Tug"), ""}
            });
        else
            myWindow->loadFile(bad, "");
        QCOMPARE(warnings.text().count(QString(bad.c_str()) + ":"), 1);
    }

    void missingFileFails()
    {
        const DtString missing = myProgram->bytes(myProgram->path("models/none.xml"));
        QCOMPARE(myWindow->loadFile(missing, ""), 0);
        QCOMPARE(status(), QString(theFailure));
        const DtCapture warnings(DtWarn);
        QCOMPARE(myWindow->loadFiles({
                     {module("a.xml", "Ship"), ""},
                     {missing,              ""              }
        }),
                 0);
        QCOMPARE(status(), QString(theFailure));
        QVERIFY(warnings.text().contains("No such FED file: " + QString(missing.c_str())));
        QVERIFY(isEmpty(*myWindow));
    }

    void severalFilesAreTakenByTheExtensionOfTheFirst()
    {
        const DtString foreign = module("a.fdd", "Ship");
        QCOMPARE(myWindow->loadFiles({
                     {foreign, ""},
                     { module("b.xml", "Tug"), ""}
        }),
                 0); // no tree, though "ok"
        QCOMPARE(status(), QString(theFailure));
        QCOMPARE(myWindow->loadFiles({
                     {module("b.xml", "Tug"), ""},
                     {foreign,              ""             }
        }),
                 1);
        QCOMPARE(leftObjects(*myWindow), QString("Tug Ship HLAmanager"));
        myWindow->closeOpenFiles();
        QCOMPARE(myWindow->loadFile(foreign, ""), 1); // a single file by its content
    }

    void noFilesAtAllFail()
    {
        QCOMPARE(myWindow->loadFiles({}), 0);
        QCOMPARE(status(), QString(theFailure));
        withoutMim();
        QCOMPARE(myWindow->loadFiles({}), 0);
    }

    void modelWithoutClassesLoads()
    {
        QCOMPARE(myWindow->loadFiles({
                     {myProgram->model("a.xml", moduleText(QByteArray())), ""},
                     {module("b.xml",           "Tug"),                    ""}
        }),
                 1);
        QCOMPARE(leftObjects(*myWindow), QString("Tug HLAmanager"));
    }

    void closeForgetsTheFilesAndKeepsTree()
    {
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/p.qxproj"))));
        myWindow->loadFile(module("a.xml", "Ship"), "");
        myWindow->addAllObjectInteractions();
        myWindow->closeOpenFiles();
        QVERIFY(!myWindow->isFileLoaded() && myWindow->loadedFiles().empty() && myWindow->projectFile().isEmpty());
        QCOMPARE(myWindow->windowTitle(), QString("Quorvex Code Generator - No File Loaded"));
        QVERIFY(myWindow->tree() != nullptr && myWindow->reader() != nullptr && myWindow->omtProject() != nullptr);
        QCOMPARE(myWindow->listViewManager()->leftListView()->topLevelItemCount(), 0);
        QCOMPARE(myWindow->listViewManager()->rightListView()->topLevelItemCount(), 0);
        myWindow->addAllObjectInteractions(); // of empty lists
        QCOMPARE(myWindow->loadFile(module("b.xml", "Tug"), ""), 1);
        QCOMPARE(leftObjects(*myWindow), QString("HLAmanager Tug"));
        QCOMPARE(loaded(*myWindow), models("b.xml|%\n"));
    }

    void withoutAProjectNothingIsAdded()
    {
        myWindow->loadFile(module("a.xml", "Ship"), "");
        QVERIFY(myWindow->omtProject() == nullptr);
        myWindow->addAllObjectInteractions();
        myWindow->addSelectedItems();
        myWindow->removeSelectedItems();
        myWindow->putIntoUi(nullptr);
        QCOMPARE(myWindow->listViewManager()->rightListView()->topLevelItemCount(), 0);
    }

    void statusGoesToTheWarningsWhileTheWindowIsUnseen()
    {
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(warnings.text(), QString("No file loaded... Cannot generate files.\n"));
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
    }

    void statusOfAVisibleWindowStaysThere()
    {
        myWindow->show();
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(warnings.text(), QString());
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
        QTest::qWait(50);
        QCOMPARE(status(), QString("No file loaded... Cannot generate files.")); // until it is replaced
        QStatusTipEvent passing{QString()};
        QCoreApplication::sendEvent(myWindow.get(), &passing); // of a pointer over the menus
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
        myWindow->saveOmtProject();
        QCOMPARE(status(), QString("No Project loaded... Cannot save OMT Project."));
    }

    void chosenFileIsLoaded()
    {
        module("a.xml", "Ship");
        myDialogs->setAnswers({myProgram->path("models/a.xml")});
        myWindow->slot_openFile();
        QCOMPARE(myDialogs->takeSeen(), QStringList("Open File"));
        QCOMPARE(leftObjects(*myWindow), QString("HLAmanager Ship"));
        QCOMPARE(loaded(*myWindow), models("a.xml|%\n"));
    }

    void withoutAChoiceNothingIsLoaded()
    {
        myWindow->slot_openFile();
        myWindow->slot_openFiles();
        QCOMPARE(myDialogs->takeSeen(), (QStringList{"Open File", "Open File"}));
        QVERIFY(myWindow->tree() == nullptr && status().isEmpty());
    }

    void replacementIsRepeatedUntilNoneIsLeft()
    {
        QString text("aab");
        myWindow->replaceAll(text, "ab", "b"); // "aab", "ab", "b"
        QCOMPARE(text, QString("b"));
        QCOMPARE(myWindow->resolveVars("url($(APP_DIR)/x) $(APP_DIR)"),
                 QString("url(../data/config/x) ../data/config"));
    }
};

QX_REGISTER_TEST(TestWindowModels)
#include "testWindowModels.moc"
