#include "registerTest.h"

#include "envWriterFixture.h"

#include "foundation/exception.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

// The driver: what a run writes, in which order, and under which names.
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
    void selectedClassesGetTheirFiles();
    void classIsGeneratedOncePerName();
    void interactionIsGeneratedOncePerName();
    void unknownClassTakesNoPduKind();
    void pduKindRunsOnFromObjectsToInteractions();
    void classWithoutRecordIsSkipped();
    void topClassHangsUnderTheRoot();
    void subclassNamesItsParent();
    void parentNameFollowsItsRename();
    void renamedClassUsesItsNewName();
    void plainNameIsMadeAnIdentifier();
    void runWorksWithoutProject();
    void memberCardinalityIsAlwaysOne();
    void memberOfMappedNameTakesThatType();
    void emptiedMemberListIsPassedOver();
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
    void enumerationsFileHoldsUsedUnmappedOnly();
    void enumerationSizeComesFromItsRepresentation_data();
    void enumerationSizeComesFromItsRepresentation();
    void enumerationIsKnownToTheMapper();
    void enumerationsFileIsWrittenWhenEmpty();
    void everyFamilyWritesAPairForItsUsedDatatypes();
    void familiesUseTheirTemplates();
    void mappedDatatypeGetsNoFiles();
    void simpleDatatypeIsLeftOutWhenReplacedOnly();
    void datatypeIsMappedToItsClass();
    void prefixEntersTheDatatypeNames();
    void originalNameOfArrayIsAnIdentifier();
    void simpleAndVariantNameTheirClassOutsideTheLoop();
    void variantGetsItsDiscriminant();
    void arrayEncodingIsThatOfTheMapper();
    void memberNamesClassOfLaterDatatype();
    void componentArrayIsWrittenInTheSameRun();
    void longNamesAreNumberedInTheOrderOfWriting();
    void complexFilesIgnoreCancel();
    void otherFamiliesStopOnCancel();
    void decodeabilityIsFoundOncePerDatatype();
    void headersGoBelowTheIncludePath();
    void buildProductsListEveryFile();
    void identifiersAreMadeBeforeTheSelectionIsCopied();
    void renameOperationsFallBackToThePlainName();
    void renameOfMembersIsNeverFound();
    void errorsSettingReachesTheWriters();
    void cyclicModelIsGenerated();
    void manyClassesAreGenerated();
};

namespace
{
const char* const theDatatypeTemplates[] = {"subTemplates/complexTypesHeader.tlt",
                                            "subTemplates/complexTypesSource.tlt",
                                            "subTemplates/basicTypesHeader.tlt",
                                            "subTemplates/basicTypesSource.tlt",
                                            "subTemplates/simpleTypesHeader.tlt",
                                            "subTemplates/simpleTypesSource.tlt",
                                            "arrayHeaderByEncoding.tlt",
                                            "arraySourceByEncoding.tlt",
                                            "subTemplates/fixedRecordsHeader.tlt",
                                            "subTemplates/fixedRecordsSource.tlt",
                                            "subTemplates/variantRecordsHeader.tlt",
                                            "subTemplates/variantRecordsSource.tlt"};
} // namespace

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

void TestOmtEnvWriter::selectedClassesGetTheirFiles()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addObject("HLAobjectRoot.Ship");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    select({"HLAobjectRoot.Tank"}, {"HLAinteractionRoot.Fire"});
    QCOMPARE(run(), 1);
    QVERIFY(myFixture->hasOutput("tankEncoderHLA.h"));
    QVERIFY(myFixture->hasOutput("fireInterHLA.cxx"));
    QVERIFY(!myFixture->hasOutput("shipEncoderHLA.h"));
    QCOMPARE(myFixture->outputs().size(), 7 + 12 + 6);
    QCOMPARE(myWriter->fileList().size(), std::size_t(2 + 12 + 6));
}

void TestOmtEnvWriter::classIsGeneratedOncePerName()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myFixture->writeTemplate("hpubHeader.tlt", "<!PduKind!>");
    select({"HLAobjectRoot.Tank"});
    std::set<DtString> done;
    myWriter->addObjectToFile("HLAobjectRoot.Tank", done);
    myWriter->addObjectToFile("HLAobjectRoot.Tank", done);
    QCOMPARE(done, std::set<DtString>{"HLAobjectRoot.Tank"});
    QCOMPARE(myFixture->output("tankPublisherHLA.h"), QString("0"));
}

