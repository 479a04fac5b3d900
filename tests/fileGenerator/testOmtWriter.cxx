#include "registerTest.h"

#include "contextTestSupport.h"
#include "foundation/foundationTest.h"

#include "fileGenerator/omtProject.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

// Command files: what each command does, in which run, and what comes of odd ones.
class TestOmtWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void smallScriptWritesTheModel();
    void fileRunsThreeTimes();
    void filesOfTheTopFileAreWrittenTwice();
    void fileAheadOfTheTypesSeesAnEmptyRootFirst();
    void includedFilesRunInTheLastTwoRuns();
    void typesInAnIncludedFileHaveNoEffect();
    void meterIsSizedForTheThirdRun();

    void commentsAndBlankLinesArePassedOver();
    void otherCommandsArePassedOver();
    void longLineIsTakenInPieces();
    void lastLineNeedsNoLineFeed();
    void carriageReturnGoesWithTheLineFeed_data();
    void carriageReturnGoesWithTheLineFeed();
    void carriageReturnsAreToldOnceForAFile();
    void wordsAreDividedByAnyNumberOfBlanks();
    void quotedTextsMayHoldBlanks();
    void beginTypesEmptiesEverything();
    void endTypesWithoutBeginAddsToTheContext();
    void languageAndTemplateDirAreWords();
    void withoutTemplateDirThePathBeginsAtTheRoot();
    void contextIsEntered_data();
    void contextIsEntered();
    void missingTemplateLeavesAnEmptyFile();
    void subdirGoesDownAndBack();
    void dollarIsTheDataDirectory();
    void outputDirectoryIsPutBackAfterEachFile();
    void incompleteCommandsAreReportedOnce();

    void missingCommandFileEndsTheProgram();
    void missingIncludedFileEndsTheProgram();
    void fileThatIncludesItselfStopsAtDepth64();
    void fileThatIncludesItselfTwiceStops();
    void twoFilesThatIncludeEachOtherStop();
    void cancelStopsAtTheNextLine();
    void cancelInAnIncludedFileStopsTheOuterOneToo();
    void cancelledMeterWritesNothing();

    void modelNamesAreNoted();
    void usedDatatypesAreThoseOfTheSelection();
    void allDatatypesReachTheContextOnRequest();
    void oldModelsUseAllArrays();
    void oldMembersGetTheirArrays();
    void componentsGetTheirArrays();
    void settingsAreApartFromThoseOfTheMainRoad();
    void namesAreListed();
    void nextRunGivesTheSame();
    void largestModelIsQuick();

private:
    bool run(const QByteArray& commands);
    QString inChild(const QByteArray& commands);

    std::unique_ptr<DtContextFixture> myFixture;
    std::unique_ptr<DtOMTTree> myTree;
    std::unique_ptr<class DtLoggedWriter> myWriter;
};

// Notes the lines of each run of one file. Can cancel once a line has been done in the third.
class DtLoggedWriter : public DtOMTWriter
{
public:
    void executeCommandLine_prepare(const DtString& line) override
    {
        note("1", line);
        DtOMTWriter::executeCommandLine_prepare(line);
    }
    void executeCommandLine_countFiles(const DtString& line) override
    {
        if (atSecondRun)
            atSecondRun();
        atSecondRun = nullptr;
        note("2", line);
        DtOMTWriter::executeCommandLine_countFiles(line);
    }
    void executeCommandLine_generate(const DtString& line) override
    {
        if (isThirdRun)
            note("3", line);
        DtOMTWriter::executeCommandLine_generate(line);
        if (isThirdRun)
            cancelAfter(line);
    }
    void buildContext() override
    {
        ++contexts;
        DtOMTWriter::buildContext();
    }

    QStringList log;
    int contexts = 0;
    std::function<void()> atSecondRun;
    QString cancelAt;

private:
    void note(const char* run, const DtString& line)
    {
        log += QString(run) + ' ' + toQt(line);
        isThirdRun = isThirdRun || *run == '2';
    }
    void cancelAfter(const DtString& line)
    {
        if (!cancelAt.isEmpty() && toQt(line) == cancelAt)
            DtQtProgressMeter::instance()->setIsCancelled(true);
    }
    bool isThirdRun = false; // the first goes through the handler of the third too
};

