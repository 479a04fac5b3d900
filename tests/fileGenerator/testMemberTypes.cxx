#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/netTypeTraits.h"
#include "omtReader/omtTree.h"
#include "registerTest.h"
#include "writerProbe.h"

#include <QtTest/QtTest>

namespace
{

DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

DtDatatypeClassNames& classNames()
{
    return DtDatatypeClassNames::instance();
}

void addArray(DtOMTTree& tree, const char* name, const char* datatype, const char* encoding, const char* cardinality)
{
    auto* node = new DtArrayDatatypeNode;
    node->setName(name);
    node->setDatatype(datatype);
    node->setEncoding(encoding);
    node->setCardinality(cardinality);
    tree.addArrayDatatypeNode(node);
}

template <class Record, class Component>
Record* record(const char* name, std::initializer_list<const char*> datatypes)
{
    auto* node = new Record;
    node->setName(name);
    for (const char* datatype : datatypes)
    {
        auto* component = new Component;
        component->setName(DtString("f") + datatype);
        component->setDatatype(datatype);
        node->addComponentNode(component);
    }
    return node;
}

void addFixed(DtOMTTree& tree, const char* name, std::initializer_list<const char*> datatypes)
{
    tree.addFixedDatatypeNode(record<DtFixedDatatypeNode, DtFieldComponentNode>(name, datatypes));
}

void addVariant(DtOMTTree& tree, const char* name, std::initializer_list<const char*> datatypes)
{
    tree.addVariantDatatypeNode(record<DtVariantDatatypeNode, DtAlternativeComponentNode>(name, datatypes));
}

// "variable", "variant", both or neither.
QString traitsOf(const DtOMTTree& tree, const char* datatype)
{
    static int theNumber = 0;
    const DtString netType = DtString("DtNetTraits") + DtString(++theNumber);
    registerNetTypeTraits(datatype, netType, &tree);
    return QString(mapper().isVariableSizeNetType(netType) ? "variable" : "") +
           (mapper().hasVariantRecord(netType) ? "variant" : "");
}

} // namespace

class TestMemberTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mappedTypeComesFirst();
    void simpleTypeWalksToAMappedOne();
    void walkWithoutMappedTypeAddsNoMapping();
    void walkInACircleEnds();
    void classOfTheRunIsNotRegistered();
    void rawNameIsLast();
    void lastRepresentationFollowsAllTables();
    void lastRepresentationOfUnknownTypeIsEmpty();
    void lastRepresentationInACircleIsTheDatatype();
    void modelsRepresentationOfAnEnumerationGoesFirst();
    void memberHasAllItsValues();
    void memberIsLittleEndianByItsDatatype();
    void classNameFollowsTheFileStem_data();
    void classNameFollowsTheFileStem();
    void clearedNamesAreUnknown();
    void arrayKindsOfVariableSize_data();
    void arrayKindsOfVariableSize();
    void recordsHoldWhatTheirFieldsHold();
    void toolkitTypesAreNotLookedInto();
    void traitsOfACircleEnd();
    void membersOfTheRunAreRegisteredToo();
    void longChainOfTypesIsWalked();
    void missingTreeRegistersNothing();
};

void TestMemberTypes::mappedTypeComesFirst()
{
    const RunSettings settings;
    mapper().addMapping("MtMapped", "DtU8");
    classNames().add("MtMapped", "DtMtMapped");
    QCOMPARE(text(memberType("MtMapped")), QString("DtU8"));
}

void TestMemberTypes::simpleTypeWalksToAMappedOne()
{
    const RunSettings settings;
    mapper().addSimpleTypeToRepresentationMapping("MtSimple", "MtSimpler");
    mapper().addSimpleTypeToRepresentationMapping("MtSimpler", "MtBasic");
    mapper().addMapping("MtBasic", "DtInt16");
    classNames().add("MtSimple", "DtMtSimple");
    QCOMPARE(text(memberType("MtSimple")), QString("DtInt16"));
    QCOMPARE(text(mapper().quorvexType("MtSimple")), QString("DtInt16"));
    QVERIFY(!mapper().hasMapping("MtSimpler"));
}

