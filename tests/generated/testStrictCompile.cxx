// What is generated compiles without a warning, and each header by itself.

#include "registerTest.h"

#include "codeGenApp/compiledOutput.h"
#include "stagedSample.h"

namespace
{
const QString theModules = QStringLiteral(QX_SHARED_DIR "/models/1516-2010/rpr2/");

QStringList modulesOfTheLargeModel()
{
    QStringList modules;
    for (const char* name : {"Foundation", "Enumerations", "Base", "Physical", "Warfare", "Switches"})
        modules += theModules + "RPR-" + name + "_v2.0.xml";
    return modules;
}

QString errorsOf(const QString& directory, const QString& compiler, const QString& standard, const QString& unit)
{
    const QStringList options = {
        "-std=" + standard, "-fsyntax-only", "-Wall",   "-Wextra", "-Wpedantic",
        "-Wshadow",         "-Wconversion",  "-Werror", "-I.",     "-I" QX_SOURCE_DIR "/toolkit/include"};
    const DtProgramRun run = runProgram(directory, compiler, options + QStringList{unit});
    return run.exitCode == 0 ? QString() : run.output.left(4000);
}
} // namespace

class TestStrictCompile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { myOutputs.clear(); }

    // The plain run has the sample with one compiler, as the oldest and as the usual standard.
    void outputHasNoWarnings_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("compiler");
        QTest::addColumn<QString>("standard");
        for (const char* model : {"sample", "large model"})
            for (const char* compiler : {"g++", "clang++"})
                for (const char* standard : {"c++11", "c++14", "c++17", "c++20"})
                    QTest::newRow(qPrintable(QStringList({model, compiler, standard}).join(' ')))
                        << model << compiler << standard;
    }
    void outputHasNoWarnings()
    {
        QFETCH(QString, model);
        QFETCH(QString, compiler);
        QFETCH(QString, standard);
        const bool isPlain = model == "sample" && compiler == "g++" && (standard == "c++11" || standard == "c++17");
        if (!isPlain && !isFullRun())
            QSKIP(theFullRunOnly);
        if (model != "sample" && !QFile::exists(theModules))
            QSKIP("The large model is not there.");
        const DtStagedOutput& output = outputOf(model);
        writeTextFile(output.path() + "/all.cpp", joinedUnit(output.files(".*\\.cxx")));
        const QString errors = errorsOf(output.path(), compiler, standard, "all.cpp");
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
    }

    void everyHeaderStandsAlone()
    {
        if (!isFullRun())
            QSKIP(theFullRunOnly);
        const DtStagedOutput& output = outputOf("sample");
        const QStringList headers = output.files(".*\\.h");
        QVERIFY(headers.size() > 100);
        for (const QString& header : headers)
        {
            const QByteArray include = "#include \"" + header.toUtf8() + "\"\n";
            writeTextFile(output.path() + "/header.cpp", include + include);
            const QString errors = errorsOf(output.path(), "g++", "c++11", "header.cpp");
            QVERIFY2(errors.isEmpty(), qPrintable(errors));
        }
    }

    // Beyond the standard library it reads its own classes, and names in place of the wire layer and the enumerations.
    void stateRepositoryReadsWhatItsTypesNeed()
    {
        const DtStagedOutput& output = outputOf("sample");
        const QStringList sources = output.files("vesselStateRepository\\.cxx");
        QCOMPARE(sources.size(), 1);
        const DtProgramRun run = runProgram(
            output.path(), "g++", {"-M", "-std=c++17", "-I.", "-I" QX_SOURCE_DIR "/toolkit/include", sources.first()});
        QCOMPARE(run.exitCode, 0);
        const QStringList read = run.output.split(QRegularExpression("[\\s\\\\]+"));
        QVERIFY(read.contains("vesselStateRepository.h"));
        QCOMPARE(read.filter("Enums.h"), QStringList());
        QStringList ofToolkit;
        for (const QString& header : read.filter("toolkit/include/qx/"))
            ofToolkit += header.section('/', -1);
        ofToolkit.sort();
        QCOMPARE(ofToolkit.join(' '), QString("opaqueValue.h stateRepository.h valueTypes.h wireNames.h"));
    }

    // The names of enumerators are compiled once, in one source.
    void nameOfAnEnumeratorStandsInOneFile()
    {
        const DtStagedOutput& output = outputOf("sample");
        QStringList holders;
        for (const QString& file : output.files(".*\\.(h|cxx)"))
            if (output.text(file).contains("static const DtEnumerator "))
                holders += file;
        QCOMPARE(holders.size(), 1);
        QVERIFY2(holders.first().endsWith("Enums.cxx"), qPrintable(holders.first()));
        QVERIFY(output.text(holders.first()).contains("\"Under-Way\""));
    }

private:
    const DtStagedOutput& outputOf(const QString& model)
    {
        std::unique_ptr<DtStagedOutput>& output = myOutputs[model];
        if (output == nullptr)
            output = model == "sample" ? std::make_unique<DtStagedOutput>()
                                       : std::make_unique<DtStagedOutput>(modulesOfTheLargeModel());
        return *output;
    }

    std::map<QString, std::unique_ptr<DtStagedOutput>> myOutputs;
};

QX_REGISTER_TEST(TestStrictCompile)
#include "testStrictCompile.moc"
