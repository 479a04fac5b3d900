#ifndef FILE_GENERATOR_OBJ_FILE_GENERATOR_H
#define FILE_GENERATOR_OBJ_FILE_GENERATOR_H

#include "fileGenerator/fileGenerator.h"

#include <memory>

class DtExamplesCreator;

// The files of one object class: twelve, and sixteen more with DIS; and its examples, when they are wanted.
class DtObjectFileGenerator : public DtFileGenerator
{
public:
    // name: the class's short name. fileList takes the name of every output file, each before its writer is made.
    // object: the selection record, which names the members with hand-written coding.
    DtObjectFileGenerator(const DtString& name, std::set<DtString>& fileList, bool generateExamples, bool generateDis,
                          const DtOmtObject& object, DtOmtProject project);
    ~DtObjectFileGenerator() override;

    // The number of files of a class, without its examples.
    static int fileCount(bool generateDis);

    void generateFiles() override;
    void addAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality) override;
    void determineValueType(const DtString& datatype, DtString& cardinality, DtString& type) override;

    // File names without protocol and extension.
    DtString stateRepositoryFileBaseName(const DtString& name) const;
    DtString publisherFileBaseName(const DtString& name) const;
    DtString refObjFileBaseName(const DtString& name) const;
    DtString refListFileBaseName(const DtString& name) const;
    DtString encoderFileBaseName(const DtString& name) const;
    DtString decoderFileBaseName(const DtString& name) const;
    DtString pduFileBaseName(const DtString& name) const;
    DtString netPduFileBaseName(const DtString& name) const;

private:
    void createExamples(const DtString& name, const DtOmtObject& object);

    std::unique_ptr<DtExamplesCreator> myExamplesCreator; // null unless examples are wanted
    bool myGenerateDis;
    bool myGenerateExamples;
    DtOmtProject myOmtProject;
};

#endif
