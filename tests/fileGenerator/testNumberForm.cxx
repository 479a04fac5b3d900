// How numbers lie on the wire, by the tables of the mapper; the tokens that give it to templates; names that clash.

#include "fileGenerator/arrayDataTypeFileWriter.h"
#include "fileGenerator/literalText.h"
#include "fileGenerator/nameClashes.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/simpleDataTypeFileWriter.h"
#include "omtReader/arrayDatatypeNode.h"
#include "omtReader/simpleDatatypeNode.h"
#include "registerTest.h"
#include "writerProbe.h"

#include <QtTest/QtTest>

namespace
{
DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

// Octets, F or S or U for the kind, B or L for the order.
QString written(const DtNumberForm& form)
{
    return QString::number(form.octets) +
           (form.isFloat    ? "F"
            : form.isSigned ? "S"
                            : "U") +
           (form.isLittleEndian ? "L" : "B");
}

void addBasic(const char* name, const char* bits, const char* endian)
{
    mapper().addBasicTypeInfoMapping(name, {bits, endian});
}
} // namespace

class TestNumberForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void basicTypeHasSizeAndOrderOfTheModel_data();
    void basicTypeHasSizeAndOrderOfTheModel();
    void readyTypeStandsInForAMissingTable();
    void formIsThatOfTheLastRepresentation();
    void mappedEnumerationKeepsItsRepresentation();
    void numberTypeHoldsEveryValue_data();
    void numberTypeHoldsEveryValue();
    void dimensionsAreMultiplied_data();
    void dimensionsAreMultiplied();
    void tokensGiveTheForm();
    void simpleTypeHasTheNumberOfItsRepresentation();
    void arrayHasCountAndEncodingOfTheModel();
    void literalTextIsEscaped();
    void firstOfAClassNameIsNamed();
    void accessorsAreCompared();
};

void TestNumberForm::basicTypeHasSizeAndOrderOfTheModel_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("bits");
    QTest::addColumn<QByteArray>("endian");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char *row, *name, *bits, *endian, *expected;
    } rows[] = {
        {"unsigned",                "NfByte",            "8",         "Big",      "1UB"   },
        {"signed",                  "NfInteger",         "16",        "Big",      "2SB"   },
        {"small letter",            "Nfinteger",         "16",        "Big",      "2SB"   },
        {"unsigned integer",        "NfUnsignedInteg",   "32",        "Big",      "4UB"   },
        {"unsigned, spelled out",   "NfunsignedInteger", "32",        "Big",      "4UB"   },
        {"float",                   "NfFloat",           "64",        "Big",      "8FB"   },
        {"little",                  "NfWord",            "16",        "Little",   "2UL"   },
        {"big in any case",         "NfWord",            "16",        "BIG",      "2UB"   },
        {"little with blanks",      "NfWord",            "16",        " little ", "2UL"   },
        {"anything else is big",    "NfWordLE",          "16",        "Middle",   "2UB"   },
        {"name does not count",     "NfWordBE",          "16",        "Little",   "2UL"   },
        {"no text",                 "NfWord",            "16",        "",         "2UB"   },
        {"blanks are no text",      "NfWordLE",          "16",        "  ",       "2UL"   },
        {"no text, little by name", "NfWordLE",          "16",        "",         "2UL"   },
        {"no text, but the name",   "NfWordBE",          "16",        "",         "2UB"   },
        {"three octets",            "NfInteger",         "24",        "Big",      "3SB"   },
        {"broken octet",            "NfBits",            "12",        "Big",      "2UB"   },
        {"one bit",                 "NfBit",             "1",         "Big",      "1UB"   },
        {"long",                    "NfLong",            "128",       "Big",      "16UB"  },
        {"far too long",            "NfLong",            "999999999", "Big",      "1024UB"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.row) << QByteArray(row.name) << QByteArray(row.bits) << QByteArray(row.endian)
                               << QString(row.expected);
}

void TestNumberForm::basicTypeHasSizeAndOrderOfTheModel()
{
    const RunSettings settings;
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, bits);
    QFETCH(QByteArray, endian);
    addBasic(name.constData(), bits.constData(), endian.constData());
    QTEST(written(numberFormOf(name.constData())), "expected");
}

void TestNumberForm::readyTypeStandsInForAMissingTable()
{
    const RunSettings settings;
    mapper().addMapping("NfReadyBE", "DtInt16");
    mapper().addMapping("NfReadyLE", "DtU64");
    mapper().addMapping("NfReadyText", "DtString");
    addBasic("NfReadyEmpty", "", "");
    QCOMPARE(written(numberFormOf("NfReadyBE")), QString("2SB"));
    QCOMPARE(written(numberFormOf("NfReadyLE")), QString("8UL"));
    QCOMPARE(numberFormOf("NfReadyText").octets, 0);
    QCOMPARE(numberFormOf("NfReadyEmpty").octets, 0);
    QCOMPARE(numberFormOf("NfNowhere").octets, 0);
    QCOMPARE(numberFormOf("").octets, 0);
}

