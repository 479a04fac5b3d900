#include "foundation/envXmlReader.h"
#include "foundation/envXmlWriter.h"
#include "foundation/xmlText.h"
#include "foundationTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <sstream>
#include <sys/stat.h>

class TestEnvXml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void elementBecomesAnObject();
    void elementWithoutANameIsAList();
    void textBetweenElementsIsDropped();
    void commentsAreKeptOnRequest();
    void missingFileIsNotRead();
    void malformedFilesAreNotRead_data();
    void malformedFilesAreNotRead();
    void specialFilesAreNotRead();
    void externalEntitiesAreNotLoaded();
    void dtdIsNotLoaded();
    void documentsTooDeepAreRefused();
    void resultMayBeNull();
    void writesTheStatedForm();
    void emptyTreeGivesAnEmptyRoot();
    void everyTextComesBackUnchanged_data();
    void everyTextComesBackUnchanged();
    void writtenFileReadAndWrittenAgainIsTheSame();
    void dashesOfACommentAreSeparated();
    void textThatIsNotUtf8IsTakenAsLatin1();
    void conversionFromLatin1CanBeTakenBack();
    void charactersThatXmlCannotHoldAreLeftOut();
    void namesThatAreNoXmlNamesAreRefused();
    void refusedTreeLeavesTheOldFile();
    void missingDirectoryFailsTheWrite();
    void writeKeepsModeAndLinks();
    void xmlTextDecodesStrictly_data();
    void xmlTextDecodesStrictly();

private:
    DtEnvironment read(const char* name);
    bool write(DtEnvironment& environment, const char* name);

    std::unique_ptr<QTemporaryDir> myDirectory;
    std::unique_ptr<DtInDirectory> myHere;
};

void TestEnvXml::init()
{
    myDirectory = std::make_unique<QTemporaryDir>();
    myHere = std::make_unique<DtInDirectory>(myDirectory->path());
}

void TestEnvXml::cleanup()
{
    myHere.reset();
    myDirectory.reset();
}

DtEnvironment TestEnvXml::read(const char* name)
{
    bool isGood = false;
    const DtEnvironment environment = DtEnvXMLReader(true).readFile(name, &isGood);
    if (isGood != (environment.root() != nullptr))
        qFatal("the result does not tell whether there is a tree");
    return environment;
}

bool TestEnvXml::write(DtEnvironment& environment, const char* name)
{
    return DtEnvXMLWriter("config", "config.dtd").writeFile(environment, name);
}

namespace
{
QByteArray dump(const DtEnvironment& environment)
{
    std::ostringstream out;
    out << environment;
    return QByteArray::fromStdString(out.str());
}
} // namespace

void TestEnvXml::elementBecomesAnObject()
{
    writeTextFile("a.xml", "<config><defaults><var name='n' value='v' more='m'/></defaults></config>");
    QCOMPARE(dump(read("a.xml")), QByteArray("config (config)\n"
                                             "  defaults (defaults)\n"
                                             "    n (var) = v\n"
                                             "      more (attribute) = m\n"));
}

void TestEnvXml::elementWithoutANameIsAList()
{
    writeTextFile("a.xml", "<config><scripts/><var name='scripts'/></config>");
    const DtEnvironment environment = read("a.xml");
    QVERIFY(environment.getNamedList("scripts") != nullptr);
    QVERIFY(environment.getObject("scripts", "var") != nullptr);
}

void TestEnvXml::textBetweenElementsIsDropped()
{
    writeTextFile("a.xml", "<config>text<a/><![CDATA[more]]><?pi x?></config>");
    const DtEnvironment environment = read("a.xml");
    QCOMPARE(DtEnvObject::castToObject(environment.root())->children().size(), std::size_t(1));
}

