#include "registerTest.h"

#include "envWriterFixture.h"
#include "testSupport.h"

#include <QtTest/QtTest>

// The driver and its enumerations: which are in their common file, and what the mapper knows of them.
class TestOmtEnvWriterEnumerations : public QObject, private DtEnvWriterFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void enumerationsFileHoldsUsedUnmappedOnly();
    void sourceHoldsTheEnumerationsOfTheHeader();
    void noSourceIsWrittenWithoutEnumerations();
    void enumerationOfAMemberThatIsCalledLikeItIsDeclared();
    void longNameOfSuchAnEnumerationIsNotShortened();
    void enumerationSizeComesFromItsRepresentation_data();
    void enumerationSizeComesFromItsRepresentation();
    void enumerationIsKnownToTheMapper();
    void enumerationsFileIsWrittenWhenEmpty();
};

namespace
{
const QByteArray theEnumTemplate =
    "<#Enumeration><!EnumerationName!>(<#EnumerationField><!EnumerationFieldName!>=<!EnumerationFieldValue!>,<#>)<#>";
} // namespace

void TestOmtEnvWriterEnumerations::enumerationsFileHoldsUsedUnmappedOnly()
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

void TestOmtEnvWriterEnumerations::enumerationOfAMemberThatIsCalledLikeItIsDeclared()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "DeGearEnum8", "DeGearEnum8");
    myModel->addEnumeration("DeGearEnum8", "HLAoctet",
                            {
                                {"high", 1}
    });
    myFixture->writeTemplate("stateRepHeader.tlt", "<#Enumerations><!AttributeTypeIdentifier!>;<#>");
    select({"HLAobjectRoot.Tank"});
    run();
    QCOMPARE(myFixture->output("tankStateRepository.h"), QString("DtDeGearEnum8;"));
}

// The enumerations header never shortens, so nobody else may.
void TestOmtEnvWriterEnumerations::longNameOfSuchAnEnumerationIsNotShortened()
{
    const std::string name = "Long" + std::string(110, 'g') + "Enum";
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", name.c_str(), name.c_str());
    myModel->addEnumeration(name.c_str(), "HLAoctet",
                            {
                                {"high", 1}
    });
    myFixture->writeTemplate("enums.tlt", "<#Enumeration><!EnumerationTypeName!>;<#>");
    myFixture->writeTemplate("stateRepHeader.tlt", "<#Enumerations><!AttributeTypeIdentifier!>;<#>");
    select({"HLAobjectRoot.Tank"});
    run();
    const QString type = "Dt" + QString::fromStdString(name) + ";";
    QCOMPARE(myFixture->output("DataTypes/modelEnums.h"), type);
    QCOMPARE(myFixture->output("tankStateRepository.h"), type);
}

void TestOmtEnvWriterEnumerations::sourceHoldsTheEnumerationsOfTheHeader()
{
    myModel->addObject("HLAobjectRoot.Tank");
    myModel->addAttribute("HLAobjectRoot.Tank", "deOne", "DeUsedEnum8");
    myModel->addEnumeration("DeUsedEnum8", "HLAoctet",
                            {
                                {"red",  400},
                                {"Red",  1  },
                                {"re-d", 2  }
    });
    myFixture->writeTemplate("enumsSource.tlt", "<#Enumeration><!EnumerationTypeName!><#EnumerationField> "
                                                "<!EnumerationFieldIdentifier!><#><#>");
    select({"HLAobjectRoot.Tank"});
    const DtCapture capture(DtWarn);
    run();
    QCOMPARE(myFixture->output("DataTypes/modelEnums.cxx"), QString("DtDeUsedEnum8 red Red red_2"));
    QVERIFY(isListed("DataTypes/modelEnums.cxx"));
    QCOMPARE(capture.text().count("re-d of DeUsedEnum8 is called"), 1); // told for the header alone
}

void TestOmtEnvWriterEnumerations::noSourceIsWrittenWithoutEnumerations()
{
    run();
    QVERIFY(myFixture->hasOutput("DataTypes/modelEnums.h"));
    QVERIFY(!myFixture->hasOutput("DataTypes/modelEnums.cxx"));
    QVERIFY(!isListed("DataTypes/modelEnums.cxx"));
}

void TestOmtEnvWriterEnumerations::enumerationSizeComesFromItsRepresentation_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("type");
    const struct
    {
        const char* tag;
        QString name, representation, size, type;
    } theRows[] = {
        {"signed",                "DeEnumA",     "DeInt16",    "16", "DtU16"    },
        {"unsigned",              "DeEnumB",     "DeU64",      "64", "DtU64"    },
        {"through a simple type", "DeEnumC",     "DeSimpleU8", "8",  "DtU8"     },
        {"by the name",           "DeEnum8",     "DeNothing",  "8",  "DtU8"     },
        {"none at all",           "DeKind",      "DeNothing",  "32", "DtDeKind" },
        {"no number in the type", "DeFloatKind", "DeFloat",    "32", "DtFloat32"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.representation << row.size << row.type;
}

void TestOmtEnvWriterEnumerations::enumerationSizeComesFromItsRepresentation()
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

void TestOmtEnvWriterEnumerations::enumerationIsKnownToTheMapper()
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

void TestOmtEnvWriterEnumerations::enumerationsFileIsWrittenWhenEmpty()
{
    myFixture->writeTemplate("enums.tlt", "none" + theEnumTemplate);
    run();
    QCOMPARE(myFixture->output("DataTypes/modelEnums.h"), QString("none"));
}

QX_REGISTER_TEST(TestOmtEnvWriterEnumerations)
#include "testOmtEnvWriterEnumerations.moc"
