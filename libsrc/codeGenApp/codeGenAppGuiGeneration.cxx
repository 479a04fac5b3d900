// Starting generation.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/omtEnvironment.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/qtProgressMeter.h"
#include "foundation/filePrinter.h"
#include "foundation/outputStream.h"
#include "omtReader/omtTree.h"

#include <QtWidgets/QApplication>

namespace
{
// Another output directory, and a progress meter, for as long as a script runs.
class DtScriptRun
{
public:
    DtScriptRun(const DtString& directory, QApplication* application, QWidget* parent)
        : myOldDirectory(DtFileWriter::outputDirectory())
    {
        DtFileWriter::setOutputDirectory(directory);
        DtQtProgressMeter::instance()->init(application, parent);
    }
    ~DtScriptRun()
    {
        DtFileWriter::setOutputDirectory(myOldDirectory);
        DtQtProgressMeter::instance()->reset();
    }
    DtScriptRun(const DtScriptRun&) = delete;
    DtScriptRun& operator=(const DtScriptRun&) = delete;

private:
    DtString myOldDirectory;
};
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
    for (const auto& [script, isWanted] : scripts)
    {
        if (!isWanted)
            continue;
        if (script == "genCpp.txt")
            generateCppFiles();
        else
            generateFile(script);
    }
}

void DtCodeGenAppGui::generateCppFiles()
{
    // The backslash belongs to the names of the generated files, also where it separates nothing.
    const DtScriptRun run(DtFileWriter::outputDirectory() + "cpp\\", myApplication, this);
    setUpWriters();
    if (myPreferences->dumpParseTree())
        dumpParseTree();
    runCppWriter();
}

void DtCodeGenAppGui::setUpWriters()
{
    if (myProject != nullptr)
        DtDataTypeMapper::instance()->setPredefinedTypes(myProject->predefinedTypes());
    DtDataTypeMapper::instance()->setMapRtiObjectIdToGlobalId(myPreferences->mapRtiObjectIdToGlobalId());
    DtOMTEnvWriter::setNamespaceName(myPreferences->namespaceName());
    DtOMTEnvWriter::setIncludeName(myPreferences->includeName());
    DtOMTEnvWriter::setPrefixName(myPreferences->prefixName());
    DtFileWriter::setHlaVersion(myTree->hlaVersion());
    DtFileWriter::setGenerate64Bit(myPreferences->generate64Bit());
}

void DtCodeGenAppGui::runCppWriter()
{
    DtOMTEnvWriter writer;
    writer.setOmtTree(myTree.get());
    writer.setHlaVersion(myTree->hlaVersion());
    writer.setOmtProject(myProject.get());
    if (myProject != nullptr)
    {
        writer.setObjectsToGenerate(myProject->getObjects());
        writer.setInteractionsToGenerate(myProject->getInteractions());
    }
    writer.setGenerateExamples(myPreferences->generateExamples());
    writer.setGenerateErrors(myPreferences->generateErrors());
    writer.setGenerateDis(myPreferences->generateDis());
    writer.setFirstPduKind(myPreferences->firstPduKind());
    writer.writeFile(myFileName);
}

void DtCodeGenAppGui::generateFile(const DtString& script)
{
    DtWarn << "Script " << script << " is ignored: only genCpp.txt can be run." << std::endl;
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
