#include "foundation/foundationTest.h"
#include "modelTools/outputPath.h"
#include "registerTest.h"

#include <QtTest/QtTest>

class TestOutputPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pathsThatStayInsideAreInner()
    {
        for (const char* path : {"a", "a/b.h", "..a", "a..", "a/...", ".hidden", " ", "a\\b", "\xff", "C:"})
            QVERIFY2(DtIsInnerPath(path), path);
    }

    void pathsThatLeaveOrNameNothingAreNotInner()
    {
        for (const char* path : {"", "/", "/a", "a/", "a//b", ".", "..", "../x", "a/../b", "a/..", "./a", "a/."})
            QVERIFY2(!DtIsInnerPath(path), path);
        QVERIFY(!DtIsInnerPath(std::string("a\0b", 3)));
    }

    void ownNamesAreReservedAtTheTopOnly()
    {
        QVERIFY(DtIsReservedPath(".qxgen-manifest.json"));
        QVERIFY(DtIsReservedPath(".qxgen-x/y"));
        QVERIFY(!DtIsReservedPath("a/.qxgen-lock"));
        QVERIFY(!DtIsReservedPath("qxgen-a"));
    }

    void pathsComeBackFromTheirEncoding_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("encoded");
        QTest::newRow("plain") << QByteArray("a/b c.h") << QByteArray("a/b c.h");
        QTest::newRow("quotes") << QByteArray("\"'`\\\n") << QByteArray("\"'`\\\n");
        QTest::newRow("percent") << QByteArray("100%25") << QByteArray("100%2525");
        QTest::newRow("UTF-8") << QByteArray("K\xc3\xb6ln/\xf0\x9f\x9a\xa2")
                               << QByteArray("K\xc3\xb6ln/\xf0\x9f\x9a\xa2");
        QTest::newRow("Latin-1") << QByteArray("K\xf6ln") << QByteArray("K%F6ln");
        QTest::newRow("both") << QByteArray("\xc3\xb6/\xf6") << QByteArray("%C3%B6/%F6");
        QTest::newRow("overlong") << QByteArray("\xc0\xaf") << QByteArray("%C0%AF");
        QTest::newRow("surrogate") << QByteArray("\xed\xa0\x80") << QByteArray("%ED%A0%80");
        QTest::newRow("cut off") << QByteArray("\xe2\x82") << QByteArray("%E2%82");
    }

    void pathsComeBackFromTheirEncoding()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, encoded);
        COMPARE_TEXT(DtEncodedPath(path.toStdString()), encoded);
        COMPARE_TEXT(DtDecodedPath(encoded.toStdString()), path);
    }

    void foreignEncodingsDecodeToNothing()
    {
        for (const char* text : {"%", "%2", "a%4", "%ZZ", "%2f", "%41", "%2E%2E/x", "%c3%b6", "%C3%B6"})
            QVERIFY2(DtDecodedPath(text).empty(), text);
    }
};

QX_REGISTER_TEST(TestOutputPath)
#include "testOutputPath.moc"
