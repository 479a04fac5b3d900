#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/enumFileWriter.h"
#include "registerTest.h"
#include "writerProbe.h"

#include <QtTest/QtTest>

namespace
{

using Probe = WriterProbe<DtEnumerationFileWriter>;

DtEnumeration enumeration(const char* name, const char* size = "",
                          const std::vector<DtEnumerationValue>& values = {
                              {"One", "1"},
                              {"Two", "2"}
})
{
    DtEnumeration result(name, values);
    result.setSize(size);
    return result;
}

DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

} // namespace

class TestEnumFileWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumerationIsMappedToItsClass();
    void givenSizeIsEntered();
    void missingSizeIsTold();
    void sizeComesFromTheName_data();
    void sizeComesFromTheName();
    void nameWithoutNumberGivesNoSize_data();
    void nameWithoutNumberGivesNoSize();
    void representationOfASize_data();
    void representationOfASize();
    void valueNamesLoseSpecialCharacters_data();
    void valueNamesLoseSpecialCharacters();
    void identifiersAreToldApart();
    void secondOfOneTypeNameIsMarked();
    void longNameStaysAsItIs();
    void numberFormIsGivenOrGuessed_data();
    void numberFormIsGivenOrGuessed();
    void numberThatDoesNotFitIsTold_data();
    void numberThatDoesNotFitIsTold();
    void loopsRunInOrder();
    void numberIsAnExpressionOf64Bits();
    void fieldLoopNeedsAnEnumeration();
    void tokensStayOutsideTheirLoops();
    void otherLoopsCount();
    void baseTokensAreReplacedLast();
    void templateIsTheSharedOne();
};

void TestEnumFileWriter::enumerationIsMappedToItsClass()
{
    const RunSettings settings;
    Probe writer("");
    writer.addEnumeration(enumeration("enumMappedEnum8", "8"));
    QCOMPARE(text(mapper().quorvexType("enumMappedEnum8")), QString("DtEnumMappedEnum8"));
    QCOMPARE(text(writer.createEnumerationName(enumeration("aB"))), QString("DtAB"));
}

void TestEnumFileWriter::givenSizeIsEntered()
{
    const RunSettings settings;
    DtSaved<int> level(DtNotifyLevel, 3);
    DtCapture info(DtInfo);
    Probe writer("");
    writer.addEnumeration(enumeration("EnumGivenEnum32", "8"));
    QCOMPARE(text(mapper().enumerationSize("EnumGivenEnum32")), QString("8"));
    QCOMPARE(text(mapper().repForEnumName("EnumGivenEnum32")), QString("DtU8"));
    QCOMPARE(info.text(), QString());
}

void TestEnumFileWriter::missingSizeIsTold()
{
    const RunSettings settings;
    DtSaved<int> level(DtNotifyLevel, 3);
    DtCapture info(DtInfo);
    Probe writer("");
    writer.addEnumeration(enumeration("EnumToldEnum16"));
    QCOMPARE(info.text(),
             QString("Size of enumeration EnumToldEnum16 not specified.  Will try to parse enumeration name.\n"));
}

void TestEnumFileWriter::sizeComesFromTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("representation");
    const struct
    {
        const char* tag;
        QString name, size, representation;
    } theRows[] = {
        {"32",                      "EnumAEnum32",      "32",   "DtU32"},
        {"last Enum counts",        "EnumBEnum8Enum64", "64",   "DtU64"},
        {"odd size",                "EnumCEnum12",      "12",   "DtU16"},
        {"no Enum, all digits",     "16",               "16",   "DtU16"},
        {"hexadecimal is a number", "EnumDEnum0x20",    "0x20", "DtU16"},
        {"text behind the number",  "EnumEEnum8bit",    "8bit", "DtU8" },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.size << row.representation;
}

void TestEnumFileWriter::sizeComesFromTheName()
{
    const RunSettings settings;
    QFETCH(QString, name);
    Probe writer("");
    writer.addEnumeration(enumeration(name.toUtf8().constData()));
    QTEST(text(mapper().enumerationSize(name.toUtf8().constData())), "size");
    QTEST(text(mapper().repForEnumName(name.toUtf8().constData())), "representation");
}

void TestEnumFileWriter::nameWithoutNumberGivesNoSize_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("word") << "EnumFKind";
    QTest::newRow("ends in Enum") << "EnumGEnum";
    QTest::newRow("number ahead of Enum") << "EnumH8Enum";
    QTest::newRow("zero") << "EnumIEnum0";
    QTest::newRow("number without Enum") << "KindJ8";
}

