#include "modelTools/outputCommit.h"

#include "modelTools/outputException.h"
#include "modelTools/outputManifest.h"
#include "modelTools/stageFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// QSaveFile is not used: it renames what it has written itself, while these files are there already; and Qt brings no
// folder onto the disk, without which a rename is lost when the power goes.

namespace
{
void renameFile(const std::filesystem::path& from, const std::filesystem::path& to)
{
    if (rename(from.c_str(), to.c_str()) != 0)
        throw DtOutputException::ofSystem(to, "cannot be replaced");
}
} // namespace

DtOutputCommit::DtOutputCommit(const std::filesystem::path& directory, const DtOutputJournal& journal,
                               const DtCommitHook& hook)
    : myJournal(journal),
      myHook(hook),
      myTree(directory),
      myStage(directory / journal.stage),
      myFiles(myStage / DtStageFolder::theFiles)
{
}

void DtOutputCommit::finish()
{
    putFiles();
    removeFiles();
    removeEmptyFolders();
    putManifest();
    sync(myTree.directory()); // or the disk might forget a rename and remember that the journal is gone
    removeJournal();
    DtStageFolder::remove(myStage); // what stays is thrown away by the next run
    tell(DtCommitStep::StageRemoved, myStage);
}

void DtOutputCommit::putFiles()
{
    for (const DtOutputChange& change : myJournal.changes)
        if (change.kind != DtChangeKind::Removed)
            putFile(change.path);
}

void DtOutputCommit::putFile(const std::string& path)
{
    if (myFiles.status(path).kind != DtNodeKind::File)
        return; // put by the run that was cut off
    makeFolder(DtOutputTree::parent(path));
    const DtNodeStatus old = myTree.status(path);
    if (old.kind == DtNodeKind::File) // fails on file systems that know no modes
        static_cast<void>(chmod(myFiles.absolute(path).c_str(), old.mode));
    renameFile(myFiles.absolute(path), myTree.absolute(path));
    tell(DtCommitStep::FilePut, myTree.absolute(path));
}

void DtOutputCommit::makeFolder(const std::string& folder)
{
    if (folder.empty() || !myKnownFolders.insert(folder).second)
        return;
    makeFolder(DtOutputTree::parent(folder));
    if (myTree.status(folder).kind == DtNodeKind::Folder)
        return;
    if (mkdir(myTree.absolute(folder).c_str(), 0777) != 0)
        throw DtOutputException::ofSystem(myTree.absolute(folder), "the folder cannot be made");
    tell(DtCommitStep::FolderMade, myTree.absolute(folder));
}

void DtOutputCommit::removeFiles()
{
    for (const DtOutputChange& change : myJournal.changes)
        if (change.kind == DtChangeKind::Removed)
            removeFile(change);
}

void DtOutputCommit::removeFile(const DtOutputChange& change)
{
    const std::string hash = myTree.hash(change.path);
    if (hash.empty() || hash != change.oldHash)
        return; // gone already, or edited since
    if (unlink(myTree.absolute(change.path).c_str()) != 0)
        throw DtOutputException::ofSystem(myTree.absolute(change.path), "cannot be removed");
    tell(DtCommitStep::FileRemoved, myTree.absolute(change.path));
}

void DtOutputCommit::removeEmptyFolders()
{
    std::set<std::string, std::greater<std::string>> folders; // inner ones first
    for (const DtOutputChange& change : myJournal.changes)
        if (change.kind == DtChangeKind::Removed)
            for (std::string each = DtOutputTree::parent(change.path); !each.empty(); each = DtOutputTree::parent(each))
                folders.insert(each);
    for (const std::string& folder : folders)
        if (myTree.status(folder).kind == DtNodeKind::Folder && rmdir(myTree.absolute(folder).c_str()) == 0)
            tell(DtCommitStep::FolderRemoved, myTree.absolute(folder));
}

void DtOutputCommit::putManifest()
{
    const DtOutputTree stage(myStage);
    if (stage.status(DtStageFolder::theManifest).kind != DtNodeKind::File)
        return;
    const std::filesystem::path manifest = myTree.absolute(DtOutputManifest::theFileName);
    renameFile(stage.absolute(DtStageFolder::theManifest), manifest);
    tell(DtCommitStep::ManifestPut, manifest);
}

void DtOutputCommit::removeJournal()
{
    const std::filesystem::path journal = myTree.absolute(DtOutputJournal::theFileName);
    if (unlink(journal.c_str()) != 0 && errno != ENOENT)
        throw DtOutputException::ofSystem(journal, "cannot be removed");
    tell(DtCommitStep::JournalRemoved, journal);
}

// One call for the whole file system takes a fraction of the time that a call for each of thousands of files takes.
void DtOutputCommit::sync(const std::filesystem::path& directory)
{
    const int folder = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        throw DtOutputException::ofSystem(directory, "cannot be opened");
    const int error = syncfs(folder) == 0 ? 0 : errno;
    ::close(folder);
    if (error != 0)
        throw DtOutputException::ofSystem(directory, "cannot be brought onto the disk", error);
}

void DtOutputCommit::tell(DtCommitStep step, const std::filesystem::path& path) const
{
    if (myHook)
        myHook(step, path);
}
