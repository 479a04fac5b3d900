#include "registerTest.h"
#include "stagedRun.h"

#include <QtTest/QtTest>

namespace
{
// Kills the process at the step with that number, counted from 0.
DtCommitHook killAtStep(int number)
{
    return [count = 0, number](DtCommitStep, const std::filesystem::path&) mutable
    {
        if (count++ == number)
            raise(SIGKILL);
    };
}

DtCommitHook killAt(DtCommitStep wanted)
{
    return [wanted](DtCommitStep step, const std::filesystem::path&)
    {
        if (step == wanted)
            raise(SIGKILL);
    };
}

// Every file is whole: one of the old tree or one of the new.
bool isMixture(const DtContents& tree, const DtContents& before, const DtContents& after)
{
    for (const auto& [path, content] : tree)
    {
        const auto old = before.find(path), made = after.find(path);
        const bool isOld = old != before.end() && old->second == content;
        const bool isNew = made != after.end() && made->second == content;
        if (!isOld && !isNew)
            return false;
    }
    for (const auto& [path, content] : before)
        if (after.count(path) != 0 && tree.count(path) == 0)
            return false;
    return true;
}
} // namespace

class TestOutputRecovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { myTemporary.reset(); }
    void nothingIsDoneWithoutATrace();
    void killAtEachStepLeavesOldOrCompletableTree();
    void killWhileRecoveringIsCompletableAtEachStep();
    void killAtAnyMomentLeavesOldOrCompletableTree();
    void killedRunIsFinishedByTheNext();
    void changesThatWereLeftAreTold();
    void editBehindAKillIsTold();
    void editedFileIsNotRemovedByTheRecovery();
    void stageWithoutAJournalIsThrownAway();
    void foldersThatAreNoStagesStay();
    void emptyFolderOfAStageIsThrownAway();
    void damagedJournalIsToldAndDropped_data();
    void damagedJournalIsToldAndDropped();
    void journalThatLeavesTheFolderTouchesNothing();
    void journalWithoutItsStageIsDropped();
    void stageBehindALinkIsNotTouched();
    void signalsWaitForTheEndOfTheRecovery();
    void obstacleBehindAKillIsAnErrorUntilItIsGone();

private:
    int endOfRun(const DtContents& contents, const DtCommitHook& hook) const;
    // Recovers in a process of its own, which the hook may kill.
    int endOfRecovery(const DtCommitHook& hook) const;

    std::unique_ptr<DtTestFolder> myTemporary;
    std::filesystem::path myTop;
    std::filesystem::path myOut;
    const DtContents myBefore = filesOf("a=old b/c=old gone/d=old gone/e=old same=same");
    const DtContents myAfter = filesOf("a=new b/c=new fresh/f/g=new same=same z=new");
};

void TestOutputRecovery::init()
{
    myTemporary = std::make_unique<DtTestFolder>();
    myTop = myTemporary->path();
    myOut = myTop / "out";
}

int TestOutputRecovery::endOfRun(const DtContents& contents, const DtCommitHook& hook) const
{
    return endOf(startChild([&] { runOnce(myOut, contents, hook); }));
}

int TestOutputRecovery::endOfRecovery(const DtCommitHook& hook) const
{
    return endOf(startChild(
        [&]
        {
            const DtOutputLock lock(myOut);
            const DtOutputRecovery recovery(lock, hook);
        }));
}

void TestOutputRecovery::nothingIsDoneWithoutATrace()
{
    runOnce(myOut, myBefore);
    QVERIFY(!DtOutputRecovery::isNeeded(myOut));
    QVERIFY(!DtOutputRecovery::isNeeded(myTop / "missing"));
    const DtOutputLock lock(myOut);
    const DtOutputRecovery recovery(lock);
    QVERIFY(!recovery.hasFinishedCommit());
    QVERIFY(recovery.changes().empty() && recovery.notices().empty());
    QCOMPARE(treeOf(myOut), myBefore);
}

