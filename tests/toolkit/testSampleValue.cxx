// What examples send.

#include "registerTest.h"

#include <qx/sampleValue.h>

#include <QtTest/QtTest>

namespace
{
// As generated classes: a number, an array, a record whose field is called like the accessor of a number, a variant.
class Knots
{
public:
    typedef DtFloat32 Number;
    DtFloat32 number() const { return myNumber; }
    void setNumber(DtFloat32 number) { myNumber = number; }

private:
    DtFloat32 myNumber = 0;
};

class Rows
{
public:
    typedef DtU16 value_type;
    const std::vector<DtU16>& elements() const { return myElements; }
    void resize(std::size_t size) { myElements.resize(size); }
    void fillWith(DtSampleFiller& filler) { filler.fillElements<DtU16>(*this, myElements.size()); }
    DtU16& operator[](std::size_t index) { return myElements[index]; }
    const DtU16& operator[](std::size_t index) const { return myElements[index]; }

private:
    std::vector<DtU16> myElements;
};

struct Record
{
    template <class Filler>
    void fillWith(Filler& filler)
    {
        filler("Number", myNumber);
        filler("Speed", mySpeed);
        filler("Name", myName);
    }
    DtInt8 number() const { return myNumber; }

    DtInt8 myNumber = 0;
    Knots mySpeed;
    DtString myName;
};

struct Variant
{
    template <class Filler>
    void fillWith(Filler& filler)
    {
        mySelected = filler.choose(3);
    }

    std::size_t mySelected = 0;
};
} // namespace

class TestSampleValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAndTextsDifferFromRoundToRound()
    {
        QCOMPARE(DtSampleOf<DtU8>(0), DtU8(32));
        QCOMPARE(DtSampleOf<DtInt8>(1), DtInt8(33));
        QCOMPARE(DtSampleOf<DtInt8>(63), DtInt8(95)); // never negative
        QCOMPARE(DtSampleOf<DtFloat64>(2), 3.5);
        QVERIFY(DtSampleOf<bool>(0) && !DtSampleOf<bool>(1));
        QCOMPARE(DtSampleOf<DtString>(4).c_str(), "sample 4");
        QCOMPARE(DtSampleOf<Knots>(1).number(), 2.5f);
    }

    void partsOfARecordHaveValuesOfTheirOwn()
    {
        const Record record = DtSampleOf<Record>(5);
        QCOMPARE(int(record.myNumber), 37);
        QCOMPARE(record.mySpeed.number(), 7.5f);
        QCOMPARE(record.myName.c_str(), "sample 7");
    }

    void openArrayHasOneElementOrTwo()
    {
        QVERIFY(DtSampleOf<Rows>(0).elements() == std::vector<DtU16>({32}));
        QVERIFY(DtSampleOf<Rows>(1).elements() == std::vector<DtU16>({33, 34}));
        QVERIFY(DtSampleOf<std::vector<bool>>(1) == std::vector<bool>({false, true}));
    }

    void alternativesComeInTurn()
    {
        QCOMPARE(DtSampleOf<Variant>(0).mySelected, std::size_t(0));
        QCOMPARE(DtSampleOf<Variant>(5).mySelected, std::size_t(2));
        QCOMPARE(DtSampleFiller(5).choose(0), std::size_t(0));
    }

    void otherClassesStayAsTheyStart() { QVERIFY(DtSampleOf<DtOpaqueValue>(3).octets().empty()); }
};

QX_REGISTER_TEST(TestSampleValue)
#include "testSampleValue.moc"
