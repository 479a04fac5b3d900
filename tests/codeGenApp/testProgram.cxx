// The real program, started in scratch folders: options, streams, exit codes and what is left on disk.

#include "registerTest.h"

#include "scratchProgram.h"

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <map>
#include <sys/resource.h>

namespace
{
constexpr int thePatience = 240000; // milliseconds

// A model with an object class of the given name, an interaction class and an enumeration of unknown size.
QByteArray modelOf(const QByteArray& name)
{
    return "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">"
           "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>" +
           name +
           "</name><attribute><name>Length</name><dataType>HLAfloat64BE</dataType></attribute>"
           "<attribute><name>Hue</name><dataType>Colour</dataType></attribute></objectClass></objectClass></"
           "objects><interactions><interactionClass><name>HLAinteractionRoot</name><interactionClass>"
           "<name>" +
           name +
           "Call</name><parameter><name>Channel</name><dataType>HLAinteger32BE</dataType></parameter>"
           "</interactionClass></interactionClass></interactions><dataTypes><enumeratedDataTypes><enumeratedData>"
           "<name>Colour</name><enumerator><name>Red</name><value>1</value></enumerator></enumeratedData>"
           "</enumeratedDataTypes></dataTypes></objectModel>\n";
}

QByteArray projectOf(const QByteArray& model, const QByteArray& selection)
{
    return "<?xml version=\"1.0\"?>\n<project><foms><fom name=\"" + model +
           "\" location=\"\"/></foms><configurationRoot>" + selection + "</configurationRoot></project>\n";
}

// What the program is to find in its environment: nothing of the test's own but the search paths and what steers the
// sanitizers.
QProcessEnvironment bareEnvironment(const QString& home)
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    for (const char* name : {"PATH", "LD_LIBRARY_PATH", "TMPDIR", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"})
        if (own.contains(name))
            environment.insert(name, own.value(name));
    environment.insert("HOME", home);
    environment.insert("XDG_RUNTIME_DIR", home);
    environment.insert("LC_ALL", "C");
    return environment;
}

class DtCorelessProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
        const rlimit noCore = {0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
    }
};

// One start of a program in a folder of its own, which is removed with it.
class DtStart
{
public:
    DtStart() : myEnvironment(bareEnvironment(myDirectory.path())) {}
    ~DtStart()
    {
        if (myProcess.state() != QProcess::NotRunning)
        {
            myProcess.kill();
            myProcess.waitForFinished(thePatience);
        }
        std::error_code ignored;
        std::filesystem::remove_all(myDirectory.path().toStdString(), ignored); // Qt does not find every name
    }
    DtStart(const DtStart&) = delete;
    DtStart& operator=(const DtStart&) = delete;

    QString path(const QString& name) const { return myDirectory.path() + "/" + name; }
    bool exists(const QString& name) const { return QFile::exists(path(name)); }
    QByteArray file(const QString& name) const { return readTextFile(path(name)); }
    void write(const QString& name, const QByteArray& text) const { writeTextFile(path(name), text); }
    void setVariable(const char* name, const QString& value) { myEnvironment.insert(name, value); }
    // A script for the shell that starts its arguments with further ones, which no QString can hold.
    void setLauncher(const QByteArray& script) { write("launch.sh", script); }

