#ifndef TESTS_STAGED_SAMPLE_H
#define TESTS_STAGED_SAMPLE_H

// What the unseen window generates from a model, laid out for a compiler, and programs that are compiled with it.

#include "codeGenApp/scratchProgram.h"
#include "fileGenerator/omtProject.h"
#include "toolkitObjects.h"

#include <QtCore/QProcess>

struct DtProgramRun
{
    int exitCode = -1;
    QString output; // both streams; of the compiler when it failed
};

inline DtProgramRun runProgram(const QString& directory, const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(directory);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(600000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, program + " did not end: " + QString::fromUtf8(process.readAll().left(4000))};
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

// The files of one run without the first part of their names, and a scratch directory around them.
class DtStagedOutput
{
public:
    // Generates everything of a model of this text, alone; without one, of the sample model with the standard one.
    explicit DtStagedOutput(const QByteArray& modelText) { stage({myProgram.model("model.xml", modelText)}, false); }
    DtStagedOutput() { stage({myProgram.sampleModel()}, true); }
    // Of a model of this text, in a project that does not take this datatype for a ready-made type.
    DtStagedOutput(const QByteArray& modelText, const char* unmapped) : myUnmapped(unmapped)
    {
        stage({myProgram.model("model.xml", modelText)}, false);
    }
    // Of a model of this text, with this key of the configuration on.
    static std::unique_ptr<DtStagedOutput> withKey(const QByteArray& modelText, const char* key)
    {
        std::unique_ptr<DtStagedOutput> output(new DtStagedOutput(nullptr, key));
        output->stage({output->myProgram.model("model.xml", modelText)}, false);
        return output;
    }
    // What a window has written to this directory.
    explicit DtStagedOutput(const QString& written) { layOut(written); }
    // Of modules in this order, with the standard model.
    explicit DtStagedOutput(const QStringList& modules)
    {
        std::vector<DtString> models;
        for (const QString& module : modules)
            models.push_back(myProgram.copiedModel(module));
        stage(models, true);
    }

    QString path() const { return myStage.path(); }
    QString warnings() const { return myWarnings; }
    // Names that match, sorted.
    QStringList files(const QString& pattern) const
    {
        return filesBelow(path()).filter(QRegularExpression("^(" + pattern + ")$"));
    }
    QByteArray text(const QString& name) const { return readTextFile(path() + "/" + name); }

    // Compiles these files and the given text as one unit; without a program only for errors.
    QString compile(const QStringList& sources, const QByteArray& further, const QStringList& options,
                    const QString& program = QString()) const
    {
        QByteArray unit;
        for (const QString& source : sources)
            unit += "#include \"" + source.toUtf8() + "\"\n";
        writeTextFile(path() + "/unit.cpp", unit + further);
        const QStringList target = program.isEmpty() ? QStringList{"-fsyntax-only"} : QStringList{"-o", program};
        const DtProgramRun run =
            runProgram(path(), "g++",
                       QStringList{"-Wall", "-Wextra", "-Werror", "-I.", "-I" QX_SOURCE_DIR "/toolkit/include",
                                   "-I" QX_SOURCE_DIR "/tests/generated", "unit.cpp"} +
                           options + target);
        return run.exitCode == 0 ? QString() : run.output.left(4000);
    }

private:
    DtStagedOutput(std::nullptr_t, const char* key) : myKey(key) {}

    void stage(const std::vector<DtString>& models, bool standardMim)
    {
        const DtCapture warnings(DtWarn);
        generate(models, standardMim);
        myWarnings = warnings.text();
        layOut(myProgram.path("out"));
    }

    void layOut(const QString& written)
    {
        for (const QString& file : filesBelow(written))
        {
            const QString target = path() + "/" + QString(file).remove(QStringLiteral("cpp\\"));
            QDir().mkpath(QFileInfo(target).path());
            QFile::copy(written + "/" + file, target);
        }
    }

    void generate(const std::vector<DtString>& models, bool standardMim)
    {
        const auto window = myProgram.makeWindow(
            [standardMim, this](DtCodeGenInitializer& initializer)
            {
                if (!myKey.isEmpty())
                    initializer.setVariableValue(myKey, "true");
                initializer.applySettings(); // ahead of the others, some of which are not stored
                initializer.setGenerateExamples(false);
                initializer.setIncludeStandardMIM(standardMim);
            });
        window->newOmtProject(DtFilename(myProgram.bytes(myProgram.path("models/model.qxproj"))));
        std::map<DtString, DtString> types = window->omtProject()->predefinedTypes();
        types.erase(myUnmapped);
        window->omtProject()->setPredefinedType(types);
        std::vector<DtCodeGenAppGui::DtModelFile> files;
        for (const DtString& model : models)
            files.emplace_back(model, "");
        QVERIFY(files.size() == 1 ? window->loadFile(models.front(), "") : window->loadFiles(files));
        window->addAllObjectInteractions();
        window->setOutputDirectory(myProgram.path("out/"));
        window->generateAllFiles();
    }

    DtScratchProgram myProgram;
    QTemporaryDir myStage;
    DtString myUnmapped;
    DtString myKey;
    QString myWarnings; // of loading and generating
};

#endif
