#include "registerTest.h"

#include "fileGenerator/dataTypeMapper.h"
#include "omtReader/omtTree.h"

#include <QtTest/QtTest>

namespace
{

// A mapper of the test's own: the one of the process is never emptied.
class Mapper : public DtDataTypeMapper
{
};

QString text(const DtString& string)
{
    return QString::fromUtf8(string.c_str());
}

void addBasic(DtOMTTree& tree, const char* name, const char* bits, const char* interpretation = "")
{
    auto* node = new DtBasicDataRepresentationNode;
    node->setName(name);
    node->setSize(bits);
    node->setEndian("Little");
    node->setInterpretation(interpretation);
    tree.addBasicDataRepresentationNode(node);
}

void addSimple(DtOMTTree& tree, const char* name, const char* representation)
{
    auto* node = new DtSimpleDatatypeNode;
    node->setName(name);
    node->setRepresentation(representation);
    tree.addSimpleDatatypeNode(node);
}

void addArray(DtOMTTree& tree, const char* name, const char* element, const char* cardinality, const char* encoding)
{
    auto* node = new DtArrayDatatypeNode;
    node->setName(name);
    node->setDatatype(element);
    node->setCardinality(cardinality);
    node->setEncoding(encoding);
    tree.addArrayDatatypeNode(node);
}

struct Part
{
    const char* name;
    const char* datatype;
};

template <typename Component, typename Node>
Node* recordNode(const char* name, const std::vector<Part>& parts)
{
    auto* node = new Node;
    node->setName(name);
    for (const Part& part : parts)
    {
        auto* component = new Component;
        component->setName(part.name);
        component->setDatatype(part.datatype);
        node->addComponentNode(component);
    }
    return node;
}

void addFixed(DtOMTTree& tree, const char* name, const std::vector<Part>& parts)
{
    tree.addFixedDatatypeNode(recordNode<DtFieldComponentNode, DtFixedDatatypeNode>(name, parts));
}

void addComplex(DtOMTTree& tree, const char* name, const std::vector<Part>& parts)
{
    tree.addComplexDatatypeNode(recordNode<DtComplexComponentNode, DtComplexDatatypeNode>(name, parts));
}

void addVariant(DtOMTTree& tree, const char* name, const char* discriminant, const std::vector<Part>& parts)
{
    auto* node = recordNode<DtAlternativeComponentNode, DtVariantDatatypeNode>(name, parts);
    node->setDiscriminant(discriminant);
    node->setDatatype("KindEnum");
    int number = 0;
    for (auto each = node->getComponentNodeList(); each != node->getComponentNodeEnd(); ++each)
        (*each)->setEnumerator("E" + DtString(number++));
    tree.addVariantDatatypeNode(node);
}

} // namespace

class TestDataTypeMapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void instanceIsAlwaysTheSame();
    void referencesLeadToWhatIsCoded();
    void unknownKeysGetTheStatedAnswers();
    void knownTypesAreTheLocalTypes();
    void netTypesAreExact();
    void littleEndianTypesAreExact();
    void boundariesOfLocalTypes_data();
    void boundariesOfLocalTypes();
    void sizesStartEmpty();
    void initialAndSampleValues_data();
    void initialAndSampleValues();
    void enumerationsHaveValuesOfTheirOwn();
    void predefinedTypesReplaceAllMappings();
    void addedTextsAreFoundAndOverwritten();
    void numbersAreFoundAndOverwritten();
    void firstReplacementStands();
    void setsAnswerWhatWasAdded();
    void vectorOfNonEncodeableTypeIsNonEncodeable();
    void variantDataIsCopiedOut();
    void globalIdFlagIsOffAtFirst();
    void basicTypeSizeIsInBits();
    void simpleTypeTakesTheLayoutOver();
    void bitsAreTruncatedToOctets_data();
    void bitsAreTruncatedToOctets();
    void commonIntegerIsSuppliedWithoutBoundary();
    void commonIntegerOfTheModelStands();
    void longerNameCountsAsCommonInteger();
    void mappedBasicTypeIsReplacedByItsInterpretation();
    void simpleTypeOverMappedRepresentationIsReplaced();
    void arrayHasTheLayoutOfOneElement();
    void arrayWithoutElementTypeHasNoEncoding();
    void variantTakesTheLargestBoundary();
    void variantBoundaryStartsAtThatOfTheDiscriminantName();
    void variantWithoutAlternativesIsEmpty();
    void fixedRecordSumsWithoutGaps();
    void componentNamesAreMapped();
    void laterRecordHasNoSizeYet();
    void complexTypesComeBeforeFixedOnes();
    void entriesOfEarlierModelsStay();
    void missingTreeChangesNothing();
};

