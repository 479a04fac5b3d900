#include "registerTest.h"

#include "contextTestSupport.h"
#include "templateTestSupport.h"

#include "fileGenerator/universalFileWriter.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

// Templates that are expanded against a tree of named values.
class TestContextWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void workedExample();
    void tokenHasTheValueOfTheInnermostContext();
    void mapHidesTheTextOutsideOfIt();
    void unknownTokenStaysInLine();
    void indexCountsPassesInAnyLetterCase();
    void contextEntryGoesAheadOfTheIndex();
    void tokensAreReplacedInTheOrderOfTheLine_data();
    void tokensAreReplacedInTheOrderOfTheLine();
    void baseTokensComeLast();
    void openingWithoutEndEndsTheNames();
    void manyTokensOnOneLine();
    void valuesThatNameEachOtherDoNotGrowForEver();
    void safeFormsAreNoTokens();

    void loopOverNothingIsPassedOver();
    void numberIsNoLoop();
    void emptyMapExpandsNothing();
    void nestedLoopPutsBackIndexAndFlags();
    void onlyPassIsFirstAndLast();
    void outsideOfLoopsNotFirstAndNotLastHold();
    void equalKeysExpandTheFirstMapTwice();
    void loopHeaderIsNotDivided();
    void namesOfEntriesAreNotDivided();
    void textAmongTheEntriesTakesAContextAway();
    void loopSeesOutwards();
    void loopOverAFile();
    void fileThatReachesItselfStopsAtDepth64();
    void manyPassesAreQuick();

    void mapDoesNotExist();
    void otherVerbsAreThoseOfTheBase_data();
    void otherVerbsAreThoseOfTheBase();

    void pushContextEntersOneMapAfterTheOther();
    void emptyPieceIsAName();
    void popContextLeavesOneMap();
    void popContextOnAnEmptyStackDoesNothing();
    void withoutARootNothingIsFound();
    void fileIsWritten();

private:
    std::string expand(const std::string& text);

    std::unique_ptr<DtWriterSettings> mySettings;
    std::unique_ptr<DtMapSubstitute> myRoot;
};

namespace
{
// Expands texts in memory.
class DtMemoryContextWriter : public DtUniversalFileWriter
{
public:
    explicit DtMemoryContextWriter(DtMapSubstitute* root) : DtUniversalFileWriter("", "", root)
    {
        myStream.attachPrinter(&myCollected);
    }
    ~DtMemoryContextWriter() override { myStream.detachPrinter(&myCollected); }

    std::string expand(const std::string& text)
    {
        DtTemplateStream in;
        in.open(text);
        writeFileStream(in);
        return myCollected.text();
    }

private:
    DtTextPrinter myCollected;
};

// Entries of these names, each with its own name under "Name".
void fillList(DtMapSubstitute& list, const QStringList& names)
{
    for (const QString& name : names)
        list.putMap(name.toUtf8().constData()).put("Name", DtString(name.toUtf8().constData()));
}
} // namespace

#define COMPARE_EXPANSION(text, expected) QCOMPARE(QString::fromStdString(expand(text)), QString(expected))

void TestContextWriter::init()
{
    mySettings = std::make_unique<DtWriterSettings>();
    myRoot = std::make_unique<DtMapSubstitute>();
}

void TestContextWriter::cleanup()
{
    myRoot.reset();
    mySettings.reset();
}

std::string TestContextWriter::expand(const std::string& text)
{
    return DtMemoryContextWriter(myRoot.get()).expand(text);
}

void TestContextWriter::workedExample()
{
    myRoot->put("Name", "Pos");
    DtMapSubstitute& fields = myRoot->putMap("Fields");
    fields.putMap("x").put("Type", "int");
    fields.putMap("y").put("Type", "long");
    COMPARE_EXPANSION("struct <!Name!> {\n"
                      "<#Fields>\n"
                      "|  <!Type!> f<!index0!>;<?notlast> // more<?>\n"
                      "<#>\n"
                      "|};\n",
                      "struct Pos {\n"
                      "  int f0; // more\n"
                      "  long f1;\n"
                      "};\n");
}