void TestMemberTypes::walkWithoutMappedTypeAddsNoMapping()
{
    const RunSettings settings;
    mapper().addSimpleTypeToRepresentationMapping("MtLoose", "MtNowhere");
    QCOMPARE(text(memberType("MtLoose")), QString("MtLoose"));
    QVERIFY(!mapper().hasMapping("MtLoose"));
}

void TestMemberTypes::walkInACircleEnds()
{
    const RunSettings settings;
    DtCapture warnings(DtWarn);
    mapper().addSimpleTypeToRepresentationMapping("MtRound", "MtRounder");
    mapper().addSimpleTypeToRepresentationMapping("MtRounder", "MtRound");
    mapper().addSimpleTypeToRepresentationMapping("MtSelf", "MtSelf");
    QCOMPARE(text(memberType("MtRound")), QString("MtRound"));
    QCOMPARE(text(memberType("MtSelf")), QString("MtSelf"));
    QCOMPARE(warnings.text(), QString());
}

void TestMemberTypes::classOfTheRunIsNotRegistered()
{
    const RunSettings settings;
    classNames().add("MtLater", "DtPreMtLater");
    QCOMPARE(text(memberType("MtLater")), QString("DtPreMtLater"));
    QVERIFY(!mapper().hasMapping("MtLater"));
}

void TestMemberTypes::rawNameIsLast()
{
    const RunSettings settings;
    QCOMPARE(text(memberType("MtUnknown")), QString("MtUnknown"));
    QCOMPARE(text(memberType("")), QString());
}

void TestMemberTypes::lastRepresentationFollowsAllTables()
{
    const RunSettings settings;
    mapper().addArrayTypeToRepresentationMapping("MtList", "MtUnit");
    mapper().addSimpleTypeToRepresentationMapping("MtUnit", "MtEnum");
    mapper().addEnumNameToRepMapping("MtEnum", "DtU16");
    QCOMPARE(text(lastRepresentation("MtList")), QString("DtU16"));
    QCOMPARE(text(lastRepresentation("MtEnum")), QString("DtU16"));
    mapper().addSimpleTypeToRepresentationMapping("MtText", "HLAMtUnicodeString");
    mapper().addArrayTypeToRepresentationMapping("HLAMtUnicodeString", "HLAMtUnicodeChar");
    QCOMPARE(text(lastRepresentation("MtText")), QString("HLAMtUnicodeChar"));
}

void TestMemberTypes::lastRepresentationOfUnknownTypeIsEmpty()
{
    const RunSettings settings;
    QCOMPARE(text(lastRepresentation("MtUnknown")), QString());
}

void TestMemberTypes::lastRepresentationInACircleIsTheDatatype()
{
    const RunSettings settings;
    mapper().addArrayTypeToRepresentationMapping("MtRing", "MtRing");
    mapper().addArrayTypeToRepresentationMapping("MtIntoRing", "MtRing");
    QCOMPARE(text(lastRepresentation("MtRing")), QString("MtRing"));
    QCOMPARE(text(lastRepresentation("MtIntoRing")), QString("MtIntoRing"));
}

void TestMemberTypes::modelsRepresentationOfAnEnumerationGoesFirst()
{
    const RunSettings settings;
    mapper().addEnumNameToRepMapping("MtLittleEnum", "DtInt16");
    classNames().addEnumeration("MtLittleEnum", "HLAinteger16LE");
    QCOMPARE(text(lastRepresentation("MtLittleEnum")), QString("HLAinteger16LE"));
}

void TestMemberTypes::memberHasAllItsValues()
{
    const RunSettings settings;
    mapper().addArrayTypeToRepresentationMapping("MtMarks", "HLAoctet");
    mapper().addDatatypeToEncodingMapping("MtMarks", "HLAvariableArray");
    classNames().add("MtMarks", "DtMtMarks");
    const DtAttribute member = makeMember("Marks", "MtMarks", "0-1");
    QCOMPARE(text(member.name()), QString("Marks"));
    QCOMPARE(text(member.type()), QString("DtMtMarks"));
    QCOMPARE(text(member.nonVectorType()), QString("DtMtMarks"));
    QCOMPARE(text(member.netType()), QString("DtNetMtMarks"));
    QCOMPARE(text(member.datatype()), QString("MtMarks"));
    QCOMPARE(text(member.encoding()), QString("HLAvariableArray"));
    QCOMPARE(text(member.datatypeDatatype()), QString("HLAoctet"));
    QVERIFY(member.isVariant());
}

