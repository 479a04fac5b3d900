#include "fileGenerator/complexDataTypeFileWriter.h"
#include "fileGenerator/fixedRecordsFileWriter.h"
#include "fileGenerator/variantRecordFileWriter.h"
#include "omtReader/omtTree.h"
#include "registerTest.h"
#include "writerProbe.h"

#include <QtTest/QtTest>

namespace
{

using FixedProbe = AttributeProbe<DtFixedRecordFileWriter>;
using VariantProbe = AttributeProbe<DtVariantRecordFileWriter>;
using ComplexProbe = AttributeProbe<DtComplexDataTypeFileWriter>;

DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

DtDatatypeClassNames& classNames()
{
    return DtDatatypeClassNames::instance();
}

struct Part
{
    const char* name;
    const char* datatype;
    const char* extra = ""; // enumerator of an alternative, cardinality of a component
};

DtFixedDatatypeNode* addFixed(DtOMTTree& tree, const DtString& name, const std::vector<Part>& parts)
{
    auto* node = new DtFixedDatatypeNode;
    node->setName(name);
    for (const Part& part : parts)
    {
        auto* field = new DtFieldComponentNode;
        field->setName(part.name);
        field->setDatatype(part.datatype);
        node->addComponentNode(field);
    }
    tree.addFixedDatatypeNode(node);
    mapper().addMapping(name, "Dt" + name);
    return node;
}

DtVariantDatatypeNode* addVariant(DtOMTTree& tree, const DtString& name, const std::vector<Part>& parts)
{
    auto* node = new DtVariantDatatypeNode;
    node->setName(name);
    for (const Part& part : parts)
    {
        auto* alternative = new DtAlternativeComponentNode;
        alternative->setName(part.name);
        alternative->setDatatype(part.datatype);
        alternative->setEnumerator(part.extra);
        node->addComponentNode(alternative);
    }
    tree.addVariantDatatypeNode(node);
    mapper().addMapping(name, "Dt" + name);
    return node;
}

DtComplexDatatypeNode* addComplex(DtOMTTree& tree, const DtString& name, const std::vector<Part>& parts)
{
    auto* node = new DtComplexDatatypeNode;
    node->setName(name);
    for (const Part& part : parts)
    {
        auto* component = new DtComplexComponentNode;
        component->setName(part.name);
        component->setDatatype(part.datatype);
        component->setCardinality(part.extra);
        node->addComponentNode(component);
    }
    tree.addComplexDatatypeNode(node);
    mapper().addMapping(name, "Dt" + name);
    return node;
}

DtAttribute component(const char* datatype, const char* cardinality)
{
    DtAttribute attribute("c", "DtAny");
    attribute.setCardinality(cardinality);
    attribute.setDatatype(datatype);
    return attribute;
}

} // namespace

class TestRecordFileWriters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreMembersInOrder();
    void fixedRecordWithoutFields();
    void fixedRecordTokens();
    void mutableNameGivesWayToAnAccessor();
    void textsStructuresAndOctetsAreMovable();
    void laterMembersAreKnownAhead();
    void recordIncludesItsMembersButNotItself();
    void textFieldTakesTheEncodingBelow();
    void otherFieldsTakeTheirOwnEncoding();
    void recordWithOneOpenFieldIsEncodeable();
    void recordWithTwoOpenFieldsIsNot();
    void recordOfABadTypeIsBad();
    void alternativesAreMembersInOrder();
    void alternativesWithoutValueHaveNoMember();
    void variantRecordTokens();
    void enumeratorIsCleanedLikeInTheHeader_data();
    void enumeratorIsCleanedLikeInTheHeader();
    void selectorStandsAsTheModelHasIt();
    void discriminantIsAnAttributeInItsLoop_data();
    void discriminantIsAnAttributeInItsLoop();
    void includeOfTheDiscriminantStandsOnce();
    void enumeratorsAreCopiedFromTheRecord();
    void enumeratorsOfEqualNamesKeepTheirOrder();
    void variantNetTypesAreMarked();
    void componentsAreMembersInOrder();
    void arrayNames_data();
    void arrayNames();
    void rangeHasAnArrayOnlyWhereOneIsMade();
    void arrayNameCarriesThePrefix();
    void arrayIncludesDropNeighbours();
    void complexTokens();
    void generatedClassIsNoBasicType();
    void boundaryIsThatOfTheTypeAlone();
    void complexTypesAreAlwaysEncodeable();
    void knownTokensOfTheRecords();
};

