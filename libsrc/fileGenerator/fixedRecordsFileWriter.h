#ifndef FILE_GENERATOR_FIXED_RECORDS_FILE_WRITER_H
#define FILE_GENERATOR_FIXED_RECORDS_FILE_WRITER_H

#include "fileGenerator/codedDataTypeFileWriter.h"

class DtFixedDatatypeNode;
class DtOMTTree;

// Writes the class of a fixed record; its fields are the members, in order.
class DtFixedRecordFileWriter : public DtCodedDataTypeFileWriter
{
public:
    DtFixedRecordFileWriter(const DtString& fileName, const DtString& templateName);

    virtual void compileAttributes(DtFixedDatatypeNode* node, DtOMTTree* tree);

private:
    struct DtTokens;

    DtTokenValues<DtFixedRecordFileWriter> myOwnTokens;
    DtTokenValues<DtFixedRecordFileWriter> myMemberTokens;
};

#endif
