// The output directory of qxgen generate is whole whatever happens, and nothing else is touched.

#include "codeGenApp/omtProjectXmlWriter.h"
#include "fileGenerator/omtProject.h"
#include "foundation/textEnds.h"
#include "qxgenProgram.h"
#include "registerTest.h"
#include "scratchData.h"

#include <QtCore/QJsonDocument>

namespace
{
constexpr int theKills = 50;

// The small model with another class name, so that files come, go and change.
std::string otherModel()
{
    std::string text = smallModel();
    text.replace(text.find("Tanker"), 6, "Ferry");
    text.replace(text.find("Speed"), 5, "Pace");
    return text;
}

// Two models of which none of the classes is in the other, so that a run and its commit are long enough to be met.
std::string fleet(const char* name)
{
    QByteArray classes;
    for (int number = 0; number < 8; ++number)
        classes += objectText(name + QByteArray::number(number), attributeText("Speed", "HLAfloat64BE"));
    return moduleText(classes, interactionText("Horn", parameterText("Code"))).toStdString();
}
} // namespace

class TestQxgenFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myFolder = std::make_unique<DtProgramFolder>(DtTestFolder::memory());
        myFolder->write("models/small.xml", smallModel());
    }

    // Half of the kills are spread over the time of a run; half follow right behind the appearance of the journal,
    // since the commit is a small part of that time.
    void killedRunLeavesWholeFilesAndTheNextOneCompletesThem()
    {
        const std::string models[] = {fleet("Barge"), fleet("Ferry")};
        const DtContents versions[] = {outputOf(models[0]), outputOf(models[1])};
        QVERIFY(differenceOf(versions[0], versions[1]) != "");
        myFolder->write("models/small.xml", models[0]);
        QCOMPARE(generate({}).code, 0);
        const auto start = std::chrono::steady_clock::now();
        QCOMPARE(generate({"--verify"}).code, 0);
        const auto length = std::chrono::steady_clock::now() - start;
        int interrupted = 0, behindJournal = 0;
        for (int kill = 0; kill < theKills; ++kill)
        {
            const int next = kill % 2 == 0 ? 1 : 0;
            myFolder->write("models/small.xml", models[next]);
            const pid_t program = myFolder->startGenerate({"models/small.xml", "-o", "out", "--stamp", "stamp"});
            if (kill < theKills / 2)
                std::this_thread::sleep_for(length * kill / (theKills / 2));
            else
                waitForJournal(program, kill - theKills / 2);
            ::kill(program, SIGKILL);
            const int code = endOf(program);
            QVERIFY2(code == 0 || code == 128 + SIGKILL, myFolder->errorsSoFar().c_str());
            interrupted += code == 0 ? 0 : 1;
            behindJournal += std::filesystem::exists(myFolder->path("out/.qxgen-journal.json")) ? 1 : 0;
            COMPARE_TEXT(strangeFiles(versions[0], versions[1]), "");
            if (code == 0 || std::filesystem::exists(myFolder->path("stamp"))) // which says that all is done
                COMPARE_TEXT(differenceOf(versions[next], treeOf(myFolder->path("out"))), "");
            QCOMPARE(generate({}).code, 0);
            COMPARE_TEXT(differenceOf(versions[next], treeOf(myFolder->path("out"))), "");
            COMPARE_TEXT(ownNames(myFolder->path("out")), ".qxgen-manifest.json");
            std::filesystem::remove(myFolder->path("stamp"));
        }
        qInfo("%d of %d runs were killed, %d with a journal", interrupted, theKills, behindJournal);
        QVERIFY(interrupted > theKills / 4);
        QVERIFY(behindJournal > 0);
    }

    void signalEndsARun_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("code");
        QTest::newRow("INT") << SIGINT << 130;
        QTest::newRow("TERM") << SIGTERM << 143;
    }
    void signalEndsARun()
    {
        QFETCH(int, signal);
        QFETCH(int, code);
        const DtOutputLock lock(myFolder->path("out"));
        const pid_t program = myFolder->startGenerate({"models/small.xml", "-o", "out"}); // waits for the lock
        QVERIFY(comesTrue([this] { return contains(myFolder->errorsSoFar(), "waiting"); }));
        kill(program, signal);
        QCOMPARE(endOf(program), code);
        COMPARE_TEXT(differenceOf({}, treeOf(myFolder->path("out"))), "");
        COMPARE_TEXT(ownNames(myFolder->path("out")), ".qxgen-lock"); // which is not that run's
    }

    void signalLeavesNeitherStageNorLock_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QByteArray>("use");
        for (const char* use : {"", "--list", "--dry-run", "--verify"})
            for (const int signal : {SIGINT, SIGTERM})
                QTest::addRow("%d %s", signal, use) << signal << QByteArray(use);
    }
    void signalLeavesNeitherStageNorLock()
    {
        QFETCH(int, signal);
        QFETCH(QByteArray, use);
        std::filesystem::create_directories(myFolder->path("tmp"));
        for (int round = 0; round < 5; ++round)
        {
            const pid_t program = startLongRun(use.toStdString());
            QVERIFY(comesTrue([this] { return hasStage("out/sub") || hasStage("tmp"); }));
            std::this_thread::sleep_for(std::chrono::milliseconds(round * 3));
            kill(program, signal);
            QCOMPARE(endOf(program), 128 + signal);
            COMPARE_TEXT(ownNames(myFolder->path("tmp")), "");
            QVERIFY(!std::filesystem::exists(myFolder->path("out"))); // it was made by the run
        }
    }

    void signalDuringTheCommitLeavesTheWholeOutput()
    {
        const DtContents versions[] = {outputOf(smallModel()), outputOf(otherModel())};
        QCOMPARE(generate({}).code, 0);
        for (int round = 0; round < 10; ++round)
        {
            const int next = round % 2 == 0 ? 1 : 0;
            myFolder->write("models/small.xml", next == 1 ? otherModel() : smallModel());
            const pid_t program = myFolder->startGenerate({"models/small.xml", "-o", "out"});
            waitForJournal(program, round);
            kill(program, SIGTERM);
            const int code = endOf(program);
            QVERIFY(code == 0 || code == 143);
            COMPARE_TEXT(differenceOf(versions[next], treeOf(myFolder->path("out"))), "");
            COMPARE_TEXT(ownNames(myFolder->path("out")), ".qxgen-manifest.json");
        }
    }

    void killedRunThatOnlyComparesIsClearedByTheNext()
    {
        std::filesystem::create_directories(myFolder->path("tmp"));
        const char* const uses[] = {"--list", "--dry-run", "--verify"};
        for (int round = 0; round < 9; ++round)
        {
            const pid_t program = startLongRun(uses[round % 3]);
            QVERIFY(comesTrue([this] { return hasStage("tmp"); }));
            std::this_thread::sleep_for(std::chrono::milliseconds(round * 3));
            kill(program, SIGKILL);
            QCOMPARE(endOf(program), 128 + SIGKILL);
            QVERIFY(ownNames(myFolder->path("tmp")) != "");
            DtArguments arguments = {"generate", "models/small.xml", "-o", "out", "--script", "json"};
            arguments.push_back(uses[(round + round / 3) % 3]);
            myFolder->run(arguments, [this] { setenv("TMPDIR", myFolder->path("tmp").c_str(), 1); });
            COMPARE_TEXT(ownNames(myFolder->path("tmp")), "");
        }
    }

    void stageOfARunThatLivesIsLeftToIt()
    {
        std::filesystem::create_directories(myFolder->path("tmp"));
        const pid_t program = startLongRun("--list");
        QVERIFY(comesTrue([this] { return hasStage("tmp"); }));
        kill(program, SIGSTOP);
        const std::string stage = ownNames(myFolder->path("tmp"));
        const DtProgramEnd other = myFolder->run({"generate", "models/small.xml", "--list", "--script", "json"},
                                                 [this] { setenv("TMPDIR", myFolder->path("tmp").c_str(), 1); });
        COMPARE_TEXT(ownNames(myFolder->path("tmp")), stage.c_str());
        COMPARE_TEXT(textOf(other), "0\nmodel.json\n--\n");
        kill(program, SIGCONT);
        QCOMPARE(endOf(program), 0);
        COMPARE_TEXT(ownNames(myFolder->path("tmp")), "");
    }

    void fullDiskLeavesTheOldOutput()
    {
        std::filesystem::create_directories(myFolder->path("disk"));
        const DtTestMount disk("tmpfs", "tmpfs", myFolder->path("disk"), 0, "size=400k");
        if (!disk.isMounted())
            QSKIP(disk.why().c_str());
        const auto generateThere = [this](const DtArguments& options)
        {
            DtArguments arguments = {"models/small.xml", "-o", "disk/out"};
            arguments.insert(arguments.end(), options.begin(), options.end());
            return myFolder->generate(arguments);
        };
        COMPARE_TEXT(textOf(generateThere({"--script", "json"})), "0\n--\n");
        const DtContents before = treeOf(myFolder->path("disk/out"));
        const DtProgramEnd end = generateThere({"--dis", "--examples", "--with-management"});
        QCOMPARE(end.code, 5);
        QVERIFY2(end.err.rfind("qxgen: error: disk/out", 0) == 0 && contains(end.err, "No space left on device"),
                 end.err.c_str());
        QVERIFY2(end.err.find('\n') == end.err.size() - 1, end.err.c_str()); // one line for all files
        COMPARE_TEXT(differenceOf(before, treeOf(myFolder->path("disk/out"))), "");
        COMPARE_TEXT(textOf(generateThere({"--script", "json"})), "0\n--\n");
        COMPARE_TEXT(ownNames(myFolder->path("disk/out")), ".qxgen-manifest.json");
    }

    void fullDiskOfTemporaryFilesIsToldAsTheirs()
    {
        std::filesystem::create_directories(myFolder->path("tmp"));
        const DtTestMount disk("tmpfs", "tmpfs", myFolder->path("tmp"), 0, "size=100k");
        if (!disk.isMounted())
            QSKIP(disk.why().c_str());
        const DtProgramEnd end = myFolder->run({"generate", "models/small.xml", "-o", "out", "--dry-run", "--examples"},
                                               [this] { setenv("TMPDIR", myFolder->path("tmp").c_str(), 1); });
        QCOMPARE(end.code, 5);
        const std::string start = "qxgen: error: " + (myFolder->path("tmp") / ".qxgen-").native();
        QVERIFY2(DtStartsWith(end.err, start) && contains(end.err, "No space left on device"), end.err.c_str());
        COMPARE_TEXT(ownNames(myFolder->path("tmp")), "");
    }

    void readOnlyDirectoryEndsWith5()
    {
        QCOMPARE(generate({"--script", "json"}).code, 0);
        const DtTestMount same("none", myFolder->path("out"), myFolder->path("out"), MS_BIND);
        if (!same.isMounted())
            QSKIP(same.why().c_str());
        QVERIFY(same.makeReadOnly());
        const DtProgramEnd end = generate({});
        QCOMPARE(end.code, 5);
        QVERIFY2(end.err.rfind("qxgen: error: out", 0) == 0 && contains(end.err, "Read-only file system"),
                 end.err.c_str());
        COMPARE_TEXT(textOf(generate({"--script", "json", "--verify"})), "0\n--\n"); // which writes nothing there
    }

    void closedStreamIsNotTakenForAFile_data()
    {
        QTest::addColumn<QByteArray>("streams");
        for (const char* streams : {"0", "1", "2", "01", "12", "012"})
            QTest::newRow(streams) << QByteArray(streams);
    }
    void closedStreamIsNotTakenForAFile()
    {
        QFETCH(QByteArray, streams);
        const DtContents expected = outputOf(fleet("Barge"));
        myFolder->write("models/small.xml", fleet("Barge"));
        const auto closeStreams = [&streams]
        {
            for (const char stream : streams)
                close(stream - '0');
        };
        const pid_t program = myFolder->start({"generate", "models/small.xml", "-o", "out", "-v"}, closeStreams);
        QVERIFY(comesTrue([this] { return hasStage("out"); }));
        std::string taken;
        for (const char* stream : {"0", "1", "2"})
        {
            std::error_code ignored;
            const std::filesystem::path link = "/proc/" + std::to_string(program) + "/fd/" + stream;
            if (contains(std::filesystem::read_symlink(link, ignored).native(), "/out/"))
                taken += stream;
        }
        QCOMPARE(endOf(program), 0);
        COMPARE_TEXT(taken, "");
        COMPARE_TEXT(differenceOf(expected, treeOf(myFolder->path("out"))), "");
        const DtProgramEnd listed = myFolder->run({"generate", "models/small.xml", "--list"}, closeStreams);
        QCOMPARE(listed.code, streams.contains('1') ? 5 : 0);
    }

    void twoRunsAtOnceGiveTheOutputOfTheLaterOne()
    {
        const DtContents small = outputOf(smallModel()), other = outputOf(otherModel());
        std::filesystem::create_directories(myFolder->path("others")); // the files tell the model's name
        myFolder->write("others/small.xml", otherModel());
        for (int round = 0; round < 3; ++round)
        {
            const pid_t first = myFolder->startGenerate({"models/small.xml", "-o", "out"});
            const pid_t second = myFolder->startGenerate({"others/small.xml", "-o", "out"});
            QCOMPARE(endOf(first), 0);
            QCOMPARE(endOf(second), 0);
            const DtContents result = treeOf(myFolder->path("out"));
            QVERIFY2(result == small || result == other,
                     (differenceOf(small, result) + "\n" + differenceOf(other, result)).c_str());
            COMPARE_TEXT(ownNames(myFolder->path("out")), ".qxgen-manifest.json");
        }
    }

    void heldDirectoryIsWaitedForUnlessForbidden()
    {
        auto lock = std::make_unique<DtOutputLock>(myFolder->path("out"));
        const DtProgramEnd refused = generate({"--no-wait"});
        QCOMPARE(refused.code, 5);
        QVERIFY2(refused.err.rfind("qxgen: error: out", 0) == 0, refused.err.c_str());
        const pid_t waiting = myFolder->startGenerate({"models/small.xml", "-o", "out"});
        const std::string notice = "qxgen: waiting for the run of process " + std::to_string(getpid()) + " in out\n";
        QVERIFY(comesTrue([&] { return contains(myFolder->errorsSoFar(), notice); }));
        QVERIFY(!std::filesystem::exists(myFolder->path("out/Makefile")));
        lock.reset();
        COMPARE_TEXT(textOf(myFolder->end(waiting)), ("0\n--\n" + notice).c_str());
        QVERIFY(std::filesystem::exists(myFolder->path("out/Makefile")));
    }

    void namesMayHoldAnyByte_data()
    {
        QTest::addColumn<QByteArray>("name");
        const std::vector<const char*> names = {"with blank",    "quote'\"s", "M\xc3\xa4rz", "M\xe4rz",  "back\\slash",
                                                "dollar$ #sign", "[a,b]",     "100%",        "a;b&c|d*", "\xff\xfe"};
        for (std::size_t index = 0; index < names.size(); ++index)
            QTest::addRow("%zu", index) << QByteArray(names[index]);
    }
    void namesMayHoldAnyByte()
    {
        QFETCH(QByteArray, name);
        const std::string folder = name.toStdString();
        const DtContents expected = outputOf(smallModel());
        myFolder->write(folder + "/small.xml", smallModel());
        const DtProgramEnd end =
            myFolder->generate({folder + "/small.xml", "-o", folder + "/out", "--stamp", folder + "/stamp", "--depfile",
                                folder + "/d", "--report", folder + "/report.json"});
        COMPARE_TEXT(textOf(end), "0\n--\n");
        COMPARE_TEXT(differenceOf(expected, treeOf(myFolder->path(folder + "/out"))), "");
        for (const char* file : {"/stamp", "/d", "/report.json"})
            QVERIFY2(std::filesystem::exists(myFolder->path(folder + file)), file);
        QJsonParseError error;
        QVERIFY(!QJsonDocument::fromJson(QByteArray(myFolder->text(folder + "/report.json").c_str()), &error).isNull());
    }

    void modelMayBeCalledAnything_data() { namesMayHoldAnyByte_data(); }
    void modelMayBeCalledAnything()
    {
        QFETCH(QByteArray, name);
        const std::string model = "models/" + name.toStdString() + ".xml";
        myFolder->write(model, smallModel());
        for (const char* option : {"--examples", "--verify"})
        {
            const DtProgramEnd end = myFolder->generate({model, "-o", "out", "--set", "generateExamples=true", option});
            QCOMPARE(end.code, 0);
            COMPARE_TEXT(end.out, "");
            QVERIFY2(contains(end.err, ": warning: ") &&
                         contains(end.err, "which is no identifier. [no-identifier]\n") &&
                         end.err.find('\n') == end.err.size() - 1,
                     end.err.c_str());
        }
        QVERIFY(std::filesystem::exists(myFolder->path("out/bargeStateRepository.h")));
    }

    void modelsProjectAndTheirFoldersStayAsTheyAre()
    {
        DtOmtProject project;
        project.addFomDefFile("small.xml", "");
        project.addObject("HLAobjectRoot.Barge", true, "Vessel");
        DtOmtProjectXmlWriter(project, DtFilename(DtString(myFolder->path("models/port.qxproj").native()))).writeXml();
        const QString models = QString::fromStdString(myFolder->path("models").native());
        const QMap<QString, QDateTime> entries = entriesBelow(models);
        const DtContents contents = treeOf(myFolder->path("models"));
        const auto folderTime = std::filesystem::last_write_time(myFolder->path("models"));
        for (const char* option : {"--examples", "--list", "--verify", "--with-management"})
        {
            myFolder->generate({"models/small.xml", "-o", "out", option});
            myFolder->generate({"--project", "models/port.qxproj", "-o", "out", option});
        }
        QVERIFY(std::filesystem::exists(myFolder->path("out/vesselStateRepository.h")));
        QCOMPARE(entriesBelow(models), entries);
        COMPARE_TEXT(differenceOf(contents, treeOf(myFolder->path("models"))), "");
        QVERIFY(std::filesystem::last_write_time(myFolder->path("models")) == folderTime);
    }

    void editedFileIsKeptOrTold()
    {
        QCOMPARE(generate({}).code, 0);
        myFolder->write("out/Makefile", "mine");
        myFolder->write("out/tankerStateRepository.h", "mine");
        myFolder->write("out/own.h", "mine");
        COMPARE_TEXT(textOf(generate({"--select", "Barge"})),
                     "0\n--\nout/Makefile: warning: was edited by hand and is replaced [edited-by-hand]\n"
                     "out/tankerStateRepository.h: warning: is not generated any more but was edited by hand: it is "
                     "kept [edited-by-hand]\n");
        QVERIFY(myFolder->text("out/Makefile") != "mine");
        COMPARE_TEXT(myFolder->text("out/tankerStateRepository.h"), "mine");
        COMPARE_TEXT(myFolder->text("out/own.h"), "mine");
        QVERIFY(!std::filesystem::exists(myFolder->path("out/tankerStateRepository.cxx")));
    }

    void unchangedFilesKeepTheirTimes()
    {
        QCOMPARE(generate({}).code, 0);
        const QString out = QString::fromStdString(myFolder->path("out").native());
        const QMap<QString, QDateTime> before = entriesBelow(out);
        QCOMPARE(generate({}).code, 0);
        QCOMPARE(entriesBelow(out), before);
    }

    void damagedManifestIsToldAndRemovesNothing()
    {
        QCOMPARE(generate({"--script", "json"}).code, 0);
        myFolder->write("out/.qxgen-manifest.json", "{");
        const DtProgramEnd end = generate({"--script", "html"});
        QCOMPARE(end.code, 0);
        QVERIFY2(contains(end.err, "[manifest-damaged]"), end.err.c_str());
        QVERIFY(std::filesystem::exists(myFolder->path("out/model.json")));
    }