void TestEnvXml::commentsAreKeptOnRequest()
{
    writeTextFile("a.xml", "<config><!-- one --><a/><!--two--></config>");
    const DtEnvironment kept = read("a.xml");
    const DtEnvObject::Nodes& nodes = DtEnvObject::castToObject(kept.root())->children();
    QCOMPARE(nodes.size(), std::size_t(3));
    COMPARE_TEXT(nodes[0]->value(), " one ");
    COMPARE_TEXT(nodes[2]->value(), "two");
    const DtEnvironment dropped = DtEnvXMLReader(false).readFile("a.xml", nullptr);
    QCOMPARE(DtEnvObject::castToObject(dropped.root())->children().size(), std::size_t(1));
}

void TestEnvXml::missingFileIsNotRead()
{
    QVERIFY(read("missing.xml").root() == nullptr);
    QVERIFY(read("").root() == nullptr);
}

void TestEnvXml::malformedFilesAreNotRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no XML") << QByteArray("generate = true");
    QTest::newRow("unclosed") << QByteArray("<config><defaults>");
    QTest::newRow("wrong end") << QByteArray("<config></other>");
    QTest::newRow("bare ampersand") << QByteArray("<config a='&'/>");
    QTest::newRow("unknown entity") << QByteArray("<config a='&what;'/>");
    QTest::newRow("attribute twice") << QByteArray("<config a='1' a='2'/>");
    QTest::newRow("two roots") << QByteArray("<config/><config/>");
    QTest::newRow("wrong bytes") << QByteArray("<config a='\xff\xfe'/>");
    QTest::newRow("nul byte") << QByteArray("<config>\0</config>", 18);
}

void TestEnvXml::malformedFilesAreNotRead()
{
    QFETCH(QByteArray, text);
    writeTextFile("a.xml", text);
    const DtCapture capture(DtWarn);
    QVERIFY(read("a.xml").root() == nullptr);
    QCOMPARE(capture.text(), QString());
}

void TestEnvXml::specialFilesAreNotRead()
{
    QVERIFY(read(".").root() == nullptr);
    QVERIFY(read("/dev/null").root() == nullptr);
    QVERIFY(read("-").root() == nullptr);
    writeTextFile("a.xml", "<config/>");
    QVERIFY(read(("file://" + myDirectory->filePath("a.xml").toUtf8()).constData()).root() == nullptr);
    QVERIFY(mkfifo("pipe", 0600) == 0);
    QVERIFY(read("pipe").root() == nullptr);
}

void TestEnvXml::externalEntitiesAreNotLoaded()
{
    writeTextFile("secret", "<var name='secret'/>");
    writeTextFile("a.xml", "<!DOCTYPE config [<!ENTITY e SYSTEM 'secret'>]><config><a/>&e;</config>");
    const DtEnvironment environment = read("a.xml");
    QCOMPARE(dump(environment), QByteArray("config (config)\n  a (a)\n"));
}

void TestEnvXml::dtdIsNotLoaded()
{
    writeTextFile("config.dtd", "<!ATTLIST a value CDATA 'default'>");
    writeTextFile("a.xml", "<!DOCTYPE config SYSTEM 'config.dtd'><config><a/></config>");
    QCOMPARE(dump(read("a.xml")), QByteArray("config (config)\n  a (a)\n"));
}

void TestEnvXml::documentsTooDeepAreRefused()
{
    writeTextFile("deep.xml", QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000));
    QVERIFY(read("deep.xml").root() == nullptr);
}

void TestEnvXml::resultMayBeNull()
{
    writeTextFile("a.xml", "<config/>");
    QVERIFY(DtEnvXMLReader(true).readFile("a.xml", nullptr).root() != nullptr);
    QVERIFY(DtEnvXMLReader(true).readFile("missing.xml", nullptr).root() == nullptr);
}

