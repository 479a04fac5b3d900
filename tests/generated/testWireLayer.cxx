// The wire layer by itself: layouts, numbers, arrays, variant records and what a hostile buffer can do.

#include "registerTest.h"

#include <qx/valueCoding.h>

#include <QtTest/QtTest>

namespace
{
typedef std::vector<DtU8> Octets;

const char theSurplus[] = "octets are left over behind the value";
const char theShortage[] = "the value ends too early";

template <class Value>
QByteArray encoded(const Value& value, const DtWireForm& form = DtWireForm())
{
    DtWireWriter writer;
    if (!DtWriteValue(writer, value, form))
        return QByteArray("refused: ") + writer.reason();
    return QByteArray(reinterpret_cast<const char*>(writer.data()), static_cast<int>(writer.size())).toHex();
}

template <class Value>
struct Decoded
{
    Value value;
    QByteArray reason; // empty when the value was taken
};

template <class Value>
Decoded<Value> decoded(const char* hex, const DtWireForm& form = DtWireForm(), const Value& before = Value())
{
    const QByteArray bytes = QByteArray::fromHex(hex);
    const Octets octets(bytes.begin(), bytes.end());
    DtWireReader reader(octets);
    Decoded<Value> result = {before, ""};
    if (!DtReadValue(reader, result.value, form))
        result.reason = reader.reason();
    return result;
}

template <class Element>
struct Array // what a generated array class is
{
    static DtArrayLayout& layout()
    {
        static DtArrayLayout theLayout;
        return theLayout;
    }
    static DtWireForm& form()
    {
        static DtWireForm theForm;
        return theForm;
    }
    void encode(DtWireWriter& writer) const { DtEncodeArray(writer, elements, layout(), form()); }
    bool decode(DtWireReader& reader) { return DtDecodeArray(reader, elements, layout(), form()); }
    static unsigned int octetBoundary(const DtWireTrail* outer = nullptr)
    {
        static const char theId = 0;
        if (DtWireTrail::holds(outer, &theId))
            return 1;
        const DtWireTrail trail = {&theId, outer};
        return DtArrayBoundary<Element>(layout(), form(), &trail);
    }
    bool operator==(const Array& other) const { return elements == other.elements; }

    std::vector<Element> elements;
};

// A record of two fields, as generated records are.
template <class First, class Second>
struct Pair
{
    void encode(DtWireWriter& writer) const
    {
        const DtRecordScope<DtWireWriter> scope(writer);
        DtEncodeValue(writer, first, DtWireForm());
        DtEncodeValue(writer, second, DtWireForm());
    }
    bool decode(DtWireReader& reader)
    {
        const DtRecordScope<DtWireReader> scope(reader);
        Pair taken(*this);
        if (!DtDecodeValue(reader, taken.first, DtWireForm()) || !DtDecodeValue(reader, taken.second, DtWireForm()))
            return false;
        *this = taken;
        return true;
    }
    static unsigned int octetBoundary(const DtWireTrail* outer = nullptr)
    {
        return DtLargerBoundary(DtBoundaryOfType<First>(DtWireForm(), outer),
                                DtBoundaryOfType<Second>(DtWireForm(), outer));
    }
    bool operator==(const Pair& other) const { return first == other.first && second == other.second; }

    First first = First();
    Second second = Second();
};

// A record whose values all have the same octets; it may tell of others than its fields have.
template <class First, class Second, class Third, std::size_t theOctets, std::size_t theBoundary>
struct Fixed
{
    template <class Size>
    static constexpr Size fixedOctets()
    {
        return theOctets;
    }
    template <class Size>
    static constexpr Size fixedBoundary()
    {
        return theBoundary;
    }
    void encode(DtWireWriter& writer) const { encodeAt(writer.grow(theOctets), writer); }
    void encodeAt(DtU8* octets, DtWireWriter& writer) const
    {
        DtFixedWriter<theOctets> fields(octets, writer);
        fields.put(first, DtWireForm());
        fields.put(second, DtWireForm());
        fields.put(third, DtWireForm());
    }
    bool decode(DtWireReader& reader)
    {
        const DtU8* const octets = reader.take(theOctets);
        return octets && decodeAt(octets, reader);
    }
    bool decodeAt(const DtU8* octets, DtWireReader& reader)
    {
        DtFixedReader<theOctets> fields(octets, reader);
        return fields.take(first, DtWireForm()) && fields.take(second, DtWireForm()) &&
               fields.take(third, DtWireForm());
    }
    bool operator==(const Fixed& other) const
    {
        return first == other.first && second == other.second && third == other.third;
    }