void TestEnumFileWriter::nameWithoutNumberGivesNoSize()
{
    const RunSettings settings;
    QFETCH(QString, name);
    Probe writer("");
    writer.addEnumeration(enumeration(name.toUtf8().constData()));
    QCOMPARE(text(mapper().enumerationSize(name.toUtf8().constData())), QString("32")); // of any unknown name
    QCOMPARE(text(mapper().repForEnumName(name.toUtf8().constData())), QString());
}

void TestEnumFileWriter::representationOfASize_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString size, expected;
    } theRows[] = {
        {"8",     "8",   "DtU8" },
        {"16",    "16",  "DtU16"},
        {"32",    "32",  "DtU32"},
        {"64",    "64",  "DtU64"},
        {"24",    "24",  "DtU16"},
        {"abc",   "abc", "DtU16"},
        {"empty", "",    "DtU16"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.size << row.expected;
}

void TestEnumFileWriter::representationOfASize()
{
    const RunSettings settings;
    QFETCH(QString, size);
    QTEST(text(Probe("").getEnumerationRepFromSize(size.toUtf8().constData())), "expected");
}

void TestEnumFileWriter::valueNamesLoseSpecialCharacters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* tag;
        QString name, expected;
    } theRows[] = {
        {"plain",        "Sea_1",         "Sea_1"      },
        {"hyphen",       "F-16",          "F16"        },
        {"all",          "a/b#c-d<e>f&g", "abcdefg"    },
        {"others stay",  "[A .. B], C",   "[A .. B], C"},
        {"nothing left", "--",            ""           },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.expected;
}

void TestEnumFileWriter::valueNamesLoseSpecialCharacters()
{
    const RunSettings settings;
    QFETCH(QString, name);
    const DtEnumerationValue value(name.toUtf8().constData(), "1");
    QTEST(text(Probe("").createEnumerationValueName("DtAny", value)), "expected");
    QTEST(text(Probe("").createEnumerationValueName("", value)), "expected");
}

void TestEnumFileWriter::identifiersAreToldApart()
{
    const RunSettings settings;
    const DtCapture warnings(DtWarn);
    Probe writer("");
    writer.addEnumeration(enumeration("EnumNEnum8", "8",
                                      {
                                          {"A-B",       "1"},
                                          {"AB",        "2"},
                                          {"AB_2",      "3"},
                                          {"a.b \"c\"", "4"},
                                          {"--",        "5"}
    }));
    QCOMPARE(writer.expand("<#Enumeration><#EnumerationField><!EnumerationFieldName!>|<!EnumerationFieldIdentifier!>|"
                           "<!EnumerationFieldText!>; <#><#>"),
             QString("AB|AB|A-B; AB|AB_2|AB; AB_2|AB_2_2|AB_2; a.b \"c\"|a_b__c_|a.b \\\"c\\\"; ||--; "));
    QCOMPARE(warnings.text(),
             QString("Warning: Enumerator AB of EnumNEnum8 is called AB_2: another one is called AB too.\n"
                     "Warning: Enumerator AB_2 of EnumNEnum8 is called AB_2_2: another one is called "
                     "AB_2 too.\n"));
}

void TestEnumFileWriter::secondOfOneTypeNameIsMarked()
{
    const RunSettings settings;
    const DtCapture warnings(DtWarn);
    Probe writer("");
    for (const char* name : {"enumO-Enum8", "EnumO-Enum8", "EnumO__Enum8"})
        writer.addEnumeration(enumeration(name, "8"));
    QCOMPARE(
        writer.expand("<#Enumeration><!EnumerationName!> <!EnumerationTypeName!> (<!EnumerationIsRepeated!>); <#>"),
        QString("DtEnumO-Enum8 DtEnumO__Enum8 (); DtEnumO-Enum8 DtEnumO__Enum8 (1); "
                "DtEnumO__Enum8 DtEnumO__Enum8 (1); "));
    QCOMPARE(warnings.text(),
             QString("Warning: Enumeration EnumO-Enum8 is left out: another one is called DtEnumO__Enum8 too.\n"
                     "Warning: Enumeration EnumO__Enum8 is left out: another one is called DtEnumO__Enum8 too.\n"));
}

