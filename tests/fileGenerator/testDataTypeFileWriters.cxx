#include "fileGenerator/arrayDataTypeFileWriter.h"
#include "fileGenerator/basicDataTypeFileWriter.h"
#include "fileGenerator/simpleDataTypeFileWriter.h"
#include "foundation/environment.h"
#include "omtReader/omtTree.h"
#include "registerTest.h"
#include "writerProbe.h"

#include <QtTest/QtTest>

namespace
{

using SimpleProbe = AttributeProbe<DtSimpleDataTypeFileWriter>;
using BasicProbe = AttributeProbe<DtBasicDataTypeFileWriter>;
using ArrayProbe = AttributeProbe<DtArrayDataTypeFileWriter>;

DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

// A datatype whose turn has come: its class is registered.
void registerClass(const DtString& name)
{
    mapper().addMapping(name, "Dt" + name);
}

DtSimpleDatatypeNode simple(const char* name, const char* representation)
{
    DtSimpleDatatypeNode node;
    node.setName(name);
    node.setRepresentation(representation);
    registerClass(name);
    return node;
}

DtBasicDataRepresentationNode basic(const char* name, const char* size, const char* endian)
{
    DtBasicDataRepresentationNode node;
    node.setName(name);
    mapper().addBasicTypeInfoMapping(name, {size, endian});
    registerClass(name);
    return node;
}

DtArrayDatatypeNode array(const char* name, const char* datatype, const char* encoding, const char* cardinality)
{
    DtArrayDatatypeNode node;
    node.setName(name);
    node.setDatatype(datatype);
    node.setEncoding(encoding);
    node.setCardinality(cardinality);
    registerClass(name);
    return node;
}

} // namespace

class TestDataTypeFileWriters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void classLoopRunsOverTheCompiledDatatypes();
    void classLoopIsEmptyWithoutDatatypes();
    void classNameIsTheTargetNameAsIdentifier();
    void secondNodeOfTheSameTargetAddsNothing();
    void otherLoopsReachTheClassWriter();
    void headerIncludeIsTheStem();
    void primitives_data();
    void primitives();
    void simpleMemberIsNamedAfterTheDatatype();
    void simpleSizeIsThatOfItsOwnName();
    void simpleListsItsOwnHeaderFirst();
    void littleEndianSimpleHasALittleEndianNetType();
    void basicGoesByItsOwnName();
    void basicTokens_data();
    void basicTokens();
    void basicTokensWithoutDatatype();
    void basicSizeOfANameThatIsNoIdentifier();
    void arrayHasOneMember();
    void arrayIncludesItsElement();
    void arrayOfItselfIncludesNothing();
    void encodingOfAnArray_data();
    void encodingOfAnArray();
    void givenEncodingGoesFirst();
    void unknownKindIsWarnedAboutOnlyWhereAskedFor();
    void layoutGoesByTheKindOrElseByTheModelsEncoding();
    void encodingWithoutDatatypeStays();
    void tokenArrayHasNegativeCardinality();
    void prefixTokenOfArrays();
    void variableArrayHasAVariableNetType();
    void notEncodeableTypesAreTold();
    void oneOpenPartIsEncodeable();
    void nestedOpenPartsAreNot();
    void memberThatIsNotEncodeableMarksItsUser();
    void severalOpenPartsAreCodedOnRequest();
    void countsAreSharedAndReset();
    void decodeabilityLeavesTheNames();
    void classLoopInsideAttributesIsHarmless();
    void predefinedSimpleEntry();
    void predefinedArrayEntry_data();
    void predefinedArrayEntry();
    void predefinedUnknownEntry();
    void knownTokensOfTheFamilies();
};

void TestDataTypeFileWriters::classLoopRunsOverTheCompiledDatatypes()
{
    const RunSettings settings;
    DtSimpleDatatypeNode zulu = simple("DwZulu", "x");
    DtSimpleDatatypeNode alpha = simple("DwAlpha", "x");
    SimpleProbe writer("", "");
    writer.compileAttributes(&zulu);
    writer.compileAttributes(&alpha);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassName!>(<#Attributes><!AttributeDatatype!><#>) <#>"),
             QString("DtDwZulu(DtDwZulu) DtDwAlpha(DtDwAlpha) "));
    QCOMPARE(writer.expand("<#ClassDatatypes>x<#>"), QString("xx"));
}

