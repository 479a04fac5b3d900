#ifndef TESTS_SCRATCH_PROGRAM_H
#define TESTS_SCRATCH_PROGRAM_H

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtEnvWriter.h"
#include "scratchData.h"

#include <QtWidgets/QtWidgets>

#include <functional>
#include <memory>
#include <vector>

// A copy of the program's data with a sibling "bin", which is the working directory while this lives: one that the
// tests of a class share, or one of its own for a test that changes them.
//
// Models and output go beside them: model() copies a model there, so that its project is written there too. The
// class-wide settings of the writers and the mapper's tables are put back.
class DtScratchProgram
{
public:
    explicit DtScratchProgram(const DtScratchTree& shared) : myData(shared) {}
    DtScratchProgram() : myData(QStringList("")) {}
    ~DtScratchProgram()
    {
        DtSettings::instance() = DtSettings(); // the window under test has set them, as at the start of a program
        DtDataTypeMapper::instance()->clearMappings();
    }

    QString path(const char* name) const { return myData.path(name); }
    DtString bytes(const QString& name) const { return name.toUtf8().constData(); }

    // Writes a model of this text, or copies one, into "models/".
    DtString model(const char* name, const QByteArray& text) const
    {
        const QString file = path("models/") + QString::fromLatin1(name);
        writeTextFile(file, text);
        return bytes(file);
    }
    DtString copiedModel(const QString& file) const
    {
        return model(QFileInfo(file).fileName().toLatin1().constData(), readTextFile(file));
    }
    DtString sampleModel() const { return copiedModel(QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml")); }

    // A window on the configuration of the scratch copy, which may be changed first; unattended.
    std::unique_ptr<DtCodeGenAppGui> makeWindow(const std::function<void(DtCodeGenInitializer&)>& change = {})
    {
        myInitializers.push_back(std::make_unique<DtCodeGenInitializer>());
        initializer().parseConfigFile("../data/config/codeGenConfig.xml");
        if (change)
            change(initializer());
        auto window = std::make_unique<DtCodeGenAppGui>(initializer(), qApp, nullptr);
        window->setUnattended(true);
        return window;
    }
    DtCodeGenInitializer& initializer() { return *myInitializers.back(); } // of the newest window

private:
    DtScratchData myData;
    std::vector<std::unique_ptr<DtCodeGenInitializer>> myInitializers; // each as long as its window may live
};

// Does what a batch run with --all does, into "out/".
inline std::unique_ptr<DtCodeGenAppGui> runBatch(DtScratchProgram& program, const std::vector<DtString>& models)
{
    std::unique_ptr<DtCodeGenAppGui> window = program.makeWindow();
    DtFilename project(models.front());
    project.setExtension("qxproj");
    window->newOmtProject(project);
    std::vector<DtCodeGenAppGui::DtModelFile> files;
    for (const DtString& model : models)
        files.emplace_back(model, "");
    const int isLoaded = files.size() == 1 ? window->loadFile(models.front(), "") : window->loadFiles(files);
    if (isLoaded == 0)
        return window;
    window->addAllObjectInteractions();
    window->setOutputDirectory(program.path("out/"));
    window->generateAllFiles();
    return window;
}

// The six modules of the large model, in merge order; empty when they are not there.
inline QStringList largeModel()
{
    QStringList files;
    for (const char* module : {"Foundation", "Enumerations", "Base", "Physical", "Warfare", "Switches"})
    {
        const QString file =
            QStringLiteral(QX_SHARED_DIR "/models/1516-2010/rpr2/RPR-%1_v2.0.xml").arg(QString::fromLatin1(module));
        if (!QFile::exists(file))
            return {};
        files += file;
    }
    return files;
}

#endif
