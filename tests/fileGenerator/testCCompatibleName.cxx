#include "fileGenerator/cCompatibleName.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

namespace
{

QString made(const QString& name)
{
    return QString::fromUtf8(DtCCompatibleNames().MakeCCompatibleString(name.toUtf8().constData()).c_str());
}

QString made(DtCCompatibleNames& names, const QString& name)
{
    return QString::fromUtf8(names.MakeCCompatibleString(name.toUtf8().constData()).c_str());
}

} // namespace

class TestCCompatibleName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void specialCharactersBecomeUnderscores_data();
    void specialCharactersBecomeUnderscores();
    void tableWordsGetAnUnderscore();
    void otherWordsStay();
    void tableWordIsTestedBehindTheReplacement();
    void hundredCharactersAreNotLong();
    void longNameIsCutAndNumbered();
    void sameLongNameKeepsItsNumberInAnyCase();
    void nextLongNameGetsTheNextNumber();
    void lengthCountsBehindTheReplacement();
    void prefixedLongNameFollowsTheBareOne();
    void bareLongNameDoesNotFollowThePrefixedOne();
    void objectsNumberIndependently();
    void copiesNumberIndependentlyFromThereOn();
    void keywordsOfCPlusPlus();
    void keywordTestIsExact();
};

void TestCCompatibleName::specialCharactersBecomeUnderscores_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* tag;
        QString name, expected;
    } theRows[] = {
        {"plain",           "Plain9_",    "Plain9_"         },
        {"empty",           "",           ""                },
        {"slash and point", "a/b.c",      "a__b__c"         },
        {"hash",            "a#b",        "a__b"            },
        {"ampersand",       "a&b",        "a__b"            },
        {"hyphen",          "a-b",        "a__b"            },
        {"blank",           "a b",        "a__b"            },
        {"angle brackets",  "a<b>",       "a_b_"            },
        {"parentheses",     "a(b)",       "a_b_"            },
        {"all",             "/#&-. ()<>", "________________"},
        {"others stay",     "a,b[1]:+",   "a,b[1]:+"        },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.expected;
}

void TestCCompatibleName::specialCharactersBecomeUnderscores()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(made(name), expected);
}

void TestCCompatibleName::tableWordsGetAnUnderscore()
{
    const QStringList words = QString("abstract as base break case catch checked class const continue decimal default "
                                      "delegate do else enum event explicit extern false finally fixed for foreach "
                                      "goto if implicit in interface internal is lock namespace new null object "
                                      "operator out override params private protected public readonly ref return "
                                      "sealed sizeof stackalloc static struct switch this throw true try typeof "
                                      "unchecked unsafe using virtual volatile while")
                                  .split(' ');
    QCOMPARE(words.size(), 63); // the 64th holds a blank
    for (const QString& word : words)
        QCOMPARE(made(word), "_" + word);
}

void TestCCompatibleName::otherWordsStay()
{
    for (const char* word : {"int", "void", "char", "delete", "template", "Class", "CLASS", "classes"})
        QCOMPARE(made(word), QString(word));
}

void TestCCompatibleName::tableWordIsTestedBehindTheReplacement()
{
    QCOMPARE(made("using static"), QString("using__static"));
}

void TestCCompatibleName::hundredCharactersAreNotLong()
{
    QCOMPARE(made(QString(100, 'a')), QString(100, 'a'));
}

void TestCCompatibleName::longNameIsCutAndNumbered()
{
    QCOMPARE(made(QString(101, 'a')), QString(50, 'a') + "0");
}

void TestCCompatibleName::sameLongNameKeepsItsNumberInAnyCase()
{
    DtCCompatibleNames names;
    const QString first = made(names, QString(101, 'a'));
    QCOMPARE(made(names, QString(101, 'a')), first);
    QCOMPARE(made(names, QString(101, 'A')), first);
}

void TestCCompatibleName::nextLongNameGetsTheNextNumber()
{
    DtCCompatibleNames names;
    for (int i = 0; i < 11; ++i)
        QCOMPARE(made(names, QString(101 + i, 'a')), QString(50, 'a') + QString::number(i));
}

void TestCCompatibleName::lengthCountsBehindTheReplacement()
{
    DtCCompatibleNames names;
    QCOMPARE(made(names, QString(51, '/')), QString(50, '_') + "0");
    QCOMPARE(made(names, QString(50, '.')), QString(100, '_'));
}

void TestCCompatibleName::prefixedLongNameFollowsTheBareOne()
{
    DtCCompatibleNames names;
    made(names, QString(150, 'x'));
    made(names, QString(120, 'a'));
    QCOMPARE(made(names, "Dt" + QString(120, 'A')), "DtA" + QString(49, 'a') + "1");
    QCOMPARE(made(names, QString(130, 'b')), QString(50, 'b') + "2"); // no number was used up
}

void TestCCompatibleName::bareLongNameDoesNotFollowThePrefixedOne()
{
    DtCCompatibleNames names;
    QCOMPARE(made(names, "Dt" + QString(120, 'a')), "Dt" + QString(48, 'a') + "0");
    QCOMPARE(made(names, QString(120, 'a')), QString(50, 'a') + "1");
    QCOMPARE(made(names, "Dt" + QString(120, 'a')), "Dt" + QString(48, 'a') + "0");
}

void TestCCompatibleName::objectsNumberIndependently()
{
    DtCCompatibleNames one;
    DtCCompatibleNames other;
    made(one, QString(200, 'z'));
    QCOMPARE(made(one, QString(101, 'a')), QString(50, 'a') + "1");
    QCOMPARE(made(other, QString(101, 'a')), QString(50, 'a') + "0");
}

void TestCCompatibleName::copiesNumberIndependentlyFromThereOn()
{
    DtCCompatibleNames one;
    made(one, QString(101, 'a'));
    DtCCompatibleNames other = one;
    QCOMPARE(made(other, QString(101, 'b')), QString(50, 'b') + "1");
    QCOMPARE(made(one, QString(101, 'c')), QString(50, 'c') + "1");
    QCOMPARE(made(one, QString(101, 'b')), QString(50, 'b') + "2");
    QCOMPARE(made(other, QString(101, 'c')), QString(50, 'c') + "2");
    for (DtCCompatibleNames* each : {&one, &other})
        QCOMPARE(made(*each, QString(101, 'a')), QString(50, 'a') + "0");
}

void TestCCompatibleName::keywordsOfCPlusPlus()
{
    const QStringList words =
        QString(
            "alignas alignof and and_eq asm auto bitand bool break case catch char char16_t char32_t class compl "
            "const constexpr const_cast continue decltype default delete do double dynamic_cast else enum explicit "
            "export extern false float for friend goto if inline int long mutable namespace new noexcept not not_eq "
            "nullptr operator or or_eq private protected public register reinterpret_cast return short signed "
            "sizeof static static_assert static_cast struct switch template this thread_local throw true try "
            "typedef typeid typename union unsigned using virtual void volatile wchar_t while xor xor_eq")
            .split(' ');
    for (const QString& word : words)
        QVERIFY2(isCPlusPlusKeyword(word.toUtf8().constData()), qPrintable(word));
}

void TestCCompatibleName::keywordTestIsExact()
{
    for (const char* word : {"", "bitor", "Class", "INT", "int ", "override", "final", "foreach", "classes"})
        QVERIFY2(!isCPlusPlusKeyword(word), word);
}

QX_REGISTER_TEST(TestCCompatibleName)
#include "testCCompatibleName.moc"
