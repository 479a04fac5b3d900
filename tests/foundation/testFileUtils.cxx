#include "foundation/fileUtils.h"
#include "foundationTest.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <cerrno>
#include <sys/stat.h>

class TestFileUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensAndClosesFiles();
    void textLetterOfAModeHasNoEffect();
    void readsAWholeFile();
    void readsRegularFilesOnly();
    void makesADirectoryAndItsParents();
    void existingDirectoryIsNoError();
    void fileInTheWayOfADirectoryIsAnError();
    void replacesAFile();
    void replaceMakesAMissingFile();
    void replaceKeepsTheMode();
    void replaceFollowsLinks();
    void replaceFollowsALinkToAMissingFile();
    void replaceLeavesDevicesAndDirectoriesAlone();
    void failedReplaceLeavesNothingBehind();
    void failedReplaceTellsTheCause();
    void linksInACircleFail();
    void sleepsAboutAsLongAsTold();
    void pollSeesAPressedKey();
    void pollSeesNothingOnASilentConsole();
    void pollEndsWithTheInput();
    void namesMachineAndCompiler();
    void diagonalizableIsZero();

private:
    std::unique_ptr<QTemporaryDir> myDirectory;
    std::unique_ptr<DtInDirectory> myHere;
};

void TestFileUtils::init()
{
    myDirectory = std::make_unique<QTemporaryDir>();
    myHere = std::make_unique<DtInDirectory>(myDirectory->path());
}

void TestFileUtils::cleanup()
{
    myHere.reset();
    myDirectory.reset();
}

void TestFileUtils::opensAndClosesFiles()
{
    QVERIFY(DtFileOpen("missing", "r") == nullptr);
    FILE* const file = DtFileOpen("new", "w");
    QVERIFY(file != nullptr);
    QVERIFY(std::fputs("text", file) >= 0);
    DtFileClose(file);
    QCOMPARE(readTextFile("new"), QByteArray("text"));
    DtFileClose(nullptr);
}

void TestFileUtils::textLetterOfAModeHasNoEffect()
{
    writeTextFile("a", "x\r\n");
    FILE* const file = DtFileOpen("a", "rt");
    QVERIFY(file != nullptr);
    char text[8] = {};
    QCOMPARE(std::fread(text, 1, sizeof text, file), std::size_t(3));
    QCOMPARE(QByteArray(text), QByteArray("x\r\n"));
    DtFileClose(file);
    QVERIFY(DtFileOpen("missing", "rt") == nullptr);
}

void TestFileUtils::readsAWholeFile()
{
    QByteArray content(100000, 'x');
    content[500] = '\0';
    writeTextFile("a", content);
    std::string text("old");
    QVERIFY(DtReadFile("a", text));
    QVERIFY(text == content.toStdString());
    writeTextFile("empty", "");
    QVERIFY(DtReadFile("empty", text));
    QVERIFY(text.empty());
    QVERIFY(DtReadFile("/proc/self/cmdline", text)); // its size is given as 0
    QVERIFY(!text.empty());
}

void TestFileUtils::readsRegularFilesOnly()
{
    std::string text;
    QVERIFY(!DtReadFile("missing", text));
    QVERIFY(!DtReadFile(".", text));
    QVERIFY(!DtReadFile("/dev/null", text));
    QVERIFY(!DtReadFile("", text));
    QVERIFY(mkfifo("pipe", 0600) == 0);
    QVERIFY(!DtReadFile("pipe", text));
}

void TestFileUtils::makesADirectoryAndItsParents()
{
    QVERIFY(DtMakeDirectory("a/b//c/"));
    QVERIFY(QFileInfo("a/b/c").isDir());
    const QByteArray absolute = myDirectory->filePath("x/y").toUtf8();
    QVERIFY(DtMakeDirectory(absolute.constData()));
    QVERIFY(QFileInfo("x/y").isDir());
}

void TestFileUtils::existingDirectoryIsNoError()
{
    QVERIFY(DtMakeDirectory("a"));
    QVERIFY(DtMakeDirectory("a"));
    QVERIFY(DtMakeDirectory("."));
    QVERIFY(DtMakeDirectory("/"));
    QVERIFY(DtMakeDirectory(""));
}

void TestFileUtils::fileInTheWayOfADirectoryIsAnError()
{
    writeTextFile("file", "x");
    QVERIFY(!DtMakeDirectory("file"));
    QVERIFY(!DtMakeDirectory("file/below"));
}

void TestFileUtils::replacesAFile()
{
    writeTextFile("a", "a much longer old text");
    QVERIFY(DtReplaceFile("a", "new"));
    QCOMPARE(readTextFile("a"), QByteArray("new"));
    QCOMPARE(QDir(".").entryList(QDir::Files | QDir::Hidden), QStringList{"a"});
}

void TestFileUtils::replaceMakesAMissingFile()
{
    const mode_t mask = umask(027);
    const bool isWritten = DtReplaceFile("a", std::string("x\0y", 3));
    umask(mask);
    QVERIFY(isWritten);
    QCOMPARE(readTextFile("a"), QByteArray("x\0y", 3));
    struct stat status = {};
    QCOMPARE(stat("a", &status), 0);
    QCOMPARE(status.st_mode & 07777, mode_t(0640));
}