namespace
{
const char theModel[] =
    "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>Ship</name>"
    "<attribute><name>Speed</name><dataType>Knots</dataType></attribute>"
    "<attribute><name>Colour</name><dataType>Hue</dataType></attribute>"
    "</objectClass><objectClass><name>Buoy</name></objectClass></objectClass></objects>"
    "<dataTypes><basicDataRepresentations><basicData><name>Float</name><size>32</size></basicData>"
    "</basicDataRepresentations><simpleDataTypes><simpleData><name>Knots</name><representation>Float</representation>"
    "</simpleData></simpleDataTypes><enumeratedDataTypes><enumeratedData><name>Hue</name>"
    "<representation>HLAoctet</representation><enumerator><name>Red</name><value>1</value></enumerator>"
    "<enumerator><name>Blue</name><value>2</value></enumerator></enumeratedData></enumeratedDataTypes>"
    "<arrayDataTypes><arrayData><name>Unused</name><dataType>Float</dataType><cardinality>2</cardinality>"
    "<encoding>HLAfixedArray</encoding></arrayData></arrayDataTypes></dataTypes>";

const char theTypes[] = "beginTypes\n"
                        "setDatatype \"HLAoctet\" \"byte\"\n"
                        "setDatatype \"Float\" \"float\"\n"
                        "endTypes\n"
                        "templateDir t\n";
} // namespace

void TestOmtWriter::init()
{
    myFixture = std::make_unique<DtContextFixture>();
    myTree = myFixture->read(evolvedModel(theModel));
    myWriter = std::make_unique<DtLoggedWriter>();
    selectAll(*myWriter, *myTree);
    myFixture->writeData("t/name.tlt", "<?exists <!ObjectName!>><!ObjectName!><?><?notexists <!ObjectName!>>root<?>");
    myFixture->writeData("t/root.tlt", "<!NumObjects!>");
}

void TestOmtWriter::cleanup()
{
    myWriter.reset();
    myTree.reset();
    myFixture.reset();
}

bool TestOmtWriter::run(const QByteArray& commands)
{
    myFixture->writeData("script.txt", commands);
    return myWriter->writeFile("model.xml", "script.txt");
}

void TestOmtWriter::smallScriptWritesTheModel()
{
    myFixture->writeData("t/classes.tlt", "<!Protocol!> <!BaseName!>\n"
                                          "<#Objects>\n"
                                          "|class <!ObjectName!> {\n"
                                          "<#Attributes>\n"
                                          "|    <!AttributeType!> <!AttributeName!>;<?last> // <!index1!> in all<?>\n"
                                          "<#>\n"
                                          "|}\n"
                                          "<#>\n"
                                          "|<#Enumerations>\n"
                                          "|enum <!EnumerationName!> :<!EnumerationType!> "
                                          "{<#Enumerators> <!EnumeratorName!>=<!EnumeratorValue!><?notlast>,<?><#> }\n"
                                          "<#>\n"
                                          "|end\n");
    QVERIFY(run(QByteArray("# A small language.\nlanguage Small\n") + theTypes + "file classes.txt classes.tlt\n"));
    QCOMPARE(myFixture->outputs(), QStringList("classes.txt"));
    QCOMPARE(myFixture->output("classes.txt"), QString("HLA1516e model.xml\n"
                                                       "class Buoy {\n"
                                                       "}\n"
                                                       "class Ship {\n"
                                                       "    float Speed;\n"
                                                       "    Hue Colour; // 2 in all\n"
                                                       "}\n"
                                                       "enum Hue :byte { Red=1, Blue=2 }\n"
                                                       "end\n"));
}

void TestOmtWriter::fileRunsThreeTimes()
{
    run("beginTypes\nendTypes\ntemplateDir t\nfile a.txt root.tlt\n");
    QCOMPARE(myWriter->log, QStringList({"1 beginTypes", "1 endTypes", "1 templateDir t", "1 file a.txt root.tlt",
                                         "2 beginTypes", "2 endTypes", "2 templateDir t", "2 file a.txt root.tlt",
                                         "3 beginTypes", "3 endTypes", "3 templateDir t", "3 file a.txt root.tlt"}));
    QCOMPARE(myWriter->contexts, 1); // types act in the first run alone
    QCOMPARE(int(myWriter->fileCount()), 1);
}

void TestOmtWriter::filesOfTheTopFileAreWrittenTwice()
{
    QString afterFirstRun;
    myWriter->atSecondRun = [&]
    {
        afterFirstRun = myFixture->output("a.txt");
        QFile::remove(myFixture->outputPath("a.txt"));
    };
    run(QByteArray(theTypes) + "file a.txt root.tlt\n");
    QCOMPARE(afterFirstRun, QString("2"));
    QCOMPARE(myFixture->output("a.txt"), QString("2"));
}

