#include "modelTools/depfile.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtTest/QtTest>

namespace
{
// As file names they are hard on at least one of the tools. Ninja ends a name at quotes, whatever stands ahead of them.
const std::vector<std::string> theNames = {"plain.xml",     "with blank.xml", "two  blanks", "hash#.xml", "dollar$.xml",
                                           "$(HOME) #.xml", "M\xc3\xa4rz",    "per%cent",    "a,b+c@d~e"};

// What the program prints; its exit code first.
std::string printedBy(const QString& program, const QStringList& arguments, const std::filesystem::path& directory)
{
    QProcess process;
    process.setWorkingDirectory(QString::fromStdString(directory.native()));
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(60000))
        return program.toStdString() + " does not end";
    return std::to_string(process.exitCode()) + " " + process.readAll().toStdString();
}

void setTime(const std::filesystem::path& file, int minutesAgo)
{
    std::filesystem::last_write_time(file,
                                     std::filesystem::file_time_type::clock::now() - std::chrono::minutes(minutesAgo));
}
} // namespace

class TestDepfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesStandOneALine()
    {
        COMPARE_TEXT(DtDepfileText("/out/stamp", {"/b", "/a"}), "/out/stamp: \\\n  /a \\\n  /b\n");
        COMPARE_TEXT(DtDepfileText("stamp", {}), "stamp:\n");
    }

    void specialCharactersAreEscaped()
    {
        COMPARE_TEXT(DtDepfileText("a b", {"c#d", "e$f", "g\th"}), "a\\ b: \\\n  c\\#d \\\n  e$$f \\\n  g\\\th\n");
    }

    void makeReadsEveryName()
    {
        if (QStandardPaths::findExecutable("make").isEmpty())
            QSKIP("make is not installed: no dependency file is tried with it.");
        writeFiles("stamp of $1 #2");
        writeBytes(path("Makefile"), "include names.d\n" + DtDepfileText(path(myTarget).native(), {}) + "\ttrue\n");
        const auto question = [this] { return printedBy("make", {"-q", target()}, path("")).substr(0, 1); };
        checkEachName([&question] { return question() == "0"; });
    }

    void ninjaReadsEveryName()
    {
        if (QStandardPaths::findExecutable("ninja").isEmpty())
            QSKIP("ninja is not installed: no dependency file is tried with it.");
        writeFiles("stamp of #2");
        std::string name = path(myTarget).native();
        for (std::size_t at = 0; (at = name.find(' ', at)) != std::string::npos; at += 2)
            name.insert(at, "$");
        writeBytes(path("build.ninja"),
                   "rule make\n  command = touch $out\n  depfile = names.d\nbuild " + name + ": make\n");
        QCOMPARE(printedBy("ninja", {}, path("")).substr(0, 1), std::string("0")); // its log knows the command then
        writeFiles(myTarget);
        checkEachName([this] { return printedBy("ninja", {"-n"}, path("")) == "0 ninja: no work to do.\n"; });
    }

private:
    std::filesystem::path path(const std::string& name) const { return myFolder.path() / name; }
    QString target() const { return QString::fromStdString(path(myTarget).native()); }

    // The files, which are old, the dependency file, and the newer target.
    void writeFiles(const std::string& target)
    {
        myTarget = target;
        std::set<std::string> files;
        for (const std::string& name : theNames)
        {
            writeBytes(path(name), "x");
            setTime(path(name), 60);
            files.insert(path(name).native());
        }
        writeBytes(path("names.d"), DtDepfileText(path(target).native(), files));
        writeBytes(path(target), "");
        setTime(path(target), 30);
    }

    // The target is made anew for each of the files, and only then.
    void checkEachName(const std::function<bool()>& isUpToDate) const
    {
        QVERIFY(isUpToDate());
        for (const std::string& name : theNames)
        {
            setTime(path(name), 0);
            QVERIFY2(!isUpToDate(), name.c_str());
            setTime(path(name), 60);
            QVERIFY2(isUpToDate(), name.c_str());
        }
    }

    DtTestFolder myFolder;
    std::string myTarget;
};

QX_REGISTER_TEST(TestDepfile)
#include "testDepfile.moc"
