#include "foundation/mtlReader.h"
#include "foundation/mtlScanner.h"
#include "foundationTest.h"
#include "mtlText.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace
{
const qint64 theTimeLimit = 20000; // milliseconds; a work that is not proportional to the text takes far longer

QStringList readAll(const QByteArray& text)
{
    const DtMtlEnvironment environment;
    const DtlObjPtr end = DtcIntern("eof", environment.env());
    DtTextInputStream stream(text);
    QStringList objects;
    for (DtlObjPtr object = DtcRead(&stream, environment.env()); !DtcEq(object, end);
         object = DtcRead(&stream, environment.env()))
        objects += printMtl(object);
    return objects;
}

int lengthOf(DtlObjPtr list)
{
    int length = 0;
    for (; DtcConsp(list); list = DtcCdr(list))
        ++length;
    return length;
}
} // namespace

class TestMtlReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { DtMtlReadEscapeChar = nullptr; }

    void objectsOfAText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("objects"); // one a line
        const auto row = [](const char* name, const QByteArray& text, const char* objects)
        { QTest::newRow(name) << text << objects; };
        row("nothing", "", "");
        row("blanks", " \t\r\n\v\f ", "");
        row("symbols", "a B a", "a\nB\na");
        row("symbol of other characters", "[120, 66] 10/08/2015 1.5 0+ 1-2 'q` #|",
            "[120,\n66]\n10/08/2015\n1.5\n0+\n"
            "1-2\n'q`\n#|");
        row("integers", "0 12 -7 +3 007", "#0\n#12\n#-7\n#+3\n#007");
        row("signs alone", "- + -- +-1 -a", "-\n+\n--\n+-1\n-a");
        row("strings", "\"\" \"a b\" \"(;)\"", "\"\"\n\"a b\"\n\"(;)\"");
        row("backslash without an escape character", "\"a\\\" b", "\"a\\\"\nb");
        row("empty list", "()", "()");
        row("nested lists", "(a (b \"c\" (1)) ())", "(a (b \"c\" (#1)) ())");
        row("tokens without blanks", "a(b\"c\"d)e\"f\"", "a\n(b \"c\" d)\ne\n\"f\"");
        row("CR LF", "(a\r\n b)\r\n", "(a b)");
        row("comment", "; (a)\n(b ; c)\n)", "(b)");
        row("comment up to CR", "; a\rb", "b");
        row("comment of two semicolons", ";; a ; b\nc", "c");
        row("comment without an end", "a ; b", "a");
        row("semicolon in a symbol", "a;b c", "a;b\nc");
        row("semicolon behind a string", "\"a\";b\nc", "\"a\"\nc");
        row("surplus closing parentheses", ") a ))(b))", "a\n(b)");
        row("dotted pair", "(a . b)", "(a . b)");
        row("dotted tail of a list", "(a b . \"c\")", "(a b . \"c\")");
        row("dotted list", "(a . (b c))", "(a b c)");
        row("point as a symbol", ". (.) (a .) (. a) (a . b c) (a b.) (a \".\" b)",
            ".\n(.)\n(a .)\n(. a)\n(a . b c)\n(a b.)\n(a \".\" b)");
        row("missing closing parenthesis", "(a (b c", "(a (b c))");
        row("missing element", "(a (", "(a ())");
        row("string without an end", "\"a b\n", "\"a b\n\"");
        row("string without an end in a list", "(a (\"b)) c", "(a (\"b)) c\"))");
        row("end as a symbol", "a eof b", "a"); // the symbol is the mark of the end
        row("end in a list", "(eof)", "(eof)");
        row("NUL in a symbol", QByteArray("a\0b c", 5), "a\nc");
        row("NUL in an integer", QByteArray("1\0b", 3), "#1");
        row("NUL alone", QByteArray("(a \0 b)", 7), "(a  b)");
        row("NUL in a string", QByteArray("\"a\0b\" c", 7), "\"a\"\nc");
        row("bytes beyond ASCII", "\xC3\xA9 \"\xC3\xA9\"", "\xC3\xA9\n\"\xC3\xA9\"");
    }

    void objectsOfAText()
    {
        QFETCH(QByteArray, text);
        QTEST(readAll(text).join('\n'), "objects");
    }

    void escapesInAString_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("objects");
        const auto row = [](const char* name, const char* text, const char* objects)
        { QTest::newRow(name) << QByteArray(text) << objects; };
        row("quotes", "\"say \\\"a\\\"\" b", "\"say \"a\"\"\nb");
        row("itself", "\"a\\\\\" b", "\"a\\\"\nb");
        row("line ends", "\"a\\r\\nb\\tc\"", "\"a\r\nb\tc\"");
        row("others", "\"\\a\\(\\ \\1\"", "\"a( 1\"");
        row("line end behind the escape", "\"a\\\nb\"", "\"a\nb\"");
        row("outside a string", "a\\b \\n", "a\\b\n\\n");
        row("at the end of the input", "\"a\\", "\"a\"");
        row("of the last quotes", "\"a\\\"", "\"a\"\"");
    }

    void escapesInAString()
    {
        QFETCH(QByteArray, text);
        const DtMtlBackslashEscapes escapes;
        QTEST(readAll(text).join('\n'), "objects");
    }

    void escapeCharacterIsWhatThePointerSays()
    {
        char percent = '%';
        DtMtlReadEscapeChar = &percent;
        QCOMPARE(readAll("\"a%\"\\\"").join('\n'), QString("\"a\"\\\""));
    }

    void escapeCharacterIsSetForAScope()
    {
        {
            const DtMtlBackslashEscapes escapes;
            QCOMPARE(*DtMtlReadEscapeChar, '\\');
        }
        QVERIFY(DtMtlReadEscapeChar == nullptr);
    }

    void symbolsOfOneReadingAreUnique()
    {
        const DtMtlEnvironment environment;
        DtTextInputStream stream("(a a) a");
        const DtlObjPtr list = DtcRead(&stream, environment.env());
        QVERIFY(DtcEq(DtcCar(list), DtcCadr(list)));
        QVERIFY(DtcEq(DtcCar(list), DtcRead(&stream, environment.env())));
        QVERIFY(DtcEq(DtcCar(list), DtcIntern("a", environment.env())));
    }

    void endStaysTheEnd()
    {
        const DtMtlEnvironment environment;
        DtTextInputStream stream("a");
        DtcRead(&stream, environment.env());
        for (int time = 0; time < 3; ++time)
            QVERIFY(DtcEq(DtcRead(&stream, environment.env()), DtcIntern("eof", environment.env())));
    }

    void earlyEndIsTold_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isEarly");
        QTest::newRow("whole") << QByteArray("(a) \"b\" c ; (") << false;
        QTest::newRow("list") << QByteArray("(a)(") << true;
        QTest::newRow("string") << QByteArray("(a)\"") << true;
        QTest::newRow("surplus") << QByteArray("(a))") << false;
    }

    void earlyEndIsTold()
    {
        QFETCH(QByteArray, text);
        const DtMtlEnvironment environment;
        DtTextInputStream stream(text);
        const DtlObjPtr end = DtcIntern("eof", environment.env());
        QVERIFY(!stream.hasEndedEarly());
        while (!DtcEq(DtcRead(&stream, environment.env()), end))
            ;
        QTEST(stream.hasEndedEarly(), "isEarly");
    }

    void fileStreamReadsFromThePositionAndLeavesTheFileOpen()
    {
        QTemporaryDir directory;
        const QString name = directory.filePath("f");
        writeTextFile(name, "skip(a \xFF)");
        FILE* file = std::fopen(name.toUtf8().constData(), "r");
        std::fseek(file, 4, SEEK_SET);
        {
            const DtMtlEnvironment environment;
            const std::unique_ptr<DtlInputStream> stream = std::make_unique<DtlFileInputStream>(file);
            const DtlObjPtr list = DtcRead(stream.get(), environment.env());
            COMPARE_TEXT(DtcCar(list)->string(), "a");
            COMPARE_TEXT(DtcCadr(list)->string(), "\xFF"); // not taken for the end
        }
        QCOMPARE(std::fclose(file), 0);
    }

    void fileStreamWithoutAFileIsEmpty()
    {
        const DtMtlEnvironment environment;
        DtlFileInputStream none(nullptr);
        QVERIFY(DtcEq(DtcRead(&none, environment.env()), DtcIntern("eof", environment.env())));
    }

    void unreadableFileEnds()
    {
        FILE* file = std::fopen("/", "r");
        QVERIFY(file != nullptr);
        const DtMtlEnvironment environment;
        DtlFileInputStream stream(file);
        QVERIFY(DtcEq(DtcRead(&stream, environment.env()), DtcIntern("eof", environment.env())));
        std::fclose(file);
    }

    void largeInputsAreReadInProportionalTime_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("length"); // of the object read
        const int count = 1000000;
        QTest::newRow("open parentheses") << QByteArray(count, '(') << 1;
        QTest::newRow("balanced parentheses") << QByteArray(count, '(') + QByteArray(count, ')') << 1;
        QTest::newRow("closing parentheses") << QByteArray(count, ')') + "(a b)" << 2;
        QTest::newRow("integers") << "(" + QByteArray("1 ").repeated(count) + ")" << count;
        QTest::newRow("one symbol") << "(" + QByteArray("a ").repeated(count) + ")" << count;
        QTest::newRow("empty lists") << "(" + QByteArray("()").repeated(count) + ")" << count;
        QTest::newRow("one long symbol") << "(a " + QByteArray(10 * count, 'x') + ")" << 2;
        QTest::newRow("string without an end") << "(a \"" + QByteArray(10 * count, 'x') << 2;
        QTest::newRow("escapes without an end") << "(a \"" + QByteArray(10 * count, '\\') << 2;
        QTest::newRow("comment without an end") << "(a b ;" + QByteArray(10 * count, 'x') << 2;
        QTest::newRow("NUL bytes") << "(a \"" + QByteArray(10 * count, '\0') + "\")" << 2;
        QByteArray symbols;
        for (int each = 0; each < count / 5; ++each)
            symbols += "s" + QByteArray::number(each) + ' ';
        QTest::newRow("different symbols") << "(" + symbols + ")" << count / 5;
    }

    void largeInputsAreReadInProportionalTime()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, length);
        QElapsedTimer timer;
        timer.start();
        {
            const DtMtlEnvironment environment;
            const DtMtlBackslashEscapes escapes;
            DtTextInputStream stream(text);
            const DtlObjPtr object = DtcRead(&stream, environment.env());
            QCOMPARE(lengthOf(object), length);
            QVERIFY(DtcEqual(object, object));
        }
        QVERIFY2(timer.elapsed() < theTimeLimit, qPrintable(QString::number(timer.elapsed())));
    }

    void scannerKeepsNoMoreOfATokenThanItsLimit()
    {
        DtTextInputStream stream("abcdef \"ghijkl\" mn");
        DtMtlScanner scanner(stream, nullptr, 3);
        QVERIFY(scanner.next() == DtMtlToken::Word);
        COMPARE_TEXT(scanner.text(), "abc");
        QVERIFY(scanner.next() == DtMtlToken::Text);
        COMPARE_TEXT(scanner.text(), "ghi");
        QVERIFY(scanner.next() == DtMtlToken::Word);
        COMPARE_TEXT(scanner.text(), "mn");
        QVERIFY(scanner.next() == DtMtlToken::End);
        COMPARE_TEXT(scanner.text(), "");
    }
};

QX_REGISTER_TEST(TestMtlReader)
#include "testMtlReader.moc"