private:
    DtProgramEnd generate(const DtArguments& options) const
    {
        DtArguments arguments = {"models/small.xml", "-o", "out"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return myFolder->generate(arguments);
    }

    // One that is at work for a while, with its own folder for temporary files.
    pid_t startLongRun(const std::string& use) const
    {
        DtArguments arguments = {"generate", "models/small.xml",       "-o", "out/sub", "--examples", "--dis",
                                 "--set",    "includeStandardMIM=true"};
        arguments.emplace_back("--with-management");
        if (!use.empty())
            arguments.push_back(use);
        return myFolder->start(arguments, [this] { setenv("TMPDIR", myFolder->path("tmp").c_str(), 1); });
    }

    // Whether a run has its private folder there.
    bool hasStage(const std::string& folder) const
    {
        std::error_code ignored;
        for (std::filesystem::directory_iterator each(myFolder->path(folder), ignored), end; !ignored && each != end;
             each.increment(ignored))
            if (std::filesystem::is_directory(each->path() / "files", ignored))
                return true;
        return false;
    }

    // What a run makes of this text as models/small.xml.
    DtContents outputOf(const std::string& text) const
    {
        const DtProgramFolder other(DtTestFolder::memory());
        other.write("models/small.xml", text);
        if (other.generate({"models/small.xml", "-o", "out"}).code != 0)
            qFatal("the program fails");
        return treeOf(other.path("out"));
    }

    // Files that are neither in one of the versions nor in the other.
    std::string strangeFiles(const DtContents& one, const DtContents& other) const
    {
        std::string names;
        for (const auto& [path, content] : treeOf(myFolder->path("out")))
        {
            const auto isIn = [&path = path, &content = content](const DtContents& version)
            { return version.count(path) == 1 && version.at(path) == content; };
            if (!isIn(one) && !isIn(other))
                names += path + "\n";
        }
        return names;
    }

    // Returns a little later than the journal appears, each time another while; or when the program has ended.
    void waitForJournal(pid_t program, int round) const
    {
        const auto hasEnded = [program]
        {
            siginfo_t info = {};
            return waitid(P_PID, program, &info, WEXITED | WNOHANG | WNOWAIT) != 0 || info.si_pid == program;
        };
        while (!std::filesystem::exists(myFolder->path("out/.qxgen-journal.json")) && !hasEnded())
            std::this_thread::yield();
        if (round > 0)
            std::this_thread::sleep_for(std::chrono::microseconds(round * 20));
    }

    std::unique_ptr<DtProgramFolder> myFolder;
};

QX_REGISTER_TEST(TestQxgenFolder)
#include "testQxgenFolder.moc"