void TestDataTypeFileWriters::classLoopIsEmptyWithoutDatatypes()
{
    const RunSettings settings;
    SimpleProbe writer("", "");
    QCOMPARE(writer.expand("<#ClassDatatypes>x<#>y"), QString("y"));
}

void TestDataTypeFileWriters::classNameIsTheTargetNameAsIdentifier()
{
    const RunSettings settings;
    DtSimpleDatatypeNode node = simple("Dw-Odd/Name", "x");
    SimpleProbe writer("", "");
    writer.compileAttributes(&node);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassName!><#>"), QString("DtDw__Odd__Name"));
}

void TestDataTypeFileWriters::secondNodeOfTheSameTargetAddsNothing()
{
    const RunSettings settings;
    DtSimpleDatatypeNode one = simple("DwOne", "x");
    DtSimpleDatatypeNode other = simple("DwOther", "x");
    mapper().addMapping("DwOther", "DtDwOne");
    SimpleProbe writer("", "");
    writer.compileAttributes(&one);
    writer.compileAttributes(&other);
    writer.compileAttributes(&one);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassName!> <#>"), QString("DtDwOne "));
    QCOMPARE(writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("dwOne.h "));
}

void TestDataTypeFileWriters::otherLoopsReachTheClassWriter()
{
    const RunSettings settings;
    SimpleProbe writer("", "");
    writer.addAttribute(DtAttribute("One", "DtU8"));
    QCOMPARE(writer.expand("<#Attributes><!AttributeName!><#> <#2>x<#>"), QString("One xx"));
}

void TestDataTypeFileWriters::headerIncludeIsTheStem()
{
    const RunSettings settings;
    DtOMTEnvWriter::setIncludeName("inc");
    for (const char* name : {"DataTypes/foo.h", "DataTypes/foo.cxx", "DataTypes/foo.a.b"})
        QCOMPARE(SimpleProbe(name, "").decode("<!MyHeaderInclude!>"), QString("DataTypes/foo.h"));
}

void TestDataTypeFileWriters::primitives_data()
{
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("expected"); // sizes 8, 16, 32, 64, 24 and 0
    const QString floats = "DtFloat DtFloat DtFloat32 DtFloat64 DtFloat DtFloat";
    const QString signedOnes = "DtInt8 DtInt16 DtInt32 DtInt64 DtInt64 DtInt64";
    const QString unsignedOnes = "DtU8 DtU16 DtU32 DtU64 DtU8 DtU8";
    QTest::newRow("float") << "HLAfloatXBE" << floats;
    QTest::newRow("Float") << "Float" << floats;
    QTest::newRow("float ahead of integer") << "unsigned integer Float" << floats;
    QTest::newRow("integer") << "HLAintegerXBE" << signedOnes;
    QTest::newRow("Integer") << "Integer" << signedOnes;
    QTest::newRow("unsigned integer") << "unsignedinteger" << unsignedOnes;
    QTest::newRow("Unsigned Integer") << "UnsignedInteger" << unsignedOnes;
    QTest::newRow("mixed case") << "RPRunsignedIntegerBE" << unsignedOnes;
    QTest::newRow("anything else") << "octet" << unsignedOnes;
    QTest::newRow("empty") << "" << unsignedOnes;
}

void TestDataTypeFileWriters::primitives()
{
    QFETCH(QString, representation);
    QStringList types;
    for (const int bits : {8, 16, 32, 64, 24, 0})
        types << text(primitiveType(representation.toUtf8().constData(), bits));
    QTEST(types.join(' '), "expected");
}

void TestDataTypeFileWriters::simpleMemberIsNamedAfterTheDatatype()
{
    const RunSettings settings;
    DtOMTEnvWriter::setPrefixName("Pre");
    mapper().addBasicTypeInfoMapping("Dw-Angle", {"32", "Big"});
    DtSimpleDatatypeNode node = simple("Dw-Angle", "HLAfloat32BE");
    SimpleProbe writer("", "");
    writer.compileAttributes(&node);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!ExactAttributeName!> <!AttributeDatatype!> "
                           "<!AttributeFomDatatype!> <!AttributeDatatypeDatatype!> <!IsFloat!><#><#>"),
             QString("Dw__Angle DtPreDw__Angle Dw__Angle DtFloat32 Float"));
}

