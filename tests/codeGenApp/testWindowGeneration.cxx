// Generation by the unseen window: what starts it, what it hands to the writers and what it leaves behind.

#include "registerTest.h"

#include "dialogWatch.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/omtWriter.h"
#include "fileGenerator/qtProgressMeter.h"
#include "omtReader/omtTree.h"
#include "progressWatch.h"
#include "scratchProgram.h"
#include "smallModels.h"

class TestWindowGeneration : public QObject
{
    Q_OBJECT

private:
    DtString model() const
    {
        return myProgram->model("a.xml", moduleText(objectText("Barge", attributeText("Speed", "HLAinteger32BE")),
                                                    interactionText("Signal", parameterText("Code"))));
    }
    // A loaded model with everything selected, and an output directory; without the management model, so that only
    // the test's own classes are generated.
    void prepare()
    {
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/a.qxproj"))));
        QCOMPARE(myWindow->loadFile(model(), ""), 1);
        myWindow->addAllObjectInteractions();
        myWindow->setOutputDirectory(myProgram->path("out/"));
    }
    // A window over settings that are changed first; examples are off, so that few files are written.
    void openWith(const std::function<void(DtCodeGenInitializer&)>& change)
    {
        myWindow = myProgram->makeWindow(
            [&change](DtCodeGenInitializer& initializer)
            {
                initializer.setGenerateExamples(false);
                change(initializer);
            });
    }
    void restartWith(const std::function<void(DtCodeGenInitializer&)>& change)
    {
        openWith(change);
        prepare();
    }
    void onlyScripts(const std::map<DtString, bool>& scripts)
    {
        restartWith([&](DtCodeGenInitializer& initializer) { initializer.setScriptMap(scripts); });
    }
    void writeScript(const char* name, const QByteArray& commands) const
    {
        writeTextFile(myProgram->path("data/") + QString::fromLatin1(name), commands);
    }
    QString status() const { return myWindow->statusBar()->currentMessage(); }
    QStringList written() const { return filesBelow(myProgram->path("out")); }
    QByteArray output(const char* name) const { return readTextFile(myProgram->path("out/") + name); }

    DtScratchTree myTree;
    std::unique_ptr<DtScratchProgram> myProgram;
    std::unique_ptr<DtCodeGenAppGui> myWindow;
    std::unique_ptr<DtDialogWatch> myDialogs;

private Q_SLOTS:
    void init()
    {
        myProgram = std::make_unique<DtScratchProgram>(myTree);
        QDir().mkpath(myProgram->path("models"));
        openWith([](DtCodeGenInitializer&) {});
        myDialogs = std::make_unique<DtDialogWatch>();
    }
    void cleanup()
    {
        QCOMPARE(myDialogs->takeSeen(), QStringList());
        myDialogs.reset();
        myWindow.reset();
        myProgram.reset();
    }

    void withoutALoadedFileNothingIsGenerated()
    {
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/a.qxproj"))));
        myWindow->setOutputDirectory(myProgram->path("out/"));
        myWindow->slot_generateFiles();
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
        QVERIFY(!QFile::exists(myProgram->path("out")));
    }

    // A record's field becomes a key of the mapper when a model is loaded. At generation the table is set from the
    // project alone, and the model is not walked again.
    void generationSetsThePredefinedTypesAgainAndNothingElse()
    {
        QByteArray text = moduleText(objectText("Barge", attributeText("Place", "Spot")));
        text.replace("</objectModel>",
                     "<dataTypes><fixedRecordDataTypes><fixedRecordData><name>Spot</name><field><name>Depth</name>"
                     "<dataType>HLAinteger32BE</dataType></field></fixedRecordData></fixedRecordDataTypes></dataTypes>"
                     "</objectModel>");
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/a.qxproj"))));
        QCOMPARE(myWindow->loadFile(myProgram->model("spot.xml", text), ""), 1);
        myWindow->addAllObjectInteractions();
        myWindow->setOutputDirectory(myProgram->path("out/"));
        DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
        mapper.addMapping("LeftFromBefore", "DtU8");
        QVERIFY(mapper.hasMapping("Depth"));
        myWindow->generateAllFiles();
        QVERIFY(!mapper.hasMapping("LeftFromBefore"));
        QVERIFY(!mapper.hasMapping("Depth"));
        QVERIFY(mapper.hasMapping("HLAboolean"));
        QCOMPARE(QString(mapper.quorvexType("Spot").c_str()), QString("DtSpot"));
    }