void TestRecordFileWriters::fieldsAreMembersInOrder()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwByte", "DtU8");
    classNames().add("RwPart", "DtRwPart");
    FixedProbe writer("", "");
    DtFixedDatatypeNode* node = addFixed(tree, "RwFixed",
                                         {
                                             {"Zulu",  "RwByte"},
                                             {"class", "RwPart"},
                                             {"a-b",   "Raw"   }
    });
    writer.compileAttributes(node, &tree);
    writer.compileAttributes(node, &tree);
    QCOMPARE(
        writer.expand("<#ClassDatatypes><!ClassName!>: <#Attributes><!attributeName!> <!AttributeDatatype!> "
                      "<!AttributeFomDatatype!> <!AttributeNumCardinality!><!AttributeHasPlusCardinality!>;<#><#>"),
        QString("DtRwFixed: zulu DtU8 RwByte 1;theClass DtRwPart RwPart 1;a__b Raw Raw 1;"));
}

void TestRecordFileWriters::fixedRecordWithoutFields()
{
    const RunSettings settings;
    DtOMTTree tree;
    FixedProbe writer("", "");
    writer.compileAttributes(addFixed(tree, "RwEmpty", {}), &tree);
    writer.determineDecodeability();
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassName!><#Attributes>x<#><#>"), QString("DtRwEmpty"));
}

void TestRecordFileWriters::fixedRecordTokens()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addVariableSizeNetType("DtNetRwOpen");
    mapper().addMapping("RwOpen", "DtRwOpen");
    mapper().addDatatypeToVariantDataMapping("RwChoice", {});
    mapper().addNetTypeWithVariantRecord("DtNetRwHolder");
    mapper().addMapping("RwHolder", "DtRwHolder");
    FixedProbe writer("", "");
    writer.compileAttributes(addFixed(tree, "RwDtTokens",
                                      {
                                          {"a", "RwOpen"  },
                                          {"b", "RwChoice"},
                                          {"c", "RwHolder"}
    }),
                             &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassNetName!> <!NetTypeIsVariableSize!> <!NetTypeIsVariantRecord!>"
                           "<#Attributes> (<!NetTypeIsVariableSize!>,<!NetTypeIsVariantRecord!>)<#><#>"),
             QString("DtNetRwDtTokens <!NetTypeIsVariableSize!> <!NetTypeIsVariantRecord!> (1,) (,1) (,1)"));
}

void TestRecordFileWriters::mutableNameGivesWayToAnAccessor()
{
    const RunSettings settings;
    DtOMTTree tree;
    FixedProbe writer("", "");
    writer.compileAttributes(addFixed(tree, "RwMutable",
                                      {
                                          {"speed",        "RwA"},
                                          {"MutableSpeed", "RwA"},
                                          {"Depth",        "RwA"},
                                          {"mutableDepth", "RwA"},
                                          {"Template",     "RwA"},
                                          {"mutable",      "RwA"},
                                          {"MUtableX",     "RwA"},
                                          {"X",            "RwA"}
    }),
                             &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes> <!AttributeMutableName!>,<#><#>"),
             QString(" , mutableMutableSpeed, , mutableMutableDepth, mutableTheTemplate, mutableTheMutable, "
                     "mutableMUtableX, mutableX,"));
    QCOMPARE(writer.expand("<!AttributeMutableName!>"), QString("<!AttributeMutableName!>"));
}

void TestRecordFileWriters::textsStructuresAndOctetsAreMovable()
{
    const RunSettings settings;
    DtOMTTree tree;
    classNames().add("RwOfRecord", "DtRwOfRecord");
    classNames().add("RwOfNumber", "DtRwOfNumber");
    mapper().addSimpleTypeToRepresentationMapping("RwOfNumber", "RwOctet");
    mapper().addMapping("RwOfText", "DtString");
    mapper().addMapping("RwOfFloat", "DtFloat64");
    FixedProbe writer("", "");
    writer.compileAttributes(addFixed(tree, "RwMovable",
                                      {
                                          {"record", "RwOfRecord" },
                                          {"number", "RwOfNumber" },
                                          {"text",   "RwOfText"   },
                                          {"float",  "RwOfFloat"  },
                                          {"octets", "RwOfNothing"}
    }),
                             &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes> <!ExactAttributeName!>=<!AttributeIsMovable!><#><#>"),
             QString(" record=1 number= text=1 float= octets=1"));
}

