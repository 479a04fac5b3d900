#ifndef MODEL_TOOLS_COMMAND_FILE_LINT_H
#define MODEL_TOOLS_COMMAND_FILE_LINT_H

#include "modelTools/diagnostics.h"

#include <string>
#include <vector>

// A template that a command file opens.
struct DtOpenedTemplate
{
    std::string path;    // as in a template, "../data/templates/..."
    std::string context; // names of maps, divided by bars; may be empty
};

// Reads a command file strictly, and those that it includes: says which commands are unknown or incomplete and which
// files are missing, and notes what is opened. Paths that begin with "../data/" lead where the settings of the run say.
class DtCommandFileLint
{
public:
    void check(const std::string& file);

    const std::vector<DtDiagnostic>& faults() const { return myFaults; }
    const std::vector<DtOpenedTemplate>& templates() const { return myTemplates; }
    const std::vector<std::string>& files() const { return myFiles; } // command files, the top one first

    // True for a text that has a command in it which only command files have.
    static bool isCommandFile(const std::string& text);

private:
    using Words = std::vector<std::string>;

    void checkLine(const std::string& line);
    void checkCommand(const std::string& line, std::size_t start);
    void noteTemplate(const Words& words);
    void include(const std::string& path);
    void fault(const std::string& text, const DtWarningRule& rule, DtSeverity severity = DtSeverity::Error);

    std::vector<DtDiagnostic> myFaults;
    std::vector<DtOpenedTemplate> myTemplates;
    std::vector<std::string> myFiles;
    std::vector<std::string> myOpenFiles;
    std::string myTemplateDirectory; // "../data/..." as set last; empty ahead of it
    DtPlace myPlace;                 // of the current command
};

#endif