    // A copy of the program's data, an empty bin/ and two models.
    void prepare() const
    {
        copyTree(QStringLiteral(QX_SOURCE_DIR "/data"), path("data"));
        QFile::remove(path("data/config/customCodeGenConfig.xml"));
        write("models/boat.xml", modelOf("Boat"));
        write("shelf/raft.xml", modelOf("Raft"));
        QDir().mkpath(path("bin"));
    }
    void start(const char* program, const QStringList& options)
    {
        QDir().mkpath(path("bin"));
        myProcess.setWorkingDirectory(path("bin"));
        myProcess.setProcessEnvironment(myEnvironment);
        myProcess.setStandardInputFile(QProcess::nullDevice());
        myProcess.setStandardOutputFile(path("stdout"));
        myProcess.setStandardErrorFile(path("stderr"));
        if (exists("launch.sh"))
            myProcess.start("/bin/sh", QStringList({path("launch.sh"), program}) + options);
        else
            myProcess.start(QString::fromLatin1(program), options);
    }
    // False when the program did not come to its end by itself.
    bool finish()
    {
        return (myProcess.state() == QProcess::NotRunning || myProcess.waitForFinished(thePatience)) &&
               myProcess.exitStatus() == QProcess::NormalExit;
    }
    int exitCode() const { return myProcess.exitCode(); } // the signal, after a crash
    QByteArray output() const { return file("stdout"); }
    QByteArray errors() const { return file("stderr"); }
    QProcess& process() { return myProcess; }

private:
    QTemporaryDir myDirectory;
    QProcessEnvironment myEnvironment;
    DtCorelessProcess myProcess;
};

const char theOffscreen[] = "offscreen";

void chooseOffscreen(DtStart& start)
{
    start.setVariable("QT_QPA_PLATFORM", theOffscreen);
}

// The configuration of the user, with a log file and all messages shown.
void logEverything(DtStart& start)
{
    QByteArray text = start.file("data/config/codeGenConfig.xml");
    text.replace("\"logFileName\" value=\"\"", "\"logFileName\" value=\"../logs/run.log\"");
    text.replace("\"notifyLevel\" value=\"2\"", "\"notifyLevel\" value=\"5\"");
    start.write("data/config/customCodeGenConfig.xml", text);
}

void changeNothing(DtStart& /*start*/)
{
}

void hideDisplay(DtStart& start)
{
    start.setVariable("DISPLAY", QString());
}

void searchOnTheShelf(DtStart& start)
{
    start.setVariable("RTI_CONFIG", start.path("shelf"));
}

void breakModel(DtStart& start)
{
    start.write("models/bad.xml", "<objectModel");
}

void removeConfiguration(DtStart& start)
{
    QFile::remove(start.path("data/config/codeGenConfig.xml"));
}

void breakConfiguration(DtStart& start)
{
    start.write("data/config/customCodeGenConfig.xml", "<codeGenConfig");
}

const QByteArray theBoatSelection = "<objectClass name=\"HLAobjectRoot.Boat\" rename=\"\"/>";

void keepProject(DtStart& start)
{
    start.write("models/kept.qxproj", projectOf("boat.xml", theBoatSelection));
}

void keepProjectOfLostModel(DtStart& start)
{
    chooseOffscreen(start); // where a dialog would wait for ever
    logEverything(start);
    start.write("models/lost.qxproj", projectOf("gone.xml", theBoatSelection));
}

// Names of files are bytes, which need not be the text of a QString.
bool isFile(const DtStart& start, const char* name)
{
    return DtFilename((start.path(QString()).toStdString() + name).c_str()).isRegularFile();
}

void nameInLatin1(DtStart& start)
{
    std::string name = start.path("models/caf").toStdString() + "\xe9.xml";
    QCOMPARE(rename(qPrintable(start.path("models/boat.xml")), name.c_str()), 0);
    start.setLauncher("exec \"$@\" -O \"../out$(printf '\\351')\" -F \"../models/caf$(printf '\\351').xml\"\n");
}

struct DtStartRow
{
    const char* name;
    void (*prepare)(DtStart&);
    const char* options; // divided by single blanks, so two in a row have an empty one between them