    First first = First();
    Second second = Second();
    Third third = Third();
};
typedef Fixed<DtU16, DtU32, DtU8, 9, 4> Inner;
typedef Fixed<DtU8, Inner, DtU16, 16, 4> Outer;

template <class Record>
Record fixedOf(const decltype(Record::first)& first, const decltype(Record::second)& second,
               const decltype(Record::third)& third)
{
    Record record;
    record.first = first;
    record.second = second;
    record.third = third;
    return record;
}

struct Nothing // a record without fields
{
    void encode(DtWireWriter&) const {}
    bool decode(DtWireReader&) { return true; }
    static unsigned int octetBoundary() { return 1; }
    bool operator==(const Nothing&) const { return true; }
};

// Arrays of different layouts, each a type of its own.
template <class Element, DtArrayKind theKind, int theCount = 0>
struct Laid : Array<Element>
{
    void encode(DtWireWriter& writer) const { DtEncodeArray(writer, this->elements, layout(), DtWireForm()); }
    bool decode(DtWireReader& reader) { return DtDecodeArray(reader, this->elements, layout(), DtWireForm()); }
    static unsigned int octetBoundary(const DtWireTrail* outer = nullptr)
    {
        return DtArrayBoundary<Element>(layout(), DtWireForm(), outer);
    }
    static DtArrayLayout layout() { return DtArrayLayout(theKind, theCount); }
};

template <class ArrayType>
ArrayType arrayOf(const decltype(ArrayType::elements)& elements)
{
    ArrayType array;
    array.elements = elements;
    return array;
}

struct Tree // holds itself
{
    void encode(DtWireWriter& writer) const { DtEncodeArray(writer, branches, DtArrayLayout(), DtWireForm()); }
    bool decode(DtWireReader& reader) { return DtDecodeArray(reader, branches, DtArrayLayout(), DtWireForm()); }
    static unsigned int octetBoundary(const DtWireTrail* outer = nullptr)
    {
        static const char theId = 0;
        if (DtWireTrail::holds(outer, &theId))
            return 1;
        const DtWireTrail trail = {&theId, outer};
        return DtArrayBoundary<Tree>(DtArrayLayout(), DtWireForm(), &trail);
    }
    bool operator==(const Tree& other) const { return branches == other.branches; }

    std::vector<Tree> branches;
};

struct Chain // holds itself in an array that its first zero element ends
{
    static DtArrayLayout layout() { return DtArrayLayout(DtNullTerminatedArray, 0); }
    void encode(DtWireWriter& writer) const
    {
        const DtRecordScope<DtWireWriter> scope(writer);
        DtEncodeValue(writer, number, DtWireForm());
        DtEncodeArray(writer, links, layout(), DtWireForm());
    }
    bool decode(DtWireReader& reader)
    {
        const DtRecordScope<DtWireReader> scope(reader);
        return DtDecodeValue(reader, number, DtWireForm()) && DtDecodeArray(reader, links, layout(), DtWireForm());
    }
    static unsigned int octetBoundary(const DtWireTrail* /*outer*/ = nullptr) { return 2; }
    bool operator==(const Chain& other) const { return number == other.number && links == other.links; }

    DtU16 number = 0;
    std::vector<Chain> links;
};

enum class Plain : DtInt64
{
    A = 1
};
enum class Told : DtInt64
{
    A = 1
};
DtEnumeratorTable DtEnumeratorsOf(Told)
{
    return DtEnumeratorTable("Told", nullptr, 0, DtNumberForm(2, true, true));
}

const DtEnumerator theNames[] = {
    {"A",    5},
    {"B",    1},
    {"C",    9},
    {"D",    3},
    {"E, F", 7}
};
const DtEnumeratorTable theTable("Names", theNames, 5);

QByteArray places(const std::vector<const char*>& selectors, const std::vector<const char*>& valueless = {})
{
    const DtAlternativeTable table(theTable, selectors, valueless);
    QByteArray text;
    for (DtInt64 value = 0; value < 10; ++value)
        text += table.find(value) < 0 ? QByteArray("-") : QByteArray::number(table.find(value));
    return text;
}
} // namespace

class TestWireLayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutFollowsTheEncoding_data();
    void layoutFollowsTheEncoding();
    void numberHasTheOctetsOfItsForm_data();
    void numberHasTheOctetsOfItsForm();
    void numberThatDoesNotFitIsRefused();
    void longNumberIsReadWhileItFits();
    void floatHasFourOrEightOctets();
    void truthValueFollowsFormAndName();
    void enumerationTellsItsForm();
    void variableArrayStartsWithItsCount();
    void lyingCountTakesNoMemory();
    void elementsWithoutOctetsAreLimited();
    void fixedArrayHasItsNumberOfElements();
    void zeroElementEndsATerminatedArray();
    void terminatedArrayOfWhatHoldsItIsRefused();
    void lengthlessArrayIsLastOrRefused();
    void paddingCountsFromTheRecord();
    void unknownArrayIsRefused();
    void nestedTypesComeToAnEnd();
    void selectorsTakeNamesListsAndRanges();
    void valuelessAlternativeGoesBeforeAllOthers();
    void settingAnAlternativeFindsADiscriminant();
    void lengthBoundsAnAlternative();
    void alternativeHasAnOriginOfItsOwn();
    void stringsCountUnits();
    void stringOfAMisfitIsRefused();
    void fixedStringIsFilled();
    void firstReasonStays();
    void surplusIsRefusedAndTheValueStays();
    void formsOfLayoutsGiveTheOctetsOfThoseByNames();
    void fixedRecordHasItsFieldsInTheirPlaces();
    void fixedRecordBeginsAtItsBoundary();
    void arrayOfFixedRecordsLiesAsOneByOne();
    void shortArrayOfFixedRecordsIsRefused();
    void refusalInAFixedRecordReachesTheWriter();
    void fixedRecordKeepsToTheOctetsThatItTellsOf();
};