void TestDataTypeFileWriters::simpleSizeIsThatOfItsOwnName()
{
    const RunSettings settings;
    mapper().addBasicTypeInfoMapping("DwInteger16", {"16", "Big"});
    DtSimpleDatatypeNode node = simple("DwCount", "DwInteger16");
    SimpleProbe writer("", "");
    writer.compileAttributes(&node);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!AttributeDatatypeDatatype!>|<!IsFloat!><#><#>"),
             QString("DtInt64|")); // no size is known by the name of the simple type
}

void TestDataTypeFileWriters::simpleListsItsOwnHeaderFirst()
{
    const RunSettings settings;
    DtOMTEnvWriter::setPrefixName("Pre");
    DtSimpleDatatypeNode node = simple("DwOwn", "x");
    SimpleProbe writer("", "");
    writer.compileAttributes(&node);
    QCOMPARE(writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("preDwOwn.h "));
    writer.compileIncludeList();
    QCOMPARE(writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("preDwOwn.h "));
}

void TestDataTypeFileWriters::littleEndianSimpleHasALittleEndianNetType()
{
    const RunSettings settings;
    DtBasicDataRepresentationNode node = basic("HLAinteger16LE", "16", "Little");
    BasicProbe writer("", "");
    writer.compileAttributes(&node);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!AttributeNetType!><#><#>"), QString("DtLEHLAinteger16LE"));
}

void TestDataTypeFileWriters::basicGoesByItsOwnName()
{
    const RunSettings settings;
    DtBasicDataRepresentationNode node = basic("DwUnsignedInteger24", "24", "Big");
    DtBasicDataRepresentationNode other = basic("DwFloat64", "64", "Big");
    BasicProbe writer("", "");
    writer.compileAttributes(&node);
    writer.compileAttributes(&other);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!AttributeDatatypeDatatype!><!IsFloat!> <#><#>"),
             QString("DtU8 DtFloat64Float "));
}

void TestDataTypeFileWriters::basicTokens_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("endian");
    QTest::addColumn<QString>("expected"); // in the class, then in the attribute
    const struct
    {
        const char* name;
        QString size, endian;
        QString expected;
    } theRows[] = {
        {"big",            "32", "Big",    "Pre 4 0 <!BasicSize!>|Pre 4 0 32"},
        {"little",         "16", "Little", "Pre 2 1 <!BasicSize!>|Pre 2 1 16"},
        {"no endian",      "8",  "",       "Pre 1 1 <!BasicSize!>|Pre 1 1 8" },
        {"other case",     "64", "big",    "Pre 8 1 <!BasicSize!>|Pre 8 1 64"},
        {"no whole bytes", "12", "Big",    "Pre 1 0 <!BasicSize!>|Pre 1 0 12"},
        {"no size",        "",   "Big",    "Pre 0 0 <!BasicSize!>|Pre 0 0 "  },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.size << row.endian << row.expected;
}

void TestDataTypeFileWriters::basicTokens()
{
    const RunSettings settings;
    QFETCH(QString, size);
    QFETCH(QString, endian);
    DtOMTEnvWriter::setPrefixName("Pre");
    DtBasicDataRepresentationNode node = basic("DwBasic", size.toUtf8().constData(), endian.toUtf8().constData());
    BasicProbe writer("", "");
    writer.compileAttributes(&node);
    const char* tokens = "<#ClassDatatypes><!ClassPrefix!> <!size!> <!EndianMatch!> <!BasicSize!>|"
                         "<#Attributes><!ClassPrefix!> <!size!> <!EndianMatch!> <!BasicSize!><#><#>";
    QTEST(writer.expand(tokens), "expected");
}

void TestDataTypeFileWriters::basicTokensWithoutDatatype()
{
    const RunSettings settings;
    QCOMPARE(BasicProbe("", "").decode("<!size!> <!EndianMatch!>"), QString("0 1"));
}

void TestDataTypeFileWriters::basicSizeOfANameThatIsNoIdentifier()
{
    const RunSettings settings;
    DtBasicDataRepresentationNode node = basic("Dw-Basic", "16", "Big");
    BasicProbe writer("", "");
    writer.compileAttributes(&node);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!BasicSize!> <!size!><#><#>"), QString("16 2"));
}

