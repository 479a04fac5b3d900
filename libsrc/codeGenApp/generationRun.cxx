#include "codeGenApp/generationRun.h"

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/namedScriptWriter.h"
#include "codeGenApp/treeEnvWriter.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtEnvironment.h"
#include "fileGenerator/omtProject.h"
#include "foundation/filePrinter.h"
#include "foundation/outputStream.h"
#include "foundation/restored.h"
#include "omtReader/omtTree.h"

#include <memory>

DtGenerationOptions DtGenerationOptions::of(const DtCodeGenInitializer& initializer)
{
    DtGenerationOptions options;
    options.namespaceName = initializer.namespaceName();
    options.includeName = initializer.includeName();
    options.prefixName = initializer.prefixName();
    options.generateExamples = initializer.generateExamples();
    options.generate64Bit = initializer.generate64Bit();
    options.generateErrors = initializer.generateErrors();
    options.generateDis = initializer.generateDis();
    options.dumpParseTree = initializer.dumpParseTree();
    options.mapRtiObjectIdToGlobalId = initializer.mapRtiObjIdToGlobalId();
    options.codeOpenArrays = initializer.codeOpenArrays();
    options.allDatatypes = initializer.allDatatypes();
    options.firstPduKind = initializer.firstPduKind();
    return options;
}

DtGenerationRun::DtGenerationRun(DtOMTTree& tree, DtOmtProject* project, const DtString& modelName,
                                 const DtGenerationOptions& options, DtCppLayout layout)
    : myTree(tree), myProject(project), myModelName(modelName), myOptions(options), myLayout(layout)
{
}

void DtGenerationRun::run(const DtString& script)
{
    if (isCpp(script))
        generateCpp();
    else
        generateScript(script);
}

void DtGenerationRun::generateCpp()
{
    const DtString top = DtFileWriter::outputDirectory();
    // The backslash belongs to the names of the generated files, also where it separates nothing.
    const DtString cppDirectory = myLayout == DtCppLayout::Classic ? top + "cpp\\" : top;
    const DtRestored<DtString> directory(DtSettings::instance().files.outputDirectory, cppDirectory);
    setUpWriters();
    if (myOptions.dumpParseTree)
        dumpParseTree(top); // ahead of the selection, which adds arrays to a tree of HLA 1.3
    const std::unique_ptr<DtOMTEnvWriter> writer(myLayout == DtCppLayout::Tree ? new DtTreeEnvWriter
                                                                               : new DtOMTEnvWriter);
    fill(*writer);
    writer->writeFile(myModelName);
}

void DtGenerationRun::generateScript(const DtString& commandFile)
{
    const DtRestored<DtString> directory(DtSettings::instance().files.outputDirectory);
    setUpWriters();
    DtNamedScriptWriter writer;
    fill(writer);
    writer.writeFile(myModelName, commandFile);
}

void DtGenerationRun::setUpWriters()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    if (myProject != nullptr)
        mapper.setPredefinedTypes(myProject->predefinedTypes());
    mapper.setMapRtiObjectIdToGlobalId(myOptions.mapRtiObjectIdToGlobalId);
    DtFileWriter::setHlaVersion(myTree.hlaVersion());
    DtFileWriter::setGenerate64Bit(myOptions.generate64Bit);
    DtFileWriter::setCodeOpenArrays(myOptions.codeOpenArrays);
    DtFileWriter::setAllDatatypes(myOptions.allDatatypes);
}

// Names, version and project come ahead of the selection, which asks for them.
template <typename Writer>
void DtGenerationRun::fill(Writer& writer)
{
    Writer::setNamespaceName(myOptions.namespaceName); // each road has its own
    Writer::setIncludeName(myOptions.includeName);
    Writer::setPrefixName(myOptions.prefixName);
    writer.setOmtTree(&myTree);
    writer.setHlaVersion(myTree.hlaVersion());
    writer.setOmtProject(myProject);
    if (myProject != nullptr)
    {
        writer.setObjectsToGenerate(myProject->getObjects());
        writer.setInteractionsToGenerate(myProject->getInteractions());
    }
    writer.setGenerateExamples(myOptions.generateExamples);
    writer.setGenerateErrors(myOptions.generateErrors);
    writer.setGenerateDis(myOptions.generateDis);
    writer.setFirstPduKind(myOptions.firstPduKind);
}

void DtGenerationRun::dumpParseTree(const DtString& directory) const
{
    DtFilePrinter printer((directory + "parsedFom.txt").c_str());
    int level = 3;
    DtOutputStreamBuffer buffer;
    DtOutputStream stream(&buffer, level, 0, &printer);
    DtOMTEnvironment environment;
    environment.populateFromOmtTree(&myTree);
    stream << environment << std::endl;
}