void TestRecordFileWriters::laterMembersAreKnownAhead()
{
    const RunSettings settings;
    DtOMTTree tree;
    classNames().add("RwLater", "DtRwLater");
    FixedProbe writer("", "");
    DtFixedDatatypeNode* first = addFixed(tree, "RwFirst",
                                          {
                                              {"a", "RwLater"}
    });
    addFixed(tree, "RwLater",
             {
                 {"t", "RwText"}
    });
    mapper().addMapping("RwText", "DtString");
    writer.compileAttributes(first, &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!NetTypeIsVariableSize!><#><#>"), QString("1"));
    QVERIFY(mapper().isVariableSizeNetType("DtNetRwFirst"));
}

void TestRecordFileWriters::recordIncludesItsMembersButNotItself()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwByte", "DtU8");
    mapper().addMapping("RwKindEnum", "DtRwKindEnum");
    mapper().addEnumeration("RwKindEnum");
    for (const char* name : {"RwOne", "rTwo"})
        classNames().add(name, name == DtString("rTwo") ? "DtRTwo" : "DtRwOne");
    FixedProbe writer("", "");
    writer.compileAttributes(addFixed(tree, "RwUser",
                                      {
                                          {"a", "RwOne"     },
                                          {"b", "RwByte"    },
                                          {"c", "RwOne"     },
                                          {"d", "RwKindEnum"},
                                          {"e", "rTwo"      },
                                          {"f", "RwUser"    },
                                          {"g", "RwOne"     }
    }),
                             &tree);
    QCOMPARE(writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("rwOne.h rTwo.h rwOne.h "));
}

void TestRecordFileWriters::textFieldTakesTheEncodingBelow()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwLabel", "DtString");
    mapper().addSimpleTypeToRepresentationMapping("RwLabel", "RwChars");
    mapper().addDatatypeToEncodingMapping("RwChars", "RwCharEncoding");
    mapper().addMapping("RwLoop", "DtString");
    mapper().addSimpleTypeToRepresentationMapping("RwLoop", "RwLoop");
    FixedProbe writer("", "");
    writer.compileAttributes(addFixed(tree, "RwTexts",
                                      {
                                          {"a", "RwLabel"},
                                          {"b", "RwLoop" },
                                          {"c", "RwChars"}
    }),
                             &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!AttributeEncoding!> <#><#>"),
             QString("RwCharEncoding HLAvariableArray RwCharEncoding "));
}

void TestRecordFileWriters::otherFieldsTakeTheirOwnEncoding()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwNumber", "DtU8");
    mapper().addSimpleTypeToRepresentationMapping("RwNumber", "RwChars");
    mapper().addDatatypeToEncodingMapping("RwChars", "RwCharEncoding");
    FixedProbe writer("", "");
    writer.compileAttributes(addFixed(tree, "RwNumbers",
                                      {
                                          {"a", "RwNumber"}
    }),
                             &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!AttributeEncoding!><#><#>"), QString("HLAvariableArray"));
}

// An array class of one open attribute, as the array writer leaves it: its count comes from a complex-like member.
void TestRecordFileWriters::recordWithOneOpenFieldIsEncodeable()
{
    const RunSettings settings;
    DtOMTTree tree;
    struct Open : FixedProbe
    {
        using FixedProbe::FixedProbe;
        void compileOpen(DtOMTNode* node)
        {
            DtAttribute open("o", "DtU8");
            open.setCardinality("0+");
            addCompiled(node, {open});
        }
    };
    Open writer("", "");
    writer.compileOpen(addFixed(tree, "RwOpenPart", {}));
    writer.compileAttributes(addFixed(tree, "RwOneOpen",
                                      {
                                          {"a", "RwOpenPart"}
    }),
                             &tree);
    DtCapture warnings(DtWarn);
    writer.determineDecodeability();
    QCOMPARE(warnings.text(), QString());
    writer.compileAttributes(addFixed(tree, "RwNestedTwo",
                                      {
                                          {"a", "RwOneOpen" },
                                          {"b", "RwOpenPart"}
    }),
                             &tree);
    writer.determineDecodeability();
    QCOMPARE(warnings.text(), QString("Warning: Cannot encode/decode data type DtRwNestedTwo.\n"));
}