void TestMemberTypes::memberIsLittleEndianByItsDatatype()
{
    const RunSettings settings;
    mapper().addMapping("HLAinteger32LE", "DtInt32");
    QCOMPARE(text(makeMember("a", "HLAinteger32LE", "1").netType()), QString("DtLEInt32"));
}

void TestMemberTypes::classNameFollowsTheFileStem_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stem");
    QTest::addColumn<QString>("className");
    const struct
    {
        const char* tag;
        QString prefix, name, stem, className;
    } theRows[] = {
        {"plain",              "",    "Marking",   "marking",    "DtMarking"   },
        {"prefix",             "Pre", "Marking",   "preMarking", "DtPreMarking"},
        {"capitals",           "",    "HLAid",     "HLAid",      "DtHLAid"     },
        {"small first letter", "",    "xPosition", "xPosition",  "DtXPosition" },
        {"no identifier",      "",    "A-b/c",     "a__b__c",    "DtA__b__c"   },
        {"table word",         "",    "Class",     "_class",     "Dt_class"    },
        {"one letter",         "",    "X",         "x",          "DtX"         },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.prefix << row.name << row.stem << row.className;
}

void TestMemberTypes::classNameFollowsTheFileStem()
{
    const RunSettings settings;
    QFETCH(QString, prefix);
    QFETCH(QString, name);
    DtOMTEnvWriter::setPrefixName(prefix.toUtf8().constData());
    DtCCompatibleNames names;
    const DtString datatype = name.toUtf8().constData();
    const DtString stem = DtDatatypeClassNames::fileStem(datatype, names);
    QTEST(text(stem), "stem");
    QTEST(text(DtDatatypeClassNames::classNameOfStem(stem)), "className");
    classNames().add(datatype, DtDatatypeClassNames::classNameOfStem(stem));
    QTEST(text(classNames().fileStemOf(datatype)), "stem");
}

void TestMemberTypes::clearedNamesAreUnknown()
{
    const RunSettings settings;
    classNames().add("MtGone", "DtMtGone");
    classNames().addEnumeration("MtGone", "Rep");
    QVERIFY(classNames().contains("MtGone"));
    classNames().clear();
    QVERIFY(!classNames().contains("MtGone"));
    QCOMPARE(text(classNames().className("MtGone") + classNames().fileStemOf("MtGone") +
                  classNames().enumerationRepresentation("MtGone")),
             QString());
}

