// What a model tells people, as comments of generated code.

#include "registerTest.h"
#include "testSupport.h"

#include "fileGenerator/commentText.h"
#include "fileGenerator/documentation.h"

#include <QtTest/QtTest>

namespace
{
QString toQt(const DtString& text)
{
    return QString::fromUtf8(text.c_str());
}

QString comment(const char* text, int indent = 0)
{
    return toQt(DtCommentText(DtString(text), indent));
}
} // namespace

class TestDocumentation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textBecomesLinesOfAComment_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("lines");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("blanks") << QByteArray(" \n\t ") << QByteArray();
        QTest::newRow("one line") << QByteArray("  A  ship. ") << QByteArray("/// A ship.\n");
        QTest::newRow("line ends are blanks") << QByteArray("A\r\n  ship.\n") << QByteArray("/// A ship.\n");
        QTest::newRow("empty lines are kept as ends of lines")
            << QByteArray("A ship.\n\n\nA buoy.") << QByteArray("/// A ship.\n/// A buoy.\n");
        QTest::newRow("items begin lines")
            << QByteArray("One of\n* ship\n- buoy\n-3") << QByteArray("/// One of\n/// * ship\n/// - buoy -3\n");
        QTest::newRow("letters of all kinds") << QByteArray("Größe, 速度") << QByteArray("/// Größe, 速度\n");
        QTest::newRow("end of a comment") << QByteArray("a*/b/*c**/") << QByteArray("/// a* /b/ *c** /\n");
        QTest::newRow("backslash at the end") << QByteArray("C:\\\n\nnext") << QByteArray("/// C:\\.\n/// next\n");
        QTest::newRow("trigraph") << QByteArray("why?"
                                                "?/")
                                  << QByteArray("/// why? ?/\n");
        QTest::newRow("three question marks") << QByteArray("???") << QByteArray("/// ? ? ?\n");
        QTest::newRow("parts of templates")
            << QByteArray("<!ClassName!> <#3> <?exists x>") << QByteArray("/// < !ClassName!> < #3> < ?exists x>\n");
        QTest::newRow("part of a template over two lines") << QByteArray("<\n!a") << QByteArray("/// < !a\n");
        QTest::newRow("controls") << QByteArray("a\x01"
                                                "b\x7f"
                                                "c\v"
                                                "d\f"
                                                "e")
                                  << QByteArray("/// abc d e\n");
        QTest::newRow("marks of direction") << QByteArray("a\xe2\x80\xae"
                                                          "b\xe2\x81\xa6"
                                                          "c\xd8\x9c"
                                                          "d\xe2\x80\x8f"
                                                          "e")
                                            << QByteArray("/// abcde\n");
        QTest::newRow("separators of lines") << QByteArray("a\xe2\x80\xa8"
                                                           "b\xe2\x80\xa9"
                                                           "c\xc2\x85"
                                                           "d")
                                             << QByteArray("/// a b c d\n");
        QTest::newRow("no UTF-8") << QByteArray("\xff"
                                                "a\xc3"
                                                "b\xe2\x82"
                                                "c\xc0\xaf"
                                                "d\xed\xa0\x80")
                                  << QByteArray("/// ?a?b? ?c? ?d? ? ?\n");
    }
    void textBecomesLinesOfAComment()
    {
        QFETCH(QByteArray, text);
        QTEST(comment(text.constData()).toUtf8(), "lines");
    }

    void linesAreWrappedAt100Columns()
    {
        const std::string words = "0123456 ";
        std::string text;
        for (int i = 0; i < 30; ++i)
            text += words;
        const QStringList lines = toQt(DtCommentText(DtString(text), 4)).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0].size(), 4 + 3 + 11 * 8);
        for (const QString& line : lines)
            QVERIFY(line.startsWith("    /// 0") && line.endsWith('6'));
    }

    // Columns, not octets.
    void wordThatNoLineHoldsIsCut()
    {
        const QString text = QString(200, QChar(0x901f));
        const QStringList lines = comment(text.toUtf8().constData(), 4).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], "    /// " + text.left(92));
        QCOMPARE(lines[2], "    /// " + text.left(200 - 2 * 92));
    }

    void wordsWithinACommentHaveNoLineFeed() { QCOMPARE(toQt(DtCommentWords("a\nb<!c!>*/")), QString("a b< !c!>* /")); }

    void simpleDatatypeTellsItsUnits()
    {
        DtSimpleDatatypeNode node;
        DtDocumentation documentation;
        QCOMPARE(toQt(documentation.of(node)), QString());
        node.setDescription("Speed over ground.");
        node.setUnits("m/s");
        node.setResolution("NA");
        node.setAccuracy(" n/a ");
        QCOMPARE(toQt(documentation.of(node)), QString("Speed over ground.\n\nUnits: m/s."));
        node.setDescription("N/A");
        node.setResolution("0.1");
        node.setAccuracy("perfect.");
        QCOMPARE(toQt(documentation.of(node)), QString("Units: m/s. Resolution: 0.1. Accuracy: perfect."));
    }

    void memberTellsOfItsDatatypeAndNotes()
    {
        DtOMTTree tree;
        auto* simple = new DtSimpleDatatypeNode;
        simple->setName("Knots");
        simple->setUnits("kn");
        tree.addSimpleDatatypeNode(simple);
        auto* note = new DtNoteNode;
        note->setLabel("N1");
        note->setText("Never negative.");
        tree.addNoteNode(note);
        DtObjectClassFedNode ship;
        ship.setDescriptor("A ship.");
        ship.setNoteLabels("N2");
        auto* speed = new DtAttributeFedNode;
        speed->setName("Speed");
        speed->setDatatype("Knots");
        speed->setDescription("How fast.");
        speed->setNoteLabels("N1 N2");
        ship.addAttribute(speed);
        DtDocumentation documentation;
        QCOMPARE(toQt(documentation.of(ship).ofMembers["Speed"]), QString("How fast."));
        documentation.setTree(&tree);
        QCOMPARE(toQt(documentation.of(ship).ofClass), QString("A ship."));
        QCOMPARE(toQt(documentation.of(ship).ofMembers["Speed"]),
                 QString("How fast.\n\nUnits: kn.\n\nNever negative."));
        speed->setCardinality("4");
        speed->setAccuracy("good");
        QCOMPARE(toQt(documentation.of(ship).ofMembers["Speed"]),
                 QString("How fast.\n\nUnits: kn.\n\nAccuracy: good. Cardinality: 4.\n\nNever negative."));
    }
};

QX_REGISTER_TEST(TestDocumentation)
#include "testDocumentation.moc"