void TestOutputRecovery::killAtEachStepLeavesOldOrCompletableTree()
{
    runOnce(myOut, myBefore);
    int step = 0, finished = 0;
    for (; endOfRun(myAfter, killAtStep(step)) == 128 + SIGKILL; ++step)
    {
        const bool hasJournal = DtOutputRecovery::isNeeded(myOut);
        const bool isOver = treeOf(myOut) == myAfter && DtOutputManifest::read(myOut).find("z") != nullptr;
        QVERIFY(hasJournal || isOver || treeOf(myOut) == myBefore);
        QVERIFY(isMixture(treeOf(myOut), myBefore, myAfter));
        QCOMPARE(endOfRecovery(DtCommitHook()), 0);
        QCOMPARE(treeOf(myOut), hasJournal || isOver ? myAfter : myBefore);
        QVERIFY(hasJournal == (treeOf(myOut) == myAfter && !isOver) || isOver);
        COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
        QVERIFY(!std::filesystem::exists(myOut / "gone") == (hasJournal || isOver));
        finished += hasJournal ? 1 : 0;
        COMPARE_TEXT(runOnce(myOut, myAfter),
                     hasJournal || isOver ? "" : "M a\nM b/c\nA fresh/f/g\nD gone/d\nD gone/e\nA z\n");
        runOnce(myOut, myBefore);
    }
    QCOMPARE(step, 16); // the number of steps of this commit, all of them seen
    QCOMPARE(finished, 11);
}

void TestOutputRecovery::killWhileRecoveringIsCompletableAtEachStep()
{
    int steps = 0;
    for (int end = 128 + SIGKILL; end == 128 + SIGKILL; ++steps)
    {
        runOnce(myOut, myBefore);
        QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::JournalWritten)), 128 + SIGKILL);
        QCOMPARE(treeOf(myOut), myBefore);
        end = endOfRecovery(killAtStep(steps));
        QVERIFY(isMixture(treeOf(myOut), myBefore, myAfter));
        QCOMPARE(endOfRecovery(DtCommitHook()), 0);
        QCOMPARE(treeOf(myOut), myAfter);
        COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
    }
    QCOMPARE(steps, 13); // twelve kills and one recovery that runs through
}

// Half of the moments lie anywhere in the run, half of them behind the journal.
void TestOutputRecovery::killAtAnyMomentLeavesOldOrCompletableTree()
{
    constexpr int theFiles = 500, theMoments = 50;
    const DtTestFolder memory(DtTestFolder::memory());
    myOut = memory.path() / "out";
    const auto contentsOf = [](int version)
    {
        DtContents contents;
        for (int i = 0; i < theFiles; ++i)
            if (i % 10 != version % 10) // so that some come and some go
                contents["d" + std::to_string(i / 50) + "/f" + std::to_string(i)] =
                    "version " + std::to_string(version) + std::string(1000, 'x');
        return contents;
    };
    DtContents before = contentsOf(0);
    runOnce(myOut, before);
    QElapsedTimer timer;
    timer.start();
    runOnce(myOut, contentsOf(1));
    const qint64 wholeTime = timer.nsecsElapsed() / 1000;
    before = contentsOf(1);
    int untouched = 0, cutOff = 0, mixed = 0, done = 0;
    for (int moment = 0; moment < theMoments; ++moment)
    {
        const DtContents after = contentsOf(moment + 2);
        const bool isLate = moment % 2 == 1;
        DtTestGate isCommitting;
        const auto openGate = [&](DtCommitStep step, const std::filesystem::path&)
        {
            if (step == DtCommitStep::JournalWritten)
                isCommitting.open();
        };
        const pid_t child = startChild([&] { runOnce(myOut, after, openGate); });
        if (isLate)
            isCommitting.pass();
        usleep(static_cast<useconds_t>(wholeTime * moment / theMoments / (isLate ? 5 : 1)));
        kill(child, SIGKILL);
        endOf(child);

        const bool hasJournal = DtOutputRecovery::isNeeded(myOut);
        const DtContents left = treeOf(myOut);
        QVERIFY(hasJournal || left == before || left == after);
        QVERIFY(isMixture(left, before, after));
        QCOMPARE(endOfRecovery(DtCommitHook()), 0);
        QVERIFY(treeOf(myOut) == (hasJournal ? after : left));
        COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
        untouched += !hasJournal && left == before ? 1 : 0;
        cutOff += hasJournal ? 1 : 0;
        mixed += left != before && left != after ? 1 : 0;
        done += !hasJournal && left == after ? 1 : 0;
        runOnce(myOut, after);
        before = after;
    }
    qInfo("%d killed ahead of the journal, %d behind it (%d among the files), %d at the end", untouched, cutOff, mixed,
          done);
    QVERIFY(untouched > 0);
    QVERIFY(cutOff > 0);
}

void TestOutputRecovery::killedRunIsFinishedByTheNext()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::FilePut)), 128 + SIGKILL);
    COMPARE_TEXT(runOnce(myOut, myAfter), ""); // its recovery has left nothing to do
    QCOMPARE(treeOf(myOut), myAfter);
}

