#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/omtProject.h"

#include <QtTest/QtTest>

// The closure of the used datatypes, and the arrays that cardinalities imply.
class TestArraySynthesis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void closureTakesMembersOfSelectedClassesOnly();
    void closureFollowsEveryKindOfDatatype();
    void chainOfTypesIsClosedWhateverTheOrderOfNames();
    void simpleTypeReachedThroughRecordAddsItsRepresentation();
    void enumerationAddsNothing();
    void referenceAddsItsRepresentation();
    void firstKindOfANameCountsAndSimpleBesideIt();
    void unknownClassAddsNothing();
    void cyclesOfDatatypesAreClosed();
    void closureKeepsWhatIsThere();
    void allDatatypesAreUsedOnRequest();
    void cardinalityOneMakesNoArray();
    void fixedCardinalityMakesFixedArray();
    void openCardinalityMakesVariableArray();
    void rangeOfAttributeIsWarnedAbout();
    void equalElementsAndShapeShareOneArray();
    void firstMemberOfANameDecidesForAll();
    void mappedMemberNameMakesNoArray();
    void parametersMakeArraysLikeAttributes();
    void arrayNameIsAnIdentifier();
    void noArraysForNewerModels();
    void versionHasToStandBeforeTheSelection();
    void unknownSelectedClassIsPassedOver();
    void itemInfoGivesArrayName_data();
    void itemInfoGivesArrayName();
    void declaredArrayOfThatNameIsUsed();
    void componentShapes_data();
    void componentShapes();
    void rangeOfComponentIsWarnedAbout();
    void conditionalComponentBecomesSingleWithTwoWarnings();
    void componentIsUnchangedByItsArray();
    void skippedComponentsHaveNoArrayName();
    void componentArrayNameIsThatOfItsArray();

private:
    QStringList arrays();
    void selectObjects(DtOMTEnvWriter& writer, const QStringList& names);
    void selectInteractions(DtOMTEnvWriter& writer, const QStringList& names);

    std::unique_ptr<DtGeneratorFixture> myFixture;
    std::unique_ptr<DtTestModel> myModel;
};

namespace
{
QStringList listed(const std::set<DtString>& names)
{
    QStringList list;
    for (const DtString& name : names)
        list += name.c_str();
    return list;
}

template <typename Record>
std::set<Record> records(const QStringList& names)
{
    std::set<Record> set;
    for (const QString& name : names)
    {
        Record record;
        record.setFullName(qPrintable(name));
        record.setName(qPrintable(name.section('.', -1)));
        set.insert(record);
    }
    return set;
}
} // namespace

void TestArraySynthesis::init()
{
    myFixture = std::make_unique<DtGeneratorFixture>();
    myModel = std::make_unique<DtTestModel>();
    myModel->addObject("HLAobjectRoot.A");
    myModel->addObject("HLAobjectRoot.B");
    myModel->addInteraction("HLAinteractionRoot.I");
}

void TestArraySynthesis::cleanup()
{
    myModel.reset();
    myFixture.reset();
}

// Every array of the tree as "name:element:cardinality:encoding".
QStringList TestArraySynthesis::arrays()
{
    QStringList list;
    const DtOMTTree& tree = *myModel->tree();
    for (auto node = tree.getArrayDatatypeNodeList(); node != tree.getArrayDatatypeEndNode(); ++node)
        list += QString("%1:%2:%3:%4")
                    .arg((*node)->getName().c_str(), (*node)->getDatatype().c_str(), (*node)->getCardinality().c_str(),
                         (*node)->getEncoding().c_str());
    return list;
}

void TestArraySynthesis::selectObjects(DtOMTEnvWriter& writer, const QStringList& names)
{
    writer.setOmtTree(myModel->tree());
    writer.setObjectsToGenerate(records<DtOmtObject>(names));
}

void TestArraySynthesis::selectInteractions(DtOMTEnvWriter& writer, const QStringList& names)
{
    writer.setOmtTree(myModel->tree());
    writer.setInteractionsToGenerate(records<DtOmtInteraction>(names));
}

void TestArraySynthesis::closureTakesMembersOfSelectedClassesOnly()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "TypeA");
    myModel->addAttribute("HLAobjectRoot.B", "b", "TypeB");
    myModel->addParameter("HLAinteractionRoot.I", "i", "TypeI");
    myModel->addArray("Unused", "TypeB");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    selectInteractions(writer, {"HLAinteractionRoot.I"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"TypeA", "TypeI"}));
}

