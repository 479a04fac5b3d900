#ifndef CODE_GEN_APP_GENERATION_RUN_H
#define CODE_GEN_APP_GENERATION_RUN_H

#include "foundation/string.h"

class DtCodeGenInitializer;
class DtOMTTree;
class DtOmtProject;

// What a run is told apart from its model and project: the choices of the preferences.
struct DtGenerationOptions
{
    DtString namespaceName;
    DtString includeName; // directory of the generated headers
    DtString prefixName;
    bool generateExamples = true;
    bool generate64Bit = true;
    bool generateErrors = false;
    bool generateDis = false;
    bool dumpParseTree = false;
    bool mapRtiObjectIdToGlobalId = true;
    bool codeOpenArrays = false; // datatypes with several open arrays too
    bool allDatatypes = false;   // those that no selected class uses too
    int firstPduKind = 0;

    static DtGenerationOptions of(const DtCodeGenInitializer& initializer);
};

// How the files of generated C++ are laid out.
enum class DtCppLayout
{
    // Names begin with "cpp\", which other systems take for a directory.
    Classic,
    // Plain files and directories; a header that is included by two names stands under both.
    Tree
};

// The steps of a run once the model is there: it sets the writers up and has each script carried out.
//
// Neither tree nor project is owned; the project may be null. Output goes to the output directory that is set. The
// progress meter in use has to be ready. What is set for the whole run (settings, tables of the mapper) stays set
// behind it, as the window needs it; a DtRunScope around it takes that away.
class DtGenerationRun
{
public:
    // modelName: the model file, as generated text names it.
    DtGenerationRun(DtOMTTree& tree, DtOmtProject* project, const DtString& modelName,
                    const DtGenerationOptions& options, DtCppLayout layout = DtCppLayout::Classic);

    // One script: the name of a command file, or "genCpp.txt", which stands for the C++ without being a file.
    void run(const DtString& script);

    void generateCpp();
    void generateScript(const DtString& commandFile);
    static bool isCpp(const DtString& script) { return script == "genCpp.txt"; }

private:
    void setUpWriters();
    void dumpParseTree(const DtString& directory) const;
    template <typename Writer>
    void fill(Writer& writer);

    DtOMTTree& myTree;
    DtOmtProject* myProject;
    DtString myModelName;
    DtGenerationOptions myOptions;
    DtCppLayout myLayout;
};

#endif
