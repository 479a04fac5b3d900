#include "fileGenerator/simpleDataTypeFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "omtReader/simpleDatatypeNode.h"

static DtCCompatibleNames theNames;

DtSimpleDataTypeFileWriter::DtSimpleDataTypeFileWriter(const DtString& fileName, const DtString& templateName)
    : DtPrimitiveDataTypeFileWriter(fileName, templateName, theNames)
{
}

void DtSimpleDataTypeFileWriter::compileAttributes(DtSimpleDatatypeNode* node)
{
    compilePrimitive(node, node->getRepresentation());
}