void TestArraySynthesis::closureFollowsEveryKindOfDatatype()
{
    for (const char* name : {"Array", "Fixed", "Complex", "Variant", "Simple"})
        myModel->addAttribute("HLAobjectRoot.A", name, name);
    myModel->addArray("Array", "OfArray");
    myModel->addFixed("Fixed", {
                                   {"x", "OfFixed1"},
                                   {"y", "OfFixed2"}
    });
    DtTestModel::addComponent(myModel->addComplex("Complex"), "z", "OfComplex", "1");
    myModel->addVariant("Variant", "kind", "OfDiscriminant",
                        {
                            {"p", "OfVariant"}
    });
    myModel->addSimple("Simple", "OfSimple");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()),
             QStringList({"Array", "Complex", "Fixed", "OfArray", "OfComplex", "OfDiscriminant", "OfFixed1", "OfFixed2",
                          "OfSimple", "OfVariant", "Simple", "Variant"}));
}

void TestArraySynthesis::chainOfTypesIsClosedWhateverTheOrderOfNames()
{
    // Each name sorts ahead of the one that leads to it.
    myModel->addAttribute("HLAobjectRoot.A", "a", "Z");
    myModel->addArray("Z", "Y");
    myModel->addFixed("Y", {
                               {"x", "X"}
    });
    myModel->addArray("X", "W");
    myModel->addSimple("W", "V");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"V", "W", "X", "Y", "Z"}));
}

void TestArraySynthesis::simpleTypeReachedThroughRecordAddsItsRepresentation()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Record");
    myModel->addFixed("Record", {
                                    {"x", "Simple"}
    });
    myModel->addSimple("Simple", "Basic");
    myModel->addBasic("Basic", "32");
    myModel->addBasic("OtherBasic", "32");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"Basic", "Record", "Simple"}));
}

void TestArraySynthesis::enumerationAddsNothing()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Enum");
    myModel->addEnumeration("Enum", "Basic",
                            {
                                {"one", 1}
    });
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"Enum"}));
}

void TestArraySynthesis::referenceAddsItsRepresentation()
{
    auto* reference = new DtReferenceDatatypeNode;
    reference->setName("Reference");
    reference->setRepresentation("Simple");
    myModel->tree()->addReferenceDatatypeNode(reference);
    myModel->addSimple("Simple", "Basic");
    myModel->addAttribute("HLAobjectRoot.A", "a", "Reference");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"Basic", "Reference", "Simple"}));
}

void TestArraySynthesis::firstKindOfANameCountsAndSimpleBesideIt()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Both");
    myModel->addArray("Both", "OfArray");
    myModel->addFixed("Both", {
                                  {"x", "OfFixed"}
    });
    myModel->addSimple("Both", "OfSimple");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"Both", "OfArray", "OfSimple"}));
}

void TestArraySynthesis::unknownClassAddsNothing()
{
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.Nowhere"});
    selectInteractions(writer, {"HLAinteractionRoot.Nowhere"});
    writer.checkUsedSubDatatypesFiles();
    QVERIFY(writer.usedDatatypes().empty());
}

void TestArraySynthesis::cyclesOfDatatypesAreClosed()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Record");
    myModel->addFixed("Record", {
                                    {"x", "Records"}
    });
    myModel->addArray("Records", "Record");
    myModel->addAttribute("HLAobjectRoot.A", "b", "Self");
    myModel->addSimple("Self", "Self");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"Record", "Records", "Self"}));
}

void TestArraySynthesis::closureKeepsWhatIsThere()
{
    DtOMTEnvWriter writer;
    selectObjects(writer, {});
    writer.createArrayTypeFromItemInfo("item", "3", 0, "Foo");
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()), QStringList({"Foo", "FooFixedArray3"}));
}

void TestArraySynthesis::allDatatypesAreUsedOnRequest()
{
    myModel->addBasic("Basic", "8");
    myModel->addSimple("Simple", "Elsewhere");
    myModel->addEnumeration("Enum", "Basic", {});
    myModel->addArray("Array", "Simple");
    myModel->addFixed("Fixed", {});
    myModel->addFixed("", {});
    myModel->addComplex("Complex");
    myModel->addVariant("Variant", "kind", "Enum", {});
    DtOMTEnvWriter writer;
    selectObjects(writer, {});
    writer.checkUsedSubDatatypesFiles();
    QVERIFY(writer.usedDatatypes().empty());
    DtFileWriter::setAllDatatypes(true);
    writer.checkUsedSubDatatypesFiles();
    QCOMPARE(listed(writer.usedDatatypes()),
             QStringList({"Array", "Basic", "Complex", "Elsewhere", "Enum", "Fixed", "Simple", "Variant"}));
}

void TestArraySynthesis::cardinalityOneMakesNoArray()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "1");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A"});
    QVERIFY(arrays().isEmpty());
    QVERIFY(!DtDataTypeMapper::instance()->hasMapping("a"));
}