void TestWireLayer::layoutFollowsTheEncoding_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<int>("elements");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("number");
    const struct
    {
        const char *name, *encoding;
        int elements, kind, number;
    } rows[] = {
        {"nothing said",             "",                       -1, DtVariableArray,       0},
        {"variable",                 "HLAvariableArray",       -1, DtVariableArray,       0},
        {"variable with a number",   "HLAvariableArray",       4,  DtVariableArray,       0},
        {"fixed",                    "HLAfixedArray",          4,  DtFixedArray,          4},
        {"fixed, none",              "HLAfixedArray",          0,  DtFixedArray,          0},
        {"fixed, left open",         "HLAfixedArray",          -1, DtUnknownArray,        0},
        {"null",                     "HLAnullTerminatedArray", -1, DtNullTerminatedArray, 0},
        {"null, short",              "NullTerminatedArray",    -1, DtNullTerminatedArray, 0},
        {"null, RPR",                "RPRnullTerminatedArray", 9,  DtNullTerminatedArray, 0},
        {"lengthless",               "HLAlengthlessVarArray",  -1, DtLengthlessArray,     0},
        {"lengthless, RPR",          "RPRlengthlessArray",     9,  DtLengthlessArray,     0},
        {"padding to 32",            "RPRpaddingTo32Array",    -1, DtPaddingArray,        4},
        {"padding to 64",            "HLApaddingTo64Array",    -1, DtPaddingArray,        8},
        {"padding to 16",            "PaddingTo16",            -1, DtPaddingArray,        2},
        {"padding to odd bits",      "HLApaddingTo12Array",    -1, DtLengthlessArray,     0},
        {"bits",                     "HLAbitArray",            8,  DtUnknownArray,        0},
        {"unknown with a number",    "Custom",                 4,  DtFixedArray,          4},
        {"unknown without a number", "Custom",                 -1, DtLengthlessArray,     0},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << QByteArray(row.encoding) << row.elements << row.kind << row.number;
}

void TestWireLayer::layoutFollowsTheEncoding()
{
    QFETCH(QByteArray, encoding);
    QFETCH(int, elements);
    const DtArrayLayout layout = DtLayoutOf(DtWireForm("", "", encoding.constData(), elements));
    QTEST(static_cast<int>(layout.kind), "kind");
    QTEST(static_cast<int>(layout.count), "number");
}

void TestWireLayer::numberHasTheOctetsOfItsForm_data()
{
    QTest::addColumn<qlonglong>("number");
    QTest::addColumn<int>("octets");
    QTest::addColumn<bool>("isLittleEndian");
    QTest::addColumn<QByteArray>("hex");
    QTest::newRow("1") << -2LL << 1 << false << QByteArray("fe");
    QTest::newRow("2") << 258LL << 2 << false << QByteArray("0102");
    QTest::newRow("2, low first") << 258LL << 2 << true << QByteArray("0201");
    QTest::newRow("3") << -2LL << 3 << false << QByteArray("fffffe");
    QTest::newRow("3, low first") << 66051LL << 3 << true << QByteArray("030201");
    QTest::newRow("5") << 4328719365LL << 5 << false << QByteArray("0102030405");
    QTest::newRow("8") << -2LL << 8 << false << QByteArray("fffffffffffffffe");
    QTest::newRow("8, low first") << 1LL << 8 << true << QByteArray("0100000000000000");
    QTest::newRow("10") << 1LL << 10 << false << QByteArray("00000000000000000001");
    QTest::newRow("10, negative") << -2LL << 10 << true << QByteArray("feffffffffffffffffff");
}

void TestWireLayer::numberHasTheOctetsOfItsForm()
{
    QFETCH(qlonglong, number);
    QFETCH(int, octets);
    QFETCH(bool, isLittleEndian);
    QFETCH(QByteArray, hex);
    const DtWireForm form("Number", "Wide", "", -1, static_cast<unsigned int>(octets), isLittleEndian);
    QCOMPARE(encoded(DtInt64(number), form), hex);
    const Decoded<DtInt64> back = decoded<DtInt64>(hex.constData(), form);
    QCOMPARE(back.reason, QByteArray());
    QCOMPARE(qlonglong(back.value), number);
    QCOMPARE(DtBoundaryOfType<DtInt64>(form), octets == 3    ? 4U
                                              : octets == 5  ? 8U
                                              : octets == 10 ? 16U
                                                             : unsigned(octets));
}

void TestWireLayer::numberThatDoesNotFitIsRefused()
{
    const DtWireForm three("", "", "", -1, 3);
    const QByteArray refusal = "refused: the number is too large for its octets";
    QCOMPARE(encoded(DtInt32(8388607), three), QByteArray("7fffff"));
    QCOMPARE(encoded(DtInt32(8388608), three), refusal);
    QCOMPARE(encoded(DtInt32(-8388608), three), QByteArray("800000"));
    QCOMPARE(encoded(DtInt32(-8388609), three), refusal);
    QCOMPARE(encoded(DtU32(0x1000000), three), refusal);
    QCOMPARE(decoded<DtU8>("000001", three).value, DtU8(1));
    QCOMPARE(decoded<DtU8>("000100", three, 7).reason, QByteArray("the number is too large for its type"));
    QCOMPARE(decoded<DtU8>("000100", three, 7).value, DtU8(7));
    QCOMPARE(decoded<DtInt8>("00ff7f", three).reason, QByteArray("the number is too large for its type"));
    QCOMPARE(decoded<DtInt8>("ffff80", three).value, DtInt8(-128));
}