void TestEnvXml::writesTheStatedForm()
{
    DtEnvironment environment;
    environment.addComment(" settings ");
    const auto list = environment.addObject("user", "user");
    environment.addObject("prefixName", "var", list)->setValue("Qx");
    environment.addObject("bare", "var", list);
    environment.addObject("scripts", list);
    QVERIFY(write(environment, "a.xml"));
    QCOMPARE(readTextFile("a.xml"), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                               "<!DOCTYPE config SYSTEM \"config.dtd\">\n"
                                               "<config>\n"
                                               "    <!-- settings -->\n"
                                               "    <user>\n"
                                               "        <var name=\"prefixName\" value=\"Qx\"/>\n"
                                               "        <var name=\"bare\"/>\n"
                                               "        <scripts/>\n"
                                               "    </user>\n"
                                               "</config>\n"));
}

void TestEnvXml::emptyTreeGivesAnEmptyRoot()
{
    DtEnvironment environment;
    QVERIFY(write(environment, "a.xml"));
    QVERIFY(readTextFile("a.xml").endsWith("<config/>\n"));
    QCOMPARE(dump(read("a.xml")), QByteArray("config (config)\n"));
}

void TestEnvXml::everyTextComesBackUnchanged_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blanks") << QByteArray("  a  b  ");
    QTest::newRow("markup") << QByteArray("<a>&amp;'\"]]>--");
    QTest::newRow("line breaks and tabs") << QByteArray("a\nb\r\nc\td\r");
    QTest::newRow("two and three bytes") << QByteArray("\xc3\xa4\xe2\x82\xac");
    QTest::newRow("four bytes") << QByteArray("\xf0\x9f\x98\x80\xf4\x8f\xbf\xbd");
    QTest::newRow("percent and backslash") << QByteArray("%s\\n&#10;");
    QTest::newRow("long") << QByteArray(100000, 'x');
}

void TestEnvXml::everyTextComesBackUnchanged()
{
    QFETCH(QByteArray, text);
    DtEnvironment environment;
    environment.addObject(text.constData(), "var")->setValue(text.constData());
    QVERIFY(write(environment, "a.xml"));
    const auto node = read("a.xml").getObject(text.constData(), "var");
    QVERIFY(node != nullptr);
    COMPARE_TEXT(node->value(), text);
    COMPARE_TEXT(node->name(), text);
}

void TestEnvXml::writtenFileReadAndWrittenAgainIsTheSame()
{
    writeTextFile("a.xml",
                  "<config x='1'><!--c--><user><var name='n' value='a&#10;b' z='2'/><l><m/></l></user></config>");
    DtEnvironment first = read("a.xml");
    QVERIFY(write(first, "b.xml"));
    DtEnvironment second = read("b.xml");
    QVERIFY(write(second, "c.xml"));
    QCOMPARE(readTextFile("c.xml"), readTextFile("b.xml"));
    QCOMPARE(dump(second), dump(first));
    QVERIFY(readTextFile("c.xml").contains("<!--c-->"));
}

void TestEnvXml::dashesOfACommentAreSeparated()
{
    DtEnvironment environment;
    environment.addComment("a--b---c-");
    QVERIFY(write(environment, "a.xml"));
    const DtEnvironment again = read("a.xml");
    COMPARE_TEXT(DtEnvObject::castToObject(again.root())->children().front()->value(), "a- -b- - -c- ");
}

void TestEnvXml::textThatIsNotUtf8IsTakenAsLatin1()
{
    DtEnvironment environment;
    environment.addObject("n", "var")->setValue("gr\xfc\xdf");
    QVERIFY(write(environment, "a.xml"));
    COMPARE_TEXT(read("a.xml").getObject("n", "var")->value(), "gr\xc3\xbc\xc3\x9f");
}

void TestEnvXml::conversionFromLatin1CanBeTakenBack()
{
    const DtString latin1 = "caf\xe9 \x80\xff \xc3\xbc";
    COMPARE_TEXT(DtLatin1Text(DtXmlText(latin1)), latin1.c_str());
    for (const char* other : {"", "plain", "\xe9", "caf\xc3\xa9 \xe2\x82\xac"})
        COMPARE_TEXT(DtLatin1Text(other), other);
}

