#ifndef MODEL_TOOLS_OUTPUT_RECOVERY_H
#define MODEL_TOOLS_OUTPUT_RECOVERY_H

#include "modelTools/outputCommit.h"

#include <string>
#include <vector>

class DtOutputLock;

// Clears up behind runs that were killed in an output folder.
//
// A commit that has a journal is finished; stages without one are thrown away. A damaged journal is told and dropped:
// the next commit compares with what is in the folder, so it makes all files right in any case.
class DtOutputRecovery
{
public:
    // Does it, at once. The lock proves that no other run is at work in its folder. Throws DtOutputException.
    explicit DtOutputRecovery(const DtOutputLock& lock, const DtCommitHook& hook = DtCommitHook());

    // True when the commit of a killed run was finished. Its changes are those that were still to be made; one whose
    // file was edited after that run says so.
    bool hasFinishedCommit() const { return myHasFinishedCommit; }
    const std::vector<DtOutputChange>& changes() const { return myChanges; }
    // What the user has to be told otherwise, one sentence each with the path and the remedy.
    const std::vector<std::string>& notices() const { return myNotices; }

    // True when a killed run has left a journal in the folder. A run that only compares can say so, since it may not
    // recover.
    static bool isNeeded(const std::filesystem::path& directory);

private:
    void finishCommit();
    DtOutputJournal readJournal() const; // throws std::exception
    void collectChanges(const DtOutputJournal& journal);
    void removeStages();

    std::filesystem::path myDirectory;
    DtCommitHook myHook;
    bool myHasFinishedCommit = false;
    std::vector<DtOutputChange> myChanges;
    std::vector<std::string> myNotices;
};

#endif
