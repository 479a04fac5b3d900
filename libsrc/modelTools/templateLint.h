#ifndef MODEL_TOOLS_TEMPLATE_LINT_H
#define MODEL_TOOLS_TEMPLATE_LINT_H

#include "modelTools/diagnostics.h"
#include "modelTools/templateRules.h"

#include <map>
#include <set>
#include <string>
#include <vector>

// Checks a directory of templates and command files that is laid over the shipped ones, as --template-dir does it.
//
// A template of the name of a shipped one is held against the writer that opens it, and so is each file that such a
// template includes. Command files are "genXyz.txt" at the top of the directory and other texts there that name a
// directory of templates; what they open is held against the keys of the model's context. Files that nothing opens are
// told, since a misspelt name is as silent as a misspelt token. Faults of shipped files are not told.
class DtTemplateLint
{
public:
    // Both without checks: DtToolFailure (Unreadable) comes from run().
    DtTemplateLint(const std::string& directory, const std::string& dataDirectory);

    // The findings, by file and place, each once.
    std::vector<DtDiagnostic> run();

private:
    void findFiles();
    void checkWrittenTemplates();
    void checkScripts();
    void checkCommandFile(const std::string& file);
    void checkOwnTexts();
    void tellUnopened();
    void scan(const std::string& path, const DtTemplateRules& rules);
    void add(const DtDiagnostic& diagnostic);
    bool isOwn(const std::string& file) const;

    std::string myDirectory;                        // without a separator at the end
    std::string myDataDirectory;                    // with one
    std::vector<std::string> myFiles;               // below the directory, sorted
    std::set<std::string> myOpened;                 // templates and command files, as they are told
    std::map<std::string, DtDiagnostic> myFindings; // by their sorting key
};

#endif
