#include "registerTest.h"

#include "contextTestSupport.h"

#include "fileGenerator/datatypeBoundaries.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

// What the context tells of datatypes: their boundaries, and what a member knows of its own.
class TestContextTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void boundaries_data();
    void boundaries();
    void firstKindOfANameDecides();
    void recordWithoutFieldsGivesWayToAVariant();
    void rings_data();
    void rings();
    void boundariesAgreeInAnyOrder();
    void longChainsAreClosedQuickly();

    void memberOfASimpleDatatype();
    void memberOfASimpleDatatypeWithoutType();
    void memberOfAnEnumeration();
    void enumerationWithoutTypeTakesAnotherBySize_data();
    void enumerationWithoutTypeTakesAnotherBySize();
    void enumerationWithoutAnyTypeHasEmptyTexts();
    void memberOfOtherKinds_data();
    void memberOfOtherKinds();
    void typeOfTheDatatypeItselfIsTaken();
    void keysBeginWithThePrefix();

private:
    void setType(const char* name, const char* type);
    QString memberType(const char* datatype);

    std::unique_ptr<DtContextFixture> myFixture;
    std::unique_ptr<DtTestModel> myModel;
    std::unique_ptr<DtOMTWriter> myWriter;
};

void TestContextTypes::init()
{
    myFixture = std::make_unique<DtContextFixture>();
    myModel = std::make_unique<DtTestModel>();
    myWriter = std::make_unique<DtOMTWriter>();
    myWriter->setOmtTree(myModel->tree());
    for (const char* size : {"8", "16", "32", "64"})
        myModel->addBasic(DtString("Basic") + size, size);
    myModel->addSimple("Simple32", "Basic32");
    myModel->addSimple("Simple64", "Basic64");
    myModel->addEnumeration("Enum16", "Basic16", {});
}

void TestContextTypes::cleanup()
{
    myWriter.reset();
    myModel.reset();
    myFixture.reset();
}

void TestContextTypes::setType(const char* name, const char* type)
{
    myWriter->executeCommandLine_prepare(DtString("setDatatype \"") + name + "\" \"" + type + "\"");
}

QString TestContextTypes::memberType(const char* datatype)
{
    DtMapSubstitute map;
    myWriter->getType("X", datatype, &map);
    return valuesOf(map, "XKind XRepresentation XType XIsSimple XBoundary");
}

void TestContextTypes::boundaries_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("boundary");
    QTest::newRow("octet") << "Basic8" << 1;
    QTest::newRow("basic") << "Basic64" << 8;
    QTest::newRow("size that is no number") << "BasicOdd" << 0;
    QTest::newRow("bits short of an octet") << "Basic12" << 1;
    QTest::newRow("simple") << "Simple32" << 4;
    QTest::newRow("enumeration") << "Enum16" << 2;
    QTest::newRow("fixed array") << "FixedOf16" << 2;
    QTest::newRow("variable array of octets") << "VariableOf8" << 4;
    QTest::newRow("variable array of larger elements") << "VariableOf64" << 8;
    QTest::newRow("array of a variable array") << "FixedOfVariable" << 4;
    QTest::newRow("record takes its first field") << "Record" << 2;
    QTest::newRow("record without fields") << "Empty" << 1;
    QTest::newRow("variant takes its discriminant") << "Variant" << 2;
    QTest::newRow("complex datatype") << "Complex" << 1;
    QTest::newRow("unknown") << "Nothing" << 1;
    QTest::newRow("empty name") << "" << 1;
}

void TestContextTypes::boundaries()
{
    myModel->addBasic("BasicOdd", "many");
    myModel->addBasic("Basic12", "12");
    myModel->addArray("FixedOf16", "Basic16", "4", "HLAfixedArray");
    myModel->addArray("VariableOf8", "Basic8");
    myModel->addArray("VariableOf64", "Simple64");
    myModel->addArray("FixedOfVariable", "VariableOf8", "2", "HLAfixedArray");
    myModel->addFixed("Record", {
                                    {"a", "Enum16"  },
                                    {"b", "Simple64"}
    });
    myModel->addFixed("Empty", {});
    myModel->addVariant("Variant", "kind", "Enum16",
                        {
                            {"p", "Simple64"}
    });
    DtTestModel::addComponent(myModel->addComplex("Complex"), "c", "Simple64", "1");
    QFETCH(QString, name);
    QTEST(myWriter->getBoundary(name.toUtf8().constData()), "boundary");
}

