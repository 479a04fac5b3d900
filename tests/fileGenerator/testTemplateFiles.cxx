// The shipped templates and their documentation against the tokens and loops of the writers that open them, and the
// shipped project templates as they come out.

#include "registerTest.h"

#include "generatorFixture.h"
#include "scannedTemplate.h"
#include "shippedScripts.h"

#include "fileGenerator/examplesProjWriter.h"
#include "fileGenerator/projectFileWriter.h"

#include <QtCore/QXmlStreamReader>
#include <QtTest/QtTest>

namespace
{
using Names = DtTemplateRules::Names;

const QString theTemplates = QStringLiteral(QX_SOURCE_DIR "/data/templates");

// But for those of command files, which have tests of their own.
QStringList shippedTemplates()
{
    const QStringList directories = scriptTemplateDirectories();
    QStringList names;
    for (QDirIterator each(theTemplates, QDir::Files, QDirIterator::Subdirectories); each.hasNext();)
    {
        const QString name = QDir(theTemplates).relativeFilePath(each.next());
        if (name.endsWith(QStringLiteral(".tlt")) && !directories.contains(QFileInfo(name).path()))
            names += name;
    }
    names.sort();
    return names;
}

void shipTemplates(const DtGeneratorFixture& fixture)
{
    for (const QString& name : shippedTemplates())
        fixture.writeTemplate(name, readTextFile(theTemplates + "/" + name));
}

DtScannedTemplate scanShipped(const std::string& name)
{
    return DtScannedTemplate(DtRulesOfTemplate(name), QString::fromStdString(name));
}

Names allTokens()
{
    Names tokens;
    for (const std::string& name : DtWrittenTemplates())
        tokens.merge(DtRulesOfTemplate(name).allTokens());
    return tokens;
}

QString documentation()
{
    return QString::fromUtf8(readTextFile(QStringLiteral(QX_SOURCE_DIR "/docs/templates.md")));
}

Names documentedTokens(const QString& page)
{
    static const QRegularExpression theToken(QStringLiteral("<![A-Za-z0-9]+!>"));
    Names tokens;
    for (auto each = theToken.globalMatch(page); each.hasNext();)
        tokens.insert(each.next().captured().toStdString());
    return tokens;
}

QString listed(const Names& names, const Names& without)
{
    QStringList rest;
    for (const std::string& name : names)
        if (without.count(name) == 0)
            rest += QString::fromStdString(name);
    return rest.join(' ');
}

// A small writer's rules, for texts with one fault each.
DtTemplateRules smallRules()
{
    DtTemplateRules rules;
    rules.freeTokens = {"<!Name!>", "<!DatatypeFile!>"};
    rules.loops = {
        {"Outer", {"<!Part!>"}},
        {"Inner", {}          }
    };
    rules.parents = {
        {"Inner", "Outer"}
    };
    return rules;
}

QStringList scanSmall(const QByteArray& text)
{
    return DtScannedTemplate(smallRules(), "t", text).faults();
}

struct FileElements
{
    QStringList names; // of the Include attributes of file elements
    QString error;
};

FileElements readProject(const QByteArray& text)
{
    FileElements elements;
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
    {
        const bool isStart = reader.readNext() == QXmlStreamReader::StartElement;
        if (isStart && (reader.name() == QLatin1String("ClCompile") || reader.name() == QLatin1String("ClInclude")) &&
            reader.attributes().hasAttribute(QStringLiteral("Include")))
            elements.names += reader.attributes().value(QStringLiteral("Include")).toString();
    }
    elements.error = reader.errorString();
    return elements;
}
} // namespace

Q_DECLARE_METATYPE(std::string)

class TestTemplateFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scannerTakesEveryConstruct();
    void scannerFindsFault_data();
    void scannerFindsFault();
    void everyTemplateIsOpenedBySomeWriter();
    void templateHoldsWhatItsWriterKnows_data();
    void templateHoldsWhatItsWriterKnows();
    void linesAreShortAndHaveNoCarriageReturn_data() { addShipped(); }
    void linesAreShortAndHaveNoCarriageReturn();
    void projectTemplatesHaveNoDeclarationAndNoComment_data();
    void projectTemplatesHaveNoDeclarationAndNoComment();
    void projectTemplateGivesWellFormedXml_data();
    void projectTemplateGivesWellFormedXml();
    void projectBuildsOneProtocolAtATime();
    void exampleProjectGivesWellFormedXml_data();
    void exampleProjectGivesWellFormedXml();
    void everyTokenIsDocumented();
    void everyDocumentedTokenIsKnown();
    void everyTemplateAndLoopIsDocumented();

private:
    static void addShipped()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : shippedTemplates())
            QTest::newRow(qPrintable(name)) << name;
    }
};

void TestTemplateFiles::scannerTakesEveryConstruct()
{
    QCOMPARE(scanSmall("a <!Name!>\n<#2>\n|x<#>\n<#Outer>\n|<!Part!><#Inner>.<#>\n<?exists <!Part!>>y<?>\n<#>\n"
                       "<?equals <!Name!><!Name!> 1>z<?>\n"),
             QStringList());
}

void TestTemplateFiles::scannerFindsFault_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const auto add = [](const char* text, const char* fault)
    { QTest::newRow(text) << QByteArray(text) << QString::fromUtf8(fault); };
    add("a\n<!Nam!>", "t:2: the writer does not know <!Nam!>. Did you mean <!Name!>?");
    add("<!Part!>", "t:1: <!Part!> has no value outside of its loop");
    add("<?exists <!Part!>>x<?>", "t:1: <!Part!> has no value outside of its loop");
    add("<?exists <!Other!>>x<?>", "t:1: the writer does not know <!Other!>");
    add("a <! b", "t:1: no token follows <!");
    add("<!-- b -->", "t:1: no token follows <!");
    add("<#Other>x<#>", "t:1: the writer does not know the loop Other");
    add("<#Outer><#Outer>x<#><#>", "t:1: the loop stands inside itself: Outer");
    add("<#Inner>x<#>", "t:1: Inner stands outside of Outer");
    add("<?missing <!Name!>>x<?>", "t:1: the writer does not know the verb in: missing <!Name!>");
    add("<? exists <!Name!>>x<?>", "t:1: the writer does not know the verb in:  exists <!Name!>");
    add("<?exists>x<?>", "t:1: the number of operands is wrong in: exists");
    add("<?equals <!Name!> >x<?>", "t:1: the number of operands is wrong in: equals <!Name!> ");
    add("<?exists <!DatatypeFile!>>x<?>", "t:1: <!DatatypeFile!> is never missing");
    add("<#2>x", "t:1: the block is not closed: <#");
    add("x<?>", "t:1: <?> closes no block");
    add("<#2><?exists a><#><?>", "t:1: <#> closes no block");
    add("<#Outer", "t:1: the header has no end");
    add("<#1#../data/templates/none.tlt#>", "t:1: no such file: ../data/templates/none.tlt");
    add("<#1#dllExport.tlt#>", "t:1: no such file: dllExport.tlt");
    add("<#1#dllExport.tlt", "t:1: the path of a file block has no end");
    add("x #> y", "t:1: the end of a file block stands alone");
    add("|x", "t:1: a bar at the very start is plain text");
    add("<#2>|x<#>", "t:1: a bar behind a header is plain text");
}

void TestTemplateFiles::scannerFindsFault()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    QCOMPARE(scanSmall(text).value(0), fault);
}

void TestTemplateFiles::everyTemplateIsOpenedBySomeWriter()
{
    std::set<QString> opened;
    for (const std::string& name : DtWrittenTemplates())
    {
        opened.insert(QString::fromStdString(name));
        opened.merge(scanShipped(name).includedNames());
    }
    const QStringList shipped = shippedTemplates();
    QCOMPARE(shipped, QStringList(opened.begin(), opened.end()));
}

