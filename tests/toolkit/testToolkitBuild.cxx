// The headers by themselves, and the two ways to build the library.

#include "registerTest.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace
{
const QString theToolkit = QStringLiteral(QX_SOURCE_DIR "/toolkit");

QString run(const QString& program, const QStringList& arguments, int& exitCode)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    exitCode = process.waitForFinished(240000) ? process.exitCode() : -1;
    return QString::fromUtf8(process.readAll());
}

QString make(const QStringList& arguments, int& exitCode)
{
    return run("make", QStringList{"-C", theToolkit} + arguments, exitCode);
}

QStringList sources()
{
    return QDir(theToolkit + "/src").entryList({"*.cxx"}, QDir::Files, QDir::Name);
}

void writeUnit(const QString& name)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (const char* folder : {"qx/", "qx/packets/"})
        for (const QString& header :
             QDir(theToolkit + "/include/" + folder).entryList({"*.h"}, QDir::Files, QDir::Name))
            file.write("#include <" + QByteArray(folder) + header.toUtf8() + ">\n");
}
} // namespace

class TestToolkitBuild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headersCompileWithTheOldestStandard();
    void headersOfGeneratedCodeLeaveLargeOnesOut_data();
    void headersOfGeneratedCodeLeaveLargeOnesOut();
    void everyHeaderStandsAlone();
    void bothBuildsNameEverySource();
    void makeBuildsOnceIntoTheDirectoryThatIsGiven();
};

void TestToolkitBuild::headersCompileWithTheOldestStandard()
{
    const QTemporaryDir directory;
    writeUnit(directory.filePath("all.cpp"));
    int exitCode = 0;
    const QString said = run("g++",
                             {"-fsyntax-only", "-std=c++11", "-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Werror",
                              "-I" + theToolkit + "/include", directory.filePath("all.cpp")},
                             exitCode);
    QVERIFY2(exitCode == 0, qPrintable(said));
}

void TestToolkitBuild::headersOfGeneratedCodeLeaveLargeOnesOut_data()
{
    // Headers of the standard library that cost more to read than all of the toolkit's; a hundred generated files
    // include each of these.
    const QStringList streams = {"deque", "functional", "iostream", "ostream", "sstream"};
    const QStringList values = streams + QStringList{"map", "memory", "set"};
    QTest::addColumn<QStringList>("leftOut");
    QTest::newRow("valueTypes.h") << values;
    QTest::newRow("stateRepository.h") << values;
    QTest::newRow("opaqueValue.h") << values;
    QTest::newRow("wireFormat.h") << values;
    QTest::newRow("valueText.h") << values;
    QTest::newRow("hlaStateEncoder.h") << streams;
    QTest::newRow("hlaPublisherBase.h") << streams;
    QTest::newRow("hlaReflectedList.h") << streams;
    QTest::newRow("interactionWithEncDec.h") << streams;
    QTest::newRow("exerciseConn.h") << streams;
}

void TestToolkitBuild::headersOfGeneratedCodeLeaveLargeOnesOut()
{
    QFETCH(QStringList, leftOut);
    const QTemporaryDir directory;
    QFile file(directory.filePath("one.cpp"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#include <qx/" + QByteArray(QTest::currentDataTag()) + ">\n");
    file.close();
    int exitCode = 0;
    const QString said = run("g++", {"-M", "-std=c++11", "-I" + theToolkit + "/include", file.fileName()}, exitCode);
    QCOMPARE(exitCode, 0);
    const QStringList read = said.split(QRegularExpression("\\s"));
    QVERIFY(!read.filter(QRegularExpression("/string$")).isEmpty());
    for (const QString& header : leftOut)
        QVERIFY2(read.filter(QRegularExpression("/" + header + "$")).isEmpty(), qPrintable(header));
}

void TestToolkitBuild::everyHeaderStandsAlone()
{
    if (!qEnvironmentVariableIsSet("QX_FULL"))
        QSKIP("Left to the full run, which sets QX_FULL.");
    for (const QString& header : QDir(theToolkit + "/include/qx").entryList({"*.h"}, QDir::Files, QDir::Name))
    {
        int exitCode = 0;
        const QString said = run("g++",
                                 {"-fsyntax-only", "-std=c++11", "-x", "c++", "-I" + theToolkit + "/include",
                                  theToolkit + "/include/qx/" + header},
                                 exitCode);
        QVERIFY2(exitCode == 0 && !said.contains("error"), qPrintable(said));
    }
}

void TestToolkitBuild::bothBuildsNameEverySource()
{
    const QTemporaryDir directory;
    int exitCode = 0;
    const QString plan = make({"-n", "BUILD_DIR=" + directory.path()}, exitCode);
    QCOMPARE(exitCode, 0);
    QFile list(theToolkit + "/CMakeLists.txt");
    QVERIFY(list.open(QIODevice::ReadOnly));
    const QString cmake = QString::fromUtf8(list.readAll());
    QVERIFY(sources().size() > 5);
    for (const QString& source : sources())
    {
        QVERIFY2(plan.contains("-c src/" + source + " "), qPrintable(source));
        QVERIFY2(cmake.contains("    src/" + source + "\n"), qPrintable(source));
    }
}

void TestToolkitBuild::makeBuildsOnceIntoTheDirectoryThatIsGiven()
{
    if (!qEnvironmentVariableIsSet("QX_FULL"))
        QSKIP("Left to the full run, which sets QX_FULL.");
    for (const char* compiler : {"g++", "clang++"})
    {
        const QTemporaryDir directory;
        const QStringList arguments = {"-j2", "CXXFLAGS=-O0 -Werror", QString("CXX=") + compiler,
                                       "BUILD_DIR=" + directory.path()};
        int exitCode = 0;
        const QString first = make(arguments, exitCode);
        QVERIFY2(exitCode == 0, qPrintable(first));
        QVERIFY(QFile::exists(directory.filePath("libqxToolkit.a")));
        const QString second = make(arguments, exitCode);
        QVERIFY2(exitCode == 0 && !second.contains("compile") && !second.contains("archive"), qPrintable(second));
    }
}

QX_REGISTER_TEST(TestToolkitBuild)
#include "testToolkitBuild.moc"
