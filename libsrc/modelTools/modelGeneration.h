#ifndef MODEL_TOOLS_MODEL_GENERATION_H
#define MODEL_TOOLS_MODEL_GENERATION_H

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/generationRun.h"
#include "codeGenApp/modelLoading.h"
#include "fileGenerator/omtProject.h"
#include "foundation/outputStream.h"
#include "foundation/perRun.h"
#include "foundation/restored.h"

#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

class DtOutputTree;

// What a run without a window is asked for. Paths count from the working directory.
struct DtGenerationRequest
{
    std::vector<std::string> models;
    std::string project;               // gives models, selection and custom code where these are not given
    std::vector<std::string> patterns; // of classes, see DtClassesOfPatterns
    bool withManagement = false;       // management classes too
    std::string name;                  // in place of the first model's or the project's
    std::string configFile;            // in place of the shipped configuration
    std::vector<std::string> settings; // KEY=VALUE
    std::vector<std::string> scripts;  // names such as "cpp" and "html", or paths of command files
    std::vector<std::string> templateDirectories;
    std::vector<std::string> modelPaths; // where models are looked for, behind the working directory
    DtCppLayout layout = DtCppLayout::Tree;
    std::string dataDirectory; // absolute, with a separator at the end
};

// One run: reads what it needs, then writes files into a directory. It begins with class-wide state of its own and
// leaves none, so the order of runs in one process does not matter, and its output does not depend on time, machine or
// directory. Neither models nor project are written to.
//
// Its steps throw DtToolFailure with what is wrong and the remedy. The progress meter in use has to be ready.
class DtModelGeneration
{
public:
    explicit DtModelGeneration(const DtGenerationRequest& request);

    // Configuration, project, models and selection.
    void load();
    // Carries out the scripts in the order of their names. The directory exists.
    void writeInto(const std::filesystem::path& directory);

    const DtOMTTree& tree() const { return *myModel.tree; }
    const DtOmtProject& project() const { return myProject; }
    // The model files as they were found, without the management model that is part of the program.
    const std::vector<std::string>& modelFiles() const { return myModelFiles; }
    // The files that the C++ script has made, sorted, without those that another one has made under the same names.
    const std::vector<std::string>& cppFiles() const { return myCppFiles; }
    // All files that decided on the output so far, absolute: models, project, configuration, command files, templates.
    std::set<std::string> inputs() const;

    // Files and directories that were looked for in vain, absolute, and templates that would stand in for others: one
    // that comes may change the output, or give a failed run what it lacked.
    std::set<std::string> awaited() const;

    // The names of the scripts that are there: "cpp", and one for each command file "genXyz.txt".
    static std::vector<std::string> scriptNames(const DtGenerationRequest& request);
    // The command files of these scripts, without their directories.
    static std::vector<std::string> scriptFiles(const DtGenerationRequest& request);

private:
    void readConfiguration();
    void warnOfIncludeDirectory() const;
    void readProject();
    void setUpSettings();
    void loadModels();
    void checkAccess() const;
    void select();
    void selectByPatterns();
    void selectByDefault();
    void fillProject();
    void runScript(const std::string& file, DtGenerationRun& run, const DtOutputTree& tree);
    void checkTemplates() const;
    std::vector<std::pair<std::string, std::string>> placesAhead() const;
    std::vector<DtFilename> filesToLoad();
    bool lookFor(const std::string& file);
    // Absolute, but for the standard management model, which is part of the program; empty when it is nowhere.
    DtFilename findModel(const std::string& name);
    DtFilename findModelOnLine(const std::string& name);
    DtFilename findProjectModel(const DtOmtProject::DtFilePair& model);
    [[noreturn]] void failWithoutModel(const std::string& name, const std::string& places) const;
    bool hasSetting(const std::string& key) const;
    std::string commandFile(const std::string& script);
    std::vector<std::string> commandFiles();

    DtRunScope myScope;                                 // first, so that it goes last
    const DtRestored<int> myNotifyLevel{DtNotifyLevel}; // which a configuration sets
    DtGenerationRequest myRequest;
    DtCodeGenInitializer myConfiguration;
    DtOmtProject myProject;
    DtLoadedModel myModel;
    std::vector<std::string> myModelFiles;
    std::vector<std::string> myCppFiles;
    std::set<std::string> myLookedFor; // in vain
};

#endif