void TestDataTypeMapper::referencesLeadToWhatIsCoded()
{
    DtOMTTree tree;
    const std::pair<const char*, const char*> theReferences[] = {
        {"A", "B"},
        {"B", "C"},
        {"R", "S"},
        {"S", "R"}
    };
    for (const auto& [name, representation] : theReferences)
    {
        auto* node = new DtReferenceDatatypeNode;
        node->setName(name);
        node->setRepresentation(representation);
        tree.addReferenceDatatypeNode(node);
    }
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(text(mapper.behindReferences("A")), QString("C"));
    QCOMPARE(text(mapper.behindReferences("C")), QString("C"));
    QCOMPARE(text(mapper.behindReferences("S")), QString("S"));
    DtOMTTree next;
    mapper.populateFromOmtTree(&next);
    QCOMPARE(text(mapper.behindReferences("A")), QString("A"));
}

void TestDataTypeMapper::instanceIsAlwaysTheSame()
{
    QVERIFY(DtDataTypeMapper::instance() != nullptr);
    QCOMPARE(DtDataTypeMapper::instance(), DtDataTypeMapper::instance());
    QVERIFY(DtDataTypeMapper::instance()->isKnownType("DtU8"));
}

void TestDataTypeMapper::unknownKeysGetTheStatedAnswers()
{
    const Mapper mapper;
    QVERIFY(!mapper.hasMapping("T"));
    QCOMPARE(&mapper.quorvexType("T"), &DtString::nullString());
    QCOMPARE(text(mapper.enumerationSize("T")), QString("32"));
    QCOMPARE(mapper.boundaryFromDataTypeName("T"), 0U);
    QCOMPARE(mapper.sizeFromDataTypeName("T"), 0U);
    QVERIFY(mapper.repForEnumName("T").isEmpty() && mapper.repOfSimpleType("T").isEmpty());
    QVERIFY(mapper.encOfDatatype("T").isEmpty() && mapper.repOfArrayType("T").isEmpty());
    QVERIFY(mapper.cardinalityOfArrayType("T").isEmpty() && mapper.discriminantOfDatatype("T").isEmpty());
    QVERIFY(mapper.infoForBasicType("T") == DtDataTypeMapper::DtBasicTypeInfo());
    QVERIFY(!mapper.isKnownType("T") && !mapper.isQuorvexNetType("T") && !mapper.isLittleEndian("T"));
    QVERIFY(!mapper.isVariableSizeNetType("T") && !mapper.hasVariantRecord("T"));
    QVERIFY(!mapper.isNonEncodeableDataType("T") && !mapper.isEnumeration("T"));
    QVERIFY(!mapper.isArrayRecord("T") && !mapper.isVariantRecord("T") && !mapper.isToBeReplaced("T"));
    QVERIFY(mapper.findToBeReplaced("T").replacement.isEmpty() && mapper.findToBeReplaced("T").modelType.isEmpty());
}

