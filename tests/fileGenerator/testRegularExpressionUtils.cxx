#include "registerTest.h"

#include "fileGenerator/regularExpressionUtils.h"

#include <QtTest/QtTest>

class TestRegularExpressionUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void patternMatchesAnywhere()
    {
        QVERIFY(DtRegularExpressionUtils::regExpMatch("b+c", "abbcd"));
        QVERIFY(!DtRegularExpressionUtils::regExpMatch("^b", "abbcd"));
    }
    void caseCounts() { QVERIFY(!DtRegularExpressionUtils::regExpMatch("ABC", "abc")); }
    void firstMatchIsReplaced()
    {
        QCOMPARE(DtRegularExpressionUtils::regExpReplace("[0-9]", "a1b2", "x").c_str(), "axb2");
    }
    void textWithoutMatchStays()
    {
        QCOMPARE(DtRegularExpressionUtils::regExpReplace("z", "a1b2", "x").c_str(), "a1b2");
        QCOMPARE(DtRegularExpressionUtils::regExpReplaceAll("z", "a1b2", "x").c_str(), "a1b2");
    }
    void everyMatchIsReplaced()
    {
        QCOMPARE(DtRegularExpressionUtils::regExpReplaceAll("[0-9]", "a1b2", "x").c_str(), "axbx");
    }
    void matchMadeByReplacementIsReplacedToo()
    {
        QCOMPARE(DtRegularExpressionUtils::regExpReplaceAll("aab", "aaab", "b").c_str(), "ab");
        QCOMPARE(DtRegularExpressionUtils::regExpReplaceAll("ab", "aabb", "").c_str(), "");
    }
    void replacementIsPlainText()
    {
        QCOMPARE(DtRegularExpressionUtils::regExpReplace("(b)", "abc", "\\1\\1").c_str(), "a\\1\\1c");
    }
    void fromFirstDotOnIsStem()
    {
        QCOMPARE(DtRegularExpressionUtils::regExpReplace("\\..*", "a.b.cxx", "").c_str(), "a");
    }
    void bytesBeyondAsciiSurvive()
    {
        QCOMPARE(DtRegularExpressionUtils::regExpReplace("b", "\xC3\xA9 b \xE9", "c").c_str(), "\xC3\xA9 c \xE9");
    }
};

QX_REGISTER_TEST(TestRegularExpressionUtils)
#include "testRegularExpressionUtils.moc"