void TestWireLayer::longNumberIsReadWhileItFits()
{
    const DtWireForm ten("", "", "", -1, 10);
    QCOMPARE(decoded<DtU64>("0000ffffffffffffffff", ten).value, ~DtU64(0));
    const QByteArray reason = "the number has more than 64 bits";
    QCOMPARE(decoded<DtU64>("0001ffffffffffffffff", ten).reason, reason);
    QCOMPARE(decoded<DtU64>("ffffffffffffffffffff", ten).reason, reason);
    QCOMPARE(decoded<DtInt64>("0000ffffffffffffffff", ten).reason, reason);
    QCOMPARE(decoded<DtInt64>("ffff7fffffffffffffff", ten).reason, reason);
}

void TestWireLayer::floatHasFourOrEightOctets()
{
    QCOMPARE(encoded(1.0f), QByteArray("3f800000"));
    QCOMPARE(encoded(1.0, DtWireForm("", "", "", -1, 4, true)), QByteArray("0000803f"));
    QCOMPARE(encoded(1.0f, DtWireForm("", "", "", -1, 8)), QByteArray("3ff0000000000000"));
    QCOMPARE(encoded(1.0f, DtWireForm("", "", "", -1, 2)),
             QByteArray("refused: no floating-point format of this length"));
    QCOMPARE(decoded<DtFloat32>("3c00", DtWireForm("", "", "", -1, 2)).reason,
             QByteArray("no floating-point format of this length"));
}

void TestWireLayer::truthValueFollowsFormAndName()
{
    QCOMPARE(encoded(true, DtWireForm("HLAboolean")), QByteArray("00000001"));
    QCOMPARE(encoded(true, DtWireForm("Open", "HLAboolean")), QByteArray("00000001"));
    QCOMPARE(encoded(true, DtWireForm("RPRboolean")), QByteArray("01"));
    QCOMPARE(encoded(true, DtWireForm("OMT13boolean")), QByteArray("01"));
    QCOMPARE(encoded(true, DtWireForm("HLAboolean", "HLAinteger16LE", "", -1, 2, true)), QByteArray("0100"));
    QVERIFY(decoded<bool>("00000100", DtWireForm("HLAboolean")).value); // every number but 0
}

void TestWireLayer::enumerationTellsItsForm()
{
    const DtWireForm four("Told", "HLAinteger32BE", "", -1, 4);
    QCOMPARE(encoded(Told::A, four), QByteArray("0100"));
    QCOMPARE(DtBoundaryOfType<Told>(four), 2U);
    QCOMPARE(static_cast<int>(decoded<Told>("feff", four).value), -2);
    QCOMPARE(encoded(static_cast<Told>(32768)), QByteArray("refused: the enumerator is too large for its octets"));
    QCOMPARE(encoded(Plain::A, four), QByteArray("00000001"));
    QCOMPARE(encoded(Plain::A, DtWireForm("Plain", "HLAinteger16LE")), QByteArray("0100"));
    QCOMPARE(encoded(Plain::A), QByteArray("00000001"));
}

void TestWireLayer::variableArrayStartsWithItsCount()
{
    typedef Laid<DtFloat64, DtVariableArray> Doubles;
    QCOMPARE(encoded(Doubles()), QByteArray("00000000"));
    QCOMPARE(encoded(arrayOf<Doubles>({1.0})), QByteArray("00000001000000003ff0000000000000"));
    QCOMPARE(DtBoundaryOfType<Doubles>(DtWireForm()), 8U);
    typedef Laid<DtU8, DtVariableArray> Letters;
    QCOMPARE(DtBoundaryOfType<Letters>(DtWireForm()), 4U);
    typedef Pair<DtU8, Letters> Record;
    Record record;
    record.first = 1;
    record.second.elements = {2, 3};
    QCOMPARE(encoded(record), QByteArray("01000000000000020203"));
    QVERIFY(decoded<Record>("01ffffff000000020203").value == record); // gaps may hold anything
}

void TestWireLayer::lyingCountTakesNoMemory()
{
    typedef Laid<DtFloat64, DtVariableArray> Doubles;
    const Doubles before = arrayOf<Doubles>({2.5});
    for (const char* hex : {"ffffffff", "ffffffff00000000", "ffffffff000000003ff0000000000000", "00000001", "0000"})
    {
        const Decoded<Doubles> result = decoded<Doubles>(hex, DtWireForm(), before);
        QCOMPARE(result.reason, QByteArray(theShortage));
        QVERIFY(result.value == before);
    }
}