void TestTemplateFiles::templateHoldsWhatItsWriterKnows_data()
{
    QTest::addColumn<std::string>("name");
    for (const std::string& name : DtWrittenTemplates())
        QTest::newRow(name.c_str()) << name;
}

void TestTemplateFiles::templateHoldsWhatItsWriterKnows()
{
    QFETCH(std::string, name);
    const QStringList faults = scanShipped(name).faults();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    QVERIFY(!readTextFile(theTemplates + "/" + name.c_str()).isEmpty());
}

// Templates are read in pieces of 299 bytes, and what stands across the end of one is not seen.
void TestTemplateFiles::linesAreShortAndHaveNoCarriageReturn()
{
    QFETCH(QString, name);
    const QByteArray text = readTextFile(theTemplates + "/" + name);
    QVERIFY(!text.contains('\r'));
    for (const QByteArray& line : text.split('\n'))
        QVERIFY2(line.size() <= 298, line.constData());
}

void TestTemplateFiles::projectTemplatesHaveNoDeclarationAndNoComment_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name :
         shippedTemplates().filter(QRegularExpression("project|ExProj", QRegularExpression::CaseInsensitiveOption)))
        QTest::newRow(qPrintable(name)) << name;
}

void TestTemplateFiles::projectTemplatesHaveNoDeclarationAndNoComment()
{
    QFETCH(QString, name);
    const QByteArray text = readTextFile(theTemplates + "/" + name);
    for (const char* markup : {"<?xml", "<!--", "<![CDATA[", "<!DOCTYPE"})
        QVERIFY2(!text.contains(markup), markup);
}

void TestTemplateFiles::projectTemplateGivesWellFormedXml_data()
{
    QTest::addColumn<int>("compiler");
    QTest::addColumn<QByteArray>("toolset");
    QTest::addColumn<QByteArray>("platform");
    QTest::newRow("4") << 4 << QByteArray("v100") << QByteArray("Win32");
    QTest::newRow("5") << 5 << QByteArray("v100") << QByteArray("x64");
    QTest::newRow("6") << 6 << QByteArray("v120") << QByteArray("Win32");
    QTest::newRow("7") << 7 << QByteArray("v120") << QByteArray("x64");
    QTest::newRow("8") << 8 << QByteArray("v140") << QByteArray("Win32");
    QTest::newRow("9") << 9 << QByteArray("v140") << QByteArray("x64");
    QTest::newRow("another") << 1 << QByteArray("<GeneratedToolset></GeneratedToolset>") << QByteArray("Win32");
}

void TestTemplateFiles::projectTemplateGivesWellFormedXml()
{
    QFETCH(int, compiler);
    QFETCH(QByteArray, toolset);
    QFETCH(QByteArray, platform);
    const DtGeneratorFixture fixture;
    shipTemplates(fixture);
    const std::set<DtString> files = {"DataTypes/point.cxx", "DataTypes/point.h", "dllExport.h", "shipEncoderHLA.cxx"};
    {
        DtProjectFileWriter writer("p.vcxproj", files, compiler);
        writer.setProjectName("harbour");
        writer.writeFile();
    }
    const QByteArray xml = fixture.output("p.vcxproj").toUtf8();
    FileElements elements = readProject(xml);
    QCOMPARE(elements.error, QString());
    elements.names.sort();
    QCOMPARE(elements.names,
             QStringList({"DataTypes/point.cxx", "DataTypes/point.h", "dllExport.h", "shipEncoderHLA.cxx"}));
    QVERIFY(xml.contains("MODEL_EXPORTS") && xml.contains("harbour"));
    QVERIFY2(xml.contains(toolset) && xml.contains(platform), xml.constData());
    for (const char* opening : {"<!", "<#", "<?", "\n|"})
        QVERIFY2(!xml.contains(opening), opening);
}