    QStringList arguments() const
    {
        return *options != '\0' ? QString::fromLatin1(options).split(QLatin1Char(' ')) : QStringList();
    }
};

const char theLongOptions[] = "--generate --all --outputDir ../out --fomDefFile ../models/boat.xml --includeDir quay "
                              "--classPrefix Qx";

// All starts of the real program. Each holds its splash for three seconds, so they run at the same time.
const DtStartRow theStarts[] = {
    {"long",                   changeNothing,          theLongOptions                                                  },
    {"short",                  chooseOffscreen,        "-GA -O ../out/ -F ../models/boat.xml -I quay -p Qx"            },
    {"bad model",              breakModel,             "-G -A -O ../out -F ../models/bad.xml"                          },
    {"no output directory",    changeNothing,          "-G -A -F ../models/boat.xml"                                   },
    {"empty output directory", changeNothing,          "-G -O  -F ../models/boat.xml"                                  },
    {"no model",               hideDisplay,            "-G -A -O ../out"                                               },
    {"no options",             removeConfiguration,    ""                                                              },
    {"unreadable project",     chooseOffscreen,        "-G -A -O ../out -P ../models/new.qxproj -F ../models/boat.xml" },
    {"valid project",          keepProject,            "-G -O ../out -P ../models/kept.qxproj -F ../shelf/raft.xml"    },
    {"two models",             searchOnTheShelf,       "-G -A -O ../out -F ../models/boat.xml -F raft.xml"             },
    {"searched model",         searchOnTheShelf,       "-G -A -O ../out\\ -F raft.xml"                                 },
    {"lost model",             keepProjectOfLostModel, "-G -A -O ../out -P ../models/lost.qxproj -F ../models/boat.xml"},
    {"help",                   changeNothing,          "--help"                                                        },
    {"version",                logEverything,          "--version"                                                     },
    {"unknown option",         changeNothing,          "-style fusion"                                                 },
    {"window",                 chooseOffscreen,        ""                                                              },
    {"broken configuration",   breakConfiguration,     "-G -A -O ../out -F ../models/boat.xml"                         },
    {"missing models",         changeNothing,          "-G -A -O ../out -F  -F ../models/none.xml"                     },
    {"empty project name",     chooseOffscreen,        "-G -A -O ../out -P "                                           },
    {"names in Latin-1",       nameInLatin1,           "-G -A"                                                         },
};

QList<QByteArray> sortedLines(const QByteArray& text)
{
    QList<QByteArray> lines = text.split('\n');
    std::sort(lines.begin(), lines.end());
    return lines;
}

// The names of the model files that a project file lists.
QStringList modelsOf(const QByteArray& project)
{
    QStringList names;
    const QRegularExpression pattern(QStringLiteral("<fom name=\"([^\"]*)\""));
    for (auto each = pattern.globalMatch(QString::fromUtf8(project)); each.hasNext();)
        names += each.next().captured(1);
    return names;
}

QByteArray withoutIdentifiers(const QByteArray& text)
{
    static const QRegularExpression thePattern(QStringLiteral("[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}"));
    return QString::fromLatin1(text).replace(thePattern, QStringLiteral("ID")).toLatin1();
}

QStringList generatedBy(const DtStart& start)
{
    return filesBelow(start.path("out"));
}
} // namespace

class TestProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { myStarts.clear(); }

    void batchRunGeneratesAndSavesTheConfiguration();
    void brokenConfigurationIsKeptBesideTheNewOne();
    void longAndShortOptionsDoTheSame();
    void modelThatCannotBeReadEndsWithZero();
    void withoutDisplayAMissingConditionEndsTheRun_data();
    void withoutDisplayAMissingConditionEndsTheRun();
    void withoutOptionsAndConfigurationTheProgramStarts();
    void projectThatCannotBeReadIsMadeAnew();
    void validProjectTakesNoFurtherModels();
    void missingAndEmptyModelNamesAreTold();
    void failedLoadingBehindAnUnseenWindowEndsTheRun();
    void namesThatAreNotUtf8ReachTheDisk();
    void firstOfTwoModelsNamesTheProject();
    void modelIsSearchedBelowRtiConfig();
    void outputDirectoryMayEndInABackslash();
    void lostModelOfAProjectAsksNobody();
    void logFileHoldsAllStreams();
    void helpListsTheOptionsInOrder();
    void versionGoesToTheLogFileToo();
    void optionOfTheWindowSystemIsUnknown();
    void windowWaitsUntilASignalEndsIt();

    void exceptionsAreReportedAndEndWithZero_data();
    void exceptionsAreReportedAndEndWithZero();
    void resultOfTheRunIsDropped();
    void failedWriteEndsNoRun_data();
    void failedWriteEndsNoRun();
    void fatalSignalsAreReported_data();
    void fatalSignalsAreReported();