    void closedFileCannotBeGenerated()
    {
        prepare();
        myWindow->closeOpenFiles();
        myWindow->generateAllFiles();
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
        QVERIFY(!QFile::exists(myProgram->path("out")));
    }

    void withoutAnOutputDirectoryAnUnattendedRunEnds()
    {
        prepare();
        myWindow->setOutputDirectory(QString());
        QFile::remove(myProgram->path("models/a.qxproj"));
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(warnings.text(), QString("Choose an Output Directory\n"));
        QVERIFY(!QFile::exists(myProgram->path("models/a.qxproj"))); // ended ahead of the saving
        QVERIFY(!QFile::exists("cpp\\Makefile"));
    }

    void userIsAskedForTheOutputDirectory()
    {
        prepare();
        QDir().mkpath(myProgram->path("chosen"));
        myWindow->setOutputDirectory(QString());
        myWindow->setUnattended(false);
        myWindow->generateAllFiles(); // cancelled
        QCOMPARE(myDialogs->takeSeen(), QStringList("Choose an Output Directory"));
        QCOMPARE(myWindow->outputDirectory().c_str(), "");
        myDialogs->setAnswers({myProgram->path("chosen")});
        QVERIFY(myWindow->setOutputDirectory());
        QCOMPARE(myDialogs->takeSeen(), QStringList("Choose an Output Directory"));
        QCOMPARE(myWindow->outputDirectory().c_str(), (myProgram->path("chosen") + "/").toUtf8().constData());
        QCOMPARE(DtFileWriter::outputDirectory().c_str(), myWindow->outputDirectory().c_str());
    }

    void withoutAScriptTheProjectIsSavedAndNothingWritten()
    {
        onlyScripts({
            {"genCpp.txt", false}
        });
        QFile::remove(myProgram->path("models/a.qxproj"));
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QVERIFY(readTextFile(myProgram->path("models/a.qxproj")).contains("HLAobjectRoot.Barge"));
        QVERIFY(!QFile::exists(myProgram->path("out")));
        QCOMPARE(warnings.text(), QString("No script is switched on... Nothing to generate.\n"));
        QCOMPARE(myWindow->statusBar()->currentMessage(), QString("No script is switched on... Nothing to generate."));
    }

    void otherScriptIsRunAsACommandFile()
    {
        writeScript("genOther.txt", "beginTypes\nendTypes\nlanguage Other\ntemplateDir other\nsubdir deep\n"
                                    "file classes.txt classes.tlt\n");
        writeTextFile(myProgram->path("data/other/classes.tlt"),
                      "<!Prefix!> <!Protocol!> <!BaseName!><#Objects> <!ObjectFullName!><#><#Interactions> "
                      "<!InteractionName!><#Parameters>(<!ParameterName!>)<#><#>");
        onlyScripts({
            {"genCpp.txt",   false},
            {"genOther.txt", true }
        });
        myWindow->setClassPrefix("Port");
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(warnings.text(), QString());
        QCOMPARE(written(), QStringList("deep/classes.txt")); // no directory of its own, unlike the main road
        QCOMPARE(output("deep/classes.txt"), QByteArray("Port HLA1516e a HLAobjectRoot.Barge Signal(Code)"));
        QCOMPARE(DtFileWriter::outputDirectory().c_str(), (myProgram->path("out/")).toUtf8().constData());
        for (const QWidget* widget : QApplication::topLevelWidgets())
            QVERIFY(qobject_cast<const QProgressDialog*>(widget) == nullptr);
    }

    void otherScriptLeavesTheSettingsOfTheMainRoad()
    {
        writeScript("genOther.txt", "endTypes\n");
        onlyScripts({
            {"genCpp.txt",   false},
            {"genOther.txt", true }
        });
        DtOMTEnvWriter::setPrefixName("Kept");
        myWindow->preferences()->setPrefix("Port");
        myWindow->generateAllFiles();
        QCOMPARE(DtOMTEnvWriter::prefixName().c_str(), "Kept");
        QCOMPARE(DtOMTWriter::prefixName().c_str(), "Port");
        QCOMPARE(int(DtFileWriter::hlaVersion()), 3);
    }

