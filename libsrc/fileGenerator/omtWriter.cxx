#include "fileGenerator/omtWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/datatypeBoundaries.h"
#include "fileGenerator/datatypeClosure.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/omtProject.h"
#include "foundation/exception.h"
#include "foundation/filename.h"
#include "foundation/perRun.h"
#include "omtReader/omtTree.h"

DtOMTWriter::DtOMTWriter() = default;

DtOMTWriter::~DtOMTWriter() = default;

DtCCompatibleNames& DtOMTWriter::names()
{
    return DtPerRun<DtCCompatibleNames, DtOMTWriter>();
}

DtString DtOMTWriter::identifierOf(const DtString& name)
{
    return names().MakeCCompatibleString(name);
}

DtOMTTree& DtOMTWriter::tree() const
{
    if (myTree == nullptr)
        DT_THROW("setOmtTree() must be called before the model is used");
    return *myTree;
}

bool DtOMTWriter::writeFile(const DtString& fomName, const DtString& commandFile)
{
    tree();
    settings().fomDefinitionFileName = fomName;
    myUsedDatatypes.clear();
    if (myHlaVersion == DtHla13)
        closure().insertAllArrays();
    const DtString projectBase = myProject != nullptr ? myProject->baseName() : DtString();
    settings().baseName = projectBase.isEmpty() ? fomName : projectBase;
    checkUsedSubDatatypesFiles();
    warnOfByteOrders(tree());
    myNextPduKind = myFirstPduKind;
    execCmdFile(DtFilename(commandFile).isAbsolute() ? commandFile : "../data/" + commandFile);
    return true;
}

DtDatatypeClosure DtOMTWriter::closure()
{
    return DtDatatypeClosure(myTree, myUsedDatatypes, names());
}

void DtOMTWriter::checkUsedSubDatatypesFiles()
{
    tree();
    closure().complete(myObjectsToGenerate, myInteractionsToGenerate);
}

void DtOMTWriter::checkObjectsForArrayTypes()
{
    closure().makeArraysOf(myObjectsToGenerate);
}

void DtOMTWriter::checkInteractionsForArrayTypes()
{
    closure().makeArraysOf(myInteractionsToGenerate);
}

void DtOMTWriter::checkComplexForArrayType(DtComplexDatatypeNode* node)
{
    closure().makeArraysOf(*node);
}

void DtOMTWriter::createArrayTypeFromComponent(DtComplexComponentNode* component)
{
    closure().makeArrayOf(*component);
}

DtString DtOMTWriter::createArrayTypeFromItemInfo(DtString itemName, DtString cardinality,
                                                  DtDatatypeFedNode::DtCardinalityType type, DtString datatype)
{
    return closure().makeArrayOf(itemName, cardinality, type, datatype);
}

void DtOMTWriter::addToFileList(const DtString& name)
{
    myFileList.insert(name);
}

void DtOMTWriter::setOmtTree(DtOMTTree* tree)
{
    myTree = tree;
}

void DtOMTWriter::setObjectsToGenerate(const std::set<DtOmtObject>& objects)
{
    myObjectsToGenerate = objects;
    if (myHlaVersion == DtHla13)
        checkObjectsForArrayTypes();
}

void DtOMTWriter::setInteractionsToGenerate(const std::set<DtOmtInteraction>& interactions)
{
    myInteractionsToGenerate = interactions;
    if (myHlaVersion == DtHla13)
        checkInteractionsForArrayTypes();
}

void DtOMTWriter::setGenerateExamples(bool generate)
{
    myGenerateExamples = generate;
}

void DtOMTWriter::setGenerateErrors(bool generate)
{
    DtFileWriter::setGenerateErrors(generate);
}

void DtOMTWriter::setGenerateDis(bool generate)
{
    myGenerateDis = generate;
}

void DtOMTWriter::setFirstPduKind(int kind)
{
    myFirstPduKind = kind;
}

void DtOMTWriter::setOmtProject(DtOmtProject* project)
{
    myProject = project;
}

void DtOMTWriter::setHlaVersion(DtHLAProtocolVersion version)
{
    myHlaVersion = version;
}
