#include "registerTest.h"

#include "generatorFixture.h"

#include "fileGenerator/makeFileWriter.h"
#include "fileGenerator/projectFileWriter.h"
#include "fileGenerator/solutionsFileWriter.h"

#include <QtTest/QtTest>

// Project file, makefile with its lists, and solution of the generated library.
class TestBuildProducts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void compilerCodePicksProjectTemplate_data();
    void compilerCodePicksProjectTemplate();
    void filesLoopNamesAllFilesInOrder();
    void headerLoopNamesHeadersBelowIncludePath();
    void sourceLoopNamesSourcesOnly();
    void datatypeFileIsOneOrZero();
    void fileTokensStayOutsideTheLoops();
    void projectTokensAreKnownEverywhere();
    void disTokenIsOneOrEmpty();
    void otherProjectLoopCounts();
    void makefileTokensAreReplaced();
    void archiveIsNamedAfterTheWholeBaseName();
    void headersAndOtherFilesAreListedApart();
    void fileListsExistFromConstruction();
    void fileListsLeaveIncludePathOut();
    void solutionNamesEverySelectedClass();
    void classWithoutParentPathIsNoProject();
    void solutionIdentifiersAreThoseOfTheRecord();
    void recordTokensStayOutsideTheLoops();
    void solutionNamesAreIdentifiers();
    void projectNameOfSolutionStartsAsBaseName();
    void otherSolutionLoopCounts();
    void solutionWithoutRecordsHasNoPass();
    void knownTokensAreThoseThatAreReplaced();

private:
    QString writeProject(const QByteArray& text, const std::set<DtString>& files, bool dis = false);
    QString writeSolution(const QByteArray& text, const std::set<DtOmtObject>& objects,
                          const std::set<DtOmtInteraction>& interactions = {});

    std::unique_ptr<DtGeneratorFixture> myFixture;
    const std::set<DtString> myFiles = {"DataTypes/foo.cxx", "DataTypes/foo.h", "aEncoderHLA.cxx", "aEncoderHLA.h"};
};

namespace
{
template <typename Record>
Record makeRecord(const DtString& fullName, const DtString& name)
{
    Record record;
    record.setFullName(fullName);
    record.setName(name);
    return record;
}
} // namespace

void TestBuildProducts::init()
{
    myFixture = std::make_unique<DtGeneratorFixture>();
}

void TestBuildProducts::cleanup()
{
    myFixture.reset();
}

QString TestBuildProducts::writeProject(const QByteArray& text, const std::set<DtString>& files, bool dis)
{
    myFixture->writeTemplate("projectFileVC14_64.tlt", text);
    {
        DtProjectFileWriter writer("p.vcxproj", files, 9);
        writer.setProjectName("model");
        writer.setGenerateDis(dis);
        writer.writeFile();
    }
    return myFixture->output("p.vcxproj");
}

QString TestBuildProducts::writeSolution(const QByteArray& text, const std::set<DtOmtObject>& objects,
                                         const std::set<DtOmtInteraction>& interactions)
{
    myFixture->writeTemplate("solutionVC14_64.tlt", text);
    {
        DtSolutionsFileWriter writer("s.sln", "solutionVC14_64.tlt");
        writer.setObjects(objects);
        writer.setInteractions(interactions);
        writer.writeFile();
    }
    return myFixture->output("s.sln");
}

void TestBuildProducts::compilerCodePicksProjectTemplate_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("below the table") << 3 << "projectFile.tlt";
    QTest::newRow("4") << 4 << "projectFileVC10.tlt";
    QTest::newRow("5") << 5 << "projectFileVC10_64.tlt";
    QTest::newRow("6") << 6 << "projectFileVC12.tlt";
    QTest::newRow("7") << 7 << "projectFileVC12_64.tlt";
    QTest::newRow("8") << 8 << "projectFileVC14.tlt";
    QTest::newRow("9") << 9 << "projectFileVC14_64.tlt";
    QTest::newRow("above the table") << 10 << "projectFile.tlt";
}

void TestBuildProducts::compilerCodePicksProjectTemplate()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    for (const char* all : {"projectFile.tlt", "projectFileVC10.tlt", "projectFileVC10_64.tlt", "projectFileVC12.tlt",
                            "projectFileVC12_64.tlt", "projectFileVC14.tlt", "projectFileVC14_64.tlt"})
        myFixture->writeTemplate(all, all);
    DtProjectFileWriter("p.vcxproj", myFiles, code).writeFile();
    QCOMPARE(myFixture->output("p.vcxproj"), name);
}

