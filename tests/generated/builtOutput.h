#ifndef TESTS_BUILT_OUTPUT_H
#define TESTS_BUILT_OUTPUT_H

// What the unseen window generates from a model, where it lies, and the generated makefiles run on it.

#include "stagedSample.h"

#include "fileGenerator/omtProject.h"

// Settings and a selection; without classes everything is selected.
struct DtRunChoice
{
    bool dis = false;
    bool standardMim = false;
    bool bits64 = true;
    const char* includeDirectory = "";
    std::vector<const char*> objects = {}; // full names
    std::vector<const char*> interactions = {};
    const char* renamedObject = ""; // of the selected ones, and its other name
    const char* rename = "";
};

// One run with examples, into a directory with a blank in its name.
class DtBuiltOutput
{
public:
    explicit DtBuiltOutput(const DtRunChoice& choice) : myChoice(choice) {}

    // Of models in the scratch directory of program().
    void generate(const std::vector<DtString>& models)
    {
        const auto window = myProgram.makeWindow([this](DtCodeGenInitializer& initializer) { adjust(initializer); });
        DtFilename project(models.front()); // its name is the base name
        project.setExtension("qxproj");
        window->newOmtProject(project);
        std::vector<DtCodeGenAppGui::DtModelFile> files;
        for (const DtString& model : models)
            files.emplace_back(model, "");
        QVERIFY(files.size() == 1 ? window->loadFile(models.front(), "") : window->loadFiles(files));
        select(*window);
        window->setOutputDirectory(path() + "/");
        window->generateAllFiles();
    }

    DtScratchProgram& program() { return myProgram; }
    QString path() const { return myProgram.path("my output"); }
    QString path(const QString& name) const { return path() + "/" + name; }
    QByteArray text(const QString& name) const { return readTextFile(path(name)); }

    // Runs the makefile of the directory; in that of the libraries its name begins as those of all files do.
    DtProgramRun make(const QStringList& arguments, const QString& directory = QString(),
                      const QString& toolkit = QStringLiteral(QX_SOURCE_DIR "/toolkit")) const
    {
        QStringList all{"-j2", "CXXFLAGS=-O0 -Wall -Wextra -Werror"};
        if (directory.isEmpty())
            all += {"-f", "cpp\\Makefile"};
        if (!toolkit.isEmpty())
            all += "QX_DIR=" + toolkit;
        return runMake(directory.isEmpty() ? path() : path(directory), all + arguments);
    }

private:
    // The large model takes its time.
    static DtProgramRun runMake(const QString& directory, const QStringList& arguments)
    {
        QProcess process;
        process.setWorkingDirectory(directory);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start("make", arguments);
        if (!process.waitForFinished(3600000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, "make did not end: " + QString::fromUtf8(process.readAll().right(4000))};
        return {process.exitCode(), QString::fromUtf8(process.readAll())};
    }

    void adjust(DtCodeGenInitializer& initializer) const
    {
        initializer.setGenerateExamples(true);
        initializer.setGenerateDis(myChoice.dis);
        initializer.setIncludeStandardMIM(myChoice.standardMim);
        initializer.setGenerate64Bit(myChoice.bits64);
        initializer.setIncludeName(myChoice.includeDirectory);
    }
    void select(DtCodeGenAppGui& window) const
    {
        if (myChoice.objects.empty() && myChoice.interactions.empty())
            return window.addAllObjectInteractions();
        for (const char* object : myChoice.objects)
        {
            const bool isRenamed = DtString(object) == myChoice.renamedObject;
            window.omtProject()->addObject(object, isRenamed, isRenamed ? myChoice.rename : "");
        }
        for (const char* interaction : myChoice.interactions)
            window.omtProject()->addInteraction(interaction, false, "");
    }

    DtScratchProgram myProgram;
    DtRunChoice myChoice;
};

#endif
