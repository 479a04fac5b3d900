#include "modelText.h"
#include "omtReader/fedReader.h"
#include "omtReader/xmlFedReader.h"
#include "omtReader/xmlFileReader.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <sys/stat.h>

namespace
{
QByteArray plainModel(const QByteArray& sections)
{
    return "<objectModel>" + sections + "</objectModel>";
}
} // namespace

class TestFedReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeOfAModel_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("type");
        const auto row = [](const char* name, const QByteArray& text, int type)
        { QTest::newRow(name) << text << type; };
        row("2010 namespace", modelText(""), 3);
        row("2025 namespace", modelText("", "IEEE1516-2025"), 4);
        row("prefixed namespace", "<h:objectModel xmlns:h='http://standards.ieee.org/IEEE1516-2010'/>", 3);
        row("other root", "<model xmlns='http://standards.ieee.org/IEEE1516-2010'/>", 0);
        row("other namespace", "<objectModel xmlns='urn:x'/>", 2);
        row("nothing told", plainModel(""), 2);
        row("1516",
            "<!DOCTYPE objectModel SYSTEM 'hla.dtd'><objectModel DTDversion='1516.2'><objects><objectClass "
            "name='HLAobjectRoot'/></objects><transportations><transportation name='a'/></transportations>"
            "</objectModel>",
            2);
        row("reliable",
            plainModel("<transportations><transportation/><transportation><reliable/></transportation>"
                       "</transportations>"),
            3);
        row("transportation with text",
            plainModel("<transportations><transportation>a</transportation>"
                       "</transportations>"),
            3);
        row("transportation with a line end alone",
            plainModel("<transportations><transportation name='a'>\n  </transportation></transportations>"), 2);
        row("transportation with elements on lines of their own",
            plainModel("<transportations><transportation>\n<name>a</name>\n</transportation></transportations>"), 3);
        row("reliable elsewhere", plainModel("<transportations><reliable/></transportations>"), 2);
        row("update rates", plainModel("<updateRates/>"), 3);
        row("object root",
            plainModel("<objects><objectClass><name>X</name></objectClass><objectClass>"
                       "<name>HLAobjectRoot</name></objectClass></objects>"),
            3);
        row("other object root", plainModel("<objects><objectClass><name>X</name></objectClass></objects>"), 2);
        row("interaction root",
            plainModel("<interactions><interactionClass><name>HLAinteractionRoot</name>"
                       "</interactionClass></interactions>"),
            3);
        row("interaction root beside objects",
            plainModel("<objects/><interactions><interactionClass><name>HLAinteractionRoot</name>"
                       "</interactionClass></interactions>"),
            2);
        row("text format", " \r\n\t(ObjectModel (Name \"M\"))", 1);
        row("text format behind another list", "(DIF HLA-OMT v1.3 (TYPE Single))\r\n(ObjectModel)", 1);
        row("text format behind other objects", "a \"b\" ) (ObjectModel)", 1);
        row("text format behind a comment", "; (DIF)\n(; x\nObjectModel", 1);
        row("text format behind a byte order mark", "\xEF\xBB\xBF(ObjectModel)", 1);
        row("text without a model", "(DIF HLA-OMT v1.3)", 0);
        row("text with a bare tag", "ObjectModel", 0);
        row("text with an inner model", "(DIF (ObjectModel))", 0);
        row("text with a list that does not end", "(DIF (ObjectModel)", 0);
        row("text with a head in a list", "((ObjectModel))", 0);
        row("text with the tag as second element", "(a ObjectModel)", 0);
        row("text with the tag behind a list", "(() ObjectModel)", 0);
        row("text with the tag as a string", "(\"ObjectModel\")", 0);
        row("text with a longer tag", "(ObjectModels)", 0);
        row("text with a shorter tag", "(ObjectMode)", 0);
        row("text with a tag in small letters", "(objectModel)", 0);
        row("text with a model in a string", "(a) \"\\\"(ObjectModel)\"", 0);
        row("text with a model in a comment", "(a) ; (ObjectModel)", 0);
        row("malformed XML with a model in it", "<a> (ObjectModel)", 0);
        row("XML behind a byte order mark", "\xEF\xBB\xBF<objectModel><!-- (ObjectModel) --></objectModel>", 2);
        row("XML in UTF-16", QByteArray("\xFF\xFE<\0o\0b\0j\0e\0c\0t\0M\0o\0d\0e\0l\0/\0>\0", 30), 2);
        row("malformed behind the root", "<objectModel xmlns='http://standards.ieee.org/IEEE1516-2010'><a>", 3);
        row("malformed without a namespace", "<objectModel><a>", 0);
        row("no model", "hello", 0);
        row("empty", "", 0);
        row("blank", "  \n", 0);
    }

    void typeOfAModel()
    {
        QFETCH(QByteArray, text);
        QTemporaryDir directory;
        const QByteArray name = directory.filePath("m.xml").toUtf8();
        writeTextFile(name, text);
        QTEST(int(DtFedReader::checkFomType(name.constData())), "type");
    }

    void typeOfALargeTextIsFoundQuickly_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("type");
        const int count = 1000000;
        QTest::newRow("open parentheses") << QByteArray(count, '(') << 0;
        QTest::newRow("balanced parentheses") << QByteArray(count, '(') + QByteArray(count, ')') + "(ObjectModel)" << 1;
        QTest::newRow("elements") << "(a " + QByteArray("b ").repeated(count) + ")(ObjectModel)" << 1;
        QTest::newRow("string without an end") << "(a \"" + QByteArray(10 * count, 'x') << 0;
        QTest::newRow("long symbol") << "(" + QByteArray(10 * count, 'x') << 0;
        QTest::newRow("NUL bytes") << "(" + QByteArray(count, '\0') << 0;
    }

    void typeOfALargeTextIsFoundQuickly()
    {
        QFETCH(QByteArray, text);
        QTemporaryDir directory;
        const QByteArray name = directory.filePath("m.omt").toUtf8();
        writeTextFile(name, text);
        DtCapture capture(DtWarn);
        QElapsedTimer timer;
        timer.start();
        QTEST(int(DtFedReader::checkFomType(name.constData())), "type");
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(capture.text(), QString());
    }

    void typeOfARoot() { QCOMPARE(int(DtXmlFedReader::fomType(nullptr)), 0); }

    void causeOfAMalformedFileIsNamedOnce()
    {
        QTemporaryDir directory;
        const QByteArray name = directory.filePath("m.xml").toUtf8();
        writeTextFile(name, "<objectModel>\n<a>\n</objectModel>");
        DtCapture capture(DtWarn);
        DtFedReader::checkFomType(name.constData());
        QVERIFY2(capture.text().startsWith(QString::fromUtf8(name) + ":3: "), qPrintable(capture.text()));
        QCOMPARE(capture.text().count('\n'), 1);
    }

    void missingFileHasNoTypeAndNoMessage()
    {
        const DtWithEnvironment environment("RTI_CONFIG", nullptr);
        DtCapture capture(DtWarn);
        for (const char* name :
             {"none.xml", "", "-", "http://localhost/m.xml", "file:///etc/hostname", "/", "/dev/null"})
            QCOMPARE(int(DtFedReader::checkFomType(name)), 0);
        QCOMPARE(int(DtFedReader::checkFomType("none.xml", nullptr)), 0);
        QCOMPARE(capture.text(), QString());
    }

    void pipeIsNotOpened()
    {
        QTemporaryDir directory;
        const QByteArray name = directory.filePath("pipe.xml").toUtf8();
        QCOMPARE(mkfifo(name.constData(), 0600), 0);
        QVERIFY(DtFedReader::openFedFile(name.constData(), false) == nullptr);
    }

    void fileIsOpenedBelowRtiConfig()
    {
        QTemporaryDir directory;
        writeTextFile(directory.filePath("sub/m.xml"), modelText(""));
        for (const char* end : {"/sub", "/sub/", "/sub\\"})
        {
            const DtWithEnvironment environment("RTI_CONFIG", (directory.path() + end).toUtf8().constData());
            QVERIFY(DtFedReader::openFedFile("none.xml", false) == nullptr);
            void* handle = DtFedReader::openFedFile("m.xml", false);
            QVERIFY(handle != nullptr);
            QCOMPARE(int(DtFedReader::checkFomType("m.xml", handle)), 3);
        }
        for (const char* value : {"", "/", "\\"})
        {
            const DtWithEnvironment environment("RTI_CONFIG", value);
            QCOMPARE(toQt(DtFedReader::pathBelowRtiConfig("m.xml")), QString());
        }
    }

    void wholeFileComesIntoTheBuffer()
    {
        QTemporaryDir directory;
        const QByteArray text = QByteArray("a\0b", 3) + QByteArray(200000, 'x');
        writeTextFile(directory.filePath("f"), text);
        FILE* file = std::fopen(directory.filePath("f").toUtf8().constData(), "r");
        char* buffer = nullptr;
        unsigned int size = 0;
        QVERIFY(DtFedReader::readFileIntoBuffer(file, &buffer, &size));
        QCOMPARE(QByteArray(buffer, static_cast<int>(size)), text);
        QCOMPARE(buffer[size], '\0');
        delete[] buffer;
        QVERIFY(DtFedReader::readFileIntoBuffer(file, &buffer, &size)); // nothing is left
        QCOMPARE(size, 0u);
        delete[] buffer;
        std::fclose(file);
    }

    void directoryCannotComeIntoTheBuffer()
    {
        FILE* file = std::fopen("/", "r");
        QVERIFY(file != nullptr);
        char* buffer = nullptr;
        unsigned int size = 0;
        QVERIFY(!DtFedReader::readFileIntoBuffer(file, &buffer, &size));
        QVERIFY(buffer == nullptr);
        std::fclose(file);
    }

    void standardModelHasOneNameForAllTypes()
    {
        for (int type = 0; type <= 4; ++type)
            QCOMPARE(toQt(DtFedReader::standardMimFileName(static_cast<DtFomType>(type))),
                     QString("HLAstandardMIM.xml"));
    }
};

QX_REGISTER_TEST(TestFedReader)
#include "testFedReader.moc"
