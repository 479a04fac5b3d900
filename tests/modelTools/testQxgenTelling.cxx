// What qxgen generate tells, in which form, where, and when it keeps quiet.

#include "qxgenProgram.h"
#include "registerTest.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

#include <sstream>

class TestQxgenTelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myFolder = std::make_unique<DtProgramFolder>();
        myFolder->write("models/small.xml", smallModel());
    }

    void diagnosticsHaveThreeFormats_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("text") << QByteArray("text")
                              << QByteArray("out/model.json: warning: was edited by hand and is replaced "
                                            "[edited-by-hand]\n");
        QTest::newRow("msvs") << QByteArray("msvs")
                              << QByteArray("out/model.json: warning edited-by-hand: was edited by hand and is "
                                            "replaced\n");
        QTest::newRow("json") << QByteArray("json")
                              << QByteArray("{\"severity\":\"warning\",\"rule\":\"edited-by-hand\",\"file\":\"out/"
                                            "model.json\",\"text\":\"was edited by hand and is replaced\"}\n");
    }
    void diagnosticsHaveThreeFormats()
    {
        QFETCH(QByteArray, format);
        QFETCH(QByteArray, expected);
        makeEditedOutput();
        COMPARE_TEXT(textOf(generate({"--format", format.toStdString()})), "0\n--\n" + expected);
    }

    void everyLineIsAnObjectInJson_data()
    {
        QTest::addColumn<QByteArray>("options"); // with bars between
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("last"); // the last line
        const auto row = [](const char* options, int code, const char* last)
        { QTest::newRow(options) << QByteArray(options) << code << QByteArray(last); };
        row("--select|Bargo", 1,
            "{\"severity\":\"error\",\"text\":\"no class matches \\\"Bargo\\\". Did you mean Barge?\"}");
        row("--frob", 1,
            "{\"severity\":\"error\",\"text\":\"qxgen generate has no option --frob. --help tells more.\"}");
        row("-q|-v", 1, "{\"severity\":\"error\",\"text\":\"-q and -v exclude one another.\"}");
        row("@gone", 1, "{\"severity\":\"error\",\"text\":\"the file of arguments gone cannot be read.\"}");
        row("--report|models", 5,
            "{\"severity\":\"error\",\"file\":\"models\",\"text\":\"cannot be written: Is a directory\"}");
        row("models/broken.xml", 2, "");
        row("-v", 0, "");
        row("--werror", 3,
            "{\"severity\":\"warning\",\"rule\":\"edited-by-hand\",\"file\":\"out/model.json\","
            "\"text\":\"was edited by hand and is replaced\"}");
    }
    void everyLineIsAnObjectInJson()
    {
        QFETCH(QByteArray, options);
        QFETCH(int, code);
        QFETCH(QByteArray, last);
        makeEditedOutput();
        myFolder->write("models/broken.xml", "<objectModel>");
        for (const char* format : {"--format=json", "--format|json"})
        {
            makeEditedOutput();
            DtArguments arguments;
            for (const QByteArray& each : (format + ("|" + options)).split('|'))
                arguments.push_back(each.toStdString());
            const DtProgramEnd end = generate(arguments);
            QCOMPARE(end.code, code);
            COMPARE_TEXT(end.out, "");
            COMPARE_TEXT(notJson(end.err), "");
            if (!last.isEmpty())
                COMPARE_TEXT(lastLine(end.err), last);
        }
    }

    void argumentBehindTheDoubleDashIsNoFormat()
    {
        const DtProgramEnd end = myFolder->generate({"-o", "out", "--", "--format=json"});
        QVERIFY2(end.err.rfind("qxgen: error: there is no model --format=json", 0) == 0, end.err.c_str());
        QCOMPARE(end.code, 2);
    }

    void formatOfAFileOfArgumentsCountsForErrorsToo()
    {
        myFolder->write("line", "--format=json\n--select=Bargo\n");
        COMPARE_TEXT(generate({"@line"}).err,
                     "{\"severity\":\"error\",\"text\":\"no class matches \\\"Bargo\\\". Did you mean Barge?\"}\n");
    }

    void noticesOfTheOutputFolderAreObjectsInJsonToo()
    {
        const pid_t killed = startChild(
            [this]
            {
                runOnce(myFolder->path("out"), filesOf("model.json=x"),
                        [](DtCommitStep step, const std::filesystem::path&)
                        {
                            if (step == DtCommitStep::JournalWritten)
                                kill(getpid(), SIGKILL);
                        });
            });
        QCOMPARE(endOf(killed), 128 + SIGKILL);
        auto lock = std::make_unique<DtOutputLock>(myFolder->path("out"));
        const pid_t waiting = myFolder->startGenerate(
            {"models/small.xml", "-o", "out", "--script", "json", "--format", "json", "--set", "prefixName=Ab"});
        const std::string notice = "{\"severity\":\"note\",\"text\":\"waiting for the run of process " +
                                   std::to_string(getpid()) + " in out\"}\n";
        QVERIFY(comesTrue([this] { return contains(myFolder->errorsSoFar(), "waiting"); }));
        lock.reset();
        COMPARE_TEXT(textOf(myFolder->end(waiting)),
                     ("0\n--\n" + notice +
                      "{\"severity\":\"note\",\"text\":\"finished what an earlier run had begun in out\"}\n")
                         .c_str());
    }

    void terminalShowsObjectsAloneInJson()
    {
        makeEditedOutput();
        std::string told = onTerminal("--script json --format json -v");
        told.erase(std::remove(told.begin(), told.end(), '\r'), told.end());
        COMPARE_TEXT(notJson(told), "");
        QVERIFY2(contains(lastLine(told), "\"text\":\"1 files in out: 1 written, 0 removed, 0 unchanged ("),
                 told.c_str());
    }

    void colorsAreForTerminalsUnlessAskedFor_data()
    {
        QTest::addColumn<QByteArray>("option");
        QTest::addColumn<bool>("isTerminal");
        QTest::addColumn<QByteArray>("noColor");
        QTest::addColumn<bool>("isColored");
        const auto row = [](const char* option, bool isTerminal, const char* noColor, bool isColored)
        {
            QTest::addRow("%s %s NO_COLOR=%s", option, isTerminal ? "terminal" : "file", noColor)
                << QByteArray(option) << isTerminal << QByteArray(noColor) << isColored;
        };
        row("auto", false, "", false);
        row("auto", true, "", true);
        row("auto", true, "1", false);
        row("always", false, "", true);
        row("always", false, "1", true); // who names it on the command line means it
        row("never", true, "", false);
    }
    void colorsAreForTerminalsUnlessAskedFor()
    {
        QFETCH(QByteArray, option);
        QFETCH(bool, isTerminal);
        QFETCH(QByteArray, noColor);
        QFETCH(bool, isColored);
        makeEditedOutput();
        const DtWithEnvironment variable("NO_COLOR", noColor.constData());
        std::string told;
        if (isTerminal)
            told = onTerminal("--color " + option.toStdString());
        else
            told = generate({"--color", option.toStdString()}, [&] { setenv("NO_COLOR", noColor.constData(), 1); }).err;
        QVERIFY2(contains(told, "edited by hand"), told.c_str());
        QCOMPARE(contains(told, "\033[35mwarning: \033[0m"), isColored);
        QCOMPARE(contains(told, "\033[1m"), isColored);
    }

    void lastLineOnATerminalTellsWhatWasDone()
    {
        const std::string first = lastLine(onTerminal("--script json --script html"));
        const std::string second = lastLine(onTerminal("--script json"));
        const std::string third = lastLine(onTerminal("--script json"));
        const auto matches = [](const std::string& line, const char* pattern)
        { return QRegularExpression(QString::fromLatin1(pattern)).match(QString::fromStdString(line)).hasMatch(); };
        QVERIFY2(matches(first, "^2 files in out: 2 written, 0 removed, 0 unchanged \\(\\d+\\.\\d\\d s\\)$"),
                 first.c_str());
        QVERIFY2(matches(second, "^1 files in out: 0 written, 1 removed, 1 unchanged \\("), second.c_str());
        QVERIFY2(matches(third, "^1 files in out: 0 written, 0 removed, 1 unchanged \\("), third.c_str());
    }

    void whatWasAskedForComesAloneOnStandardOutput()
    {
        const std::string told = onTerminal("--script json --list >list.txt");
        COMPARE_TEXT(myFolder->text("list.txt"), "model.json\n");
        QVERIFY2(!contains(told, "model.json\r\n"), told.c_str()); // the progress may name it
    }

    void quietTellsErrorsOnly()
    {
        makeEditedOutput();
        COMPARE_TEXT(onTerminal("--script json -q"), "");
        COMPARE_TEXT(textOf(generate({"-q", "--select", "Bargo"})),
                     "1\n--\nqxgen: error: no class matches \"Bargo\". Did you mean Barge?\n");
        makeEditedOutput(); // what makes a run fail is told
        COMPARE_TEXT(textOf(generate({"-q", "--werror"})),
                     "3\n--\nout/model.json: warning: was edited by hand and is replaced [edited-by-hand]\n");
    }

    void verboseTellsEachFileAndTheCounts()
    {
        const DtProgramEnd end = generate({"-v"});
        QVERIFY2(end.err.rfind("A model.json\n1 files in out: 1 written, 0 removed, 0 unchanged (", 0) == 0,
                 end.err.c_str());
        COMPARE_TEXT(end.out, "");
    }

    void warningsAreErrorsChangesNothing()
    {
        makeEditedOutput();
        const DtContents before = treeOf(myFolder->path("out"));
        const std::string manifest = myFolder->text("out/.qxgen-manifest.json");
        COMPARE_TEXT(textOf(generate({"--werror", "--stamp", "stamp", "--report", "report.json"})),
                     "3\n--\nout/model.json: warning: was edited by hand and is replaced [edited-by-hand]\n");
        COMPARE_TEXT(differenceOf(before, treeOf(myFolder->path("out"))), "");
        COMPARE_TEXT(myFolder->text("out/.qxgen-manifest.json"), manifest.c_str());
        QVERIFY(!std::filesystem::exists(myFolder->path("stamp")));
        QVERIFY(contains(myFolder->text("report.json"), "\"committed\": false"));
        COMPARE_TEXT(ownNames(myFolder->path("out")), ".qxgen-manifest.json");
    }

    void werrorGoesAheadOfVerify()
    {
        makeEditedOutput();
        QCOMPARE(generate({"--verify"}).code, 4);
        QCOMPARE(generate({"--verify", "--werror"}).code, 3);
    }

    void runWithoutWarningsIsGoodUnderWerror() { COMPARE_TEXT(textOf(generate({"--werror"})), "0\n--\n"); }

