// The commands of the built program beside "generate": their options, what they print where, and their exit codes.

#include "registerTest.h"

#include "modelTools/modelToolsTest.h"
#include "smallModels.h"
#include "testSupport.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStandardPaths>
#include <QtTest/QtTest>

namespace
{
namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

const std::string theSample = QX_SOURCE_DIR "/data/samples/sample.xml";

struct DtRun
{
    int code;
    std::string output;
    std::string errors;
};

DtRun runProgram(const std::string& program, const Arguments& arguments, const fs::path& directory,
                 const Arguments& unset = {})
{
    const DtChildResult result = runInChild(
        [&]
        {
            std::vector<char*> pointers = {const_cast<char*>(program.c_str())};
            for (const std::string& argument : arguments)
                pointers.push_back(const_cast<char*>(argument.c_str()));
            pointers.push_back(nullptr);
            for (const std::string& variable : unset)
                unsetenv(variable.c_str());
            fs::current_path(directory);
            execv(program.c_str(), pointers.data());
            _exit(127);
        });
    return {result.exitCode, result.output.toStdString(), result.errors.toStdString()};
}

DtRun qxgen(const Arguments& arguments, const fs::path& directory = fs::temp_directory_path())
{
    return runProgram(QX_QXGEN, arguments, directory);
}

bool holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// A place where the program is installed together with one that stands in for the window and tells how it was started.
class DtInstalledPlace
{
public:
    explicit DtInstalledPlace(const char* dataName = "data")
    {
        writeBytes(path(std::string(dataName) + "/config/codeGenConfig.xml"), "<config/>\n");
        fs::create_directories(path("bin"));
        std::error_code error;
        fs::create_hard_link(QX_QXGEN, path("bin/qxgen"), error);
        if (error) // the places are on different disks
            fs::copy_file(QX_QXGEN, path("bin/qxgen"));
    }
    void addWindow() const
    {
        writeBytes(path("bin/codeGen"), "#!/bin/sh\npwd -P\nfor each; do echo \"$each\"; done\n");
        fs::permissions(path("bin/codeGen"), fs::perms::owner_all);
    }
    fs::path path(const std::string& name) const { return myFolder.path() / name; }
    DtRun window(Arguments arguments, const Arguments& unset = {}) const
    {
        arguments.insert(arguments.begin(), "window");
        return runProgram(path("bin/qxgen").string(), arguments, myFolder.path(), unset);
    }

private:
    DtTestFolder myFolder;
};

// Words of a line are completed as bash asks for it: the replies, one a line.
std::string bashReplies(const std::string& words, const std::string& line)
{
    const std::string script = "eval \"$(" QX_QXGEN " completion bash)\"\n"
                               "COMP_WORDS=(" +
                               words + ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\nCOMP_LINE='" + line +
                               "'\nCOMP_POINT=${#COMP_LINE}\n_qxgen " QX_QXGEN " '' ''\n"
                               "((${#COMPREPLY[@]} == 0)) || printf '%s\\n' \"${COMPREPLY[@]}\"\n";
    return runProgram("/bin/bash", {"--norc", "-c", script}, QX_SOURCE_DIR).output;
}

// What fish offers at the end of the line.
const char theFishScript[] = "set -x PATH (dirname $argv[1]) $PATH; $argv[1] completion fish | source\n"
                             "complete -C $argv[2]";
// What the script for zsh hands over at the end of the line, in place of the functions of its line editor.
const char theZshScript[] = "compdef() {}; compset() {}; _files() { print files }\n"
                            "compadd() { print -rl -- ${(P)@[-1]} }\n"
                            "program=$1 line=$2; eval \"$($program completion zsh)\"\n"
                            "words=($program ${(s. .)${line#qxgen }}); [[ $line != *' ' ]] || words+=('')\n"
                            "CURRENT=$#words; _qxgen";

QStringList repliesOf(const QString& shell, const std::string& program, const std::string& line)
{
    Arguments arguments = {"-f", "-c", theZshScript, "zsh"};
    if (shell == "fish")
        arguments = {"--no-config", "-c", theFishScript};
    arguments.insert(arguments.end(), {QX_QXGEN, line});
    const std::string output = runProgram(program, arguments, QX_SOURCE_DIR).output;
    QStringList replies = QString::fromStdString(output).split('\n', Qt::SkipEmptyParts);
    replies.sort();
    return replies;
}
} // namespace

class TestQxgenCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listNamesWhatItsOptionsAskFor_data()
    {
        QTest::addColumn<QByteArray>("options");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("objects") << QByteArray("--objects") << QByteArray("HLAobjectRoot.Boat\n");
        QTest::newRow("interactions") << QByteArray("--interactions") << QByteArray("HLAinteractionRoot.Horn\n");
        QTest::newRow("datatypes") << QByteArray("--datatypes --quiet") << QByteArray();
        QTest::newRow("tree") << QByteArray("--tree --objects") << QByteArray("HLAobjectRoot\n  Boat\n");
        QTest::newRow("format") << QByteArray("--objects --format text") << QByteArray("HLAobjectRoot.Boat\n");
        QTest::newRow("select") << QByteArray("--objects --interactions --select Horn")
                                << QByteArray("HLAinteractionRoot.Horn\n");
        QTest::newRow("management") << QByteArray("--objects --with-management")
                                    << QByteArray("HLAobjectRoot.HLAmanager\nHLAobjectRoot.HLAmanager.HLAfederate\n"
                                                  "HLAobjectRoot.HLAmanager.HLAfederation\nHLAobjectRoot.Boat\n");
        QTest::newRow("data directory") << QByteArray("--objects --data-dir " QX_SOURCE_DIR "/data")
                                        << QByteArray("HLAobjectRoot.Boat\n");
    }
    void listNamesWhatItsOptionsAskFor()
    {
        QFETCH(QByteArray, options);
        QFETCH(QByteArray, output);
        const DtTestFolder folder;
        writeModel(folder.path() / "small.xml");
        Arguments arguments = {"list"};
        for (const QByteArray& option : options.split(' '))
            arguments.push_back(option.toStdString());
        arguments.emplace_back("small.xml"); // behind a value: it is no further one
        const DtRun run = qxgen(arguments, folder.path());
        QCOMPARE(run.code, 0);
        COMPARE_TEXT(run.errors, "");
        // The management model has datatypes of its own.
        if (!output.isEmpty())
            QCOMPARE(QByteArray::fromStdString(run.output), output);
        else
            QVERIFY2(holds(run.output, "HLAinteger32BE\tbasic\n"), run.output.c_str());
    }

    void listTakesModelsOfAProjectAndOfFurtherDirectories()
    {
        const DtTestFolder folder;
        writeModel(folder.path() / "models/small.xml");
        writeBytes(folder.path() / "models/p.qxproj",
                   "<project><foms><fom name=\"small.xml\" location=\"\"/></foms></project>\n");
        for (const Arguments& arguments : {
                 Arguments{"list",     "--objects",    "--project", "models/p.qxproj"},
                 Arguments{ "list", "--objects", "--model-path",    "nowhere",       "--model-path", "models", "small.xml"}
        })
            COMPARE_TEXT(qxgen(arguments, folder.path()).output, "HLAobjectRoot.Boat\n");
    }

    void listGivesJson()
    {
        const DtRun run = qxgen({"list", theSample, "--format", "json"});
        QCOMPARE(run.code, 0);
        QCOMPARE(QJsonDocument::fromJson(QByteArray::fromStdString(run.output)).object().keys(),
                 QStringList({"datatypes", "interactions", "objects"}));
    }

    void failedListTellsWhyOnStandardErrorAlone_data()
    {
        QTest::addColumn<QByteArray>("options");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("text");
        const QByteArray sample = QByteArray::fromStdString(theSample);
        QTest::newRow("no model") << QByteArray("-q") << 1 << QByteArray("no model and no project is given.");
        QTest::newRow("unknown class") << sample + " --select Vesel" << 1 << QByteArray("Did you mean Vessel?");
        QTest::newRow("unknown format") << sample + " --format jsn" << 1 << QByteArray("Did you mean json?");
        QTest::newRow("tree of JSON") << sample + " --format json --tree" << 1 << QByteArray("--tree is for text");
        QTest::newRow("missing model") << QByteArray("none.xml") << 2 << QByteArray("there is no model none.xml");
        QTest::newRow("missing project") << QByteArray("--project none.qxproj") << 2
                                         << QByteArray("there is no project file none.qxproj");
        QTest::newRow("no model at all") << QByteArray(QX_SOURCE_DIR "/README.md") << 2 << QByteArray("cannot be read");
        QTest::newRow("no data") << sample + " --data-dir /" << 2 << QByteArray("is no data directory");
    }
    void failedListTellsWhyOnStandardErrorAlone()
    {
        QFETCH(QByteArray, options);
        QFETCH(int, code);
        QFETCH(QByteArray, text);
        Arguments arguments = {"list"};
        for (const QByteArray& option : options.split(' '))
            arguments.push_back(option.toStdString());
        const DtRun run = qxgen(arguments);
        QCOMPARE(run.code, code);
        COMPARE_TEXT(run.output, "");
        QVERIFY2(holds(run.errors, text.toStdString()), run.errors.c_str());
    }

    void listTakesNamesOfAnyBytes()
    {
        for (const char* name : {"two words.xml", "it's.xml", "h\xC3\xA4user.xml", "h\xE4user.xml"})
        {
            const DtTestFolder folder;
            writeModel(folder.path() / name);
            COMPARE_TEXT(qxgen({"list", "--objects", name}, folder.path()).output, "HLAobjectRoot.Boat\n");
        }
    }

    void standardOutputThatCannotBeWrittenEndsWith5_data()
    {
        QTest::addColumn<QByteArray>("arguments");
        for (const char* arguments :
             {"--version", "--help", "generate --help", "list SAMPLE", "list --format json SAMPLE", "completion bash",
              "generate --list SAMPLE", "complete bash generate --"})
            QTest::newRow(arguments) << QByteArray(arguments);
    }
    void standardOutputThatCannotBeWrittenEndsWith5()
    {
        QFETCH(QByteArray, arguments);
        for (const char* redirection : {">/dev/full", ">&-"})
        {
            const std::string line = std::string(QX_QXGEN) + " " +
                                     arguments.replace("SAMPLE", theSample.c_str()).toStdString() + " " + redirection;
            const DtRun run = runProgram("/bin/sh", {"-c", line}, fs::temp_directory_path());
            QCOMPARE(run.code, 5);
            COMPARE_TEXT(run.errors, "qxgen: error: standard output cannot be written.\n");
            COMPARE_TEXT(run.output, "");
        }
    }

    void lintEndsByWhatItFinds_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("option");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("output");
        const QByteArray warning = "./enums.tlt:1:1: warning: a bar at the very start is plain text [template-bar]\n";
        const QByteArray error = "./enums.tlt:1:1: error: <#> closes no block [template-block]\n";
        QTest::newRow("nothing") << QByteArray("x\n") << QByteArray("--data-dir=" QX_SOURCE_DIR "/data") << 0
                                 << QByteArray();
        QTest::newRow("warning") << QByteArray("|x\n") << QByteArray("--color=auto") << 0 << warning;
        QTest::newRow("quiet") << QByteArray("|x\n") << QByteArray("-q") << 0 << QByteArray();
        QTest::newRow("warnings as errors") << QByteArray("|x\n") << QByteArray("--werror") << 3 << warning;
        QTest::newRow("error") << QByteArray("<#>\n") << QByteArray("--format=text") << 3 << error;
        QTest::newRow("error, quiet") << QByteArray("<#>\n") << QByteArray("--quiet") << 3 << error;
        QTest::newRow("msvs") << QByteArray("<#>\n") << QByteArray("--format=msvs") << 3
                              << QByteArray("./enums.tlt(1,1): error template-block: <#> closes no block\n");
        QTest::newRow("json") << QByteArray("<#>\n") << QByteArray("--format=json") << 3
                              << QByteArray("{\"severity\":\"error\",\"rule\":\"template-block\",\"file\":"
                                            "\"./enums.tlt\",\"line\":1,\"column\":1,\"text\":\"<#> closes no "
                                            "block\"}\n");
        QTest::newRow("colour") << QByteArray("<#>\n") << QByteArray("--color=always") << 3
                                << QByteArray("\033[1m./enums.tlt:1:1: \033[0m\033[31merror: \033[0m<#> closes no "
                                              "block [template-block]\n");
    }
    void lintEndsByWhatItFinds()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, option);
        QFETCH(int, code);
        QFETCH(QByteArray, output);
        const DtTestFolder folder;
        writeBytes(folder.path() / "enums.tlt", text.toStdString());
        const DtRun run = qxgen({"lint-templates", option.toStdString(), "."}, folder.path());
        QCOMPARE(run.code, code);
        QCOMPARE(QByteArray::fromStdString(run.output), output);
        COMPARE_TEXT(run.errors, "");
    }

    void lintNeedsADirectory()
    {
        QCOMPARE(qxgen({"lint-templates"}).code, 1);
        QCOMPARE(qxgen({"lint-templates", "."}, "/proc/self/fdinfo").code, 0);
        const DtRun run = qxgen({"lint-templates", "nowhere"});
        QCOMPARE(run.code, 2);
        COMPARE_TEXT(run.errors, "qxgen: error: there is no directory nowhere.\n");
    }

    void windowIsStartedBesideTheDataWithAbsoluteNames()
    {
        const DtInstalledPlace place;
        place.addWindow();
        writeBytes(place.path("a b.xml"), "");
        writeBytes(place.path("h\xE4.xml"), "");
        writeBytes(place.path("p.qxproj"), "");
        const std::string here = fs::canonical(place.path("bin")).string() + "\n";
        const std::string top = place.path("").string();
        COMPARE_TEXT(place.window({}).output, here.c_str());
        COMPARE_TEXT(place.window({"a b.xml", "h\xE4.xml"}).output,
                     (here + "-F\n" + top + "a b.xml\n-F\n" + top + "h\xE4.xml\n").c_str());
        COMPARE_TEXT(place.window({"p.qxproj"}).output, (here + "-P\n" + top + "p.qxproj\n").c_str());
    }

    void windowTakesAnotherDataDirectory()
    {
        const DtInstalledPlace place;
        const DtInstalledPlace other;
        place.addWindow();
        fs::remove_all(other.path("bin"));
        COMPARE_TEXT(place.window({"--data-dir", other.path("data").string()}).output,
                     (fs::canonical(other.path("data")).string() + "\n").c_str());
    }

    void windowFindsModelsBelowTheRtiConfiguration()
    {
        const DtInstalledPlace place;
        place.addWindow();
        writeBytes(place.path("rti/far.xml"), "");
        const DtWithEnvironment variable("RTI_CONFIG", place.path("rti").c_str());
        const DtRun run = place.window({"far.xml"});
        QVERIFY2(holds(run.output, "-F\n" + place.path("rti/far.xml").string() + "\n"), run.output.c_str());
    }

    void windowThatCannotBeStartedIsTold_data()
    {
        QTest::addColumn<QByteArray>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no program") << QByteArray() << 2
                                    << QByteArray("there is no codeGen, the program with the window");
        QTest::newRow("no project") << QByteArray("none.qxproj") << 2
                                    << QByteArray("there is no project file none.qxproj.");
        QTest::newRow("no model") << QByteArray("none.xml") << 2 << QByteArray("there is no model none.xml");
        QTest::newRow("project and model") << QByteArray("p.qxproj a.xml") << 1 << QByteArray("a project stands alone");
    }
    void windowThatCannotBeStartedIsTold()
    {
        QFETCH(QByteArray, arguments);
        QFETCH(int, code);
        QFETCH(QByteArray, text);
        const DtInstalledPlace place;
        Arguments words;
        for (const QByteArray& word : arguments.split(' '))
            if (!word.isEmpty())
                words.push_back(word.toStdString());
        const DtRun run = place.window(words);
        QCOMPARE(run.code, code);
        COMPARE_TEXT(run.output, "");
        QVERIFY2(holds(run.errors, text.toStdString()), run.errors.c_str());
    }

    void windowWithoutADisplayIsTold()
    {
        const DtInstalledPlace place;
        place.addWindow();
        const DtRun run = place.window({}, {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"});
        QCOMPARE(run.code, 1);
        QVERIFY2(holds(run.errors, "there is no display for the window"), run.errors.c_str());
    }

    void windowNeedsADirectoryThatIsCalledData()
    {
        const DtInstalledPlace place("files");
        place.addWindow();
        const DtRun run = place.window({"--data-dir", place.path("files").string()});
        QCOMPARE(run.code, 2);
        QVERIFY2(holds(run.errors, "a data directory that is called \"data\""), run.errors.c_str());
    }

    void completionIsPrintedForKnownShells()
    {
        for (const char* shell : {"bash", "zsh", "fish"})
        {
            const DtRun run = qxgen({"completion", shell});
            QCOMPARE(run.code, 0);
            QVERIFY2(holds(run.output, std::string("complete ") + shell), run.output.c_str());
        }
        const DtRun run = qxgen({"completion", "bsh"});
        QCOMPARE(run.code, 1);
        COMPARE_TEXT(run.errors,
                     "qxgen: error: there is no completion for bsh. Did you mean bash or zsh? Shells are bash, zsh "
                     "and fish.\n");
        QCOMPARE(qxgen({"completion"}).code, 1);
    }

    void scriptsHaveTheSyntaxOfTheirShell_data()
    {
        QTest::addColumn<QString>("shell");
        for (const char* shell : {"bash", "zsh", "fish"})
            QTest::newRow(shell) << shell;
    }
    void scriptsHaveTheSyntaxOfTheirShell()
    {
        QFETCH(QString, shell);
        const QString program = QStandardPaths::findExecutable(shell);
        if (program.isEmpty())
            QSKIP("the shell is not installed");
        const DtTestFolder folder;
        const std::string file = (folder.path() / "script").string();
        writeBytes(file, qxgen({"completion", shell.toStdString()}).output);
        const DtRun run = runProgram(program.toStdString(), {"-n", file}, folder.path());
        QCOMPARE(run.code, 0);
        COMPARE_TEXT(run.errors, "");
    }

    void wordsAreCompleted_data()
    {
        QTest::addColumn<QByteArray>("words"); // divided by bars
        QTest::addColumn<QByteArray>("completions");
        const QByteArray sample = QByteArray::fromStdString(theSample);
        const auto add = [](const QByteArray& words, const QByteArray& completions)
        { QTest::newRow(words.constData()) << words << completions; };
        add("", "generate list lint-templates window completion");
        add("li", "list lint-templates");
        add("--v", "--version");
        add("list|--f", "--format");
        add("list|--format|", "text json");
        add("list|--format|j", "json");
        add("list|--format=t", "--format=text");
        add("list|a.xml", "");
        add("list|--|--f", "");
        add("list|--project|", "");
        add("generate|--no", "--no-wait");
        add("generate|--layout|", "tree classic");
        add("generate|--script|", "cpp html json python");
        add("generate|--set|generateD", "generateDIS=");
        add("generate|--set|generateDIS=", "generateDIS=false generateDIS=true");
        add("generate|--set|logF", ""); // writes elsewhere and is refused
        add("generate|" + sample + "|--select|PortEntity.V",
            "PortEntity.Vessel PortEntity.Vessel.CargoShip PortEntity.Vessel.Tug/Pusher");
        add("generate|--select|Car|" + sample + "|--select|!Car", "!CargoShip");
        add("generate|none.xml|--select|", "");
        add("generate|--unknown|--lay", "--layout");
        add("completion|", "bash zsh fish");
        add("nonsense|", "generate list lint-templates window completion");
        add("@none|list|--dat", "--datatypes --data-dir");
    }
    void wordsAreCompleted()
    {
        QFETCH(QByteArray, words);
        QFETCH(QByteArray, completions);
        Arguments arguments = {"complete", "zsh"};
        for (const QByteArray& word : words.split('|'))
            arguments.push_back(word.toStdString());
        const DtRun run = qxgen(arguments);
        QCOMPARE(run.code, 0);
        QCOMPARE(QByteArray::fromStdString(run.output).trimmed().replace('\n', ' '), completions);
        COMPARE_TEXT(run.errors, "");
    }

    // What no help tells of is told when somebody calls it by itself.
    void completeAloneIsRefused() { QCOMPARE(qxgen({"complete"}).code, 1); }

    void bashKnowsTheCompletion()
    {
        const std::string script = "eval \"$(" QX_QXGEN " completion bash)\"; complete -p qxgen";
        COMPARE_TEXT(runProgram("/bin/bash", {"--norc", "-c", script}, "/").output,
                     "complete -o bashdefault -o default -F _qxgen qxgen\n");
    }

    void bashCompletesWords_data()
    {
        QTest::addColumn<QByteArray>("words"); // as readline divides the line
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("replies");
        const auto add = [](const char* words, const char* line, const char* replies)
        { QTest::newRow(line) << QByteArray(words) << QByteArray(line) << QByteArray(replies); };
        add("qxgen ''", "qxgen ", "generate\nlist\nlint-templates\nwindow\ncompletion\n");
        add("qxgen list --form", "qxgen list --form", "--format\n");
        add("qxgen list --format = j", "qxgen list --format=j", "json\n");
        add("qxgen list --format =", "qxgen list --format=", "text\njson\n");
        add("qxgen list --format ''", "qxgen list --format ", "text\njson\n");
        add("qxgen generate --set generateDIS = t", "qxgen generate --set generateDIS=t", "true\n");
        add("qxgen list --select Weat data/samples/sample.xml --select Wea",
            "qxgen list --select Weat data/samples/sample.xml --select Wea", "Weather\n");
        add("qxgen list \"\\\"data/samples/sample.xml\\\"\" --select Wea",
            "qxgen list \"data/samples/sample.xml\" --select Wea", "Weather\n");
        add("qxgen list data\\\\/samples/sample.xml --select Wea", "qxgen list data\\/samples/sample.xml --select Wea",
            "Weather\n");
        add("qxgen list data/samp", "qxgen list data/samp", ""); // bash goes on with names of files
    }
    void bashCompletesWords()
    {
        QFETCH(QByteArray, words);
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, replies);
        QCOMPARE(QByteArray::fromStdString(bashReplies(words.toStdString(), line.toStdString())), replies);
    }

    void otherShellsCompleteWords_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("replies");
        for (const char* shell : {"zsh", "fish"})
        {
            const auto add = [shell](const char* line, const char* replies)
            { QTest::addRow("%s: %s", shell, line) << shell << line << replies; };
            add("qxgen ", "completion generate lint-templates list window");
            add("qxgen gen", "generate");
            add("qxgen generate --layout ", "classic tree");
            add("qxgen generate --layout=c", "--layout=classic");
            add("qxgen generate --set generateD", "generateDIS=");
            add("qxgen list data/samples/sample.xml --select Wea", "Weather");
            add("qxgen list data/sampl", shell == QByteArray("fish") ? "data/samples/" : "files");
        }
    }
    void otherShellsCompleteWords()
    {
        QFETCH(QString, shell);
        QFETCH(QString, line);
        const QString program = QStandardPaths::findExecutable(shell);
        if (program.isEmpty())
            QSKIP("the shell is not installed");
        QTEST(repliesOf(shell, program.toStdString(), line.toStdString()).join(' '), "replies");
    }

    void repeatedOptionOfGenerateTakesOneValueEachTime()
    {
        const DtRun run = qxgen({"generate", "--list", "--script", "json", theSample});
        QCOMPARE(run.code, 0);
        COMPARE_TEXT(run.output, "model.json\n");
    }

    void choiceOfGenerateIsToldByNameAlone()
    {
        const DtRun run = qxgen({"generate", "--list", "--layout", "clasic", theSample});
        QCOMPARE(run.code, 1);
        QVERIFY2(
            holds(
                run.errors,
                "--layout: there is no \"clasic\". Did you mean classic? Known are tree|classic. --help tells more.\n"),
            run.errors.c_str());
        QCOMPARE(qxgen({"generate", "--list", "--layout", "1", theSample}).code, 1);
    }

private:
    static void writeModel(const fs::path& path)
    {
        writeBytes(path,
                   moduleText(objectText("Boat") + objectText("HLAmanager"), interactionText("Horn")).toStdString());
    }
};

QX_REGISTER_TEST(TestQxgenCommands)
#include "testQxgenCommands.moc"