void TestDataTypeMapper::knownTypesAreTheLocalTypes()
{
    const Mapper mapper;
    for (const char* name : {"DtU8",
                             "DtU16",
                             "DtU32",
                             "DtU64",
                             "DtInt8",
                             "DtInt16",
                             "DtInt32",
                             "DtInt64",
                             "DtFloat32",
                             "DtFloat64",
                             "bool",
                             "DtString",
                             "DtGlobalObjectDesignator",
                             "DtVector",
                             "DtVector32",
                             "DtVector64",
                             "DtEntityType",
                             "DtEntityIdentifier",
                             "DtTaitBryan",
                             "DtHlaLogicalTime",
                             "DtHlaLogicalTimeInterval"})
        QVERIFY2(mapper.isKnownType(name), name);
    for (const char* name : {"dtu8", "DtU", "DtU8 ", "DtNetU8", ""})
        QVERIFY2(!mapper.isKnownType(name), name);
}

void TestDataTypeMapper::netTypesAreExact()
{
    const Mapper mapper;
    for (const char* name : {"DtNetU8",
                             "DtNetU16",
                             "DtNetU32",
                             "DtNetU64",
                             "DtNetFloat32",
                             "DtNetFloat64",
                             "DtNetInt16",
                             "DtNetInt32",
                             "DtNetInt64",
                             "DtLEU8",
                             "DtLEU16",
                             "DtLEU32",
                             "DtLEU64",
                             "DtLEFloat32",
                             "DtLEFloat64",
                             "DtLEInt16",
                             "DtLEInt32",
                             "DtNetBoolean",
                             "DtNetVector32",
                             "DtNetVector64",
                             "DtNetEntityType",
                             "DtNetEulerAngles",
                             "DtNetEntityIdentifier"})
        QVERIFY2(mapper.isQuorvexNetType(name), name);
    for (const char* name : {"DtLEInt64", "DtNetInt8", "DtLEInt8", "DtU8", "DtNetString"})
        QVERIFY2(!mapper.isQuorvexNetType(name), name);
}

void TestDataTypeMapper::littleEndianTypesAreExact()
{
    const Mapper mapper;
    for (const char* name : {"HLAfloat32LE", "HLAfloat64LE", "HLAinteger16LE", "HLAinteger32LE", "HLAinteger64LE",
                             "Unsignedinteger16LE", "Unsignedinteger32LE", "Unsignedinteger64LE", "UnsignedInteger16LE",
                             "UnsignedInteger32LE", "UnsignedInteger64LE"})
        QVERIFY2(mapper.isLittleEndian(name), name);
    for (const char* name : {"HLAfloat32BE", "HLAoctetPairLE", "hlafloat32LE", "MyLE"})
        QVERIFY2(!mapper.isLittleEndian(name), name);
}

void TestDataTypeMapper::boundariesOfLocalTypes_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<unsigned int>("boundary");
    const struct
    {
        unsigned int boundary;
        QByteArray names;
    } theRows[] = {
        {1, "DtU8 DtInt8 bool DtString DtGlobalObjectDesignator"                                               },
        {2, "DtU16 DtInt16 DtEntityType DtEntityIdentifier"                                                    },
        {4, "DtU32 DtInt32 DtFloat32 DtVector32 DtVector DtTaitBryan DtHlaLogicalTime DtHlaLogicalTimeInterval"},
        {8, "DtU64 DtInt64 DtFloat64 DtVector64"                                                               },
    };
    for (const auto& row : theRows)
        QTest::newRow(QByteArray::number(row.boundary).constData()) << row.names << row.boundary;
}

void TestDataTypeMapper::boundariesOfLocalTypes()
{
    QFETCH(QByteArray, names);
    QFETCH(unsigned int, boundary);
    const Mapper mapper;
    QCOMPARE(mapper.dataTypeNameToBoundary().size(), std::size_t(21));
    for (const QByteArray& name : names.split(' '))
        QCOMPARE(mapper.boundaryFromDataTypeName(name.constData()), boundary);
}

void TestDataTypeMapper::sizesStartEmpty()
{
    QVERIFY(Mapper().dataTypeNameToSize().empty());
}