void TestContextTypes::firstKindOfANameDecides()
{
    myModel->addSimple("Basic64", "Basic8");
    QCOMPARE(myWriter->getBoundary("Basic64"), 8);
    myModel->addEnumeration("Simple32", "Basic8", {});
    myModel->addArray("Enum16", "Basic64");
    QCOMPARE(myWriter->getBoundary("Simple32"), 4);
    QCOMPARE(myWriter->getBoundary("Enum16"), 2);
}

void TestContextTypes::recordWithoutFieldsGivesWayToAVariant()
{
    myModel->addFixed("Both", {});
    QCOMPARE(myWriter->getBoundary("Both"), 1);
    myModel->addVariant("Both", "kind", "Simple32", {});
    QCOMPARE(myWriter->getBoundary("Both"), 4);
}

void TestContextTypes::rings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("boundary");
    QTest::newRow("own representation") << "Self" << 1;
    QTest::newRow("record of records") << "RingA" << 1;
    QTest::newRow("second record") << "RingB" << 1;
    QTest::newRow("record of a variable array of it") << "Node" << 4;
    QTest::newRow("array of the record that holds it") << "Nodes" << 4;
    QTest::newRow("leads to a ring") << "Lead" << 4;
    QTest::newRow("leads to a ring of records") << "LeadToA" << 1;
}

void TestContextTypes::rings()
{
    myModel->addSimple("Self", "Self");
    myModel->addFixed("RingA", {
                                   {"b", "RingB"}
    });
    myModel->addFixed("RingB", {
                                   {"a", "RingA"}
    });
    myModel->addFixed("Node", {
                                  {"children", "Nodes"}
    });
    myModel->addArray("Nodes", "Node");
    myModel->addFixed("Lead", {
                                  {"node", "Node"}
    });
    myModel->addArray("LeadToA", "RingA", "3", "HLAfixedArray");
    QFETCH(QString, name);
    QTEST(myWriter->getBoundary(name.toUtf8().constData()), "boundary");
}

void TestContextTypes::boundariesAgreeInAnyOrder()
{
    myModel->addFixed("Node", {
                                  {"children", "Nodes"}
    });
    myModel->addArray("Nodes", "Pair");
    myModel->addFixed("Pair", {
                                  {"node", "Node"}
    });
    myModel->addArray("Chain", "Deeper");
    myModel->addFixed("Deeper", {
                                    {"x", "Simple64"}
    });
    QStringList names{"Chain", "Deeper", "Lead", "Node", "Nodes", "Pair"};
    do
    {
        DtDatatypeBoundaries boundaries(*myModel->tree()); // remembers from one name to the next
        for (const QString& name : names)
            QCOMPARE(boundaries.of(name.toUtf8().constData()), myWriter->getBoundary(name.toUtf8().constData()));
    } while (std::next_permutation(names.begin(), names.end()));
}

void TestContextTypes::longChainsAreClosedQuickly()
{
    const int count = 100000;
    for (int number = 0; number < count; ++number)
        myModel->addArray(DtString("Array") + DtString(number), DtString("Array") + DtString(number + 1));
    QElapsedTimer time;
    time.start();
    QCOMPARE(myWriter->getBoundary("Array0"), 4);
    DtDatatypeBoundaries boundaries(*myModel->tree());
    for (int number = count - 1; number >= 0; --number)
        QCOMPARE(boundaries.of(DtString("Array") + DtString(number)), 4);
    DtDatatypeBoundaries others(*myModel->tree());
    for (int number = 0; number < count; ++number)
        QCOMPARE(others.of(DtString("Array") + DtString(number)), 4);
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
}

void TestContextTypes::memberOfASimpleDatatype()
{
    setType("Basic32", "unsigned int");
    QCOMPARE(memberType("Simple32"),
             QString("XKind=Simple XRepresentation=Basic32 XType=unsigned__int XIsSimple=TRUE XBoundary=4"));
}

void TestContextTypes::memberOfASimpleDatatypeWithoutType()
{
    QCOMPARE(memberType("Simple32"),
             QString("XKind=Unknown XRepresentation=class XType=Simple32 XIsSimple=none XBoundary=4"));
    delete myWriter->getSimpleContext(); // notes the representation as the type
    QCOMPARE(memberType("Simple32"),
             QString("XKind=Unknown XRepresentation=Basic32 XType=Basic32 XIsSimple=none XBoundary=4"));
}