private:
    DtStart& at(const char* name) { return *myStarts.at(name); }

    std::map<QByteArray, std::unique_ptr<DtStart>> myStarts;
};

void TestProgram::initTestCase()
{
    for (const DtStartRow& row : theStarts)
    {
        auto start = std::make_unique<DtStart>();
        start->prepare();
        row.prepare(*start);
        start->start(QX_PROGRAM, row.arguments());
        myStarts.emplace(row.name, std::move(start));
    }
}

void TestProgram::batchRunGeneratesAndSavesTheConfiguration()
{
    DtStart& start = at("long");
    QVERIFY(start.finish());
    QVERIFY2(start.exitCode() == 0, start.errors().constData());
    QVERIFY(start.exists("out/cpp\\quay/boatStateRepository.h"));
    QVERIFY(start.file("out/cpp\\quay/boatStateRepository.h").contains("DtQxBoatStateRepository"));
    QVERIFY(start.exists("data/config/customCodeGenConfig.xml"));
    QCOMPARE(start.file("data/config/codeGenConfig.xml"),
             readTextFile(QStringLiteral(QX_SOURCE_DIR "/data/config/codeGenConfig.xml")));
}

void TestProgram::brokenConfigurationIsKeptBesideTheNewOne()
{
    DtStart& start = at("broken configuration");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QVERIFY(start.errors().contains("Cannot read ../data/config/customCodeGenConfig.xml; a copy of it is kept"));
    QVERIFY(start.errors().contains("No script is switched on... Nothing to generate."));
    QVERIFY(!QFile::exists(start.path("out")));
    QCOMPARE(start.file("data/config/customCodeGenConfig.xml~"), QByteArray("<codeGenConfig"));
    DtCodeGenInitializer shipped; // the next run has its settings
    QVERIFY(shipped.parseConfigFile(qPrintable(start.path("data/config/codeGenConfig.xml"))));
    QVERIFY(shipped.saveConfigFile(qPrintable(start.path("shipped.xml"))));
    QVERIFY(start.file("shipped.xml").contains("<var name=\"genCpp.txt\" value=\"true\"/>"));
    QCOMPARE(start.file("data/config/customCodeGenConfig.xml"), start.file("shipped.xml"));
}

void TestProgram::longAndShortOptionsDoTheSame()
{
    DtStart& first = at("long");
    DtStart& second = at("short");
    QVERIFY(first.finish() && second.finish());
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(second.errors(), first.errors());
    QCOMPARE(second.output(), first.output());
    QCOMPARE(second.file("models/boat.qxproj"), first.file("models/boat.qxproj"));
    QCOMPARE(generatedBy(second), generatedBy(first));
    QVERIFY(generatedBy(first).size() > 20);
    for (const QString& name : generatedBy(first))
        QVERIFY2(withoutIdentifiers(first.file("out/" + name)) == withoutIdentifiers(second.file("out/" + name)),
                 qPrintable(name));
}

void TestProgram::modelThatCannotBeReadEndsWithZero()
{
    DtStart& start = at("bad model");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    const QByteArray errors = "\n" + start.errors();
    const int loading = errors.indexOf("\nError loading input file(s)\n");
    const int generating = errors.indexOf("\nNo file loaded... Cannot generate files.\n");
    QVERIFY2(loading >= 0 && generating > loading, errors.constData());
    QVERIFY(!start.exists("out"));
    QVERIFY(start.exists("models/bad.qxproj")); // written ahead of the load
}