    void otherScriptDumpsNoParseTree()
    {
        writeScript("genOther.txt", "endTypes\n");
        restartWith(
            [](DtCodeGenInitializer& initializer)
            {
                initializer.setDumpParseTree(true);
                initializer.setScriptMap({
                    {"genOther.txt", true}
                });
            });
        myWindow->generateAllFiles();
        QCOMPARE(written(), QStringList());
        restartWith([](DtCodeGenInitializer& initializer) { initializer.setDumpParseTree(false); });
    }

    void scriptsRunInTheOrderOfTheirNames()
    {
        // Each takes in what one before it has written; a file that is not there yet comes out empty.
        writeTextFile(myProgram->path("data/t/a.tlt"), "<?notlast?../out/cpp\\dllExport.h?>a");
        writeTextFile(myProgram->path("data/t/b.tlt"), "<?notlast?../out/a.out?>b");
        writeTextFile(myProgram->path("data/t/z.tlt"), "<?notlast?../out/b.out?>z<?notlast?../out/cpp\\dllExport.h?>");
        writeScript("a.txt", "templateDir t\nfile a.out a.tlt\n");
        writeScript("b.txt", "templateDir t\nfile b.out b.tlt\n");
        writeScript("z.txt", "templateDir t\nfile z.out z.tlt\n");
        onlyScripts({
            {"b.txt",      true},
            {"genCpp.txt", true},
            {"a.txt",      true},
            {"z.txt",      true}
        });
        myWindow->generateAllFiles();
        QCOMPARE(output("a.out"), QByteArray("a"));
        QCOMPARE(output("z.out"), "abz" + output("cpp\\dllExport.h"));
        QVERIFY(output("cpp\\dllExport.h").size() > 0);
    }

    void userCanCancelAScript()
    {
        writeTextFile(myProgram->path("data/t/x.tlt"), "x");
        writeScript("genOther.txt", "templateDir t\nfile first.txt x.tlt\nsubdir deep\nfile second.txt x.tlt\n"
                                    "file third.txt x.tlt\n");
        onlyScripts({
            {"genCpp.txt",   false},
            {"genOther.txt", true }
        });
        {
            const DtCancelAt user("first");
            myWindow->generateAllFiles();
            QVERIFY(user.isDone());
        }
        QCOMPARE(written(), QStringList("first.txt"));
        QCOMPARE(output("first.txt"), QByteArray("x"));
        QCOMPARE(DtFileWriter::outputDirectory().c_str(), (myProgram->path("out/")).toUtf8().constData());
        myWindow->generateAllFiles(); // the next run starts without the cancel
        QCOMPARE(written(), QStringList({"deep/second.txt", "deep/third.txt", "first.txt"}));
    }

    void cancelEndsTheScriptsBehindIt()
    {
        writeTextFile(myProgram->path("data/t/x.tlt"), "x");
        writeScript("genFirst.txt", "templateDir t\nfile first.txt x.tlt\n");
        writeScript("genSecond.txt", "templateDir t\nfile second.txt x.tlt\n");
        onlyScripts({
            {"genCpp.txt",    false},
            {"genFirst.txt",  true },
            {"genSecond.txt", true }
        });
        {
            const DtCancelAt user("first");
            myWindow->generateAllFiles();
            QVERIFY(user.isDone());
        }
        QCOMPARE(written(), QStringList("first.txt"));
        myWindow->generateAllFiles();
        QCOMPARE(written(), QStringList({"first.txt", "second.txt"}));
    }

    // Also in the first run over a command file, which writes files that nobody has counted yet.
    void windowIsClosedToTheUserAtEveryFile()
    {
        writeTextFile(myProgram->path("data/t/x.tlt"), "x");
        writeScript("genOther.txt", "templateDir t\nfile a.txt x.tlt\nfile b.txt x.tlt\nfile c.txt x.tlt\n");
        onlyScripts({
            {"genCpp.txt",   true},
            {"genOther.txt", true}
        });
        int updates = 0;
        int openUpdates = 0;
        QTimer timer; // runs out at every turn of the event loop
        connect(&timer, &QTimer::timeout,
                [&]
                {
                    ++updates;
                    openUpdates += QApplication::activeModalWidget() == nullptr ? 1 : 0;
                });
        timer.start(0);
        myWindow->generateAllFiles();
        QVERIFY(updates > 20);
        QCOMPARE(openUpdates, 0);
    }