// HLA and DIS classes have the same names, so with both in the list the sources of one of them are taken out again.
void TestTemplateFiles::projectBuildsOneProtocolAtATime()
{
    const std::set<DtString> files = {"shipPdu.cxx", "shipPublisherDIS.cxx", "shipPublisherHLA.cxx"};
    for (const bool dis : {true, false})
    {
        const DtGeneratorFixture fixture;
        shipTemplates(fixture);
        {
            DtProjectFileWriter writer("p.vcxproj", files, 9);
            writer.setGenerateDis(dis);
            writer.writeFile();
        }
        const QByteArray xml = fixture.output("p.vcxproj").toUtf8();
        const FileElements elements = readProject(xml);
        QCOMPARE(elements.error, QString());
        QCOMPARE(elements.names, QStringList({"shipPdu.cxx", "shipPublisherDIS.cxx", "shipPublisherHLA.cxx"}));
        QCOMPARE(xml.contains("<ClCompile Remove=\"*DIS.cxx;*Pdu.cxx\" />"), dis);
        QCOMPARE(xml.contains("<ClCompile Remove=\"*HLA.cxx\" />"), dis);
        QCOMPARE(xml.contains("<GeneratedProtocol>HLA</GeneratedProtocol>"), !dis);
    }
}

void TestTemplateFiles::exampleProjectGivesWellFormedXml_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("identifier");
    QTest::addColumn<bool>("dis");
    for (const bool dis : {false, true})
    {
        QTest::newRow(dis ? "talk with DIS" : "talk") << "talk" << 1 << dis;
        QTest::newRow(dis ? "listen with DIS" : "listen") << "listen" << 2 << dis;
    }
}

void TestTemplateFiles::exampleProjectGivesWellFormedXml()
{
    QFETCH(QString, program);
    QFETCH(int, identifier);
    QFETCH(bool, dis);
    const DtGeneratorFixture fixture;
    shipTemplates(fixture);
    DtOmtObject ship;
    ship.setName("Ship");
    {
        DtExamplesProjectFileWriter writer("p.vcxproj", (program + "ExProjVC14_64.tlt").toLatin1().constData(), ship);
        writer.setLibraryName("harbour");
        writer.setGenerateDis(dis);
        writer.writeFile();
    }
    const QByteArray xml = fixture.output("p.vcxproj").toUtf8();
    const FileElements elements = readProject(xml);
    QCOMPARE(elements.error, QString());
    QCOMPARE(elements.names, QStringList(program + ".cxx"));
    const QString identity = QString("<ProjectGuid>{%1}</ProjectGuid>").arg(ship.uuid(identifier).c_str());
    QVERIFY2(xml.contains(identity.toLatin1()), xml.constData());
    QVERIFY(xml.contains("<AdditionalDependencies>harbour$(GeneratedProtocol).lib;"));
    QVERIFY(xml.contains(";DT_DLL_MODEL_SHARED;"));
    QCOMPARE(xml.contains("<GeneratedProtocol>HLA</GeneratedProtocol>"), !dis);
    for (const char* opening : {"<!", "<#", "<?", "\n|"})
        QVERIFY2(!xml.contains(opening), opening);
}

void TestTemplateFiles::everyTokenIsDocumented()
{
    QCOMPARE(listed(allTokens(), documentedTokens(documentation())), QString());
}

void TestTemplateFiles::everyDocumentedTokenIsKnown()
{
    const Names documented = documentedTokens(documentation());
    QVERIFY(!documented.empty());
    QCOMPARE(listed(documented, allTokens()), QString());
}

void TestTemplateFiles::everyTemplateAndLoopIsDocumented()
{
    const QString page = documentation();
    Names loops;
    for (const std::string& name : DtWrittenTemplates())
    {
        QVERIFY2(page.contains(QString("`%1`").arg(name.c_str())), name.c_str());
        for (const auto& [loop, tokens] : DtRulesOfTemplate(name).loops)
            loops.insert(loop);
    }
    for (const std::string& loop : loops)
        QVERIFY2(page.contains(QString("`%1`").arg(loop.c_str())), loop.c_str());
}

QX_REGISTER_TEST(TestTemplateFiles)
#include "testTemplateFiles.moc"