void TestProgram::withoutDisplayAMissingConditionEndsTheRun_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("condition");
    const struct
    {
        const char* name;
        QByteArray start, condition;
    } theRows[] = {
        {"no output directory",    "no output directory",    "no output directory was given"                  },
        {"empty output directory", "empty output directory", "no output directory was given"                  },
        {"no model",               "no model",               "no model file was given and no project is valid"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.start << row.condition;
}

void TestProgram::withoutDisplayAMissingConditionEndsTheRun()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, condition);
    DtStart& run = at(start.constData());
    QVERIFY(run.finish());
    QCOMPARE(run.exitCode(), 0);
    QCOMPARE(run.errors(), "No display to show the window on, and no batch run: " + condition + ".\n");
    QCOMPARE(run.output(), QByteArray());
    QVERIFY(!run.exists("out"));
    QCOMPARE(run.exists("models/boat.qxproj"), start != "no model"); // a model is loaded all the same
}

void TestProgram::withoutOptionsAndConfigurationTheProgramStarts()
{
    DtStart& start = at("no options");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QCOMPARE(start.errors(),
             QByteArray("No display to show the window on, and no batch run: --generate was not given.\n"));
    QVERIFY(start.exists("data/config/customCodeGenConfig.xml"));
    QVERIFY(!start.exists("data/config/codeGenConfig.xml"));
}

void TestProgram::projectThatCannotBeReadIsMadeAnew()
{
    DtStart& start = at("unreadable project");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QVERIFY2(("\n" + start.errors()).contains("\nError loading project file, creating a new project instead\n"),
             start.errors().constData());
    QCOMPARE(modelsOf(start.file("models/new.qxproj")), QStringList("boat.xml"));
    QVERIFY(!start.exists("models/boat.qxproj"));
    QVERIFY(start.exists("out/cpp\\boatStateRepository.h"));
}

void TestProgram::validProjectTakesNoFurtherModels()
{
    DtStart& start = at("valid project");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QVERIFY(start.exists("out/cpp\\boatStateRepository.h"));
    QVERIFY2(generatedBy(start).filter("boatCall").isEmpty(), "the project does not select it, and --all is not given");
    QVERIFY(generatedBy(start).filter("aft").isEmpty());
    QCOMPARE(modelsOf(start.file("models/kept.qxproj")), QStringList("boat.xml"));
    QVERIFY(!start.exists("shelf/raft.qxproj"));
}

void TestProgram::missingAndEmptyModelNamesAreTold()
{
    DtStart& start = at("missing models");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    const QByteArray errors = start.errors();
    QVERIFY2(errors.startsWith("Option --fomDefFile has an empty value, which names no model file.\n"
                               "There is no model file ../models/none.xml.\n"),
             errors.constData());
    QVERIFY2(errors.contains("\nError loading input file(s)\n"), errors.constData());
    QCOMPARE(filesBelow(start.path("bin")), QStringList()); // no project without a name
    QCOMPARE(filesBelow(start.path("models")), QStringList("boat.xml"));
}

void TestProgram::failedLoadingBehindAnUnseenWindowEndsTheRun()
{
    DtStart& start = at("empty project name");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    const QByteArray errors = start.errors();
    QVERIFY2(errors.startsWith("Option --project has an empty value, which names no project file.\n"),
             errors.constData());
    QVERIFY2(errors.endsWith("\nNo display to show the window on, and no batch run: no model file was given and no "
                             "project is valid.\n"),
             errors.constData());
    QCOMPARE(filesBelow(start.path("bin")), QStringList());
}

void TestProgram::namesThatAreNotUtf8ReachTheDisk()
{
    DtStart& start = at("names in Latin-1");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QVERIFY2(isFile(start, "models/caf\xe9.qxproj"), start.errors().constData());
    QVERIFY2(isFile(start, "out\xe9/cpp\\boatStateRepository.h"), start.errors().constData());
}

void TestProgram::firstOfTwoModelsNamesTheProject()
{
    DtStart& start = at("two models");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QCOMPARE(modelsOf(start.file("models/boat.qxproj")), QStringList({"boat.xml", "raft.xml", "HLAstandardMIM.xml"}));
    QVERIFY(!start.exists("bin/raft.qxproj") && !start.exists("shelf/raft.qxproj"));
    for (const char* name : {"boatStateRepository.h", "raftStateRepository.h"})
        QVERIFY2(start.exists("out/cpp\\" + QString::fromLatin1(name)), start.errors().constData());
}

