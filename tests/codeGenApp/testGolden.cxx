// Whole runs on small models, compared file by file with what is kept below tests/golden. README.md there tells how a
// case is made up and renewed.

#include "registerTest.h"

#include "fileGenerator/omtProject.h"
#include "scratchProgram.h"

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <map>

namespace
{
const QString theCases = QStringLiteral(QX_SOURCE_DIR "/tests/golden");

// Names and texts of a tree of files; names are relative to it, with "/".
using FileTexts = std::map<QString, QByteArray>;
using Options = std::map<QString, QString>;

// What differs from run to run, all in this place: random identifiers (version 4) and dates.
QByteArray masked(const QByteArray& text)
{
    static const QRegularExpression theIdentifier(
        QStringLiteral("\\b[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}\\b"));
    static const QRegularExpression theDate(
        QStringLiteral("\\b20[0-9]{2}-[01][0-9]-[0-3][0-9](?:[T ][0-9]{2}:[0-9]{2}(?::[0-9]{2})?)?\\b"));
    return QString::fromLatin1(text)
        .replace(theIdentifier, QStringLiteral("IDENTIFIER"))
        .replace(theDate, QStringLiteral("DATE"))
        .toLatin1();
}

// The first part of every generated name is taken off: kept files lie in plain directories.
FileTexts readFiles(const QString& directory)
{
    FileTexts files;
    for (const QString& name : filesBelow(directory))
        files[QString(name).remove(QRegularExpression(QStringLiteral("^cpp\\\\")))] =
            masked(readTextFile(directory + "/" + name));
    return files;
}

void writeFiles(const QString& directory, const FileTexts& files)
{
    QDir(directory).removeRecursively();
    for (const auto& [name, text] : files)
        writeTextFile(directory + "/" + name, text);
}

QString unifiedDiff(const QString& name, const QByteArray& expected, const QByteArray& actual)
{
    const QTemporaryDir scratch;
    writeTextFile(scratch.filePath("expected"), expected);
    writeTextFile(scratch.filePath("actual"), actual);
    QProcess diff;
    diff.start("diff", {"-u", "--label", "expected/" + name, "--label", "actual/" + name, scratch.filePath("expected"),
                        scratch.filePath("actual")});
    if (!diff.waitForFinished())
        return "differs: " + name + "\n";
    return QString::fromUtf8(diff.readAllStandardOutput());
}

// Empty when both are the same.
QString differences(const FileTexts& expected, const FileTexts& actual)
{
    QString report;
    for (const auto& [name, text] : expected)
    {
        const auto found = actual.find(name);
        if (found == actual.end())
            report += "missing: " + name + "\n";
        else if (found->second != text)
            report += unifiedDiff(name, text, found->second);
    }
    for (const auto& [name, text] : actual)
        if (expected.count(name) == 0)
            report += "surplus: " + name + "\n";
    return report;
}

// Lines "key=value"; empty ones and those that begin with "#" are left out.
Options readOptions(const QString& file)
{
    Options options;
    for (const QString& line : QString::fromUtf8(readTextFile(file)).split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#'))
            options[line.section('=', 0, 0).trimmed()] = line.section('=', 1).trimmed();
    return options;
}

QString unknownOptions(const Options& options)
{
    static const QStringList theKeys = {"classes", "dis",   "generate64Bit", "generateErrors", "include",
                                        "mim",     "model", "namespace",     "prefix"};
    QStringList unknown;
    for (const auto& [key, value] : options)
        if (!theKeys.contains(key))
            unknown += key;
    return unknown.join(' ');
}

// An option that is not there leaves the shipped configuration alone.
void setPreferences(DtCodeGenAppGui& window, const Options& options)
{
    const auto check = [&](const char* key, const char* box)
    {
        const auto found = options.find(key);
        if (found != options.end())
            window.preferences()->findChild<QCheckBox*>(box)->setChecked(found->second == "on");
    };
    check("dis", "myGenerateDis");
    check("generate64Bit", "myGenerate64Bit");
    check("generateErrors", "myGenerateErrors");
    check("mim", "myIncludeStandardMIM");
    if (options.count("namespace") > 0)
    {
        window.preferences()->findChild<QCheckBox*>("myUseNamespace")->setChecked(true);
        window.preferences()->findChild<QLineEdit*>("myNamespaceName")->setText(options.at("namespace"));
    }
    window.preferences()->okButtonPressed();
}

// All models of the case, in the order of their names, or the one that the options name; they lie where the project is
// written.
std::vector<DtCodeGenAppGui::DtModelFile> copyModels(const DtScratchProgram& program, const QString& caseDirectory,
                                                     const Options& options)
{
    std::vector<DtCodeGenAppGui::DtModelFile> models;
    if (options.count("model") > 0)
        models.emplace_back(program.copiedModel(QStringLiteral(QX_SOURCE_DIR "/") + options.at("model")), "");
    for (const QString& name : QDir(caseDirectory).entryList({"*.xml"}, QDir::Files, QDir::Name))
        models.emplace_back(program.copiedModel(caseDirectory + "/" + name), "");
    return models;
}

// All classes of the model, or those that the options name; false when there is no such class.
bool selectClasses(DtCodeGenAppGui& window, const Options& options)
{
    window.addAllObjectInteractions();
    if (options.count("classes") == 0)
        return true;
    QStringList wanted = options.at("classes").split(' ');
    DtOmtProject& project = *window.omtProject();
    const std::set<DtOmtObject> objects = project.getObjects();
    for (const DtOmtObject& object : objects)
        if (wanted.removeAll(QString::fromUtf8(object.fullName().c_str())) == 0)
            project.removeObject(object);
    const std::set<DtOmtInteraction> interactions = project.getInteractions();
    for (const DtOmtInteraction& interaction : interactions)
        if (wanted.removeAll(QString::fromUtf8(interaction.fullName().c_str())) == 0)
            project.removeInteraction(interaction);
    return wanted.isEmpty();
}

// False when the models could not be read, or a class is not there.
bool generate(DtScratchProgram& program, const QString& caseDirectory, const Options& options)
{
    const auto models = copyModels(program, caseDirectory, options);
    const auto window = program.makeWindow();
    setPreferences(*window, options);
    window->newOmtProject(DtFilename(program.bytes(program.path("models/case.qxproj"))));
    if (models.empty() || window->loadFiles(models) != 1)
        return false;
    if (!selectClasses(*window, options))
        return false;
    window->setOutputDirectory(program.path("out/"));
    if (options.count("include") > 0)
        window->setIncludeDirectory(options.at("include"));
    if (options.count("prefix") > 0)
        window->setClassPrefix(options.at("prefix"));
    window->generateAllFiles();
    return true;
}
} // namespace

class TestGolden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identifiersAndDatesAreMasked();
    void missingSurplusAndChangedFilesAreReported();
    void runGivesTheExpectedFiles_data() { addCases(); }
    void runGivesTheExpectedFiles();
    void everyCaseIsComplete_data() { addCases(); }
    void everyCaseIsComplete();
    void generatedLinesAreNotTooWide_data() { addCases(); }
    void generatedLinesAreNotTooWide();

private:
    static void addCases()
    {
        QTest::addColumn<QString>("directory");
        for (const QString& name : QDir(theCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
            QTest::newRow(qPrintable(name)) << theCases + "/" + name;
    }

    DtScratchTree myTree;
};

void TestGolden::identifiersAndDatesAreMasked()
{
    QCOMPARE(masked("{0a1b2c3d-1111-4222-8333-0123456789ab} 2031-02-03 2031-02-03T04:05:06 6A7D2C2E-4C0B 12031-02-03"),
             QByteArray("{IDENTIFIER} DATE DATE 6A7D2C2E-4C0B 12031-02-03"));
}

void TestGolden::missingSurplusAndChangedFilesAreReported()
{
    const FileTexts expected = {
        {"a",    "1\n2\n"},
        {"b",    "x\n"   },
        {"same", "s\n"   }
    };
    const FileTexts actual = {
        {"a",    "1\n3\n"},
        {"c",    "y\n"   },
        {"same", "s\n"   }
    };
    QCOMPARE(differences(expected, actual), QString("--- expected/a\n+++ actual/a\n@@ -1,2 +1,2 @@\n 1\n-2\n+3\n"
                                                    "missing: b\nsurplus: c\n"));
    QCOMPARE(differences(actual, actual), QString());
}

void TestGolden::everyCaseIsComplete()
{
    QFETCH(QString, directory);
    const QByteArray objective = readTextFile(directory + "/objective.txt");
    QCOMPARE(objective.count('\n'), 1);
    QVERIFY(objective.endsWith(".\n"));
    QCOMPARE(unknownOptions(readOptions(directory + "/options")), QString());
    QVERIFY(!filesBelow(directory + "/expected").isEmpty());
}

void TestGolden::runGivesTheExpectedFiles()
{
    QFETCH(QString, directory);
    DtScratchProgram program(myTree);
    QVERIFY(generate(program, directory, readOptions(directory + "/options")));
    const FileTexts actual = readFiles(program.path("out"));
    QVERIFY(!actual.empty());
    if (qEnvironmentVariableIntValue("GOLDEN_UPDATE") == 1)
        return writeFiles(directory + "/expected", actual);
    const QString report = differences(readFiles(directory + "/expected"), actual);
    if (report.isEmpty())
        return;
    const QString kept = QCoreApplication::applicationDirPath() + "/golden-output/" + QFileInfo(directory).fileName();
    writeFiles(kept, actual);
    QFAIL(qPrintable(report + "The files are kept in " + kept));
}

// Names of half a line leave no choice; those of the cases are shorter.
void TestGolden::generatedLinesAreNotTooWide()
{
    constexpr int theWidth = 120; // columns
    QFETCH(QString, directory);
    int lines = 0;
    for (const auto& [name, text] : readFiles(directory + "/expected"))
    {
        if (!name.endsWith(".h") && !name.endsWith(".cxx"))
            continue;
        for (const QByteArray& line : text.split('\n'))
        {
            ++lines;
            QVERIFY2(QString::fromUtf8(line).size() <= theWidth, qPrintable(name + ": " + QString::fromUtf8(line)));
        }
    }
    QVERIFY(lines > 100);
}

QX_REGISTER_TEST(TestGolden)
#include "testGolden.moc"
