#include "modelTools/leftoverTokens.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtTest/QtTest>

class TestLeftoverTokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstTokenIsFound_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* text, const char* expected)
        { QTest::newRow(text) << QByteArray(text) << QByteArray(expected); };
        row("", "");
        row("no token", "");
        row("<!ClassName!>", "<!ClassName!>");
        row("class Dt<!Class_2!>;\n<!Other!>", "<!Class_2!>");
        row("<<!Name!>", "<!Name!>");
        row("<!<!Name!>", "<!Name!>");
        row("<!!><!Name!>", "<!Name!>");
        row("<!DOCTYPE html>", "");
        row("<!-- comment -->", "");
        row("<!Name!", "");
        row("<!Name", "");
        row("<!", "");
        row("<! Name !>", "");
        row("a <!b and c!> d", "");
    }
    void firstTokenIsFound()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, expected);
        COMPARE_TEXT(DtLeftoverTokens({}).find(text.constData()), expected);
    }

    void tokenThatStandsInAModelIsNone()
    {
        const std::string omt = (myFolder.path() / "a.omt").native();
        const std::string xml = (myFolder.path() / "b.xml").native();
        writeBytes(omt, "(Note \"<!OfOmt!>\")");
        writeBytes(xml, "<semantics>&lt;!OfXml!></semantics><notes>&lt;!OfNote!&gt;</notes>");
        DtLeftoverTokens tokens({omt, xml});
        COMPARE_TEXT(tokens.find("<!OfOmt!> <!OfXml!> <!OfNote!>"), "");
        COMPARE_TEXT(tokens.find("<!OfXml!> <!Class!>"), "<!Class!>");
        COMPARE_TEXT(tokens.find("<!Of!>"), "<!Of!>");
    }

    void modelThatIsNotThereKnowsNoToken()
    {
        DtLeftoverTokens tokens({"", (myFolder.path() / "gone").native()});
        COMPARE_TEXT(tokens.find("<!Class!>"), "<!Class!>");
    }

private:
    DtTestFolder myFolder;
};

QX_REGISTER_TEST(TestLeftoverTokens)
#include "testLeftoverTokens.moc"