void TestOmtEnvWriter::interactionIsGeneratedOncePerName()
{
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myFixture->writeTemplate("hinterHeader.tlt", "<!PduKind!>");
    select({}, {"HLAinteractionRoot.Fire"});
    std::set<DtString> done = {"HLAinteractionRoot.Fire"};
    myWriter->addInteractionToFile("HLAinteractionRoot.Fire", done);
    QCOMPARE(myFixture->outputs(), QStringList());
    done.clear();
    myWriter->addInteractionToFile("HLAinteractionRoot.Fire", done);
    myWriter->addInteractionToFile("HLAinteractionRoot.Fire", done);
    QCOMPARE(done, std::set<DtString>{"HLAinteractionRoot.Fire"});
    QCOMPARE(myFixture->output("fireInterHLA.h"), QString("0"));
}

void TestOmtEnvWriter::unknownClassTakesNoPduKind()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myFixture->writeTemplate("hpubHeader.tlt", "<!PduKind!>");
    myWriter->setFirstPduKind(10);
    select({"HLAobjectRoot.Nowhere", "HLAobjectRoot.Tank"});
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("tankPublisherHLA.h"), QString("10"));
    QVERIFY(!myFixture->hasOutput("nowherePublisherHLA.h"));
}

void TestOmtEnvWriter::pduKindRunsOnFromObjectsToInteractions()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addObject("HLAobjectRoot.Ship");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myFixture->writeTemplate("hpubHeader.tlt", "<!PduKind!>");
    myFixture->writeTemplate("hinterHeader.tlt", "<!PduKind!>");
    myWriter->setFirstPduKind(100);
    select({"HLAobjectRoot.Tank", "HLAobjectRoot.Ship"}, {"HLAinteractionRoot.Fire"});
    run();
    QCOMPARE(myFixture->output("shipPublisherHLA.h"), QString("100"));
    QCOMPARE(myFixture->output("tankPublisherHLA.h"), QString("101"));
    QCOMPARE(myFixture->output("fireInterHLA.h"), QString("102"));
}

void TestOmtEnvWriter::classWithoutRecordIsSkipped()
{
    myModel->addObject("HLAobjectRoot.Tank");
    std::set<DtString> done;
    myWriter->addObjectToFile("HLAobjectRoot.Tank", done);
    QVERIFY(done.empty());
}

void TestOmtEnvWriter::topClassHangsUnderTheRoot()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myFixture->writeTemplate("hobjEncHeader.tlt", "<!BaseClassName!>");
    myFixture->writeTemplate("hintEncHeader.tlt", "<!BaseClassName!>");
    select({"HLAobjectRoot.Tank"}, {"HLAinteractionRoot.Fire"});
    run();
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("DtHlaStateEncoder"));
    QCOMPARE(myFixture->output("fireInterEncoderHLA.h"), QString("DtInteractionEncoder"));
}

void TestOmtEnvWriter::subclassNamesItsParent()
{
    myModel->addObject("HLAobjectRoot.Vehicle");
    myModel->addObject("HLAobjectRoot.Vehicle.Tank");
    myModel->addInteraction("HLAinteractionRoot.Act");
    myModel->addInteraction("HLAinteractionRoot.Act.Fire");
    myFixture->writeTemplate("hobjEncHeader.tlt", "<!BaseClassName!> <!FullClassName!>");
    myFixture->writeTemplate("hintEncHeader.tlt", "<!BaseClassName!> <!FullClassName!>");
    select({"HLAobjectRoot.Vehicle.Tank"}, {"HLAinteractionRoot.Act.Fire"});
    run();
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("DtVehicleEncoder HLAobjectRoot.Vehicle.Tank"));
    QCOMPARE(myFixture->output("fireInterEncoderHLA.h"), QString("DtActInterEncoder HLAinteractionRoot.Act.Fire"));
}

