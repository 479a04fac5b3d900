#include "fileGenerator/attribute.h"
#include "fileGenerator/dataTypeMapper.h"
#include "registerTest.h"
#include "writerProbe.h"

#include <QtTest/QtTest>

class TestAttribute : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsWithItsArguments();
    void cardinality_data();
    void cardinality();
    void cardinalityCopiesTheType();
    void variantCondition_data();
    void variantCondition();
    void badConditionLeavesTheOldOne();
    void zeroLeavesTheOldNumber();
    void netTypeOfPlainTypes_data();
    void netTypeOfPlainTypes();
    void booleanOfTheStandardIsAWord();
    void littleEndianFollowsTheDatatype();
    void littleEndianFlagWaitsForTheNetType();
    void enumerationIsFoundWithoutPrefix();
    void enumerationIsFoundWithSmallFirstLetter();
    void newTypeIsMarkedBeforeItsNetTypeIsFound();
    void enumerationKeepsItsMark();
    void enumerationSizeMakesTheNetType();
    void emptyEnumerationSizeIsAWord();
    void knownTypeOfAnEnumerationKeepsItsNetType();
    void netSizeString_data();
    void netSizeString();
    void plainValuesAreStored();
    void copiesAreIndependent();
};

void TestAttribute::initTestCase()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addEnumeration("AttrKindEnum");
    mapper.addEnumeration("attrSmallEnum");
    mapper.addEnumerationSizeMapping("DtAttrKindEnum", "8");
    mapper.addEnumeration("AttrOddEnum");
    mapper.addEnumerationSizeMapping("DtAttrOddEnum", "");
}

void TestAttribute::startsWithItsArguments()
{
    const DtAttribute attribute("Speed", "DtFloat32");
    QCOMPARE(text(attribute.name()), QString("Speed"));
    QCOMPARE(text(attribute.type()), QString("DtFloat32"));
    QCOMPARE(text(attribute.netType()), QString("DtNetFloat32"));
    QCOMPARE(text(attribute.cardinality() + attribute.nonVectorType() + attribute.datatype() +
                  attribute.datatypeDatatype() + attribute.encoding() + attribute.discrimininant() +
                  attribute.discrimininantValue()),
             QString());
    QCOMPARE(attribute.numericalCardinality(), 1);
    QVERIFY(!attribute.hasPlusCardinality() && !attribute.isEnumeration() && !attribute.isVariant());
    QVERIFY(!attribute.isFloat() && !attribute.isLittleEndian());
}

void TestAttribute::cardinality_data()
{
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<bool>("plus");
    QTest::addColumn<bool>("variant");
    QTest::addColumn<int>("number");
    QTest::newRow("one") << "1" << false << false << 1;
    QTest::newRow("ten") << "10" << false << false << 10;
    QTest::newRow("empty") << "" << false << false << 1;
    QTest::newRow("word") << "many" << false << false << 1;
    QTest::newRow("dynamic") << "Dynamic" << true << false << 1;
    QTest::newRow("dynamic with number") << "7Dynamic" << true << false << 7;
    QTest::newRow("dynamic range") << "Dynamic 0-1" << true << true << 1;
    QTest::newRow("plus") << "0+" << true << false << 1;
    QTest::newRow("plus with number") << "5+" << true << false << 1;
    QTest::newRow("plus before minus") << "1+-3" << true << false << 1;
    QTest::newRow("range") << "0-1" << false << true << 1;
    QTest::newRow("range with number") << "4-8" << false << true << 1;
    QTest::newRow("two dimensions") << "3,4" << false << false << 3;
    QTest::newRow("bounds") << "[1..5]" << false << false << 1;
    QTest::newRow("octal look") << "010" << false << false << 10;
    QTest::newRow("huge") << "99999999999999999999" << false << false << 2147483647;
}

void TestAttribute::cardinality()
{
    QFETCH(QString, cardinality);
    DtAttribute attribute("a", "DtU8");
    attribute.setCardinality(cardinality.toUtf8().constData());
    QCOMPARE(text(attribute.cardinality()), cardinality);
    QTEST(attribute.hasPlusCardinality(), "plus");
    QTEST(attribute.isVariant(), "variant");
    QTEST(attribute.numericalCardinality(), "number");
}

void TestAttribute::cardinalityCopiesTheType()
{
    DtAttribute attribute("a", "DtU8");
    attribute.setCardinality("1");
    attribute.setType("DtU16");
    QCOMPARE(text(attribute.nonVectorType()), QString("DtU8"));
    attribute.setCardinality("1");
    QCOMPARE(text(attribute.nonVectorType()), QString("DtU16"));
}

