#include "registerTest.h"

#include "envWriterFixture.h"

#include "foundation/exception.h"

#include <QtTest/QtTest>

// The driver: what a run sets up, which files it writes beside those of classes and datatypes, and where it stops.
class TestOmtEnvWriter : public QObject, private DtEnvWriterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void emptySelectionStillGivesTheFixedFiles();
    void runWithoutTreeIsAWrongCallingOrder();
    void runSetsModelNameAndBaseName();
    void projectBaseNameGoesBeforeTheModelName();
    void exportMacroLosesDashesAndDots();
    void baseNameKeepsDashesInBuildProductsOnly();
    void directoriesAreMade();
    void includePathOutsideTheOutputDirectoryIsNotMade();
    void usedDatatypesStartEmptyInEveryRun();
    void allArraysCountAsUsedInTheOldestModels();
    void totalProgressFollowsTheFormula();
    void totalProgressLeavesOutMappedEnumeratedAndReplaced();
    void totalProgressCountsWhatTheClosureAdds();
    void totalProgressCountsDisAndExamples();
    void everyClassHasExamplesWhenTheyAreWanted();
    void disFilesAreWrittenWhenTheyAreWanted();
    void disSettingReachesTheBuildProducts_data();
    void disSettingReachesTheBuildProducts();
    void solutionHoldsClassesWithExamplesOnly_data();
    void solutionHoldsClassesWithExamplesOnly();
    void cancelBeforeTheClassesEndsTheRun();
    void cancelledRunWritesNoBuildProducts();
    void headersGoBelowTheIncludePath();
    void buildProductsListEveryFile();
    void errorsSettingReachesTheWriters();
};

void TestOmtEnvWriter::emptySelectionStillGivesTheFixedFiles()
{
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->outputs(), QStringList({"DataTypes/modelEnums.h", "Files-cc.txt", "Files-h.txt", "Makefile",
                                                "dllExport.h", "modelVC14_64.sln", "modelVC14_64.vcxproj"}));
}

void TestOmtEnvWriter::runWithoutTreeIsAWrongCallingOrder()
{
    DtOMTEnvWriter writer;
    QVERIFY_EXCEPTION_THROWN(writer.writeFile("model.xml"), DtException);
}

void TestOmtEnvWriter::runSetsModelNameAndBaseName()
{
    run("other.xml");
    QCOMPARE(DtOMTEnvWriter::fomDefinitionFileName(), DtString("other.xml"));
    QCOMPARE(DtOMTEnvWriter::baseName(), DtString("other.xml"));
}

void TestOmtEnvWriter::projectBaseNameGoesBeforeTheModelName()
{
    myProject->setBaseName("base.one");
    run("other.xml");
    QCOMPARE(DtOMTEnvWriter::fomDefinitionFileName(), DtString("other.xml"));
    QCOMPARE(DtOMTEnvWriter::baseName(), DtString("base.one"));
    QVERIFY(myFixture->hasOutput("DataTypes/baseEnums.h"));
    QVERIFY(myFixture->hasOutput("baseVC14_64.sln"));
}

void TestOmtEnvWriter::exportMacroLosesDashesAndDots()
{
    DtOMTEnvWriter::setBaseName("dir/my-mo.del_1.xml");
    myWriter->compileExportMacroName();
    QCOMPARE(DtFileWriter::exportMacroName(), DtString("DT_DLL_MYMODEL_1"));
}

void TestOmtEnvWriter::baseNameKeepsDashesInBuildProductsOnly()
{
    myFixture->writeTemplate("dllExport.tlt", "<!FomFileName!>");
    myFixture->writeTemplate("makefile.tlt", "<!LibName!>");
    myFixture->writeTemplate("solutionVC14_64.tlt", "<!ProjectName!>");
    run("dir/my-mo.del.xml");
    QVERIFY(myFixture->hasOutput("my-mo.delVC14_64.vcxproj"));
    QVERIFY(myFixture->hasOutput("DataTypes/mymodelEnums.h"));
    QCOMPARE(myFixture->output("dllExport.h"), QString("mymodel"));
    QCOMPARE(myFixture->output("Makefile"), QString("my-mo.del"));
    QCOMPARE(myFixture->output("my-mo.delVC14_64.sln"), QString("my-mo.del"));
}