void TestDataTypeMapper::initialAndSampleValues_data()
{
    QTest::addColumn<QString>("initial");
    QTest::addColumn<QString>("sample");
    const struct
    {
        QString initial, sample;
        std::vector<const char*> types;
    } theRows[] = {
        {"0",     "32",       {"DtU32", "DtU64", "DtU16", "DtInt16", "DtInt32", "DtInt64", "DtU8"}},
        {"0.0",   "7.02",     {"DtFloat32", "DtFloat64"}                                          },
        {"false", "true",     {"bool"}                                                            },
        {"",      "\"name\"", {"DtString", "DtGlobalObjectDesignator", "std::vector<DtU8>"}       },
        {"",      "",         {"DtInt8", "DtVector", "Other", ""}                                 },
    };
    for (const auto& row : theRows)
        for (const char* type : row.types)
            QTest::newRow(type) << row.initial << row.sample;
}

void TestDataTypeMapper::initialAndSampleValues()
{
    QFETCH(QString, initial);
    QFETCH(QString, sample);
    const Mapper mapper;
    const DtString type(QTest::currentDataTag());
    QCOMPARE(text(mapper.initialValueFromType(type)), initial);
    QCOMPARE(text(mapper.sampleValueFromType(type, "name")), sample);
}

void TestDataTypeMapper::enumerationsHaveValuesOfTheirOwn()
{
    Mapper mapper;
    mapper.addEnumeration("Colour");
    QVERIFY(mapper.isEnumeration("Colour"));
    QCOMPARE(text(mapper.initialValueFromType("Colour")), QString("Colour(0)"));
    QCOMPARE(text(mapper.sampleValueFromType("Colour", "x")), QString("Colour(2)"));
}

void TestDataTypeMapper::predefinedTypesReplaceAllMappings()
{
    Mapper mapper;
    mapper.addMapping("A", "DtU8");
    mapper.setPredefinedTypes({
        {"B", "DtU16"}
    });
    QVERIFY(!mapper.hasMapping("A"));
    QCOMPARE(text(mapper.quorvexType("B")), QString("DtU16"));
    mapper.addMapping("B", "");
    QVERIFY(mapper.hasMapping("B")); // a mapping to nothing is one
    mapper.clearMappings();
    QVERIFY(!mapper.hasMapping("B"));
}

void TestDataTypeMapper::addedTextsAreFoundAndOverwritten()
{
    Mapper mapper;
    using Add = void (DtDataTypeMapper::*)(const DtString&, const DtString&);
    using Get = const DtString& (DtDataTypeMapper::*)(const DtString&) const;
    const std::pair<Add, Get> tables[] = {
        {&DtDataTypeMapper::addMapping,                           &DtDataTypeMapper::quorvexType           },
        {&DtDataTypeMapper::addEnumerationSizeMapping,            &DtDataTypeMapper::enumerationSize       },
        {&DtDataTypeMapper::addEnumNameToRepMapping,              &DtDataTypeMapper::repForEnumName        },
        {&DtDataTypeMapper::addSimpleTypeToRepresentationMapping, &DtDataTypeMapper::repOfSimpleType       },
        {&DtDataTypeMapper::addDatatypeToEncodingMapping,         &DtDataTypeMapper::encOfDatatype         },
        {&DtDataTypeMapper::addArrayTypeToRepresentationMapping,  &DtDataTypeMapper::repOfArrayType        },
        {&DtDataTypeMapper::addArrayTypeToCardinalityMapping,     &DtDataTypeMapper::cardinalityOfArrayType},
        {&DtDataTypeMapper::addDatatypeToDiscriminantMapping,     &DtDataTypeMapper::discriminantOfDatatype},
    };
    int number = 0;
    for (const auto& [add, get] : tables)
    {
        (mapper.*add)("T", "old");
        (mapper.*add)("T", "value" + DtString(number++));
    }
    number = 0;
    for (const auto& [add, get] : tables) // each has a table of its own
        QCOMPARE(text((mapper.*get)("T")), QString("value%1").arg(number++));
    QVERIFY(mapper.isArrayRecord("T"));
}