void TestOmtWriter::fileAheadOfTheTypesSeesAnEmptyRootFirst()
{
    QString afterFirstRun;
    myWriter->atSecondRun = [&] { afterFirstRun = myFixture->output("a.txt"); };
    run(QByteArray("templateDir t\nfile a.txt root.tlt\n") + theTypes);
    QCOMPARE(afterFirstRun, QString("<!NumObjects!>"));
    QCOMPARE(myFixture->output("a.txt"), QString("2"));
}

void TestOmtWriter::includedFilesRunInTheLastTwoRuns()
{
    myFixture->writeData("more.txt", "file b.txt root.tlt\n");
    bool wasWritten = true;
    myWriter->atSecondRun = [&] { wasWritten = myFixture->hasOutput("b.txt"); };
    run("endTypes\ntemplateDir t\ninclude ../data/more.txt\nfile a.txt root.tlt\n");
    QVERIFY(!wasWritten);
    QCOMPARE(myFixture->outputs(), QStringList({"a.txt", "b.txt"}));
    QCOMPARE(myWriter->log.filter("b.txt"), QStringList({"2 file b.txt root.tlt", "3 file b.txt root.tlt"}));
    QCOMPARE(myWriter->log.filter("include").size(), 3);
    QCOMPARE(int(myWriter->fileCount()), 2);
}

void TestOmtWriter::typesInAnIncludedFileHaveNoEffect()
{
    myFixture->writeData("types.txt", theTypes);
    run("templateDir t\ninclude ../data/types.txt\nfile a.txt root.tlt\n");
    QCOMPARE(myWriter->contexts, 0);
    QVERIFY(myWriter->typeOf("Float") == nullptr);
    QCOMPARE(myFixture->output("a.txt"), QString("<!NumObjects!>"));
}

void TestOmtWriter::meterIsSizedForTheThirdRun()
{
    myFixture->writeData("more.txt", "file b.txt root.tlt\nfile c.txt root.tlt\n");
    int totalOfFirst = 0;
    int total = -1;
    myWriter->atSecondRun = [&] { totalOfFirst = DtQtProgressMeter::instance()->totalMeasure(); };
    run(QByteArray(theTypes) + "file a.txt root.tlt\ninclude ../data/more.txt\n");
    total = DtQtProgressMeter::instance()->totalMeasure();
    QCOMPARE(totalOfFirst, 1);
    QCOMPARE(total, 3);
    QCOMPARE(DtQtProgressMeter::instance()->currentMeasure(), 3);
}

void TestOmtWriter::commentsAndBlankLinesArePassedOver()
{
    run("\n   \n\t\n# file a.txt root.tlt\n  #file b.txt root.tlt\n \t language  Ada\n\r\n");
    QCOMPARE(myWriter->log.filter("1 "), QStringList("1 language  Ada"));
    QVERIFY(myFixture->outputs().isEmpty());
}

void TestOmtWriter::otherCommandsArePassedOver()
{
    const DtCapture warnings(DtWarn);
    run("File a.txt root.tlt\nfiles a.txt root.tlt\nlanguage\tAda\nfile\n");
    QVERIFY(myFixture->outputs().isEmpty());
    QCOMPARE(toQt(myWriter->language()), QString());
    QCOMPARE(warnings.text(), QString("Command without its arguments: file\n"));
}

void TestOmtWriter::longLineIsTakenInPieces()
{
    // The first piece ends with byte 499, and what follows is a line of its own.
    const QByteArray comment = "#" + QByteArray(498, 'x');
    run(comment + "language Ada\n" + comment + "   language Eiffel\n#" + QByteArray(497, 'x') + "language Forth\n");
    QCOMPARE(myWriter->log.filter("1 "), QStringList({"1 language Ada", "1 language Eiffel", "1 anguage Forth"}));
    QCOMPARE(toQt(myWriter->language()), QString("Eiffel"));
}

void TestOmtWriter::lastLineNeedsNoLineFeed()
{
    run("language Ada");
    QCOMPARE(toQt(myWriter->language()), QString("Ada"));
}

