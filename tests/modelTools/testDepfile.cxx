#include "modelTools/depfile.h"
#include "registerTest.h"
#include "toolTest.h"

#include <QtTest/QtTest>

namespace
{
using DtNames = std::vector<std::string>;

// As file names they are hard on at least one of the tools. Ninja ends a name at quotes, whatever stands ahead of them.
const DtNames theNames = {"plain.xml",   "with blank.xml", "two  blanks",    "hash#.xml",
                          "dollar$.xml", "$(HOME) #.xml",  "M\xc3\xa4rz",    "per%cent",
                          "a,b+c@d~e",   "back\\slash",    "back\\ blank",   "two\\\\ blank",
                          "back\\\\mid", "with:colon",     "a: colon blank", "back\\%cent"};
// Ninja has no way to write these, or another one than make.
const DtNames theNamesOfMake = {"C:",     "back\\#hash", "two\\\\#hash", "tab\tname", "back\\\ttab", "back\\:colon",
                                "ends\\", "bar|name",    "back\\|bar",   "zz ends\\", "dollar\\$"};

DtNames joinedNames(DtNames names, const DtNames& more)
{
    names.insert(names.end(), more.begin(), more.end());
    return names;
}

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
        COMPARE_TEXT(DtDepfileText("/out/stamp", {"/b", "/a"}), "/out/stamp: \\\n  /a \\\n  /b\n/a:\n/b:\n");
        COMPARE_TEXT(DtDepfileText("stamp", {}), "stamp:\n");
    }

    void specialCharactersAreEscaped()
    {
        COMPARE_TEXT(DtDepfileText("a b", {"c#d", "e$f", "g\th"}),
                     "a\\ b: \\\n  c\\#d \\\n  e$$f \\\n  g\\\th\nc\\#d:\ne$$f:\ng\\\th:\n");
        COMPARE_TEXT(DtDepfileText("a:b", {"c\\d", "e\\ f", "g|h"}),
                     "a\\:b: \\\n  c\\d \\\n  e\\\\\\ f \\\n  g\\|h\nc\\d:\ne\\\\\\ f:\ng\\|h:\n");
    }

    void makeReadsEveryName()
    {
        if (QStandardPaths::findExecutable("make").isEmpty())
            QSKIP("make is not installed: no dependency file is tried with it.");
        writeFiles("stamp: of $1\\ #2", joinedNames(theNames, theNamesOfMake));
        writeBytes(path("Makefile"), "include names.d\n" + DtDepfileText(path(myTarget).native(), {}) + "\ttrue\n");
        const auto question = [this] { return printedBy("make", {"-q", target()}, path("")).substr(0, 1); };
        checkEachName([&question] { return question() == "0"; });
    }

    void ninjaReadsEveryName()
    {
        if (QStandardPaths::findExecutable("ninja").isEmpty())
            QSKIP("ninja is not installed: no dependency file is tried with it.");
        writeFiles("stamp: of #2", theNames);
        std::string name = path(myTarget).native();
        for (std::size_t at = 0; (at = name.find_first_of(" :", at)) != std::string::npos; at += 2)
            name.insert(at, "$");
        writeBytes(path("build.ninja"),
                   "rule make\n  command = touch $out\n  depfile = names.d\nbuild " + name + ": make\n");
        QCOMPARE(printedBy("ninja", {}, path("")).substr(0, 1), std::string("0")); // its log knows the command then
        writeFiles(myTarget, theNames);
        checkEachName([this] { return printedBy("ninja", {"-n"}, path("")) == "0 ninja: no work to do.\n"; });
    }

private:
    std::filesystem::path path(const std::string& name) const { return myFolder.path() / name; }
    QString target() const { return QString::fromStdString(path(myTarget).native()); }

    // The files, which are old, the dependency file, and the newer target.
    void writeFiles(const std::string& target, const DtNames& names)
    {
        myTarget = target;
        myNames = names;
        std::set<std::string> files;
        for (const std::string& name : myNames)
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
        for (const std::string& name : myNames)
        {
            setTime(path(name), 0);
            QVERIFY2(!isUpToDate(), name.c_str());
            setTime(path(name), 60);
            QVERIFY2(isUpToDate(), name.c_str());
        }
    }

    DtTestFolder myFolder;
    std::string myTarget;
    DtNames myNames;
};

QX_REGISTER_TEST(TestDepfile)
#include "testDepfile.moc"