void TestProgram::modelIsSearchedBelowRtiConfig()
{
    DtStart& start = at("searched model");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QVERIFY2(!start.errors().contains("Error"), start.errors().constData());
    QCOMPARE(modelsOf(start.file("bin/raft.qxproj")), QStringList("raft.xml"));
}

void TestProgram::outputDirectoryMayEndInABackslash()
{
    DtStart& start = at("searched model");
    QVERIFY(start.finish());
    QVERIFY(!start.exists("out"));
    QVERIFY(start.exists("out\\cpp\\raftStateRepository.h")); // beside models/, the backslash being part of the name
}

void TestProgram::lostModelOfAProjectAsksNobody()
{
    DtStart& start = at("lost model");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QVERIFY2(("\n" + start.errors()).contains("\ngone.xml could not be found\n"), start.errors().constData());
    QVERIFY(start.exists("out/cpp\\boatStateRepository.h")); // the models of the command line are loaded then
    QCOMPARE(modelsOf(start.file("models/lost.qxproj")), QStringList("gone.xml"));
}

void TestProgram::logFileHoldsAllStreams()
{
    DtStart& start = at("lost model");
    QVERIFY(start.finish());
    QVERIFY(start.errors().contains("Reading FED file: ../models/boat.xml\n")); // told at level 4
    QVERIFY2(start.output().contains("Size of enumeration Colour not specified."), start.output().constData());
    QCOMPARE(sortedLines(start.file("logs/run.log")), sortedLines(start.errors() + start.output()));
}

void TestProgram::helpListsTheOptionsInOrder()
{
    DtStart& start = at("help");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QCOMPARE(start.errors(), QByteArray());
    const QByteArray output = start.output();
    QVERIFY2(output.startsWith("\nUSAGE: \n\n   codeGen "), output.constData());
    int last = output.indexOf("\nWhere: \n");
    QVERIFY(last > 0);
    for (const char* option : {"-G,  --generate", "-A,  --all", "-O <string>,  --outputDir <string>",
                               "-F <string>,  --fomDefFile <string>", "-P <string>,  --project <string>",
                               "-I <string>,  --includeDir <string>", "-p <string>,  --classPrefix <string>"})
    {
        const int found = output.indexOf(option, last);
        QVERIFY2(found > last, qPrintable(QString::fromLatin1(option) + "\n" + output));
        last = found;
    }
}

void TestProgram::versionGoesToTheLogFileToo()
{
    DtStart& start = at("version");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QCOMPARE(start.output(), QByteArray("codeGen version: 5.10\n"));
    QVERIFY2(start.file("logs/run.log").endsWith(start.output()), start.file("logs/run.log").constData());
    QCOMPARE(start.errors() + start.output(), start.file("logs/run.log"));
}

void TestProgram::optionOfTheWindowSystemIsUnknown()
{
    DtStart& start = at("unknown option");
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 1);
    const QByteArray errors = start.errors();
    QVERIFY2(errors.startsWith("PARSE ERROR: Argument: -style\n"
                               "             Couldn't find match for argument\n\nBrief USAGE: \n   codeGen "),
             errors.constData());
    QVERIFY2(errors.endsWith("\nFor complete USAGE and HELP type: \n   codeGen --help\n"), errors.constData());
    QCOMPARE(start.output(), QByteArray());
}

void TestProgram::windowWaitsUntilASignalEndsIt()
{
    for (const auto& each : myStarts)
        if (each.first != "window")
            QVERIFY(each.second->finish());
    DtStart& start = at("window");
    QVERIFY(!start.process().waitForFinished(1000));
    QVERIFY(start.process().state() == QProcess::Running);
    if (qgetenv("ASAN_OPTIONS").contains("handle_abort=2"))
        QSKIP("The sanitizer keeps the signal to itself.");
    kill(static_cast<pid_t>(start.process().processId()), SIGABRT);
    QVERIFY(!start.finish());
    QVERIFY(start.process().state() == QProcess::NotRunning);
    QCOMPARE(start.exitCode(), SIGABRT);
    const QByteArray errors = start.errors();
    QVERIFY2(errors.contains("CodeGen: caught signal 6 (SIGABRT, aborted)\nCall stack:\n"), errors.constData());
    QVERIFY2(errors.contains("QEventLoop4exec"), errors.constData()); // a frame: the program waited for its user
    QVERIFY(errors.count("[0x") > 3);
}