void TestRecordFileWriters::recordWithTwoOpenFieldsIsNot()
{
    const RunSettings settings;
    DtOMTTree tree;
    struct TwoOpen : FixedProbe
    {
        using FixedProbe::FixedProbe;
        void compileTwo(DtOMTNode* node)
        {
            DtAttribute open("o", "DtU8");
            open.setCardinality("0+");
            addCompiled(node, {open, open});
        }
    };
    TwoOpen writer("", "");
    writer.compileTwo(addFixed(tree, "RwTwoOpen", {}));
    DtCapture warnings(DtWarn);
    writer.determineDecodeability();
    QCOMPARE(warnings.text(), QString("Warning: Cannot encode/decode data type DtRwTwoOpen.\n"));
    QCOMPARE(writer.expand("<#ClassDatatypes><!LocalTypeIsNotEncodeable!><#>"), QString("1"));
}

void TestRecordFileWriters::recordOfABadTypeIsBad()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwBad", "DtRwBad");
    mapper().addNonEncodeableDataType("DtRwBad");
    VariantProbe writer("", "");
    writer.compileAttributes(addVariant(tree, "RwBadUser",
                                        {
                                            {"a", "RwBad", "A"}
    }),
                             &tree);
    writer.determineDecodeability();
    QVERIFY(mapper().isNonEncodeableDataType("DtRwBadUser"));
    QCOMPARE(
        writer.expand("<#ClassDatatypes><!LocalTypeIsNotEncodeable!><#Attributes><!AttributeIsNotEncodeable!><#><#>"),
        QString("11"));
}

void TestRecordFileWriters::alternativesAreMembersInOrder()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwByte", "DtU8");
    mapper().addDatatypeToEncodingMapping("RwText", "RwTextEncoding");
    VariantProbe writer("", "");
    writer.compileAttributes(addVariant(tree, "RwChoose",
                                        {
                                            {"Zulu",  "RwByte", "B"},
                                            {"Alpha", "RwText", "A"}
    }),
                             &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassName!>: <#Attributes><!AttributeName!> <!AttributeDatatype!> "
                           "<!AttributeIsVariant!> <!CurrentDiscriminantEnumerator!> <!AttributeEncoding!>;<#><#>"),
             QString("DtRwChoose: Zulu DtU8 1 B HLAvariableArray;Alpha RwText 1 A RwTextEncoding;"));
}

void TestRecordFileWriters::alternativesWithoutValueHaveNoMember()
{
    const RunSettings settings;
    DtOMTTree tree;
    VariantProbe writer("", "");
    writer.compileAttributes(
        addVariant(tree, "RwNone",
                   {
                       {"a", "",     "A"},
                       {"b", "NA",   "B"},
                       {"c", "N/A",  "C"},
                       {"d", "na",   "D"},
                       {"e", "NAME", "E"}
    }),
        &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!attributeName!><#><#>"), QString("de"));
}

void TestRecordFileWriters::variantRecordTokens()
{
    const RunSettings settings;
    DtOMTTree tree;
    VariantProbe writer("", "");
    writer.setDiscriminantName("Kind");
    writer.setDiscriminantType("RwKindEnum");
    writer.compileAttributes(addVariant(tree, "RwVarTokens",
                                        {
                                            {"a", "RwX", "A"}
    }),
                             &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassNetName!> <!ClassDiscriminantName!> <!ClassDiscriminantType!> "
                           "<!CurrentDiscriminantEnumerator!> <!NetTypeIsVariantRecord!><#>"),
             QString("DtNetRwVarTokens Kind RwKindEnum <!CurrentDiscriminantEnumerator!> <!NetTypeIsVariantRecord!>"));
    QCOMPARE(text(writer.discriminantName() + writer.discriminantType()), QString("KindRwKindEnum"));
}

