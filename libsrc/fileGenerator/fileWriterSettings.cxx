// The class-wide settings of DtFileWriter.

#include "fileGenerator/fileWriter.h"

DtString DtFileWriter::theOutputDirectory = "source/";
DtString DtFileWriter::theExportMacroName;
bool DtFileWriter::theGenerate64Bit = true;
bool DtFileWriter::theGenerateErrors = false;
bool DtFileWriter::theUseDecodeIncludes = false;
DtHLAProtocolVersion DtFileWriter::myHlaVersion = DtHlaUnknown;

void DtFileWriter::setOutputDirectory(const DtString& directory)
{
    theOutputDirectory = directory;
}

const DtString& DtFileWriter::outputDirectory()
{
    return theOutputDirectory;
}

void DtFileWriter::setExportMacroName(const DtString& name)
{
    theExportMacroName = name;
}

const DtString& DtFileWriter::exportMacroName()
{
    return theExportMacroName;
}

void DtFileWriter::setGenerate64Bit(bool generate)
{
    theGenerate64Bit = generate;
}

bool DtFileWriter::generate64Bit()
{
    return theGenerate64Bit;
}

void DtFileWriter::setGenerateErrors(bool generate)
{
    theGenerateErrors = generate;
}

bool DtFileWriter::generateErrors()
{
    return theGenerateErrors;
}

void DtFileWriter::setUseDecodeIncludes(bool use)
{
    theUseDecodeIncludes = use;
}

bool DtFileWriter::useDecodeIncludes()
{
    return theUseDecodeIncludes;
}

void DtFileWriter::setHlaVersion(DtHLAProtocolVersion version)
{
    myHlaVersion = version;
}

DtHLAProtocolVersion DtFileWriter::hlaVersion()
{
    return myHlaVersion;
}
