#include "registerTest.h"
#include "stagedRun.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <sys/stat.h>

namespace
{
// One line a problem.
std::string textOf(const std::vector<DtOutputProblem>& problems)
{
    std::string text;
    for (const DtOutputProblem& problem : problems)
        text += problem.path + " " + problem.text() + "\n";
    return text;
}

std::string findToken(const std::string&, const std::string& content)
{
    const std::size_t start = content.find("<!");
    return start == std::string::npos ? std::string() : content.substr(start, content.find("!>") + 2 - start);
}
} // namespace

class TestOutputStage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { myTemporary.reset(); }
    void stageLiesInTheOutputFolder();
    void stageGoesWithTheObject();
    void stageGoesWhenItsFirstStepFails();
    void filesAreListedInOrder();
    void goodOutputHasNoProblems();
    void emptyFilesAreProblems();
    void leftoverTokensAreProblems();
    void whatIsNoFileIsAProblem();
    void filesOutsideTheStageAreProblems();
    void reservedNamesAreProblems();
    void listedFilesMustBeThere();
    void listedNamesMustStayInside();
    void problemsAreSortedByPath();
    void firstRunAddsAll();
    void equalFilesAreNoDifferences();
    void changedAndMissingFilesAreDifferences();
    void filesOfEqualSizeAreComparedByContent();
    void editedFileIsToldWhenItIsReplaced();
    void editedFileIsKeptWhenItIsNotMadeAnyMore();
    void fileOfTheUserIsToldWhenItIsReplaced();
    void filesOfTheUserAreLeftAlone();
    void equalFileOfTheUserIsTakenOver();
    void linkInPlaceOfAFileIsTold();
    void removedFileIsMadeAgain();
    void damagedManifestRemovesNothing();
    void comparingLeavesTheFolderUntouched();
    void comparingDoesNotMakeTheFolder();
    void comparingFindsAFolderInPlaceOfAFile();
    void comparingStageGoesWithTheObject();
    void comparingStageOfAKilledRunIsThrownAway();
    void halfMadeComparingStageIsThrownAway();
    void comparingStageOfALiveRunIsLeftToIt();
    void comparingStageOfAnotherUserIsLeftAlone();
    void whatOnlyLooksLikeAComparingStageIsLeftAlone();
    void stagesOfAnOutputFolderAreNotComparingOnes();
    void comparingStageCannotBeCommitted();
    void strangeFilesCannotBeCompared();

private:
    std::string differencesFor(const DtContents& contents) const;

    std::unique_ptr<DtTestFolder> myTemporary;
    std::filesystem::path myTop;
    std::filesystem::path myOut;
};

void TestOutputStage::init()
{
    myTemporary = std::make_unique<DtTestFolder>();
    myTop = myTemporary->path();
    myOut = myTop / "out";
}

std::string TestOutputStage::differencesFor(const DtContents& contents) const
{
    DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), contents);
    return ::textOf(stage.differences());
}

void TestOutputStage::stageLiesInTheOutputFolder()
{
    const DtOutputLock lock(myOut);
    const DtOutputStage stage(lock, "1.0");
    const std::string name = stage.path().parent_path().filename().native();
    COMPARE_TEXT(stage.path().parent_path().parent_path(), myOut.c_str());
    QVERIFY2(DtStageFolder::isName(name), name.c_str());
    struct stat status = {};
    QCOMPARE(stat(stage.path().parent_path().c_str(), &status), 0);
    QCOMPARE(status.st_mode & 07777, mode_t(0700));
}

void TestOutputStage::stageGoesWithTheObject()
{
    const DtOutputLock lock(myOut);
    {
        const DtOutputStage stage(lock, "1.0");
        writeTree(stage.path(), filesOf("a/b=x ../loose=x"));
        std::filesystem::create_symlink(myTop, stage.path() / "link");
    }
    COMPARE_TEXT(ownNames(myOut), ".qxgen-lock");
    QVERIFY(std::filesystem::exists(myTop));
}

