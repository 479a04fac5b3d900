#ifndef TESTS_SCRIPT_RUN_H
#define TESTS_SCRIPT_RUN_H

// Runs of the program's scripts, and of Python on what they write.

#include "scratchProgram.h"

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>

// Leaves these scripts of the scratch configuration switched on, and no other.
inline void switchOnScripts(const DtScratchProgram& program, const QStringList& scripts)
{
    QByteArray list;
    for (const QString& script : scripts)
        list += "<var name=\"" + script.toUtf8() + "\" value=\"true\"/>";
    const QString name = program.path("data/config/codeGenConfig.xml");
    QString text = QString::fromUtf8(readTextFile(name));
    text.replace(QRegularExpression("<scripts>.*</scripts>", QRegularExpression::DotMatchesEverythingOption),
                 "<scripts>" + list + "</scripts>");
    writeTextFile(name, text.toUtf8());
}

inline std::vector<DtString> copiedModels(const DtScratchProgram& program, const QStringList& files)
{
    std::vector<DtString> models;
    for (const QString& file : files)
        models.push_back(program.copiedModel(file));
    return models;
}

struct DtPythonRun
{
    int exitCode = -1;
    QString output; // both streams

    bool isGood() const { return exitCode == 0; }
};

inline bool hasPython()
{
    return !QStandardPaths::findExecutable("python3").isEmpty();
}

// Why a test is skipped where there is none.
const char theMissingPython[] = "python3 is not installed: what is written for it is not tried.";

inline DtPythonRun runPython(const QString& directory, const QStringList& arguments,
                             const QByteArray& input = QByteArray())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PYTHONIOENCODING", "utf-8");
    environment.insert("PYTHONDONTWRITEBYTECODE", "1");
    environment.insert("PYTHONPATH", directory);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("python3", arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(600000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, "python3 did not end: " + QString::fromUtf8(process.readAll().left(4000))};
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

#endif
