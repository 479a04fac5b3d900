// The generated project, solution and makefiles: what they name, and that make builds everything once.

#include "registerTest.h"

#include "builtOutput.h"
#include "codeGenApp/smallModels.h"

#include <QtCore/QXmlStreamReader>

namespace
{
const char theLibraryIdentifier[] = "{6A7D2C2E-4C0B-4B57-9E6B-51D3B0C7A914}";

// A class with a number, its subclass with a list, and an interaction.
QByteArray smallModel()
{
    QByteArray text = moduleText(objectText("Barge", attributeText("Speed", "HLAfloat64BE") +
                                                         objectText("Tanker", attributeText("Load", "Loads"))),
                                 interactionText("Signal", parameterText("Code")));
    const QByteArray array =
        element("arrayData", element("name", "Loads") + element("dataType", "HLAinteger32BE") +
                                 element("cardinality", "Dynamic") + element("encoding", "HLAvariableArray"));
    return text.replace("</objectModel>",
                        element("dataTypes", element("arrayDataTypes", array)) + QByteArray("</objectModel>"));
}

const QStringList theHlaPrograms = {"cpp\\Examples/Barge/listen",       "cpp\\Examples/Barge/talk",
                                    "cpp\\Examples/SignalInter/listen", "cpp\\Examples/SignalInter/talk",
                                    "cpp\\Examples/Tanker/listen",      "cpp\\Examples/Tanker/talk"};
// Interactions have none for DIS.
const QStringList theDisPrograms = {"cpp\\Examples/Barge/listenDIS", "cpp\\Examples/Barge/talkDIS",
                                    "cpp\\Examples/Tanker/listenDIS", "cpp\\Examples/Tanker/talkDIS"};

QStringList programsOf(const DtBuiltOutput& output)
{
    QStringList programs;
    for (const QString& file : filesBelow(output.path()))
        if (file.startsWith("cpp\\Examples/") && QFileInfo(output.path(file)).isExecutable())
            programs += file;
    return programs;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

// What one project file says.
struct Project
{
    QStringList files; // Include attributes, with slashes
    QString identifier;
    QString error;
};

Project readProject(const QByteArray& text)
{
    Project project;
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
    {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("ProjectGuid"))
            project.identifier = reader.readElementText();
        else if ((reader.name() == QLatin1String("ClCompile") || reader.name() == QLatin1String("ClInclude")) &&
                 reader.attributes().hasAttribute("Include"))
            project.files += reader.attributes().value("Include").toString().replace('\\', '/');
    }
    project.error = reader.errorString();
    return project;
}

// A line of the solution that names a project.
struct Entry
{
    QString name, file, identifier;
};

std::vector<Entry> entriesOf(const QByteArray& solution)
{
    static const QRegularExpression theLine("^Project.\"\\{8BC9CEB8-8B4A-11D0-8D11-00A0C91BC942\\}\".*"
                                            "\"([^\"]+)\", \"([^\"]+)\", \"(\\{[^\"]+\\})\"$");
    std::vector<Entry> entries;
    for (const QString& line : QString::fromUtf8(solution).split('\n'))
    {
        const QRegularExpressionMatch match = theLine.match(line);
        if (match.hasMatch())
            entries.push_back({match.captured(1), match.captured(2).replace('\\', '/'), match.captured(3)});
    }
    return entries;
}
} // namespace

class TestBuildFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void projectNamesEveryFileOnce_data();
    void projectNamesEveryFileOnce();
    void solutionNamesLibraryAndExamplesByTheirIdentifiers();
    void renamedClassKeepsItsModelNameInTheSolution();
    void makeBuildsEverythingOnce();
    void changedHeaderRebuildsWhatIncludesIt();
    void headersAreThereUnderTheNamesTheyAreIncludedBy();
    void librariesHoldOneProtocolEach();
    void directoryOfAnEarlierRunIsPassedOver();
    void libraryOfTheToolkitIsTakenWhereItIs();
    void cleanTakesEverythingAway();
    void toolkitIsAskedForOrFound();
    void wordSizeReachesTheCompiler();
    void everythingIsBuiltByClang();
    void cleanupTestCase() { myBuilt.reset(); }