void TestFileUtils::replaceKeepsTheMode()
{
    writeTextFile("a", "old");
    QCOMPARE(chmod("a", 0604), 0);
    QVERIFY(DtReplaceFile("a", "new"));
    struct stat status = {};
    QCOMPARE(stat("a", &status), 0);
    QCOMPARE(status.st_mode & 07777, mode_t(0604));
}

void TestFileUtils::replaceFollowsLinks()
{
    writeTextFile("sub/target", "old");
    QVERIFY(QFile::link("target", "sub/inner"));
    QVERIFY(QFile::link("sub/inner", "outer"));
    QVERIFY(DtReplaceFile("outer", "new"));
    QCOMPARE(readTextFile("sub/target"), QByteArray("new"));
    QVERIFY(QFileInfo("outer").isSymLink());
    QVERIFY(QFileInfo("sub/inner").isSymLink());
    QVERIFY(!QFileInfo("sub/target").isSymLink());
}

void TestFileUtils::replaceFollowsALinkToAMissingFile()
{
    QVERIFY(QFile::link(myDirectory->filePath("target"), "link"));
    QVERIFY(DtReplaceFile("link", "new"));
    QVERIFY(QFileInfo("link").isSymLink());
    QCOMPARE(readTextFile("target"), QByteArray("new"));
}

void TestFileUtils::replaceLeavesDevicesAndDirectoriesAlone()
{
    QVERIFY(mkfifo("pipe", 0600) == 0);
    QVERIFY(!DtReplaceFile("pipe", "x"));
    QVERIFY(QDir().mkdir("directory"));
    QVERIFY(!DtReplaceFile("directory", "x"));
    QVERIFY(!DtReplaceFile("directory/", "x"));
    QVERIFY(!DtReplaceFile("", "x"));
    struct stat status = {};
    QCOMPARE(stat("pipe", &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
    QVERIFY(QFileInfo("directory").isDir());
}

void TestFileUtils::failedReplaceLeavesNothingBehind()
{
    QVERIFY(!DtReplaceFile("missing/a", "x"));
    writeTextFile("file", "x");
    QVERIFY(!DtReplaceFile("file/a", "x"));
    QCOMPARE(QDir(".").entryList(QDir::Files | QDir::Hidden), QStringList{"file"});
    QCOMPARE(readTextFile("file"), QByteArray("x"));
}

void TestFileUtils::failedReplaceTellsTheCause()
{
    QVERIFY(QDir().mkdir("directory"));
    const auto causeFor = [](const char* name)
    {
        errno = 0;
        return DtReplaceFile(name, "x") ? 0 : errno;
    };
    QCOMPARE(causeFor("directory"), EISDIR);
    QCOMPARE(causeFor("missing/a"), ENOENT);
    const DtChildResult result = runInChild(
        []
        {
            const rlimit limit = {0, 0};
            std::signal(SIGXFSZ, SIG_IGN);
            setrlimit(RLIMIT_FSIZE, &limit);
            _exit(DtReplaceFile("a", "x") ? 0 : errno);
        });
    QCOMPARE(result.exitCode, EFBIG);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList());
}

void TestFileUtils::linksInACircleFail()
{
    QVERIFY(QFile::link("b", "a"));
    QVERIFY(QFile::link("a", "b"));
    QVERIFY(!DtReplaceFile("a", "x"));
    QVERIFY(QFileInfo("a").isSymLink());
    QVERIFY(QFileInfo("b").isSymLink());
}

void TestFileUtils::sleepsAboutAsLongAsTold()
{
    QElapsedTimer timer;
    timer.start();
    DtSleep(0.05);
    QVERIFY(timer.elapsed() >= 49);
    DtSleep(0);
    DtSleep(-1); // no time at all
    QVERIFY(timer.elapsed() < 30000);
}

void TestFileUtils::pollSeesAPressedKey()
{
    const DtChildResult result = runInChild([] { std::exit(DtPollBlockingInputChar() ? 3 : 4); }, "x");
    QCOMPARE(result.exitCode, 3);
}

void TestFileUtils::pollSeesNothingOnASilentConsole()
{
    const DtChildResult result = runInChild(
        []
        {
            int ends[2];
            if (pipe(ends) != 0)
                std::exit(5);
            dup2(ends[0], STDIN_FILENO);
            std::exit(DtPollBlockingInputChar() ? 3 : 4);
        });
    QCOMPARE(result.exitCode, 4);
}

void TestFileUtils::pollEndsWithTheInput()
{
    QCOMPARE(runInChild([] { std::exit(DtPollBlockingInputChar() ? 3 : 4); }).exitCode, 3);
    const DtChildResult closed = runInChild(
        []
        {
            ::close(STDIN_FILENO);
            std::exit(DtPollBlockingInputChar() ? 3 : 4);
        });
    QCOMPARE(closed.exitCode, 3);
}

void TestFileUtils::namesMachineAndCompiler()
{
    COMPARE_TEXT(DtOperatingSystem(), QSysInfo::kernelType() == "linux" ? "Linux" : "");
    const QByteArray compiler(DtCompiler().c_str());
    QVERIFY2(compiler.startsWith("g++ ") || compiler.startsWith("clang "), compiler.constData());
}

void TestFileUtils::diagonalizableIsZero()
{
    QCOMPARE(diagonalizable(), 0);
}

QX_REGISTER_TEST(TestFileUtils)
#include "testFileUtils.moc"
