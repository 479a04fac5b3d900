#include "registerTest.h"

#include "envWriterFixture.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

// The driver and its datatypes: which get files, from which templates, and the names their classes have.
class TestOmtEnvWriterDatatypes : public QObject, private DtEnvWriterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

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
    void cyclicModelIsGenerated();
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

void TestOmtEnvWriterDatatypes::everyFamilyWritesAPairForItsUsedDatatypes()
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

void TestOmtEnvWriterDatatypes::familiesUseTheirTemplates()
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

void TestOmtEnvWriterDatatypes::mappedDatatypeGetsNoFiles()
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

void TestOmtEnvWriterDatatypes::simpleDatatypeIsLeftOutWhenReplacedOnly()
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

void TestOmtEnvWriterDatatypes::datatypeIsMappedToItsClass()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "m", "De-Fixed.Type");
    myModel->addFixed("De-Fixed.Type", {});
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(DtDataTypeMapper::instance()->quorvexType("De-Fixed.Type"), DtString("DtDe__Fixed__Type"));
    QVERIFY(myFixture->hasOutput("DataTypes/de__Fixed__Type.cxx"));
}

void TestOmtEnvWriterDatatypes::prefixEntersTheDatatypeNames()
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

void TestOmtEnvWriterDatatypes::originalNameOfArrayIsAnIdentifier()
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

void TestOmtEnvWriterDatatypes::simpleAndVariantNameTheirClassOutsideTheLoop()
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

void TestOmtEnvWriterDatatypes::variantGetsItsDiscriminant()
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

void TestOmtEnvWriterDatatypes::arrayEncodingIsThatOfTheMapper()
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

void TestOmtEnvWriterDatatypes::memberNamesClassOfLaterDatatype()
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

void TestOmtEnvWriterDatatypes::componentArrayIsWrittenInTheSameRun()
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

void TestOmtEnvWriterDatatypes::longNamesAreNumberedInTheOrderOfWriting()
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

void TestOmtEnvWriterDatatypes::complexFilesIgnoreCancel()
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

void TestOmtEnvWriterDatatypes::otherFamiliesStopOnCancel()
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

void TestOmtEnvWriterDatatypes::decodeabilityIsFoundOncePerDatatype()
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

void TestOmtEnvWriterDatatypes::cyclicModelIsGenerated()
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

QX_REGISTER_TEST(TestOmtEnvWriterDatatypes)
#include "testOmtEnvWriterDatatypes.moc"
