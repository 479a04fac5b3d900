#include "modelTools/toolFailure.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestToolFailure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstOfTheOrderIsTheGraver_data()
    {
        QTest::addColumn<int>("graver");
        QTest::addColumn<int>("other");
        const std::vector<int> order = {1, 2, 5, 3, 4, 0};
        for (std::size_t first = 0; first < order.size(); ++first)
            for (std::size_t second = first; second < order.size(); ++second)
                QTest::addRow("%d %d", order[first], order[second]) << order[first] << order[second];
        for (const int ending : {6, 130, 143}) // ends the program whatever it has found
            for (const int found : order)
                QTest::addRow("%d %d", ending, found) << ending << found;
    }
    void firstOfTheOrderIsTheGraver()
    {
        QFETCH(int, graver);
        QFETCH(int, other);
        QCOMPARE(static_cast<int>(DtGraver(DtExitCode(graver), DtExitCode(other))), graver);
        QCOMPARE(static_cast<int>(DtGraver(DtExitCode(other), DtExitCode(graver))), graver);
    }

    void failureKeepsCodeAndText()
    {
        const DtToolFailure failure(DtExitCode::Unreadable, "there is no model a.xml.");
        QCOMPARE(failure.code(), DtExitCode::Unreadable);
        QCOMPARE(failure.what(), "there is no model a.xml.");
    }
};

QX_REGISTER_TEST(TestToolFailure)
#include "testToolFailure.moc"