void TestOutputRecovery::changesThatWereLeftAreTold()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::FilePut)), 128 + SIGKILL);
    const DtOutputLock lock(myOut);
    const DtOutputRecovery recovery(lock);
    QVERIFY(recovery.hasFinishedCommit());
    COMPARE_TEXT(textOf(recovery.changes()), "M b/c\nA fresh/f/g\nD gone/d\nD gone/e\nA z\n"); // "a" was put
    QVERIFY(recovery.notices().empty());
}

void TestOutputRecovery::editBehindAKillIsTold()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::JournalWritten)), 128 + SIGKILL);
    writeBytes(myOut / "b/c", "edited");
    const DtOutputLock lock(myOut);
    COMPARE_TEXT(textOf(DtOutputRecovery(lock).changes()),
                 "M a\nM b/c | was edited by hand and is replaced\nA fresh/f/g\nD gone/d\nD gone/e\nA z\n");
    QCOMPARE(treeOf(myOut), myAfter);
}

void TestOutputRecovery::editedFileIsNotRemovedByTheRecovery()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::JournalWritten)), 128 + SIGKILL);
    writeBytes(myOut / "gone/d", "edited");
    {
        const DtOutputLock lock(myOut);
        const std::string told = textOf(DtOutputRecovery(lock).changes());
        QVERIFY2(told.find("D gone/d | is not generated any more but was edited by hand: it is kept\nD gone/e\n") !=
                     std::string::npos,
                 told.c_str());
    }
    DtContents expected = myAfter;
    expected["gone/d"] = "edited";
    QCOMPARE(treeOf(myOut), expected);
}

void TestOutputRecovery::stageWithoutAJournalIsThrownAway()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::JournalStaged)), 128 + SIGKILL);
    QVERIFY(ownNames(myOut) != ".qxgen-manifest.json");
    const DtOutputLock lock(myOut);
    const DtOutputRecovery recovery(lock);
    QVERIFY(!recovery.hasFinishedCommit());
    COMPARE_TEXT(ownNames(myOut), ".qxgen-lock .qxgen-manifest.json");
    QCOMPARE(treeOf(myOut), myBefore);
}

void TestOutputRecovery::foldersThatAreNoStagesStay()
{
    // No mark; mark in a folder of another name; a file; a link to a stage elsewhere; a mark that is a folder.
    writeBytes(myOut / ".qxgen-abcdef/x", "x");
    writeBytes(myOut / ".qxgen-abcdefg/.qxgen-stage", "");
    writeBytes(myOut / ".qxgen-abc.ef/.qxgen-stage", "");
    writeBytes(myOut / "qxgen-abcdef/.qxgen-stage", "");
    writeBytes(myOut / "sub/.qxgen-abcdef/.qxgen-stage", "");
    writeBytes(myOut / ".qxgen-ABCDEF", "x");
    writeBytes(myTop / ".qxgen-aaaaaa/.qxgen-stage", "");
    std::filesystem::create_directory_symlink("../.qxgen-aaaaaa", myOut / ".qxgen-aaaaaa");
    std::filesystem::create_directories(myOut / ".qxgen-bbbbbb/.qxgen-stage");
    const std::vector<std::string> before = DtOutputTree(myOut).list();
    {
        const DtOutputLock lock(myOut);
        const DtOutputRecovery recovery(lock);
        QVERIFY(recovery.notices().empty());
    }
    QCOMPARE(DtOutputTree(myOut).list(), before);
    QVERIFY(std::filesystem::exists(myOut / ".qxgen-bbbbbb/.qxgen-stage"));
    QVERIFY(std::filesystem::exists(myTop / ".qxgen-aaaaaa/.qxgen-stage"));
}

void TestOutputRecovery::emptyFolderOfAStageIsThrownAway()
{
    std::filesystem::create_directories(myOut / ".qxgen-abcdef");
    std::filesystem::create_directories(myOut / ".qxgen-abcdefg");
    const DtOutputLock lock(myOut);
    const DtOutputRecovery recovery(lock);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-abcdefg .qxgen-lock");
}

void TestOutputRecovery::damagedJournalIsToldAndDropped_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray("{\"format\": 1, \"stage\": \".qxgen-a");
    QTest::newRow("other") << QByteArray("[1, 2]");
}

