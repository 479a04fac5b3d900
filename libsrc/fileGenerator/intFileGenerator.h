#ifndef FILE_GENERATOR_INT_FILE_GENERATOR_H
#define FILE_GENERATOR_INT_FILE_GENERATOR_H

#include "fileGenerator/fileGenerator.h"

#include <memory>

class DtExamplesCreator;

// The files of one interaction class: six, and four more with DIS; and its examples, when they are wanted.
class DtInteractionFileGenerator : public DtFileGenerator
{
public:
    // Arguments as those of DtObjectFileGenerator.
    DtInteractionFileGenerator(const DtString& name, std::set<DtString>& fileList, bool generateExamples,
                               bool generateDis, const DtOmtInteraction& interaction, DtOmtProject project);
    ~DtInteractionFileGenerator() override;

    // The number of files of a class, without its examples.
    static int fileCount(bool generateDis);

    void generateFiles() override;
    void addAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality) override;
    // Differs from the objects' in its failures: a datatype without any representation is warned about, and an array
    // of a simple type without target type leaves the type empty.
    void determineValueType(const DtString& datatype, DtString& cardinality, DtString& type) override;

    // File names without protocol and extension.
    DtString interactionFileBaseName(const DtString& name) const;
    DtString interEncoderFileBaseName(const DtString& name) const;
    DtString interDecoderFileBaseName(const DtString& name) const;

private:
    std::unique_ptr<DtExamplesCreator> myExamplesCreator; // null unless examples are wanted
    bool myGenerateExamples;
    bool myGenerateDis;
    DtOmtProject myOmtProject;
};

#endif