private:
    // Generated and built once for the tests that look at it.
    const DtBuiltOutput& built();

    std::unique_ptr<DtBuiltOutput> myBuilt;
    DtProgramRun myFirstMake;
};

const DtBuiltOutput& TestBuildFiles::built()
{
    if (myBuilt == nullptr)
    {
        DtRunChoice choice;
        choice.dis = true;
        choice.includeDirectory = "inc";
        myBuilt = std::make_unique<DtBuiltOutput>(choice);
        myBuilt->generate({myBuilt->program().model("small.xml", smallModel())});
        myFirstMake = myBuilt->make({});
    }
    return *myBuilt;
}

void TestBuildFiles::projectNamesEveryFileOnce_data()
{
    QTest::addColumn<bool>("dis");
    QTest::addColumn<QByteArray>("includeDirectory");
    QTest::newRow("plain") << false << QByteArray();
    QTest::newRow("with DIS") << true << QByteArray();
    QTest::newRow("with include directory") << false << QByteArray("inc");
    QTest::newRow("with both") << true << QByteArray("inc");
}

void TestBuildFiles::projectNamesEveryFileOnce()
{
    QFETCH(bool, dis);
    QFETCH(QByteArray, includeDirectory);
    DtRunChoice choice;
    choice.dis = dis;
    choice.includeDirectory = includeDirectory.constData();
    DtBuiltOutput output(choice);
    output.generate({output.program().sampleModel()});
    const Project project = readProject(output.text("cpp\\sampleVC14_64.vcxproj"));
    QCOMPARE(project.error, QString());
    QCOMPARE(project.identifier, QString(theLibraryIdentifier));
    QStringList generated;
    for (const QString& file : filesBelow(output.path()))
        if ((file.endsWith(".h") || file.endsWith(".cxx")) && !file.startsWith("cpp\\Examples/"))
            generated += QString(file).remove("cpp\\");
    QVERIFY(generated.size() > 150);
    QCOMPARE(sorted(project.files), sorted(generated));
}

void TestBuildFiles::solutionNamesLibraryAndExamplesByTheirIdentifiers()
{
    DtBuiltOutput output{DtRunChoice()};
    output.generate({output.program().model("small.xml", smallModel())});
    const QByteArray solution = output.text("cpp\\smallVC14_64.sln");
    QStringList names;
    for (const Entry& entry : entriesOf(solution))
    {
        names += entry.name;
        const Project project = readProject(output.text("cpp\\" + entry.file));
        QCOMPARE(project.error, QString());
        QCOMPARE(project.identifier, entry.identifier);
        for (const char* part :
             {".Debug|x64.ActiveCfg", ".Debug|x64.Build.0", ".Release|x64.ActiveCfg", ".Release|x64.Build.0"})
            QCOMPARE(solution.count((entry.identifier + part).toUtf8()), 1);
    }
    QCOMPARE(names, QStringList({"small", "BargeTalk", "BargeListen", "TankerTalk", "TankerListen", "SignalInterTalk",
                                 "SignalInterListen"}));
    // Every example waits for the library.
    QCOMPARE(solution.count(QByteArray(theLibraryIdentifier) + " = " + theLibraryIdentifier), 6);
}

void TestBuildFiles::renamedClassKeepsItsModelNameInTheSolution()
{
    DtRunChoice choice;
    choice.objects = {"HLAobjectRoot.Barge", "HLAobjectRoot.Barge.Tanker"};
    choice.renamedObject = "HLAobjectRoot.Barge";
    choice.rename = "Lighter";
    DtBuiltOutput output(choice);
    output.generate({output.program().model("small.xml", smallModel())});
    const std::vector<Entry> entries = entriesOf(output.text("cpp\\smallVC14_64.sln"));
    QCOMPARE(entries.size(), std::size_t(5));
    QCOMPARE(entries[1].name, QString("BargeTalk"));
    QCOMPARE(entries[1].file, QString("Examples/Barge/BargeTalkVC14_64.vcxproj"));
    QCOMPARE(readProject(output.text("cpp\\Examples/Lighter/LighterTalkVC14_64.vcxproj")).identifier,
             entries[1].identifier);
    QCOMPARE(readProject(output.text("cpp\\Examples/Lighter/LighterListenVC14_64.vcxproj")).identifier,
             entries[2].identifier);
    QVERIFY(!QFile::exists(output.path("cpp\\Examples/Barge")));
}

