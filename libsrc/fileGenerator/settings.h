#ifndef FILE_GENERATOR_SETTINGS_H
#define FILE_GENERATOR_SETTINGS_H

#include "foundation/filename.h"
#include "foundation/fomType.h"
#include "foundation/perRun.h"
#include "foundation/string.h"

#include <vector>

// The class-wide settings of a run. Everybody who generates reads them here; DtOMTEnvWriter, DtOMTWriter and
// DtFileWriter have the operations that set them.

// Settings of one road: of the C++ that DtOMTEnvWriter drives, or of the command files that DtOMTWriter runs.
struct DtRoadSettings
{
    int maximumLineLength = 300; // bytes that are read of a template at once, the terminating NUL included
    bool includesMim = true;     // whether the standard management model is merged in
    DtString namespaceName;
    DtString includeName; // directory of the generated headers; may be empty
    DtString prefixName;  // of class names
    DtString fomDefinitionFileName;
    DtString baseName; // the project's, or the model file's where there is none

    // The include name and a separator, or empty when there is no include name.
    DtString includePath() const
    {
        return includeName == DtString::nullString() ? DtString() : includeName + DtFilename::separator();
    }
};

struct DtFileSettings
{
    DtString outputDirectory = "source/"; // ends in a separator
    DtString exportMacroName;
    bool generates64Bit = true;
    bool generatesErrors = false; // a line that stops the compiler at each value without encoding
    bool usesDecodeIncludes = false;
    bool codesOpenArrays = false;   // datatypes with several open arrays are coded too
    bool takesAllDatatypes = false; // those that no selected class uses count as used too
    DtHLAProtocolVersion hlaVersion = DtHlaUnknown;
    // Where the shipped templates and command files lie, with a separator at the end. They are named by paths that
    // begin with "../data/", wherever that is.
    DtString dataDirectory = "../data/";
    // Directories whose files stand in for shipped templates of the same path below the templates, and for command
    // files of the same name. The first one that has the file counts.
    std::vector<DtString> templateDirectories;
    bool keepsToOutput = false;   // command files write nothing to the data directory
    bool makesNamedUuids = false; // identifiers of projects follow from names, where they are random otherwise
};

// All of them. The two roads do not share theirs: what is set for one does not reach the other.
struct DtSettings
{
    DtRoadSettings cpp;
    DtRoadSettings scripts;
    DtFileSettings files;

    static DtSettings& instance() { return DtPerRun<DtSettings>(); }
};

#endif