void TestWireLayer::elementsWithoutOctetsAreLimited()
{
    typedef Laid<Nothing, DtVariableArray> Nothings;
    QCOMPARE(decoded<Nothings>("00000003").value.elements.size(), std::size_t(3));
    QCOMPARE(decoded<Nothings>("ffffffff").reason, QByteArray("too many elements without octets"));
    typedef Laid<Nothing, DtNullTerminatedArray> Terminated;
    QCOMPARE(encoded(Terminated()), QByteArray("refused: elements without octets cannot be terminated"));
    QCOMPARE(decoded<Terminated>("00").reason, QByteArray("elements without octets cannot be terminated"));
}

void TestWireLayer::fixedArrayHasItsNumberOfElements()
{
    typedef Laid<DtU16, DtFixedArray, 3> Three;
    QCOMPARE(encoded(arrayOf<Three>({1, 2, 3})), QByteArray("000100020003"));
    QCOMPARE(encoded(arrayOf<Three>({1, 2})), QByteArray("refused: a fixed array has another number of elements"));
    QCOMPARE(decoded<Three>("00010002").reason, QByteArray(theShortage));
    QCOMPARE(decoded<Three>("0001000200030004").reason, QByteArray(theSurplus));
}

void TestWireLayer::terminatedArrayOfWhatHoldsItIsRefused()
{
    const QByteArray reason = "elements without octets cannot be terminated";
    Chain chain;
    for (int round = 0; round < 2; ++round) // the second finds nothing of the first
    {
        QCOMPARE(encoded(chain), "refused: " + reason);
        QCOMPARE(decoded<Chain>("0001 0002 0000").reason, reason);
        chain.links.resize(3);
    }
    typedef Laid<Chain, DtNullTerminatedArray> Chains;
    QCOMPARE(encoded(arrayOf<Chains>({Chain()})), "refused: " + reason);
    typedef Laid<DtU16, DtNullTerminatedArray> Wide;
    QCOMPARE(decoded<Wide>("00010000").value.elements, std::vector<DtU16>{1});
}

void TestWireLayer::zeroElementEndsATerminatedArray()
{
    typedef Laid<DtU16, DtNullTerminatedArray> Wide;
    QCOMPARE(encoded(arrayOf<Wide>({1, 256})), QByteArray("000101000000"));
    QVERIFY(decoded<Wide>("000101000000").value == arrayOf<Wide>({1, 256}));
    QCOMPARE(encoded(arrayOf<Wide>({1, 0})), QByteArray("refused: an element would end its null-terminated array"));
    QCOMPARE(decoded<Wide>("0001").reason, QByteArray(theShortage));
    QCOMPARE(decoded<Wide>("00010000 00").reason, QByteArray(theSurplus));
    typedef Pair<DtU8, DtU16> Record; // four octets, of which one is a gap
    typedef Laid<Record, DtNullTerminatedArray> Records;
    Records records;
    records.elements.resize(1);
    records.elements[0].second = 5;
    QCOMPARE(encoded(records), QByteArray("0000000500000000"));
    QVERIFY(decoded<Records>("0000000500000000").value == records);
}

void TestWireLayer::lengthlessArrayIsLastOrRefused()
{
    typedef Laid<DtU16, DtLengthlessArray> Run;
    const QByteArray follows = "something follows an array without length";
    QVERIFY(decoded<Run>("00010002").value == arrayOf<Run>({1, 2}));
    QCOMPARE(decoded<Run>("000100").reason, QByteArray(theShortage));
    typedef Pair<DtU8, Run> Last;
    QCOMPARE(decoded<Last>("01000002").reason, QByteArray());
    typedef Pair<Run, DtU8> First;
    QCOMPARE(decoded<First>("000102").reason, QByteArray(theShortage));
    QCOMPARE(decoded<First>("0001").reason, follows);
    typedef Pair<Run, Nothing> AheadOfNothing;
    QCOMPARE(decoded<AheadOfNothing>("0001").reason, follows);
    typedef Laid<Run, DtFixedArray, 2> TwoRuns;
    QCOMPARE(decoded<TwoRuns>("0001").reason, follows);
    typedef Laid<Run, DtLengthlessArray> Runs;
    QCOMPARE(decoded<Runs>("0001").reason, QByteArray("elements without length cannot be told apart"));
    QCOMPARE(decoded<Runs>("").reason, QByteArray());
}

void TestWireLayer::paddingCountsFromTheRecord()
{
    typedef Laid<DtU8, DtPaddingArray, 4> Fill;
    typedef Pair<Pair<DtU8, Fill>, DtU8> Filled; // its fill belongs to the record inside
    QCOMPARE(encoded(Filled()), QByteArray("0000000000"));
    Pair<DtU8, Filled> outer;
    outer.first = 1;
    outer.second.first.first = 2;
    outer.second.second = 3;
    QCOMPARE(encoded(outer), QByteArray("010200000003"));
    QVERIFY(decoded<decltype(outer)>("0102aabbcc03").value == outer);
    QCOMPARE(decoded<decltype(outer)>("0102aabb").reason, QByteArray(theShortage));
    QCOMPARE(encoded(Fill()), QByteArray());
}

void TestWireLayer::unknownArrayIsRefused()
{
    typedef Laid<DtU8, DtUnknownArray> Bits;
    QCOMPARE(encoded(Bits()), QByteArray("refused: the encoding of the array is not known"));
    QCOMPARE(decoded<Bits>("00").reason, QByteArray("the encoding of the array is not known"));
}

