#ifndef FILE_GENERATOR_DATA_TYPE_FILE_WRITER_H
#define FILE_GENERATOR_DATA_TYPE_FILE_WRITER_H

#include "fileGenerator/classFileWriter.h"

#include <map>
#include <set>
#include <utility>
#include <vector>

class DtCCompatibleNames;
class DtOMTNode;

// What the writers of the six datatype families share: the datatypes compiled so far, each with its members, and the
// "ClassDatatypes" loop over them.
//
// A family adds compileAttributes(), which hands its result to addCompiled(). The driver makes a writer, compiles, asks
// determineDecodeability() once for each datatype and writes the file. The nodes are not owned and have to outlive the
// writer.
class DtDataTypeFileWriter : public DtClassFileWriter
{
public:
    // names: the identifier names of the family's own source file.
    DtDataTypeFileWriter(const DtString& fileName, const DtString& templateName, DtCCompatibleNames& names);

    void writeMultipleTimes(const DtString& loopName, std::istream& stream) override;
    // The headers of the members of all compiled datatypes, without those of the datatypes themselves.
    void compileIncludeList() override;
    // Finds the compiled datatypes that no encoder can be written for and marks them in the mapper. Here: none.
    virtual void determineDecodeability();

protected:
    using DtCompiledDatatype = std::pair<DtOMTNode*, std::vector<DtAttribute>>;

    // While one is, the tokens of members count.
    static bool hasCurrentAttribute(const DtDataTypeFileWriter& writer) { return writer.currentAttribute() != nullptr; }
    // True when the target name is among those already compiled.
    bool isCompiled(const DtOMTNode& node) const;
    void addCompiled(DtOMTNode* node, std::vector<DtAttribute> attributes, const DtString& documentation = DtString());
    // Makes class name and attributes those of the compiled datatype. No attribute is current then.
    void enterDatatype(const DtCompiledDatatype& compiled);
    void setCurrentClass(const DtString& className, const std::vector<DtAttribute>& attributes);
    // The model's name as an identifier.
    DtString identifier(const DtString& text);

    std::set<DtString> myCompiledTypes; // target names
    std::vector<DtCompiledDatatype> myCompiledDatatypes;
    DtOMTNode* myCurrentDatatype = nullptr; // null outside the "ClassDatatypes" loop
    bool myIsXmlModel;

private:
    struct DtTokens;

    void writeClassDatatypes(std::istream& stream);
    // The C++ name of the current class.
    DtString classIdentifier() const;
    // The name of the operation that gives the current attribute to be changed; empty where the accessor of a member is
    // called so.
    DtString mutableName() const;
    bool isOwnClass(const DtString& type) const;

    DtCCompatibleNames& myNames;
    std::vector<DtString> myMutableMembers; // names of the current class that may be those of accessors that change
    std::map<const DtOMTNode*, DtString> myDocumentations; // of the compiled datatypes
    DtTokenValues<DtDataTypeFileWriter> myHeadTokens;
    DtTokenValues<DtDataTypeFileWriter> myMemberTokens;
};

#endif
