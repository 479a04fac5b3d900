#ifndef FILE_GENERATOR_BASIC_DATA_TYPE_FILE_WRITER_H
#define FILE_GENERATOR_BASIC_DATA_TYPE_FILE_WRITER_H

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/primitiveDataTypeFileWriter.h"

class DtBasicDataRepresentationNode;

// Writes the class of a basic data representation. It has no representation below it: its own name tells the number.
class DtBasicDataTypeFileWriter : public DtPrimitiveDataTypeFileWriter
{
public:
    DtBasicDataTypeFileWriter(const DtString& fileName, const DtString& templateName);

    virtual void compileAttributes(DtBasicDataRepresentationNode* node);

private:
    struct DtTokens;

    // Size and byte order of the basic type that is current, or else of the first one compiled.
    DtDataTypeMapper::DtBasicTypeInfo basicInfo() const;
    DtString sizeOfAttribute() const;

    DtTokenValues<DtBasicDataTypeFileWriter> myMemberTokens;
    DtTokenValues<DtBasicDataTypeFileWriter> myOwnTokens;
};

#endif
