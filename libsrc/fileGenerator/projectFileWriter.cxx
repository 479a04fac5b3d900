#include "fileGenerator/projectFileWriter.h"

#include "fileGenerator/settings.h"

#include "foundation/filename.h"
#include "foundation/stringUtils.h"

namespace
{
struct DtProjectTemplate
{
    int compiler;
    const char* name;
};

//   compiler, template
const DtProjectTemplate theTemplates[] = {
    {4, "projectFileVC10.tlt"   },
    {5, "projectFileVC10_64.tlt"},
    {6, "projectFileVC12.tlt"   },
    {7, "projectFileVC12_64.tlt"},
    {8, "projectFileVC14.tlt"   },
    {9, "projectFileVC14_64.tlt"},
};

DtString templateOf(int compiler)
{
    for (const DtProjectTemplate& row : theTemplates)
    {
        if (row.compiler == compiler)
            return DtString("../data/templates/") + row.name;
    }
    return "../data/templates/projectFile.tlt";
}

// One loop of the project file: the files with this extension (all when it is null), named as they lie on disk or as
// the writers got them.
struct DtFileLoop
{
    const char* name;
    const char* extension;
    bool withIncludePath;
};

const DtFileLoop theLoops[] = {
    {"Files",    nullptr, false},
    {"FilesH",   "h",     true },
    {"FilesCXX", "cxx",   false},
};

const DtFileLoop* findLoop(const DtString& header)
{
    for (const DtFileLoop& loop : theLoops)
    {
        if (header == loop.name)
            return &loop;
    }
    return nullptr;
}

// "0" and not empty when it does not hold: templates compare it.
DtString flag(bool holds)
{
    return holds ? "1" : "0";
}

bool isIn(const DtFileLoop& loop, const DtString& file)
{
    return loop.extension == nullptr || DtFilename(file).extension() == loop.extension;
}
} // namespace

DtProjectFileWriter::DtProjectFileWriter(const DtString& fileName, const std::set<DtString>& fileList, int compiler)
    : DtFileWriter(fileName, templateOf(compiler)),
      myDllExport(DtReplaceSubstring(exportMacroName(), "DT_DLL_", "") + "_EXPORTS"),
      myFileList(fileList),
      myFileTokens(fileTable(), this),
      myProjectTokens(projectTable(), this)
{
    myTokenChain.putAhead({&myFileTokens, &myProjectTokens});
}

const DtTokenTable<DtProjectFileWriter>& DtProjectFileWriter::fileTable()
{
    using Writer = const DtProjectFileWriter&;
    static const DtTokenRow<DtProjectFileWriter> theRows[] = {
        {"<!FileName!>",     [](Writer w) { return w.myCurrentFile; }                                        },
        {"<!DatatypeFile!>", [](Writer w) { return flag(DtContainsSubstring(w.myCurrentFile, "DataTypes")); }},
    };
    static const DtTokenTable<DtProjectFileWriter> theTable(theRows,
                                                            [](Writer w) { return !w.myCurrentFile.isEmpty(); });
    return theTable;
}

const DtTokenTable<DtProjectFileWriter>& DtProjectFileWriter::projectTable()
{
    using Writer = const DtProjectFileWriter&;
    static const DtTokenRow<DtProjectFileWriter> theRows[] = {
        {"<!ProjectName!>", [](Writer w) { return w.myProjectName; }                     },
        {"<!DllExport!>",   [](Writer w) { return w.myDllExport; }                       },
        {"<!GenerateDis!>", [](Writer w) { return DtString(w.myGenerateDis ? "1" : ""); }},
    };
    static const DtTokenTable<DtProjectFileWriter> theTable(theRows);
    return theTable;
}

void DtProjectFileWriter::writeMultipleTimes(const DtString& header, std::istream& body)
{
    const DtFileLoop* loop = findLoop(header);
    if (loop == nullptr)
        return DtFileWriter::writeMultipleTimes(header, body);
    const DtString prefix = loop->withIncludePath ? DtSettings::instance().cpp.includePath() : DtString();
    const std::streampos start = body.tellg();
    for (const DtString& file : myFileList)
    {
        if (!isIn(*loop, file))
            continue;
        setCurrentFile(prefix + file);
        writeBodyFrom(body, start);
    }
    setCurrentFile(DtString());
}

void DtProjectFileWriter::setCurrentFile(const DtString& name)
{
    myCurrentFile = name;
    myFileTokens.clear();
}

void DtProjectFileWriter::setProjectName(const DtString& name)
{
    myProjectName = name;
    myProjectTokens.clear();
}

void DtProjectFileWriter::setGenerateDis(bool generate)
{
    myGenerateDis = generate;
    myProjectTokens.clear();
}