void TestContextWriter::tokenHasTheValueOfTheInnermostContext()
{
    myRoot->put("A", "outer");
    myRoot->put("B", "root");
    DtMapSubstitute& list = myRoot->putMap("List");
    list.put("A", "list");
    list.put("C", "too");
    list.clear();
    list.putMap("one").put("A", "inner");
    COMPARE_EXPANSION("<!A!><#List> <!A!> <!B!> <#><!A!>", "outer inner root outer");
}

void TestContextWriter::mapHidesTheTextOutsideOfIt()
{
    myRoot->put("A", "text");
    myRoot->putMap("List").putMap("one").putMap("A");
    COMPARE_EXPANSION("<!A!><#List><!A!><?exists <!A!>>no<?><#>", "text<!A!>");
}

void TestContextWriter::unknownTokenStaysInLine()
{
    myRoot->put("A", "x");
    COMPARE_EXPANSION("<!B!><!A!><!a!><!!><! A!>", "<!B!>x<!a!><!!><! A!>");
}

void TestContextWriter::indexCountsPassesInAnyLetterCase()
{
    fillList(myRoot->putMap("List"), {"a", "b"});
    COMPARE_EXPANSION("<!index0!><!index1!>;<#List><!index0!><!INDEX0!><!Index1!> <#>;<!index0!>", "01;001 112 ;0");
}

void TestContextWriter::contextEntryGoesAheadOfTheIndex()
{
    DtMapSubstitute& list = myRoot->putMap("List");
    list.putMap("a").put("index0", "own");
    list.putMap("b").putMap("index0"); // a map is no value for a token
    COMPARE_EXPANSION("<#List><!index0!> <!INDEX0!> <#>", "own 0 1 1 ");
}

void TestContextWriter::tokensAreReplacedInTheOrderOfTheLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("expansion");
    const struct
    {
        const char* name;
        QString line, expansion;
    } theRows[] = {
        {"value on the line is replaced in turn", "<!A!> <!B!>",        "b b"                           },
        {"but not one that came before",          "<!B!> <!A!>",        "b <!B!>"                       },
        {"unless it comes again",                 "<!B!> <!A!> <!B!>",  "b b b"                         },
        {"value that is not on the line stays",   "<!A!>",              "<!B!>"                         },
        {"chain",                                 "<!C!> <!A!> <!B!>",  "b b b"                         },
        {"value that names itself ends",          "<!Self!>",           "<!Self!>"                      },
        {"and grows with each repeat",            "<!Self2!><!Self2!>", QString("<!Self2!>").repeated(8)},
        {"halves that join",                      "<!Half!>B!> <!B!>",  "b b"                           },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.line << row.expansion;
}

void TestContextWriter::tokensAreReplacedInTheOrderOfTheLine()
{
    myRoot->put("A", "<!B!>");
    myRoot->put("B", "b");
    myRoot->put("C", "<!A!>");
    myRoot->put("Self", "<!Self!>");
    myRoot->put("Self2", "<!Self2!><!Self2!>");
    myRoot->put("Half", "<!");
    QFETCH(QString, line);
    QTEST(QString::fromStdString(expand(line.toStdString())), "expansion");
}

void TestContextWriter::baseTokensComeLast()
{
    DtFileWriter::setGenerate64Bit(true);
    myRoot->put("A", "<!BitCount!>");
    COMPARE_EXPANSION("<!A!> <!BitCount!>", "64 64");
    myRoot->put("BitCount", "own <!A!>");
    COMPARE_EXPANSION("<!BitCount!>", "own <!A!>");
    COMPARE_EXPANSION("plain", "plain");
}

void TestContextWriter::openingWithoutEndEndsTheNames()
{
    myRoot->put("A", "x");
    myRoot->put("B <!A", "joined");
    COMPARE_EXPANSION("<!A!> <!A", "x <!A");
    COMPARE_EXPANSION("<!", "<!");
    COMPARE_EXPANSION("<!>", "<!>");
    COMPARE_EXPANSION("!><!A!>", "!>x");
    COMPARE_EXPANSION("<!B <!A!>", "joined"); // the name reaches from the first opening to the end
    COMPARE_EXPANSION("<!C <!A!>", "<!C <!A!>");
    COMPARE_EXPANSION("<!C <!BitCount!>", "<!C 64");
}

