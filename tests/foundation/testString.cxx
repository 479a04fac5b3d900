#include "foundation/string.h"
#include "foundationTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <clocale>
#include <map>
#include <sstream>
#include <unordered_set>

class TestString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isMadeFromEveryKindOfValue();
    void nullPointerIsTheEmptyText();
    void givesItsTextInEveryForm();
    void isEmptyWhenTheFirstByteIsNul();
    void bytesCanBeChangedByIndex();
    void isAssignedAndAppended();
    void isAssignedFromAPartOfItself();
    void plusMakesANewText();
    void equalityIsExact();
    void orderIsByUnsignedBytes();
    void caseCompareIgnoresAsciiCaseOnly();
    void findsFirstAndLastOccurrence();
    void absentTextIsBeyondEveryIndex();
    void knowsItsPrefix();
    void snipsTheBack_data();
    void snipsTheBack();
    void snipsTheFront_data();
    void snipsTheFront();
    void chompsLeadingWhiteSpaceOnly();
    void caseChangesTouchAsciiOnly();
    void parsesNumbers_data();
    void parsesNumbers();
    void parsesUnsignedNumbers();
    void numbersDoNotDependOnTheLocale();
    void nullStringIsOneSharedEmptyText();
    void streamsWholeTextOutAndOneWordIn();
    void isAKeyOfHashedContainers();
};

void TestString::isMadeFromEveryKindOfValue()
{
    COMPARE_TEXT(DtString(), "");
    COMPARE_TEXT(DtString("abc"), "abc");
    COMPARE_TEXT(DtString('x'), "x");
    COMPARE_TEXT(DtString(-42), "-42");
    COMPARE_TEXT(DtString(4294967295u), "4294967295");
    COMPARE_TEXT(DtString(std::string("std")), "std");
    const DtString original("copied");
    COMPARE_TEXT(DtString(original), "copied");
}

void TestString::nullPointerIsTheEmptyText()
{
    const char* const null = nullptr;
    DtString text(null);
    QVERIFY(text.isEmpty());
    text += null;
    QVERIFY(text == null);
    text = "x";
    text = null;
    QCOMPARE(text.length(), 0u);
}

void TestString::givesItsTextInEveryForm()
{
    const DtString text("abc");
    COMPARE_TEXT(text, "abc");
    QCOMPARE(text.string(), "abc");
    QCOMPARE(static_cast<const char*>(text), "abc");
    QCOMPARE(text.stdString(), std::string("abc"));
    QCOMPARE(text.length(), 3u);
    QCOMPARE(text.size(), 3u);
    QCOMPARE(DtString("\xc3\xa4").length(), 2u); // bytes, not letters
}

void TestString::isEmptyWhenTheFirstByteIsNul()
{
    QVERIFY(DtString("").isEmpty());
    QVERIFY(!DtString(" ").isEmpty());
    const DtString startsWithNul(std::string("\0abc", 4));
    QVERIFY(startsWithNul.isEmpty());
    QCOMPARE(startsWithNul.length(), 4u);
}

void TestString::bytesCanBeChangedByIndex()
{
    DtString text("abc");
    text[0] = 'x';
    text[2u] = 'z';
    COMPARE_TEXT(text, "xbz");
    const DtString& fixed = text;
    QCOMPARE(fixed[1], 'b');
    QCOMPARE(fixed[3], '\0');
}

void TestString::isAssignedAndAppended()
{
    DtString text("a");
    text = DtString("b");
    text += DtString("c");
    text += "d";
    text += 'e';
    COMPARE_TEXT(text, "bcde");
    text = "new";
    COMPARE_TEXT(text, "new");
}

void TestString::isAssignedFromAPartOfItself()
{
    DtString text("0123456789012345678901234567890123456789");
    text = text.c_str() + 30;
    COMPARE_TEXT(text, "0123456789");
    text += text;
    COMPARE_TEXT(text, "01234567890123456789");
    text += text.c_str() + 18;
    COMPARE_TEXT(text, "0123456789012345678989");
}

void TestString::plusMakesANewText()
{
    const DtString left("l"), right("r");
    COMPARE_TEXT(left + "x", "lx");
    COMPARE_TEXT("x" + right, "xr");
    COMPARE_TEXT(left + right, "lr");
    COMPARE_TEXT(left + 'c', "lc");
    COMPARE_TEXT(left, "l");
}