void TestOmtEnvWriter::parentNameFollowsItsRename()
{
    myModel->addObject("HLAobjectRoot.Vehicle");
    myModel->addObject("HLAobjectRoot.Vehicle.Tank");
    myModel->addInteraction("HLAinteractionRoot.Act");
    myModel->addInteraction("HLAinteractionRoot.Act.Fire");
    myFixture->writeTemplate("hobjEncHeader.tlt", "<!BaseClassName!>");
    myFixture->writeTemplate("hintEncHeader.tlt", "<!BaseClassName!>");
    myProject->addObject("HLAobjectRoot.Vehicle", true, "Carrier");
    myProject->addInteraction("HLAinteractionRoot.Act", true, "Deed");
    select({"HLAobjectRoot.Vehicle.Tank"}, {"HLAinteractionRoot.Act.Fire"});
    run();
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("DtCarrierEncoder"));
    QCOMPARE(myFixture->output("fireInterEncoderHLA.h"), QString("DtDeedInterEncoder"));
    QVERIFY(myFixture->hasOutput("carrierEncoderHLA.h"));
}

void TestOmtEnvWriter::renamedClassUsesItsNewName()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myProject->addObject("HLAobjectRoot.Tank", true, "Panzer");
    myProject->addInteraction("HLAinteractionRoot.Fire", true, "Shot");
    select({});
    run();
    QVERIFY(myFixture->hasOutput("panzerEncoderHLA.h"));
    QVERIFY(myFixture->hasOutput("shotInterHLA.h"));
    QVERIFY(!myFixture->hasOutput("tankEncoderHLA.h"));
}

void TestOmtEnvWriter::plainNameIsMadeAnIdentifier()
{
    myModel->addObject("HLAobjectRoot.Main-Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire/Stop");
    select({"HLAobjectRoot.Main-Tank"}, {"HLAinteractionRoot.Fire/Stop"});
    run();
    QVERIFY(myFixture->hasOutput("main__TankEncoderHLA.h"));
    QVERIFY(myFixture->hasOutput("fire__StopInterHLA.h"));
}

void TestOmtEnvWriter::runWorksWithoutProject()
{
    myModel->addObject("HLAobjectRoot.Vehicle");
    myModel->addObject("HLAobjectRoot.Vehicle.Tank");
    myFixture->writeTemplate("hobjEncHeader.tlt", "<!BaseClassName!>");
    select({"HLAobjectRoot.Vehicle.Tank"});
    myWriter->setOmtProject(nullptr);
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("DtVehicleEncoder"));
}

void TestOmtEnvWriter::memberCardinalityIsAlwaysOne()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deSpeeds", "DeU32", "5");
    DtDataTypeMapper::instance()->addMapping("DeU32", "DtU32");
    myFixture->writeTemplate("stateRepHeader.tlt", "<#Attributes><!AttributeDatatype!> <!AttributeNumCardinality!><#>");
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(myFixture->output("tankStateRepository.h"), QString("DtU32 1"));
}

void TestOmtEnvWriter::memberOfMappedNameTakesThatType()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myModel->addAttribute("HLAobjectRoot.Tank", "deSpeed", "DeU32");
    myModel->addParameter("HLAinteractionRoot.Fire", "deSpeed", "DeU32");
    DtDataTypeMapper::instance()->addMapping("DeU32", "DtU32");
    DtDataTypeMapper::instance()->addMapping("deSpeed", "DeOther");
    DtDataTypeMapper::instance()->addMapping("DeOther", "DtU8");
    for (const char* name : {"stateRepHeader.tlt", "hinterHeader.tlt"})
        myFixture->writeTemplate(name,
                                 "<#Attributes><!AttributeName!> <!AttributeFomDatatype!> <!AttributeDatatype!><#>");
    select({"HLAobjectRoot.Tank"}, {"HLAinteractionRoot.Fire"});
    run();
    QCOMPARE(myFixture->output("tankStateRepository.h"), QString("DeSpeed DeOther DtU8"));
    QCOMPARE(myFixture->output("fireInterHLA.h"), QString("DeSpeed DeOther DtU8"));
}

void TestOmtEnvWriter::emptiedMemberListIsPassedOver()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deSpeed", "DeU32");
    myModel->tree()->getObjectClassNode("HLAobjectRoot.Tank")->removeAttributes();
    select({"HLAobjectRoot.Tank"});
    QCOMPARE(run(), 1);
    QVERIFY(myWriter->usedDatatypes().empty());
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

namespace
{
const QByteArray theEnumTemplate =
    "<#Enumeration><!EnumerationName!>(<#EnumerationField><!EnumerationFieldName!>=<!EnumerationFieldValue!>,<#>)<#>";
} // namespace

