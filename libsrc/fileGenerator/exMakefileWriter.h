#ifndef FILE_GENERATOR_EX_MAKEFILE_WRITER_H
#define FILE_GENERATOR_EX_MAKEFILE_WRITER_H

#include "fileGenerator/fileWriter.h"

#include <vector>

// Makefile of the two example programs of one class. It knows the library, and takes the class from its directory.
class DtExamplesMakefileWriter : public DtFileWriter
{
public:
    explicit DtExamplesMakefileWriter(const DtString& fileName);

    virtual void setLibraryName(const DtString& name);
    virtual void setGenerateDis(bool generate);

private:
    static const DtTokenTable<DtExamplesMakefileWriter>& table();

    DtString myLibraryName;
    bool myGenerateDis = false;
    DtTokenValues<DtExamplesMakefileWriter> myTokens;
};

#endif