void TestArraySynthesis::fixedCardinalityMakesFixedArray()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "10");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A"});
    QCOMPARE(arrays(), QStringList("FooFixedArray10:Foo:10:HLAfixedArray"));
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("a"), DtString("FooFixedArray10"));
    QCOMPARE(listed(writer.usedDatatypes()), QStringList("FooFixedArray10"));
}

void TestArraySynthesis::openCardinalityMakesVariableArray()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "1+");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A"});
    QCOMPARE(arrays(), QStringList("FooVariableArray:Foo:1+:HLAvariableArray"));
}

void TestArraySynthesis::rangeOfAttributeIsWarnedAbout()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "1-4");
    const DtCapture capture(DtWarn);
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A"});
    QVERIFY(arrays().isEmpty());
    QVERIFY(!DtDataTypeMapper::instance()->hasMapping("a"));
    QCOMPARE(capture.text(), QString("Unknown Encoding for: a\nCardinality: 1-4"));
}

void TestArraySynthesis::equalElementsAndShapeShareOneArray()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "10");
    myModel->addAttribute("HLAobjectRoot.B", "b", "Foo", "10");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A", "HLAobjectRoot.B"});
    QCOMPARE(arrays().size(), 1);
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("a"), DtString("FooFixedArray10"));
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("b"), DtString("FooFixedArray10"));
}

void TestArraySynthesis::firstMemberOfANameDecidesForAll()
{
    myModel->addAttribute("HLAobjectRoot.A", "same", "Foo", "10");
    myModel->addAttribute("HLAobjectRoot.B", "same", "Bar", "20");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A", "HLAobjectRoot.B"});
    QCOMPARE(arrays(), QStringList("FooFixedArray10:Foo:10:HLAfixedArray"));
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("same"), DtString("FooFixedArray10"));
}

void TestArraySynthesis::mappedMemberNameMakesNoArray()
{
    DtDataTypeMapper::instance()->addMapping("a", "DtU8");
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "10");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A"});
    QVERIFY(arrays().isEmpty());
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("a"), DtString("DtU8"));
}

void TestArraySynthesis::parametersMakeArraysLikeAttributes()
{
    myModel->addParameter("HLAinteractionRoot.I", "i", "Foo", "4");
    myModel->addParameter("HLAinteractionRoot.I", "j", "Foo", "0-4");
    const DtCapture capture(DtWarn);
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectInteractions(writer, {"HLAinteractionRoot.I"});
    QCOMPARE(arrays(), QStringList("FooFixedArray4:Foo:4:HLAfixedArray"));
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("i"), DtString("FooFixedArray4"));
    QCOMPARE(capture.text(), QString("Unknown Encoding for: j\nCardinality: 0-4"));
}

void TestArraySynthesis::arrayNameIsAnIdentifier()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "unsigned long", "10");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A"});
    QCOMPARE(arrays(), QStringList("unsigned__longFixedArray10:unsigned long:10:HLAfixedArray"));
}

void TestArraySynthesis::noArraysForNewerModels()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "10");
    myModel->addParameter("HLAinteractionRoot.I", "i", "Foo", "10");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla1516e);
    selectObjects(writer, {"HLAobjectRoot.A"});
    selectInteractions(writer, {"HLAinteractionRoot.I"});
    QVERIFY(arrays().isEmpty());
}

void TestArraySynthesis::versionHasToStandBeforeTheSelection()
{
    myModel->addAttribute("HLAobjectRoot.A", "a", "Foo", "10");
    DtOMTEnvWriter writer;
    selectObjects(writer, {"HLAobjectRoot.A"});
    writer.setHlaVersion(DtHla13);
    QVERIFY(arrays().isEmpty());
}

void TestArraySynthesis::unknownSelectedClassIsPassedOver()
{
    myModel->addAttribute("HLAobjectRoot.B", "b", "Foo", "10");
    DtOMTEnvWriter writer;
    writer.setHlaVersion(DtHla13);
    selectObjects(writer, {"HLAobjectRoot.A.Nowhere", "HLAobjectRoot.B"});
    selectInteractions(writer, {"HLAinteractionRoot.Nowhere"});
    QCOMPARE(arrays().size(), 1);
    DtOMTEnvWriter withoutTree;
    withoutTree.setHlaVersion(DtHla13);
    withoutTree.setObjectsToGenerate(records<DtOmtObject>({"HLAobjectRoot.A"}));
    QVERIFY(withoutTree.usedDatatypes().empty());
}

void TestArraySynthesis::itemInfoGivesArrayName_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("fixed") << 0 << "FooFixedArray7";
    QTest::newRow("open") << 1 << "FooVariableArray";
    QTest::newRow("range") << 2 << "";
    QTest::newRow("beyond") << 3 << "";
}

