#include "registerTest.h"

#include "envWriterFixture.h"

#include <QtTest/QtTest>

// The driver and its classes: which of the selection get files, in which order, and under which names.
class TestOmtEnvWriterClasses : public QObject, private DtEnvWriterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

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
    void examplesHaveTheMembersOfSuperclasses();
    void emptiedMemberListIsPassedOver();
    void identifiersAreMadeBeforeTheSelectionIsCopied();
    void renameOperationsFallBackToThePlainName();
    void renameOfMembersIsNeverFound();
    void manyClassesAreGenerated();
};

void TestOmtEnvWriterClasses::selectedClassesGetTheirFiles()
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

void TestOmtEnvWriterClasses::classIsGeneratedOncePerName()
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

void TestOmtEnvWriterClasses::interactionIsGeneratedOncePerName()
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

void TestOmtEnvWriterClasses::unknownClassTakesNoPduKind()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myFixture->writeTemplate("hpubHeader.tlt", "<!PduKind!>");
    myWriter->setFirstPduKind(10);
    select({"HLAobjectRoot.Nowhere", "HLAobjectRoot.Tank"});
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("tankPublisherHLA.h"), QString("10"));
    QVERIFY(!myFixture->hasOutput("nowherePublisherHLA.h"));
}

void TestOmtEnvWriterClasses::pduKindRunsOnFromObjectsToInteractions()
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

void TestOmtEnvWriterClasses::classWithoutRecordIsSkipped()
{
    myModel->addObject("HLAobjectRoot.Tank");
    std::set<DtString> done;
    myWriter->addObjectToFile("HLAobjectRoot.Tank", done);
    QVERIFY(done.empty());
}

void TestOmtEnvWriterClasses::topClassHangsUnderTheRoot()
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

void TestOmtEnvWriterClasses::subclassNamesItsParent()
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

void TestOmtEnvWriterClasses::parentNameFollowsItsRename()
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

void TestOmtEnvWriterClasses::renamedClassUsesItsNewName()
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

void TestOmtEnvWriterClasses::plainNameIsMadeAnIdentifier()
{
    myModel->addObject("HLAobjectRoot.Main-Tank");
    myModel->addInteraction("HLAinteractionRoot.Fire/Stop");
    select({"HLAobjectRoot.Main-Tank"}, {"HLAinteractionRoot.Fire/Stop"});
    run();
    QVERIFY(myFixture->hasOutput("main__TankEncoderHLA.h"));
    QVERIFY(myFixture->hasOutput("fire__StopInterHLA.h"));
}

void TestOmtEnvWriterClasses::runWorksWithoutProject()
{
    myModel->addObject("HLAobjectRoot.Vehicle");
    myModel->addObject("HLAobjectRoot.Vehicle.Tank");
    myFixture->writeTemplate("hobjEncHeader.tlt", "<!BaseClassName!>");
    select({"HLAobjectRoot.Vehicle.Tank"});
    myWriter->setOmtProject(nullptr);
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("tankEncoderHLA.h"), QString("DtVehicleEncoder"));
}

void TestOmtEnvWriterClasses::memberCardinalityIsAlwaysOne()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deSpeeds", "DeU32", "5");
    DtDataTypeMapper::instance()->addMapping("DeU32", "DtU32");
    myFixture->writeTemplate("stateRepHeader.tlt", "<#Attributes><!AttributeDatatype!> <!AttributeNumCardinality!><#>");
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(myFixture->output("tankStateRepository.h"), QString("DtU32 1"));
}

void TestOmtEnvWriterClasses::memberOfMappedNameTakesThatType()
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

// From the top down; one that a class below states again is that of the class below. The root has no class.
void TestOmtEnvWriterClasses::examplesHaveTheMembersOfSuperclasses()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addObject("HLAobjectRoot.Tank.Heavy");
    myModel->addObject("HLAobjectRoot.Tank.Heavy.Old");
    myModel->addInteraction("HLAinteractionRoot.Fire");
    myModel->addInteraction("HLAinteractionRoot.Fire.Salvo");
    myModel->addAttribute("HLAobjectRoot", "root", "R");
    myModel->addAttribute("HLAobjectRoot.Tank", "fuel", "F");
    myModel->addAttribute("HLAobjectRoot.Tank", "crew", "C");
    myModel->addAttribute("HLAobjectRoot.Tank.Heavy", "armour", "A");
    myModel->addAttribute("HLAobjectRoot.Tank.Heavy.Old", "Crew", "O");
    myModel->addParameter("HLAinteractionRoot.Fire", "charge", "C");
    myModel->addParameter("HLAinteractionRoot.Fire.Salvo", "count", "N");
    for (const char* name : {"talkObjExample.tlt", "listenInterExample.tlt", "stateRepHeader.tlt"})
        myFixture->writeTemplate(name, "<#Attributes><!ExactAttributeName!> <#>");
    myWriter->setGenerateExamples(true);
    select({"HLAobjectRoot.Tank", "HLAobjectRoot.Tank.Heavy", "HLAobjectRoot.Tank.Heavy.Old"},
           {"HLAinteractionRoot.Fire", "HLAinteractionRoot.Fire.Salvo"});
    QCOMPARE(run(), 1);
    QCOMPARE(myFixture->output("Examples/Tank/talk.cxx"), QString("fuel crew "));
    QCOMPARE(myFixture->output("Examples/Old/talk.cxx"), QString("fuel armour Crew "));
    QCOMPARE(myFixture->output("Examples/SalvoInter/listen.cxx"), QString("charge count "));
    QCOMPARE(myFixture->output("oldStateRepository.h"), QString("Crew "));
}

void TestOmtEnvWriterClasses::emptiedMemberListIsPassedOver()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deSpeed", "DeU32");
    myModel->tree()->getObjectClassNode("HLAobjectRoot.Tank")->removeAttributes();
    select({"HLAobjectRoot.Tank"});
    QCOMPARE(run(), 1);
    QVERIFY(myWriter->usedDatatypes().empty());
}

void TestOmtEnvWriterClasses::identifiersAreMadeBeforeTheSelectionIsCopied()
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

void TestOmtEnvWriterClasses::renameOperationsFallBackToThePlainName()
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

void TestOmtEnvWriterClasses::renameOfMembersIsNeverFound()
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

void TestOmtEnvWriterClasses::manyClassesAreGenerated()
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

QX_REGISTER_TEST(TestOmtEnvWriterClasses)
#include "testOmtEnvWriterClasses.moc"