void TestEnvXml::charactersThatXmlCannotHoldAreLeftOut()
{
    DtEnvironment environment;
    environment.addObject("n", "var")
        ->setValue("a\x01"
                   "b\x1f"
                   "c");
    const DtCapture capture(DtWarn);
    QVERIFY(write(environment, "a.xml"));
    COMPARE_TEXT(read("a.xml").getObject("n", "var")->value(), "abc");
    QCOMPARE(capture.text(), QString("Characters that XML cannot hold are left out of: abc\n"));
}

void TestEnvXml::namesThatAreNoXmlNamesAreRefused()
{
    for (const char* type : {"object name", "", "1st", "a<b"})
    {
        DtEnvironment environment;
        environment.addObject("n", type);
        QVERIFY2(!write(environment, "a.xml"), type);
    }
    DtEnvironment spaced;
    spaced.addAttribute("two words", "x");
    QVERIFY(!write(spaced, "a.xml"));
    DtEnvironment named;
    named.addAttribute("name", "x"); // would come back as the object's own name
    QVERIFY(!write(named, "a.xml"));
    QVERIFY(!QFileInfo::exists("a.xml"));
}

void TestEnvXml::refusedTreeLeavesTheOldFile()
{
    writeTextFile("a.xml", "old");
    DtEnvironment environment;
    environment.addObject("n", "object name");
    QVERIFY(!write(environment, "a.xml"));
    QCOMPARE(readTextFile("a.xml"), QByteArray("old"));
}

void TestEnvXml::missingDirectoryFailsTheWrite()
{
    DtEnvironment environment;
    QVERIFY(!write(environment, "missing/a.xml"));
}

void TestEnvXml::writeKeepsModeAndLinks()
{
    writeTextFile("target.xml", "old");
    QCOMPARE(chmod("target.xml", 0604), 0);
    QVERIFY(QFile::link("target.xml", "a.xml"));
    DtEnvironment environment;
    QVERIFY(write(environment, "a.xml"));
    QVERIFY(QFileInfo("a.xml").isSymLink());
    QVERIFY(readTextFile("target.xml").contains("<config/>"));
    struct stat status = {};
    QCOMPARE(stat("target.xml", &status), 0);
    QCOMPARE(status.st_mode & 07777, mode_t(0604));
    QCOMPARE(QDir(".").entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void TestEnvXml::xmlTextDecodesStrictly_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");
    const struct
    {
        const char* name;
        QByteArray text, expected;
    } theRows[] = {
        {"ASCII",                 "a\tb\n",                   "a\tb\n"                          },
        {"valid",                 "\xc3\xa4\xf0\x9f\x98\x80", "\xc3\xa4\xf0\x9f\x98\x80"        },
        {"overlong",              "\xc0\xaf",                 "\xc3\x80\xc2\xaf"                },
        {"overlong, three bytes", "\xe0\x80\xaf",             "\xc3\xa0\xc2\x80\xc2\xaf"        },
        {"overlong, four bytes",  "\xf0\x80\x80\xaf",         "\xc3\xb0\xc2\x80\xc2\x80\xc2\xaf"},
        {"surrogate",             "\xed\xa0\x80",             "\xc3\xad\xc2\xa0\xc2\x80"        },
        {"beyond the last",       "\xf4\x90\x80\x80",         "\xc3\xb4\xc2\x90\xc2\x80\xc2\x80"},
        {"cut off",               "a\xe2\x82",                "a\xc3\xa2\xc2\x82"               },
        {"lone continuation",     "\x80",                     "\xc2\x80"                        },
        {"no character",          "a\xef\xbf\xbez",           "az"                              },
        {"control characters",    "\x01\x7f",                 "\x7f"                            },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.text << row.expected;
}

void TestEnvXml::xmlTextDecodesStrictly()
{
    QFETCH(QByteArray, text);
    QTEST(QByteArray(DtXmlText(text.constData()).c_str()), "expected");
}

QX_REGISTER_TEST(TestEnvXml)
#include "testEnvXml.moc"