void TestContextWriter::manyTokensOnOneLine()
{
    myRoot->put("A", "x");
    std::string operand;
    for (int count = 0; count < 20000; ++count)
        operand += "<!A!>\n";
    QElapsedTimer time;
    time.start();
    DtMemoryContextWriter writer(myRoot.get());
    DtString line(operand);
    writer.decodeFileLine(line);
    QCOMPARE(int(line.length()), 40000);
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
}

void TestContextWriter::valuesThatNameEachOtherDoNotGrowForEver()
{
    std::string tokens;
    for (int count = 0; count < 20000; ++count)
        tokens += "<!B!>";
    myRoot->put("A", DtString(tokens)); // with all of them replaced, twenty thousand megabytes
    myRoot->put("B", DtString(std::string(1000000, 'x')));
    DtString line("<!A!><!B!>");
    DtMemoryContextWriter(myRoot.get()).decodeFileLine(line);
    QVERIFY(line.length() > 16000000 && line.length() < 20000000);
    QVERIFY(line.stdString().find("x<!B!><!B!>") != std::string::npos);
}

void TestContextWriter::safeFormsAreNoTokens()
{
    const char* const text = "<!BitCount!> <!NoteQuoted!> <";
    myRoot->putSafeForms("Text", text);
    myRoot->putSafeForms("Note", "!BitCount!>");
    COMPARE_EXPANSION("<!TextHtml!> <!NoteHtml!>", "&lt;!BitCount!&gt; &lt;!NoteQuoted!&gt; &lt; !BitCount!&gt;");
    COMPARE_EXPANSION("<!TextQuoted!><!NoteQuoted!>", "\\u003c!BitCount!> \\u003c!NoteQuoted!> \\u003c!BitCount!>");
}

void TestContextWriter::loopOverNothingIsPassedOver()
{
    myRoot->put("Text", "x");
    COMPARE_EXPANSION("a<#None>b<#>c<#Text>d<#>e", "ace");
}

void TestContextWriter::numberIsNoLoop()
{
    COMPARE_EXPANSION("a<#3>b<#>c", "ac");
    fillList(myRoot->putMap("3"), {"one"});
    COMPARE_EXPANSION("a<#3>b<#>c", "abc");
}

void TestContextWriter::emptyMapExpandsNothing()
{
    fillList(myRoot->putMap("List"), {"a", "b"});
    myRoot->putMap("Empty");
    DtMemoryContextWriter writer(myRoot.get());
    QCOMPARE(QString::fromStdString(writer.expand("<#List><#Empty>x<#><!Name!><!index0!><?last>.<?><#>")),
             QString("a0b1."));
    QCOMPARE(writer.context(), myRoot.get());
}

void TestContextWriter::nestedLoopPutsBackIndexAndFlags()
{
    fillList(myRoot->putMap("Outer"), {"a", "b", "c"});
    fillList(myRoot->putMap("Inner"), {"x", "y"});
    COMPARE_EXPANSION("<#Outer><?first>[<?><!index0!>:<#Inner><?notfirst>,<?><!index0!><#><!index1!><?notlast>;<?>"
                      "<?last>]<?><#>",
                      "[0:0,11;1:0,12;2:0,13]");
}

void TestContextWriter::onlyPassIsFirstAndLast()
{
    fillList(myRoot->putMap("List"), {"a"});
    COMPARE_EXPANSION("<#List><?first>f<?><?last>l<?><?notfirst>x<?><?notlast>x<?><#>", "fl");
}

void TestContextWriter::outsideOfLoopsNotFirstAndNotLastHold()
{
    fillList(myRoot->putMap("List"), {"a"});
    COMPARE_EXPANSION("<?first>f<?><?last>l<?><?notfirst>F<?><?notlast>L<?>", "FL");
    COMPARE_EXPANSION("<#List>x<#><?first>f<?><?last>l<?><?notfirst>F<?><?notlast>L<?>", "xFL");
}