void TestOmtEnvWriter::directoriesAreMade()
{
    DtOMTEnvWriter::setIncludeName("kit");
    run();
    QVERIFY(QFileInfo(myFixture->outputPath("kit")).isDir());
    QVERIFY(QFileInfo(myFixture->outputPath("DataTypes")).isDir());
}

void TestOmtEnvWriter::includePathOutsideTheOutputDirectoryIsNotMade()
{
    DtOMTEnvWriter::setIncludeName("a/../../elsewhere");
    const DtCapture capture(DtWarn);
    run();
    QVERIFY(!QFileInfo::exists(myFixture->scratch("elsewhere")));
    QVERIFY(capture.text().contains("dllExport.h is not written"));
}

void TestOmtEnvWriter::usedDatatypesStartEmptyInEveryRun()
{
    myWriter->createArrayTypeFromItemInfo("item", "3", 0, "Foo");
    QVERIFY(!myWriter->usedDatatypes().empty());
    run();
    QVERIFY(myWriter->usedDatatypes().empty());
}

void TestOmtEnvWriter::allArraysCountAsUsedInTheOldestModels()
{
    myModel->addArray("DeArray", "DeElement");
    myWriter->setHlaVersion(DtHla13);
    run("model.omt");
    QVERIFY(myFixture->hasOutput("DataTypes/deArray.h"));
    QCOMPARE(myWriter->usedDatatypes(), (std::set<DtString>{"DeArray", "DeElement"}));
}

void TestOmtEnvWriter::totalProgressFollowsTheFormula()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addObject("HLAobjectRoot.Ship");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myModel->addAttribute("HLAobjectRoot.Tank", "deSpeed", "DeUnmapped");
    select({"HLAobjectRoot.Tank", "HLAobjectRoot.Ship"}, {"HLAinteractionRoot.Fire"});
    myWriter->checkUsedSubDatatypesFiles();
    myWriter->setTotalProgress();
    QCOMPARE(DtQtProgressMeter::instance()->totalMeasure(), 16 + 2 * 1 + 12 * 2 + 6 * 1);
}

void TestOmtEnvWriter::totalProgressLeavesOutMappedEnumeratedAndReplaced()
{
    myModel->addObject("HLAobjectRoot.Tank");
    for (const char* name : {"DeMapped", "DeEnum", "DeReplaced", "DeCounted"})
        myModel->addAttribute("HLAobjectRoot.Tank", name, name);
    myModel->addEnumeration("DeEnum", "", {});
    DtDataTypeMapper::instance()->addMapping("DeMapped", "DtU8");
    DtDataTypeMapper::instance()->addToBeReplacedItem("DeReplaced", {});
    select({"HLAobjectRoot.Tank"});
    myWriter->checkUsedSubDatatypesFiles();
    // The members are named like their types: what is mapped by name counts for both.
    myWriter->setTotalProgress();
    QCOMPARE(DtQtProgressMeter::instance()->totalMeasure(), 16 + 2 * 1 + 12);
}

void TestOmtEnvWriter::totalProgressCountsWhatTheClosureAdds()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deMember", "DeOuter");
    myModel->addFixed("DeOuter", {
                                     {"f", "DeInner"}
    });
    myModel->addArray("DeInner", "DeElement");
    select({"HLAobjectRoot.Tank"});
    QCOMPARE(run(), 1);
    QCOMPARE(myWriter->usedDatatypes(), (std::set<DtString>{"DeElement", "DeInner", "DeOuter"}));
    QCOMPARE(DtQtProgressMeter::instance()->totalMeasure(), 16 + 2 * 3 + 12);
}