void TestWireLayer::nestedTypesComeToAnEnd()
{
    QCOMPARE(DtBoundaryOfType<Tree>(DtWireForm()), 4U);
    Tree tree;
    tree.branches.resize(2);
    tree.branches[1].branches.resize(1);
    QCOMPARE(encoded(tree), QByteArray("00000002000000000000000100000000"));
    QVERIFY(decoded<Tree>("00000002000000000000000100000000").value == tree);
    const QByteArray deep = QByteArray("00000001").repeated(100000) + "00000000";
    QCOMPARE(decoded<Tree>(deep.constData()).reason, QByteArray("arrays are nested too deeply"));
}

// Declared: A = 5, B = 1, C = 9, D = 3, "E, F" = 7.
void TestWireLayer::selectorsTakeNamesListsAndRanges()
{
    QCOMPARE(places({"A"}), QByteArray("-----0----"));
    QCOMPARE(places({"A, D", "B"}), QByteArray("-1-0-0----"));
    QCOMPARE(places({" [ B .. D ] "}), QByteArray("-0-0-----0")); // 1, 9 and 3, but not 2
    QCOMPARE(places({"[D .. B]"}), QByteArray("----------"));     // nothing is declared from D on to B
    QCOMPARE(places({"[A .. B], D"}), QByteArray("-0-0-0----"));
    QCOMPARE(places({"A", "HLAother"}), QByteArray("1111101111"));
    QCOMPARE(places({"HLAother", "A"}), QByteArray("0000010000"));
    QCOMPARE(places({"E, F"}), QByteArray("-------0--")); // one name with a comma in it
    QCOMPARE(places({"2", "[6 .. 8]"}), QByteArray("--0---111-"));
    QCOMPARE(places({"Unknown", "[A .. Unknown]", ""}), QByteArray("----------"));
}

void TestWireLayer::valuelessAlternativeGoesBeforeAllOthers()
{
    QCOMPARE(places({"A", "HLAother"}, {"B, C"}), QByteArray("1-1110111-"));
    QCOMPARE(places({"A"}, {"HLAother"}), QByteArray("-----0----"));
}

void TestWireLayer::settingAnAlternativeFindsADiscriminant()
{
    const DtAlternativeTable table(theTable, {"A, D", "HLAother", "Unknown"});
    QCOMPARE(table.valueOf(0, 0), DtInt64(5));
    QCOMPARE(table.valueOf(0, 3), DtInt64(3)); // the present one selects it, too
    QCOMPARE(table.valueOf(1, 3), DtInt64(1)); // the first enumerator that does
    QCOMPARE(table.valueOf(2, 3), DtInt64(3)); // there is none
    const DtAlternativeTable full(theTable, {"A, B, C, D, 7", "HLAother"});
    QCOMPARE(full.valueOf(1, 5), DtInt64(0)); // a number without a name
}

void TestWireLayer::lengthBoundsAnAlternative()
{
    const DtWireForm form;
    DtWireWriter writer;
    DtEncodeAlternative(writer, DtU16(1), form, DtExtendedVariant, 8);
    QCOMPARE(writer.size(), std::size_t(6));
    const Octets octets = {0, 0, 0, 3, 0, 1, 9};
    DtWireReader reader(octets);
    DtU16 value = 7;
    QVERIFY(!DtDecodeAlternative(reader, value, form, DtExtendedVariant, 8));
    QCOMPARE(QByteArray(reader.reason()), QByteArray("the alternative has another length"));
    DtWireReader longer(octets.data(), octets.size() - 1);
    QVERIFY(!DtDecodeNoAlternative(longer, DtExtendedVariant));
    QCOMPARE(QByteArray(longer.reason()), QByteArray(theShortage));
    DtWireReader unknown(octets);
    QVERIFY(DtDecodeNoAlternative(unknown, DtExtendedVariant));
    QVERIFY(unknown.atEnd());
    typedef Laid<DtU16, DtLengthlessArray> Run; // its length is that of the alternative
    Run run;
    const Octets two = {0, 0, 0, 2, 0, 1, 9};
    DtWireReader bounded(two);
    QVERIFY(DtDecodeAlternative(bounded, run, form, DtExtendedVariant, 8));
    QCOMPARE(run.elements.size(), std::size_t(1));
    QCOMPARE(bounded.remaining(), std::size_t(1));
    QVERIFY(!bounded.isClosed());
}

// It lies at an offset that is no multiple of anything, and its own gaps are those that it has anywhere else.
void TestWireLayer::alternativeHasAnOriginOfItsOwn()
{
    Pair<DtU8, DtFloat64> record;
    record.second = 1.0;
    DtWireWriter writer;
    writer.putByte(5);
    DtEncodeAlternative(writer, record, DtWireForm(), DtExtendedVariant, 8);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(writer.data()), static_cast<int>(writer.size())).toHex(),
             QByteArray("050000001000000000000000003ff0000000000000"));
    DtWireReader reader(writer.bytes());
    QVERIFY(reader.skip(1));
    Pair<DtU8, DtFloat64> back;
    QVERIFY(DtDecodeAlternative(reader, back, DtWireForm(), DtExtendedVariant, 8));
    QVERIFY(back == record);
}