void TestOmtEnvWriter::enumerationsFileHoldsUsedUnmappedOnly()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deOne", "DeUsedEnum8");
    myModel->addAttribute("HLAobjectRoot.Tank", "deTwo", "DeMappedEnum8");
    for (const char* name : {"DeUsedEnum8", "DeMappedEnum8", "DeUnusedEnum8"})
        myModel->addEnumeration(name, "HLAoctet",
                                {
                                    {"red",   4 },
                                    {"green", -1}
        });
    DtDataTypeMapper::instance()->addMapping("DeMappedEnum8", "bool");
    myFixture->writeTemplate("enums.tlt", theEnumTemplate);
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(myFixture->output("DataTypes/modelEnums.h"), QString("DtDeUsedEnum8(red=4,green=-1,)"));
    QVERIFY(isListed("DataTypes/modelEnums.h"));
}

void TestOmtEnvWriter::enumerationSizeComesFromItsRepresentation_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("type");
    QTest::newRow("signed") << "DeEnumA"
                            << "DeInt16"
                            << "16"
                            << "DtU16";
    QTest::newRow("unsigned") << "DeEnumB"
                              << "DeU64"
                              << "64"
                              << "DtU64";
    QTest::newRow("through a simple type") << "DeEnumC"
                                           << "DeSimpleU8"
                                           << "8"
                                           << "DtU8";
    QTest::newRow("by the name") << "DeEnum8"
                                 << "DeNothing"
                                 << "8"
                                 << "DtU8";
    QTest::newRow("none at all") << "DeKind"
                                 << "DeNothing"
                                 << "32"
                                 << "DtDeKind";
    QTest::newRow("no number in the type") << "DeFloatKind"
                                           << "DeFloat"
                                           << "32"
                                           << "DtFloat32";
}

void TestOmtEnvWriter::enumerationSizeComesFromItsRepresentation()
{
    QFETCH(QString, name);
    QFETCH(QString, representation);
    QFETCH(QString, size);
    QFETCH(QString, type);
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addMapping("DeInt16", "DtInt16");
    mapper.addMapping("DeU64", "DtU64");
    mapper.addMapping("DeU8", "DtU8");
    mapper.addMapping("DeFloat", "DtFloat32");
    mapper.addSimpleTypeToRepresentationMapping("DeSimpleU8", "DeU8");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deKindOfIt", qPrintable(name));
    myModel->addEnumeration(qPrintable(name), qPrintable(representation),
                            {
                                {"one", 1}
    });
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(QString(mapper.enumerationSize(qPrintable(name)).c_str()), size);
    QCOMPARE(QString(mapper.repForEnumName(qPrintable(name)).c_str()), type);
}

void TestOmtEnvWriter::enumerationIsKnownToTheMapper()
{
    DtOMTEnvWriter::setPrefixName("x");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deColour", "deColourKind");
    myModel->addEnumeration("deColourKind", "DeNothing",
                            {
                                {"red", 1}
    });
    select({"HLAobjectRoot.Tank"});
    run();
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    QVERIFY(mapper.isEnumeration("deColourKind"));
    QCOMPARE(mapper.quorvexType("deColourKind"), DtString("DtDeColourKind"));
    QCOMPARE(mapper.repForEnumName("deColourKind"), DtString("DtXdeColourKind"));
    QCOMPARE(DtDatatypeClassNames::instance().enumerationRepresentation("deColourKind"), DtString("DeNothing"));
}

void TestOmtEnvWriter::enumerationsFileIsWrittenWhenEmpty()
{
    myFixture->writeTemplate("enums.tlt", "none" + theEnumTemplate);
    run();
    QCOMPARE(myFixture->output("DataTypes/modelEnums.h"), QString("none"));
}

