#ifndef MODEL_TOOLS_OUTPUT_CHANGE_H
#define MODEL_TOOLS_OUTPUT_CHANGE_H

#include <string>

enum class DtChangeKind : char
{
    Added = 'A',
    Modified = 'M',
    Removed = 'D'
};

// Whose the file in the output folder is that a change is about.
enum class DtFileOwner
{
    Program, // as the last run has left it, or not there at all
    Edited,  // made by a run, with another content since
    Unknown  // no manifest knows it
};

// What a commit does, or would do, about one path of the output folder.
struct DtOutputChange
{
    std::string path;
    DtChangeKind kind = DtChangeKind::Added;
    DtFileOwner owner = DtFileOwner::Program;
    std::string oldHash; // SHA-256 of the file in the folder; empty when there is none

    char letter() const { return static_cast<char>(kind); }
    // False for an edited file that is not made any more: it is kept.
    bool changesFolder() const { return kind != DtChangeKind::Removed || owner == DtFileOwner::Program; }
    // What the user has to be told of it, without the path; empty when there is nothing to tell.
    const char* notice() const
    {
        if (owner == DtFileOwner::Program)
            return "";
        if (kind == DtChangeKind::Removed)
            return "is not generated any more but was edited by hand: it is kept";
        return owner == DtFileOwner::Edited ? "was edited by hand and is replaced"
                                            : "was not made by an earlier run and is replaced";
    }
};

#endif