void TestDataTypeMapper::numbersAreFoundAndOverwritten()
{
    Mapper mapper;
    mapper.addDataTypeNameToBoundary("T", 2);
    mapper.addDataTypeNameToBoundary("T", 4);
    mapper.addDataTypeNameToSize("T", 3);
    mapper.addDataTypeNameToSize("T", 7);
    QCOMPARE(mapper.boundaryFromDataTypeName("T"), 4U);
    QCOMPARE(mapper.sizeFromDataTypeName("T"), 7U);
    QCOMPARE(mapper.dataTypeNameToSize().size(), std::size_t(1));
}

void TestDataTypeMapper::firstReplacementStands()
{
    Mapper mapper;
    mapper.addToBeReplacedItem("T", {"DtU8", "first"});
    mapper.addToBeReplacedItem("T", {"DtU16", "second"});
    QVERIFY(mapper.isToBeReplaced("T"));
    QCOMPARE(text(mapper.findToBeReplaced("T").replacement), QString("DtU8"));
    QCOMPARE(text(mapper.findToBeReplaced("T").modelType), QString("first"));
    QCOMPARE(mapper.toBeReplacedMap().size(), std::size_t(1));
}

void TestDataTypeMapper::setsAnswerWhatWasAdded()
{
    Mapper mapper;
    for (const char* name : {"DtString", "DtNetGlobalObjectDesignator", "DtGlobalObjectDesignator"})
        QVERIFY2(mapper.isVariableSizeNetType(name), name);
    mapper.addVariableSizeNetType("DtNetTrack");
    QVERIFY(mapper.isVariableSizeNetType("DtNetTrack"));
    QVERIFY(!mapper.hasVariantRecord("DtNetTrack"));
    mapper.addNetTypeWithVariantRecord("DtNetTrack");
    QVERIFY(mapper.hasVariantRecord("DtNetTrack"));
}

void TestDataTypeMapper::vectorOfNonEncodeableTypeIsNonEncodeable()
{
    Mapper mapper;
    mapper.addNonEncodeableDataType("Handle");
    QVERIFY(mapper.isNonEncodeableDataType("Handle"));
    QVERIFY(mapper.isNonEncodeableDataType("std::vector<Handle>"));
    QVERIFY(!mapper.isNonEncodeableDataType("std::vector<Other>"));
    QVERIFY(!mapper.isNonEncodeableDataType("std::vector<std::vector<Handle>>")); // one level only
    QVERIFY(!mapper.isNonEncodeableDataType("Handle>"));
    mapper.addNonEncodeableDataType("std::vector<Inner>");
    QVERIFY(!mapper.isNonEncodeableDataType("std::vector<Inner>")); // what is looked up is Inner
}

void TestDataTypeMapper::variantDataIsCopiedOut()
{
    Mapper mapper;
    DtDataTypeMapper::DtVariantRecordStruct record;
    record.discriminant = "untouched";
    QVERIFY(!mapper.variantData("V", record));
    QCOMPARE(text(record.discriminant), QString("untouched"));
    mapper.addDatatypeToVariantDataMapping("V", {"kind", "KindEnum", {{"E0", "a", "A"}}});
    QVERIFY(mapper.variantData("V", record));
    QVERIFY(mapper.isVariantRecord("V"));
    QCOMPARE(text(record.discriminant), QString("kind"));
    QCOMPARE(record.alternatives.size(), std::size_t(1));
}

void TestDataTypeMapper::globalIdFlagIsOffAtFirst()
{
    Mapper mapper;
    QVERIFY(!mapper.mapRtiObjectIdToGlobalId());
    mapper.setMapRtiObjectIdToGlobalId(true);
    QVERIFY(mapper.mapRtiObjectIdToGlobalId());
}

