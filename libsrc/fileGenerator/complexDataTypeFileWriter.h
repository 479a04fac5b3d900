#ifndef FILE_GENERATOR_COMPLEX_DATA_TYPE_FILE_WRITER_H
#define FILE_GENERATOR_COMPLEX_DATA_TYPE_FILE_WRITER_H

#include "fileGenerator/dataTypeFileWriter.h"

class DtComplexDatatypeNode;

// Writes the class of a complex datatype, the record of the older model formats. A component with a cardinality is held
// in an array class that the driver makes up; both find its name by the same rule.
class DtComplexDataTypeFileWriter : public DtDataTypeFileWriter
{
public:
    DtComplexDataTypeFileWriter(const DtString& fileName, const DtString& templateName);

    // Adds "ArrayIncludeFiles": one pass for each header of an array class.
    void writeMultipleTimes(const DtString& loopName, std::istream& stream) override;

    virtual void compileAttributes(DtComplexDatatypeNode* node);
    // Class of the array for a component; empty when no such array is made.
    virtual DtString getDatatypeArrayName(const DtAttribute& attribute) const;
    // Fills the list of the "ArrayIncludeFiles" loop in component order, dropping neighbours that are alike.
    virtual void compileArrayIncludeList();

private:
    struct DtTokens;

    void writeArrayIncludeFiles(std::istream& stream);
    DtString arrayStem(const DtAttribute& attribute) const;

    std::list<DtString> myArrayIncludeFiles;
    DtString myCurrentArrayInclude;

    DtTokenValues<DtComplexDataTypeFileWriter> myOwnTokens;
    DtTokenValues<DtComplexDataTypeFileWriter> myMemberTokens;
};

#endif