void TestAttribute::variantCondition_data()
{
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QString>("discriminant");
    QTest::addColumn<QString>("value");
    const struct
    {
        const char* name;
        QString cardinality, discriminant, value;
    } theRows[] = {
        {"condition",        "0-1(Kind=2)",             "Kind",   "2"   },
        {"blanks",           "0-1 ( Kind Of = Two 2 )", "KindOf", "Two2"},
        {"last parenthesis", "0-1(a(b(Kind=2)))",       "Kind",   "2"   },
        {"no parenthesis",   "0-1=x",                   "0-1",    "x"   },
        {"empty sides",      "0-1(=)",                  "",       ""    },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.cardinality << row.discriminant << row.value;
}

void TestAttribute::variantCondition()
{
    QFETCH(QString, cardinality);
    DtAttribute attribute("a", "DtU8");
    attribute.setDiscriminantValue("old");
    attribute.setCardinality(cardinality.toUtf8().constData());
    QTEST(text(attribute.discrimininant()), "discriminant");
    QTEST(text(attribute.discrimininantValue()), "value");
}

void TestAttribute::badConditionLeavesTheOldOne()
{
    for (const char* cardinality : {"0-1", "0-1(Kind)", "0-1(a=b=c)"})
    {
        DtAttribute attribute("a", "DtU8");
        attribute.setCardinality("0-1(Old=1)");
        attribute.setCardinality(cardinality);
        QCOMPARE(text(attribute.discrimininant()), QString("Old"));
        QCOMPARE(text(attribute.discrimininantValue()), QString("1"));
    }
}

void TestAttribute::zeroLeavesTheOldNumber()
{
    DtAttribute attribute("a", "DtU8");
    attribute.setCardinality("6");
    attribute.setCardinality("0");
    QCOMPARE(attribute.numericalCardinality(), 6);
    attribute.setCardinality("0+");
    QCOMPARE(attribute.numericalCardinality(), 6);
}

void TestAttribute::netTypeOfPlainTypes_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("netType");
    const struct
    {
        const char* name;
        QString type, netType;
    } theRows[] = {
        {"bool",        "bool",                     "DtNetBoolean"            },
        {"string",      "DtString",                 "DtString"                },
        {"time",        "DtHlaLogicalTime",         "DtHlaLogicalTime"        },
        {"interval",    "DtHlaLogicalTimeInterval", "DtHlaLogicalTimeInterval"},
        {"designator",  "DtGlobalObjectDesignator", "DtGlobalObjectDesignator"},
        {"vector",      "DtVector",                 "DtNetVector64"           },
        {"orientation", "DtTaitBryan",              "DtNetEulerAngles"        },
        {"integer",     "DtU16",                    "DtNetU16"                },
        {"class",       "DtFooDtBar",               "DtNetFooDtBar"           },
        {"std vector",  "std::vector<DtFoo>",       "std::vector<DtNetFoo>"   },
        {"raw name",    "Foo",                      "Foo"                     },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.type << row.netType;
}

void TestAttribute::netTypeOfPlainTypes()
{
    QFETCH(QString, type);
    QTEST(text(DtAttribute("a", type.toUtf8().constData()).netType()), "netType");
}

void TestAttribute::booleanOfTheStandardIsAWord()
{
    DtAttribute attribute("a", "bool");
    attribute.setDatatype("HLAboolean");
    QCOMPARE(text(attribute.netType()), QString("DtNetU32"));
    attribute.setDatatype("RPRboolean");
    QCOMPARE(text(attribute.netType()), QString("DtNetBoolean"));
}

void TestAttribute::littleEndianFollowsTheDatatype()
{
    DtAttribute attribute("a", "DtInt32");
    attribute.setDatatype("HLAinteger32LE");
    QVERIFY(attribute.isLittleEndian());
    QCOMPARE(text(attribute.netType()), QString("DtLEInt32"));
    attribute.setDatatype("HLAinteger32BE");
    QVERIFY(!attribute.isLittleEndian());
    QCOMPARE(text(attribute.netType()), QString("DtNetInt32"));
}

void TestAttribute::littleEndianFlagWaitsForTheNetType()
{
    DtAttribute attribute("a", "DtInt32");
    attribute.setLittleEndian(true);
    QCOMPARE(text(attribute.netType()), QString("DtNetInt32"));
    attribute.obtainNetType();
    QCOMPARE(text(attribute.netType()), QString("DtLEInt32"));
}

void TestAttribute::enumerationIsFoundWithoutPrefix()
{
    QVERIFY(DtAttribute("a", "DtAttrKindEnum").isEnumeration());
    QVERIFY(DtAttribute("a", "AttrKindEnum").isEnumeration());
    QVERIFY(!DtAttribute("a", "DtAttrKind").isEnumeration());
}

void TestAttribute::enumerationIsFoundWithSmallFirstLetter()
{
    QVERIFY(DtAttribute("a", "DtAttrSmallEnum").isEnumeration());
    QVERIFY(DtAttribute("a", "DtattrSmallEnum").isEnumeration());
}

void TestAttribute::newTypeIsMarkedBeforeItsNetTypeIsFound()
{
    DtAttribute attribute("a", "DtFoo");
    attribute.setType("DtAttrKindEnum");
    QVERIFY(attribute.isEnumeration());
    QCOMPARE(text(attribute.netType()), QString("DtNetU8"));
}

void TestAttribute::enumerationKeepsItsMark()
{
    DtAttribute attribute("a", "DtAttrKindEnum");
    attribute.setType("DtFoo");
    QVERIFY(attribute.isEnumeration());
    QCOMPARE(text(attribute.netType()), QString("DtNetU32"));
}

void TestAttribute::enumerationSizeMakesTheNetType()
{
    QCOMPARE(text(DtAttribute("a", "DtAttrKindEnum").netType()), QString("DtNetU8"));
    QCOMPARE(text(DtAttribute("a", "AttrKindEnum").netType()), QString("DtNetU32")); // the size of an unknown name
}

void TestAttribute::emptyEnumerationSizeIsAWord()
{
    QCOMPARE(text(DtAttribute("a", "DtAttrOddEnum").netType()), QString("DtNetU32"));
}

void TestAttribute::knownTypeOfAnEnumerationKeepsItsNetType()
{
    DtAttribute attribute("a", "DtAttrKindEnum");
    attribute.setType("DtU16");
    QCOMPARE(text(attribute.netType()), QString("DtNetU8"));
}

void TestAttribute::netSizeString_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString type, cardinality, expected;
    } theRows[] = {
        {"string",                           "DtString",                 "1",  "myMark.length() + 1"    },
        {"strings",                          "DtString",                 "3",  "3 * myMark.length() + 1"},
        {"designator",                       "DtGlobalObjectDesignator", "1",  "myMark.length() + 1"    },
        {"integer",                          "DtU16",                    "1",  "sizeof(DtNetU16)"       },
        {"integers",                         "DtU16",                    "4",  "4 * sizeof(DtNetU16)"   },
        {"known without initial value",      "DtEntityType",             "1",  "sizeof(DtNetEntityType)"},
        {"enumeration by its initial value", "AttrKindEnum",             "1",  "sizeof(DtNetU32)"       },
        {"class",                            "DtFoo",                    "1",  "myMark.netSize()"       },
        {"classes",                          "DtFoo",                    "2",  "2 * myMark[0].netSize()"},
        {"open array",                       "DtFoo",                    "0+", "myMark.netSize()"       },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.type << row.cardinality << row.expected;
}

void TestAttribute::netSizeString()
{
    QFETCH(QString, type);
    QFETCH(QString, cardinality);
    DtAttribute attribute("Mark", type.toUtf8().constData());
    attribute.setCardinality(cardinality.toUtf8().constData());
    QTEST(text(attribute.netSizeString()), "expected");
}

void TestAttribute::plainValuesAreStored()
{
    DtAttribute attribute("a", "DtU8");
    attribute.setDatatype("Foo");
    attribute.setDatatypeDatatype("Bar");
    attribute.setEncoding("Enc");
    attribute.setDiscriminantValue("V");
    attribute.setIsFloat(true);
    QCOMPARE(text(attribute.datatype() + attribute.datatypeDatatype() + attribute.encoding() +
                  attribute.discrimininantValue()),
             QString("FooBarEncV"));
    QVERIFY(attribute.isFloat());
}

void TestAttribute::copiesAreIndependent()
{
    DtAttribute attribute("a", "DtU8");
    const DtAttribute copy = attribute;
    attribute.setCardinality("0+");
    QVERIFY(!copy.hasPlusCardinality());
}

QX_REGISTER_TEST(TestAttribute)
#include "testAttribute.moc"
