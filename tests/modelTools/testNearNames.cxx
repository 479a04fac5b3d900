#include "modelTools/nearNames.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtTest/QtTest>

class TestNearNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nearestNamesComeFirst_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("the name itself") << QByteArray("Aircraft") << QByteArray("|Aircraft");
        QTest::newRow("other letter") << QByteArray("Aircroft") << QByteArray("|Aircraft");
        QTest::newRow("letter less") << QByteArray("Aircraf") << QByteArray("|Aircraft");
        QTest::newRow("letter more") << QByteArray("Airrcraft") << QByteArray("|Aircraft");
        QTest::newRow("letters swapped") << QByteArray("Hsip") << QByteArray("|Ship");
        QTest::newRow("letters swapped at the end") << QByteArray("Shpi") << QByteArray("|Ship");
        QTest::newRow("other capitals") << QByteArray("SHIP") << QByteArray("|Ship|Skip");
        QTest::newRow("far") << QByteArray("Submarine") << QByteArray();
        QTest::newRow("nothing") << QByteArray() << QByteArray();
    }
    void nearestNamesComeFirst()
    {
        QFETCH(QByteArray, typed);
        QFETCH(QByteArray, expected);
        const std::vector<std::string> names = {"Spacecraft", "Ship", "Skip", "Aircraft"};
        COMPARE_TEXT(joined(DtNearNames(typed.constData(), names)), expected);
    }

    void capitalsCountLessThanLetters() { COMPARE_TEXT(joined(DtNearNames("ship", {"shop", "SHIP"})), "|SHIP|shop"); }

    void threeNamesAreTheMost()
    {
        COMPARE_TEXT(joined(DtNearNames("name", {"name4", "name3", "name2", "name1"})), "|name1|name2|name3");
    }

    void equallyNearNamesStandInTheirOrderOfLetters()
    {
        COMPARE_TEXT(joined(DtNearNames("tank", {"tanx", "bank", "rank"})), "|bank|rank|tanx");
    }

    void sameNameStandsOnce() { COMPARE_TEXT(joined(DtNearNames("tank", {"tanks", "tanks"})), "|tanks"); }

    void noNamesGiveNone() { QVERIFY(DtNearNames("tank", {}).empty()); }

    void hugeNamesAreComparedByTheirStarts()
    {
        const std::string start(200, 'x');
        COMPARE_TEXT(joined(DtNearNames(start + std::string(100000, 'y'), {start + "z", "short"})),
                     ("|" + start + "z").c_str());
    }

    void hintIsASentence()
    {
        COMPARE_TEXT(DtNearNamesHint("name", {}), "");
        COMPARE_TEXT(DtNearNamesHint("name", {"name1"}), " Did you mean name1?");
        COMPARE_TEXT(DtNearNamesHint("name", {"name1", "name2"}), " Did you mean name1 or name2?");
        COMPARE_TEXT(DtNearNamesHint("name", {"name1", "name2", "name3"}), " Did you mean name1, name2 or name3?");
    }
};

QX_REGISTER_TEST(TestNearNames)
#include "testNearNames.moc"
