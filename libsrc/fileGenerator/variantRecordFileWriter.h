#ifndef FILE_GENERATOR_VARIANT_RECORD_FILE_WRITER_H
#define FILE_GENERATOR_VARIANT_RECORD_FILE_WRITER_H

#include "fileGenerator/codedDataTypeFileWriter.h"
#include "fileGenerator/dataTypeMapper.h"

class DtOMTTree;
class DtVariantDatatypeNode;

// Writes the class of a variant record. Every alternative that has a datatype is a member; its enumerator is the
// member's discriminant value.
class DtVariantRecordFileWriter : public DtCodedDataTypeFileWriter
{
public:
    DtVariantRecordFileWriter(const DtString& fileName, const DtString& templateName);

    virtual void compileAttributes(DtVariantDatatypeNode* node, DtOMTTree* tree);
    virtual void setDiscriminantName(const DtString& name);
    virtual const DtString& discriminantName() const;
    virtual void setDiscriminantType(const DtString& type);
    virtual const DtString& discriminantType() const;
    // Copies the enumerators of the record to the members of the compiled datatypes that carry its alternatives.
    virtual void addEnumerators(const DtDataTypeMapper::DtVariantRecordStruct& record);

protected:
    void decodeOwnTokens(DtString& line) override;
    std::vector<const DtTokenIndex*> ownTokens() const override;

private:
    struct DtTokens;

    DtString myDiscriminantName;
    DtString myDiscriminantType;
};

// False for an alternative without a value: no datatype, "NA" or "N/A".
bool hasVariantMember(const DtString& datatype);

#endif