    void examplesAndDisComeWhenAskedFor()
    {
        prepare();
        myWindow->generateAllFiles();
        const QStringList files = written();
        QCOMPARE(files.filter("barge", Qt::CaseInsensitive).size(), 12);
        QCOMPARE(files.filter("signal", Qt::CaseInsensitive).size(), 6);
        QCOMPARE(files.filter(QRegularExpression("Examples|DIS")), QStringList());
        restartWith([](DtCodeGenInitializer& initializer) { initializer.setGenerateExamples(true); });
        myWindow->generateAllFiles();
        QVERIFY(!written().filter("Examples").isEmpty() && written().filter("DIS").isEmpty());
        restartWith([](DtCodeGenInitializer& initializer) { initializer.setGenerateDis(true); });
        myWindow->generateAllFiles();
        QVERIFY(!written().filter("DIS").isEmpty());
    }

    void outputDirectoryIsPutBack()
    {
        prepare();
        myWindow->generateAllFiles();
        QCOMPARE(DtFileWriter::outputDirectory().c_str(), (myProgram->path("out/")).toUtf8().constData());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        for (const QWidget* widget : QApplication::topLevelWidgets())
            QVERIFY(qobject_cast<const QProgressDialog*>(widget) == nullptr);
    }

    void everyFileHasThePrefixWithItsBackslash()
    {
        prepare();
        myWindow->generateAllFiles();
        QVERIFY(written().size() > 20);
        for (const QString& name : written())
            QVERIFY2(name.startsWith("cpp\\"), qPrintable(name));
    }

    void projectIsSavedAheadOfTheScripts()
    {
        prepare();
        myWindow->generateAllFiles();
        QVERIFY(readTextFile(myProgram->path("models/a.qxproj")).contains("<fom name=\"a.xml\""));
    }

    void withoutAProjectGenerationGoesOn()
    {
        QCOMPARE(myWindow->loadFile(model(), ""), 1);
        myWindow->setOutputDirectory(myProgram->path("out/"));
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(warnings.text(), QString("No Project loaded... Cannot save OMT Project.\n"));
        QVERIFY(QFile::exists(myProgram->path("out/cpp\\dllExport.h")));
        QCOMPARE(written().filter("barge", Qt::CaseInsensitive), QStringList());
    }

    void parseTreeIsDumpedWhenAskedFor()
    {
        prepare();
        myWindow->generateAllFiles();
        QVERIFY(!QFile::exists(myProgram->path("out/parsedFom.txt")));
        restartWith([](DtCodeGenInitializer& initializer) { initializer.setDumpParseTree(true); });
        myWindow->generateAllFiles();
        const QByteArray dump = output("parsedFom.txt"); // without the prefix of the other files
        const char* const expected = "  Barge (object name) = HLAobjectRoot.Barge\n"
                                     "    Speed (BargeAttribute) = HLAinteger32BE\n"
                                     "      SpeedAttrCardinality (cardinality) = ";
        QVERIFY2(dump.contains(expected), dump.constData());
        QVERIFY(dump.contains("\nbasic datatypes (branch)\n"));
        QVERIFY(dump.contains("  Signal (interaction name) = HLAinteractionRoot.Signal\n"));
        QVERIFY(dump.endsWith('\n'));
    }

    void preferencesReachTheWriters()
    {
        restartWith([](DtCodeGenInitializer& initializer) { initializer.setNamespaceName("harbour"); });
        myWindow->setIncludeDirectory("inc");
        myWindow->setClassPrefix("Port");
        myWindow->generateAllFiles();
        QCOMPARE(DtOMTEnvWriter::namespaceName().c_str(), "harbour");
        QCOMPARE(DtOMTEnvWriter::includeName().c_str(), "inc");
        QCOMPARE(DtOMTEnvWriter::prefixName().c_str(), "Port");
        const QStringList headers = written().filter("inc/").filter(".h");
        QCOMPARE(headers.size(), 11); // of the classes, the export and the enumerations
        QByteArray text;
        for (const QString& name : headers)
            text += readTextFile(myProgram->path("out/") + name);
        QVERIFY(text.contains("namespace harbour"));
        QVERIFY(text.contains("DtPortBarge"));
        QVERIFY(text.contains("\"inc/"));
        QVERIFY(!text.contains("DtBarge"));
        // The preferences of the next run replace them.
        restartWith([](DtCodeGenInitializer& initializer) { initializer.setNamespaceName(""); });
        QDir(myProgram->path("out")).removeRecursively();
        myWindow->generateAllFiles();
        QCOMPARE(written().filter("inc/").size(), 0);
        QCOMPARE(DtOMTEnvWriter::namespaceName().c_str(), "");
        QCOMPARE(DtOMTEnvWriter::prefixName().c_str(), "");
    }

