#ifndef FILE_GENERATOR_EXAMPLES_PROJ_WRITER_H
#define FILE_GENERATOR_EXAMPLES_PROJ_WRITER_H

#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtNode.h"

#include <vector>

// Project file of one example program. There is one form of it, whatever suite the library's project file is for.
class DtExamplesProjectFileWriter : public DtFileWriter
{
public:
    // node: the selection record of the class. The writer keeps a copy with the same identifiers, which the record gets
    // here if it has none yet. Its name goes into the file as it is, so a renamed class has its model name there.
    DtExamplesProjectFileWriter(const DtString& fileName, const DtString& templateName, const DtOmtNode& node);

    virtual void setLibraryName(const DtString& name);
    virtual void setGenerateDis(bool generate);

private:
    static const DtTokenTable<DtExamplesProjectFileWriter>& table();
    static const DtOmtNode& withIdentifiers(const DtOmtNode& node);

    DtOmtNode myNode;
    DtString myLibraryName;
    bool myGenerateDis = false;
    DtTokenValues<DtExamplesProjectFileWriter> myTokens;
};

#endif