void TestMemberTypes::arrayKindsOfVariableSize_data()
{
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("cardinality");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString encoding, cardinality, expected;
    } theRows[] = {
        {"fixed (1)",      "HLAfixedArray",          "3",       ""        },
        {"bounds (2)",     "HLAfixedArray",          "[1..3]",  ""        },
        {"terminated (4)", "HLAnullTerminatedArray", "Dynamic", "variable"},
        {"padded (5)",     "HLApaddingTo32Array",    "Dynamic", "variable"},
        {"bits (7)",       "HLAbitArray",            "8",       ""        },
        {"lengthless (8)", "HLAlengthlessVarArray",  "Dynamic", "variable"},
        {"dimensions (9)", "HLAfixedArray",          "2,3",     ""        },
        {"variable (10)",  "HLAvariableArray",       "Dynamic", "variable"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.encoding << row.cardinality << row.expected;
}

void TestMemberTypes::arrayKindsOfVariableSize()
{
    const RunSettings settings;
    QFETCH(QString, encoding);
    QFETCH(QString, cardinality);
    DtOMTTree tree;
    addArray(tree, "MtArray", "HLAoctet", encoding.toUtf8().constData(), cardinality.toUtf8().constData());
    QTEST(traitsOf(tree, "MtArray"), "expected");
}

void TestMemberTypes::recordsHoldWhatTheirFieldsHold()
{
    const RunSettings settings;
    DtOMTTree tree;
    addFixed(tree, "Outer", {"HLAoctet", "Inner"}); // its parts come later in the list
    addFixed(tree, "Plain", {"HLAoctet"});
    addFixed(tree, "Inner", {"Open"});
    addArray(tree, "Open", "HLAoctet", "HLAvariableArray", "Dynamic");
    addVariant(tree, "Choice", {"HLAoctet"});
    addVariant(tree, "OpenChoice", {"Open"});
    addFixed(tree, "WithChoice", {"Choice"});
    addArray(tree, "Choices", "Choice", "HLAfixedArray", "2");
    QCOMPARE(traitsOf(tree, "Outer"), QString("variable"));
    QCOMPARE(traitsOf(tree, "Plain"), QString());
    QCOMPARE(traitsOf(tree, "Choice"), QString("variant"));
    QCOMPARE(traitsOf(tree, "OpenChoice"), QString("variablevariant"));
    QCOMPARE(traitsOf(tree, "WithChoice"), QString("variant"));
    QCOMPARE(traitsOf(tree, "Choices"), QString("variant"));
    QCOMPARE(traitsOf(tree, "Nowhere"), QString());
}

void TestMemberTypes::toolkitTypesAreNotLookedInto()
{
    const RunSettings settings;
    DtOMTTree tree;
    addArray(tree, "Open", "HLAoctet", "HLAvariableArray", "Dynamic");
    addFixed(tree, "Holder", {"Open"});
    mapper().addMapping("Open", "DtVector");
    QCOMPARE(traitsOf(tree, "Holder"), QString());
    mapper().addMapping("Open", "DtString");
    QCOMPARE(traitsOf(tree, "Holder"), QString("variable"));
    mapper().addMapping("Open", "DtOpen");
    QCOMPARE(traitsOf(tree, "Holder"), QString());
    classNames().add("Open", "DtOpen"); // a class of this run, whose turn was earlier
    QCOMPARE(traitsOf(tree, "Holder"), QString("variable"));
}

void TestMemberTypes::traitsOfACircleEnd()
{
    const RunSettings settings;
    DtOMTTree tree;
    addFixed(tree, "One", {"Two"});
    addFixed(tree, "Two", {"One"});
    addArray(tree, "Self", "Self", "HLAfixedArray", "2");
    QCOMPARE(traitsOf(tree, "One"), QString());
    QCOMPARE(traitsOf(tree, "Self"), QString());
}

void TestMemberTypes::membersOfTheRunAreRegisteredToo()
{
    const RunSettings settings;
    DtOMTTree tree;
    addArray(tree, "MtrOpen", "HLAoctet", "HLAvariableArray", "Dynamic");
    classNames().add("MtrOpen", "DtMtrOpen");
    registerNetTypeTraits("MtrRecord", "DtMtrRecord", {makeMember("a", "MtrOpen", "1"), makeMember("b", "Raw", "1")},
                          &tree);
    QVERIFY(mapper().isVariableSizeNetType("DtNetMtrOpen"));
    QVERIFY(!mapper().isVariableSizeNetType("Raw"));
}

void TestMemberTypes::longChainOfTypesIsWalked()
{
    const RunSettings settings;
    DtOMTTree tree;
    const int count = 50000;
    for (int i = 0; i < count; ++i)
        addFixed(tree, ("Chain" + std::to_string(i)).c_str(), {("Chain" + std::to_string(i + 1)).c_str()});
    addVariant(tree, ("Chain" + std::to_string(count)).c_str(), {"HLAoctet"});
    QCOMPARE(traitsOf(tree, "Chain0"), QString("variant"));
}

void TestMemberTypes::missingTreeRegistersNothing()
{
    const RunSettings settings;
    registerNetTypeTraits("Any", "DtNetMtNoTree", nullptr);
    QVERIFY(!mapper().isVariableSizeNetType("DtNetMtNoTree"));
}

QX_REGISTER_TEST(TestMemberTypes)
#include "testMemberTypes.moc"
