// Used datatypes and made-up arrays of DtOMTEnvWriter.

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/datatypeClosure.h"
#include "fileGenerator/omtEnvWriter.h"

DtDatatypeClosure DtOMTEnvWriter::closure()
{
    return DtDatatypeClosure(myTree, myUsedDatatypes, names());
}

void DtOMTEnvWriter::checkUsedSubDatatypesFiles()
{
    tree();
    closure().complete(myObjectsToGenerate, myInteractionsToGenerate);
}

void DtOMTEnvWriter::checkObjectsForArrayTypes()
{
    closure().makeArraysOf(myObjectsToGenerate);
}

void DtOMTEnvWriter::checkInteractionsForArrayTypes()
{
    closure().makeArraysOf(myInteractionsToGenerate);
}

void DtOMTEnvWriter::checkComplexForArrayType(DtComplexDatatypeNode* node)
{
    closure().makeArraysOf(*node);
}

void DtOMTEnvWriter::createArrayTypeFromComponent(DtComplexComponentNode* component)
{
    closure().makeArrayOf(*component);
}

DtString DtOMTEnvWriter::createArrayTypeFromItemInfo(DtString itemName, DtString cardinality,
                                                     DtDatatypeFedNode::DtCardinalityType type, DtString datatype)
{
    return closure().makeArrayOf(itemName, cardinality, type, datatype);
}

DtString DtOMTEnvWriter::componentArrayName(const DtComplexComponentNode& component)
{
    return DtDatatypeClosure::arrayNameOf(component, names());
}