void TestNumberForm::formIsThatOfTheLastRepresentation()
{
    const RunSettings settings;
    addBasic("NfBase24", "24", "Little");
    mapper().addSimpleTypeToRepresentationMapping("NfOver", "NfBase24");
    mapper().addSimpleTypeToRepresentationMapping("NfOverOver", "NfOver");
    mapper().addArrayTypeToRepresentationMapping("NfRow", "NfOverOver");
    QCOMPARE(written(numberFormOf("NfOverOver")), QString("3UL"));
    QCOMPARE(written(numberFormOf("NfRow")), QString("3UL"));
    QCOMPARE(numberFormOfRepresentation("NfOver").octets, 0); // no basic type itself
    mapper().addSimpleTypeToRepresentationMapping("NfRing", "NfRing2");
    mapper().addSimpleTypeToRepresentationMapping("NfRing2", "NfRing");
    QCOMPARE(numberFormOf("NfRing").octets, 0);
}

void TestNumberForm::mappedEnumerationKeepsItsRepresentation()
{
    const RunSettings settings;
    addBasic("NfTruthBase", "16", "Little");
    mapper().addMapping("NfTruth", "bool");
    QCOMPARE(numberFormOf("NfTruth").octets, 0);
    DtDatatypeClassNames::instance().addEnumeration("NfTruth", "NfTruthBase");
    QCOMPARE(written(numberFormOf("NfTruth")), QString("2UL"));
}

void TestNumberForm::numberTypeHoldsEveryValue_data()
{
    QTest::addColumn<int>("octets");
    QTest::addColumn<QString>("types");
    QTest::newRow("unknown") << 0 << "DtU8 DtInt8 DtFloat64";
    QTest::newRow("1") << 1 << "DtU8 DtInt8 DtFloat64";
    QTest::newRow("2") << 2 << "DtU16 DtInt16 DtFloat64";
    QTest::newRow("3") << 3 << "DtU32 DtInt32 DtFloat64";
    QTest::newRow("4") << 4 << "DtU32 DtInt32 DtFloat32";
    QTest::newRow("5") << 5 << "DtU64 DtInt64 DtFloat64";
    QTest::newRow("8") << 8 << "DtU64 DtInt64 DtFloat64";
    QTest::newRow("16") << 16 << "DtU64 DtInt64 DtFloat64";
}

void TestNumberForm::numberTypeHoldsEveryValue()
{
    QFETCH(int, octets);
    QStringList types;
    for (const auto& [isFloat, isSigned] : {std::pair(false, false), std::pair(false, true), std::pair(true, true)})
    {
        DtNumberForm form;
        form.octets = octets;
        form.isFloat = isFloat;
        form.isSigned = isSigned;
        types += QString::fromUtf8(numberTypeOf(form).c_str());
    }
    QTEST(types.join(' '), "types");
}

void TestNumberForm::dimensionsAreMultiplied_data()
{
    QTest::addColumn<QByteArray>("cardinality");
    QTest::addColumn<int>("count");
    QTest::newRow("one") << QByteArray("4") << 4;
    QTest::newRow("none") << QByteArray("0") << 0;
    QTest::newRow("two") << QByteArray("3,4") << 12;
    QTest::newRow("three, blanks") << QByteArray(" 2, 3 ,4 ") << 24;
    QTest::newRow("dynamic") << QByteArray("Dynamic") << -1;
    QTest::newRow("range") << QByteArray("[1..10]") << -1;
    QTest::newRow("one of them open") << QByteArray("3,Dynamic") << -1;
    QTest::newRow("empty") << QByteArray() << -1;
    QTest::newRow("empty dimension") << QByteArray("3,,4") << -1;
    QTest::newRow("sign") << QByteArray("-3") << -1;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("too large") << QByteArray("2147483648") << -1;
    QTest::newRow("product too large") << QByteArray("65536,65536,65536,65536,0") << -1;
    QTest::newRow("far too large") << QByteArray("99999999999999999999999") << -1;
}

void TestNumberForm::dimensionsAreMultiplied()
{
    QFETCH(QByteArray, cardinality);
    QTEST(elementCountOf(cardinality.constData()), "count");
}

