#ifndef MODEL_TOOLS_OUTPUT_JOURNAL_H
#define MODEL_TOOLS_OUTPUT_JOURNAL_H

#include "modelTools/outputChange.h"

#include <filesystem>
#include <string>
#include <vector>

// What a commit is about to do, kept in the output folder from the moment at which the commit can be finished by any
// later run until it is done.
struct DtOutputJournal
{
    std::string stage;                   // name of the stage in the output folder
    std::vector<DtOutputChange> changes; // those that change the folder

    // The content of the journal's file.
    std::string text() const;
    // The reverse. Throws std::exception for a text that no run has written, among them one with a path that leads out
    // of the output folder.
    static DtOutputJournal parsed(const std::string& text);

    static constexpr const char* theFileName = ".qxgen-journal.json";
};

#endif