void TestDataTypeFileWriters::arrayHasOneMember()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("DwByte", "DtU8");
    DtArrayDatatypeNode node = array("Dw-Bytes", "DwByte", "HLAfixedArray", "6");
    ArrayProbe writer("", "");
    writer.compileAttributes(&node, &tree);
    writer.compileAttributes(&node, &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassName!>: <#Attributes><!ExactAttributeName!> <!AttributeDatatype!> "
                           "<!AttributeFomDatatype!> <!AttributeNumCardinality!>;<#><#>"),
             QString("DtDw__Bytes: Dw__Bytes DtU8 DwByte 6;"));
}

void TestDataTypeFileWriters::arrayIncludesItsElement()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtDatatypeClassNames::instance().add("xElement", "DtXElement");
    DtArrayDatatypeNode ofClass = array("DwOfClass", "xElement", "HLAfixedArray", "2");
    DtArrayDatatypeNode ofKnown = array("DwOfKnown", "DwByte", "HLAfixedArray", "2");
    mapper().addMapping("DwByte", "DtU8");
    ArrayProbe writer("", "");
    writer.compileAttributes(&ofClass, &tree);
    writer.compileAttributes(&ofKnown, &tree);
    QCOMPARE(writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("xElement.h "));
}

void TestDataTypeFileWriters::arrayOfItselfIncludesNothing()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode node = array("DwSelf", "DwSelf", "HLAfixedArray", "2");
    ArrayProbe writer("", "");
    writer.compileAttributes(&node, &tree);
    QCOMPARE(writer.expand("<#IncludeFiles>x<#><#ClassDatatypes><#IncludeFiles>x<#><#>"), QString());
}

void TestDataTypeFileWriters::encodingOfAnArray_data()
{
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString encoding, cardinality, expected;
    } theRows[] = {
        {"1",                          "HLAfixedArray",          "3",       "HLAfixedArray"         },
        {"4",                          "RPRnullTerminatedArray", "Dynamic", "HLAnullTerminatedArray"},
        {"8",                          "RPRlengthlessArray",     "Dynamic", "HLAlengthlessVarArray" },
        {"10",                         "HLAvariableArray",       "Dynamic", "HLAvariableArray"      },
        {"own encoding with a length", "Custom",                 "4",       "HLAfixedArray"         },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.encoding << row.cardinality << row.expected;
}

void TestDataTypeFileWriters::encodingOfAnArray()
{
    const RunSettings settings;
    QFETCH(QString, encoding);
    QFETCH(QString, cardinality);
    DtOMTTree tree;
    DtArrayDatatypeNode node =
        array("DwArray", "DwByte", encoding.toUtf8().constData(), cardinality.toUtf8().constData());
    DtArrayDatatypeNode last = array("DwLast", "DwByte", "HLAbitArray", "3");
    ArrayProbe writer("", "");
    writer.compileAttributes(&node, &tree);
    writer.compileAttributes(&last, &tree);
    QTEST(writer.decode("<!MyEncoding!>"), "expected"); // of the first, ahead of the loop
    QVERIFY(writer.expand("<#ClassDatatypes><!MyEncoding!> <#>")
                .startsWith(*static_cast<QString*>(QTest::qData("expected", QMetaType::QString)) + " "));
}

void TestDataTypeFileWriters::givenEncodingGoesFirst()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode node = array("DwArray", "DwByte", "HLAfixedArray", "3");
    ArrayProbe writer("", "", "RPRpaddingTo32Array");
    writer.compileAttributes(&node, &tree);
    QCOMPARE(writer.expand("<!MyEncoding!><#ClassDatatypes> <!MyEncoding!><#>"),
             QString("RPRpaddingTo32Array RPRpaddingTo32Array"));
}

void TestDataTypeFileWriters::unknownKindIsWarnedAboutOnlyWhereAskedFor()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode node = array("DwBits", "DwByte", "HLAbitArray", "3");
    ArrayProbe writer("", "");
    writer.compileAttributes(&node, &tree);
    DtCapture warnings(DtWarn);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassName!><#>"), QString("DtDwBits"));
    QCOMPARE(warnings.text(), QString());
    QCOMPARE(writer.expand("<#ClassDatatypes><!MyEncoding!><#>"), QString("<!MyEncoding!>"));
    QCOMPARE(warnings.text(), QString("Warning: Cannot find cardinality of DtDwBits\n"));
}