void TestString::equalityIsExact()
{
    QVERIFY(DtString("abc") == DtString("abc"));
    QVERIFY(DtString("abc") == "abc");
    QVERIFY("abc" == DtString("abc"));
    QVERIFY(DtString("abc") != DtString("Abc"));
    QVERIFY(DtString("abc") != "abcd");
    QVERIFY("ab" != DtString("abc"));
    QVERIFY(!(DtString("abc") != "abc"));
}

void TestString::orderIsByUnsignedBytes()
{
    QVERIFY(DtString("B") < DtString("a"));
    QVERIFY(DtString("ab") < DtString("abc"));
    QVERIFY(DtString("z") < DtString("\xc3\xa4"));
    QVERIFY(!(DtString("a") < DtString("a")));
    std::map<DtString, int> map{
        {"b",  1},
        {"_",  2},
        {"A",  3},
        {"10", 4},
        {"9",  5}
    };
    DtString keys;
    for (const auto& [key, value] : map)
        keys += key + ",";
    COMPARE_TEXT(keys, "10,9,A,_,b,");
}

void TestString::caseCompareIgnoresAsciiCaseOnly()
{
    QVERIFY(DtString("TRUE").caseCompare("true"));
    QVERIFY(DtString("True").caseCompare("true"));
    QVERIFY(!DtString("True ").caseCompare("true"));
    QVERIFY(!DtString("tru").caseCompare("true"));
    QVERIFY(!DtString("\xc4").caseCompare("\xe4"));
    QVERIFY(DtString().caseCompare(nullptr));
}

void TestString::findsFirstAndLastOccurrence()
{
    const DtString text("abcabc");
    QCOMPARE(text.findString("bc"), 1u);
    QCOMPARE(text.findLastString("bc"), 4u);
}

void TestString::absentTextIsBeyondEveryIndex()
{
    const DtString text("abc");
    QCOMPARE(text.findString("x"), ~0u);
    QCOMPARE(text.findLastString("x"), ~0u);
    QVERIFY(text.findString("abcd") > text.length());
}

void TestString::knowsItsPrefix()
{
    QVERIFY(DtString("abc").startsWith("ab"));
    QVERIFY(DtString("abc").startsWith(""));
    QVERIFY(!DtString("abc").startsWith("abcd"));
    QVERIFY(!DtString("abc").startsWith("b"));
}

void TestString::snipsTheBack_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("toFirst");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("from the last") << QByteArray("a.b.c") << false << QByteArray("a.b");
    QTest::newRow("from the first") << QByteArray("a.b.c") << true << QByteArray("a");
    QTest::newRow("absent") << QByteArray("abc") << false << QByteArray("abc");
    QTest::newRow("absent, first") << QByteArray("abc") << true << QByteArray("abc");
    QTest::newRow("at the start") << QByteArray(".abc") << false << QByteArray("");
    QTest::newRow("empty") << QByteArray("") << false << QByteArray("");
}

void TestString::snipsTheBack()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, toFirst);
    DtString snipped(text.constData());
    snipped.snipBack('.', toFirst);
    QTEST(QByteArray(snipped.c_str()), "expected");
    if (!toFirst)
        return;
    DtString again(text.constData());
    again.snipBackToFirst('.');
    QTEST(QByteArray(again.c_str()), "expected");
}

void TestString::snipsTheFront_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<char>("character");
    QTest::addColumn<bool>("toLast");
    QTest::addColumn<QByteArray>("expected");
    const struct
    {
        const char* name;
        QByteArray text;
        char character;
        bool toLast;
        QByteArray expected;
    } theRows[] = {
        {"prefix of a class",                        "DtFoo",  't', false, "Foo"},
        {"no such letter",                           "Foo",    't', false, "Foo"},
        {"through the first letter, whatever it is", "Entity", 't', false, "ity"},
        {"to the last",                              "a.b.c",  '.', true,  "c"  },
        {"absent, last",                             "abc",    '.', true,  "abc"},
        {"at the end",                               "abc.",   '.', false, ""   },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.text << row.character << row.toLast << row.expected;
}

