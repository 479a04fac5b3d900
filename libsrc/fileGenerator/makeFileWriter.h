#ifndef FILE_GENERATOR_MAKE_FILE_WRITER_H
#define FILE_GENERATOR_MAKE_FILE_WRITER_H

#include "fileGenerator/fileWriter.h"
#include "foundation/filePrinter.h"

#include <set>
#include <vector>

// Makefile of the generated library, and the two lists of files that it reads.
//
// "Files-h.txt" holds the names of the headers and "Files-cc.txt" all others, one a line, as the writers got them:
// without include path. Both stand in the output directory from construction on. Looks at the driver's list of
// generated files, which has to outlive the writer.
class DtMakefileWriter : public DtFileWriter
{
public:
    DtMakefileWriter(const DtString& fileName, const std::set<DtString>& fileList);
    ~DtMakefileWriter() override;

    void writeFile() override; // the makefile first, then the lists

    virtual void setLibraryName(const DtString& name);
    virtual void setGenerateDis(bool generate);

private:
    static const DtTokenTable<DtMakefileWriter>& table();

    // A list of file names: a stream of the level that every generated file has, and the printer behind it.
    struct DtListFile
    {
        explicit DtListFile(const char* name);
        ~DtListFile();

        DtFilePrinter printer;
        DtOutputStreamBuffer buffer;
        DtOutputStream stream;
    };

    DtListFile myCcFilesStream;
    DtListFile myHFilesStream;
    DtString myLibraryName;
    bool myGenerateDis = false;
    const std::set<DtString>& myFileList;
    DtTokenValues<DtMakefileWriter> myTokens;
};

#endif