void TestOmtWriter::carriageReturnGoesWithTheLineFeed_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QString>("language");
    QTest::newRow("line") << QByteArray("language Ada\r\n") << "Ada";
    QTest::newRow("last line without line feed") << QByteArray("language Ada\r") << "Ada";
    QTest::newRow("one of two") << QByteArray("language Ada\r\r\n") << "Ada\r";
    QTest::newRow("in the middle") << QByteArray("language A\rda\n") << "A\rda";
    QTest::newRow("at the end of a full piece") << "language Ada " + QByteArray(485, 'x') + "\r\n"
                                                << "Ada";
    QTest::newRow("ahead of the rest of a line") << "language " + QByteArray(489, 'x') + "\rlanguage Ada\n"
                                                 << "Ada";
}

void TestOmtWriter::carriageReturnGoesWithTheLineFeed()
{
    QFETCH(QByteArray, commands);
    const DtCapture warnings(DtWarn);
    run(commands);
    QTEST(toQt(myWriter->language()), "language");
    const bool isAtTheEnd = commands.endsWith("\r\n") || commands.endsWith("\r");
    QCOMPARE(warnings.text().count("carriage return"), isAtTheEnd ? 1 : 0);
    QVERIFY(myWriter->log.filter(QRegularExpression("^. language Ada.*x\r$")).isEmpty());
}

void TestOmtWriter::carriageReturnsAreToldOnceForAFile()
{
    const DtCapture warnings(DtWarn);
    myFixture->writeData("more.txt", "file b.txt root.tlt\r\nfile c.txt root.tlt \r\n");
    run(QByteArray(theTypes).replace("\n", "\r\n") + "file a.txt root.tlt\r\ninclude ../data/more.txt\r\n");
    QCOMPARE(myFixture->outputs(), QStringList({"a.txt", "b.txt", "c.txt"}));
    QCOMPARE(toQt(*myWriter->typeOf("Float")), QString("float"));
    QCOMPARE(warnings.text(),
             QString("Command file ../data/script.txt: the carriage returns at the ends of its lines are left out.\n"
                     "Command file ../data/more.txt: the carriage returns at the ends of its lines are left out.\n"));
}

void TestOmtWriter::wordsAreDividedByAnyNumberOfBlanks()
{
    const DtCapture warnings(DtWarn);
    myFixture->writeData("more.txt", "file c.txt root.tlt\n");
    run(QByteArray(theTypes) +
        "language  Ada 95\nfile  a.txt   root.tlt\nfile b.txt  name.tlt   Objects|HLAobjectRoot.Ship "
        " \ninclude  ../data/more.txt \n");
    QCOMPARE(toQt(myWriter->language()), QString("Ada"));
    QCOMPARE(myFixture->outputs(), QStringList({"a.txt", "b.txt", "c.txt"}));
    QCOMPARE(myFixture->output("b.txt"), QString("Ship"));
    QCOMPARE(warnings.text(), QString());
}

void TestOmtWriter::quotedTextsMayHoldBlanks()
{
    run("setDatatype \"an old type\" \"unsigned long\"\nsetDatatype \"none\" \"\" and more\nsetDatatype x\"a\"y\"b\"\n"
        "setDatatype \"c\"\"d\"\nsetDatatype \"e\" \"f\nsetDatatype \"again\" \"1\"\nsetDatatype \"again\" \"2\"\n");
    QCOMPARE(toQt(*myWriter->typeOf("an old type")), QString("unsigned long"));
    QCOMPARE(toQt(*myWriter->typeOf("none")), QString());
    QVERIFY(myWriter->typeOf("a") != nullptr && *myWriter->typeOf("a") == "b");
    QCOMPARE(toQt(*myWriter->typeOf("c")), QString("d"));
    QCOMPARE(toQt(*myWriter->typeOf("e")), QString("f"));
    QCOMPARE(toQt(*myWriter->typeOf("again")), QString("2"));
}

void TestOmtWriter::beginTypesEmptiesEverything()
{
    run("setDatatype \"Float\" \"float\"\nendTypes\nbeginTypes\n");
    QVERIFY(myWriter->typeOf("Float") == nullptr);
    QCOMPARE(int(myWriter->context().size()), 0);
    QCOMPARE(toQt(myWriter->getUniqueName("Ship")), QString("Ship"));
}

void TestOmtWriter::endTypesWithoutBeginAddsToTheContext()
{
    run("endTypes\n");
    const int entries = int(myWriter->context().size());
    QVERIFY(entries > 20);
    run("endTypes\n");
    QCOMPARE(int(myWriter->context().size()), 2 * entries);
}

