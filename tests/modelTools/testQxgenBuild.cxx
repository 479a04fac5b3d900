// What qxgen generate writes in the tree layout is built by a plain make, and by CMake from its lists of files.

#include "compiledOutput.h"
#include "qxgenProgram.h"
#include "registerTest.h"

namespace
{
const char theRprModel[] = QX_SHARED_DIR "/models/1516-2000/";

// What the command prints when it fails; empty when it is good.
QString failureOf(const QString& program, const QStringList& arguments, const std::string& directory)
{
    QProcess process;
    process.setWorkingDirectory(QString::fromStdString(directory));
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(3600000) || process.exitStatus() != QProcess::NormalExit)
        return program + " does not end";
    return process.exitCode() == 0 ? QString() : QString::fromUtf8(process.readAll().right(4000));
}

const char theCMakeProject[] = R"(cmake_minimum_required(VERSION 3.16)
project(rpr CXX)
set(CMAKE_CXX_STANDARD 17)
file(STRINGS out/Files-cc.txt sources)
list(TRANSFORM sources PREPEND out/)
add_library(rpr STATIC ${sources})
target_include_directories(rpr PRIVATE out ${QX_DIR}/include)
)";
} // namespace

class TestQxgenBuild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleCompiles()
    {
        generate({QX_SOURCE_DIR "/data/samples/sample.xml", "--dis", "--examples"});
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(failureOf("make", makeLine({isFullRun() ? "all" : "libraries"}), myFolder.path("out").native()),
                 QString());
        QVERIFY(std::filesystem::exists(myFolder.path("out/libsampleHLA.a")));
        QVERIFY(std::filesystem::exists(myFolder.path("out/libsampleDIS.a")));
        QCOMPARE(std::filesystem::exists(myFolder.path("out/Examples/Beacon/talk")), isFullRun());
    }

    void largeModelCompilesWithMakeAndCMake()
    {
        if (!isFullRun())
            QSKIP(theFullRunOnly);
        const QStringList models = QDir(QString::fromLatin1(theRprModel)).entryList({"*RPR*.xml", "*rpr*.xml"});
        if (models.isEmpty())
            QSKIP("The models are not here.");
        generate({theRprModel + models.first().toStdString(), "--name", "rpr"});
        if (QTest::currentTestFailed())
            return;
        myFolder.write("CMakeLists.txt", theCMakeProject);
        const std::string top = myFolder.path().native();
        QCOMPARE(failureOf("cmake",
                           {"-S", ".", "-B", "build", "-DQX_DIR=" QX_SOURCE_DIR "/toolkit", "-DCMAKE_CXX_FLAGS=-O0"},
                           top),
                 QString());
        QCOMPARE(failureOf("cmake", {"--build", "build", "--parallel", "2"}, top), QString());
        QCOMPARE(failureOf("make", makeLine({"all"}), myFolder.path("out").native()), QString());
    }

private:
    static QStringList makeLine(const QStringList& goals)
    {
        return QStringList{"-j2", "QX_DIR=" QX_SOURCE_DIR "/toolkit", "CXXFLAGS=-O0"} + goals;
    }

    void generate(DtArguments arguments)
    {
        arguments.insert(arguments.end(), {"-o", "out"});
        const DtProgramEnd end = myFolder.generate(arguments); // the large model has datatypes to warn of
        QVERIFY2(end.code == 0 && !contains(end.err, "error:"), end.err.c_str());
    }

    DtProgramFolder myFolder;
};

QX_REGISTER_TEST(TestQxgenBuild)
#include "testQxgenBuild.moc"
