#include "modelText.h"
#include "omtReader/complexDatatypeNode.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

namespace
{
DtEnumerationNode* enumerator(const char* name, int number)
{
    auto* node = new DtEnumerationNode;
    node->setEnum(name);
    node->setNumber(number);
    return node;
}

// Adds an enumerator, or deletes it when it is not taken, and gives the warning.
QString warningOf(DtEnumeratedDatatypeNode& datatype, const char* name, int number)
{
    DtCapture capture(DtWarn);
    DtEnumerationNode* node = enumerator(name, number);
    if (!datatype.addEnumerationNode(node))
        delete node;
    return capture.text();
}

template <typename Datatype, typename Component>
void checkComponents()
{
    Datatype datatype;
    auto* first = new Component;
    first->setName("a");
    auto* second = new Component;
    second->setName("a");
    datatype.addComponentNode(first);
    datatype.addComponentNode(second);
    datatype.addComponentNode(nullptr);
    QCOMPARE(namesOf(datatype.getComponentNodeList(), datatype.getComponentNodeEnd()), QString("a a"));
    QCOMPARE(datatype.getComponentNode("a"), first);
    QVERIFY(datatype.getComponentNode("b") == nullptr);
    const Datatype copy(datatype);
    QVERIFY(copy.getComponentNode("a") != nullptr);
    QVERIFY(copy.getComponentNode("a") != first);
}
} // namespace

