// Starting generation.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/omtEnvironment.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/omtWriter.h"
#include "fileGenerator/qtProgressMeter.h"
#include "foundation/filePrinter.h"
#include "foundation/outputStream.h"
#include "foundation/restored.h"
#include "omtReader/omtTree.h"

#include <QtWidgets/QApplication>

#include <algorithm>

namespace
{
// A progress meter for as long as a script runs.
class DtScriptRun
{
public:
    DtScriptRun(const DtString& directory, QApplication* application, QWidget* parent)
        : myDirectory(DtSettings::instance().files.outputDirectory, directory)
    {
        DtQtProgressMeter::instance()->init(application, parent);
    }
    ~DtScriptRun() { DtQtProgressMeter::instance()->reset(); }
    DtScriptRun(const DtScriptRun&) = delete;
    DtScriptRun& operator=(const DtScriptRun&) = delete;

private:
    const DtRestored<DtString> myDirectory;
};

// The class-wide settings of one road's writer; each road has its own.
template <typename Writer>
void setNames(const DtPreferencesDialog& preferences)
{
    Writer::setNamespaceName(preferences.namespaceName());
    Writer::setIncludeName(preferences.includeName());
    Writer::setPrefixName(preferences.prefixName());
}

// What both roads hand to their writer. Version and project come ahead of the selection, which asks for them.
template <typename Writer>
void fillWriter(Writer& writer, DtOMTTree* tree, DtOmtProject* project, const DtPreferencesDialog& preferences)
{
    writer.setOmtTree(tree);
    writer.setHlaVersion(tree->hlaVersion());
    writer.setOmtProject(project);
    if (project != nullptr)
    {
        writer.setObjectsToGenerate(project->getObjects());
        writer.setInteractionsToGenerate(project->getInteractions());
    }
    writer.setGenerateExamples(preferences.generateExamples());
    writer.setGenerateErrors(preferences.generateErrors());
    writer.setGenerateDis(preferences.generateDis());
    writer.setFirstPduKind(preferences.firstPduKind());
}
} // namespace

void DtCodeGenAppGui::generateAllFiles()
{
    if (!myFileLoaded || myTree == nullptr)
    {
        showStatus("No file loaded... Cannot generate files.");
        return;
    }
    if (myOutputDir.isEmpty() && !setOutputDirectory())
        return;
    saveOmtProject();
    const std::map<DtString, bool> scripts = myPreferences->generateScripts();
    if (std::none_of(scripts.begin(), scripts.end(), [](const auto& script) { return script.second; }))
        showStatus("No script is switched on... Nothing to generate.");
    for (const auto& [script, isWanted] : scripts)
    {
        if (!isWanted)
            continue;
        if (script == "genCpp.txt")
            generateCppFiles();
        else
            generateFile(script);
        if (DtQtProgressMeter::instance()->isCancelled())
            return; // the next script would begin with a meter that knows nothing of it
    }
}

void DtCodeGenAppGui::generateCppFiles()
{
    // The backslash belongs to the names of the generated files, also where it separates nothing.
    const DtScriptRun run(DtFileWriter::outputDirectory() + "cpp\\", myApplication, this);
    setUpWriters();
    setNames<DtOMTEnvWriter>(*myPreferences);
    if (myPreferences->dumpParseTree())
        dumpParseTree();
    runCppWriter();
}

void DtCodeGenAppGui::setUpWriters()
{
    if (myProject != nullptr)
        DtDataTypeMapper::instance()->setPredefinedTypes(myProject->predefinedTypes());
    DtDataTypeMapper::instance()->setMapRtiObjectIdToGlobalId(myPreferences->mapRtiObjectIdToGlobalId());
    DtFileWriter::setHlaVersion(myTree->hlaVersion());
    DtFileWriter::setGenerate64Bit(myPreferences->generate64Bit());
}

void DtCodeGenAppGui::runCppWriter()
{
    DtOMTEnvWriter writer;
    fillWriter(writer, myTree.get(), myProject.get(), *myPreferences);
    writer.writeFile(myFileName);
}

void DtCodeGenAppGui::generateFile(const DtString& script)
{
    const DtScriptRun run(DtFileWriter::outputDirectory(), myApplication, this);
    setUpWriters();
    setNames<DtOMTWriter>(*myPreferences);
    DtOMTWriter writer;
    fillWriter(writer, myTree.get(), myProject.get(), *myPreferences);
    writer.writeFile(myFileName, script);
}

void DtCodeGenAppGui::dumpParseTree()
{
    DtFilePrinter printer((myOutputDir + "parsedFom.txt").c_str());
    int level = 3;
    DtOutputStreamBuffer buffer;
    DtOutputStream stream(&buffer, level, 0, &printer);
    DtOMTEnvironment environment;
    environment.populateFromOmtTree(myTree.get());
    stream << environment << std::endl;
}
