#ifndef MODEL_TOOLS_OUTPUT_STAGE_H
#define MODEL_TOOLS_OUTPUT_STAGE_H

#include "modelTools/outputCommit.h"
#include "modelTools/outputManifest.h"
#include "modelTools/stageFolder.h"

#include <functional>
#include <string>
#include <vector>

class DtOutputLock;

enum class DtProblemKind
{
    EmptyFile,
    LeftoverToken,
    NotAFile,     // a symbolic link, pipe or device
    OutsideStage, // written, or named by a list, outside the output folder
    ReservedName, // begins as the staging's own names do
    MissingFile   // a list names it
};

// Something that is wrong with what was made.
struct DtOutputProblem
{
    DtProblemKind kind = DtProblemKind::EmptyFile;
    std::string path;  // of the output
    std::string token; // LeftoverToken only

    // One clause without the path, for instance "is empty".
    std::string text() const;
};

// The output of one run on its way into the output folder: first made in a private folder, then checked, compared with
// what is there, and put into place as a whole. A killed run leaves the output folder as it was, or with a journal by
// which DtOutputRecovery finishes the commit.
//
//     const DtOutputLock lock(directory);
//     const DtOutputRecovery recovery(lock);
//     DtOutputStage stage(lock, version);
//     ... write below stage.path() ...
//     if (stage.check(leftover, listed).empty())
//         stage.commit();
//
// The stage is removed when the object goes, but for a commit that has failed behind its journal.
class DtOutputStage
{
public:
    // Returns a token that stands unexpanded in the content; empty when there is none.
    using LeftoverSearch = std::function<std::string(const std::string& path, const std::string& content)>;

    // Stages output in the lock's folder, ready to be committed. The lock has to outlive it. programVersion is for the
    // manifest. Throws DtOutputException, as all but the plain questions do.
    DtOutputStage(const DtOutputLock& lock, const std::string& programVersion,
                  const DtCommitHook& hook = DtCommitHook());
    // Stages output in the folder for temporary files, to be compared only: the output folder is not touched, and need
    // not exist.
    DtOutputStage(const std::filesystem::path& directory, const std::string& programVersion);
    DtOutputStage(const DtOutputStage&) = delete;
    DtOutputStage& operator=(const DtOutputStage&) = delete;

    // Where the writers write, as though it were the output folder.
    std::filesystem::path path() const { return myStaged.directory(); }
    // Sorted output paths of all files that were made.
    std::vector<std::string> files() const { return myStaged.list(); }

    // All that is wrong with what was made, by path; empty when all is well. listed: the output paths that lists,
    // makefiles and projects name. No search for tokens is made with an empty function.
    std::vector<DtOutputProblem> check(const LeftoverSearch& leftover, const std::vector<std::string>& listed) const;

    // What a commit changes, by path; edited files that stay are among them (changesFolder() tells). Found by the
    // first call, when all is made and checked.
    const std::vector<DtOutputChange>& differences();
    // Tells that the manifest of the last run is damaged, so nothing is removed; empty when it is not.
    const std::string& manifestDamage() const { return myLastManifest.damage(); }

    // Puts the output into place. Files that are equal are not touched; when all are, nothing is written at all. SIGINT
    // and SIGTERM wait for the end. When it throws, the output folder is as it was or, as said in DtOutputCommit, has a
    // journal. Only once, and only with a lock; anything else is a DtException.
    void commit();

private:
    void checkFile(const std::string& path, const LeftoverSearch& leftover,
                   std::vector<DtOutputProblem>& problems) const;
    void checkOutside(std::vector<DtOutputProblem>& problems) const;
    void checkListed(const std::vector<std::string>& listed, std::vector<DtOutputProblem>& problems) const;
    void compareFile(const std::string& path);
    void compareMissing(const std::string& path, const DtOutputEntry& entry);
    DtFileOwner ownerOf(const std::string& path, const std::string& hash) const;
    DtOutputJournal journal();
    void testObstacles(const DtOutputJournal& journal) const;
    bool hasEqualManifest() const;
    void stageFile(const char* name, const std::string& text, DtCommitStep step) const;
    void writeJournal();
    void tell(DtCommitStep step, const std::filesystem::path& path) const;

    DtOutputTree myTree;
    bool myCanCommit;
    DtCommitHook myHook;
    DtStageFolder myStage;
    DtOutputTree myStaged;
    DtOutputManifest myLastManifest;
    DtOutputManifest myManifest;
    bool myIsCompared = false;
    std::vector<DtOutputChange> myDifferences;
};

#endif
