// The sample's output in every setting of the preferences, compiled for both protocols.

#include "registerTest.h"

#include "codeGenApp/compiledOutput.h"
#include "stagedSample.h"

namespace
{
struct DtChosenSettings
{
    const char* name;
    const char* prefix;
    const char* space;
    const char* includeDirectory;
    bool dis;
    bool examples;
    bool bits64;
    bool errors;
    bool allDatatypes;
};

const DtChosenSettings theSettings[] = {
    {"none",              "",   "",     "",        false, false, true,  false, false},
    {"prefix",            "Qx", "",     "",        false, false, true,  false, false},
    {"namespace",         "",   "port", "",        false, false, true,  false, false},
    {"include directory", "",   "",     "harbour", false, false, true,  false, false},
    {"DIS",               "",   "",     "",        true,  false, true,  false, false},
    {"examples",          "",   "",     "",        false, true,  true,  false, false},
    {"32 bits",           "",   "",     "",        false, false, false, false, false},
    {"errors",            "",   "",     "",        false, false, true,  true,  false},
    {"all datatypes",     "",   "",     "",        false, false, true,  false, true },
    {"all",               "Qx", "port", "harbour", true,  true,  false, true,  false},
};

void generate(DtScratchProgram& program, const DtChosenSettings& settings)
{
    const auto window = program.makeWindow(
        [&settings](DtCodeGenInitializer& initializer)
        {
            initializer.setVariableValue("allDatatypes", settings.allDatatypes ? "true" : "false");
            initializer.applySettings(); // ahead of the others, some of which are not stored
            initializer.setPrefixName(settings.prefix);
            initializer.setNamespaceName(settings.space);
            initializer.setIncludeName(settings.includeDirectory);
            initializer.setGenerateDis(settings.dis);
            initializer.setGenerateExamples(settings.examples);
            initializer.setGenerate64Bit(settings.bits64);
            initializer.setGenerateErrors(settings.errors);
        });
    window->newOmtProject(DtFilename(program.bytes(program.path("models/sample.qxproj"))));
    window->loadFile(program.sampleModel(), "");
    window->addAllObjectInteractions();
    window->setOutputDirectory(program.path("out/"));
    window->generateAllFiles();
}

// Links under the names by which DIS files include others: the odd letter ahead of a base class's header, and the
// capital of a unit's.
void bridge(const QString& directory)
{
    for (const QString& file : filesBelow(directory))
    {
        const QString path = directory + "/" + file;
        const QString name = QFileInfo(file).fileName();
        const QString folder = QFileInfo(path).path() + "/";
        for (const char* kind : {"Encoder", "Decoder"})
            if (name.endsWith(QString(kind) + "DIS.h"))
                QFile::link(path, folder + "d" + QString(name).replace("DIS.h", ".h"));
        if (name.endsWith("Pdu.h") && !name.startsWith("net"))
            QFile::link(path, folder + name.left(1).toUpper() + name.mid(1));
    }
}

// What the compiler says of the files of one protocol. The examples of objects are for both, those of interactions for
// HLA alone.
QString errorsOf(const QString& output, const DtChosenSettings& settings, bool isDis)
{
    QTemporaryDir stage;
    QStringList names = layOut(output, stage.path());
    bridge(stage.path());
    const QRegularExpression other(isDis ? "HLA\\.(h|cxx)$|Examples/\\w*Inter/" : "(DIS|Pdu)\\.(h|cxx)$");
    QStringList taken;
    for (const QString& name : names)
        if (name.startsWith("DataTypes/") || name.contains("/DataTypes/") || !other.match(name).hasMatch())
            taken += name;
    writeTextFile(stage.path() + "/all.cpp", joinedUnit(taken));
    QStringList options = {"-fsyntax-only",
                           "-Wall",
                           "-Wextra",
                           "-Werror",
                           "-std=c++17",
                           "-I.",
                           "-I" QX_SOURCE_DIR "/toolkit/include",
                           "-I" + stage.path() + "/" + settings.includeDirectory,
                           "all.cpp"};
    if (isDis)
        options.prepend("-DQX_DIS");
    return runProgram(stage.path(), "g++", options).output;
}

// Lines that report an error other than the ones that were asked for.
QStringList unexpected(const QString& errors)
{
    QStringList lines;
    for (const QString& line : errors.split('\n'))
        if (line.contains("error:") && !line.contains("error: #error"))
            lines += line;
    return lines;
}
} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outputCompiles_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < static_cast<int>(std::size(theSettings)); ++index)
            QTest::newRow(theSettings[index].name) << index;
    }
    void outputCompiles()
    {
        QFETCH(int, index);
        const DtChosenSettings& settings = theSettings[index];
        DtScratchProgram program;
        generate(program, settings);
        const QString output = program.path("out");
        QCOMPARE(filesBelow(output).filter("Examples").isEmpty(), !settings.examples);
        QCOMPARE(filesBelow(output).filter("vesselPublisherDIS.cxx").size(), settings.dis ? 1 : 0);
        // Of the management model: the datatype of what has no value, which no class uses.
        QCOMPARE(filesBelow(output).filter("HLAtoken.cxx").size(), settings.allDatatypes ? 1 : 0);
        for (const bool isDis : {false, true})
        {
            if (isDis && !settings.dis)
                continue;
            const QString errors = errorsOf(output, settings, isDis);
            QVERIFY2(unexpected(errors).isEmpty(), qPrintable(errors.left(6000)));
            QCOMPARE(errors.contains("error: #error"), settings.errors);
            QVERIFY2(settings.errors || errors.isEmpty(), qPrintable(errors.left(2000)));
        }
    }
};

QX_REGISTER_TEST(TestSettings)
#include "testSettings.moc"