void TestProgram::exceptionsAreReportedAndEndWithZero_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("DtException") << QByteArray("Caught DtException with stack: \nDtException: wrong order ");
    QTest::newRow("std::exception") << QByteArray("Caught std::exception: out of paper\n");
    QTest::newRow("unknown") << QByteArray("Caught Unknown Exception in. int main(int, char**)[codeGen:45]\n");
}

void TestProgram::exceptionsAreReportedAndEndWithZero()
{
    QFETCH(QByteArray, text);
    const QString failure = QString::fromLatin1(QTest::currentDataTag());
    DtStart late, early;
    late.start(QX_MAIN_PROBE, {failure});
    early.start(QX_MAIN_PROBE, {failure, "early"});
    QVERIFY(late.finish() && early.finish());
    QCOMPARE(late.exitCode(), 0);
    QCOMPARE(early.exitCode(), 0);
    QVERIFY2(late.errors().startsWith("destroyed\n" + text), late.errors().constData());
    QVERIFY2(early.errors().startsWith(text), early.errors().constData()); // the object was never whole
    QVERIFY(late.errors().endsWith("\n"));
}

void TestProgram::resultOfTheRunIsDropped()
{
    DtStart start;
    start.start(QX_MAIN_PROBE, {"result"});
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QCOMPARE(start.errors(), QByteArray("destroyed\n"));
}

void TestProgram::failedWriteEndsNoRun_data()
{
    QTest::addColumn<QByteArray>("errors");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("SIGPIPE") << QByteArray("Cannot write to the standard output stream: Broken pipe\nalive\n")
                             << QStringList();
    QTest::newRow("SIGXFSZ") << QByteArray("File too large\nCannot write file printed: File too large\n")
                             << QStringList("printed");
    QTest::newRow("programs") << QByteArray() << QStringList(); // each ended by its signal
}

void TestProgram::failedWriteEndsNoRun()
{
    QFETCH(QByteArray, errors);
    DtStart start;
    start.start(QX_MAIN_PROBE, {QString::fromLatin1(QTest::currentDataTag())});
    QVERIFY(start.finish());
    QCOMPARE(start.exitCode(), 0);
    QCOMPARE(start.errors(), errors + "destroyed\n");
    QTEST(filesBelow(start.path("bin")), "files");
}

void TestProgram::fatalSignalsAreReported_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("overflow") << SIGSEGV << QByteArray("CodeGen: caught signal 11 (SIGSEGV, segmentation fault)\n");
    QTest::newRow("SIGABRT") << SIGABRT << QByteArray("CodeGen: caught signal 6 (SIGABRT, aborted)\n");
    QTest::newRow("SIGFPE") << SIGFPE << QByteArray("CodeGen: caught signal 8 (SIGFPE, arithmetic exception)\n");
}

void TestProgram::fatalSignalsAreReported()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, text);
    if (qgetenv("ASAN_OPTIONS").contains("=2"))
        QSKIP("The sanitizer may keep the signals to itself.");
    DtStart start;
    start.start(QX_MAIN_PROBE, {QString::fromLatin1(QTest::currentDataTag())});
    QVERIFY(!start.finish());
    QVERIFY(start.process().state() == QProcess::NotRunning);
    QCOMPARE(start.exitCode(), signal);
    QVERIFY2(start.errors().startsWith(text + "Call stack:\n"), start.errors().constData());
    QVERIFY(start.errors().count("[0x") > 1);
}

QX_REGISTER_TEST(TestProgram)
#include "testProgram.moc"
