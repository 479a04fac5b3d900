#include "foundation/stringUtils.h"
#include "foundationTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestStringUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replacesTheFirstOccurrenceOnly();
    void replacesEveryOccurrence();
    void replacementMayHoldWhatIsSearched();
    void emptySearchTextChangesNothing();
    void findsParts();
    void changesTheFirstCharacter();
    void lowersConditionally_data();
    void lowersConditionally();
    void splitKeepsEmptyPieces();
    void splitDropsEmptyPieces();
    void characterHelpersAreAscii();
};

void TestStringUtils::replacesTheFirstOccurrenceOnly()
{
    COMPARE_TEXT(DtReplaceSubstring("a-b-c", "-", "+"), "a+b-c");
    COMPARE_TEXT(DtReplaceSubstring("abc", "x", "y"), "abc");
    COMPARE_TEXT(DtReplaceSubstring("abc", "abc", ""), "");
}

void TestStringUtils::replacesEveryOccurrence()
{
    COMPARE_TEXT(DtReplaceAllSubstrings("a-b-c-", "-", "+"), "a+b+c+");
    COMPARE_TEXT(DtReplaceAllSubstrings("aaaa", "aa", "b"), "bb");
    COMPARE_TEXT(DtReplaceAllSubstrings("abc", "x", "y"), "abc");
    COMPARE_TEXT(DtReplaceAllSubstrings("a.b", ".", ""), "ab");
}

void TestStringUtils::replacementMayHoldWhatIsSearched()
{
    COMPARE_TEXT(DtReplaceAllSubstrings("a.b.c", ".", "..."), "a...b...c");
    COMPARE_TEXT(DtReplaceSubstring("a.b", ".", ".."), "a..b");
}

void TestStringUtils::emptySearchTextChangesNothing()
{
    COMPARE_TEXT(DtReplaceSubstring("abc", "", "x"), "abc");
    COMPARE_TEXT(DtReplaceAllSubstrings("abc", "", "x"), "abc");
}

void TestStringUtils::findsParts()
{
    QVERIFY(DtContainsSubstring("abc", "bc"));
    QVERIFY(DtContainsSubstring("abc", ""));
    QVERIFY(!DtContainsSubstring("abc", "ac"));
    QVERIFY(!DtContainsSubstring("", "a"));
}

void TestStringUtils::changesTheFirstCharacter()
{
    COMPARE_TEXT(DtFirstCharToUpper("entityType"), "EntityType");
    COMPARE_TEXT(DtFirstCharToLower("EntityType"), "entityType");
    COMPARE_TEXT(DtFirstCharToLower("HLAname"), "hLAname");
    COMPARE_TEXT(DtFirstCharToUpper(""), "");
    COMPARE_TEXT(DtFirstCharToLower(""), "");
    COMPARE_TEXT(DtFirstCharToUpper("9a"), "9a");
}

void TestStringUtils::lowersConditionally_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("Entity") << QByteArray("entity");
    QTest::newRow("HLAname") << QByteArray("HLAname");
    QTest::newRow("ID") << QByteArray("ID");
    QTest::newRow("X") << QByteArray("x");
    QTest::newRow("X1") << QByteArray("x1");
    QTest::newRow("E_Type") << QByteArray("e_Type");
    QTest::newRow("already") << QByteArray("already");
    QTest::newRow("aB") << QByteArray("aB");
    QTest::newRow("") << QByteArray("");
}

void TestStringUtils::lowersConditionally()
{
    QTEST(QByteArray(DtFirstCharToLowerConditional(QTest::currentDataTag()).c_str()), "expected");
}

namespace
{
QByteArray joined(const std::vector<DtString>& pieces)
{
    QByteArray result;
    for (const DtString& piece : pieces)
        result += QByteArray("[") + piece.c_str() + "]";
    return result;
}
} // namespace

void TestStringUtils::splitKeepsEmptyPieces()
{
    QCOMPARE(joined(DtSplit("a=b==c", '=')), QByteArray("[a][b][][c]"));
    QCOMPARE(joined(DtSplit("|a|", '|', DtEmptyPieces::Keep)), QByteArray("[][a][]"));
    QCOMPARE(joined(DtSplit("", '|')), QByteArray("[]"));
}

void TestStringUtils::splitDropsEmptyPieces()
{
    QCOMPARE(joined(DtSplit("  a  b ", ' ', DtEmptyPieces::Drop)), QByteArray("[a][b]"));
    QCOMPARE(joined(DtSplit("", ' ', DtEmptyPieces::Drop)), QByteArray(""));
    QCOMPARE(joined(DtSplit("   ", ' ', DtEmptyPieces::Drop)), QByteArray(""));
}

void TestStringUtils::characterHelpersAreAscii()
{
    int spaces = 0, digits = 0, changed = 0;
    for (int code = 0; code < 256; ++code)
    {
        const char character = static_cast<char>(code);
        spaces += DtIsSpace(character) ? 1 : 0;
        digits += DtIsDigit(character) ? 1 : 0;
        changed += DtToUpper(character) != character || DtToLower(character) != character ? 1 : 0;
    }
    QCOMPARE(spaces, 6);
    QCOMPARE(digits, 10);
    QCOMPARE(changed, 52);
}

QX_REGISTER_TEST(TestStringUtils)
#include "testStringUtils.moc"