void TestOutputRecovery::damagedJournalIsToldAndDropped()
{
    QFETCH(QByteArray, text);
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::FilePut)), 128 + SIGKILL);
    writeBytes(myOut / ".qxgen-journal.json", text.toStdString());
    {
        const DtOutputLock lock(myOut);
        const DtOutputRecovery recovery(lock);
        QVERIFY(!recovery.hasFinishedCommit());
        QCOMPARE(recovery.notices().size(), std::size_t(1));
        const QByteArray notice(recovery.notices()[0].c_str());
        QVERIFY2(notice.startsWith((myOut / ".qxgen-journal.json is damaged (").c_str()), notice.constData());
        COMPARE_TEXT(ownNames(myOut), ".qxgen-lock .qxgen-manifest.json");
    }
    runOnce(myOut, myAfter);
    QCOMPARE(treeOf(myOut), myAfter);
}

void TestOutputRecovery::journalThatLeavesTheFolderTouchesNothing()
{
    writeBytes(myTop / "x", "mine");
    writeBytes(myOut / ".qxgen-abcdef/.qxgen-stage", "");
    writeBytes(myOut / ".qxgen-abcdef/x", "evil");
    const std::string hash = DtOutputManifest::entryOf("mine").sha256;
    for (const char* kind : {"A", "D"})
    {
        writeBytes(myOut / ".qxgen-journal.json",
                   "{\"format\": 1, \"stage\": \".qxgen-abcdef\", \"changes\": [{\"change\": \"" + std::string(kind) +
                       "\", \"path\": \"../x\", \"old\": \"" + hash + "\"}]}");
        const DtOutputLock lock(myOut);
        const DtOutputRecovery recovery(lock);
        QVERIFY(!recovery.hasFinishedCommit());
        QCOMPARE(recovery.notices().size(), std::size_t(1));
        COMPARE_TEXT(readBytes(myTop / "x"), "mine");
    }
}

void TestOutputRecovery::journalWithoutItsStageIsDropped()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::JournalWritten)), 128 + SIGKILL);
    for (const auto& each : std::filesystem::directory_iterator(myOut))
        if (DtStageFolder::isOne(each.path()))
        {
            std::filesystem::remove_all(each.path());
            break;
        }
    const DtOutputLock lock(myOut);
    const DtOutputRecovery recovery(lock);
    QVERIFY(!recovery.hasFinishedCommit());
    QCOMPARE(recovery.notices().size(), std::size_t(1));
    QCOMPARE(treeOf(myOut), myBefore);
}

void TestOutputRecovery::stageBehindALinkIsNotTouched()
{
    writeBytes(myTop / "elsewhere/.qxgen-stage", "");
    writeBytes(myTop / "elsewhere/files/a", "x");
    std::filesystem::create_directory(myOut);
    std::filesystem::create_directory_symlink("../elsewhere", myOut / ".qxgen-abcdef");
    DtOutputJournal journal;
    journal.stage = ".qxgen-abcdef";
    journal.changes = {
        {"a", DtChangeKind::Added, DtFileOwner::Program, ""}
    };
    writeBytes(myOut / ".qxgen-journal.json", journal.text());
    const DtOutputLock lock(myOut);
    const DtOutputRecovery recovery(lock);
    QVERIFY(!recovery.hasFinishedCommit());
    COMPARE_TEXT(readBytes(myTop / "elsewhere/files/a"), "x");
    QVERIFY(!std::filesystem::exists(myOut / "a"));
}

void TestOutputRecovery::signalsWaitForTheEndOfTheRecovery()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::JournalWritten)), 128 + SIGKILL);
    const auto interrupt = [](DtCommitStep step, const std::filesystem::path&)
    {
        if (step == DtCommitStep::FilePut)
            kill(getpid(), SIGINT);
    };
    QCOMPARE(endOfRecovery(interrupt), 128 + SIGINT);
    QCOMPARE(treeOf(myOut), myAfter);
    QVERIFY(!DtOutputRecovery::isNeeded(myOut));
}

void TestOutputRecovery::obstacleBehindAKillIsAnErrorUntilItIsGone()
{
    runOnce(myOut, myBefore);
    QCOMPARE(endOfRun(myAfter, killAt(DtCommitStep::JournalWritten)), 128 + SIGKILL);
    writeBytes(myOut / "fresh", "in the way");
    for (int attempt = 0; attempt < 2; ++attempt)
    {
        const std::string error = errorOf(myOut, [this] { runOnce(myOut, myAfter); });
        COMPARE_TEXT(error, "fresh: the folder cannot be made: File exists");
        QVERIFY(DtOutputRecovery::isNeeded(myOut));
    }
    std::filesystem::remove(myOut / "fresh");
    COMPARE_TEXT(runOnce(myOut, myAfter), "");
    QCOMPARE(treeOf(myOut), myAfter);
}

QX_REGISTER_TEST(TestOutputRecovery)
#include "testOutputRecovery.moc"