    // The directory is looked into, and no part of the name.
    void entryOfTheModelNamesItToTheWriters()
    {
        model();
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/a.qxproj"))));
        QCOMPARE(myWindow->loadFile("a.xml", myProgram->bytes(myProgram->path("models"))), 1);
        QCOMPARE(myWindow->windowTitle(), "Quorvex Code Generator - " + myProgram->path("models/a.xml"));
        myWindow->setOutputDirectory(myProgram->path("out/"));
        writeScript("name.txt", "endTypes\n");
        myWindow->generateCppFiles();
        QCOMPARE(DtOMTEnvWriter::fomDefinitionFileName().c_str(), "a.xml");
        myWindow->generateFile("name.txt");
        QCOMPARE(DtOMTWriter::fomDefinitionFileName().c_str(), "a.xml");
        QCOMPARE(myWindow->loadFile(myProgram->model("b.xml", moduleText(objectText("Tug"))), ""), 1);
        myWindow->generateCppFiles();
        QCOMPARE(QString(DtOMTEnvWriter::fomDefinitionFileName().c_str()), myProgram->path("models/b.xml"));
    }

    void settingsReachTheWriters()
    {
        restartWith(
            [](DtCodeGenInitializer& initializer)
            {
                initializer.setGenerate64Bit(false);
                initializer.setGenerateErrors(true);
                initializer.setMapRtiObjIdToGlobalId(false);
            });
        myWindow->generateAllFiles();
        QVERIFY(!DtFileWriter::generate64Bit() && DtFileWriter::generateErrors());
        QVERIFY(!DtDataTypeMapper::instance()->mapRtiObjectIdToGlobalId());
        QCOMPARE(int(DtFileWriter::hlaVersion()), 3);
        restartWith(
            [](DtCodeGenInitializer& initializer)
            {
                initializer.setGenerate64Bit(true);
                initializer.setGenerateErrors(false);
                initializer.setMapRtiObjIdToGlobalId(true);
            });
        myWindow->generateAllFiles();
        QVERIFY(DtFileWriter::generate64Bit() && !DtFileWriter::generateErrors());
        QVERIFY(DtDataTypeMapper::instance()->mapRtiObjectIdToGlobalId());
    }

    void predefinedTypesAreSetAgainAtGeneration()
    {
        prepare();
        myWindow->omtProject()->setPredefinedType({
            {"HLAinteger32BE", "DtU16"}
        });
        DtDataTypeMapper::instance()->clearMappings();
        myWindow->generateAllFiles();
        QCOMPARE(DtDataTypeMapper::instance()->quorvexType("HLAinteger32BE").c_str(), "DtU16");
    }

    void cancelStopsTheRunAheadOfTheBuildProducts_data()
    {
        QTest::addColumn<QString>("at");
        QTest::newRow("first file") << "dllExport";
        QTest::newRow("datatypes") << "DataTypes";
        QTest::newRow("classes") << "bargePublisherHLA";
        QTest::newRow("last class") << "signalInterHLA";
    }
    void cancelStopsTheRunAheadOfTheBuildProducts()
    {
        QFETCH(QString, at);
        prepare();
        {
            const DtCancelAt user(at);
            myWindow->generateAllFiles();
            QVERIFY(user.isDone());
        }
        QVERIFY(written().contains("cpp\\dllExport.h")); // what was written stays
        for (const char* product : {"Makefile", "Files-", "vcxproj", ".sln"})
            QCOMPARE(written().filter(product), QStringList());
        QCOMPARE(DtFileWriter::outputDirectory().c_str(), (myProgram->path("out/")).toUtf8().constData());
        myWindow->generateAllFiles(); // the next run starts without the cancel
        QVERIFY(written().contains("cpp\\Makefile"));
    }

