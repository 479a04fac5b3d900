#include "modelText.h"
#include "omtReader/fedReader.h"
#include "omtReader/modelFormat.h"
#include "omtReader/xmlFedReader.h"
#include "omtReader/xmlFileReader.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace
{
const char* const theNamespaces[] = {"", " xmlns='http://standards.ieee.org/IEEE1516-2010'",
                                     " xmlns='http://standards.ieee.org/IEEE1516-2025'", " xmlns='urn:x'"};

QByteArray document(const QByteArray& rootAttributes, const QByteArray& sections)
{
    return "<objectModel" + rootAttributes + ">" + sections + "</objectModel>";
}

// Format of a file with the text, and what is warned of.
DtFomType formatOfText(const QByteArray& text, QString* warning = nullptr, bool reportFailure = true)
{
    QTemporaryDir directory;
    const QByteArray name = directory.filePath("m.xml").toUtf8();
    writeTextFile(name, text);
    DtCapture capture(DtWarn);
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(name.constData(), "r"), std::fclose);
    const DtFomType format = DtFormatOfFile(file.get(), "m.xml", reportFailure);
    if (warning != nullptr)
        *warning = capture.text();
    return format;
}
} // namespace

// The rules of each format have their rows in TestFedReader; here is what holds whichever way the question comes in.
class TestModelFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatOfAFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("format");
        const auto row = [](const char* name, const QByteArray& text, DtFomType format)
        { QTest::newRow(name) << text << int(format); };
        row("namespace of 2010", document(theNamespaces[1], ""), DtFomEvolved);
        row("namespace of 2025", document(theNamespaces[2], ""), DtFomHla4);
        row("namespace of nobody", document(theNamespaces[3], ""), DtFom1516);
        row("no namespace", document("", ""), DtFom1516);
        row("no namespace, later form", document("", "<updateRates/>"), DtFomEvolved);
        row("DTDversion", document(" DTDversion='1516.2'", ""), DtFom1516);
        row("DTDversion beside a namespace", document(theNamespaces[1] + QByteArray(" DTDversion='1516.2'"), ""),
            DtFomEvolved);
        row("text format", "(ObjectModel)", DtFomOmt13);
        row("text format with XML in it", "(ObjectModel (Name \"<objectModel/>\"))", DtFomOmt13);
        row("no model", "<other/>", DtFomUnknown);
        row("no XML", "hello", DtFomUnknown);
        row("bytes", QByteArray("\0\1\2\3", 4), DtFomUnknown);
        row("empty", "", DtFomUnknown);
    }

    void formatOfAFile()
    {
        QFETCH(QByteArray, text);
        QTEST(int(formatOfText(text)), "format");
    }

    void fileAndParsedDocumentAgree()
    {
        const char* const sections[] = {
            "",
            "<updateRates/>",
            "<transportations><transportation><reliable/></transportation></transportations>",
            "<objects><objectClass><name>HLAobjectRoot</name></objectClass></objects>",
            ("<objects/><interactions><interactionClass><name>HLAinteractionRoot</name></interactionClass>"
             "</interactions>"),
            "<interactions><interactionClass><name>HLAinteractionRoot</name></interactionClass></interactions>"};
        for (const char* space : theNamespaces)
            for (const char* section : sections)
            {
                const QByteArray text = document(space, section);
                const DtXmlDocument parsed = DtParseXmlBuffer(text.constData(), text.size());
                xmlNode* root = xmlDocGetRootElement(parsed.get());
                const DtFomType format = formatOfText(text);
                QVERIFY2(DtFormatOfRoot(root) == format, text.constData());
                QVERIFY2(DtXmlFedReader::fomType(root) == format, text.constData());
                if (format != DtFomHla4) // which the namespace tells alone
                    QVERIFY2(DtXMLFileReader::isEvolvedFormat(root) == (format == DtFomEvolved), text.constData());
            }
    }

    void noRootHasNoFormat() { QCOMPARE(int(DtFormatOfRoot(nullptr)), int(DtFomUnknown)); }

    void fileThatCannotBeReadHasNoFormat()
    {
        const DtWithEnvironment environment("RTI_CONFIG", nullptr);
        QTemporaryDir directory;
        DtCapture capture(DtWarn);
        QCOMPARE(int(DtFedReader::checkFomType(directory.filePath("none.xml").toUtf8())), int(DtFomUnknown));
        QCOMPARE(int(DtFedReader::checkFomType(directory.path().toUtf8())), int(DtFomUnknown));
        const std::unique_ptr<FILE, int (*)(FILE*)> unreadable(std::fopen("/", "r"), std::fclose);
        QVERIFY(unreadable != nullptr);
        QCOMPARE(int(DtFormatOfFile(unreadable.get(), "/", false)), int(DtFomUnknown));
        QCOMPARE(capture.text(), QString());
    }

    // The file is read in pieces; a piece that ends within a tag is not the end of the document.
    void rootElementLongerThanOnePieceIsRead()
    {
        for (const int length : {100, 500, 520, 5000, 100000})
        {
            const QByteArray filler = "<!--" + QByteArray(length, 'x') + "-->";
            QCOMPARE(int(formatOfText(filler + document("", filler + "<updateRates/>" + filler))), int(DtFomEvolved));
            QCOMPARE(int(formatOfText(document(" name='" + QByteArray(length, 'x') + "'", ""))), int(DtFom1516));
        }
    }

    void cutOffDocumentIsNamedAsWhatItIs_data()
    {
        QTest::addColumn<int>("length");
        QTest::newRow("in the first piece") << 1;
        QTest::newRow("in a later one") << 100000;
    }

    void cutOffDocumentIsNamedAsWhatItIs()
    {
        QFETCH(int, length);
        const QByteArray text = "<objectModel>\n<a>" + QByteArray(length, 'x');
        QString warning;
        QCOMPARE(int(formatOfText(text, &warning)), int(DtFomUnknown));
        QCOMPARE(warning, QString("m.xml:2: Premature end of data in tag a line 2\n"));
        formatOfText(text, &warning, false);
        QCOMPARE(warning, QString());
    }

    void documentThatGoesOnBehindItsRootHasNoFormat()
    {
        for (const char* end : {"junk", "<b/>", "<!--", "<?x"})
            QCOMPARE(int(formatOfText(document("", "<updateRates/>") + end)), int(DtFomUnknown));
        for (const char* end : {"\n", "<!-- x -->", "<?x?>"})
            QCOMPARE(int(formatOfText(document("", "<updateRates/>") + end)), int(DtFomEvolved));
    }
};

QX_REGISTER_TEST(TestModelFormat)
#include "testModelFormat.moc"