void TestOmtEnvWriter::everyFamilyWritesAPairForItsUsedDatatypes()
{
    myModel->addObject("HLAobjectRoot.Tank");
    for (const char* name : {"DeComplex", "DeBasic", "DeSimple", "DeArray", "DeFixed", "DeVariant"})
        myModel->addAttribute("HLAobjectRoot.Tank", DtString("member") + name, name);
    for (const DtString name : {"De", "DeUnused"})
    {
        DtTestModel::addComponent(myModel->addComplex(name + "Complex"), "c", "DeBasic", "1");
        myModel->addBasic(name + "Basic", "32");
        myModel->addSimple(name + "Simple", name + "Basic");
        myModel->addArray(name + "Array", name + "Basic");
        myModel->addFixed(name + "Fixed", {
                                              {"f", name + "Basic"}
        });
        myModel->addVariant(name + "Variant", "kind", name + "Basic",
                            {
                                {"v", name + "Basic"}
        });
    }
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(
        myFixture->outputs().filter("DataTypes/"),
        QStringList({"DataTypes/deArray.cxx", "DataTypes/deArray.h", "DataTypes/deBasic.cxx", "DataTypes/deBasic.h",
                     "DataTypes/deComplex.cxx", "DataTypes/deComplex.h", "DataTypes/deFixed.cxx", "DataTypes/deFixed.h",
                     "DataTypes/deSimple.cxx", "DataTypes/deSimple.h", "DataTypes/deVariant.cxx",
                     "DataTypes/deVariant.h", "DataTypes/modelEnums.h"}));
    QVERIFY(isListed("DataTypes/deArray.cxx"));
    QVERIFY(isListed("DataTypes/deVariant.h"));
}

void TestOmtEnvWriter::familiesUseTheirTemplates()
{
    for (const char* name : theDatatypeTemplates)
        myFixture->writeTemplate(name, name);
    myModel->addObject("HLAobjectRoot.Tank");
    const char* const families[] = {"DfComplex", "DfBasic", "DfSimple", "DfArray", "DfFixed", "DfVariant"};
    for (const char* name : families)
        myModel->addAttribute("HLAobjectRoot.Tank", DtString("member") + name, name);
    myModel->addComplex("DfComplex");
    myModel->addBasic("DfBasic", "32");
    myModel->addSimple("DfSimple", "DfBasic");
    myModel->addArray("DfArray", "DfBasic");
    myModel->addFixed("DfFixed", {});
    myModel->addVariant("DfVariant", "kind", "DfBasic", {});
    select({"HLAobjectRoot.Tank"});
    run();
    for (int family = 0; family < 6; ++family)
    {
        const QString stem = QString("DataTypes/d") + (families[family] + 1);
        QCOMPARE(myFixture->output(stem + ".h"), QString(theDatatypeTemplates[2 * family]));
        QCOMPARE(myFixture->output(stem + ".cxx"), QString(theDatatypeTemplates[2 * family + 1]));
    }
}

void TestOmtEnvWriter::mappedDatatypeGetsNoFiles()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deArrayMember", "DeArray");
    myModel->addArray("DeArray", "DeFixed");
    myModel->addFixed("DeFixed", {});
    DtDataTypeMapper::instance()->addMapping("DeArray", "DtString");
    select({"HLAobjectRoot.Tank"});
    run();
    QVERIFY(!myFixture->hasOutput("DataTypes/deArray.h"));
    QVERIFY(myFixture->hasOutput("DataTypes/deFixed.h"));
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("DeArray"), DtString("DtString"));
}

void TestOmtEnvWriter::simpleDatatypeIsLeftOutWhenReplacedOnly()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m1", "DsReplaced");
    myModel->addAttribute("HLAobjectRoot.Tank", "m2", "DsMapped");
    myModel->addSimple("DsReplaced", "DsKnown");
    myModel->addSimple("DsMapped", "DsUnknown");
    DtDataTypeMapper::instance()->addMapping("DsKnown", "DtU16");
    DtDataTypeMapper::instance()->addMapping("DsMapped", "DtU8");
    select({"HLAobjectRoot.Tank"});
    run();
    QVERIFY(!myFixture->hasOutput("DataTypes/dsReplaced.h"));
    QVERIFY(myFixture->hasOutput("DataTypes/dsMapped.h"));
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("DsMapped"), DtString("DtDsMapped"));
}

void TestOmtEnvWriter::datatypeIsMappedToItsClass()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "De-Fixed.Type");
    myModel->addFixed("De-Fixed.Type", {});
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("De-Fixed.Type"), DtString("DtDe__Fixed__Type"));
    QVERIFY(myFixture->hasOutput("DataTypes/de__Fixed__Type.cxx"));
}

void TestOmtEnvWriter::prefixEntersTheDatatypeNames()
{
    DtOMTEnvWriter::setPrefixName("Kit");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "DeFixed");
    myModel->addFixed("DeFixed", {});
    select({"HLAobjectRoot.Tank"});
    run();
    QVERIFY(myFixture->hasOutput("DataTypes/kitDeFixed.h"));
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("DeFixed"), DtString("DtKitDeFixed"));
}