void TestBuildProducts::filesLoopNamesAllFilesInOrder()
{
    QCOMPARE(writeProject("<#Files>[<!FileName!>]<#>", myFiles),
             QString("[DataTypes/foo.cxx][DataTypes/foo.h][aEncoderHLA.cxx][aEncoderHLA.h]"));
}

void TestBuildProducts::headerLoopNamesHeadersBelowIncludePath()
{
    DtOMTEnvWriter::setIncludeName("kit");
    QCOMPARE(writeProject("<#FilesH>[<!FileName!>]<#><#Files>[<!FileName!>]<#>", {"a.cxx", "a.h", "a.hpp", "h"}),
             QString("[kit/a.h][a.cxx][a.h][a.hpp][h]"));
}

void TestBuildProducts::sourceLoopNamesSourcesOnly()
{
    DtOMTEnvWriter::setIncludeName("kit");
    QCOMPARE(writeProject("<#FilesCXX>[<!FileName!>]<#>", {"a.cpp", "a.cxx", "a.h", "b.cxx"}),
             QString("[a.cxx][b.cxx]"));
}

void TestBuildProducts::datatypeFileIsOneOrZero()
{
    QCOMPARE(writeProject("<#FilesCXX>[<!FileName!> <!DatatypeFile!>]<#>", myFiles),
             QString("[DataTypes/foo.cxx 1][aEncoderHLA.cxx 0]"));
}

void TestBuildProducts::fileTokensStayOutsideTheLoops()
{
    QCOMPARE(writeProject("<!FileName!><#FilesH>.<#><!DatatypeFile!>", myFiles),
             QString("<!FileName!>..<!DatatypeFile!>"));
}

void TestBuildProducts::projectTokensAreKnownEverywhere()
{
    QCOMPARE(writeProject("<!ProjectName!> <!DllExport!> <!noDtDllExport!><#FilesCXX>(<!ProjectName!>)<#>", myFiles),
             QString("model MODEL_EXPORTS MODEL(model)(model)"));
}

void TestBuildProducts::disTokenIsOneOrEmpty()
{
    QCOMPARE(writeProject("[<!GenerateDis!>]", myFiles, true), QString("[1]"));
    QCOMPARE(writeProject("[<!GenerateDis!>]", myFiles, false), QString("[]"));
}

void TestBuildProducts::otherProjectLoopCounts()
{
    QCOMPARE(writeProject("<#3>x<#><#Attributes>y<#>", myFiles), QString("xxx"));
}

void TestBuildProducts::makefileTokensAreReplaced()
{
    myFixture->writeTemplate("makefile.tlt", "lib<!LibName!>.so [<!GenerateDis!>]");
    for (const bool dis : {true, false})
    {
        {
            DtMakefileWriter writer("Makefile", myFiles);
            writer.setLibraryName("model");
            writer.setGenerateDis(dis);
            writer.writeFile();
        }
        QCOMPARE(myFixture->output("Makefile"), QString(dis ? "libmodel.so [1]" : "libmodel.so []"));
    }
}

// A point does not end it, as it does end the name of the library, which projects have.
void TestBuildProducts::archiveIsNamedAfterTheWholeBaseName()
{
    myFixture->writeTemplate("makefile.tlt", "<!ArchiveName!>");
    const std::pair<const char*, const char*> theNames[] = {
        {"models/Harbour_v3.0_x.xml", "Harbour_v3.0_x"},
        {"Harbour_v3.0_x",            "Harbour_v3.0_x"},
        {"harbour.omt",               "harbour"       },
        {"harbour",                   "harbour"       },
        {"",                          ""              },
    };
    for (const auto& [base, archive] : theNames)
    {
        DtOMTEnvWriter::setBaseName(base);
        DtMakefileWriter("Makefile", myFiles).writeFile();
        QCOMPARE(myFixture->output("Makefile"), QString(archive));
    }
}

void TestBuildProducts::headersAndOtherFilesAreListedApart()
{
    myFixture->writeTemplate("makefile.tlt", "x");
    DtMakefileWriter("Makefile", {"DataTypes/b.cxx", "DataTypes/b.h", "a.hpp", "c.h", "noExtension"}).writeFile();
    QCOMPARE(myFixture->output("Files-h.txt"), QString("DataTypes/b.h\nc.h\n"));
    QCOMPARE(myFixture->output("Files-cc.txt"), QString("DataTypes/b.cxx\na.hpp\nnoExtension\n"));
}

void TestBuildProducts::fileListsExistFromConstruction()
{
    const DtMakefileWriter writer("Makefile", myFiles);
    QVERIFY(myFixture->hasOutput("Files-h.txt"));
    QVERIFY(myFixture->hasOutput("Files-cc.txt"));
    QCOMPARE(myFixture->output("Files-h.txt"), QString());
}

