#ifndef FILE_GENERATOR_ARRAY_DATA_TYPE_FILE_WRITER_H
#define FILE_GENERATOR_ARRAY_DATA_TYPE_FILE_WRITER_H

#include "fileGenerator/codedDataTypeFileWriter.h"

class DtArrayDatatypeNode;
class DtOMTTree;

// Writes the class of an array. Its one member has the element type and the array's cardinality.
class DtArrayDataTypeFileWriter : public DtCodedDataTypeFileWriter
{
public:
    // encoding: as the model names it; when empty it follows from the kind of array.
    DtArrayDataTypeFileWriter(const DtString& fileName, const DtString& templateName,
                              const DtString& encoding = DtString());

    virtual void compileAttributes(DtArrayDatatypeNode* node, DtOMTTree* tree);

private:
    struct DtTokens;

    // The given encoding, or else that of the kind of the array that is current or the first; empty when there is none.
    DtString encodingName() const;
    DtString encodingOrToken() const; // after a warning, the token
    // The array that is current, or the first; null when there is none.
    const DtArrayDatatypeNode* currentNode() const;
    DtString currentCardinality() const;
    DtString currentEncoding() const; // as the model names it
    DtString currentLayout() const;

    DtString myEncoding;

    DtTokenValues<DtArrayDataTypeFileWriter> myEncodingTokens;
    DtTokenValues<DtArrayDataTypeFileWriter> myOwnTokens;
    DtTokenValues<DtArrayDataTypeFileWriter> myTokenArrayTokens;
};

#endif