void TestOmtWriter::languageAndTemplateDirAreWords()
{
    run("language Ada 95\ntemplateDir a/b c\n");
    QCOMPARE(toQt(myWriter->language()), QString("Ada"));
    QCOMPARE(toQt(myWriter->templateDir()), QString("../data/a/b"));
}

void TestOmtWriter::withoutTemplateDirThePathBeginsAtTheRoot()
{
    const QByteArray path = myFixture->scratch("data/t/name.tlt").toUtf8();
    run("file a.txt " + path.mid(1) + "\n");
    QCOMPARE(myFixture->output("a.txt"), QString("root"));
}

void TestOmtWriter::contextIsEntered_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QByteArray("") << "root";
    QTest::newRow("empty") << QByteArray(" ") << "root";
    QTest::newRow("tilde") << QByteArray(" ~") << "root";
    QTest::newRow("word that begins with a tilde") << QByteArray(" ~Objects|HLAobjectRoot.Ship") << "root";
    QTest::newRow("path") << QByteArray(" Objects|HLAobjectRoot.Ship") << "Ship";
    QTest::newRow("words behind it") << QByteArray(" Objects|HLAobjectRoot.Ship more words") << "Ship";
    QTest::newRow("unknown") << QByteArray(" Nothing") << "root";
    QTest::newRow("half of it unknown") << QByteArray(" Nothing|Objects|HLAobjectRoot.Buoy") << "Buoy";
}

void TestOmtWriter::contextIsEntered()
{
    QFETCH(QByteArray, context);
    run(QByteArray(theTypes) + "file a.txt name.tlt" + context + "\nfile b.txt name.tlt\n");
    QTEST(myFixture->output("a.txt"), "text");
    QCOMPARE(myFixture->output("b.txt"), QString("root")); // each command begins at the root
}

void TestOmtWriter::missingTemplateLeavesAnEmptyFile()
{
    const DtCapture warnings(DtWarn);
    run(QByteArray(theTypes) + "file a.txt none.tlt\n");
    QVERIFY(myFixture->hasOutput("a.txt"));
    QCOMPARE(myFixture->output("a.txt"), QString());
    QCOMPARE(warnings.text(), QString());
}

void TestOmtWriter::subdirGoesDownAndBack()
{
    run(QByteArray(theTypes) +
        "subdir a\nfile 1.txt root.tlt\nsubdir b\nfile 2.txt root.tlt\nsubdir ~\nfile 3.txt root.tlt\n"
        "subdir empty\nsubdir c/d\nfile 4.txt root.tlt\n");
    QCOMPARE(myFixture->outputs(), QStringList({"3.txt", "a/1.txt", "a/b/2.txt", "empty/c/d/4.txt"}));
}

void TestOmtWriter::dollarIsTheDataDirectory()
{
    run(QByteArray(theTypes) + "subdir $\nfile made.txt root.tlt\nsubdir sub\nfile made2.txt root.tlt\n");
    QCOMPARE(readTextFile(myFixture->scratch("data/made.txt")), QByteArray("2"));
    QCOMPARE(readTextFile(myFixture->scratch("data/sub/made2.txt")), QByteArray("2"));
    QVERIFY(myFixture->outputs().isEmpty());
}

void TestOmtWriter::outputDirectoryIsPutBackAfterEachFile()
{
    const DtString directory = DtFileWriter::outputDirectory();
    myFixture->writeData("more.txt", "subdir deep\nfile b.txt root.tlt\nsubdir deeper\n");
    run(QByteArray(theTypes) + "subdir a\ninclude ../data/more.txt\nfile c.txt root.tlt\nsubdir last\n");
    // The first run leaves the include out and so has its own place for the file behind it.
    QCOMPARE(myFixture->outputs(), QStringList({"a/c.txt", "a/deep/b.txt", "c.txt"}));
    QCOMPARE(toQt(DtFileWriter::outputDirectory()), toQt(directory));
}

void TestOmtWriter::incompleteCommandsAreReportedOnce()
{
    const DtCapture warnings(DtWarn);
    run("setDatatype\nsetDatatype \"a\"\nsetDatatype \"a\" b\nfile\nfile a.txt\nsubdir\nsubdir "
        "\nlanguage\ntemplateDir\n"
        "include\ninclude \n");
    QCOMPARE(
        warnings.text().split('\n').mid(0, 3),
        QStringList({"Command without its arguments: setDatatype", "Command without its arguments: setDatatype \"a\"",
                     "Command without its arguments: setDatatype \"a\" b"}));
    QCOMPARE(warnings.text().count('\n'), 11);
    QCOMPARE(warnings.text().count("Command without its arguments: "), 11);
    QVERIFY(myFixture->outputs().isEmpty());
}