void TestContextTypes::memberOfAnEnumeration()
{
    setType("Basic16", "short");
    QCOMPARE(memberType("Enum16"),
             QString("XKind=Enum XRepresentation=Basic16 XType=Enum16 XIsSimple=TRUE XBoundary=2"));
}

void TestContextTypes::enumerationWithoutTypeTakesAnotherBySize_data()
{
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("type");
    const struct
    {
        const char* name;
        QString representation, type;
    } theRows[] = {
        {"octet",          "8 bits", "Simple32"},
        {"two octets",     "16",     "Simple64"},
        {"four octets",    "32",     "Basic64" },
        {"eight octets",   "64",     "other"   },
        {"any other size", "24",     "Basic64" },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.representation << row.type;
}

void TestContextTypes::enumerationWithoutTypeTakesAnotherBySize()
{
    QFETCH(QString, representation);
    QFETCH(QString, type);
    setType("HLAoctet", "Simple32");
    setType("HLAinteger16BE", "Simple64");
    setType("HLAinteger32BE", "Basic64");
    setType("HLAinteger64BE", "other");
    myModel->addEnumeration("My Enum", representation.toUtf8().constData(), {});
    const int boundary = myWriter->getBoundary(type.toUtf8().constData());
    QCOMPARE(
        memberType("My Enum"),
        QString("XKind=Enum XRepresentation=%1 XType=My__Enum XIsSimple=TRUE XBoundary=%2").arg(type).arg(boundary));
}

void TestContextTypes::enumerationWithoutAnyTypeHasEmptyTexts()
{
    QCOMPARE(memberType("Enum16"), QString("XKind=Enum XRepresentation= XType=Enum16 XIsSimple=TRUE XBoundary=1"));
    QVERIFY(myWriter->typeOf("HLAinteger16BE") == nullptr); // asking has not made one
}

void TestContextTypes::memberOfOtherKinds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    const struct
    {
        const char* tag;
        QString name, kind;
    } theRows[] = {
        {"array",                       "An Array",  "Array"     },
        {"fixed",                       "A Record",  "FixedRec"  },
        {"complex",                     "A Complex", "ComplexRec"},
        {"variant",                     "A Variant", "VariantRec"},
        {"basic",                       "Basic32",   "Unknown"   },
        {"nothing",                     "No Type",   "Unknown"   },
        {"array goes first",            "All",       "Array"     },
        {"fixed goes ahead of complex", "Two",       "FixedRec"  },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.kind;
}

void TestContextTypes::memberOfOtherKinds()
{
    myModel->addArray("An Array", "Basic8", "3", "HLAfixedArray");
    myModel->addFixed("A Record", {});
    myModel->addComplex("A Complex");
    myModel->addVariant("A Variant", "kind", "Simple32", {});
    myModel->addVariant("All", "kind", "Simple32", {});
    myModel->addComplex("All");
    myModel->addFixed("All", {});
    myModel->addArray("All", "Basic8");
    myModel->addComplex("Two");
    myModel->addFixed("Two", {});
    QFETCH(QString, name);
    QFETCH(QString, kind);
    const QString identifier = QString(name).replace(" ", "__");
    const int boundary = myWriter->getBoundary(name.toUtf8().constData());
    QCOMPARE(memberType(name.toUtf8().constData()),
             QString("XKind=%1 XRepresentation=class XType=%2 XIsSimple=none XBoundary=%3")
                 .arg(kind, identifier)
                 .arg(boundary));
}

void TestContextTypes::typeOfTheDatatypeItselfIsTaken()
{
    myModel->addArray("Array", "Basic8");
    setType("Array", "Simple64");
    QCOMPARE(memberType("Array"),
             QString("XKind=Array XRepresentation=Simple64 XType=Simple64 XIsSimple=none XBoundary=8"));
    setType("Array", "std string");
    QCOMPARE(memberType("Array"),
             QString("XKind=Array XRepresentation=std string XType=std__string XIsSimple=none XBoundary=1"));
}

void TestContextTypes::keysBeginWithThePrefix()
{
    setType("Basic32", "int");
    DtMapSubstitute map;
    myWriter->getType("Field", "Simple32", &map);
    QCOMPARE(keysOf(map), QString("FieldKind FieldRepresentation FieldRepresentationHtml FieldRepresentationQuoted "
                                  "FieldType FieldTypeHtml FieldTypeQuoted FieldIsSimple FieldBoundary"));
}

QX_REGISTER_TEST(TestContextTypes)
#include "testContextTypes.moc"
