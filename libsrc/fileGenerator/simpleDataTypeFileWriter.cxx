#include "fileGenerator/simpleDataTypeFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/documentation.h"
#include "foundation/perRun.h"
#include "omtReader/simpleDatatypeNode.h"

static DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, class DtSimpleDataTypeFileWriter>();
}

DtSimpleDataTypeFileWriter::DtSimpleDataTypeFileWriter(const DtString& fileName, const DtString& templateName)
    : DtPrimitiveDataTypeFileWriter(fileName, templateName, names())
{
}

void DtSimpleDataTypeFileWriter::compileAttributes(DtSimpleDatatypeNode* node)
{
    compilePrimitive(node, node->getRepresentation(), DtDocumentation::instance().of(*node));
}