private:
    // The small model as JSON, which is one file.
    DtProgramEnd generate(const DtArguments& options, const std::function<void()>& prepare = {}) const
    {
        DtArguments arguments = {"models/small.xml", "-o", "out", "--script", "json"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return myFolder->generate(arguments, prepare);
    }

    void makeEditedOutput() const
    {
        generate({});
        myFolder->write("out/model.json", "mine");
    }

    // The same with standard streams that are a terminal, as far as the line does not redirect them. Gives what the
    // terminal shows, or why there is none.
    std::string onTerminal(const std::string& options) const
    {
        std::string line = QX_QXGEN " generate models/small.xml -o out " + options;
        if (!contains(options, "--script"))
            line += " --script json";
        QProcess terminal;
        terminal.setWorkingDirectory(QString::fromStdString(myFolder->path().native()));
        terminal.start("script", {"-qec", QString::fromStdString(line), "/dev/null"});
        if (!terminal.waitForFinished(60000))
            return "script, which makes a terminal, does not run";
        return terminal.readAll().toStdString();
    }

    // The lines that are no JSON object with a severity and a text.
    static std::string notJson(const std::string& told)
    {
        std::string bad;
        std::istringstream lines(told);
        for (std::string line; std::getline(lines, line);)
        {
            const QJsonObject object = QJsonDocument::fromJson(QByteArray(line.c_str())).object();
            if (!object.contains("severity") || !object.contains("text"))
                bad += line + "\n";
        }
        return told.empty() ? "nothing is told" : bad;
    }

    static std::string lastLine(std::string text)
    {
        text.erase(text.find_last_not_of("\r\n") + 1);
        text.erase(0, text.rfind('\n') + 1);
        return text.substr(contains(text, "\033[K") ? text.rfind("\033[K") + 3 : 0);
    }

    std::unique_ptr<DtProgramFolder> myFolder;
};

QX_REGISTER_TEST(TestQxgenTelling)
#include "testQxgenTelling.moc"