void TestBuildFiles::makeBuildsEverythingOnce()
{
    const DtBuiltOutput& output = built();
    QVERIFY2(myFirstMake.exitCode == 0, qPrintable(myFirstMake.output));
    QVERIFY(QFile::exists(output.path("build/libsmallHLA.a")));
    QVERIFY(QFile::exists(output.path("build/libsmallDIS.a")));
    QCOMPARE(programsOf(output), sorted(theHlaPrograms + theDisPrograms));
    const DtProgramRun second = output.make({});
    QCOMPARE(second.output, QString());
    QCOMPARE(second.exitCode, 0);
}

void TestBuildFiles::changedHeaderRebuildsWhatIncludesIt()
{
    const DtBuiltOutput& output = built();
    QFile header(output.path("cpp\\inc/bargePdu.h"));
    QVERIFY(header.open(QIODevice::Append) && header.write("// changed\n") > 0);
    header.close();
    const QStringList lines = output.make({}).output.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.filter("compile"),
             QStringList({"  compile bargePdu.cxx for DIS", "  compile tankerPdu.cxx for DIS"}));
    QCOMPARE(lines.filter("archive"), QStringList("  archive libsmallDIS.a"));
    QCOMPARE(lines.filter("program").size(), theDisPrograms.size());
    QCOMPARE(output.make({}).output, QString());
}

void TestBuildFiles::headersAreThereUnderTheNamesTheyAreIncludedBy()
{
    const DtBuiltOutput& output = built();
    const std::pair<const char*, const char*> names[] = {
        {"BargePdu.h",       "bargePdu.h"        },
        {"TankerPdu.h",      "tankerPdu.h"       },
        {"dbargeEncoder.h",  "bargeEncoderDIS.h" },
        {"dtankerDecoder.h", "tankerDecoderDIS.h"},
    };
    for (const auto& [link, file] : names)
        QCOMPARE(QFileInfo(output.path("build/bridge/inc/") + link).canonicalFilePath(),
                 QFileInfo(output.path("cpp\\inc/") + file).canonicalFilePath());
    QVERIFY(output.text("cpp\\inc/tankerEncoderDIS.h").contains("\"inc/dbargeEncoder.h\""));
    QVERIFY(!QFile::exists(output.path("cpp\\inc/dbargeEncoder.h")));
}

void TestBuildFiles::librariesHoldOneProtocolEach()
{
    const DtBuiltOutput& output = built();
    const auto members = [&](const QString& library) {
        return sorted(runProgram(output.path("build"), "ar", {"t", library}).output.split('\n', Qt::SkipEmptyParts));
    };
    const QStringList hla = members("libsmallHLA.a");
    const QStringList dis = members("libsmallDIS.a");
    for (const char* common : {"loads.o", "bargeStateRepository.o", "tankerStateRepository.o", "signalInter.o"})
        QVERIFY2(hla.contains(common) && dis.contains(common), common);
    QCOMPARE(hla.filter("DIS.o") + hla.filter("Pdu.o") + dis.filter("HLA.o"), QStringList());
    QCOMPARE(hla.filter("HLA.o").size(), 2 * 5 + 3);
    QCOMPARE(dis.filter("DIS.o").size() + dis.filter("Pdu.o").size(), 2 * 6 + 1);
}

// Its class may be in no library.
void TestBuildFiles::directoryOfAnEarlierRunIsPassedOver()
{
    const DtBuiltOutput& output = built();
    writeTextFile(output.path("cpp\\Examples/Gone/Makefile"), "all:\n\tfalse\n");
    const DtProgramRun run = output.make({});
    QDir(output.path("cpp\\Examples/Gone")).removeRecursively();
    QCOMPARE(run.output, QString());
    QCOMPARE(run.exitCode, 0);
}

