#include "foundation/perRun.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
struct DtNumbers
{
    int value = 1;
};

int theDestroyed = 0;

struct DtCounted
{
    ~DtCounted() { ++theDestroyed; }
};

struct DtOuterPart
{
    int inner = DtPerRun<DtNumbers, struct DtInnerKey>().value; // asks for another part while it is made
};

int& number()
{
    return DtPerRun<DtNumbers>().value;
}
} // namespace

class TestPerRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stateOfTheProcessStays()
    {
        number() = 5;
        QCOMPARE(number(), 5);
        number() = 1;
    }

    void scopeBeginsAnewAndPutsTheOuterStateBack()
    {
        number() = 5;
        {
            const DtRunScope scope;
            QCOMPARE(number(), 1);
            number() = 7;
            {
                const DtRunScope inner;
                QCOMPARE(number(), 1);
                number() = 9;
            }
            QCOMPARE(number(), 7);
        }
        QCOMPARE(number(), 5);
        number() = 1;
    }

    void secondScopeFindsNothingOfTheFirst()
    {
        for (int round = 0; round < 2; ++round)
        {
            const DtRunScope scope;
            QCOMPARE(number(), 1);
            number() = 8;
        }
    }

    void keysKeepPartsOfOneKindApart()
    {
        const DtRunScope scope;
        DtPerRun<DtNumbers, struct DtOneKey>().value = 2;
        DtPerRun<DtNumbers, struct DtOtherKey>().value = 3;
        QCOMPARE((DtPerRun<DtNumbers, struct DtOneKey>().value), 2);
        QCOMPARE((DtPerRun<DtNumbers, struct DtOtherKey>().value), 3);
        QCOMPARE(number(), 1);
    }

    void partsGoWithTheirScope()
    {
        theDestroyed = 0;
        {
            const DtRunScope scope;
            DtPerRun<DtCounted>();
            DtPerRun<DtCounted>();
            QCOMPARE(theDestroyed, 0);
        }
        QCOMPARE(theDestroyed, 1);
    }

    void partMayAskForAnotherWhileItIsMade()
    {
        const DtRunScope scope;
        QCOMPARE(DtPerRun<DtOuterPart>().inner, 1);
    }
};

QX_REGISTER_TEST(TestPerRun)
#include "testPerRun.moc"
