#include "modelText.h"
#include "omtReader/standardMim.h"
#include "omtReader/xmlFileReader.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <cstring>
#include <sys/stat.h>

namespace
{
QByteArray module(const QByteArray& name, const QByteArray& more = QByteArray())
{
    return modelText("<modelIdentification><name>" + name + "</name></modelIdentification>" + more);
}

QString referencesOf(const DtOMTTree& tree)
{
    QStringList texts;
    for (const DtOMTTreeReference& reference : tree.getReferences())
        texts += toQt(reference.type + ":" + reference.identification);
    return texts.join(' ');
}

QByteArray readWithError(const QByteArray& name, bool withMim = false)
{
    DtXMLFileReader reader;
    reader.includeMIM(withMim);
    const std::unique_ptr<DtOMTTree> tree(reader.readFile(name.constData(), nullptr));
    return tree != nullptr ? "read" : reader.getLastError().c_str();
}
} // namespace

// Each test works in a directory of its own, without RTI_CONFIG.
class TestXmlFileReader : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> myDirectory;
    std::unique_ptr<DtInDirectory> myWorkingDirectory;
    std::unique_ptr<DtWithEnvironment> myEnvironment;

    // Files "a.xml", "b.xml", ... with these texts.
    std::vector<DtFilename> write(const QList<QByteArray>& texts)
    {
        std::vector<DtFilename> names;
        for (const QByteArray& text : texts)
        {
            const QByteArray name = QByteArray(1, static_cast<char>('a' + names.size())) + ".xml";
            writeTextFile(name, text);
            names.emplace_back(name.constData());
        }
        return names;
    }