void TestOmtEnvWriter::originalNameOfArrayIsAnIdentifier()
{
    // The boundary is asked for under the original name, so it shows which name that is.
    myFixture->writeTemplate("arrayHeaderByEncoding.tlt", "<!OctetBoundary!>");
    myFixture->writeTemplate("subTemplates/fixedRecordsHeader.tlt", "<!OctetBoundary!>");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m1", "De-Array");
    myModel->addAttribute("HLAobjectRoot.Tank", "m2", "De-Fixed");
    myModel->addArray("De-Array", "DeNothing");
    myModel->addFixed("De-Fixed", {});
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.populateFromOmtTree(myModel->tree());
    mapper.addDataTypeNameToBoundary("De__Array", 4);
    mapper.addDataTypeNameToBoundary("De-Array", 2);
    mapper.addDataTypeNameToBoundary("De__Fixed", 4);
    mapper.addDataTypeNameToBoundary("De-Fixed", 2);
    select({"HLAobjectRoot.Tank"});
    myWriter->writeFile("model.xml");
    QCOMPARE(myFixture->output("DataTypes/de__Array.h"), QString("4"));
    QCOMPARE(myFixture->output("DataTypes/de__Fixed.h"), QString("2"));
}

void TestOmtEnvWriter::simpleAndVariantNameTheirClassOutsideTheLoop()
{
    for (const char* name : theDatatypeTemplates)
        myFixture->writeTemplate(name, "[<!ClassName!>]");
    myModel->addObject("HLAobjectRoot.Tank");
    for (const char* name : {"DgSimple", "DgFixed", "DgVariant"})
        myModel->addAttribute("HLAobjectRoot.Tank", DtString("member") + name, name);
    myModel->addSimple("DgSimple", "DgBasic");
    myModel->addFixed("DgFixed", {});
    myModel->addVariant("DgVariant", "kind", "DgBasic", {});
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(myFixture->output("DataTypes/dgSimple.h"), QString("[DtDgSimple]"));
    QCOMPARE(myFixture->output("DataTypes/dgSimple.cxx"), QString("[DtDgSimple]"));
    QCOMPARE(myFixture->output("DataTypes/dgVariant.cxx"), QString("[DtDgVariant]"));
}

void TestOmtEnvWriter::variantGetsItsDiscriminant()
{
    for (const char* name : {"subTemplates/variantRecordsHeader.tlt", "subTemplates/variantRecordsSource.tlt"})
        myFixture->writeTemplate(name, "<!ClassDiscriminantName!> <!ClassDiscriminantType!><#ClassDatatypes>"
                                       "<#Attributes> <!AttributeName!>=<!CurrentDiscriminantEnumerator!><#><#>");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "DvVariant");
    myModel->addVariant("DvVariant", "kind", "DvKind",
                        {
                            {"first", "DvOne"},
                            {"none",  "NA"   },
                            {"last",  "DvTwo"}
    });
    select({"HLAobjectRoot.Tank"});
    run();
    const QString expected = "kind DvKind First=firstKind Last=lastKind";
    QCOMPARE(myFixture->output("DataTypes/dvVariant.h"), expected);
    QCOMPARE(myFixture->output("DataTypes/dvVariant.cxx"), expected);
}

void TestOmtEnvWriter::arrayEncodingIsThatOfTheMapper()
{
    myFixture->writeTemplate("arrayHeaderByEncoding.tlt", "<!MyEncoding!>");
    myFixture->writeTemplate("arraySourceByEncoding.tlt", "<!MyEncoding!>");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "DwArray");
    myModel->addArray("DwArray", "DwElement", "4", "CustomEncoding");
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(myFixture->output("DataTypes/dwArray.h"), QString("CustomEncoding"));
    QCOMPARE(myFixture->output("DataTypes/dwArray.cxx"), QString("CustomEncoding"));
}

