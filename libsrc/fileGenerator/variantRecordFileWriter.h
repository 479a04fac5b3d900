#ifndef FILE_GENERATOR_VARIANT_RECORD_FILE_WRITER_H
#define FILE_GENERATOR_VARIANT_RECORD_FILE_WRITER_H

#include "fileGenerator/codedDataTypeFileWriter.h"
#include "fileGenerator/dataTypeMapper.h"

class DtOMTTree;
class DtVariantDatatypeNode;

// Writes the class of a variant record. Every alternative that has a datatype is a member; its enumerator is the
// member's discriminant value.
//
// The loop "Discriminant" has one pass, in which the attribute tokens are those of the discriminant; the loop
// "ValuelessAlternatives" has one for each alternative that is no member.
class DtVariantRecordFileWriter : public DtCodedDataTypeFileWriter
{
public:
    DtVariantRecordFileWriter(const DtString& fileName, const DtString& templateName);

    void writeMultipleTimes(const DtString& loopName, std::istream& stream) override;
    // Those of the members and that of the discriminant.
    void compileIncludeList() override;
    // Also warns about a discriminant that cannot be one.
    void determineDecodeability() override;

    virtual void compileAttributes(DtVariantDatatypeNode* node, DtOMTTree* tree);
    virtual void setDiscriminantName(const DtString& name);
    virtual const DtString& discriminantName() const;
    virtual void setDiscriminantType(const DtString& type);
    virtual const DtString& discriminantType() const;
    // Copies the enumerators of the record to the members of the compiled datatypes that carry its alternatives.
    virtual void addEnumerators(const DtDataTypeMapper::DtVariantRecordStruct& record);

protected:
    // With the discriminant.
    std::vector<const DtAttribute*> typedMembers() const override;

private:
    struct DtTokens;

    void setDiscriminant(const DtString& name, const DtString& type, const DtOMTTree* tree);
    void writeDiscriminant(std::istream& stream);
    void writeValuelessAlternatives(std::istream& stream);
    DtString currentSelector() const;
    DtString currentEncoding() const;
    DtSubject discriminantSubject() const;

    DtString myDiscriminantName;
    DtString myDiscriminantType;
    DtAttribute myDiscriminant; // of the datatype compiled last
    bool myHasFittingDiscriminant = true;
    std::vector<DtString> myValuelessSelectors; // of the datatype compiled last
    DtString myCurrentSelector;                 // inside "ValuelessAlternatives"

    DtTokenValues<DtVariantRecordFileWriter> myOwnTokens;
    DtTokenValues<DtVariantRecordFileWriter> myMemberTokens;
};

// False for an alternative without a value: no datatype, "NA" or "N/A".
bool hasVariantMember(const DtString& datatype);

#endif