void TestOmtEnvWriter::totalProgressCountsDisAndExamples()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    select({"HLAobjectRoot.Tank"}, {"HLAinteractionRoot.Fire"});
    myWriter->setGenerateDis(true);
    myWriter->setTotalProgress();
    QCOMPARE(DtQtProgressMeter::instance()->totalMeasure(), 16 + 28 + 10);
    myWriter->setGenerateExamples(true);
    myWriter->setTotalProgress();
    QCOMPARE(DtQtProgressMeter::instance()->totalMeasure(), 16 + 28 + 12 + 10 + 12);
}

void TestOmtEnvWriter::everyClassHasExamplesWhenTheyAreWanted()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myModel->addAttribute("HLAobjectRoot.Tank", "deSpeed", "DeU32");
    DtDataTypeMapper::instance()->addMapping("DeU32", "DtU32");
    myFixture->writeTemplate("talkObjExample.tlt", "<!ClassName!><#Attributes> <!AttributeName!><#>");
    myFixture->writeTemplate("talkInterExample.tlt", "<!ClassName!>");
    myFixture->writeTemplate("talkExProjVC14_64.tlt", "<!UUID1!> <!UUID2!> ");
    myFixture->writeTemplate("solutionVC14_64.tlt",
                             "<#Objects><!UUID1!> <!UUID2!> <#><#Interactions><!UUID1!> <!UUID2!> <#>");
    select({"HLAobjectRoot.Tank"}, {"HLAinteractionRoot.Fire"});
    myWriter->setGenerateExamples(true);
    const DtCapture capture(DtWarn);
    run();
    QCOMPARE(capture.text(), QString());
    QCOMPARE(myFixture->output("Examples/Tank/talk.cxx"), QString("Tank DeSpeed"));
    QCOMPARE(myFixture->output("Examples/FireInter/talk.cxx"), QString("FireInter"));
    QCOMPARE(myFixture->output("modelVC14_64.sln"),
             myFixture->output("Examples/Tank/TankTalkVC14_64.vcxproj") +
                 myFixture->output("Examples/FireInter/FireInterTalkVC14_64.vcxproj"));
    QVERIFY(!myFixture->output("Files-cc.txt").contains("talk"));
}

void TestOmtEnvWriter::disFilesAreWrittenWhenTheyAreWanted()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myFixture->writeTemplate("makefile.tlt", "[<!GenerateDis!>]");
    select({"HLAobjectRoot.Tank"}, {"HLAinteractionRoot.Fire"});
    myWriter->setGenerateDis(true);
    const DtCapture capture(DtWarn);
    run();
    QCOMPARE(capture.text(), QString());
    QCOMPARE(myFixture->outputs().filter("tank", Qt::CaseInsensitive).size(), 28);
    QCOMPARE(myFixture->outputs().filter("fire").size(), 10);
    QVERIFY(myFixture->output("Files-cc.txt").contains("tankPdu.cxx\n"));
    QCOMPARE(myFixture->output("Makefile"), QString("[1]"));
    QVERIFY(!myFixture->hasOutput("Examples"));
}

void TestOmtEnvWriter::disSettingReachesTheBuildProducts_data()
{
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<QString>("expected");
    QTest::newRow("on") << true << "[1]";
    QTest::newRow("off") << false << "[]";
}

void TestOmtEnvWriter::disSettingReachesTheBuildProducts()
{
    QFETCH(bool, isOn);
    for (const char* name : {"projectFileVC14_64.tlt", "makefile.tlt"})
        myFixture->writeTemplate(name, "[<!GenerateDis!>]");
    myWriter->setGenerateDis(isOn);
    run();
    QTEST(myFixture->output("modelVC14_64.vcxproj"), "expected");
    QTEST(myFixture->output("Makefile"), "expected");
}

void TestOmtEnvWriter::solutionHoldsClassesWithExamplesOnly_data()
{
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<QString>("expected");
    QTest::newRow("on") << true << "model Tank Fire";
    QTest::newRow("off") << false << "model";
}