void TestOmtEnvWriter::memberNamesClassOfLaterDatatype()
{
    // Arrays come before records, and their members name the classes of records all the same.
    myFixture->writeTemplate("arrayHeaderByEncoding.tlt",
                             "<#ClassDatatypes><!ClassName!>:<#Attributes><!AttributeDatatype!><#><#>");
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "DxArray");
    myModel->addArray("DxArray", "DxFixed");
    myModel->addFixed("DxFixed", {
                                     {"f", "DxArray"}
    });
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(myFixture->output("DataTypes/dxArray.h"), QString("DtDxArray:DtDxFixed"));
}

void TestOmtEnvWriter::componentArrayIsWrittenInTheSameRun()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "DyComplex");
    DtTestModel::addComponent(myModel->addComplex("DyComplex"), "c", "DyElement", "5");
    myWriter->setHlaVersion(DtHla13);
    select({"HLAobjectRoot.Tank"});
    run("model.omt");
    QVERIFY(myFixture->hasOutput("DataTypes/dyComplex.h"));
    QVERIFY(myFixture->hasOutput("DataTypes/dyElementFixedArray5.h"));
    QVERIFY(isListed("DataTypes/dyElementFixedArray5.cxx"));
}

void TestOmtEnvWriter::longNamesAreNumberedInTheOrderOfWriting()
{
    // The complex datatype first, then the array of its component, then the basic datatype that both lead to.
    const DtString complex(std::string(101, 'c'));
    const DtString basic(std::string(101, 'b'));
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", complex);
    DtTestModel::addComponent(myModel->addComplex(complex), "c", basic, "5");
    myModel->addBasic(basic, "32");
    myWriter->setHlaVersion(DtHla13);
    select({"HLAobjectRoot.Tank"});
    run("model.omt");
    QString names;
    for (const QString& name : myFixture->outputs().filter("DataTypes/").filter(".cxx"))
        names += name.section('/', 1).section('.', 0, 0) + ' ';
    const QRegularExpressionMatch match = QRegularExpression("^b{50}(\\d+) b{50}(\\d+) c{50}(\\d+) $").match(names);
    QVERIFY2(match.hasMatch(), qPrintable(names));
    std::vector<int> numbers = {match.captured(1).toInt(), match.captured(2).toInt()};
    std::sort(numbers.begin(), numbers.end());
    const int first = match.captured(3).toInt();
    QCOMPARE(numbers, (std::vector<int>{first + 1, first + 2}));
    const DtOMTTree& tree = *myModel->tree();
    QCOMPARE((*tree.getArrayDatatypeNodeList())->getName(), DtString(std::string(50, 'b')) + DtString(first + 1));
}

void TestOmtEnvWriter::complexFilesIgnoreCancel()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "DyComplex");
    myModel->addComplex("DyComplex");
    select({"HLAobjectRoot.Tank"});
    myWriter->checkUsedSubDatatypesFiles();
    DtQtProgressMeter::instance()->setIsCancelled(true);
    myWriter->writeComplexFiles();
    QVERIFY(myFixture->hasOutput("DataTypes/dyComplex.h"));
}

void TestOmtEnvWriter::otherFamiliesStopOnCancel()
{
    myModel->addObject("HLAobjectRoot.Tank");
    for (const char* name : {"DzBasic", "DzSimple", "DzArray", "DzFixed", "DzVariant"})
        myModel->addAttribute("HLAobjectRoot.Tank", DtString("member") + name, name);
    myModel->addBasic("DzBasic", "32");
    myModel->addSimple("DzSimple", "DzBasic");
    myModel->addArray("DzArray", "DzBasic");
    myModel->addFixed("DzFixed", {});
    myModel->addVariant("DzVariant", "kind", "DzBasic", {});
    select({"HLAobjectRoot.Tank"});
    DtQtProgressMeter::instance()->setIsCancelled(true);
    QCOMPARE(run(), 0);
    QCOMPARE(myFixture->outputs().filter("DataTypes/"), QStringList("DataTypes/modelEnums.h"));
}

void TestOmtEnvWriter::decodeabilityIsFoundOncePerDatatype()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "D1Record");
    myModel->addFixed("D1Record", {
                                      {"a", "D1Open"},
                                      {"b", "D1Open"}
    });
    myModel->addArray("D1Open", "D1Element");
    DtDataTypeMapper::instance()->addMapping("D1Element", "DtU8");
    select({"HLAobjectRoot.Tank"});
    const DtCapture capture(DtWarn);
    run();
    QCOMPARE(capture.text().count("Warning: Cannot encode/decode data type DtD1Record."), 1);
    QVERIFY(DtDataTypeMapper::instance()->isNonEncodeableDataType("DtD1Record"));
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