void TestRecordFileWriters::enumeratorIsCleanedLikeInTheHeader_data()
{
    QTest::addColumn<QString>("enumerator");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString enumerator, expected;
    } theRows[] = {
        {"plain",              "Sea",             "Sea"          },
        {"special characters", "F-16 <a/b#c&d>",  "F16 abcd"     },
        {"digit",              "3D",              "3D"           },
        {"keyword",            "class",           "class"        },
        {"list and range",     "A-1, [B .. C-2]", "A1, [B .. C2]"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.enumerator << row.expected;
}

void TestRecordFileWriters::enumeratorIsCleanedLikeInTheHeader()
{
    const RunSettings settings;
    QFETCH(QString, enumerator);
    DtOMTTree tree;
    VariantProbe writer("", "");
    const QByteArray bytes = enumerator.toUtf8();
    writer.compileAttributes(addVariant(tree, "RwCleaned",
                                        {
                                            {"a", "RwX", bytes.constData()}
    }),
                             &tree);
    QTEST(writer.expand("<#ClassDatatypes><#Attributes><!CurrentDiscriminantEnumerator!><#><#>"), "expected");
}

void TestRecordFileWriters::selectorStandsAsTheModelHasIt()
{
    const RunSettings settings;
    DtOMTTree tree;
    VariantProbe writer("", "");
    DtVariantDatatypeNode* node = addVariant(tree, "RwExact",
                                             {
                                                 {"a", "RwX", "[F-16 .. \"B\"]"},
                                                 {"b", "NA",  "C-2"            },
                                                 {"c", "",    "D"              }
    });
    node->setEncoding("Rw\"Record\"");
    writer.compileAttributes(node, &tree);
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassVariantKind!><#>"), QString("DtPlainVariant"));
    QCOMPARE(writer.expand("<#ClassDatatypes><!ClassEncoding!>: <#Attributes><!AlternativeSelector!>; <#>"
                           "<#ValuelessAlternatives><!AlternativeSelector!>, <#><!AlternativeSelector!><#>"),
             QString("Rw\\\"Record\\\": [F-16 .. \\\"B\\\"]; C-2, D, "));
}

void TestRecordFileWriters::discriminantIsAnAttributeInItsLoop_data()
{
    QTest::addColumn<QByteArray>("datatype");
    QTest::addColumn<QString>("expected");
    QTest::newRow("enumeration") << QByteArray("rw-kind") << "DtRw__kind rw__kind 2";
    QTest::newRow("ready number") << QByteArray("RwReadyByte") << "DtU8 RwReadyByte 1";
    QTest::newRow("truth value") << QByteArray("RwTruth") << "bool RwTruth 4";
    QTest::newRow("simple type") << QByteArray("RwSimple") << "DtRwSimple RwSimple 1";
    QTest::newRow("text") << QByteArray("RwText") << "DtInt32 RwText 0";
    QTest::newRow("none") << QByteArray("") << "DtInt32  0";
}

void TestRecordFileWriters::discriminantIsAnAttributeInItsLoop()
{
    const RunSettings settings;
    QFETCH(QByteArray, datatype);
    mapper().addBasicTypeInfoMapping("RwWord", {"16", "Big"});
    mapper().addBasicTypeInfoMapping("RwReadyByte", {"8", "Big"});
    mapper().addBasicTypeInfoMapping("RwLong", {"32", "Big"});
    mapper().addMapping("rw-kind", "DtRw-kind");
    mapper().addEnumeration("rw-kind");
    mapper().addMapping("RwReadyByte", "DtU8");
    mapper().addMapping("RwTruth", "bool");
    mapper().addMapping("RwText", "DtString");
    mapper().addSimpleTypeToRepresentationMapping("RwSimple", "RwReadyByte");
    mapper().addMapping("RwSimple", "DtRwSimple");
    classNames().add("RwSimple", "DtRwSimple");
    classNames().addEnumeration("rw-kind", "RwWord");
    classNames().addEnumeration("RwTruth", "RwLong");
    DtOMTTree tree;
    auto* simple = new DtSimpleDatatypeNode;
    simple->setName("RwSimple");
    tree.addSimpleDatatypeNode(simple);
    VariantProbe writer("", "");
    DtVariantDatatypeNode* node = addVariant(tree, "RwBy", {});
    node->setDatatype(datatype.constData());
    writer.compileAttributes(node, &tree);
    QTEST(writer.expand("<#ClassDatatypes><#Discriminant><!AttributeDatatype!> <!AttributeFomDatatype!> "
                        "<!AttributeOctets!><#><#Attributes>x<#><#>"),
          "expected");
    const bool isSimple = datatype == "RwSimple";
    QCOMPARE(writer.expand("<#IncludeFiles><!FileToInclude!><#>"), isSimple ? QString("rwSimple.h") : QString());
}

// The include of the discriminant is put behind those of the members, where the last of them may be the same.
void TestRecordFileWriters::includeOfTheDiscriminantStandsOnce()
{
    const RunSettings settings;
    DtOMTTree tree;
    for (const char* name : {"RwSimple", "RwOther"})
    {
        auto* simple = new DtSimpleDatatypeNode;
        simple->setName(name);
        tree.addSimpleDatatypeNode(simple);
        mapper().addMapping(name, DtString("Dt") + name);
        classNames().add(name, DtString("Dt") + name);
    }
    VariantProbe writer("", "");
    DtVariantDatatypeNode* node = addVariant(tree, "RwBySimple",
                                             {
                                                 {"a", "RwOther",  "A"},
                                                 {"b", "RwSimple", "B"}
    });
    node->setDatatype("RwSimple");
    writer.compileAttributes(node, &tree);
    QCOMPARE(writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("rwOther.h rwSimple.h "));
}

void TestRecordFileWriters::enumeratorsAreCopiedFromTheRecord()
{
    const RunSettings settings;
    DtOMTTree tree;
    VariantProbe writer("", "");
    writer.compileAttributes(addVariant(tree, "RwCopied",
                                        {
                                            {"a", "RwX", "A"},
                                            {"n", "NA",  "N"},
                                            {"b", "RwX", "B"}
    }),
                             &tree);
    writer.addEnumerators({
        "Kind", "KindEnum", {{"A1", "a", "RwX"}, {"N1", "n", "NA"}, {"B1", "b", "RwX"}}
    });
    const char* enumerators = "<#ClassDatatypes><#Attributes><!CurrentDiscriminantEnumerator!> <#><#>";
    QCOMPARE(writer.expand(enumerators), QString("A1 B1 "));
    writer.addEnumerators({"Kind", "KindEnum", {{"Z", "unknown", "RwX"}}});
    QCOMPARE(writer.expand(enumerators), QString("A1 B1 "));
    writer.addEnumerators({
        "Kind", "KindEnum", {{"A2", "a", "RwX"}, {"B2", "b", "RwX"}, {"C", "c", "RwX"}}
    });
    QCOMPARE(writer.expand(enumerators), QString("A2 B2 "));
}

void TestRecordFileWriters::enumeratorsOfEqualNamesKeepTheirOrder()
{
    const RunSettings settings;
    DtOMTTree tree;
    VariantProbe writer("", "");
    writer.compileAttributes(addVariant(tree, "RwEqual",
                                        {
                                            {"a", "RwX", "1"},
                                            {"a", "RwX", "2"}
    }),
                             &tree);
    writer.addEnumerators({
        "Kind", "KindEnum", {{"One", "a", "RwX"}, {"Two", "a", "RwX"}}
    });
    QCOMPARE(writer.expand("<#ClassDatatypes><#Attributes><!CurrentDiscriminantEnumerator!> <#><#>"),
             QString("One Two "));
}

void TestRecordFileWriters::variantNetTypesAreMarked()
{
    const RunSettings settings;
    DtOMTTree tree;
    VariantProbe writer("", "");
    writer.compileAttributes(addVariant(tree, "RwMarked",
                                        {
                                            {"a", "RwX", "A"}
    }),
                             &tree);
    QVERIFY(mapper().hasVariantRecord("DtNetRwMarked"));
    QVERIFY(!mapper().isVariableSizeNetType("DtNetRwMarked"));
}

void TestRecordFileWriters::componentsAreMembersInOrder()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwByte", "DtU8");
    ComplexProbe writer("", "");
    DtComplexDatatypeNode* node =
        addComplex(tree, "RwComplex",
                   {
                       {"Zulu",  "RwByte", "4"       },
                       {"Alpha", "Raw",    "1+"      },
                       {"Opt",   "Raw",    "0-1(k=2)"}
    });
    writer.compileAttributes(node);
    writer.compileAttributes(node);
    QCOMPARE(
        writer.expand("<#ClassDatatypes><!ClassName!>: <#Attributes><!AttributeName!> <!AttributeDatatype!> "
                      "<!AttributeNumCardinality!> (<!AttributeHasPlusCardinality!>) (<!AttributeIsVariant!>);<#><#>"),
        QString("DtRwComplex: Zulu DtU8 4 () ();Alpha Raw 1 (1) ();Opt Raw 1 () (1);"));
}

