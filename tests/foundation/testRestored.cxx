#include "foundation/restored.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <string>

class TestRestored : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueComesBackAtTheEndOfTheBlock()
    {
        std::string text = "before";
        {
            const DtRestored restored(text, "inside");
            QCOMPARE(text, std::string("inside"));
            text = "changed";
        }
        QCOMPARE(text, std::string("before"));
    }

    void valueComesBackWithoutANewOne()
    {
        int number = 1;
        {
            const DtRestored restored(number);
            QCOMPARE(number, 1);
            number = 2;
        }
        QCOMPARE(number, 1);
    }

    void newValueMayBeTheVariableItself()
    {
        std::string text = "a text that is too long to lie in the string itself";
        const std::string expected = text;
        const std::string& alias = text;
        {
            const DtRestored restored(text, alias);
            QCOMPARE(text, expected);
        }
        QCOMPARE(text, expected);
    }

    void valueComesBackBehindAnException()
    {
        int number = 1;
        try
        {
            const DtRestored restored(number, 2);
            throw 0;
        }
        catch (int)
        {
        }
        QCOMPARE(number, 1);
    }
};

QX_REGISTER_TEST(TestRestored)
#include "testRestored.moc"