void TestNumberForm::tokensGiveTheForm()
{
    const RunSettings settings;
    addBasic("NfToken24", "24", "Little");
    mapper().addArrayTypeToRepresentationMapping("NfTokenGrid", "NfToken24");
    mapper().addArrayTypeToCardinalityMapping("NfTokenGrid", "3,4");
    AttributeProbe<DtClassFileWriter> writer("", "");
    const char* line = "<!AttributeElementCount!> <!AttributeOctets!> <!AttributeIsLittleEndian!>";
    QCOMPARE(writer.decode(line), QString(line));
    DtAttribute attribute("a", "DtNfTokenGrid");
    attribute.setDatatype("NfTokenGrid");
    writer.setCurrentAttribute(&attribute);
    QCOMPARE(writer.decode(line), QString("12 3 1"));
    DtAttribute other("b", "DtNowhere");
    other.setDatatype("NfNowhere");
    writer.setCurrentAttribute(&other);
    QCOMPARE(writer.decode(line), QString("-1 0 0"));
}

void TestNumberForm::simpleTypeHasTheNumberOfItsRepresentation()
{
    const RunSettings settings;
    addBasic("NfWide", "32", "Big");
    mapper().addSimpleTypeToRepresentationMapping("NfSimple", "NfWide");
    mapper().addMapping("NfSimple", "DtNfSimple");
    DtSimpleDatatypeNode node;
    node.setName("NfSimple");
    node.setRepresentation("NfWide");
    WriterProbe<DtSimpleDataTypeFileWriter> writer("", "");
    writer.compileAttributes(&node);
    // the other token goes by the size of a basic type called like the simple one
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!NumberType!> <!AttributeOctets!> "
                           "<!AttributeDatatypeDatatype!><#><#>"),
             QString("DtU32 4 DtU8"));
}

void TestNumberForm::arrayHasCountAndEncodingOfTheModel()
{
    const RunSettings settings;
    mapper().addMapping("NfGrid", "DtNfGrid");
    DtArrayDatatypeNode node;
    node.setName("NfGrid");
    node.setDatatype("HLAoctet");
    node.setCardinality("3, 4");
    node.setEncoding("HLApaddingTo32Array");
    WriterProbe<DtArrayDataTypeFileWriter> writer("", "");
    writer.compileAttributes(&node, nullptr);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ArrayElementCount!> <!ArrayEncoding!><#>"),
             QString("12 HLApaddingTo32Array"));
}

void TestNumberForm::literalTextIsEscaped()
{
    QCOMPARE(text(literalText("plain - <a>")), QString("plain - <a>"));
    QCOMPARE(text(literalText("a\"b\\c?d\ne")), QString("a\\\"b\\\\c\\?d e"));
}

void TestNumberForm::firstOfAClassNameIsNamed()
{
    const RunSettings settings;
    const DtCapture warnings(DtWarn);
    DtClassNameClashes names;
    names.add("speed", "DtSpeed");
    names.add("speed", "DtSpeed");
    names.add("Other", "DtOther");
    QCOMPARE(warnings.text(), QString());
    names.add("Speed", "DtSpeed");
    names.add("SPEED", "DtSpeed");
    names.add("a+b", "DtA+b");
    QCOMPARE(warnings.text(), QString("Warning: Datatypes speed and Speed are both called DtSpeed in C++.\n"
                                      "Warning: Datatypes speed and SPEED are both called DtSpeed in C++.\n"
                                      "Warning: Datatype a+b is called DtA+b in C++, which is no identifier.\n"));
}

void TestNumberForm::accessorsAreCompared()
{
    const RunSettings settings;
    const DtCapture warnings(DtWarn);
    warnOfMemberNames(DtSubject::datatype("Owner"), {"Speed", "speedy", "class", "HLAx", "a-b"});
    QCOMPARE(warnings.text(), QString());
    warnOfMemberNames(DtSubject::datatype("Owner"),
                      {"Speed", "speed", "HLAx", "hLAx", "class", "theClass", "a-b", "a__b"});
    QCOMPARE(warnings.text(), QString("Warning: Members Speed and speed of Owner are called alike in C++.\n"
                                      "Warning: Members HLAx and hLAx of Owner are called alike in C++.\n"
                                      "Warning: Members class and theClass of Owner are called alike in C++.\n"
                                      "Warning: Members a-b and a__b of Owner are called alike in C++.\n"));
    const DtCapture further(DtWarn);
    warnOfMemberNames(DtSubject::datatype("Owner"), {"3D", "\xc3\xa4"});
    QCOMPARE(further.text().count("which is no identifier"), 2);
}

QX_REGISTER_TEST(TestNumberForm)
#include "testNumberForm.moc"
