#ifndef FILE_GENERATOR_PROJECT_FILE_WRITER_H
#define FILE_GENERATOR_PROJECT_FILE_WRITER_H

#include "fileGenerator/fileWriter.h"

#include <set>
#include <vector>

// Project file of the generated library for a C++ compiler suite.
//
// Looks at the driver's list of generated files, which has to outlive the writer.
class DtProjectFileWriter : public DtFileWriter
{
public:
    // compiler: 4 to 9 pick the project template of one suite and word size, any other value the plain one.
    DtProjectFileWriter(const DtString& fileName, const std::set<DtString>& fileList, int compiler);

    // Loops: Files (every name), FilesH (headers, the include path in front), FilesCXX (sources).
    void writeMultipleTimes(const DtString& header, std::istream& body) override;

    virtual void setProjectName(const DtString& name);
    virtual void setGenerateDis(bool generate);

private:
    static const DtTokenTable<DtProjectFileWriter>& fileTable();
    static const DtTokenTable<DtProjectFileWriter>& projectTable();
    void setCurrentFile(const DtString& name);

    DtString myCurrentFile; // empty outside the loops
    DtString myProjectName;
    DtString myDllExport; // stem of the export macro with "_EXPORTS" behind it
    bool myGenerateDis = false;
    const std::set<DtString>& myFileList;
    DtTokenValues<DtProjectFileWriter> myFileTokens; // not active outside the loops
    DtTokenValues<DtProjectFileWriter> myProjectTokens;
};

#endif
