#include "registerTest.h"
#include "stagedRun.h"

#include <QtTest/QtTest>

#include <ctime>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace
{
struct stat statusOf(const std::filesystem::path& path)
{
    struct stat status = {};
    lstat(path.c_str(), &status);
    return status;
}

// Marks a file or folder immutable or append-only for as long as it lives.
class DtFileFlag
{
public:
    DtFileFlag(const std::filesystem::path& path, int flag) : myPath(path), myFlag(flag) { myIsSet = change(true); }
    ~DtFileFlag() { change(false); }
    DtFileFlag(const DtFileFlag&) = delete;
    DtFileFlag& operator=(const DtFileFlag&) = delete;
    bool isSet() const { return myIsSet; }

private:
    bool change(bool isOn) const
    {
        const int file = ::open(myPath.c_str(), O_RDONLY);
        int flags = 0;
        bool isChanged = ioctl(file, FS_IOC_GETFLAGS, &flags) == 0;
        flags = isOn ? flags | myFlag : flags & ~myFlag;
        isChanged = isChanged && ioctl(file, FS_IOC_SETFLAGS, &flags) == 0;
        ::close(file);
        return isChanged;
    }

    std::filesystem::path myPath;
    int myFlag;
    bool myIsSet = false;
};

double processorSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}
} // namespace

class TestOutputCommit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { myTemporary.reset(); }
    void outputIsPutIntoPlace();
    void changedFilesAreReplacedAndOldOnesRemoved();
    void equalFilesKeepInodeAndTime();
    void nothingIsWrittenWhenAllIsEqual();
    void newVersionChangesTheManifestAlone();
    void foldersLeftEmptyAreRemoved();
    void foldersWithFilesOfTheUserStay();
    void editedFilesAreReplacedButNotRemoved();
    void keptFileBelongsToTheUserFromThenOn();
    void modeOfAReplacedFileStays();
    void linkIsReplacedAndNotItsTarget();
    void linkToTheFolderIsFollowed();
    void linkBelowTheFolderIsNeverFollowed();
    void removalDoesNotFollowLinks();
    void namesMayHoldAnything();
    void damagedManifestIsMadeAnew();
    void hostileManifestRemovesNothing();
    void stepsAreToldInOrder();
    void commitHappensOnce();
    void fileInPlaceOfAFolderIsAnError();
    void folderInPlaceOfAFileIsAnError();
    void folderInPlaceOfTheManifestIsAnError();
    void readOnlyFolderIsAnError();
    void readOnlyFolderBelowIsAnError();
    void folderWithoutPermissionIsAnError();
    void otherFileSystemBelowIsAnError();
    void otherMountOfTheFileSystemIsAnError();
    void immutableFileIsAnError();
    void immutableFolderIsAnError();
    void fullDiskAheadOfTheJournalChangesNothing();
    void fullDiskBehindTheJournalIsFinishedLater();
    void fileSizeLimitChangesNothing();
    void signalsWaitForTheEndOfTheCommit();
    void twoProcessesAtOnceLeaveTheOutputOfOne();
    void timeGrowsWithTheNumberOfFilesOnly();

private:
    // Tries to put the contents into place, which fails; the tree has to be as it was. Gives the error.
    std::string failedRun(const DtContents& contents);

    std::unique_ptr<DtTestFolder> myTemporary;
    std::filesystem::path myTop;
    std::filesystem::path myOut;
};

void TestOutputCommit::init()
{
    myTemporary = std::make_unique<DtTestFolder>();
    myTop = myTemporary->path();
    myOut = myTop / "out";
}

std::string TestOutputCommit::failedRun(const DtContents& contents)
{
    const DtContents before = treeOf(myOut);
    const std::string own = ownNames(myOut);
    const std::string error = errorOf(myOut, [&] { runOnce(myOut, contents); });
    return treeOf(myOut) == before && ownNames(myOut) == own ? error : "changed: " + error;
}