// A number belongs to the classes, whose lines come later.
void TestEnumFileWriter::longNameStaysAsItIs()
{
    const RunSettings settings;
    const std::string tail(150, 'e');
    const auto numberOf = [&tail](const char* name)
    { return text(DtClassFileWriter::identifierOf(name + tail)).mid(50).toInt(); };
    const int first = numberOf("EnumFirst");
    Probe writer("");
    for (const std::string& name : {"o-" + tail, "O-" + tail, "p" + tail})
        writer.addEnumeration(enumeration(name.c_str(), "8"));
    QCOMPARE(writer.expand("<#Enumeration><!EnumerationTypeName!> <!EnumerationIsRepeated!>;<#>"),
             QString("DtO__%1 ;DtO__%1 1;DtP%1 ;").arg(QString::fromStdString(tail)));
    QCOMPARE(numberOf("EnumNext"), first + 1);
}

void TestEnumFileWriter::numberFormIsGivenOrGuessed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("octets");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* tag;
        QString name, size, value;
        int octets;
        QString expected;
    } theRows[] = {
        {"given",                  "EnumPEnum32",   "16", "1",  3, "3 1 1"},
        {"size",                   "EnumQEnum32",   "16", "1",  0, "2 0 0"},
        {"name",                   "EnumRKind8",    "",   "1",  0, "1 0 0"},
        {"nothing",                "EnumSKind",     "",   "1",  0, "4 0 0"},
        {"negative number",        "EnumTKind",     "",   "-1", 0, "4 1 0"},
        {"odd number in the name", "EnumUKind1234", "",   "1",  0, "4 0 0"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.size << row.value << row.octets << row.expected;
}

void TestEnumFileWriter::numberFormIsGivenOrGuessed()
{
    const RunSettings settings;
    QFETCH(QString, name);
    QFETCH(QString, size);
    QFETCH(QString, value);
    QFETCH(int, octets);
    DtEnumeration each = enumeration(name.toUtf8().constData(), size.toUtf8().constData(),
                                     {
                                         {"One", value.toUtf8().constData()}
    });
    DtNumberForm form;
    form.octets = octets;
    form.isSigned = form.isLittleEndian = true;
    each.setNumberForm(form);
    Probe writer("");
    writer.addEnumeration(each);
    QTEST(writer.expand("<#Enumeration><!EnumerationOctets!> <!EnumerationIsSigned!> <!EnumerationIsLittleEndian!><#>"),
          "expected");
}

void TestEnumFileWriter::numberThatDoesNotFitIsTold_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("octets");
    QTest::addColumn<bool>("isSigned");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("255 in 1") << "255" << 1 << false << false;
    QTest::newRow("256 in 1") << "256" << 1 << false << true;
    QTest::newRow("-1 without a sign") << "-1" << 1 << false << true;
    QTest::newRow("127 in 1 with a sign") << "127" << 1 << true << false;
    QTest::newRow("128 in 1 with a sign") << "128" << 1 << true << true;
    QTest::newRow("-128 in 1 with a sign") << "-128" << 1 << true << false;
    QTest::newRow("-129 in 1 with a sign") << "-129" << 1 << true << true;
    QTest::newRow("largest in 4") << "2147483647" << 4 << true << false;
    QTest::newRow("-1 in 8 without a sign") << "-1" << 8 << false << true;
    QTest::newRow("-1 in 8 with a sign") << "-1" << 8 << true << false;
    QTest::newRow("largest in 4 without a sign") << "4294967295" << 4 << false << false;
    QTest::newRow("one more in 4 without a sign") << "4294967296" << 4 << false << true;
    QTest::newRow("least in 8") << "-9223372036854775808" << 8 << true << false;
    QTest::newRow("largest in 8 without a sign") << "18446744073709551615" << 8 << false << false;
    QTest::newRow("largest in 8 with a sign") << "18446744073709551615" << 8 << true << true;
}

void TestEnumFileWriter::numberThatDoesNotFitIsTold()
{
    const RunSettings settings;
    QFETCH(QString, value);
    QFETCH(int, octets);
    QFETCH(bool, isSigned);
    QFETCH(bool, isTold);
    DtEnumeration each = enumeration("EnumVEnum8", "8",
                                     {
                                         {"One", value.toUtf8().constData()}
    });
    DtNumberForm form;
    form.octets = octets;
    form.isSigned = isSigned;
    each.setNumberForm(form);
    const DtCapture warnings(DtWarn);
    Probe writer("");
    writer.addEnumeration(each);
    QCOMPARE(warnings.text(), isTold ? QString("Warning: Enumerator One of EnumVEnum8 does not fit into its "
                                               "representation.\n")
                                     : QString());
}