void TestOutputStage::stageGoesWhenItsFirstStepFails()
{
    const DtOutputLock lock(myOut);
    const auto fail = [](DtCommitStep, const std::filesystem::path&) { throw std::runtime_error("stop"); };
    QVERIFY_EXCEPTION_THROWN(DtOutputStage(lock, "1.0", fail), std::runtime_error);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-lock");
}

void TestOutputStage::filesAreListedInOrder()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), {
                                {"b",    "x"},
                                {"a/z",  "x"},
                                {"a.h",  "x"},
                                {"\xff", "x"},
                                {"B",    "x"}
    });
    std::filesystem::create_directory(stage.path() / "empty folder");
    const std::vector<std::string> expected = {"B", "a.h", "a/z", "b", "\xff"};
    QCOMPARE(stage.files(), expected);
}

void TestOutputStage::goodOutputHasNoProblems()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), {
                                {"a",        "text"  },
                                {"b/c",      "<text>"},
                                {"b/d/\xff", "x"     }
    });
    COMPARE_TEXT(textOf(stage.check(findToken, {"a", "b/c", "a"})), "");
}

void TestOutputStage::emptyFilesAreProblems()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), {
                                {"a",   ""  },
                                {"b/c", ""  },
                                {"d",   "\n"}
    });
    COMPARE_TEXT(textOf(stage.check(findToken, {})), "a is empty\nb/c is empty\n");
}

void TestOutputStage::leftoverTokensAreProblems()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), {
                                {"a", "x <!Class!> y"},
                                {"b", "x"            }
    });
    COMPARE_TEXT(textOf(stage.check(findToken, {})), "a still contains the token <!Class!>\n");
    COMPARE_TEXT(textOf(stage.check(DtOutputStage::LeftoverSearch(), {})), "");
    const auto byPath = [](const std::string& path, const std::string&) { return path == "b" ? "T" : ""; };
    COMPARE_TEXT(textOf(stage.check(byPath, {})), "b still contains the token T\n");
}

void TestOutputStage::whatIsNoFileIsAProblem()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), filesOf("a=x"));
    std::filesystem::create_symlink("a", stage.path() / "link");
    std::filesystem::create_directory_symlink("/", stage.path() / "root");
    QCOMPARE(mkfifo((stage.path() / "pipe").c_str(), 0600), 0);
    COMPARE_TEXT(textOf(stage.check(findToken, {})), "link is neither a regular file nor a folder\n"
                                                     "pipe is neither a regular file nor a folder\n"
                                                     "root is neither a regular file nor a folder\n");
}

void TestOutputStage::filesOutsideTheStageAreProblems()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), filesOf("a=x ../escaped.h=x sub/../../folder/x=x"));
    COMPARE_TEXT(textOf(stage.check(findToken, {})), "../escaped.h lies outside the output folder\n"
                                                     "../folder lies outside the output folder\n");
}

void TestOutputStage::reservedNamesAreProblems()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), filesOf(".qxgen-lock=x .qxgen-a/b=x a/.qxgen-b=x"));
    COMPARE_TEXT(textOf(stage.check(findToken, {})),
                 ".qxgen-a/b begins with .qxgen-, which is kept for the program's own files\n"
                 ".qxgen-lock begins with .qxgen-, which is kept for the program's own files\n");
}

void TestOutputStage::listedFilesMustBeThere()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), filesOf("a=x b/c=x"));
    COMPARE_TEXT(textOf(stage.check(findToken, {"a", "b/c", "b/d", "e", "e"})),
                 "b/d is named by a list but was not made\ne is named by a list but was not made\n");
}

void TestOutputStage::listedNamesMustStayInside()
{
    const DtOutputStage stage(myOut, "1.0");
    COMPARE_TEXT(textOf(stage.check(findToken, {"../a", "/etc/passwd", "b/../../c"})),
                 "../a lies outside the output folder\n/etc/passwd lies outside the output folder\n"
                 "b/../../c lies outside the output folder\n");
}