    // Whichever file is being written when the user cancels, it is the last one. Only the enumerations follow the
    // export header without a look at the button.
    void cancelAtAnyFileStopsBehindIt()
    {
        prepare();
        QStringList all;
        {
            DtCancelAfter user(-1);
            myWindow->generateAllFiles();
            all = user.files();
        }
        QVERIFY(all.size() > 20);
        const QStringList complete = written();
        for (int last = 0; last < all.size(); ++last)
        {
            QVERIFY(QDir(myProgram->path("out")).removeRecursively());
            int before = 0;
            DtCancelAfter user(last, [&] { before = written().size(); });
            myWindow->generateAllFiles();
            QVERIFY(user.isDone() && DtQtProgressMeter::instance()->isCancelled());
            const QString name = user.files().last();
            QVERIFY2(written().size() <= before + (name == "dllExport.h" ? 2 : 1), qPrintable(name));
            const QRegularExpression products("Makefile|\\.vcxproj|\\.sln");
            if (!name.contains(products))
                QCOMPARE(written().filter(products), QStringList());
        }
        myWindow->generateAllFiles();
        QCOMPARE(written(), complete);
    }

    // The source of a datatype follows its header without a look at the button.
    void largeModelStopsAtOnceAndGeneratesAgain()
    {
        if (largeModel().isEmpty())
            QSKIP("The large model is not here.");
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/rpr.qxproj"))));
        std::vector<DtCodeGenAppGui::DtModelFile> models;
        for (const QString& file : largeModel())
            models.emplace_back(myProgram->copiedModel(file), "");
        QCOMPARE(myWindow->loadFiles(models), 1);
        myWindow->addAllObjectInteractions();
        myWindow->setOutputDirectory(myProgram->path("out/"));
        myWindow->show(); // alive all the while
        for (const int last : {0, 250, 600})
        {
            QDir(myProgram->path("out")).removeRecursively();
            int before = 0;
            DtCancelAfter user(last, [&] { before = written().size(); });
            myWindow->generateAllFiles();
            QVERIFY2(user.isDone(), qPrintable(QString("%1 of %2").arg(user.files().size()).arg(written().size())));
            QVERIFY2(written().size() <= before + 2, qPrintable(QString::number(written().size() - before)));
            QCOMPARE(written().filter(QRegularExpression("Makefile|\\.vcxproj|\\.sln|Files-")), QStringList());
            QVERIFY(myWindow->isVisible() && myWindow->isEnabled());
        }
        myWindow->generateAllFiles();
        QVERIFY(written().contains("cpp\\Makefile"));
        QVERIFY2(written().size() > 800, qPrintable(QString::number(written().size())));
    }

    void cancelBetweenFilesLeavesClassesOut()
    {
        prepare();
        const DtCancelAt user("dllExport");
        myWindow->generateAllFiles();
        QCOMPARE(written().filter("barge", Qt::CaseInsensitive), QStringList());
    }

    void runsInOneProcessAgree()
    {
        prepare();
        myWindow->generateAllFiles();
        const QStringList files = written();
        QDir().rename(myProgram->path("out"), myProgram->path("kept"));
        for (int round = 0; round < 2; ++round)
        {
            myWindow->closeOpenFiles();
            const DtString other = myProgram->model("b.xml", moduleText(objectText("Tug", attributeText("Power"))));
            myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/b.qxproj"))));
            QCOMPARE(myWindow->loadFile(other, ""), 1);
            myWindow->addAllObjectInteractions();
            myWindow->setOutputDirectory(myProgram->path("other/"));
            myWindow->generateAllFiles();
            const QStringList names = filesBelow(myProgram->path("other"));
            QCOMPARE(names.filter("barge", Qt::CaseInsensitive), QStringList());
            QCOMPARE(names.filter("tug", Qt::CaseInsensitive).size(), 12);
            myWindow->closeOpenFiles();
        }
        myWindow->loadOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/a.qxproj"))));
        QVERIFY(myWindow->isValidProject());
        myWindow->setOutputDirectory(myProgram->path("out/"));
        myWindow->generateAllFiles();
        QCOMPARE(written(), files);
        for (const QString& name : files.filter(QRegularExpression("\\.(h|cxx|txt)$")))
            QVERIFY2(readTextFile(myProgram->path("kept/") + name) == readTextFile(myProgram->path("out/") + name),
                     qPrintable(name));
    }

    void configurationIsWrittenByTheDestructor()
    {
        const QString file = myProgram->path("data/config/customCodeGenConfig.xml");
        QVERIFY(!QFile::exists(file));
        prepare();
        myProgram->initializer().setNamespaceName("harbour");
        myWindow->generateAllFiles();
        QVERIFY(!QFile::exists(file));
        myWindow.reset();
        QVERIFY(readTextFile(file).contains("<var name=\"namespaceName\" value=\"harbour\"/>"));
    }
};

QX_REGISTER_TEST(TestWindowGeneration)
#include "testWindowGeneration.moc"