void TestDataTypeMapper::basicTypeSizeIsInBits()
{
    DtOMTTree tree;
    addBasic(tree, "Wide", "64");
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(mapper.boundaryFromDataTypeName("Wide"), 8U);
    QCOMPARE(mapper.sizeFromDataTypeName("Wide"), 8U);
    QCOMPARE(text(mapper.infoForBasicType("Wide").first), QString("64"));
    QCOMPARE(text(mapper.infoForBasicType("Wide").second), QString("Little"));
    QCOMPARE(mapper.basicTypeInfoMap().size(), std::size_t(2)); // and the common integer
}

void TestDataTypeMapper::simpleTypeTakesTheLayoutOver()
{
    DtOMTTree tree;
    addBasic(tree, "Wide", "64");
    addSimple(tree, "Distance", "Wide");
    addSimple(tree, "Odd", "Missing");
    addSimple(tree, "OverLocal", "DtU16");
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(text(mapper.repOfSimpleType("Distance")), QString("Wide"));
    QCOMPARE(mapper.boundaryFromDataTypeName("Distance"), 8U);
    QCOMPARE(mapper.sizeFromDataTypeName("Distance"), 8U);
    QCOMPARE(mapper.dataTypeNameToBoundary().count("Odd") + mapper.dataTypeNameToSize().count("Odd"), std::size_t(0));
    QCOMPARE(mapper.boundaryFromDataTypeName("OverLocal"), 2U); // local types have a boundary, but no size
    QCOMPARE(mapper.dataTypeNameToSize().count("OverLocal"), std::size_t(0));
}

void TestDataTypeMapper::bitsAreTruncatedToOctets_data()
{
    QTest::addColumn<unsigned int>("octets");
    QTest::newRow("12") << 1U;
    QTest::newRow("7") << 0U;
    QTest::newRow("16 bits") << 2U;
    QTest::newRow("many") << 0U;
    QTest::newRow("") << 0U;
}

void TestDataTypeMapper::bitsAreTruncatedToOctets()
{
    QFETCH(unsigned int, octets);
    DtOMTTree tree;
    addBasic(tree, "T", QTest::currentDataTag());
    Mapper mapper;
    mapper.addBasicTypes(&tree);
    QCOMPARE(mapper.boundaryFromDataTypeName("T"), octets);
    QCOMPARE(mapper.sizeFromDataTypeName("T"), octets);
}

void TestDataTypeMapper::commonIntegerIsSuppliedWithoutBoundary()
{
    DtOMTTree tree;
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(text(mapper.infoForBasicType("HLAinteger32BE").first), QString("32"));
    QCOMPARE(text(mapper.infoForBasicType("HLAinteger32BE").second), QString("Big"));
    QCOMPARE(mapper.boundaryFromDataTypeName("HLAinteger32BE"), 0U);
    QCOMPARE(mapper.sizeFromDataTypeName("HLAinteger32BE"), 0U);
}

void TestDataTypeMapper::commonIntegerOfTheModelStands()
{
    DtOMTTree tree;
    addBasic(tree, "HLAinteger32BE", "16");
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(text(mapper.infoForBasicType("HLAinteger32BE").first), QString("16"));
    QCOMPARE(mapper.boundaryFromDataTypeName("HLAinteger32BE"), 2U);
}

void TestDataTypeMapper::longerNameCountsAsCommonInteger()
{
    DtOMTTree tree;
    addBasic(tree, "MyHLAinteger32BEx", "32");
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QVERIFY(mapper.infoForBasicType("HLAinteger32BE").first.isEmpty());
}