void TestOmtEnvWriter::identifiersAreMadeBeforeTheSelectionIsCopied()
{
    std::set<DtOmtObject> objects;
    DtOmtObject tank;
    tank.setFullName("HLAobjectRoot.Tank");
    objects.insert(tank);
    myWriter->setObjectsToGenerate(objects);
    // A copy that is made now has the identifiers of the original.
    const DtOmtObject copy = *objects.begin();
    QCOMPARE(copy.uuid(1), objects.begin()->uuid(1));
    QCOMPARE(copy.uuid(2), objects.begin()->uuid(2));

    std::set<DtOmtInteraction> interactions;
    interactions.insert(DtOmtInteraction());
    myWriter->setInteractionsToGenerate(interactions);
    const DtOmtInteraction interaction = *interactions.begin();
    QCOMPARE(interaction.uuid(2), interactions.begin()->uuid(2));
}

void TestOmtEnvWriter::renameOperationsFallBackToThePlainName()
{
    myProject->addObject("R.A", true, "New");
    myProject->addObject("R.B", false, "");
    myProject->addInteraction("R.I", true, "NewI");
    QCOMPARE(myWriter->replaceObjectName("A", "R.A"), DtString("New"));
    QCOMPARE(myWriter->replaceObjectName("B", "R.B"), DtString("B"));
    QCOMPARE(myWriter->replaceObjectName("C", "R.C"), DtString("C"));
    QCOMPARE(myWriter->replaceInteractionName("I", "R.I"), DtString("NewI"));
    QCOMPARE(myWriter->replaceInteractionName("A", "R.A"), DtString("A"));
    myWriter->setOmtProject(nullptr);
    QCOMPARE(myWriter->replaceObjectName("A", "R.A"), DtString("A"));
    QCOMPARE(myWriter->replaceInteractionName("I", "R.I"), DtString("I"));
    QCOMPARE(myWriter->replaceAttributeName("a", "R.A"), DtString("a"));
    QCOMPARE(myWriter->replaceParameterName("a", "R.A"), DtString("a"));
}

void TestOmtEnvWriter::renameOfMembersIsNeverFound()
{
    DtOmtObject object;
    object.setFullName("R.A");
    DtOmtAttribute attribute;
    attribute.setName("a");
    attribute.setFullName("a");
    attribute.setOwningObject("R.A");
    attribute.setRename("b");
    object.addAttribute(attribute);
    myProject->addObject(object);
    QCOMPARE(myWriter->replaceAttributeName("a", "R.A"), DtString("a"));
    QCOMPARE(myWriter->replaceParameterName("a", "R.A"), DtString("a"));
}

void TestOmtEnvWriter::errorsSettingReachesTheWriters()
{
    myWriter->setGenerateErrors(true);
    QVERIFY(DtFileWriter::generateErrors());
    myWriter->setGenerateErrors(false);
    QVERIFY(!DtFileWriter::generateErrors());
}

void TestOmtEnvWriter::cyclicModelIsGenerated()
{
    myModel->addObject("HLAobjectRoot.Tank");
    for (const char* name : {"D2Simple", "D2Array", "D2Record"})
        myModel->addAttribute("HLAobjectRoot.Tank", DtString("member") + name, name);
    myModel->addSimple("D2Simple", "D2Simple");
    myModel->addArray("D2Array", "D2Array");
    myModel->addArray("D2Records", "D2Record");
    myModel->addFixed("D2Record", {
                                      {"f", "D2Records"}
    });
    select({"HLAobjectRoot.Tank"});
    QCOMPARE(run(), 1);
    QVERIFY(myFixture->hasOutput("DataTypes/d2Record.h"));
}

void TestOmtEnvWriter::manyClassesAreGenerated()
{
    const int count = 300;
    for (int i = 0; i < count; ++i)
    {
        const DtString name = "HLAobjectRoot.Class" + DtString(i);
        myModel->addObject(name);
        myProject->addObject(name, false, "");
    }
    select({});
    QCOMPARE(run(), 1);
    QCOMPARE(myWriter->fileList().size(), std::size_t(2 + 12 * count));
}

QX_REGISTER_TEST(TestOmtEnvWriter)
#include "testOmtEnvWriter.moc"