void TestOmtEnvWriter::solutionHoldsClassesWithExamplesOnly()
{
    QFETCH(bool, isOn);
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myFixture->writeTemplate("solutionVC14_64.tlt",
                             "<!ProjectName!><#Objects> <!Object!><#><#Interactions> <!Interaction!><#>");
    select({"HLAobjectRoot.Tank"}, {"HLAinteractionRoot.Fire"});
    myWriter->setGenerateExamples(isOn);
    run();
    QTEST(myFixture->output("modelVC14_64.sln"), "expected");
}

void TestOmtEnvWriter::cancelBeforeTheClassesEndsTheRun()
{
    myModel->addInteraction("HLAinteractionRoot.Fire");
    select({}, {"HLAinteractionRoot.Fire"});
    DtQtProgressMeter::instance()->setIsCancelled(true);
    QCOMPARE(run(), 0);
    QVERIFY(!myFixture->hasOutput("fireInterHLA.h"));
    std::set<DtString> done;
    myWriter->addInteractionToFile("HLAinteractionRoot.Fire", done);
    QVERIFY(done.empty());
}

void TestOmtEnvWriter::cancelledRunWritesNoBuildProducts()
{
    DtQtProgressMeter::instance()->setIsCancelled(true);
    // With nothing selected there is no place left to stop at but the build products.
    QCOMPARE(run(), 1);
    QVERIFY(!myFixture->hasOutput("Makefile"));
    QVERIFY(!myFixture->hasOutput("modelVC14_64.vcxproj"));
    QVERIFY(!myFixture->hasOutput("modelVC14_64.sln"));
    QVERIFY(myFixture->hasOutput("dllExport.h"));
}

void TestOmtEnvWriter::headersGoBelowTheIncludePath()
{
    DtOMTEnvWriter::setIncludeName("kit");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "DeFixed");
    myModel->addFixed("DeFixed", {});
    select({"HLAobjectRoot.Tank"});
    run();
    QVERIFY(myFixture->hasOutput("kit/DataTypes/deFixed.h"));
    QVERIFY(myFixture->hasOutput("DataTypes/deFixed.cxx"));
    QVERIFY(myFixture->hasOutput("kit/tankEncoderHLA.h"));
    QVERIFY(isListed("DataTypes/deFixed.h"));
}

void TestOmtEnvWriter::buildProductsListEveryFile()
{
    myFixture->writeTemplate("projectFileVC14_64.tlt", "<!ProjectName!>:<#Files><!FileName!>;<#>");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    select({}, {"HLAinteractionRoot.Fire"});
    run();
    QCOMPARE(myFixture->output("modelVC14_64.vcxproj"),
             QString("model:DataTypes/modelEnums.h;dllExport.h;fireInterDecoderHLA.cxx;fireInterDecoderHLA.h;"
                     "fireInterEncoderHLA.cxx;fireInterEncoderHLA.h;fireInterHLA.cxx;fireInterHLA.h;"));
    QCOMPARE(myFixture->output("Files-cc.txt"),
             QString("fireInterDecoderHLA.cxx\nfireInterEncoderHLA.cxx\nfireInterHLA.cxx\n"));
    QCOMPARE(myFixture->output("Files-h.txt"),
             QString("DataTypes/modelEnums.h\ndllExport.h\nfireInterDecoderHLA.h\nfireInterEncoderHLA.h\n"
                     "fireInterHLA.h\n"));
}

void TestOmtEnvWriter::errorsSettingReachesTheWriters()
{
    myWriter->setGenerateErrors(true);
    QVERIFY(DtFileWriter::generateErrors());
    myWriter->setGenerateErrors(false);
    QVERIFY(!DtFileWriter::generateErrors());
}

QX_REGISTER_TEST(TestOmtEnvWriter)
#include "testOmtEnvWriter.moc"
