#include "fileGenerator/makeFileWriter.h"

#include "fileGenerator/archiveName.h"
#include "foundation/filename.h"

DtMakefileWriter::DtListFile::DtListFile(const char* name)
    : printer(DtFileWriter::outputDirectory() + name), stream(&buffer, DtNotifyLevel, 1, &printer)
{
}

DtMakefileWriter::DtListFile::~DtListFile()
{
    stream.detachPrinter(&printer);
}

DtMakefileWriter::DtMakefileWriter(const DtString& fileName, const std::set<DtString>& fileList)
    : DtFileWriter(fileName, "../data/templates/makefile.tlt"),
      myCcFilesStream("Files-cc.txt"),
      myHFilesStream("Files-h.txt"),
      myFileList(fileList),
      myTokens(table(), this)
{
    myTokenChain.putAhead({&myTokens});
}

DtMakefileWriter::~DtMakefileWriter() = default;

void DtMakefileWriter::writeFile()
{
    DtFileWriter::writeFile();
    for (const DtString& file : myFileList)
    {
        const bool isHeader = DtFilename(file).extension() == "h";
        (isHeader ? myHFilesStream : myCcFilesStream).stream << file << '\n';
    }
}

const DtTokenTable<DtMakefileWriter>& DtMakefileWriter::table()
{
    using Writer = const DtMakefileWriter&;
    static const DtTokenRow<DtMakefileWriter> theRows[] = {
        {"<!LibName!>",     [](Writer w) { return w.myLibraryName; }                     },
        {"<!ArchiveName!>", [](Writer) { return DtArchiveName(); }                       },
        {"<!GenerateDis!>", [](Writer w) { return DtString(w.myGenerateDis ? "1" : ""); }},
    };
    static const DtTokenTable<DtMakefileWriter> theTable(theRows);
    return theTable;
}

void DtMakefileWriter::setLibraryName(const DtString& name)
{
    myLibraryName = name;
    myTokens.clear();
}

void DtMakefileWriter::setGenerateDis(bool generate)
{
    myGenerateDis = generate;
    myTokens.clear();
}