void TestWireLayer::stringsCountUnits()
{
    const DtWireForm wide("HLAunicodeString", "HLAoctetPairBE", "HLAvariableArray", -1, 2);
    const DtString text("a\xf0\x9f\x98\x80"); // the second character is two units
    QCOMPARE(encoded(text, wide), QByteArray("000000030061d83dde00"));
    QVERIFY(decoded<DtString>("000000030061d83dde00", wide).value == text);
    QCOMPARE(encoded(text, DtWireForm("HLAunicodeString")), QByteArray("000000030061d83dde00"));
    QCOMPARE(encoded(DtString("ab"), DtWireForm("HLAASCIIstring")), QByteArray("000000026162"));
    QCOMPARE(encoded(DtString("a\0b", 3), DtWireForm("HLAopaqueData")), QByteArray("00000003610062"));
    QCOMPARE(encoded(DtString("ab"), DtWireForm("string")), QByteArray("616200"));
    QCOMPARE(encoded(DtGlobalObjectDesignator("x")), QByteArray("7800"));
    QCOMPARE(encoded(DtString("a\0b", 3), DtWireForm("string")),
             QByteArray("refused: an element would end its null-terminated array"));
}

// A text that stands for a datatype which does not fit into it.
void TestWireLayer::stringOfAMisfitIsRefused()
{
    const DtWireForm misfit("Label", "", "HLAvariableArray", -1, 0, false, &DtWireMisfit::theLayout);
    const QByteArray reason = "the model's datatype does not fit into the type of the toolkit";
    QCOMPARE(encoded(DtString("ab"), misfit), "refused: " + reason);
    QCOMPARE(decoded<DtString>("000000026162", misfit).reason, reason);
}

void TestWireLayer::fixedStringIsFilled()
{
    const DtWireForm five("Name", "HLAoctet", "HLAfixedArray", 5, 1);
    QCOMPARE(encoded(DtString("ab"), five), QByteArray("6162000000"));
    QVERIFY(decoded<DtString>("6162000000", five).value == DtString("ab"));
    QCOMPARE(encoded(DtString("abcdefg"), five), QByteArray("6162636465"));
    QCOMPARE(encoded(DtString("ab"), DtWireForm("MarkingArray11", "HLAoctet", "HLAfixedArray")),
             QByteArray("6162000000000000000000")); // eleven, by the name
}

void TestWireLayer::firstReasonStays()
{
    DtWireWriter writer;
    writer.refuse("one");
    writer.refuse("two");
    QCOMPARE(QByteArray(writer.reason()), QByteArray("one"));
    writer.clear();
    QVERIFY(writer.ok());
    const Octets octets = {1, 2};
    DtWireReader reader(octets);
    DtU64 number = 7;
    QVERIFY(!reader.getInteger(number, 4));
    QVERIFY(!reader.getInteger(number, 1)); // nothing is read behind a failure
    QCOMPARE(number, DtU64(7));
    QCOMPARE(QByteArray(reader.reason()), QByteArray(theShortage));
}

void TestWireLayer::surplusIsRefusedAndTheValueStays()
{
    const Decoded<DtU16> result = decoded<DtU16>("000102", DtWireForm(), 9);
    QCOMPARE(result.reason, QByteArray(theSurplus));
    QCOMPARE(result.value, DtU16(9));
    QCOMPARE(decoded<DtU16>("", DtWireForm(), 9).value, DtU16(9));
}

void TestWireLayer::formsOfLayoutsGiveTheOctetsOfThoseByNames()
{
    QCOMPARE(encoded(DtU32(0x01020304), DtWireForm::number(4)), QByteArray("01020304"));
    QCOMPARE(encoded(DtU32(0x01020304), DtWireForm::number(4, DtLittleEndian)), QByteArray("04030201"));
    QCOMPARE(encoded(DtInt32(-2), DtWireForm::number(3)), QByteArray("fffffe"));
    const DtString text("ab");
    QCOMPARE(encoded(text, DtWireForm::array(DtVariableArray, 1)), QByteArray("000000026162"));
    QCOMPARE(encoded(text, DtWireForm::array(DtNullTerminatedArray, 1)), QByteArray("616200"));
    QCOMPARE(encoded(text, DtWireForm::array(DtLengthlessArray, 1)), QByteArray("6162"));
    QCOMPARE(encoded(text, DtWireForm::fixedArray(4, 1)), QByteArray("61620000"));
    QCOMPARE(encoded(text, DtWireForm::array(DtVariableArray, 2, DtLittleEndian)), QByteArray("0000000261006200"));
    QCOMPARE(encoded(std::vector<DtU16>{1, 2}, DtWireForm::array(DtVariableArray, 2)), QByteArray("0000000200010002"));
    typedef DtWireRecordOf<4, DtWirePart<2, 0, 4>, DtWirePart<1, 4, 4>, DtWirePart<0, 8, 4>> Reversed;
    const DtVector32 vector(1, 2, 3);
    QCOMPARE(encoded(vector, DtWireForm::record(&Reversed::theLayout)), QByteArray("40400000400000003f800000"));
    QCOMPARE(encoded(vector, DtWireForm()), QByteArray("3f8000004000000040400000"));
    QVERIFY(encoded(vector, DtWireForm::record(&DtWireMisfit::theLayout)).startsWith("refused"));
}