// Runs the commands in a copy of this process that must come to its end by an assertion; what it says.
QString TestOmtWriter::inChild(const QByteArray& commands)
{
    myFixture->writeData("script.txt", commands);
    const DtChildResult result = runInChild([this] { myWriter->writeFile("model.xml", "script.txt"); });
    return result.signal == SIGABRT ? QString::fromUtf8(result.errors) : "ended by " + QString::number(result.signal);
}

void TestOmtWriter::missingCommandFileEndsTheProgram()
{
    const DtChildResult result = runInChild([this] { myWriter->writeFile("model.xml", "none.txt"); });
    QCOMPARE(result.signal, SIGABRT);
    QVERIFY2(result.errors.endsWith(": Assertion `false' failed.\n"), result.errors.constData());
    QVERIFY2(result.errors.contains("Cannot open command file ../data/none.txt\n"), result.errors.constData());
}

void TestOmtWriter::missingIncludedFileEndsTheProgram()
{
    const QString errors = inChild(QByteArray(theTypes) + "file a.txt root.tlt\ninclude none/more.txt\n");
    QVERIFY2(errors.endsWith(": Assertion `false' failed.\n"), qPrintable(errors));
    QVERIFY2(errors.contains("Cannot open command file none/more.txt\n"), qPrintable(errors));
    QCOMPARE(myFixture->output("a.txt"), QString("2")); // of the first run
}

void TestOmtWriter::fileThatIncludesItselfStopsAtDepth64()
{
    myFixture->writeData("self.txt", "language x\ninclude ../data/self.txt\n");
    const DtCapture warnings(DtWarn);
    run("include ../data/self.txt\n");
    QCOMPARE(warnings.text(), QString("Command file ../data/self.txt is included too deep; left out at depth 64.\n"));
    QCOMPARE(myWriter->log.filter("2 language").size(), 64);
    QCOMPARE(myWriter->log.filter("3 language").size(), 64);
}

void TestOmtWriter::fileThatIncludesItselfTwiceStops()
{
    const DtCapture warnings(DtWarn);
    myWriter->log.clear();
    run(QByteArray(theTypes) + "file a.txt root.tlt\ninclude ../data/script.txt\ninclude ../data/script.txt\n");
    QCOMPARE(warnings.text().count('\n'), 1);
    // The top file, 64 below it, and no further one once the limit has been met.
    QCOMPARE(myWriter->log.filter("3 file").size(), 65);
    QCOMPARE(int(myWriter->fileCount()), 65);
    QCOMPARE(myFixture->output("a.txt"), QString("2"));
}

void TestOmtWriter::twoFilesThatIncludeEachOtherStop()
{
    myFixture->writeData("a.txt", "include ../data/b.txt\ninclude ../data/b.txt\ninclude ../data/a.txt\n");
    myFixture->writeData("b.txt", "include ../data/a.txt\nlanguage b\ninclude ../data/./a.txt\n");
    const DtCapture warnings(DtWarn);
    QElapsedTimer time;
    time.start();
    run("include ../data/a.txt\n");
    QCOMPARE(warnings.text().count('\n'), 1);
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
}

void TestOmtWriter::cancelStopsAtTheNextLine()
{
    const DtString directory = DtFileWriter::outputDirectory();
    myWriter->cancelAt = "file b.txt root.tlt";
    myWriter->atSecondRun = [&] { QDir(myFixture->scratch("out")).removeRecursively(); };
    run(QByteArray(theTypes) + "subdir deep\nfile a.txt root.tlt\nfile b.txt root.tlt\nfile c.txt root.tlt\n");
    QCOMPARE(myFixture->outputs(), QStringList({"deep/a.txt", "deep/b.txt"}));
    QCOMPARE(myWriter->log.last(), QString("3 file b.txt root.tlt"));
    QCOMPARE(toQt(DtFileWriter::outputDirectory()), toQt(directory));
}

void TestOmtWriter::cancelInAnIncludedFileStopsTheOuterOneToo()
{
    myFixture->writeData("more.txt", "file a.txt root.tlt\nfile b.txt root.tlt\n");
    myWriter->cancelAt = "file a.txt root.tlt";
    run("templateDir t\ninclude ../data/more.txt\nlanguage after\n");
    QCOMPARE(myFixture->outputs(), QStringList("a.txt"));
    QCOMPARE(myWriter->log.last(), QString("3 file a.txt root.tlt"));
}