void TestBuildProducts::fileListsLeaveIncludePathOut()
{
    DtOMTEnvWriter::setIncludeName("kit");
    DtMakefileWriter("Makefile", {"a.h"}).writeFile();
    QCOMPARE(myFixture->output("Files-h.txt"), QString("a.h\n"));
}

void TestBuildProducts::solutionNamesEverySelectedClass()
{
    const QString text = writeSolution("<#Objects>(<!Object!>)<#><#Interactions>[<!Interaction!>]<#>",
                                       {makeRecord<DtOmtObject>("R.B", "B"), makeRecord<DtOmtObject>("R.A", "A1")},
                                       {makeRecord<DtOmtInteraction>("R.Fire", "Fire")});
    QCOMPARE(text, QString("(A1)(B)[Fire]"));
}

void TestBuildProducts::classWithoutParentPathIsNoProject()
{
    const QString text =
        writeSolution("<#Objects>(<!Object!>)<#><#Interactions>[<!Interaction!>]<#>",
                      {makeRecord<DtOmtObject>("Root", "Root"), makeRecord<DtOmtObject>("Root.A", "A")},
                      {makeRecord<DtOmtInteraction>("Top", "Top")});
    QCOMPARE(text, QString("(A)"));
}

void TestBuildProducts::solutionIdentifiersAreThoseOfTheRecord()
{
    const auto object = makeRecord<DtOmtObject>("R.A", "A");
    const auto interaction = makeRecord<DtOmtInteraction>("R.I", "I");
    QString expected;
    for (const DtOmtNode* record :
         {static_cast<const DtOmtNode*>(&object), static_cast<const DtOmtNode*>(&interaction)})
    {
        record->uuid(2);
        expected += QString("%1 %2;").arg(record->uuid(1).c_str(), record->uuid(2).c_str());
    }
    const QString text = writeSolution("<#Objects><!UUID1!> <!UUID2!>;<#><#Interactions><!UUID1!> <!UUID2!>;<#>",
                                       {object}, {interaction});
    QCOMPARE(text, expected);
}

void TestBuildProducts::recordTokensStayOutsideTheLoops()
{
    QCOMPARE(writeSolution("<#Objects>.<#><!Object!> <!Interaction!> <!UUID1!>", {makeRecord<DtOmtObject>("R.A", "A")}),
             QString(".<!Object!> <!Interaction!> <!UUID1!>"));
}

void TestBuildProducts::solutionNamesAreIdentifiers()
{
    QCOMPARE(writeSolution("<#Objects><!Object!><#>", {makeRecord<DtOmtObject>("R.A-B", "A-B")}), QString("A__B"));
}

void TestBuildProducts::projectNameOfSolutionStartsAsBaseName()
{
    DtOMTEnvWriter::setBaseName("dir/my-model.xml");
    QCOMPARE(writeSolution("<!ProjectName!>", {}), QString("my-model"));
    {
        DtSolutionsFileWriter writer("s.sln", "solutionVC14_64.tlt");
        writer.setProjectName("other");
        writer.writeFile();
    }
    QCOMPARE(myFixture->output("s.sln"), QString("other"));
}

void TestBuildProducts::otherSolutionLoopCounts()
{
    QCOMPARE(writeSolution("<#2>x<#><#Files>y<#>", {makeRecord<DtOmtObject>("R.A", "A")}), QString("xx"));
}

void TestBuildProducts::solutionWithoutRecordsHasNoPass()
{
    QCOMPARE(writeSolution("a<#Objects>b<#><#Interactions>c<#>d", {}), QString("ad"));
}

void TestBuildProducts::knownTokensAreThoseThatAreReplaced()
{
    const std::size_t base = DtFileWriter("", "").tokenChain().tokens().size();
    QCOMPARE(base, std::size_t(14));
    QCOMPARE(DtProjectFileWriter("", {}, 9).tokenChain().tokens().size(), base + 5);
    QCOMPARE(DtMakefileWriter("", {}).tokenChain().tokens().size(), base + 3);
    const std::vector<DtString> tokens = DtSolutionsFileWriter("", "").tokenChain().tokens();
    QVERIFY(std::find(tokens.begin(), tokens.end(), DtString("<!UUID2!>")) != tokens.end());
    QVERIFY(std::find(tokens.begin(), tokens.end(), DtString("<!ProjectName!>")) != tokens.end());
}

QX_REGISTER_TEST(TestBuildProducts)
#include "testBuildProducts.moc"