void TestOutputStage::problemsAreSortedByPath()
{
    const DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), filesOf("c= a="));
    COMPARE_TEXT(textOf(stage.check(findToken, {"b"})),
                 "a is empty\nb is named by a list but was not made\nc is empty\n");
}

void TestOutputStage::firstRunAddsAll()
{
    COMPARE_TEXT(differencesFor(filesOf("b=x a/c=x")), "A a/c\nA b\n");
}

void TestOutputStage::equalFilesAreNoDifferences()
{
    const DtContents contents = filesOf("a=x b/c=y");
    runOnce(myOut, contents);
    COMPARE_TEXT(differencesFor(contents), "");
}

void TestOutputStage::changedAndMissingFilesAreDifferences()
{
    runOnce(myOut, filesOf("a=x b/c=y d=z"));
    COMPARE_TEXT(differencesFor(filesOf("a=x2 d=z e=n")), "M a\nD b/c\nA e\n");
}

void TestOutputStage::filesOfEqualSizeAreComparedByContent()
{
    runOnce(myOut, filesOf("a=xy b=xy"));
    COMPARE_TEXT(differencesFor(filesOf("a=xz b=xy")), "M a\n");
}

void TestOutputStage::editedFileIsToldWhenItIsReplaced()
{
    runOnce(myOut, filesOf("a=x b=x"));
    writeBytes(myOut / "a", "y"); // of the same size
    COMPARE_TEXT(differencesFor(filesOf("a=z b=z")), "M a | was edited by hand and is replaced\nM b\n");
    COMPARE_TEXT(differencesFor(filesOf("a=y b=x")),
                 ""); // the edit is what is made now
}

void TestOutputStage::editedFileIsKeptWhenItIsNotMadeAnyMore()
{
    runOnce(myOut, filesOf("a=x b=x"));
    writeBytes(myOut / "a", "mine");
    DtOutputStage stage(myOut, "1.0");
    COMPARE_TEXT(::textOf(stage.differences()),
                 "D a | is not generated any more but was edited by hand: it is kept\nD b\n");
    QVERIFY(!stage.differences()[0].changesFolder());
    QVERIFY(stage.differences()[1].changesFolder());
}

void TestOutputStage::fileOfTheUserIsToldWhenItIsReplaced()
{
    writeBytes(myOut / "a", "mine");
    COMPARE_TEXT(differencesFor(filesOf("a=x")), "M a | was not made by an earlier run and is replaced\n");
}

void TestOutputStage::filesOfTheUserAreLeftAlone()
{
    runOnce(myOut, filesOf("a=x"));
    writeBytes(myOut / "mine", "x");
    COMPARE_TEXT(differencesFor(filesOf("b=x")), "D a\nA b\n");
}

void TestOutputStage::equalFileOfTheUserIsTakenOver()
{
    writeBytes(myOut / "a", "x");
    COMPARE_TEXT(runOnce(myOut, filesOf("a=x")), "");
    COMPARE_TEXT(differencesFor(filesOf("b=x")), "D a\nA b\n");
}

void TestOutputStage::linkInPlaceOfAFileIsTold()
{
    runOnce(myOut, filesOf("a=x b=x"));
    writeBytes(myTop / "target", "x");
    for (const char* name : {"a", "b"})
    {
        std::filesystem::remove(myOut / name);
        std::filesystem::create_symlink("../target", myOut / name);
    }
    COMPARE_TEXT(differencesFor(filesOf("a=x")),
                 "M a | was edited by hand and is replaced\n"
                 "D b | is not generated any more but was edited by hand: it is kept\n");
    COMPARE_TEXT(readBytes(myTop / "target"), "x");
}

void TestOutputStage::removedFileIsMadeAgain()
{
    runOnce(myOut, filesOf("a=x b=x"));
    std::filesystem::remove(myOut / "a");
    std::filesystem::remove(myOut / "b");
    COMPARE_TEXT(differencesFor(filesOf("a=x")), "A a\n");
}