void TestOmtWriter::cancelledMeterWritesNothing()
{
    const DtString directory = DtFileWriter::outputDirectory();
    DtQtProgressMeter::instance()->setIsCancelled(true);
    QVERIFY(run(QByteArray(theTypes) + "file a.txt root.tlt\n"));
    QCOMPARE(myWriter->log, QStringList());
    QVERIFY(myFixture->outputs().isEmpty());
    QCOMPARE(toQt(DtFileWriter::outputDirectory()), toQt(directory));
}

void TestOmtWriter::modelNamesAreNoted()
{
    run("endTypes\n");
    QCOMPARE(toQt(DtOMTWriter::fomDefinitionFileName()), QString("model.xml"));
    QCOMPARE(toQt(DtOMTWriter::baseName()), QString("model.xml"));
    DtOmtProject project;
    myWriter->setOmtProject(&project);
    run("endTypes\n");
    QCOMPARE(toQt(DtOMTWriter::baseName()), QString("model.xml"));
    project.setBaseName("Harbour");
    run("beginTypes\nendTypes\n");
    QCOMPARE(toQt(DtOMTWriter::baseName()), QString("Harbour"));
    QCOMPARE(valueOf(myWriter->context(), "BaseName"), QString("Harbour"));
    myWriter->setOmtProject(nullptr);
}

void TestOmtWriter::usedDatatypesAreThoseOfTheSelection()
{
    run("endTypes\n");
    QCOMPARE(myWriter->usedDatatypes(), std::set<DtString>({"Float", "Hue", "Knots"}));
    myWriter->setObjectsToGenerate(selectionOf<DtOmtObject>({"HLAobjectRoot.Buoy"}));
    run("beginTypes\nendTypes\n");
    QVERIFY(myWriter->usedDatatypes().empty());
}

void TestOmtWriter::allDatatypesReachTheContextOnRequest()
{
    DtFileWriter::setAllDatatypes(true);
    run("endTypes\n");
    QCOMPARE(myWriter->usedDatatypes().count("Unused"), std::size_t(1));
    QCOMPARE(keysOf(mapAt(myWriter->context(), "Arrays")), QString("Unused"));
}

void TestOmtWriter::oldModelsUseAllArrays()
{
    myWriter->setHlaVersion(DtHla13);
    run("endTypes\n");
    QCOMPARE(myWriter->usedDatatypes().count("Unused"), std::size_t(1));
    QCOMPARE(keysOf(mapAt(myWriter->context(), "Arrays")), QString("Unused"));
}

void TestOmtWriter::oldMembersGetTheirArrays()
{
    DtTestModel model;
    model.addObject("HLAobjectRoot.A");
    model.addInteraction("HLAinteractionRoot.I");
    model.addAttribute("HLAobjectRoot.A", "many", "Foo", "10");
    model.addParameter("HLAinteractionRoot.I", "more", "Bar", "1+");
    myWriter->setHlaVersion(DtHla13);
    myWriter->setOmtTree(model.tree());
    myWriter->setObjectsToGenerate(selectionOf<DtOmtObject>({"HLAobjectRoot.A"}));
    myWriter->setInteractionsToGenerate(selectionOf<DtOmtInteraction>({"HLAinteractionRoot.I"}));
    run("endTypes\n");
    QCOMPARE(keysOf(mapAt(myWriter->context(), "Arrays")), QString("FooFixedArray10 BarVariableArray"));
    QCOMPARE(toQt(DtDataTypeMapper::instance()->quorvexType("many")), QString("FooFixedArray10"));
    // A newer model has its arrays declared.
    model.addAttribute("HLAobjectRoot.A", "new", "Foo", "11");
    myWriter->setHlaVersion(DtHla1516e);
    myWriter->setObjectsToGenerate(selectionOf<DtOmtObject>({"HLAobjectRoot.A"}));
    QVERIFY(model.tree()->getArrayDatatypeNode("FooFixedArray11") == nullptr);
}

