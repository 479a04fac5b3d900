#ifndef MODEL_TOOLS_WINDOW_START_H
#define MODEL_TOOLS_WINDOW_START_H

#include <string>
#include <vector>

// How the program with the window is started: it takes its data from beside its working directory and has options of
// its own.
struct DtWindowStart
{
    std::string program;                // absolute
    std::string workingDirectory;       // a place with the data directory as ../data
    std::string dataDirectory;          // absolute; an installed codeGen is told of it by QX_DATA_DIR
    std::vector<std::string> arguments; // without the program's name

    // Finds program and data directory and turns the files, one project or models, into arguments. Throws
    // DtToolFailure: Usage without a display and for a project together with other files, Unreadable for what is not
    // there.
    static DtWindowStart of(const std::vector<std::string>& files, const std::string& dataDirectory);

    // Puts the program in place of this one. Returns only by DtToolFailure, when that cannot be done.
    [[noreturn]] void replaceProcess() const;
};

#endif