void TestDataTypeMapper::mappedBasicTypeIsReplacedByItsInterpretation()
{
    DtOMTTree tree;
    addBasic(tree, "Plain", "8", "An octet");
    addBasic(tree, "Named", "8", "octet");
    addBasic(tree, "Unmapped", "8", "octet");
    Mapper mapper;
    mapper.setPredefinedTypes({
        {"Plain", "DtU16"},
        {"Named", "DtU32"},
        {"octet", "DtU8" }
    });
    mapper.populateFromOmtTree(&tree);
    QVERIFY(mapper.isToBeReplaced("Plain"));
    QCOMPARE(text(mapper.findToBeReplaced("Plain").replacement), QString(""));
    QCOMPARE(text(mapper.findToBeReplaced("Plain").modelType), QString("Plain"));
    QCOMPARE(text(mapper.findToBeReplaced("Named").replacement), QString("DtU8"));
    QVERIFY(!mapper.isToBeReplaced("Unmapped"));
}

void TestDataTypeMapper::simpleTypeOverMappedRepresentationIsReplaced()
{
    DtOMTTree tree;
    addSimple(tree, "Speed", "HLAfloat32BE");
    addSimple(tree, "Other", "Unmapped");
    Mapper mapper;
    mapper.setPredefinedTypes({
        {"HLAfloat32BE", "DtFloat32"}
    });
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(text(mapper.findToBeReplaced("Speed").replacement), QString("DtFloat32"));
    QCOMPARE(text(mapper.findToBeReplaced("Speed").modelType), QString("HLAfloat32BE"));
    QVERIFY(!mapper.isToBeReplaced("Other"));
}

void TestDataTypeMapper::arrayHasTheLayoutOfOneElement()
{
    DtOMTTree tree;
    addBasic(tree, "Wide", "64");
    addArray(tree, "Path", "Wide", "10", "HLAfixedArray");
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QVERIFY(mapper.isArrayRecord("Path"));
    QCOMPARE(text(mapper.repOfArrayType("Path")), QString("Wide"));
    QCOMPARE(text(mapper.cardinalityOfArrayType("Path")), QString("10"));
    QCOMPARE(text(mapper.encOfDatatype("Path")), QString("HLAfixedArray"));
    QCOMPARE(mapper.boundaryFromDataTypeName("Path"), 8U);
    QCOMPARE(mapper.sizeFromDataTypeName("Path"), 8U);
}

void TestDataTypeMapper::arrayWithoutElementTypeHasNoEncoding()
{
    DtOMTTree tree;
    addArray(tree, "Path", "", "10", "HLAfixedArray");
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QVERIFY(mapper.isArrayRecord("Path"));
    QVERIFY(mapper.encOfDatatype("Path").isEmpty());
    QCOMPARE(text(mapper.cardinalityOfArrayType("Path")), QString("10"));
}

void TestDataTypeMapper::variantTakesTheLargestBoundary()
{
    DtOMTTree tree;
    addBasic(tree, "Wide", "64");
    addBasic(tree, "Narrow", "16");
    addVariant(tree, "V", "kind",
               {
                   {"a", "Narrow" },
                   {"b", "Wide"   },
                   {"c", "Missing"}
    });
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(mapper.boundaryFromDataTypeName("V"), 8U);
    QCOMPARE(mapper.dataTypeNameToSize().count("V"), std::size_t(0));
    QCOMPARE(text(mapper.discriminantOfDatatype("V")), QString("KindEnum"));
    DtDataTypeMapper::DtVariantRecordStruct record;
    QVERIFY(mapper.variantData("V", record));
    QCOMPARE(text(record.discriminant + " " + record.discriminantType), QString("kind KindEnum"));
    QString alternatives;
    for (const auto& each : record.alternatives)
        alternatives += text(each.enumerator + ":" + each.name + ":" + each.datatype + " ");
    QCOMPARE(alternatives, QString("E0:a:Narrow E1:b:Wide E2:c:Missing "));
}

void TestDataTypeMapper::variantBoundaryStartsAtThatOfTheDiscriminantName()
{
    DtOMTTree tree;
    addBasic(tree, "Narrow", "16");
    addVariant(tree, "ByName", "DtU64",
               {
                   {"a", "Narrow"}
    });
    Mapper mapper;
    mapper.addDataTypeNameToBoundary("KindEnum", 4); // of the discriminant's type: does not count
    addVariant(tree, "ByType", "kind",
               {
                   {"a", "Narrow"}
    });
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(mapper.boundaryFromDataTypeName("ByName"), 8U);
    QCOMPARE(mapper.boundaryFromDataTypeName("ByType"), 2U);
}

