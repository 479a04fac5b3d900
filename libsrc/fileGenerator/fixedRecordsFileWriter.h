#ifndef FILE_GENERATOR_FIXED_RECORDS_FILE_WRITER_H
#define FILE_GENERATOR_FIXED_RECORDS_FILE_WRITER_H

#include "fileGenerator/codedDataTypeFileWriter.h"
#include "fileGenerator/fixedExtents.h"

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

    // Of the current record.
    DtFixedExtent extent() const;

    std::map<const DtOMTNode*, DtFixedExtent> myExtents; // of the compiled records
    DtTokenValues<DtFixedRecordFileWriter> myOwnTokens;
    DtTokenValues<DtFixedRecordFileWriter> myMemberTokens;
};

#endif