void TestString::snipsTheFront()
{
    QFETCH(QByteArray, text);
    QFETCH(char, character);
    QFETCH(bool, toLast);
    DtString snipped(text.constData());
    snipped.snipFront(character, toLast);
    QTEST(QByteArray(snipped.c_str()), "expected");
    if (!toLast)
        return;
    DtString again(text.constData());
    again.snipFrontToLast(character);
    QTEST(QByteArray(again.c_str()), "expected");
}

void TestString::chompsLeadingWhiteSpaceOnly()
{
    DtString text(" \t\r\n\v\f a b ");
    text.chompFront();
    COMPARE_TEXT(text, "a b ");
    DtString blank(" \t");
    blank.chompFront();
    QVERIFY(blank.isEmpty());
}

void TestString::caseChangesTouchAsciiOnly()
{
    DtString text("aZ9_\xc3\xa4");
    text.toUpper();
    COMPARE_TEXT(text, "AZ9_\xc3\xa4");
    text.toLower();
    COMPARE_TEXT(text, "az9_\xc3\xa4");
}

void TestString::parsesNumbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("ok");
    QTest::newRow("plain") << QByteArray("42") << 42 << true;
    QTest::newRow("negative") << QByteArray("-7") << -7 << true;
    QTest::newRow("plus") << QByteArray("+7") << 7 << true;
    QTest::newRow("leading blanks") << QByteArray("  12") << 12 << true;
    QTest::newRow("leading zeros are decimal") << QByteArray("010") << 10 << true;
    QTest::newRow("tail") << QByteArray("12abc") << 12 << false;
    QTest::newRow("hexadecimal stops at the x") << QByteArray("0x10") << 0 << false;
    QTest::newRow("no digits") << QByteArray("abc") << 0 << false;
    QTest::newRow("two signs") << QByteArray("+-5") << 0 << false;
    QTest::newRow("empty") << QByteArray("") << 0 << false;
    QTest::newRow("too large") << QByteArray("99999999999") << 2147483647 << false;
    QTest::newRow("too small") << QByteArray("-99999999999") << -2147483647 - 1 << false;
}

void TestString::parsesNumbers()
{
    QFETCH(QByteArray, text);
    bool ok = false;
    QTEST(DtString(text.constData()).toInt(&ok), "number");
    QTEST(ok, "ok");
    QTEST(DtString(text.constData()).toInt(), "number");
}

void TestString::parsesUnsignedNumbers()
{
    bool ok = false;
    QCOMPARE(DtString("4294967295").toUInt(&ok), 4294967295u);
    QVERIFY(ok);
    QCOMPARE(DtString("4294967296").toUInt(&ok), 4294967295u);
    QVERIFY(!ok);
    QCOMPARE(DtString("-1").toUInt(&ok), 0u);
    QVERIFY(!ok);
    QCOMPARE(DtString("7").toUInt(nullptr), 7u);
}

void TestString::numbersDoNotDependOnTheLocale()
{
    const std::string saved = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "C.UTF-8", "C"})
    {
        std::setlocale(LC_ALL, name); // a missing one leaves the last
        COMPARE_TEXT(DtString(1234567), "1234567");
        QCOMPARE(DtString("1234567").toInt(), 1234567);
    }
    std::setlocale(LC_ALL, saved.c_str());
}

void TestString::nullStringIsOneSharedEmptyText()
{
    QVERIFY(DtString::nullString().isEmpty());
    QVERIFY(&DtString::nullString() == &DtString::nullString());
}

void TestString::streamsWholeTextOutAndOneWordIn()
{
    std::ostringstream out;
    out << DtString("two words") << '|' << DtString();
    QCOMPARE(out.str(), std::string("two words|"));
    std::istringstream in("  first second\n");
    DtString word;
    in >> word;
    COMPARE_TEXT(word, "first");
    in >> word;
    COMPARE_TEXT(word, "second");
    QVERIFY(!(in >> word));
}

void TestString::isAKeyOfHashedContainers()
{
    const std::unordered_set<DtString> set{"a", "b", "a"};
    QCOMPARE(set.size(), std::size_t(2));
    QVERIFY(set.count("b") == 1);
}

QX_REGISTER_TEST(TestString)
#include "testString.moc"
