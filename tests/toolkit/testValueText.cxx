// Values as text for people.

#include "registerTest.h"

#include <qx/valueText.h>

#include <QtTest/QtTest>

namespace
{
enum class Lamp : DtInt64
{
    eOff = 0,
    eOn = 5,
};

DtEnumeratorTable DtEnumeratorsOf(Lamp)
{
    static const DtEnumerator theEntries[] = {
        {"Off", 0},
        {"On",  5},
        {"",    0}
    };
    return DtEnumeratorTable("Lamp", theEntries, 2, DtNumberForm(1));
}

// As generated datatypes: one that is a number, one that is not.
class Knots
{
public:
    DtFloat32 number() const { return 7.5f; }
};

class Pair
{
public:
    explicit Pair(DtU8 first) : myFirst(first) {}
    void encode(DtWireWriter& writer) const
    {
        if (myFirst > 100)
            return writer.refuse("too large");
        writer.putByte(myFirst);
        writer.putByte(0xa0);
    }
    static unsigned int octetBoundary() { return 1; }

private:
    DtU8 myFirst;
};

template <class Value>
QString textOf(const Value& value)
{
    return QString::fromStdString(DtValueText(value));
}
} // namespace

class TestValueText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreDigits();
    void enumeratorsHaveNameAndNumber();
    void textIsQuoted();
    void listsStandInBrackets();
    void classesAreTheirOctets();
    void enumeratorsComeInTurn();
};

void TestValueText::numbersAreDigits()
{
    QCOMPARE(textOf(DtU8(65)) + textOf(DtInt8(-1)) + textOf(DtU64(-1)), QString("65-118446744073709551615"));
    QCOMPARE(textOf(DtFloat32(7.02f)), QString("7.02"));
    QCOMPARE(textOf(DtFloat64(-1234567.25)), QString("-1234567.25"));
    QCOMPARE(textOf(true) + textOf(false), QString("truefalse"));
    QCOMPARE(textOf(Knots()), QString("7.5"));
}

void TestValueText::enumeratorsHaveNameAndNumber()
{
    QCOMPARE(textOf(Lamp::eOn), QString("On (5)"));
    QCOMPARE(textOf(static_cast<Lamp>(7)), QString("7"));
}

void TestValueText::textIsQuoted()
{
    QCOMPARE(textOf(DtString("a \"b\" \\ c")), QString("\"a \\\"b\\\" \\\\ c\""));
    QCOMPARE(textOf(DtString("\n\0\xc3", 3)), QString("\"\\x0a\\x00\\xc3\""));
    QCOMPARE(textOf(DtGlobalObjectDesignator("Ada")), QString("\"Ada\""));
}

void TestValueText::listsStandInBrackets()
{
    QCOMPARE(textOf(std::vector<DtU16>()), QString("[]"));
    QCOMPARE(textOf(std::vector<DtU16>{1, 300}), QString("[1, 300]"));
    QCOMPARE(textOf(std::vector<bool>{true, false}), QString("[true, false]"));
    QCOMPARE(textOf(std::vector<std::vector<Lamp>>{{Lamp::eOn}, {}}), QString("[[On (5)], []]"));
    QCOMPARE(textOf(DtVector(1, 2.5, -3)), QString("(1, 2.5, -3)"));
}

void TestValueText::classesAreTheirOctets()
{
    QCOMPARE(textOf(Pair(1)), QString("01a0"));
    QCOMPARE(textOf(Pair(101)), QString("not encodable: too large"));
    QCOMPARE(textOf(DtEntityIdentifier(1, 2, 0x300)), QString("000100020300"));
    QCOMPARE(textOf(DtOpaqueValue(DtValueBuffer{0xde, 0xad})), QString("dead"));
}

void TestValueText::enumeratorsComeInTurn()
{
    QVERIFY(DtEnumeratorInTurn<Lamp>(0) == Lamp::eOff);
    QVERIFY(DtEnumeratorInTurn<Lamp>(1) == Lamp::eOn);
    QVERIFY(DtEnumeratorInTurn<Lamp>(2) == Lamp::eOff);
    enum class Nameless : int
    {
    };
    QVERIFY(DtEnumeratorInTurn<Nameless>(3) == Nameless());
}

QX_REGISTER_TEST(TestValueText)
#include "testValueText.moc"
