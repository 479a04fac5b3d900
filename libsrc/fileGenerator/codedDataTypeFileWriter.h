#ifndef FILE_GENERATOR_CODED_DATA_TYPE_FILE_WRITER_H
#define FILE_GENERATOR_CODED_DATA_TYPE_FILE_WRITER_H

#include "fileGenerator/dataTypeFileWriter.h"
#include "foundation/warning.h"

#include <map>

class DtEnvObject;

// The datatype families that know whether a datatype can be encoded at all: every one but the complex datatypes.
//
// The wire format has room for one part of variable length in a datatype, counted through nesting. The counts are
// shared by all writers of a run, so types have to be compiled from the inside out; the driver resets them at its
// start.
class DtCodedDataTypeFileWriter : public DtDataTypeFileWriter
{
public:
    DtCodedDataTypeFileWriter(const DtString& fileName, const DtString& templateName, DtCCompatibleNames& names);

    // Goes through the compiled datatypes, warns about those that cannot be encoded and marks them in the mapper.
    void determineDecodeability() override;

    // Resolve one configuration entry of the predefined types; 1 on success, 0 when it is no array.
    virtual int addTypeFromSimpleTypeList(const DtEnvObject* entry, DtString& type, DtString& cardinality);
    virtual int addTypeFromArrayTypeList(const DtEnvObject* entry, DtString& type, DtString& cardinality);

    static void resetPlusAttributeCounts();

private:
    struct DtTokens;

    void determineDecodeabilityOfClass(const DtSubject& subject);
    static int plusCount(const DtString& type);

    static std::map<DtString, int> myPlusAttributeCounts; // class name to open attributes, nested ones included

    DtTokenValues<DtCodedDataTypeFileWriter> myOwnTokens;
};

#endif
