#include "foundation/foundationTest.h"
#include "modelTools/outputJournal.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestOutputJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writtenJournalIsReadBack()
    {
        DtOutputJournal journal;
        journal.stage = ".qxgen-aB3xYz";
        journal.changes = {
            {"a b",    DtChangeKind::Added,    DtFileOwner::Program, ""  },
            {"c/\xff", DtChangeKind::Modified, DtFileOwner::Edited,  "12"},
            {"d\"",    DtChangeKind::Removed,  DtFileOwner::Program, "34"}
        };
        const DtOutputJournal read = DtOutputJournal::parsed(journal.text());
        COMPARE_TEXT(read.text(), journal.text().c_str());
        COMPARE_TEXT(read.stage, ".qxgen-aB3xYz");
        QCOMPARE(read.changes.size(), std::size_t(3));
        COMPARE_TEXT(read.changes[1].path, "c/\xff");
        QVERIFY(read.changes[2].kind == DtChangeKind::Removed);
        COMPARE_TEXT(read.changes[2].oldHash, "34");
    }

    void foreignJournalIsRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray head = "{\"format\": 1, \"stage\": \".qxgen-abcdef\", \"changes\": [{\"change\": ";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << head;
        QTest::newRow("format") << QByteArray("{\"format\": 2, \"stage\": \".qxgen-abcdef\", \"changes\": []}");
        QTest::newRow("stage elsewhere") << QByteArray("{\"format\": 1, \"stage\": \"../abcdef\", \"changes\": []}");
        QTest::newRow("stage below") << QByteArray("{\"format\": 1, \"stage\": \".qxgen-a/../b\", \"changes\": []}");
        QTest::newRow("kind") << head + "\"X\", \"path\": \"a\", \"old\": \"\"}]}";
        QTest::newRow("leaves") << head + "\"D\", \"path\": \"../a\", \"old\": \"\"}]}";
        QTest::newRow("absolute") << head + "\"A\", \"path\": \"/a\", \"old\": \"\"}]}";
        QTest::newRow("reserved") << head + "\"A\", \"path\": \".qxgen-lock\", \"old\": \"\"}]}";
        QTest::newRow("no hash") << head + "\"A\", \"path\": \"a\"}]}";
    }

    void foreignJournalIsRefused()
    {
        QFETCH(QByteArray, text);
        QVERIFY_EXCEPTION_THROWN(DtOutputJournal::parsed(text.toStdString()), std::exception);
    }
};

QX_REGISTER_TEST(TestOutputJournal)
#include "testOutputJournal.moc"
