#ifndef FILE_GENERATOR_SIMPLE_DATA_TYPE_FILE_WRITER_H
#define FILE_GENERATOR_SIMPLE_DATA_TYPE_FILE_WRITER_H

#include "fileGenerator/primitiveDataTypeFileWriter.h"

class DtSimpleDatatypeNode;

// Writes the class of a simple datatype.
class DtSimpleDataTypeFileWriter : public DtPrimitiveDataTypeFileWriter
{
public:
    DtSimpleDataTypeFileWriter(const DtString& fileName, const DtString& templateName);

    virtual void compileAttributes(DtSimpleDatatypeNode* node);
};

#endif
