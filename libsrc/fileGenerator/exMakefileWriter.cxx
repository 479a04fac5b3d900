#include "fileGenerator/exMakefileWriter.h"

#include "fileGenerator/archiveName.h"

DtExamplesMakefileWriter::DtExamplesMakefileWriter(const DtString& fileName)
    : DtFileWriter(fileName, "../data/templates/exMakefile.tlt"), myTokens(table(), this)
{
    myTokenChain.putAhead({&myTokens});
}

const DtTokenTable<DtExamplesMakefileWriter>& DtExamplesMakefileWriter::table()
{
    using Writer = const DtExamplesMakefileWriter&;
    static const DtTokenRow<DtExamplesMakefileWriter> theRows[] = {
        {"<!LibName!>",     [](Writer w) { return w.myLibraryName; }                     },
        {"<!ArchiveName!>", [](Writer) { return DtArchiveName(); }                       },
        {"<!GenerateDis!>", [](Writer w) { return DtString(w.myGenerateDis ? "1" : ""); }},
    };
    static const DtTokenTable<DtExamplesMakefileWriter> theTable(theRows);
    return theTable;
}

void DtExamplesMakefileWriter::setLibraryName(const DtString& name)
{
    myLibraryName = name;
    myTokens.clear();
}

void DtExamplesMakefileWriter::setGenerateDis(bool generate)
{
    myGenerateDis = generate;
    myTokens.clear();
}