void TestDataTypeFileWriters::layoutGoesByTheKindOrElseByTheModelsEncoding()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode node = array("DwArray", "DwByte", "HLAvariableArray", "3");
    DtArrayDatatypeNode bits = array("DwBits", "DwByte", "HLAbitArray", "3");
    ArrayProbe writer("", ""), padding("", "", "RPRpaddingTo32Array"), unknown("", "");
    writer.compileAttributes(&node, &tree);
    padding.compileAttributes(&node, &tree);
    unknown.compileAttributes(&bits, &tree);
    DtCapture warnings(DtWarn);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ArrayLayout!><#>"), QString("DtArrayLayout(DtVariableArray)"));
    QCOMPARE(padding.expand("<#ClassDatatypes><!ArrayLayout!><#>"), QString("DtArrayLayout(DtPaddingArray, 4)"));
    QCOMPARE(warnings.text(), QString());
    QCOMPARE(unknown.expand("<#ClassDatatypes><!ArrayLayout!><#>"), QString("DtArrayLayout(DtUnknownArray)"));
    QCOMPARE(warnings.text(), QString("Warning: Cannot find cardinality of DtDwBits\n"));
}

void TestDataTypeFileWriters::encodingWithoutDatatypeStays()
{
    const RunSettings settings;
    DtCapture warnings(DtWarn);
    QCOMPARE(ArrayProbe("", "").decode("<!MyEncoding!>"), QString("<!MyEncoding!>"));
    QCOMPARE(warnings.text(), QString("Warning: Cannot find cardinality of \n"));
}

void TestDataTypeFileWriters::tokenArrayHasNegativeCardinality()
{
    const RunSettings settings;
    ArrayProbe writer("", "");
    QCOMPARE(writer.decode("<!TokenCardinality!>"), QString("<!TokenCardinality!>"));
    writer.setOriginalName("MyHLAtokens");
    QCOMPARE(writer.decode("<!TokenCardinality!>"), QString("-1"));
}

void TestDataTypeFileWriters::prefixTokenOfArrays()
{
    const RunSettings settings;
    DtOMTEnvWriter::setPrefixName("Pre");
    QCOMPARE(ArrayProbe("", "").decode("<!ClassPrefix!>"), QString("Pre"));
    QCOMPARE(SimpleProbe("", "").decode("<!ClassPrefix!>"), QString("<!ClassPrefix!>"));
}

void TestDataTypeFileWriters::variableArrayHasAVariableNetType()
{
    const RunSettings settings;
    DtOMTTree tree;
    auto* inTree = new DtArrayDatatypeNode(array("DwVarArray", "DwByte", "HLAvariableArray", "Dynamic"));
    tree.addArrayDatatypeNode(inTree);
    ArrayProbe writer("", "");
    QVERIFY(!mapper().isVariableSizeNetType("DtNetDwVarArray"));
    writer.compileAttributes(inTree, &tree);
    QVERIFY(mapper().isVariableSizeNetType("DtNetDwVarArray"));
}

void TestDataTypeFileWriters::notEncodeableTypesAreTold()
{
    const RunSettings settings;
    mapper().addNonEncodeableDataType("DtDwRefused");
    DtSimpleDatatypeNode refused = simple("DwRefused", "x");
    DtSimpleDatatypeNode taken = simple("DwTaken", "x");
    SimpleProbe writer("", "");
    writer.compileAttributes(&refused);
    writer.compileAttributes(&taken);
    QCOMPARE(writer.expand("<#ClassDatatypes>(<!LocalTypeIsNotEncodeable!>)<#>"), QString("(1)()"));
}

void TestDataTypeFileWriters::oneOpenPartIsEncodeable()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode node = array("DwOpen1", "DwByte", "HLAvariableArray", "Dynamic");
    ArrayProbe writer("", "");
    writer.compileAttributes(&node, &tree);
    DtCapture warnings(DtWarn);
    writer.determineDecodeability();
    QCOMPARE(warnings.text(), QString());
    QVERIFY(!mapper().isNonEncodeableDataType("DtDwOpen1"));
}

void TestDataTypeFileWriters::nestedOpenPartsAreNot()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode inner = array("DwInner", "DwByte", "HLAvariableArray", "Dynamic");
    DtArrayDatatypeNode outer = array("DwOuter", "DwInner", "HLAvariableArray", "Dynamic");
    ArrayProbe writer("", "");
    writer.compileAttributes(&inner, &tree);
    writer.compileAttributes(&outer, &tree);
    DtCapture warnings(DtWarn);
    writer.determineDecodeability();
    QCOMPARE(warnings.text(), QString("Warning: Cannot encode/decode attributes of type: DtDwOuter: contains a + "
                                      "attribute of a type that contains a + attribute.\n"
                                      "Warning: Cannot encode/decode data type DtDwOuter.\n"));
    QVERIFY(!mapper().isNonEncodeableDataType("DtDwInner"));
    QVERIFY(mapper().isNonEncodeableDataType("DtDwOuter"));
}