// The figures are worked out by hand: each field at a multiple of its length, a record at one of its longest number.
void TestWireLayer::fixedRecordHasItsFieldsInTheirPlaces()
{
    const Inner inner = fixedOf<Inner>(0x0102, 0x03040506, 7);
    QCOMPARE(encoded(inner), QByteArray("010200000304050607"));
    QCOMPARE(decoded<Inner>("0102ffff0304050607").value, inner);
    const Outer outer = fixedOf<Outer>(9, inner, 0x0a0b);
    QCOMPARE(encoded(outer), QByteArray("09000000010200000304050607000a0b"));
    QCOMPARE(decoded<Outer>("09000000010200000304050607000a0b").value, outer);
    QCOMPARE(decoded<Outer>("09000000010200000304050607000a").reason, QByteArray(theShortage));
    QCOMPARE(decoded<Outer>("09000000010200000304050607000a0b00").reason, QByteArray(theSurplus));
}

void TestWireLayer::fixedRecordBeginsAtItsBoundary()
{
    typedef Pair<DtU8, Inner> Held;
    Held held;
    held.first = 1;
    held.second = fixedOf<Inner>(2, 3, 4);
    QCOMPARE(encoded(held), QByteArray("01000000000200000000000304"));
    QCOMPARE(decoded<Held>("01000000000200000000000304").value, held);
    QCOMPARE(DtBoundaryOfType<Held>(DtWireForm()), 4U);
}

void TestWireLayer::arrayOfFixedRecordsLiesAsOneByOne()
{
    typedef Laid<Inner, DtVariableArray> Counted;
    const Inner one = fixedOf<Inner>(1, 2, 3);
    const Inner other = fixedOf<Inner>(4, 5, 6);
    QCOMPARE(encoded(arrayOf<Counted>({})), QByteArray("00000000"));
    QCOMPARE(encoded(arrayOf<Counted>({one})), QByteArray("00000001000100000000000203"));
    const char* const both = "00000002000100000000000203000000000400000000000506"; // no octets behind the last
    QCOMPARE(encoded(arrayOf<Counted>({one, other})), QByteArray(both));
    QCOMPARE(decoded<Counted>(both).value, arrayOf<Counted>({one, other}));
    typedef Laid<Inner, DtFixedArray, 2> Two;
    QCOMPARE(decoded<Two>("000100000000000203000000000400000000000506").value, arrayOf<Two>({one, other}));
    typedef Laid<Inner, DtLengthlessArray> Rest;
    QCOMPARE(decoded<Rest>("000100000000000203000000000400000000000506").value, arrayOf<Rest>({one, other}));
}

void TestWireLayer::shortArrayOfFixedRecordsIsRefused()
{
    typedef Laid<Inner, DtVariableArray> Counted;
    QCOMPARE(decoded<Counted>("000000020001000000000002030000000004000000000005").reason, QByteArray(theShortage));
    QCOMPARE(decoded<Counted>("00000003000100000000000203000000000400000000000506").reason, QByteArray(theShortage));
    QCOMPARE(decoded<Counted>("7fffffff000100000000000203").reason, QByteArray(theShortage));
    QCOMPARE(decoded<Counted>("00000001").reason, QByteArray(theShortage));
}

void TestWireLayer::refusalInAFixedRecordReachesTheWriter()
{
    typedef Fixed<DtU8, Told, DtU8, 5, 2> WithEnumeration;
    const WithEnumeration fits = fixedOf<WithEnumeration>(1, static_cast<Told>(0x1234), 2);
    QCOMPARE(encoded(fits), QByteArray("0100341202"));
    const WithEnumeration wide = fixedOf<WithEnumeration>(1, static_cast<Told>(0x12345), 2);
    QCOMPARE(encoded(wide), QByteArray("refused: the enumerator is too large for its octets"));
    typedef Laid<WithEnumeration, DtVariableArray> Counted;
    QCOMPARE(encoded(arrayOf<Counted>({fits, wide})),
             QByteArray("refused: the enumerator is too large for its octets"));
}

// A class with a wrong figure must not write or read beyond its octets.
void TestWireLayer::fixedRecordKeepsToTheOctetsThatItTellsOf()
{
    typedef Fixed<DtU16, DtU32, DtU64, 8, 4> Liar;
    QCOMPARE(encoded(fixedOf<Liar>(1, 2, 3)), QByteArray("refused: the record has other octets than it tells of"));
    typedef Fixed<DtU8, Liar, DtU8, 13, 4> Holder;
    QCOMPARE(encoded(fixedOf<Holder>(1, fixedOf<Liar>(1, 2, 3), 4)),
             QByteArray("refused: the record has other octets than it tells of"));
    QCOMPARE(decoded<Liar>("0001000000000002").reason, QByteArray(theShortage));
}

QX_REGISTER_TEST(TestWireLayer)
#include "testWireLayer.moc"