void TestOutputStage::damagedManifestRemovesNothing()
{
    runOnce(myOut, filesOf("a=x b=x"));
    writeBytes(myOut / ".qxgen-manifest.json", "{");
    DtOutputStage stage(myOut, "1.0");
    writeTree(stage.path(), filesOf("a=y"));
    COMPARE_TEXT(::textOf(stage.differences()), "M a | was not made by an earlier run and is replaced\n");
    QVERIFY(stage.manifestDamage().find(".qxgen-manifest.json is damaged") != std::string::npos);
}

void TestOutputStage::comparingLeavesTheFolderUntouched()
{
    runOnce(myOut, filesOf("a=x b=x"));
    const auto snapshot = [this]
    {
        struct stat status = {};
        stat(myOut.c_str(), &status);
        return QByteArray::number(qlonglong(status.st_mtim.tv_sec)) + "." +
               QByteArray::number(qlonglong(status.st_mtim.tv_nsec)) + " " + ownNames(myOut).c_str();
    };
    const QByteArray before = snapshot();
    COMPARE_TEXT(differencesFor(filesOf("a=y")), "M a\nD b\n");
    QCOMPARE(snapshot(), before);
    QCOMPARE(treeOf(myOut), filesOf("a=x b=x"));
}

void TestOutputStage::comparingDoesNotMakeTheFolder()
{
    COMPARE_TEXT(differencesFor(filesOf("a=y")), "A a\n");
    QVERIFY(!std::filesystem::exists(myOut));
}

void TestOutputStage::comparingFindsAFolderInPlaceOfAFile()
{
    std::filesystem::create_directories(myOut / "a");
    try
    {
        differencesFor(filesOf("a=y"));
        QFAIL("A folder is no file.");
    }
    catch (const DtOutputException& failure)
    {
        COMPARE_TEXT(failure.reason(), "a folder stands where a file is to be written");
        COMPARE_TEXT(failure.path(), (myOut / "a").c_str());
    }
}

void TestOutputStage::comparingStageGoesWithTheObject()
{
    const DtWithEnvironment elsewhere("TMPDIR", myTop.c_str());
    {
        const DtOutputStage stage(myOut, "1.0");
        COMPARE_TEXT(stage.path().parent_path().parent_path(), myTop.c_str());
    }
    COMPARE_TEXT(ownNames(myTop), "");
}

// Makes a comparing stage with a few files in it, and is killed.
static void leaveStage(const std::filesystem::path& out)
{
    const pid_t child = startChild(
        [&out]
        {
            const DtOutputStage stage(out, "1.0");
            writeTree(stage.path(), filesOf("a/b=x c=y ../loose=x"));
            std::filesystem::create_symlink(out.parent_path(), stage.path() / "link");
            kill(getpid(), SIGKILL);
        });
    QCOMPARE(endOf(child), 128 + SIGKILL);
}

void TestOutputStage::comparingStageOfAKilledRunIsThrownAway()
{
    const DtWithEnvironment elsewhere("TMPDIR", myTop.c_str());
    writeBytes(myTop / "kept", "x");
    leaveStage(myOut);
    leaveStage(myOut); // which throws the first one away
    const std::string left = ownNames(myTop);
    QVERIFY2(!left.empty() && left.find(' ') == std::string::npos, left.c_str());
    COMPARE_TEXT(differencesFor(filesOf("a=y")), "A a\n");
    COMPARE_TEXT(ownNames(myTop), "");
    COMPARE_TEXT(readBytes(myTop / "kept"), "x");
}

void TestOutputStage::halfMadeComparingStageIsThrownAway()
{
    const DtWithEnvironment elsewhere("TMPDIR", myTop.c_str());
    std::filesystem::create_directory(myTop / ".qxgen-compare-abc123");
    std::filesystem::create_directory(myTop / ".qxgen-compare-abc124");
    writeBytes(myTop / ".qxgen-compare-abc124" / DtStageFolder::theMark, "");
    differencesFor({});
    COMPARE_TEXT(ownNames(myTop), "");
}

