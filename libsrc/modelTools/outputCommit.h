#ifndef MODEL_TOOLS_OUTPUT_COMMIT_H
#define MODEL_TOOLS_OUTPUT_COMMIT_H

#include "modelTools/outputJournal.h"
#include "modelTools/outputTree.h"

#include <functional>
#include <set>

// The steps at which a run tells how far it is; each is told when it is done.
enum class DtCommitStep
{
    StageMade,
    ManifestStaged,
    JournalStaged,
    JournalWritten, // from here on the commit will be finished, by this run or a later one
    FolderMade,
    FilePut,
    FileRemoved,
    FolderRemoved,
    ManifestPut,
    JournalRemoved,
    StageRemoved
};

// Told of each step with its file or folder. An exception thrown from it is an error of that step.
using DtCommitHook = std::function<void(DtCommitStep step, const std::filesystem::path& path)>;

// Does what a journal says: renames staged files into place, removes files that are not made any more and the folders
// this leaves empty, puts the manifest, and removes journal and stage.
//
// What is done already is passed over, so a commit that was cut off is finished by doing it again, however often. A
// file is removed only while it has the content that the journal names.
class DtOutputCommit
{
public:
    DtOutputCommit(const std::filesystem::path& directory, const DtOutputJournal& journal, const DtCommitHook& hook);

    // Throws DtOutputException; then the journal stays, each file is whole, old or new, and a later call goes on.
    void finish();

    // Waits until the file system that holds the folder has all that was written on disk.
    static void sync(const std::filesystem::path& directory);

private:
    void putFiles();
    void putFile(const std::string& path);
    void makeFolder(const std::string& folder);
    void removeFiles();
    void removeFile(const DtOutputChange& change);
    void removeEmptyFolders();
    void putManifest();
    void removeJournal();
    void tell(DtCommitStep step, const std::filesystem::path& path) const;

    const DtOutputJournal& myJournal;
    DtCommitHook myHook;
    DtOutputTree myTree;
    std::filesystem::path myStage;
    DtOutputTree myFiles; // of the stage
    std::set<std::string> myKnownFolders;
};

#endif