void TestArraySynthesis::itemInfoGivesArrayName()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    const DtCapture capture(DtWarn);
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    QCOMPARE(QString(writer.createArrayTypeFromItemInfo("item", "7", type, "Foo").c_str()), name);
    QCOMPARE(arrays().size(), name.isEmpty() ? 0 : 1);
    QCOMPARE(capture.text(), QString(name.isEmpty() ? "Unknown Encoding for: item\nCardinality: 7" : ""));
}

void TestArraySynthesis::declaredArrayOfThatNameIsUsed()
{
    myModel->addArray("FooFixedArray7", "Other", "2", "HLAvariableArray");
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    QCOMPARE(writer.createArrayTypeFromItemInfo("item", "7", 0, "Foo"), DtString("FooFixedArray7"));
    QCOMPARE(arrays(), QStringList("FooFixedArray7:Other:2:HLAvariableArray"));
    QVERIFY(writer.usedDatatypes().empty());
}

void TestArraySynthesis::componentShapes_data()
{
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("single") << "1" << QStringList();
    QTest::newRow("fixed") << "5" << QStringList("FooFixedArray5:Foo:5:HLAfixedArray");
    QTest::newRow("open") << "1+" << QStringList("FooNullTerminatedArray:Foo:1+:HLAnullTerminatedArray");
    QTest::newRow("padded") << "%8" << QStringList("FooPaddingTo32Array:Foo:%8:HLApaddingTo32Array");
    QTest::newRow("optional") << "(x)" << QStringList();
    QTest::newRow("conditional") << "(x=1)" << QStringList();
    QTest::newRow("single with type") << "1 (Type)" << QStringList();
}

void TestArraySynthesis::componentShapes()
{
    QFETCH(QString, cardinality);
    QFETCH(QStringList, expected);
    DtComplexDatatypeNode* complex = myModel->addComplex("Complex");
    DtTestModel::addComponent(complex, "c", "Foo", qPrintable(cardinality));
    const DtCapture capture(DtWarn);
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    writer.checkComplexForArrayType(complex);
    QCOMPARE(arrays(), expected);
    QCOMPARE(capture.text(), QString());
    QCOMPARE(int(writer.usedDatatypes().size()), expected.size());
}

void TestArraySynthesis::rangeOfComponentIsWarnedAbout()
{
    DtComplexDatatypeNode* complex = myModel->addComplex("Complex");
    const DtComplexComponentNode* component = DtTestModel::addComponent(complex, "c", "Foo", "1-4");
    const DtCapture capture(DtWarn);
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    writer.checkComplexForArrayType(complex);
    QVERIFY(arrays().isEmpty());
    QCOMPARE(component->getCardinality(), DtString("1-4"));
    QCOMPARE(capture.text(), QString("Unknown Encoding for: c\nCardinality: 1-4"));
}

void TestArraySynthesis::conditionalComponentBecomesSingleWithTwoWarnings()
{
    DtComplexComponentNode component;
    component.setName("c");
    component.setDatatype("Foo");
    component.setCardinality("(x=1)");
    const DtCapture capture(DtWarn);
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    writer.createArrayTypeFromComponent(&component);
    QVERIFY(arrays().isEmpty());
    QCOMPARE(component.getCardinality(), DtString("1"));
    QCOMPARE(capture.text(), QString("Variant datatypecUnknown Encoding for: c\nCardinality: (x=1)"));
}

void TestArraySynthesis::componentIsUnchangedByItsArray()
{
    DtComplexDatatypeNode* complex = myModel->addComplex("Complex");
    const DtComplexComponentNode* component = DtTestModel::addComponent(complex, "c", "Foo", "5");
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    writer.checkComplexForArrayType(complex);
    QCOMPARE(component->getCardinality(), DtString("5"));
    QCOMPARE(component->getDatatype(), DtString("Foo"));
}

void TestArraySynthesis::skippedComponentsHaveNoArrayName()
{
    for (const char* cardinality : {"1", "1 (Type)", "(x)", "(x=1)", "1-4"})
    {
        DtComplexComponentNode component;
        component.setDatatype("Foo");
        component.setCardinality(cardinality);
        QCOMPARE(DtOMTEnvWriter::componentArrayName(component), DtString());
    }
}

void TestArraySynthesis::componentArrayNameIsThatOfItsArray()
{
    DtComplexDatatypeNode* complex = myModel->addComplex("Complex");
    const DtComplexComponentNode* component = DtTestModel::addComponent(complex, "c", "unsigned long", "5");
    DtOMTEnvWriter writer;
    writer.setOmtTree(myModel->tree());
    writer.checkComplexForArrayType(complex);
    QVERIFY(myModel->tree()->getArrayDatatypeNode(DtOMTEnvWriter::componentArrayName(*component)) != nullptr);
}

QX_REGISTER_TEST(TestArraySynthesis)
#include "testArraySynthesis.moc"