void TestOmtWriter::componentsGetTheirArrays()
{
    DtTestModel model;
    DtComplexDatatypeNode* complex = model.addComplex("Old");
    DtTestModel::addComponent(complex, "a", "Foo", "3");
    DtComplexComponentNode* open = DtTestModel::addComponent(complex, "b", "Foo", "1+");
    myWriter->setOmtTree(model.tree());
    myWriter->checkComplexForArrayType(complex);
    QVERIFY(model.tree()->getArrayDatatypeNode("FooFixedArray3") != nullptr);
    QVERIFY(model.tree()->getArrayDatatypeNode("FooNullTerminatedArray") != nullptr);
    open->setDatatype("Bar");
    myWriter->createArrayTypeFromComponent(open);
    QVERIFY(model.tree()->getArrayDatatypeNode("BarNullTerminatedArray") != nullptr);
    QCOMPARE(toQt(myWriter->createArrayTypeFromItemInfo("item", "7", 0, "Foo")), QString("FooFixedArray7"));
    QCOMPARE(myWriter->usedDatatypes().count("FooFixedArray7"), std::size_t(1));
}

void TestOmtWriter::settingsAreApartFromThoseOfTheMainRoad()
{
    DtOMTWriter::setNamespaceName("second");
    DtOMTWriter::setIncludeName("inc");
    DtOMTEnvWriter::setFomDefinitionFileName("main.xml");
    myFixture->writeData("t/names.tlt",
                         "<!Namespace!>,<!NamespaceName!>,<!FomDefinitionFileName!>,<!FullFomFileName!>");
    run(QByteArray(theTypes) + "file names.h names.tlt\n");
    // The include name of this road puts no directory in front of a header.
    QCOMPARE(myFixture->output("names.h"), "second," + toQt(DtOMTEnvWriter::namespaceName()) + ",model.xml,main.xml");
    QCOMPARE(DtOMTWriter::maximumLineLength(), 300);
    QVERIFY(DtOMTWriter::MIMincluded());
}

void TestOmtWriter::namesAreListed()
{
    myWriter->addToFileList("b");
    myWriter->addToFileList("a");
    myWriter->addToFileList("b");
    QCOMPARE(myWriter->fileList(), std::set<DtString>({"a", "b"}));
    run(QByteArray(theTypes) + "file a.txt root.tlt\n");
    QCOMPARE(int(myWriter->fileList().size()), 2); // a run adds nothing
}

void TestOmtWriter::nextRunGivesTheSame()
{
    myFixture->writeData("t/all.tlt", "<#Objects><!ObjectName!> <!ObjectUniqueId!> <!ObjectParentUniqueId!>;<#>");
    const QByteArray script = QByteArray(theTypes) + "file a.txt all.tlt\n";
    run(script);
    const QString first = myFixture->output("a.txt");
    QFile::remove(myFixture->outputPath("a.txt"));
    myWriter = std::make_unique<DtLoggedWriter>();
    selectAll(*myWriter, *myTree);
    run(script);
    QCOMPARE(myFixture->output("a.txt"), first);
    QVERIFY(first.contains("Ship Ship ;"));
}

void TestOmtWriter::largestModelIsQuick()
{
    const QString file = QStringLiteral(QX_SHARED_DIR "/models/1516-2000/RPR_FOM_v2.0_1516-2000.xml");
    if (!QFile::exists(file))
        QSKIP("The large model is not here.");
    myTree = DtContextFixture::read(file);
    QVERIFY(myTree != nullptr);
    selectAll(*myWriter, *myTree);
    myFixture->writeData("t/all.tlt",
                         "<#Objects><!ObjectFullName!> <!ObjectDescriptorHtml!>\n"
                         "<#Attributes> <!AttributeName!> <!AttributeType!> <!AttributeDescriptionHtml!>\n<#><#>"
                         "<#Interactions><!InteractionFullName!>\n<#Parameters> <!ParameterName!>\n<#><#>"
                         "<#Enumerations><!EnumerationName!>\n"
                         "<#Enumerators> <!EnumeratorNameQuoted!>=<!EnumeratorValue!><?notlast>,<?>\n<#><#>"
                         "<#FixedRecords><!FixedRecName!>\n<#Fields> <!FieldName!> <!FieldType!>\n<#><#>");
    QElapsedTimer time;
    time.start();
    run(QByteArray(theTypes) + "file a.txt all.tlt\n");
    qInfo("The large model took %d ms.", int(time.elapsed()));
    QVERIFY(myFixture->output("a.txt").count('\n') > 4000);
    QVERIFY(!myFixture->output("a.txt").contains("<!"));
    QVERIFY2(time.elapsed() < 30000, qPrintable(QString::number(time.elapsed()))); // sanitizers take their time
}

QX_REGISTER_TEST(TestOmtWriter)
#include "testOmtWriter.moc"
