// What the settings take for names that go into the generated code.

#include "registerTest.h"

#include "codeGenApp/nameRules.h"

class TestNameRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesFitOrNot_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("fitsPrefix");
        QTest::addColumn<bool>("fitsNamespace");
        for (const char* text : {"", "port", "Port", "_", "_a1", "x9"})
            QTest::addRow("identifier '%s'", text) << QByteArray(text) << true << true;
        for (const char* text : {"class", "namespace", "int"})
            QTest::addRow("keyword '%s'", text) << QByteArray(text) << true << false;
        for (const char* text : {"1a", "9", "a b", "a-b", "a::b", "\xc3\xa4", "a\n", " "})
            QTest::addRow("other '%s'", text) << QByteArray(text) << false << false;
    }
    void namesFitOrNot()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, fitsPrefix);
        QFETCH(bool, fitsNamespace);
        QCOMPARE(DtFitsPrefix(text.constData()), fitsPrefix);
        QCOMPARE(DtFitsNamespace(text.constData()), fitsNamespace);
    }
};

QX_REGISTER_TEST(TestNameRules)
#include "testNameRules.moc"