void TestRecordFileWriters::arrayNames_data()
{
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString cardinality, expected;
    } theRows[] = {
        {"one",             "1",        ""                          },
        {"one with a type", "1 (Type)", ""                          },
        {"fixed",           "10",       "DtRwFooFixedArray10"       },
        {"no number",       "Dynamic",  "DtRwFooFixedArrayDynamic"  },
        {"terminated",      "1+",       "DtRwFooNullTerminatedArray"},
        {"padded",          "%8",       "DtRwFooPaddingTo32Array"   },
        {"range",           "1-4",      ""                          },
        {"conditional",     "(k=1)",    ""                          },
        {"optional",        "(k)",      ""                          },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.cardinality << row.expected;
}

void TestRecordFileWriters::arrayNames()
{
    const RunSettings settings;
    QFETCH(QString, cardinality);
    const DtAttribute attribute = component("RwFoo", cardinality.toUtf8().constData());
    QTEST(text(ComplexProbe("", "").getDatatypeArrayName(attribute)), "expected");
}

void TestRecordFileWriters::rangeHasAnArrayOnlyWhereOneIsMade()
{
    const RunSettings settings;
    classNames().add("RwFooVariableArray", "DtRwFooVariableArray");
    QCOMPARE(text(ComplexProbe("", "").getDatatypeArrayName(component("RwFoo", "1-4"))),
             QString("DtRwFooVariableArray"));
}