void TestDataTypeMapper::variantWithoutAlternativesIsEmpty()
{
    DtOMTTree tree;
    addVariant(tree, "V", "kind", {});
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(mapper.boundaryFromDataTypeName("V"), 0U);
    QCOMPARE(mapper.dataTypeNameToBoundary().count("V"), std::size_t(1));
    DtDataTypeMapper::DtVariantRecordStruct record;
    record.alternatives.resize(1);
    QVERIFY(mapper.variantData("V", record));
    QVERIFY(record.alternatives.empty());
}

void TestDataTypeMapper::fixedRecordSumsWithoutGaps()
{
    DtOMTTree tree;
    addBasic(tree, "Octet", "8");
    addBasic(tree, "Word", "32");
    addFixed(tree, "R",
             {
                 {"a", "Octet"  },
                 {"b", "Word"   },
                 {"c", "Missing"}
    });
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(mapper.boundaryFromDataTypeName("R"), 4U);
    QCOMPARE(mapper.sizeFromDataTypeName("R"), 5U);
}

void TestDataTypeMapper::componentNamesAreMapped()
{
    DtOMTTree tree;
    addFixed(tree, "R",
             {
                 {"a", "Octet"}
    });
    addComplex(tree, "C",
               {
                   {"b", "Word"}
    });
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(text(mapper.quorvexType("a")), QString("Octet"));
    QCOMPARE(text(mapper.quorvexType("b")), QString("Word"));
}

void TestDataTypeMapper::laterRecordHasNoSizeYet()
{
    DtOMTTree tree;
    addBasic(tree, "Word", "32");
    addFixed(tree, "Outer",
             {
                 {"inner", "Inner"}
    });
    addFixed(tree, "Inner",
             {
                 {"a", "Word"}
    });
    addFixed(tree, "Last",
             {
                 {"inner", "Inner"}
    });
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(mapper.sizeFromDataTypeName("Outer"), 0U);
    QCOMPARE(mapper.boundaryFromDataTypeName("Outer"), 0U);
    QCOMPARE(mapper.sizeFromDataTypeName("Last"), 4U);
}

void TestDataTypeMapper::complexTypesComeBeforeFixedOnes()
{
    DtOMTTree tree;
    addBasic(tree, "Word", "32");
    addFixed(tree, "F",
             {
                 {"c", "C"}
    });
    addComplex(tree, "C",
               {
                   {"a", "Word"},
                   {"b", "Word"}
    });
    Mapper mapper;
    mapper.populateFromOmtTree(&tree);
    QCOMPARE(mapper.sizeFromDataTypeName("C"), 8U);
    QCOMPARE(mapper.sizeFromDataTypeName("F"), 8U);
    QCOMPARE(mapper.boundaryFromDataTypeName("F"), 4U);
}

void TestDataTypeMapper::entriesOfEarlierModelsStay()
{
    DtOMTTree first;
    addBasic(first, "A", "8");
    addBasic(first, "B", "8");
    DtOMTTree second;
    addBasic(second, "B", "16");
    Mapper mapper;
    mapper.populateFromOmtTree(&first);
    mapper.populateFromOmtTree(&second);
    QCOMPARE(mapper.sizeFromDataTypeName("A"), 1U);
    QCOMPARE(mapper.sizeFromDataTypeName("B"), 2U);
}

void TestDataTypeMapper::missingTreeChangesNothing()
{
    Mapper mapper;
    mapper.populateFromOmtTree(nullptr);
    QVERIFY(mapper.infoForBasicType("HLAinteger32BE").first.isEmpty());
}

QX_REGISTER_TEST(TestDataTypeMapper)
#include "testDataTypeMapper.moc"
