#ifndef TESTS_COMPILED_OUTPUT_H
#define TESTS_COMPILED_OUTPUT_H

// Compiles what a run has written, against the stand-in toolkit.

#include "scratchProgram.h"

#include <QtCore/QProcess>

// What takes minutes is left to the runs that ask for it.
inline bool isFullRun()
{
    return qEnvironmentVariableIsSet("QX_FULL");
}

// Why a test is skipped in the other runs.
const char theFullRunOnly[] = "Left to the full run, which sets QX_FULL.";

// One test row for each compiler; the column "compiler" holds its name.
inline void addCompilers()
{
    QTest::addColumn<QString>("compiler");
    for (const char* compiler : {"g++", "clang++"})
        QTest::newRow(compiler) << QString::fromLatin1(compiler);
}

inline bool isLeftToFullRun(const QString& compiler)
{
    return compiler != "g++" && !isFullRun();
}

// Runs the generated makefile and gives what it printed.
inline QString make(const QString& directory)
{
    QProcess process;
    process.setWorkingDirectory(directory);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("make", {"-j2", "-f", "cpp\\Makefile", "QX_DIR=" QX_SOURCE_DIR "/toolkit", "CXXFLAGS=-O0"});
    if (!process.waitForFinished(900000) || process.exitCode() != 0)
        return "make failed: " + QString::fromUtf8(process.readAll().right(2000));
    return QString::fromUtf8(process.readAll());
}

// The generated files without the prefix of their names, as links in a scratch directory.
inline QStringList layOut(const QString& output, const QString& directory)
{
    QStringList names;
    for (const QString& file : filesBelow(output))
    {
        const QString name = QString(file).remove(QStringLiteral("cpp\\"));
        QDir().mkpath(QFileInfo(directory + "/" + name).path());
        QFile::link(output + "/" + file, directory + "/" + name);
        if (name.endsWith(".h") || name.endsWith(".cxx"))
            names += name;
    }
    return names;
}

// One unit that includes all files, and behind them the examples, each in a namespace of its own.
inline QByteArray joinedUnit(const QStringList& names)
{
    QByteArray files = "#include <qx/exerciseConn.h>\n#include <qx/sampleValue.h>\n#include <chrono>\n"
                       "#include <cstdlib>\n#include <iostream>\n#include <string>\n#include <thread>\n";
    QByteArray examples;
    for (const QString& name : names)
    {
        const QByteArray include = "#include \"" + name.toUtf8() + "\"\n";
        if (name.startsWith("Examples/"))
            examples += "namespace example" + QByteArray::number(examples.size()) +
                        "\n{\n#define main mainOfExample\n" + include + "#undef main\n}\n";
        else
            files += include;
    }
    return files + examples;
}

// Compiles all generated files as one translation unit.
inline QString compileAll(const QString& output, const QString& standard, const QString& includeDirectory, int& count,
                          const QString& compiler)
{
    QTemporaryDir stage;
    const QStringList names = layOut(output, stage.path());
    count += names.size();
    writeTextFile(stage.path() + "/all.cpp", joinedUnit(names));
    QProcess process;
    process.setWorkingDirectory(stage.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(compiler, {"-fsyntax-only", "-Wall", "-Wextra", "-Werror", "-std=" + standard, "-I.",
                             "-I" + includeDirectory, "-I" QX_SOURCE_DIR "/toolkit/include", "all.cpp"});
    if (!process.waitForFinished(300000) || process.exitStatus() != QProcess::NormalExit)
        return compiler + " did not end";
    return process.exitCode() == 0 ? QString() : QString::fromUtf8(process.readAll().left(4000));
}

inline void checkCompiles(const QString& output, const QString& compiler,
                          const QString& includeDirectory = QStringLiteral("."))
{
    for (const char* standard : {"c++17", "c++11"})
    {
        int count = 0;
        const QString errors = compileAll(output, QString::fromLatin1(standard), includeDirectory, count, compiler);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        qInfo("%d files compile as %s", count, standard);
        QVERIFY(count > 100);
    }
}

#endif