void TestRecordFileWriters::arrayNameCarriesThePrefix()
{
    const RunSettings settings;
    DtOMTEnvWriter::setPrefixName("pre");
    QCOMPARE(text(ComplexProbe("", "").getDatatypeArrayName(component("Rw-Foo", "2"))),
             QString("DtPreRw__FooFixedArray2"));
}

void TestRecordFileWriters::arrayIncludesDropNeighbours()
{
    const RunSettings settings;
    DtOMTTree tree;
    ComplexProbe writer("", "");
    writer.compileAttributes(addComplex(
        tree, "RwArrays",
        {
            {"a", "RwFoo", "2" },
            {"b", "RwFoo", "2" },
            {"c", "RwBar", "1" },
            {"d", "RwBar", "1+"},
            {"e", "RwFoo", "2" }
    }));
    QCOMPARE(writer.expand("<#ArrayIncludeFiles><!ArrayFileToInclude!> <#>|<#ArrayIncludeFiles>x<#>"),
             QString("rwFooFixedArray2.h rwBarNullTerminatedArray.h rwFooFixedArray2.h |xxx"));
    QCOMPARE(writer.decode("<!ArrayFileToInclude!>"), QString(".h"));
}

void TestRecordFileWriters::complexTokens()
{
    const RunSettings settings;
    DtOMTTree tree;
    mapper().addMapping("RwByte", "DtU16");
    mapper().addDataTypeNameToBoundary("RwFoo", 8);
    ComplexProbe writer("DataTypes/rwTokens.h", "");
    writer.setOriginalName("RwFoo");
    writer.compileAttributes(addComplex(tree, "RwTokens",
                                        {
                                            {"a", "RwByte", "2"},
                                            {"b", "RwFoo",  "1"}
    }));
    QCOMPARE(writer.expand("<!OctetBoundary!> <!MyHeaderInclude!> <!LocalTypeIsNotEncodeable!><#ClassDatatypes>"
                           "<#Attributes> (<!DatatypeArrayName!> <!NonDtDatatypeArrayName!> <!IsBasicType!> "
                           "<!OctetBoundary!>)<#><#>"),
             QString("8 DataTypes/rwTokens.h <!LocalTypeIsNotEncodeable!> (DtRwByteFixedArray2 RwByteFixedArray2 1 2)"
                     " (   8)"));
    QCOMPARE(writer.decode("<!DatatypeArrayName!><!IsBasicType!>"), QString("<!DatatypeArrayName!><!IsBasicType!>"));
}