void TestBuildFiles::libraryOfTheToolkitIsTakenWhereItIs()
{
    const DtBuiltOutput& output = built();
    const QString toolkit = output.path("own toolkit");
    QDir().mkpath(toolkit + "/lib");
    QFile::link(QX_SOURCE_DIR "/toolkit/include", toolkit + "/include");
    QVERIFY(QFile::copy(output.path("build/toolkit.build/build/libqxToolkit.a"), toolkit + "/lib/libqxToolkit.a"));
    const QString library = output.path("build/libqxToolkit.a");
    QVERIFY(QFile::symLinkTarget(library).endsWith("/build/toolkit.build/build/libqxToolkit.a"));
    const DtProgramRun run = runProgram(output.path("build"), "make", {"-s", "libqxToolkit.a", "QX_DIR=" + toolkit});
    QVERIFY2(run.exitCode == 0 && run.output.isEmpty(), qPrintable(run.output));
    QCOMPARE(QFile::symLinkTarget(library), toolkit + "/lib/libqxToolkit.a");
}

void TestBuildFiles::cleanTakesEverythingAway()
{
    const DtBuiltOutput& output = built();
    const QStringList before = filesBelow(output.path()).filter(QRegularExpression("^cpp"));
    QCOMPARE(output.make({"clean"}, QString(), QString()).exitCode, 0);
    QVERIFY(!QFile::exists(output.path("build")));
    QCOMPARE(programsOf(output), QStringList());
    QCOMPARE(before.size() - filesBelow(output.path()).filter(QRegularExpression("^cpp")).size(),
             2 * (theHlaPrograms.size() + theDisPrograms.size()));
    myBuilt.reset();
}

void TestBuildFiles::toolkitIsAskedForOrFound()
{
    const DtWithEnvironment noToolkit("QX_DIR", nullptr);
    DtBuiltOutput output{DtRunChoice()};
    output.generate({output.program().model("small.xml", smallModel())});
    const DtProgramRun missing = output.make({}, QString(), QString());
    QVERIFY2(missing.exitCode == 2 && missing.output.contains("QX_DIR is not set."), qPrintable(missing.output));
    const DtProgramRun wrong = output.make({}, QString(), output.path());
    QVERIFY2(wrong.exitCode == 2 && wrong.output.contains("QX_DIR does not name the directory of the toolkit"),
             qPrintable(wrong.output));
    // As in a checkout of this repository, whose output lies in out/sample.
    QVERIFY(QFile::link(QX_SOURCE_DIR "/toolkit", output.path("../toolkit")));
    const DtProgramRun found = output.make({"stage"}, QString(), QString());
    QVERIFY2(found.exitCode == 0 && found.output.isEmpty(), qPrintable(found.output));
}

void TestBuildFiles::wordSizeReachesTheCompiler()
{
    for (const bool bits64 : {true, false})
    {
        DtRunChoice choice;
        choice.dis = true;
        choice.bits64 = bits64;
        DtBuiltOutput output(choice);
        output.generate({output.program().model("small.xml", smallModel())});
        QCOMPARE(output.make({"stage"}).exitCode, 0);
        const DtProgramRun run = output.make({"-n"}); // tells what it would do
        QVERIFY2(run.exitCode == 0, qPrintable(run.output));
        const QStringList compilations = run.output.split('\n').filter(QRegularExpression("^(g\\+\\+|c\\+\\+) "));
        QVERIFY(compilations.size() > 40);
        QCOMPARE(compilations.filter(" -m32 ").size(), bits64 ? 0 : compilations.size());
    }
}

void TestBuildFiles::everythingIsBuiltByClang()
{
    if (!qEnvironmentVariableIsSet("QX_FULL"))
        QSKIP("Left to the full run, which sets QX_FULL.");
    DtRunChoice choice;
    choice.dis = true;
    DtBuiltOutput output(choice);
    output.generate({output.program().sampleModel()});
    const DtProgramRun run = output.make({"CXX=clang++"});
    QVERIFY2(run.exitCode == 0, qPrintable(run.output.right(4000)));
    const QStringList sources =
        filesBelow(output.path()).filter(QRegularExpression("^cpp.Examples/.*/(talk|listen)\\.cxx$"));
    QVERIFY(sources.size() > 20);
    QCOMPARE(programsOf(output).filter(QRegularExpression("/(talk|listen)$")).size(), sources.size());
}

QX_REGISTER_TEST(TestBuildFiles)
#include "testBuildFiles.moc"