private Q_SLOTS:
    void init()
    {
        myDirectory = std::make_unique<QTemporaryDir>();
        myWorkingDirectory = std::make_unique<DtInDirectory>(myDirectory->path());
        myEnvironment = std::make_unique<DtWithEnvironment>("RTI_CONFIG", nullptr);
    }

    void cleanup()
    {
        myEnvironment.reset();
        myWorkingDirectory.reset();
        myDirectory.reset();
    }

    void documentMustBeNullAtTheStart()
    {
        const QString text = textOfAbort(
            []
            {
                xmlDoc* document = xmlNewDoc(nullptr);
                DtString error;
                DtXMLFileReader::parseFile("a.xml", &document, error);
            });
        QVERIFY2(text.contains("NULL == *newXmlDocTree"), qPrintable(text));
        const QString bufferText = textOfAbort(
            []
            {
                xmlDoc* document = xmlNewDoc(nullptr);
                DtString error;
                DtXMLFileReader::parseBuffer("", 0, &document, error);
            });
        QVERIFY2(bufferText.contains("NULL == *newXmlDocTree"), qPrintable(bufferText));
    }

    void nameAndBufferMustNotBeNull()
    {
        const QString text = textOfAbort(
            []
            {
                xmlDoc* document = nullptr;
                DtString error;
                DtXMLFileReader::parseFile(nullptr, &document, error);
            });
        QVERIFY2(text.contains("NULL != fedFileName"), qPrintable(text));
        const QString bufferText = textOfAbort(
            []
            {
                xmlDoc* document = nullptr;
                DtString error;
                DtXMLFileReader::parseBuffer(nullptr, 0, &document, error);
            });
        QVERIFY2(bufferText.contains("NULL != buffer"), qPrintable(bufferText));
    }

    void bufferIsParsed()
    {
        xmlDoc* document = nullptr;
        DtString error;
        QCOMPARE(int(DtXMLFileReader::parseBuffer("<a/>", 4, &document, error)), 0);
        QVERIFY(DtXmlDocument(document) != nullptr);
        document = nullptr;
        QCOMPARE(int(DtXMLFileReader::parseBuffer("<a>", 3, &document, error)), 2);
        QCOMPARE(toQt(error), QString("DtXMLFileReader::parseBuffer: Failed to parse buffer"));
        QVERIFY(document == nullptr);
    }

    void missingFileWithoutRtiConfig()
    {
        QCOMPARE(readWithError("no%s.xml"),
                 QByteArray("RTI_CONFIG environment variable unbound\nNo such FED file: no%s.xml"));
    }

    void missingFileWithRtiConfig()
    {
        for (const char* value : {"", "/", "\\", "/nowhere", "/nowhere/"})
        {
            const DtWithEnvironment environment("RTI_CONFIG", value);
            QCOMPARE(readWithError("no.xml"), QByteArray("No such FED file: no.xml"));
        }
    }

    void fileBelowRtiConfigIsReadAndItsPathShown()
    {
        writeTextFile("sub/m.xml", module("m"));
        const DtWithEnvironment environment("RTI_CONFIG", "sub/");
        const DtSaved<int> level(DtNotifyLevel, 4);
        DtCapture capture(DtVerbose);
        QCOMPARE(readWithError("m.xml"), QByteArray("read"));
        QCOMPARE(capture.text(), QString("Reading FED file: sub/m.xml\n"));
    }

    void namesThatAreNoPlainFilesCountAsMissing()
    {
        QCOMPARE(mkfifo("pipe.xml", 0600), 0);
        QDir().mkpath("dir.xml");
        for (const char* name :
             {"pipe.xml", "dir.xml", "/dev/zero", "-", "http://localhost/a.xml", "file:///etc/fstab"})
            QVERIFY2(readWithError(name).endsWith(QByteArray("No such FED file: ") + name), name);
    }

    void unusableNameGivesNullWithoutAMessage()
    {
        QCOMPARE(readWithError(""), QByteArray());
        QCOMPARE(readWithError("sub/"), QByteArray());
    }

    void errorStaysUntilCleared()
    {
        DtXMLFileReader reader;
        reader.readFile("no.xml", nullptr);
        reader.readFile("", nullptr);
        QVERIFY(!reader.getLastError().isEmpty());
        reader.clearLastError();
        QVERIFY(reader.getLastError().isEmpty());
    }

    void malformedFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::newRow("open element") << QByteArray("<objectModel>\n<a>\n</objectModel>") << 3;
        QTest::newRow("no element") << QByteArray("") << 1;
        QTest::newRow("no XML") << QByteArray("(ObjectModel)") << 1;
        QTest::newRow("NUL") << QByteArray("<objectModel>\n<a\0b/></objectModel>", 34) << 2;
        QTest::newRow("wrong bytes") << QByteArray("<objectModel>\n\xff\xfe\n</objectModel>") << 2;
        QTest::newRow("unknown entity") << QByteArray("<objectModel>\n&x;</objectModel>") << 2;
        QTest::newRow("compressed") << QByteArray::fromHex("1f8b08000000000000ff") << 1;
        QByteArray deep = "<objectModel>\n";
        for (int i = 0; i < 100000; ++i)
            deep += "<a>";
        QTest::newRow("too deep") << deep << 2;
        QTest::newRow("text too long") << "<objectModel>\n" + QByteArray(10000001, 'x') + "</objectModel>" << 2;
        QByteArray bomb = "<!DOCTYPE objectModel [<!ENTITY a0 'aaaaaaaaaaaaaaaaaaaa'>\n";
        for (int i = 1; i < 30; ++i)
            bomb += "<!ENTITY a" + QByteArray::number(i) + " '" +
                    ("&a" + QByteArray::number(i - 1) + ";").repeated(20) + "'>";
        QTest::newRow("entity bomb") << bomb + "]>\n<objectModel>&a29;</objectModel>" << 0;
        QTest::newRow("ring of entities")
            << QByteArray("<!DOCTYPE a [<!ENTITY a '&b;'><!ENTITY b '&a;'>]>\n<a>&a;</a>") << 0;
    }

    // A line of 0 stands for any.
    void malformedFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        writeTextFile("bad.xml", text);
        DtCapture capture(DtWarn);
        QCOMPARE(readWithError("bad.xml"),
                 QByteArray("RTI_CONFIG environment variable unbound\nNo such FED file: bad.xml"));
        QVERIFY2(capture.text().startsWith(line == 0 ? QString("bad.xml:") : QString("bad.xml:%1: ").arg(line)),
                 qPrintable(capture.text()));
        QCOMPARE(capture.text().count('\n'), 1);
    }

    void parserWritesNothingToTheConsole()
    {
        const QString text = textOfAbort(
            []
            {
                writeTextFile("bad.xml", "<?xml version='1.0' encoding='UTF-16'?><objectModel>\n\xff\xfe&x;<a>");
                DtXMLFileReader reader;
                DtNotifyLevel = 0;
                reader.readFile("bad.xml", nullptr);
                xmlDoc* document = nullptr;
                DtString error;
                DtXMLFileReader::parseBuffer("<x:a/><b>", 9, &document, error);
                std::fputs("end", stderr);
                std::abort();
            });
        QCOMPARE(text, QString("end"));
    }

    void externalEntitiesAreNotLoaded()
    {
        writeTextFile("secret.txt", "<name>secret</name>");
        writeTextFile("secret.dtd", "<!ENTITY p '<name>secret</name>'>");
        const QByteArray doctype = "<!DOCTYPE objectModel [<!ENTITY s SYSTEM 'secret.txt'>"
                                   "<!ENTITY % d SYSTEM 'secret.dtd'> %d;]>";
        const auto names = write({doctype + "<objectModel xmlns='http://standards.ieee.org/IEEE1516-2010'>"
                                            "<modelIdentification>&s;<type>&s;</type></modelIdentification>"
                                            "</objectModel>"});
        DtXMLFileReader reader;
        reader.includeMIM(false);
        const std::unique_ptr<DtOMTTree> tree(reader.readFile(names[0], nullptr));
        QVERIFY(tree != nullptr);
        QCOMPARE(toQt(tree->getName()), QString());
        QCOMPARE(toQt(tree->getType()), QString());
    }

    void externalDeclarationsAreNotLoaded()
    {
        writeTextFile("secret.dtd", "<!ENTITY p 'secret'>");
        write({"<!DOCTYPE objectModel [<!ENTITY % d SYSTEM 'secret.dtd'> %d;]><objectModel>&p;</objectModel>",
               "<!DOCTYPE objectModel SYSTEM 'secret.dtd'><objectModel>&p;</objectModel>"});
        QVERIFY(readWithError("a.xml").endsWith("No such FED file: a.xml"));
        DtCapture capture(DtWarn);
        readWithError("b.xml");
        QVERIFY2(!capture.text().contains("secret"), qPrintable(capture.text()));
    }

    void entityReferenceIsNoText()
    {
        const auto names = write({"<!DOCTYPE objectModel [<!ENTITY e 'expanded'>]>\n<objectModel "
                                  "xmlns='http://standards.ieee.org/IEEE1516-2010'><modelIdentification>"
                                  "<name>&e;</name><type>F&e;</type><purpose>&#65;&amp;B</purpose>"
                                  "</modelIdentification></objectModel>"});
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFiles(names, DtFomEvolved, nullptr));
        QVERIFY(tree != nullptr);
        QCOMPARE(toQt(tree->getName() + "|" + tree->getType() + "|" + tree->getPurpose()), QString("|F|A&B"));
    }

    void encodings_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QString text = QString::fromUtf8(module("\xc3\xa4"));
        const QString latin = QString(text).replace("?>", " encoding='ISO-8859-1'?>");
        const QString wide = QString(text).replace("?>", " encoding='UTF-16'?>");
        QTest::newRow("UTF-8") << text.toUtf8();
        QTest::newRow("UTF-8 with mark") << "\xef\xbb\xbf" + text.toUtf8();
        QTest::newRow("Latin-1") << latin.toLatin1();
        QByteArray little("\xff\xfe");
        for (const QChar character : wide)
            little +=
                QByteArray(1, static_cast<char>(character.cell())) + QByteArray(1, static_cast<char>(character.row()));
        QTest::newRow("UTF-16") << little;
    }

    void encodings()
    {
        QFETCH(QByteArray, text);
        const auto names = write({text});
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFiles(names, DtFomUnknown, nullptr));
        QVERIFY(tree != nullptr);
        QCOMPARE(toQt(tree->getName()), QString::fromUtf8("\xc3\xa4"));
    }

    void fileAloneWithoutTheStandardModel()
    {
        const auto names = write({module("m")});
        DtXMLFileReader reader;
        reader.includeMIM(false);
        const std::unique_ptr<DtOMTTree> tree(reader.readFile(names[0], nullptr));
        QCOMPARE(int(tree->hlaVersion()), 3);
        QCOMPARE(referencesOf(*tree), QString());
    }

    void fileIsMergedWithTheStandardModelBehindIt()
    {
        const auto names = write({module("m")});
        DtXMLFileReader reader;
        QVERIFY(reader.MIMincluded());
        const std::unique_ptr<DtOMTTree> tree(reader.readFile(names[0], nullptr));
        QVERIFY2(tree != nullptr, reader.getLastError());
        QCOMPARE(toQt(tree->getName()), QString("m"));
        const QString references = referencesOf(*tree);
        QVERIFY2(references.startsWith("Composed_From:m Composed_From:Standard MOM"), qPrintable(references));
    }

    void standardModelFileIsReadAloneByItself()
    {
        writeTextFile("myHLAstandardMIM.xml.xml", module("m"));
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFile("myHLAstandardMIM.xml.xml", nullptr));
        QVERIFY(tree != nullptr);
        QCOMPARE(referencesOf(*tree), QString());
    }

    void standardModelOfAListIsTheEmbeddedOne()
    {
        writeTextFile("HLAstandardMIM.xml", module("from disk"));
        auto names = write({module("m")});
        names.insert(names.begin(), "HLAstandardMIM.xml");
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFiles(names, DtFomEvolved, nullptr));
        QVERIFY2(tree != nullptr, reader.getLastError());
        QVERIFY(tree->getName().startsWith("Standard MOM"));
    }

    void embeddedModelIsOneDocument()
    {
        QCOMPARE(static_cast<std::size_t>(theHLAeStandardMIM_xml_len),
                 std::strlen(reinterpret_cast<const char*>(theHLAeStandardMIM_xml)));
    }

    void modulesMergeInOrderUnderTheFirstIdentification()
    {
        const auto names = write({module("m"), module("n"), module("o")});
        DtXMLFileReader reader;
        std::unique_ptr<DtOMTTree> tree(reader.readFiles(names, DtFomEvolved, nullptr));
        QCOMPARE(int(tree->hlaVersion()), 3);
        QCOMPARE(toQt(tree->getName()), QString("m"));
        QCOMPARE(referencesOf(*tree), QString("Composed_From:m Composed_From:n Composed_From:o"));
        tree.reset(reader.readFiles({names[1]}, DtFomEvolved, nullptr));
        QCOMPARE(toQt(tree->getName()), QString("n"));
    }

    void typeZeroIsDetectedAndLeavesTheVersionAtZero()
    {
        auto names = write({module("m"), module("n")});
        names.push_back("HLAstandardMIM.xml");
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFiles(names, DtFomUnknown, nullptr));
        QVERIFY2(tree != nullptr, reader.getLastError());
        QCOMPARE(int(tree->hlaVersion()), 0);
        QCOMPARE(toQt(tree->getName()), QString("m"));
        QCOMPARE(referencesOf(*tree), QString());
    }

    void emptyListAndUnknownTypeGiveNull()
    {
        DtXMLFileReader reader;
        QVERIFY(reader.readFiles({}, DtFomEvolved, nullptr) == nullptr);
        QVERIFY(reader.readFiles(write({"<x/>"}), DtFomUnknown, nullptr) == nullptr);
        QVERIFY(reader.readFiles({"none.xml"}, DtFomUnknown, nullptr) == nullptr);
        QVERIFY(reader.getLastError().isEmpty());
        QCOMPARE(readWithError(QByteArray("a.xml")), QByteArray());
        QCOMPARE(readWithError(QByteArray("a.xml"), true), QByteArray());
    }

    void moduleOfAnotherTypeEndsTheList()
    {
        const auto names = write({module("m"), modelText("", "IEEE1516-2025")});
        DtXMLFileReader reader;
        QVERIFY(reader.readFiles(names, DtFomEvolved, nullptr) == nullptr);
        QCOMPARE(toQt(reader.getLastError()), QString("FOM file does not match expected type\n"));
    }

    void missingModuleEndsTheList()
    {
        auto names = write({module("m")});
        names.push_back("none.xml");
        DtXMLFileReader reader;
        QVERIFY(reader.readFiles(names, DtFomEvolved, nullptr) == nullptr);
        QVERIFY(reader.getLastError() == "RTI_CONFIG environment variable unbound\nNo such FED file: none.xml");
    }

    void listOf1516FilesCannotBeMerged()
    {
        const auto names = write({"<objectModel/>"});
        DtXMLFileReader reader;
        QVERIFY(reader.readFiles(names, DtFom1516, nullptr) == nullptr);
        QCOMPARE(toQt(reader.getLastError()), QString("Failed to process object model"));
    }

    void listOfAnotherTypeThanToldCannotBeMerged()
    {
        const auto names = write({module("m"), "<objectModel/>"});
        const std::pair<DtFilename, DtFomType> rows[] = {
            {names[0], DtFomOmt13  },
            {names[0], DtFom1516   },
            {names[0], DtFomType(7)},
            {names[0], DtFomHla4   },
            {names[1], DtFomOmt13  },
            {names[1], DtFomEvolved},
        };
        for (const auto& [name, type] : rows)
        {
            DtXMLFileReader reader;
            QVERIFY(reader.readFiles({name}, type, nullptr) == nullptr);
            QCOMPARE(toQt(reader.getLastError()), QString("FOM file does not match expected type\n"));
        }
    }

    void file1516IsReadWithoutTheStandardModel()
    {
        write({"<objectModel name=\"m\"/>"});
        DtCapture capture(DtWarn);
        DtXMLFileReader reader;
        reader.includeMIM(true);
        const std::unique_ptr<DtOMTTree> tree(reader.readFile("a.xml", nullptr));
        QVERIFY(tree != nullptr);
        QCOMPARE(int(tree->hlaVersion()), 2);
        QCOMPARE(toQt(tree->getName()), QString("m"));
        QCOMPARE(referencesOf(*tree), QString());
        QVERIFY(tree->objectClassRoot() == nullptr);
        QCOMPARE(capture.text(), QString());
    }

    void standardModelIsThatOfTheFormat_data()
    {
        QTest::addColumn<QByteArray>("space");
        QTest::addColumn<int>("version");
        QTest::addColumn<QString>("onlyThere"); // an enumerated datatype
        QTest::addColumn<QString>("notThere");
        const struct
        {
            const char* name;
            QByteArray space;
            int version;
            QString onlyThere;
            QString notThere;
        } theRows[] = {
            {"2010", "IEEE1516-2010", 3, "HLAsynchPointStatus", "HLAsyncPointStatus" },
            {"2025", "IEEE1516-2025", 4, "HLAsyncPointStatus",  "HLAsynchPointStatus"},
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << row.space << row.version << row.onlyThere << row.notThere;
    }
    void standardModelIsThatOfTheFormat()
    {
        QFETCH(QByteArray, space);
        QFETCH(int, version);
        QFETCH(QString, onlyThere);
        QFETCH(QString, notThere);
        write({modelText("<modelIdentification><name>m</name></modelIdentification>", space)});
        DtCapture capture(DtWarn);
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFile("a.xml", nullptr));
        QVERIFY(tree != nullptr);
        QCOMPARE(int(tree->hlaVersion()), version);
        QCOMPARE(toQt(tree->getName()), QString("m"));
        QVERIFY(referencesOf(*tree).startsWith("Composed_From:m Composed_From:"));
        QVERIFY(tree->getEnumeratedDatatypeNode(onlyThere.toLatin1().constData()) != nullptr);
        QVERIFY(tree->getEnumeratedDatatypeNode(notThere.toLatin1().constData()) == nullptr);
        QVERIFY(tree->getObjectClassNode("HLAobjectRoot.HLAmanager.HLAfederate") != nullptr);
        QCOMPARE(capture.text(), QString());
    }

    void childrenAreFoundByName()
    {
        const DtXmlDocument document = DtParseXmlBuffer("<a>x<b/><c/><b>1</b><c>2</c></a>", 32);
        QVERIFY(document != nullptr);
        xmlNode* root = xmlDocGetRootElement(document.get());
        QVERIFY(DtXMLFileReader::getNodeByName(root, BAD_CAST "c") != nullptr);
        QVERIFY(DtXMLFileReader::getNodeByName(root, BAD_CAST "d") == nullptr);
        QVERIFY(DtXMLFileReader::getNodeByName(nullptr, BAD_CAST "d") == nullptr);
        QVERIFY(DtXMLFileReader::childContentByName(root, BAD_CAST "c") == nullptr); // that of the first
        QVERIFY(DtXMLFileReader::childContentByName(root, BAD_CAST "d") == nullptr);
    }

    void manyClassesLoadInSeconds()
    {
        QByteArray text = "<objects><objectClass><name>HLAobjectRoot</name>";
        for (int i = 0; i < 50000; ++i)
            text += "<objectClass><name>Class" + QByteArray::number(i) + "</name></objectClass>";
        const auto names = write({modelText(text + "</objectClass></objects>")});
        QElapsedTimer timer;
        timer.start();
        DtXMLFileReader reader;
        const std::unique_ptr<DtOMTTree> tree(reader.readFiles(names, DtFomEvolved, nullptr));
        QVERIFY(tree->getObjectClassNode("HLAobjectRoot.Class49999") != nullptr);
        QVERIFY2(timer.elapsed() < 20000, "minutes when look-ups are linear");
    }
};

QX_REGISTER_TEST(TestXmlFileReader)
#include "testXmlFileReader.moc"
