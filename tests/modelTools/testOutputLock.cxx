#include "modelTools/outputLock.h"
#include "modelToolsTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <sys/stat.h>

class TestOutputLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { myTemporary.reset(); }
    void lockMakesMissingFolders();
    void lockRemovesTheFoldersItMadeWhenTheyStayEmpty();
    void foldersThatWereThereStay();
    void folderThatWasMadeStaysWithAFileInIt();
    void lockFileGoesWithTheLock();
    void heldLockFailsWithoutWaiting();
    void waitingIsToldOnceWithTheProcess();
    void nobodyIsToldWithoutWaiting();
    void lockOfAKilledProcessIsTakenOff();
    void strangeLockFileHoldsNobodyUp();
    void locksOfDifferentFoldersAreIndependent();
    void manyProcessesTakeTheLockInTurn();
    void waiterSurvivesTheRemovalOfTheFolder();
    void fileInPlaceOfTheFolderIsAnError();
    void emptyNameIsAnError();
    void linkInPlaceOfTheLockIsAnError();
    void removedWorkingDirectoryIsAnError();
    void folderNameNeedNotBeUtf8();

private:
    std::unique_ptr<DtTestFolder> myTemporary;
    std::filesystem::path myTop;
};

void TestOutputLock::init()
{
    myTemporary = std::make_unique<DtTestFolder>();
    myTop = myTemporary->path();
}

void TestOutputLock::lockMakesMissingFolders()
{
    const DtOutputLock lock(myTop / "a/b/");
    QVERIFY(std::filesystem::is_directory(myTop / "a/b"));
    COMPARE_TEXT(lock.directory(), (myTop / "a/b").c_str());
    COMPARE_TEXT(ownNames(myTop / "a/b"), ".qxgen-lock");
}

void TestOutputLock::lockRemovesTheFoldersItMadeWhenTheyStayEmpty()
{
    std::filesystem::create_directory(myTop / "old");
    {
        const DtOutputLock lock(myTop / "old/a/b");
    }
    QVERIFY(!std::filesystem::exists(myTop / "old/a"));
    QVERIFY(std::filesystem::exists(myTop / "old"));
}

void TestOutputLock::foldersThatWereThereStay()
{
    {
        const DtOutputLock lock(myTop);
    }
    QVERIFY(std::filesystem::is_directory(myTop));
}

void TestOutputLock::folderThatWasMadeStaysWithAFileInIt()
{
    {
        const DtOutputLock lock(myTop / "a/b");
        writeBytes(myTop / "a/x", "x");
    }
    QVERIFY(!std::filesystem::exists(myTop / "a/b"));
    COMPARE_TEXT(readBytes(myTop / "a/x"), "x");
}

void TestOutputLock::lockFileGoesWithTheLock()
{
    {
        const DtOutputLock lock(myTop);
        COMPARE_TEXT(ownNames(myTop), ".qxgen-lock");
        COMPARE_TEXT(readBytes(myTop / ".qxgen-lock"), (std::to_string(getpid()) + "\n").c_str());
    }
    COMPARE_TEXT(ownNames(myTop), "");
}

void TestOutputLock::heldLockFailsWithoutWaiting()
{
    const DtOutputLock lock(myTop);
    const std::string error = errorOf(myTop, [this] { DtOutputLock(myTop, DtLockWait::NoWait); });
    const std::string expected =
        ".qxgen-lock: another run (process " + std::to_string(getpid()) + ") is writing to this folder";
    COMPARE_TEXT(error, expected.c_str());
    COMPARE_TEXT(ownNames(myTop), ".qxgen-lock"); // that of the holder is left alone
}

void TestOutputLock::waitingIsToldOnceWithTheProcess()
{
    DtTestGate isTold;
    auto lock = std::make_unique<DtOutputLock>(myTop);
    const std::string self = std::to_string(getpid());
    const pid_t child = startChild(
        [&]
        {
            int count = 0;
            const auto notice = [&](const std::string& holder)
            {
                count += holder == self ? 1 : 100;
                isTold.open();
            };
            const DtOutputLock waiting(myTop, DtLockWait::Wait, notice);
            _exit(count);
        });
    isTold.pass();
    QTest::qSleep(50); // long enough to be told twice
    lock.reset();
    QCOMPARE(endOf(child), 1);
}

void TestOutputLock::nobodyIsToldWithoutWaiting()
{
    bool isTold = false;
    const DtOutputLock lock(myTop, DtLockWait::Wait, [&](const std::string&) { isTold = true; });
    QVERIFY(!isTold);
}