void TestDataTypeFileWriters::memberThatIsNotEncodeableMarksItsUser()
{
    const RunSettings settings;
    DtOMTTree tree;
    registerClass("DwPoor");
    mapper().addNonEncodeableDataType("DtDwPoor");
    DtArrayDatatypeNode user = array("DwPoorUser", "DwPoor", "HLAfixedArray", "2");
    ArrayProbe writer("", "");
    writer.compileAttributes(&user, &tree);
    DtCapture warnings(DtWarn);
    writer.determineDecodeability();
    QCOMPARE(warnings.text(), QString("Warning: Cannot encode/decode data type DtDwPoorUser.\n"));
    QVERIFY(mapper().isNonEncodeableDataType("DtDwPoorUser"));
}

// The marks and what is told of them stay; one line more says that they do not count.
void TestDataTypeFileWriters::severalOpenPartsAreCodedOnRequest()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode inner = array("DwRow", "DwByte", "HLAvariableArray", "Dynamic");
    DtArrayDatatypeNode outer = array("DwRows", "DwRow", "HLAvariableArray", "Dynamic");
    ArrayProbe writer("", "");
    writer.compileAttributes(&inner, &tree);
    writer.compileAttributes(&outer, &tree);
    const char* const tokens = "<#ClassDatatypes>(<!LocalTypeIsNotEncodeable!>,<!LocalTypeHasNoCoding!>)<#>";
    DtCapture warnings(DtWarn);
    writer.determineDecodeability();
    QCOMPARE(writer.expand(tokens), QString("(,)(1,1)"));
    const QString stated = warnings.text();
    DtFileWriter::setCodeOpenArrays(true);
    writer.determineDecodeability();
    QCOMPARE(writer.expand(tokens), QString("(,)(1,)"));
    QCOMPARE(warnings.text(),
             stated + stated + "Warning: Data type DtDwRows is coded all the same, as codeOpenArrays is on.\n");
}

void TestDataTypeFileWriters::countsAreSharedAndReset()
{
    const RunSettings settings;
    DtOMTTree tree;
    DtArrayDatatypeNode inner = array("DwShared", "DwByte", "HLAvariableArray", "Dynamic");
    ArrayProbe first("", "");
    first.compileAttributes(&inner, &tree);
    first.determineDecodeability();
    DtArrayDatatypeNode outer = array("DwSharedUser", "DwShared", "HLAvariableArray", "Dynamic");
    ArrayProbe second("", "");
    second.compileAttributes(&outer, &tree);
    DtCapture warnings(DtWarn);
    DtCodedDataTypeFileWriter::resetPlusAttributeCounts();
    second.determineDecodeability();
    QCOMPARE(warnings.text(), QString());
    first.determineDecodeability();
    second.determineDecodeability();
    QVERIFY(warnings.text().contains("DtDwSharedUser"));
}

void TestDataTypeFileWriters::decodeabilityLeavesTheNames()
{
    const RunSettings settings;
    DtSimpleDatatypeNode node = simple("DwNamed", "x");
    SimpleProbe writer("", "");
    writer.setClassName("DtBefore");
    writer.compileAttributes(&node);
    writer.determineDecodeability();
    QCOMPARE(writer.decode("<!ClassName!>"), QString("DtBefore"));
    QVERIFY(writer.attributeList().empty());
}

void TestDataTypeFileWriters::classLoopInsideAttributesIsHarmless()
{
    const RunSettings settings;
    DtSimpleDatatypeNode node = simple("DwInside", "x");
    SimpleProbe writer("", "");
    writer.compileAttributes(&node);
    for (int i = 0; i < 5; ++i)
        writer.addAttribute(DtAttribute("A", "DtU8"));
    QCOMPARE(writer.expand("<#Attributes><!AttributeName!>(<#ClassDatatypes><!ClassName!><#>)<!AttributeName!><#>"),
             QString("A(DtDwInside)<!AttributeName!>"));
}