void TestEnumFileWriter::loopsRunInOrder()
{
    const RunSettings settings;
    Probe writer("");
    writer.addEnumeration(enumeration("zuluEnum8", "8",
                                      {
                                          {"b-1", "7" },
                                          {"a",   "-3"}
    }));
    writer.addEnumeration(enumeration("AlphaEnum8", "8", {}));
    QCOMPARE(writer.expand("<#Enumeration><!EnumerationName!>{<#EnumerationField><!EnumerationFieldName!>="
                           "<!EnumerationFieldValue!> of <!EnumerationName!>,<#>} <#>"),
             QString("DtZuluEnum8{b1=7 of DtZuluEnum8,a=-3 of DtZuluEnum8,} DtAlphaEnum8{} "));
}

void TestEnumFileWriter::numberIsAnExpressionOf64Bits()
{
    const RunSettings settings;
    Probe writer("");
    writer.addEnumeration(enumeration("EnumWEnum64", "64",
                                      {
                                          {"a",                    "-1", "4294967295"},
                                          {"b",                      "-1",                        "9223372036854775807"},
                                          {"c", "0","9223372036854775808"},
                                          {"d",                   "0",                     "-9223372036854775808"},
                                          {"e",                    "-5"  }
    }));
    QCOMPARE(writer.expand("<#Enumeration><#EnumerationField><!EnumerationFieldValue!>=<!EnumerationFieldNumber!>,"
                           "<#><#>"),
             QString("-1=4294967295,-1=9223372036854775807,0=static_cast<DtInt64>(9223372036854775808u),"
                     "0=-9223372036854775807 - 1,-5=-5,"));
}

void TestEnumFileWriter::fieldLoopNeedsAnEnumeration()
{
    const RunSettings settings;
    Probe writer("");
    writer.addEnumeration(enumeration("EnumKEnum8", "8"));
    QCOMPARE(writer.expand("<#EnumerationField>x<#>|<#Enumeration><#EnumerationField>x<#><#>|"
                           "<#EnumerationField>x<#>"),
             QString("|xx|"));
}

void TestEnumFileWriter::tokensStayOutsideTheirLoops()
{
    const RunSettings settings;
    Probe writer("");
    writer.addEnumeration(enumeration("EnumLEnum8", "8", {}));
    const char* line = "<!EnumerationName!><!EnumerationFieldName!><!EnumerationFieldValue!>";
    QCOMPARE(writer.decode(line), QString(line));
    QCOMPARE(writer.expand("<#Enumeration><!EnumerationName!><!EnumerationFieldName!><#>"),
             QString("DtEnumLEnum8<!EnumerationFieldName!>"));
    QCOMPARE(writer.decode(line), QString(line));
}

void TestEnumFileWriter::otherLoopsCount()
{
    const RunSettings settings;
    Probe writer("");
    QCOMPARE(writer.expand("<#3>x<#><#Enumerations>y<#>"), QString("xxx"));
}

void TestEnumFileWriter::baseTokensAreReplacedLast()
{
    const RunSettings settings;
    Probe writer("");
    writer.addEnumeration(enumeration("EnumMEnum8", "8",
                                      {
                                          {"<!FomFileName!>", "<!FomFileName!>"}
    }));
    DtOMTEnvWriter::setBaseName("my-model.xml");
    QCOMPARE(writer.expand("<#Enumeration><#EnumerationField><!EnumerationFieldName!> <!EnumerationFieldValue!><#><#>"),
             QString("!FomFileName! mymodel"));
}

void TestEnumFileWriter::templateIsTheSharedOne()
{
    const RunSettings settings;
    const QTemporaryDir directory;
    writeTextFile(directory.filePath("data/templates/enums.tlt"), "unique");
    QDir(directory.path()).mkpath("work");
    const DtInDirectory inWork(directory.filePath("work"));
    struct Opened : Probe
    {
        using Probe::Probe;
        bool hasTemplate() const { return myTemplateFile != nullptr; }
    };
    QVERIFY(Opened("DataTypes/mEnums.h").hasTemplate());
    QDir::setCurrent(directory.path());
    QVERIFY(!Opened("DataTypes/mEnums.h").hasTemplate());
}

QX_REGISTER_TEST(TestEnumFileWriter)
#include "testEnumFileWriter.moc"