void TestOutputLock::lockOfAKilledProcessIsTakenOff()
{
    const pid_t child = startChild(
        [this]
        {
            const DtOutputLock lock(myTop);
            raise(SIGKILL);
        });
    QCOMPARE(endOf(child), 128 + SIGKILL);
    COMPARE_TEXT(ownNames(myTop), ".qxgen-lock");
    {
        const DtOutputLock lock(myTop, DtLockWait::NoWait);
    }
    COMPARE_TEXT(ownNames(myTop), "");
}

void TestOutputLock::strangeLockFileHoldsNobodyUp()
{
    for (const char* content : {"", "1\n", "999999999999999999999999999", "no number"})
    {
        writeBytes(myTop / ".qxgen-lock", content);
        const DtOutputLock lock(myTop, DtLockWait::NoWait);
        COMPARE_TEXT(readBytes(myTop / ".qxgen-lock"), (std::to_string(getpid()) + "\n").c_str());
    }
}

void TestOutputLock::locksOfDifferentFoldersAreIndependent()
{
    const DtOutputLock outer(myTop, DtLockWait::NoWait);
    const DtOutputLock inner(myTop / "sub", DtLockWait::NoWait);
    COMPARE_TEXT(ownNames(myTop / "sub"), ".qxgen-lock");
}

// Each process adds one to a number in a file, which loses counts as soon as two do it at the same time.
void TestOutputLock::manyProcessesTakeTheLockInTurn()
{
    constexpr int theProcesses = 8, theRounds = 25;
    writeBytes(myTop / "number", "0");
    std::vector<pid_t> children;
    for (int i = 0; i < theProcesses; ++i)
        children.push_back(startChild(
            [this]
            {
                for (int round = 0; round < theRounds; ++round)
                {
                    const DtOutputLock lock(myTop / "out");
                    const int number = std::stoi(readBytes(myTop / "number"));
                    writeBytes(myTop / "number", std::to_string(number + 1));
                }
            }));
    for (const pid_t child : children)
        QCOMPARE(endOf(child), 0);
    COMPARE_TEXT(readBytes(myTop / "number"), std::to_string(theProcesses * theRounds).c_str());
}

void TestOutputLock::waiterSurvivesTheRemovalOfTheFolder()
{
    DtTestGate isTold;
    auto lock = std::make_unique<DtOutputLock>(myTop / "out");
    const pid_t child = startChild(
        [&]
        {
            const DtOutputLock waiting(myTop / "out", DtLockWait::Wait, [&](const std::string&) { isTold.open(); });
            writeBytes(myTop / "out/x", "x");
        });
    isTold.pass();
    lock.reset(); // takes the empty folder away
    QCOMPARE(endOf(child), 0);
    COMPARE_TEXT(readBytes(myTop / "out/x"), "x");
}

void TestOutputLock::fileInPlaceOfTheFolderIsAnError()
{
    writeBytes(myTop / "file", "x");
    const auto error = [this](const char* name) { return errorOf(myTop, [&] { DtOutputLock(myTop / name); }); };
    COMPARE_TEXT(error("file"), "file: the folder cannot be made: Not a directory");
    COMPARE_TEXT(error("file/sub"), "file/sub: the folder cannot be made: Not a directory");
    COMPARE_TEXT(readBytes(myTop / "file"), "x");
}

void TestOutputLock::emptyNameIsAnError()
{
    QVERIFY_EXCEPTION_THROWN(DtOutputLock(""), DtOutputException);
}

void TestOutputLock::linkInPlaceOfTheLockIsAnError()
{
    std::filesystem::create_symlink("elsewhere", myTop / ".qxgen-lock");
    const std::string error = errorOf(myTop, [this] { const DtOutputLock lock(myTop); });
    COMPARE_TEXT(error, ".qxgen-lock: the lock cannot be made: Too many levels of symbolic links");
    QVERIFY(!std::filesystem::exists(myTop / "elsewhere"));
}

void TestOutputLock::removedWorkingDirectoryIsAnError()
{
    const pid_t child = startChild(
        [this]
        {
            std::filesystem::create_directory(myTop / "gone");
            std::filesystem::current_path(myTop / "gone");
            std::filesystem::remove(myTop / "gone");
            const std::string error = errorOf("", [] { const DtOutputLock lock("."); });
            _exit(error.find("No such file or directory") != std::string::npos ? 3 : 4);
        });
    QCOMPARE(endOf(child), 3);
}

void TestOutputLock::folderNameNeedNotBeUtf8()
{
    const std::filesystem::path path = myTop / "\xff \"'";
    const DtOutputLock lock(path);
    COMPARE_TEXT(ownNames(path), ".qxgen-lock");
}

QX_REGISTER_TEST(TestOutputLock)
#include "testOutputLock.moc"