void TestOutputStage::comparingStageOfALiveRunIsLeftToIt()
{
    const DtWithEnvironment elsewhere("TMPDIR", myTop.c_str());
    DtTestGate isMade, mayEnd;
    const pid_t child = startChild(
        [&]
        {
            const DtOutputStage stage(myOut, "1.0");
            writeTree(stage.path(), filesOf("a=x"));
            isMade.open();
            mayEnd.pass();
            if (treeOf(stage.path()) != filesOf("a=x"))
                throw std::runtime_error("the stage is gone");
        });
    isMade.pass();
    const std::string stages = ownNames(myTop);
    QVERIFY(!stages.empty());
    differencesFor({});
    COMPARE_TEXT(ownNames(myTop), stages.c_str());
    mayEnd.open();
    QCOMPARE(endOf(child), 0);
    COMPARE_TEXT(ownNames(myTop), "");
}

void TestOutputStage::comparingStageOfAnotherUserIsLeftAlone()
{
    if (geteuid() != 0)
        QSKIP("only root can give files to another user.");
    const DtWithEnvironment elsewhere("TMPDIR", myTop.c_str());
    leaveStage(myOut);
    const std::string stage = ownNames(myTop);
    QCOMPARE(chown((myTop / stage).c_str(), 65534, 65534), 0);
    differencesFor({});
    COMPARE_TEXT(ownNames(myTop), stage.c_str());
}

void TestOutputStage::whatOnlyLooksLikeAComparingStageIsLeftAlone()
{
    const DtWithEnvironment elsewhere("TMPDIR", myTop.c_str());
    writeBytes(myTop / ".qxgen-compare-abc12/.qxgen-stage", ""); // a letter too few
    writeBytes(myTop / ".qxgen-compare-abc123/own", "x");        // no mark
    writeBytes(myTop / ".qxgen-compare-abc124", "x");            // a file
    writeBytes(myTop / "other/.qxgen-stage", "");                // another name
    writeBytes(myTop / "other/own", "x");
    std::filesystem::create_directory_symlink(myTop / "other", myTop / ".qxgen-compare-abc125");
    const DtContents before = treeOf(myTop);
    const std::string names = ownNames(myTop);
    differencesFor({});
    COMPARE_TEXT(ownNames(myTop), names.c_str());
    QCOMPARE(treeOf(myTop), before);
    COMPARE_TEXT(readBytes(myTop / ".qxgen-compare-abc123/own"), "x");
}

// A journal may need them.
void TestOutputStage::stagesOfAnOutputFolderAreNotComparingOnes()
{
    const DtWithEnvironment elsewhere("TMPDIR", myOut.c_str());
    const pid_t child = startChild(
        [this]
        {
            runOnce(myOut, filesOf("a=x"),
                    [](DtCommitStep step, const std::filesystem::path&)
                    {
                        if (step == DtCommitStep::JournalWritten)
                            kill(getpid(), SIGKILL);
                    });
        });
    QCOMPARE(endOf(child), 128 + SIGKILL);
    DtOutputStage(myTop / "elsewhere", "1.0").differences();
    runOnce(myOut, filesOf("a=x"));
    QCOMPARE(treeOf(myOut), filesOf("a=x"));
    COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
}

void TestOutputStage::comparingStageCannotBeCommitted()
{
    DtOutputStage stage(myOut, "1.0");
    QVERIFY_EXCEPTION_THROWN(stage.commit(), DtException);
    QVERIFY(!std::filesystem::exists(myOut));
}

void TestOutputStage::strangeFilesCannotBeCompared()
{
    DtOutputStage stage(myOut, "1.0");
    std::filesystem::create_symlink("/etc/passwd", stage.path() / "a");
    COMPARE_TEXT(errorOf(stage.path(), [&] { stage.differences(); }), "a: cannot be an output file");
}

QX_REGISTER_TEST(TestOutputStage)
#include "testOutputStage.moc"