void TestContextWriter::equalKeysExpandTheFirstMapTwice()
{
    DtMapSubstitute& list = myRoot->putMap("List");
    list.putMap("a").put("Name", "first");
    list.putMap("a").put("Name", "second");
    COMPARE_EXPANSION("<#List><!Name!><!index0!> <#>", "first0 first1 ");
}

void TestContextWriter::loopHeaderIsNotDivided()
{
    fillList(myRoot->putMap("A").putMap("B"), {"b"});
    COMPARE_EXPANSION("[<#A|B><!Name!><#>]", "[]");
    fillList(myRoot->putMap("A|B"), {"whole"});
    DtMemoryContextWriter writer(myRoot.get());
    QCOMPARE(QString::fromStdString(writer.expand("[<#A|B><!Name!><#>]")), QString("[whole]"));
    QCOMPARE(writer.context(), myRoot.get());
}

void TestContextWriter::namesOfEntriesAreNotDivided()
{
    myRoot->put("After", "after");
    fillList(myRoot->putMap("List"), {"a|b", "|", "c", "a|"});
    DtMemoryContextWriter writer(myRoot.get());
    QCOMPARE(QString::fromStdString(writer.expand("<#List><!Name!> <#><!After!>")), QString("a|b | c a| after"));
    QCOMPARE(writer.context(), myRoot.get());
}

// Such a list is a misuse. It takes contexts from those around it, and nothing else comes of it.
void TestContextWriter::textAmongTheEntriesTakesAContextAway()
{
    myRoot->put("A", "x");
    DtMapSubstitute& list = myRoot->putMap("List");
    list.put("text", "t");
    list.putMap("map").put("Name", "m");
    DtMemoryContextWriter writer(myRoot.get());
    QCOMPARE(QString::fromStdString(writer.expand("<#List><!A!><!Name!> <#><!A!>")),
             QString("x<!Name!> x<!Name!> <!A!>"));
    QVERIFY(writer.context() == nullptr);
    QCOMPARE(QString::fromStdString(writer.expand("<#List>y<#>")), QString("x<!Name!> x<!Name!> <!A!>"));
}

void TestContextWriter::loopSeesOutwards()
{
    myRoot->put("Root", "r");
    DtMapSubstitute& list = myRoot->putMap("List");
    DtMapSubstitute& entry = list.putMap("one");
    entry.put("Own", "o");
    entry.putMap("Inner").putMap("deep").put("Deep", "d");
    COMPARE_EXPANSION("<#List><#Inner><!Deep!><!Own!><!Root!><#><#>", "dor");
}

void TestContextWriter::loopOverAFile()
{
    const DtContextFixture fixture;
    fixture.writeTemplate("part.tlt", "<!Name!>\n");
    fillList(myRoot->putMap("List"), {"a", "b"});
    COMPARE_EXPANSION("<#List#../data/templates/part.tlt#>|", "a\nb\n|");
    COMPARE_EXPANSION("<?notlast?../data/templates/part.tlt?>", "<!Name!>\n");
}

void TestContextWriter::fileThatReachesItselfStopsAtDepth64()
{
    const DtContextFixture fixture;
    fixture.writeTemplate("self.tlt", "x<#List#../data/templates/self.tlt#>");
    fillList(myRoot->putMap("List"), {"a", "b", "c"});
    const DtCapture warnings(DtWarn);
    const QString text = QString::fromStdString(expand("<#List#../data/templates/self.tlt#>"));
    QCOMPARE(warnings.text().count("includes itself"), 1);
    QCOMPARE(warnings.text().count('\n'), 1);
    QCOMPARE(text, QString(3 * 64, 'x').left(text.size()));
    QVERIFY(text.size() >= 64 && text.size() <= 3 * 64);
}

void TestContextWriter::manyPassesAreQuick()
{
    DtMapSubstitute& list = myRoot->putMap("List");
    const int count = 30000;
    for (int number = 0; number < count; ++number)
        list.putMap(DtString("entry") + DtString(number)).put("Value", DtString(number));
    QElapsedTimer time;
    time.start();
    const std::string text = expand("<#List><!Value!><!Unknown!>\n<#>");
    QCOMPARE(int(std::count(text.begin(), text.end(), '\n')), count);
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
}