void TestDataTypeFileWriters::predefinedSimpleEntry()
{
    const RunSettings settings;
    mapper().addSimpleTypeToRepresentationMapping("DwPreSimple", "DwPreRep");
    mapper().addMapping("DwPreRep", "DtInt16");
    DtEnvObject entry("type", "Type");
    entry.setValue("DwPreSimple");
    DtString type;
    DtString cardinality = "kept";
    SimpleProbe writer("", "");
    QCOMPARE(writer.addTypeFromSimpleTypeList(&entry, type, cardinality), 1);
    QCOMPARE(text(type + " " + cardinality), QString("DtInt16 kept"));
    QCOMPARE(text(mapper().quorvexType("DwPreSimple")), QString("DtInt16"));
}

void TestDataTypeFileWriters::predefinedArrayEntry_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString element, cardinality, expected;
    } theRows[] = {
        {"mapped element",  "DwPreMapped", "4",       "DtU8 4" },
        {"simple element",  "DwPreOver",   "Dynamic", "DtU8 0+"},
        {"unknown element", "DwPreNone",   "1",       " 1"     },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.element << row.cardinality << row.expected;
}

void TestDataTypeFileWriters::predefinedArrayEntry()
{
    const RunSettings settings;
    QFETCH(QString, element);
    QFETCH(QString, cardinality);
    mapper().addMapping("DwPreMapped", "DtU8");
    mapper().addSimpleTypeToRepresentationMapping("DwPreOver", "DwPreMapped");
    mapper().addArrayTypeToRepresentationMapping("DwPreArray", element.toUtf8().constData());
    mapper().addArrayTypeToCardinalityMapping("DwPreArray", cardinality.toUtf8().constData());
    DtEnvObject entry("type", "Type");
    entry.setValue("DwPreArray");
    DtString type;
    DtString answer;
    ArrayProbe writer("", "");
    QCOMPARE(writer.addTypeFromSimpleTypeList(&entry, type, answer), 1);
    QTEST(text(type + " " + answer), "expected");
    QVERIFY(!mapper().hasMapping("DwPreArray"));
}

void TestDataTypeFileWriters::predefinedUnknownEntry()
{
    const RunSettings settings;
    DtEnvObject entry("type", "Type");
    entry.setValue("DwPreUnknown");
    DtString type;
    DtString cardinality = "kept";
    ArrayProbe writer("", "");
    QCOMPARE(writer.addTypeFromSimpleTypeList(&entry, type, cardinality), 0);
    QCOMPARE(text(type + " " + cardinality), QString("DwPreUnknown kept"));
    QCOMPARE(writer.addTypeFromArrayTypeList(&entry, type, cardinality), 0);
}

void TestDataTypeFileWriters::knownTokensOfTheFamilies()
{
    const RunSettings settings;
    const auto own = [](const DtClassFileWriter& writer)
    {
        QStringList tokens;
        for (const DtString& token : writer.tokenChain().tokens())
        {
            if (token == "<!OctetBoundary!>")
                break;
            tokens << text(token);
        }
        return tokens.join(' ');
    };
    QCOMPARE(own(SimpleProbe("", "")), QString("<!NumberType!> <!LocalTypeIsNotEncodeable!> <!LocalTypeHasNoCoding!> "
                                               "<!MyHeaderInclude!> <!ClassIdentifier!> <!AttributeMutableName!>"));
    QCOMPARE(own(BasicProbe("", "")), QString("<!BasicSize!> <!ClassPrefix!> <!size!> <!EndianMatch!> <!NumberType!> "
                                              "<!LocalTypeIsNotEncodeable!> <!LocalTypeHasNoCoding!> "
                                              "<!MyHeaderInclude!> <!ClassIdentifier!> <!AttributeMutableName!>"));
    QCOMPARE(own(ArrayProbe("", "")),
             QString("<!MyEncoding!> <!ClassPrefix!> <!ArrayElementCount!> <!ArrayEncoding!> <!ArrayLayout!> "
                     "<!TokenCardinality!> "
                     "<!LocalTypeIsNotEncodeable!> <!LocalTypeHasNoCoding!> <!MyHeaderInclude!> <!ClassIdentifier!> "
                     "<!AttributeMutableName!>"));
}

QX_REGISTER_TEST(TestDataTypeFileWriters)
#include "testDataTypeFileWriters.moc"
