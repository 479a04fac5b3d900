#ifndef FILE_GENERATOR_PRIMITIVE_DATA_TYPE_FILE_WRITER_H
#define FILE_GENERATOR_PRIMITIVE_DATA_TYPE_FILE_WRITER_H

#include "fileGenerator/codedDataTypeFileWriter.h"

// The families whose datatypes become a class around one number: simple and basic datatypes.
class DtPrimitiveDataTypeFileWriter : public DtCodedDataTypeFileWriter
{
public:
    DtPrimitiveDataTypeFileWriter(const DtString& fileName, const DtString& templateName, DtCCompatibleNames& names);

    // Adds nothing: the own header, entered by the compilation, is the whole list.
    void compileIncludeList() override;

protected:
    // One member named like the datatype; its datatype's datatype is the number it holds.
    void compilePrimitive(DtOMTNode* node, const DtString& representation, const DtString& documentation);

private:
    struct DtTokens;

    DtTokenValues<DtPrimitiveDataTypeFileWriter> myMemberTokens;
};

// The number for a representation of that many bits. An unknown signed size widens to 64 bits, an unknown unsigned one
// falls to 8; "Float" is tested first.
DtString primitiveType(const DtString& representation, int bits);

#endif