void TestOutputCommit::outputIsPutIntoPlace()
{
    const DtContents contents = filesOf("a=x b/c/d=y b/e=z");
    COMPARE_TEXT(runOnce(myOut, contents), "A a\nA b/c/d\nA b/e\n");
    QCOMPARE(treeOf(myOut), contents);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
    const DtOutputManifest manifest = DtOutputManifest::read(myOut);
    QCOMPARE(manifest.files().size(), std::size_t(3));
    COMPARE_TEXT(manifest.find("b/e")->sha256, DtOutputManifest::entryOf("z").sha256.c_str());
    COMPARE_TEXT(manifest.programVersion(), "1.0");
}

void TestOutputCommit::changedFilesAreReplacedAndOldOnesRemoved()
{
    runOnce(myOut, filesOf("a=x b/c=y b/d=z"));
    const DtContents contents = filesOf("a=x2 b/d=z e/f=n");
    COMPARE_TEXT(runOnce(myOut, contents), "M a\nD b/c\nA e/f\n");
    QCOMPARE(treeOf(myOut), contents);
    QCOMPARE(DtOutputManifest::read(myOut).files().size(), std::size_t(3));
}

void TestOutputCommit::equalFilesKeepInodeAndTime()
{
    runOnce(myOut, filesOf("a=x b=y"));
    const struct stat before = statusOf(myOut / "a");
    const struct stat other = statusOf(myOut / "b");
    runOnce(myOut, filesOf("a=x b=z"));
    const struct stat after = statusOf(myOut / "a");
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
    QCOMPARE(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    QCOMPARE(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
    QVERIFY(statusOf(myOut / "b").st_ino != other.st_ino);
}

void TestOutputCommit::nothingIsWrittenWhenAllIsEqual()
{
    const DtContents contents = filesOf("a=x b/c=y");
    runOnce(myOut, contents);
    const struct stat before = statusOf(myOut / ".qxgen-manifest.json");
    int journals = 0;
    runOnce(myOut, contents,
            [&](DtCommitStep step, const std::filesystem::path&) { journals += step != DtCommitStep::StageMade; });
    QCOMPARE(journals, 0);
    QCOMPARE(statusOf(myOut / ".qxgen-manifest.json").st_ino, before.st_ino);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
}

void TestOutputCommit::newVersionChangesTheManifestAlone()
{
    runOnce(myOut, filesOf("a=x"));
    const struct stat before = statusOf(myOut / "a");
    {
        const DtOutputLock lock(myOut);
        DtOutputStage stage(lock, "2.0");
        writeTree(stage.path(), filesOf("a=x"));
        stage.commit();
    }
    COMPARE_TEXT(DtOutputManifest::read(myOut).programVersion(), "2.0");
    QCOMPARE(statusOf(myOut / "a").st_ino, before.st_ino);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
}

void TestOutputCommit::foldersLeftEmptyAreRemoved()
{
    runOnce(myOut, filesOf("a/b/c/x=x a/d/x=x a/b/y=x z=x"));
    std::filesystem::create_directory(myOut / "empty of the user");
    runOnce(myOut, filesOf("a/d/x=x"));
    QVERIFY(!std::filesystem::exists(myOut / "a/b"));
    QVERIFY(std::filesystem::exists(myOut / "a/d/x"));
    QVERIFY(std::filesystem::exists(myOut / "empty of the user"));
}

void TestOutputCommit::foldersWithFilesOfTheUserStay()
{
    runOnce(myOut, filesOf("a/b/x=x"));
    writeBytes(myOut / "a/mine", "x");
    runOnce(myOut, filesOf("y=x"));
    QVERIFY(!std::filesystem::exists(myOut / "a/b"));
    QCOMPARE(treeOf(myOut), filesOf("a/mine=x y=x"));
}

void TestOutputCommit::editedFilesAreReplacedButNotRemoved()
{
    runOnce(myOut, filesOf("a=x b/c=x d=x"));
    writeBytes(myOut / "a", "edited");
    writeBytes(myOut / "b/c", "edited");
    COMPARE_TEXT(runOnce(myOut, filesOf("a=y")),
                 "M a | was edited by hand and is replaced\n"
                 "D b/c | is not generated any more but was edited by hand: it is kept\nD d\n");
    QCOMPARE(treeOf(myOut), filesOf("a=y b/c=edited"));
}

void TestOutputCommit::keptFileBelongsToTheUserFromThenOn()
{
    runOnce(myOut, filesOf("a=x b=x"));
    writeBytes(myOut / "b", "edited");
    runOnce(myOut, filesOf("a=x"));
    COMPARE_TEXT(runOnce(myOut, filesOf("a=x")),
                 ""); // told once
    COMPARE_TEXT(runOnce(myOut, filesOf("a=x b=x")), "M b | was not made by an earlier run and is replaced\n");
}

void TestOutputCommit::modeOfAReplacedFileStays()
{
    runOnce(myOut, filesOf("a=x"));
    QCOMPARE(chmod((myOut / "a").c_str(), 0440), 0);
    runOnce(myOut, filesOf("a=y"));
    COMPARE_TEXT(readBytes(myOut / "a"), "y");
    QCOMPARE(statusOf(myOut / "a").st_mode & 07777, mode_t(0440));
}

void TestOutputCommit::linkIsReplacedAndNotItsTarget()
{
    writeBytes(myTop / "target", "mine");
    std::filesystem::create_directory(myOut);
    std::filesystem::create_symlink("../target", myOut / "a");
    runOnce(myOut, filesOf("a=x"));
    QVERIFY(S_ISREG(statusOf(myOut / "a").st_mode));
    COMPARE_TEXT(readBytes(myOut / "a"), "x");
    COMPARE_TEXT(readBytes(myTop / "target"), "mine");
}

void TestOutputCommit::linkToTheFolderIsFollowed()
{
    std::filesystem::create_directory(myTop / "real");
    std::filesystem::create_directory_symlink("real", myOut);
    runOnce(myOut, filesOf("a/b=x c=x"));
    COMPARE_TEXT(runOnce(myOut, filesOf("a/b=y")), "M a/b\nD c\n");
    QCOMPARE(treeOf(myTop / "real"), filesOf("a/b=y"));
    QVERIFY(S_ISLNK(statusOf(myOut).st_mode));
}

void TestOutputCommit::linkBelowTheFolderIsNeverFollowed()
{
    std::filesystem::create_directory(myTop / "elsewhere");
    std::filesystem::create_directory(myOut);
    std::filesystem::create_directory_symlink("../elsewhere", myOut / "sub");
    const std::string reason = "a symbolic link or a special file stands where a folder is needed";
    COMPARE_TEXT(failedRun(filesOf("sub/a=x")), ("sub: " + reason).c_str());
    COMPARE_TEXT(failedRun(filesOf("sub/deep/a=x")), ("sub: " + reason).c_str());
    QVERIFY(std::filesystem::is_empty(myTop / "elsewhere"));
}

void TestOutputCommit::removalDoesNotFollowLinks()
{
    runOnce(myOut, filesOf("sub/a=x b=x"));
    std::filesystem::rename(myOut / "sub", myTop / "moved");
    std::filesystem::create_directory_symlink("../moved", myOut / "sub");
    COMPARE_TEXT(runOnce(myOut, filesOf("b=x")), "");
    COMPARE_TEXT(readBytes(myTop / "moved/a"), "x");
}

void TestOutputCommit::namesMayHoldAnything()
{
    const std::filesystem::path out = myTop / "o \"u\" '\xff\xc3\xb6";
    const DtContents first = {
        {"a b/c d.h",                    "x"},
        {"\"quoted\"'.h",                "x"},
        {"K\xc3\xb6ln/\xf0\x9f\x9a\xa2", "x"},
        {"\xff/\xfe",                    "x"},
        {"new\nline\ttab\x01",           "x"},
        {"back\\slash",                  "x"},
        {"%41%",                         "x"},
        {"-rf",                          "x"},
        {"$(x) `y` *?[",                 "x"},
        {" leading ",                    "x"}
    };
    DtContents second;
    for (const auto& [path, content] : first)
        second[path + "\xe9"] = content;
    runOnce(out, first);
    QCOMPARE(treeOf(out), first);
    COMPARE_TEXT(runOnce(out, first), "");
    runOnce(out, second);
    QCOMPARE(treeOf(out), second);
    COMPARE_TEXT(DtOutputManifest::read(out).damage(), "");
}

void TestOutputCommit::damagedManifestIsMadeAnew()
{
    runOnce(myOut, filesOf("a=x b=x"));
    writeBytes(myOut / ".qxgen-manifest.json", "{\"format\": 1, \"prog");
    runOnce(myOut, filesOf("a=x"));
    QCOMPARE(treeOf(myOut), filesOf("a=x b=x"));
    COMPARE_TEXT(DtOutputManifest::read(myOut).damage(), "");
    COMPARE_TEXT(runOnce(myOut, filesOf("c=x")), "D a\nA c\n");
}

void TestOutputCommit::hostileManifestRemovesNothing()
{
    writeBytes(myTop / "x", "mine");
    const std::string hash = DtOutputManifest::entryOf("mine").sha256;
    for (const std::string& path : {std::string("../x"), (myTop / "x").native(), std::string("a/../../x")})
    {
        writeBytes(myOut / ".qxgen-manifest.json", "{\"format\": 1, \"program\": \"\", \"files\": [{\"path\": \"" +
                                                       path + "\", \"sha256\": \"" + hash + "\", \"size\": 4}]}");
        runOnce(myOut, {
                           {"a", path}
        });
        COMPARE_TEXT(readBytes(myTop / "x"), "mine");
        COMPARE_TEXT(DtOutputManifest::read(myOut).damage(), "");
    }
}

void TestOutputCommit::stepsAreToldInOrder()
{
    runOnce(myOut, filesOf("a=x b/c=x"));
    std::string steps;
    runOnce(myOut, filesOf("a=y d/e/f=x"),
            [&](DtCommitStep step, const std::filesystem::path& path)
            {
                const bool isNamed = step >= DtCommitStep::FolderMade && step <= DtCommitStep::FolderRemoved;
                const char* const names[] = {"stage",   "staged manifest", "staged journal", "journal",  "make",
                                             "put",     "remove",          "remove folder",  "manifest", "no journal",
                                             "no stage"};
                steps += names[static_cast<int>(step)];
                steps += isNamed ? " " + path.lexically_relative(myOut).native() + "\n" : "\n";
            });
    COMPARE_TEXT(steps, "stage\nstaged manifest\nstaged journal\njournal\nput a\nmake d\nmake d/e\nput d/e/f\n"
                        "remove b/c\nremove folder b\nmanifest\nno journal\nno stage\n");
}

void TestOutputCommit::commitHappensOnce()
{
    const DtOutputLock lock(myOut);
    DtOutputStage stage(lock, "1.0");
    writeTree(stage.path(), filesOf("a=x"));
    stage.commit();
    QVERIFY_EXCEPTION_THROWN(stage.commit(), DtException);
    QCOMPARE(treeOf(myOut), filesOf("a=x"));
}

void TestOutputCommit::fileInPlaceOfAFolderIsAnError()
{
    runOnce(myOut, filesOf("b=x"));
    writeBytes(myOut / "sub", "mine");
    const std::string expected = "sub: a file stands where a folder is needed";
    COMPARE_TEXT(failedRun(filesOf("a=x sub/c=x")), expected.c_str());
    COMPARE_TEXT(failedRun(filesOf("a=x sub/c/d/e=x")), expected.c_str());
}

void TestOutputCommit::folderInPlaceOfAFileIsAnError()
{
    runOnce(myOut, filesOf("b=x"));
    std::filesystem::create_directory(myOut / "c");
    COMPARE_TEXT(failedRun(filesOf("a=x c=x")), "c: a folder stands where a file is to be written");
    QVERIFY(std::filesystem::is_directory(myOut / "c"));
}

void TestOutputCommit::folderInPlaceOfTheManifestIsAnError()
{
    std::filesystem::create_directories(myOut / ".qxgen-manifest.json");
    COMPARE_TEXT(failedRun(filesOf("a=x")), ".qxgen-manifest.json: a folder stands where a file is to be written");
}

void TestOutputCommit::readOnlyFolderIsAnError()
{
    runOnce(myOut, filesOf("a=x"));
    const DtTestMount mount("", myOut, myOut, MS_BIND);
    if (!mount.isMounted() || !mount.makeReadOnly())
        QSKIP(mount.why().c_str());
    COMPARE_TEXT(failedRun(filesOf("a=y")), ".qxgen-lock: the lock cannot be made: Read-only file system");
    const std::string error = errorOf(myOut, [this] { const DtOutputLock lock(myOut / "new/deep"); });
    COMPARE_TEXT(error, "new/deep: the folder cannot be made: Read-only file system");
}

void TestOutputCommit::readOnlyFolderBelowIsAnError()
{
    runOnce(myOut, filesOf("a=x sub/b=x sub/c=x"));
    const DtTestMount mount("", myOut / "sub", myOut / "sub", MS_BIND);
    if (!mount.isMounted() || !mount.makeReadOnly())
        QSKIP(mount.why().c_str());
    const std::string expected = "sub: cannot be written to: Read-only file system";
    COMPARE_TEXT(failedRun(filesOf("a=y sub/b=y sub/c=x")),
                 expected.c_str()); // replaced
    COMPARE_TEXT(failedRun(filesOf("a=y sub/b=x")),
                 expected.c_str()); // removed
    COMPARE_TEXT(failedRun(filesOf("a=y sub/b=x sub/c=x sub/deep/d=x")), expected.c_str());
    runOnce(myOut, filesOf("a=y sub/b=x sub/c=x")); // nothing is to be done there
    COMPARE_TEXT(readBytes(myOut / "a"), "y");
}

// Root may write everywhere, so the run is one of another user then.
void TestOutputCommit::folderWithoutPermissionIsAnError()
{
    const pid_t child = startChild(
        [this]
        {
            constexpr uid_t theNobody = 65534;
            if (geteuid() == 0 && (chown(myTop.c_str(), theNobody, theNobody) != 0 || setuid(theNobody) != 0))
                _exit(2);
            runOnce(myOut, filesOf("a=x sub/b=x"));
            chmod((myOut / "sub").c_str(), 0555);
            const std::string below = failedRun(filesOf("a=y sub/b=y"));
            chmod(myOut.c_str(), 0555);
            const std::string top = failedRun(filesOf("a=y"));
            chmod(myOut.c_str(), 0755);
            chmod((myOut / "sub").c_str(), 0755);
            _exit(below == "sub: cannot be written to: Permission denied" &&
                          top == ".qxgen-lock: the lock cannot be made: Permission denied"
                      ? 3
                      : 4);
        });
    QCOMPARE(endOf(child), 3);
}

void TestOutputCommit::otherFileSystemBelowIsAnError()
{
    std::filesystem::create_directories(myOut / "sub");
    const DtTestMount mount("tmpfs", "tmpfs", myOut / "sub", 0, "size=1m");
    if (!mount.isMounted())
        QSKIP(mount.why().c_str());
    COMPARE_TEXT(failedRun(filesOf("a=x sub/b=x")), "sub: lies on another file system than the output folder, so "
                                                    "files cannot be moved there in one step");
}

void TestOutputCommit::otherMountOfTheFileSystemIsAnError()
{
    std::filesystem::create_directories(myOut / "sub");
    const DtTestMount mount("", myOut / "sub", myOut / "sub", MS_BIND);
    if (!mount.isMounted())
        QSKIP(mount.why().c_str());
    COMPARE_TEXT(failedRun(filesOf("a=x sub/b=x")), "sub: lies on another file system than the output folder, so "
                                                    "files cannot be moved there in one step");
}

void TestOutputCommit::immutableFileIsAnError()
{
    runOnce(myOut, filesOf("a=x b=x c=x"));
    {
        const DtFileFlag flag(myOut / "b", FS_IMMUTABLE_FL);
        if (!flag.isSet())
            QSKIP("no file can be marked immutable here");
        const std::string expected = "b: is marked immutable (lsattr shows it) and cannot be changed";
        COMPARE_TEXT(failedRun(filesOf("a=y b=y c=y")), expected.c_str());
        COMPARE_TEXT(failedRun(filesOf("a=y c=y")), expected.c_str());
    }
    const DtFileFlag flag(myOut / "b", FS_APPEND_FL);
    COMPARE_TEXT(failedRun(filesOf("a=y b=y")), "b: is marked append-only (lsattr shows it) and cannot be replaced");
}

void TestOutputCommit::immutableFolderIsAnError()
{
    runOnce(myOut, filesOf("a=x sub/b=x"));
    const DtFileFlag flag(myOut / "sub", FS_IMMUTABLE_FL);
    if (!flag.isSet())
        QSKIP("no folder can be marked immutable here");
    const std::string error = failedRun(filesOf("a=y sub/b=y"));
    QVERIFY2(error == "sub: is marked immutable (lsattr shows it) and cannot be changed" ||
                 error == "sub: cannot be written to: Operation not permitted",
             error.c_str());
}

namespace
{
// Fills a file system to the last byte.
void fillDisk(const std::filesystem::path& file)
{
    const int filler = ::open(file.c_str(), O_WRONLY | O_CREAT, 0600);
    const std::string block(4096, 'x');
    while (write(filler, block.data(), block.size()) > 0)
        continue;
    ::close(filler);
}
} // namespace

void TestOutputCommit::fullDiskAheadOfTheJournalChangesNothing()
{
    std::filesystem::create_directory(myOut);
    const DtTestMount mount("tmpfs", "tmpfs", myOut, 0, "size=256k");
    if (!mount.isMounted())
        QSKIP(mount.why().c_str());
    const DtContents before = filesOf("a=x b=x");
    runOnce(myOut, before);
    {
        const DtOutputLock lock(myOut);
        DtOutputStage stage(lock, "1.0");
        writeTree(stage.path(), filesOf("a=y c=y"));
        fillDisk(myOut / "filler");
        const std::string error = errorOf(stage.path(), [&] { stage.commit(); });
        COMPARE_TEXT(error, "../manifest.json: cannot be written: No space left on device");
    }
    std::filesystem::remove(myOut / "filler");
    QCOMPARE(treeOf(myOut), before);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
}

// Folders are the only thing that takes room behind the journal.
void TestOutputCommit::fullDiskBehindTheJournalIsFinishedLater()
{
    std::filesystem::create_directory(myOut);
    const DtTestMount mount("tmpfs", "tmpfs", myOut, 0, "nr_inodes=100");
    if (!mount.isMounted())
        QSKIP(mount.why().c_str());
    runOnce(myOut, filesOf("a=x"));
    const DtContents after = filesOf("a=x b=y new/c=y");
    const auto fillAtTheJournal = [this](DtCommitStep step, const std::filesystem::path&)
    {
        int number = 0;
        while (step == DtCommitStep::JournalWritten &&
               mknod((myOut / ("filler" + std::to_string(number))).c_str(), S_IFREG | 0600, 0) == 0)
            ++number;
    };
    const std::string error = errorOf(myOut, [&] { runOnce(myOut, after, fillAtTheJournal); });
    COMPARE_TEXT(error, "new: the folder cannot be made: No space left on device");
    QVERIFY(DtOutputRecovery::isNeeded(myOut));
    for (const auto& [path, content] : treeOf(myOut))
        if (path.rfind("filler", 0) == 0)
            std::filesystem::remove(myOut / path);
    QCOMPARE(treeOf(myOut), filesOf("a=x b=y")); // each is whole
    const DtOutputLock lock(myOut);
    QVERIFY(DtOutputRecovery(lock).hasFinishedCommit());
    QCOMPARE(treeOf(myOut), after);
}

void TestOutputCommit::fileSizeLimitChangesNothing()
{
    const DtContents before = filesOf("a=x b=x");
    runOnce(myOut, before);
    const pid_t child = startChild(
        [this]
        {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {100, 100};
            setrlimit(RLIMIT_FSIZE, &limit);
            const std::string error = errorOf(myOut, [this] { runOnce(myOut, filesOf("a=y c=y")); });
            _exit(error.find("/manifest.json: cannot be written: File too large") != std::string::npos ? 3 : 4);
        });
    QCOMPARE(endOf(child), 3);
    QCOMPARE(treeOf(myOut), before);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
}

void TestOutputCommit::signalsWaitForTheEndOfTheCommit()
{
    for (const int signal : {SIGINT, SIGTERM})
    {
        const DtContents contents = {
            {"a", std::to_string(signal)},
            {"b", std::to_string(signal)}
        };
        const pid_t child = startChild(
            [&]
            {
                runOnce(myOut, contents,
                        [&](DtCommitStep step, const std::filesystem::path&)
                        {
                            if (step == DtCommitStep::JournalWritten)
                                kill(getpid(), signal);
                        });
            });
        QCOMPARE(endOf(child), 128 + signal);
        QCOMPARE(treeOf(myOut), contents);
        QVERIFY(!DtOutputRecovery::isNeeded(myOut));
    }
}

void TestOutputCommit::twoProcessesAtOnceLeaveTheOutputOfOne()
{
    const auto contentsOf = [](int number)
    {
        DtContents contents = {
            {"only" + std::to_string(number), "x"}
        };
        for (int i = 0; i < 30; ++i)
            contents["d" + std::to_string(i % 3) + "/" + std::to_string(i)] = "run " + std::to_string(number);
        return contents;
    };
    std::vector<pid_t> children;
    for (int number = 0; number < 4; ++number)
        children.push_back(startChild([&] { runOnce(myOut, contentsOf(number)); }));
    for (const pid_t child : children)
        QCOMPARE(endOf(child), 0);
    const DtContents result = treeOf(myOut);
    bool isOfOne = false;
    for (int number = 0; number < 4; ++number)
        isOfOne = isOfOne || result == contentsOf(number);
    QVERIFY(isOfOne);
    COMPARE_TEXT(ownNames(myOut), ".qxgen-manifest.json");
}

void TestOutputCommit::timeGrowsWithTheNumberOfFilesOnly()
{
    const DtTestFolder memory(DtTestFolder::memory());
    const auto secondsFor = [&](int count)
    {
        DtContents contents;
        for (int i = 0; i < count; ++i)
            contents["d" + std::to_string(i / 100) + "/file" + std::to_string(i)] = "content " + std::to_string(i);
        const std::filesystem::path out = memory.path() / std::to_string(count);
        const double start = processorSeconds();
        runOnce(out, contents);       // all are added,
        runOnce(out, contents);       // none differs,
        runOnce(out, filesOf("a=x")); // and all are removed
        const double seconds = processorSeconds() - start;
        return treeOf(out) == filesOf("a=x") ? seconds : -1;
    };
    const double small = secondsFor(2500);
    const double large = secondsFor(10000);
    qInfo("%.2f s of processor time for 2500 files, %.2f s for 10000", small, large);
    QVERIFY(small > 0 && large > 0);
    QVERIFY2(large < 8 * small, qPrintable(QString::number(large / small))); // 4 is linear, 16 is quadratic
}

QX_REGISTER_TEST(TestOutputCommit)
#include "testOutputCommit.moc"