class TestDatatypeNodes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrayStartsUnderived()
    {
        const DtArrayDatatypeNode node;
        QCOMPARE((QList<int>{node.getCardinalityType(), node.getCardinalityMinimum(), node.getCardinalityMaximum()}),
                 (QList<int>{0, -1, -1}));
    }

    void arrayShape_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("cardinality");
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QList<int>>("expected"); // type, minimum, maximum, dimensions
        const auto row = [](const char* encoding, const char* cardinality, const char* elements, QList<int> expected)
        {
            QTest::addRow("%s %s %s", encoding, cardinality, elements)
                << QByteArray(encoding) << QByteArray(cardinality) << QByteArray(elements) << expected;
        };
        row("HLAbitArray", "8", "", {DtArrayOfBits, 0, -1});
        row("BitArray", "8", "", {DtArrayOfBits, 0, -1});
        row("HLAnullTerminatedArray", "8", "", {DtArrayNullTerminated, 0, -1});
        row("NullTerminatedArray", "8", "", {DtArrayNullTerminated, 0, -1});
        row("RPRnullTerminatedArray", "8", "", {DtArrayNullTerminated, 0, -1});
        row("HLAlengthlessVarArray", "8", "HLAASCIIchar", {DtArrayNullTerminated, 0, -1});
        row("HLAlengthlessVarArray", "8", "HLAoctet", {DtArrayLengthless, 0, -1});
        row("RPRlengthlessArray", "8", "HLAASCIIchar", {DtArrayNullTerminated, 0, -1});
        row("RPRlengthlessArray", "8", "", {DtArrayLengthless, 0, -1});
        row("HLAvariableArray", "8", "", {DtArrayVariable, 0, -1});
        row("HLAvariableArray", "Dynamic", "HLAASCIIchar", {DtArrayVariable, 0, -1});
        row("HLApaddingTo64", "Dynamic", "", {DtArrayPadded, 0, 8});
        row("RPRpaddingTo32Array", "", "", {DtArrayPadded, 0, 4});
        row("addingTo", "4", "", {DtArrayPadded, 0, 0});
        row("paddingTo010", "", "", {DtArrayPadded, 0, 1}); // octal
        row("HLAfixedArray", "Dynamic", "", {DtArrayFixed, 0, 0});
        row("HLAfixedArray", "12", "", {DtArrayFixed, 12, 12});
        row("HLAfixedArray", "[1..10]", "", {DtArrayBounded, 1, 10});
        row("HLAfixedArray", "[0x10..010]", "", {DtArrayBounded, 16, 8});
        row("HLAfixedArray", "[1..99999999999]", "", {DtArrayBounded, 1, 2147483647});
        row("HLAfixedArray", "[1.10]", "", {DtArrayLengthless, 0, -1});
        row("HLAfixedArray", "[1..10", "", {DtArrayLengthless, 0, -1});
        row("HLAfixedArray", "[1]", "", {DtArrayLengthless, 0, -1});
        row("HLAfixedArray", "[3,4]", "", {DtArrayLengthless, 0, -1});
        row("HLAfixedArray", "3,4", "", {DtArrayMultiDim, 0, -1, 3, 4});
        row("HLAfixedArray", "0x10,010,", "", {DtArrayMultiDim, 0, -1, 16, 8, 0});
        row("hlaFixedArray", "[1..10]", "", {DtArrayLengthless, 0, -1});
        row("Custom", "4", "", {DtArrayFixed, 4, 4});
        row("Custom", "Dynamic", "", {DtArrayLengthless, 0, -1});
        row("", "", "", {DtArrayLengthless, 0, -1});
    }

    void arrayShape()
    {
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, cardinality);
        QFETCH(QByteArray, elements);
        QFETCH(QList<int>, expected);
        DtArrayDatatypeNode node;
        node.setCardinality(cardinality.constData());
        node.setEncoding(encoding.constData());
        node.setDatatype(elements.constData()); // read when the shape is asked for
        QList<int> shape{node.getCardinalityType(), node.getCardinalityMinimum(), node.getCardinalityMaximum()};
        for (const int dimension : node.getMultiDimCardinality())
            shape += dimension;
        QCOMPARE(shape, expected);
    }

    void kindsKeepTheirNumbers()
    {
        QCOMPARE((QList<int>{DtArrayNotDerived, DtArrayFixed, DtArrayBounded, DtArrayNullTerminated, DtArrayPadded,
                             DtArrayOfBits, DtArrayLengthless, DtArrayMultiDim, DtArrayVariable}),
                 (QList<int>{0, 1, 2, 4, 5, 7, 8, 9, 10}));
    }

    void dimensionsAreAppendedAtEachDerivation()
    {
        DtArrayDatatypeNode node;
        node.setEncoding("HLAfixedArray");
        node.setCardinality("3,4");
        QCOMPARE(node.getMultiDimCardinality(), (std::vector<int>{3, 4}));
        node.setCardinality("5,6");
        QCOMPARE(node.getMultiDimCardinality(), (std::vector<int>{3, 4, 5, 6}));
    }

    void integerIsTheFirstRunOfDigits()
    {
        const DtArrayDatatypeNode node;
        QCOMPARE(node.extractInteger("a12b34"), 12);
        QCOMPARE(node.extractInteger("none"), 0);
        QCOMPARE(node.extractInteger("x017"), 15);
        QCOMPARE(node.extractInteger("99999999999999999999"), 2147483647);
    }

    void componentCardinality_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QList<int>>("expected"); // type, minimum, maximum
        QTest::addColumn<QString>("condition");
        const auto row = [](const char* text, QList<int> expected, const char* condition = "|")
        { QTest::newRow(*text != '\0' ? text : "empty") << QByteArray(text) << expected << QString(condition); };
        row("3", {0, 3, 3});
        row("0-5", {1, 0, 5});
        row("5 - 3", {1, 5, 3});
        row("1+", {3, 1, -1});
        row("1+(a)", {3, 1, -1});
        row("%8", {6, 0, 8});
        row(" % 8(x=1)", {6, 0, 8});
        row("%", {6, 0, 0});
        row("(x=1)", {2, 0, 1}, "x|1");
        row(" ( x = 1 )", {2, 0, 1}, "x|1");
        row("0-1 (Type = PointRecord1Type)", {2, 0, 1}, "Type|PointRecord1Type");
        row("1 (x=1))", {2, 1, 1}, "x|1)");
        row("1,x=1", {2, 1, 1}, "x|1");
        row("(x=)", {2, 0, 1}, "x|");
        row("(=1)", {2, 0, 1}, "|1");
        row("(x)", {5, 0, 1}, "x)|");
        row("1 (Type)", {0, 1, 1}, "Type)|");
        row("Dynamic", {0, 0, 0});
        row("1-(x)", {1, 1, 0}); // nothing can be read behind the failed maximum
        row("", {0, -1, -1});
        row("  ", {0, -1, -1});
    }

    void componentCardinality()
    {
        QFETCH(QByteArray, text);
        QFETCH(QList<int>, expected);
        QFETCH(QString, condition);
        DtComplexComponentNode node;
        node.setCardinality("1 (old=9)"); // leaves no trace
        QCOMPARE(node.getCardinalityType(), 2);
        node.setCardinality(text.constData());
        QCOMPARE((QList<int>{node.getCardinalityType(), node.getCardinalityMinimum(), node.getCardinalityMaximum()}),
                 expected);
        QCOMPARE(toQt(node.getConditionalComponent()) + "|" + toQt(node.getConditionalValue()), condition);
    }

    void componentsKeepOrderAndAreCopiedDeep()
    {
        checkComponents<DtFixedDatatypeNode, DtFieldComponentNode>();
        checkComponents<DtVariantDatatypeNode, DtAlternativeComponentNode>();
        checkComponents<DtComplexDatatypeNode, DtComplexComponentNode>();
    }

    void enumerationSize_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("representation");
        QTest::addColumn<int>("size");
        const auto row = [](const char* name, const char* representation, int size)
        { QTest::addRow("%s %s", name, representation) << QByteArray(name) << QByteArray(representation) << size; };
        row("Foo", "HLAinteger16BE", 2);
        row("Foo8", "HLAinteger32LE", 4);
        row("Foo32", "HLAoctet", 1);
        row("Foo", "64", 8);
        row("Foo", "16 bits", 2);
        row("Foo", "4", 0);
        row("Foo8", "0", 1);
        row("Foo8", "HLAoctetPair", 1); // by the name
        row("Foo8", "", 1);
        row("Foo16", "", 2);
        row("Foo32", "", 4);
        row("RPRboolean", "", 1);
        row("Foo", "", 2);
        row("Foo", "Unknown", 2);
    }

    void enumerationSize()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, representation);
        DtEnumeratedDatatypeNode node;
        node.setName(name.constData());
        node.setRepresentation(representation.constData());
        QTEST(node.getExpectedEnumerationSize(), "size");
    }

    void defaultEnumerationSizeCanBeSet()
    {
        const DtSaved<int> saved(DtEnumeratedDatatypeNode::defaultEnumerationSize, 4);
        QCOMPARE(DtEnumeratedDatatypeNode().getExpectedEnumerationSize(), 4);
    }

    void numberIsThatOfTheValueUpTo64Bits_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("number");
        QTest::addColumn<bool>("isTheNumber");
        QTest::newRow("none") << ""
                              << "3" << true;
        QTest::newRow("blanks") << " \t"
                                << "3" << true;
        QTest::newRow("the same") << "3"
                                  << "3" << true;
        QTest::newRow("the same, written longer") << "\n +0003 "
                                                  << "3" << true;
        QTest::newRow("another") << "4"
                                 << "4" << false;
        QTest::newRow("its first digits") << "31"
                                          << "31" << false;
        QTest::newRow("negative zero") << "-00"
                                       << "0" << false;
        QTest::newRow("beyond 32 bits") << "99999999999"
                                        << "99999999999" << false;
        QTest::newRow("least") << "-9223372036854775808"
                               << "-9223372036854775808" << false;
        QTest::newRow("below the least") << "-9223372036854775809"
                                         << "3" << false;
        QTest::newRow("greatest") << "18446744073709551615"
                                  << "18446744073709551615" << false;
        QTest::newRow("beyond the greatest") << "18446744073709551616"
                                             << "3" << false;
        QTest::newRow("letter") << "H"
                                << "3" << false;
        QTest::newRow("number and letter") << "3x"
                                           << "3" << false;
        QTest::newRow("sign alone") << "-"
                                    << "3" << false;
    }
    void numberIsThatOfTheValueUpTo64Bits()
    {
        QFETCH(QString, value);
        QFETCH(bool, isTheNumber);
        DtEnumerationNode node;
        node.setNumber(3);
        node.setValueText(qPrintable(value));
        QTEST(toQt(node.numberText()), "number");
        QCOMPARE(node.isNumberTheValue(), isTheNumber);
    }
    void secondEnumeratorOfANameIsDropped()
    {
        DtEnumeratedDatatypeNode datatype;
        QCOMPARE(warningOf(datatype, "a", 1), QString());
        QCOMPARE(warningOf(datatype, "a", 2), QString("Duplicated enum name a"));
        QCOMPARE(datatype.getEnumerationNode("a")->getNumber(), 1);
        QVERIFY(datatype.getEnumerationNode(2) == nullptr);
        QVERIFY(datatype.getEnumerationNode("b") == nullptr);
        QVERIFY(!datatype.addEnumerationNode(nullptr));
    }

    void warningOfANumberIsShortenedByIt_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("warning");
        QTest::newRow("all") << 0 << QString("Duplicated enum number ");
        QTest::newRow("part") << 11 << QString("enum number ");
        QTest::newRow("last") << 22 << QString(" ");
        QTest::newRow("end") << 23 << QString();
        QTest::newRow("beyond") << 2147483647 << QString();
        QTest::newRow("negative") << -1 << QString();
    }

    void warningOfANumberIsShortenedByIt()
    {
        QFETCH(int, number);
        DtEnumeratedDatatypeNode datatype;
        warningOf(datatype, "a", number);
        QTEST(warningOf(datatype, "b", number), "warning");
        QVERIFY(datatype.getEnumerationNode("b") == nullptr);
        QCOMPARE(toQt(datatype.getEnumerationNode(number)->getEnum()), QString("a"));
    }

    void firstClashDecidesTheWarning()
    {
        DtEnumeratedDatatypeNode datatype;
        warningOf(datatype, "a", 1);
        warningOf(datatype, "b", 0);
        QCOMPARE(warningOf(datatype, "b", 1), QString("uplicated enum number ")); // clashes with a first
        QCOMPARE(warningOf(datatype, "a", 0), QString("Duplicated enum name a"));
        QCOMPARE(warningOf(datatype, "a", 1), QString("Duplicated enum name a")); // name ahead of number
    }

    void copiedEnumerationIsIndependent()
    {
        DtEnumeratedDatatypeNode datatype;
        warningOf(datatype, "a", 1);
        DtEnumeratedDatatypeNode copy(datatype);
        QVERIFY(copy.getEnumerationNode(1) != datatype.getEnumerationNode(1));
        QCOMPARE(warningOf(copy, "b", 1), QString("uplicated enum number "));
        QCOMPARE(warningOf(copy, "b", 2), QString());
        QVERIFY(datatype.getEnumerationNode("b") == nullptr);
        QCOMPARE(std::distance(copy.getEnumerationNodeList(), copy.getEnumerationNodeEnd()), std::ptrdiff_t(2));
    }

    void manyEnumeratorsAreAddedQuickly()
    {
        DtEnumeratedDatatypeNode datatype;
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 100000; ++i)
            QVERIFY(datatype.addEnumerationNode(enumerator(("e" + std::to_string(i)).c_str(), i * 4096)));
        QVERIFY2(timer.elapsed() < 10000, "comparing each with all takes minutes");
        QCOMPARE(toQt(datatype.getEnumerationNode(99999 * 4096)->getEnum()), QString("e99999"));
    }
};

QX_REGISTER_TEST(TestDatatypeNodes)
#include "testDatatypeNodes.moc"