void TestContextWriter::mapDoesNotExist()
{
    myRoot->putMap("Map");
    myRoot->put("Text", "t");
    myRoot->put("Empty", "");
    COMPARE_EXPANSION("<?exists <!Map!>>m<?><?notexists <!Map!>>n<?><?exists <!Text!>>t<?><?exists <!Empty!>>e<?>",
                      "nt");
}

void TestContextWriter::otherVerbsAreThoseOfTheBase_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<bool>("holds");
    QTest::newRow("first") << "first" << true;
    QTest::newRow("first with more behind it") << "first of all" << true;
    QTest::newRow("blank in front") << " first" << false;
    QTest::newRow("capital") << "First" << false;
    QTest::newRow("equals") << "equals <!A!> x" << true;
    QTest::newRow("not equals") << "notequals <!A!> x" << false;
    QTest::newRow("greater than") << "greaterthan <!index1!> 0" << true;
    QTest::newRow("unknown") << "firstly" << false;
    QTest::newRow("empty") << "" << false;
}

void TestContextWriter::otherVerbsAreThoseOfTheBase()
{
    myRoot->put("A", "x");
    fillList(myRoot->putMap("List"), {"a"});
    QFETCH(QString, header);
    QFETCH(bool, holds);
    COMPARE_EXPANSION("<#List><?" + header.toStdString() + ">yes<?><#>", holds ? "yes" : "");
}

void TestContextWriter::pushContextEntersOneMapAfterTheOther()
{
    DtMapSubstitute& a = myRoot->putMap("A");
    DtMapSubstitute& b = a.putMap("B");
    b.put("Where", "b");
    a.put("Where", "a");
    myRoot->put("Where", "root");
    DtUniversalFileWriter writer("", "", myRoot.get());
    writer.pushContext("A|None|Where|B");
    QCOMPARE(writer.context(), &b);
    writer.popContext();
    QCOMPARE(writer.context(), &a);
    writer.popContext();
    writer.pushContext("B");
    QCOMPARE(writer.context(), myRoot.get());
}

void TestContextWriter::emptyPieceIsAName()
{
    DtMapSubstitute& empty = myRoot->putMap("");
    DtMapSubstitute& a = myRoot->putMap("A");
    DtUniversalFileWriter writer("", "", myRoot.get());
    writer.pushContext("A|");
    QCOMPARE(writer.context(), &empty);
    writer.popContext();
    QCOMPARE(writer.context(), &a);
    writer.pushContext("");
    QCOMPARE(writer.context(), &empty);
}

void TestContextWriter::popContextLeavesOneMap()
{
    DtMapSubstitute& a = myRoot->putMap("A");
    a.putMap("B");
    DtUniversalFileWriter writer("", "", myRoot.get());
    writer.pushContext("A|B");
    writer.popContext();
    QCOMPARE(writer.context(), &a);
}

void TestContextWriter::popContextOnAnEmptyStackDoesNothing()
{
    myRoot->put("A", "x");
    DtMemoryContextWriter writer(myRoot.get());
    writer.popContext();
    writer.popContext();
    QVERIFY(writer.context() == nullptr);
    QVERIFY(writer.lookup("A") == nullptr && writer.lookupString("A") == nullptr && writer.lookupMap("A") == nullptr);
    QCOMPARE(QString::fromStdString(writer.expand("<!A!><!index0!>")), QString("<!A!>0"));
}

void TestContextWriter::withoutARootNothingIsFound()
{
    DtMemoryContextWriter writer(nullptr);
    QCOMPARE(QString::fromStdString(writer.expand("<!A!><#A>x<#>")), QString("<!A!>"));
}

void TestContextWriter::fileIsWritten()
{
    const DtContextFixture fixture;
    fixture.writeTemplate("list.tlt", "<#List>\n|<!Name!>\n<#>\n|end\n");
    fillList(myRoot->putMap("List"), {"a", "b"});
    {
        DtUniversalFileWriter writer("list.txt", "../data/templates/list.tlt", myRoot.get());
        writer.writeFile();
    }
    QCOMPARE(fixture.output("list.txt"), QString("a\nb\nend\n"));
}

QX_REGISTER_TEST(TestContextWriter)
#include "testContextWriter.moc"