void TestRecordFileWriters::generatedClassIsNoBasicType()
{
    const RunSettings settings;
    mapper().addMapping("RwDone", "DtRwDone");
    classNames().add("RwDone", "DtRwDone");
    ComplexProbe writer("", "");
    const DtAttribute attribute = component("RwDone", "1");
    writer.setCurrentAttribute(&attribute);
    QCOMPARE(writer.decode("<!IsBasicType!>|"), QString("|"));
}

void TestRecordFileWriters::boundaryIsThatOfTheTypeAlone()
{
    const RunSettings settings;
    mapper().addDataTypeNameToBoundary("RwWide", 8);
    const auto boundaryOf = [](const char* type)
    {
        ComplexProbe writer("", "");
        DtAttribute attribute("c", type);
        attribute.setDatatype("RwWide");
        writer.setCurrentAttribute(&attribute);
        return writer.decode("<!OctetBoundary!>");
    };
    QCOMPARE(boundaryOf("DtU16"), QString("2"));
    QCOMPARE(boundaryOf("DtRwWide"), QString("0"));
    QCOMPARE(boundaryOf("RwWide"), QString("8"));
}

void TestRecordFileWriters::complexTypesAreAlwaysEncodeable()
{
    const RunSettings settings;
    DtOMTTree tree;
    ComplexProbe writer("", "");
    writer.compileAttributes(addComplex(tree, "RwFree",
                                        {
                                            {"a", "RwX", "1+"},
                                            {"b", "RwX", "1+"}
    }));
    DtCapture warnings(DtWarn);
    writer.determineDecodeability();
    QCOMPARE(warnings.text(), QString());
    QVERIFY(!mapper().isNonEncodeableDataType("DtRwFree"));
}

void TestRecordFileWriters::knownTokensOfTheRecords()
{
    const RunSettings settings;
    const auto own = [](const DtClassFileWriter& writer, int count)
    {
        QStringList tokens;
        for (int i = 0; i < count; ++i)
            tokens << text(writer.tokenChain().tokens()[static_cast<std::size_t>(i)]);
        return tokens.join(' ');
    };
    QCOMPARE(own(FixedProbe("", ""), 9),
             QString("<!ClassNetName!> <!ClassFixedOctets!> <!ClassFixedBoundary!> <!NetTypeIsVariableSize!> "
                     "<!NetTypeIsVariantRecord!> "
                     "<!LocalTypeIsNotEncodeable!> <!LocalTypeHasNoCoding!> <!MyHeaderInclude!> <!ClassIdentifier!>"));
    QCOMPARE(
        own(VariantProbe("", ""), 12),
        QString(
            "<!ClassNetName!> <!ClassDiscriminantName!> <!ClassDiscriminantType!> <!ClassEncoding!> "
            "<!ClassVariantKind!> <!AlternativeSelector!> <!CurrentDiscriminantEnumerator!> <!NetTypeIsVariantRecord!> "
            "<!LocalTypeIsNotEncodeable!> <!LocalTypeHasNoCoding!> <!MyHeaderInclude!> <!ClassIdentifier!>"));
    QCOMPARE(own(ComplexProbe("", ""), 7),
             QString("<!ArrayFileToInclude!> <!DatatypeArrayName!> <!NonDtDatatypeArrayName!> <!IsBasicType!> "
                     "<!OctetBoundary!> <!MyHeaderInclude!> <!ClassIdentifier!>"));
}

QX_REGISTER_TEST(TestRecordFileWriters)
#include "testRecordFileWriters.moc"
