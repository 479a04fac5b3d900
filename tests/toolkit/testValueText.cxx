// Values as text for people.

#include "registerTest.h"

#include <qx/valueText.h>

#include <QtTest/QtTest>

#include <sstream>

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

// As a generated record, with a field that is called like the accessor of a number.
class Place
{
public:
    DtFloat64 number() const { return 1.5; }
    Lamp lamp() const { return Lamp::eOn; }
};

std::ostream& operator<<(std::ostream& out, const Place& value)
{
    DtFieldWriter fields(out);
    fields.add("Number", value.number());
    fields.add("Lamp", value.lamp());
    return fields.end();
}

class Nothing
{
};

std::ostream& operator<<(std::ostream& out, const Nothing&)
{
    return DtFieldWriter(out).end();
}

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
    void classesHaveTheTextOfTheirOperator();
    void enumeratorsAreWritten();
    void longTextGoesOverSeveralLines();
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

void TestValueText::classesHaveTheTextOfTheirOperator()
{
    QCOMPARE(textOf(Place()), QString("{ Number: 1.5, Lamp: On (5) }"));
    QCOMPARE(textOf(Nothing()), QString("{}"));
    QCOMPARE(textOf(std::vector<Place>(1)), QString("[{ Number: 1.5, Lamp: On (5) }]"));
}

void TestValueText::enumeratorsAreWritten()
{
    std::ostringstream stream;
    DtWriteEnumerator(stream, DtEnumeratorsOf(Lamp()), 5) << ' ';
    DtWriteEnumerator(stream, DtEnumeratorsOf(Lamp()), 6);
    QCOMPARE(stream.str().c_str(), "On (5) 6");
}

void TestValueText::longTextGoesOverSeveralLines()
{
    const std::string inner = "{ a: \"}, {\", b: (1, 2), c: [] }";
    QCOMPARE(DtTextLayout::of(inner, 4).c_str(), inner.c_str());
    const std::string numbers = "[" + std::string(200, '1') + ", 2]";
    QCOMPARE(DtTextLayout::of(numbers, 4).c_str(), numbers.c_str());
    const std::string quoted = "\"{" + std::string(200, ' ') + "}\"";
    QCOMPARE(DtTextLayout::of(quoted, 4).c_str(), quoted.c_str());
    const std::string filling(80, 'x');
    QCOMPARE(DtTextLayout::of("{ one: " + inner + ", two: [" + inner + "], three: " + filling + " }", 4).c_str(),
             ("{\n        one: " + inner + ",\n        two: [" + inner + "],\n        three: " + filling + "\n    }")
                 .c_str());
    QCOMPARE(DtTextLayout::of("[{ a: " + filling + " }, { a: 1 }]", 4).c_str(),
             ("[\n        { a: " + filling + " },\n        { a: 1 }\n    ]").c_str());
}

QX_REGISTER_TEST(TestValueText)
#include "testValueText.moc"
