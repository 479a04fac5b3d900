#ifndef MODEL_TOOLS_RUN_REPORT_H
#define MODEL_TOOLS_RUN_REPORT_H

#include "modelTools/diagnostics.h"
#include "modelTools/outputChange.h"

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

class DtOmtProject;

// What a run is reported with, for people (a page) and for programs (JSON).
struct DtRunReport
{
    struct DtRenamed
    {
        std::string fullName;
        std::string name; // in generated code
    };

    std::vector<std::pair<std::string, std::string>> inputs; // path and SHA-256
    std::string outputDirectory;
    bool isCommitted = false;      // else the files are those that a commit would write and remove
    std::size_t objectClasses = 0; // selected ones, as the next
    std::size_t interactionClasses = 0;
    std::vector<std::string> written;
    std::vector<std::string> removed;
    std::vector<std::string> kept; // edited by hand and not made any more
    std::vector<std::string> unchanged;
    std::vector<std::string> listed; // by a run that names its outputs and compares them with nothing
    std::vector<DtDiagnostic> diagnostics;
    std::vector<DtRenamed> renamed;
    std::vector<std::pair<std::string, double>> times; // step and its seconds

    // The files with their hashes; one that cannot be read has none.
    void setInputs(const std::set<std::string>& files);
    // The selected classes, and those among them that are called otherwise in generated code.
    void setProject(const DtOmtProject& project);
    // Sorts the output files into the lists.
    void setFiles(const std::vector<std::string>& files, const std::vector<DtOutputChange>& changes);

    std::string json() const;
    std::string html() const;
    // One of the two: the page for a name that ends in ".html", ".htm" or ".xhtml".
    std::string textFor(const std::string& file) const;
};

#endif
