#include "modelTools/outputStage.h"

#include "foundation/fileUtils.h"
#include "modelTools/outputException.h"
#include "modelTools/outputLock.h"
#include "modelTools/outputObstacles.h"
#include "modelTools/outputPath.h"
#include "modelTools/signalHold.h"

#include <algorithm>

namespace
{
template <typename Row>
void sortByPath(std::vector<Row>& rows)
{
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& left, const Row& right) { return left.path < right.path; });
}

// Nobody but such runs comes by there, so each clears up behind those before it.
std::filesystem::path temporaryFolder()
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (error)
        throw DtOutputException::ofSystem("TMPDIR", "names no folder for temporary files", error.value());
    DtStageFolder::removeLeftovers(folder);
    return folder;
}
} // namespace

std::string DtOutputProblem::text() const
{
    switch (kind)
    {
    case DtProblemKind::EmptyFile:
        return "is empty";
    case DtProblemKind::LeftoverToken:
        return "still contains the token " + token;
    case DtProblemKind::NotAFile:
        return "is neither a regular file nor a folder";
    case DtProblemKind::OutsideStage:
        return "lies outside the output folder";
    case DtProblemKind::ReservedName:
        return std::string("begins with ") + theReservedPrefix + ", which is kept for the program's own files";
    case DtProblemKind::MissingFile:
        return "is named by a list but was not made";
    }
    return std::string();
}

DtOutputStage::DtOutputStage(const DtOutputLock& lock, const std::string& programVersion, const DtCommitHook& hook)
    : myTree(lock.directory()),
      myCanCommit(true),
      myHook(hook),
      myStage(lock.directory(), DtStageKind::Commit),
      myStaged(myStage.path() / DtStageFolder::theFiles),
      myLastManifest(DtOutputManifest::read(lock.directory())),
      myManifest(programVersion)
{
    tell(DtCommitStep::StageMade, myStage.path());
}

DtOutputStage::DtOutputStage(const std::filesystem::path& directory, const std::string& programVersion)
    : myTree(directory),
      myCanCommit(false),
      myStage(temporaryFolder(), DtStageKind::Compare),
      myStaged(myStage.path() / DtStageFolder::theFiles),
      myLastManifest(DtOutputManifest::read(directory)),
      myManifest(programVersion)
{
}

std::vector<DtOutputProblem> DtOutputStage::check(const LeftoverSearch& leftover,
                                                  const std::vector<std::string>& listed) const
{
    std::vector<DtOutputProblem> problems;
    for (const std::string& each : files())
        checkFile(each, leftover, problems);
    checkOutside(problems);
    checkListed(listed, problems);
    sortByPath(problems);
    return problems;
}

void DtOutputStage::checkFile(const std::string& path, const LeftoverSearch& leftover,
                              std::vector<DtOutputProblem>& problems) const
{
    if (DtIsReservedPath(path))
        problems.push_back({DtProblemKind::ReservedName, path, ""});
    const DtNodeStatus status = myStaged.status(path);
    if (status.kind != DtNodeKind::File)
        problems.push_back({DtProblemKind::NotAFile, path, ""});
    else if (status.size == 0)
        problems.push_back({DtProblemKind::EmptyFile, path, ""});
    else if (leftover)
    {
        const std::string token = leftover(path, myStaged.read(path));
        if (!token.empty())
            problems.push_back({DtProblemKind::LeftoverToken, path, token});
    }
}

// A writer that steps up from its folder lands in the stage's own, which holds nothing but the mark until the commit.
void DtOutputStage::checkOutside(std::vector<DtOutputProblem>& problems) const
{
    std::error_code error;
    for (std::filesystem::directory_iterator each(myStage.path(), error), end; !error && each != end;
         each.increment(error))
        if (each->path().filename() != DtStageFolder::theMark && each->path().filename() != DtStageFolder::theFiles)
            problems.push_back({DtProblemKind::OutsideStage, "../" + each->path().filename().native(), ""});
    if (error)
        throw DtOutputException::ofSystem(myStage.path(), "cannot be listed", error.value());
}

void DtOutputStage::checkListed(const std::vector<std::string>& listed, std::vector<DtOutputProblem>& problems) const
{
    for (const std::string& each : std::set<std::string>(listed.begin(), listed.end()))
        if (!DtIsInnerPath(each))
            problems.push_back({DtProblemKind::OutsideStage, each, ""});
        else if (myStaged.status(each).kind == DtNodeKind::Nothing)
            problems.push_back({DtProblemKind::MissingFile, each, ""});
}

const std::vector<DtOutputChange>& DtOutputStage::differences()
{
    if (myIsCompared)
        return myDifferences;
    for (const std::string& each : files())
        compareFile(each);
    for (const auto& [each, entry] : myLastManifest.files())
        if (myManifest.find(each) == nullptr)
            compareMissing(each, entry);
    sortByPath(myDifferences);
    myIsCompared = true;
    return myDifferences;
}

void DtOutputStage::compareFile(const std::string& path)
{
    if (DtIsReservedPath(path) || myStaged.status(path).kind != DtNodeKind::File)
        throw DtOutputException(myStaged.absolute(path), "cannot be an output file");
    const std::string content = myStaged.read(path);
    myManifest.add(path, DtOutputManifest::entryOf(content));
    const DtNodeStatus old = myTree.status(path);
    if (old.kind == DtNodeKind::Folder) // what only compares never comes to the search for obstacles
        throw DtOutputException(myTree.absolute(path), "a folder stands where a file is to be written");
    // Read whole even when the sizes differ: its hash tells whether somebody has edited it.
    const std::string oldContent = old.kind == DtNodeKind::File ? myTree.read(path) : std::string();
    if (old.kind == DtNodeKind::File && oldContent == content)
        return;
    DtOutputChange change;
    change.path = path;
    if (old.kind == DtNodeKind::File)
        change.oldHash = DtOutputManifest::entryOf(oldContent).sha256;
    if (old.kind == DtNodeKind::File || old.kind == DtNodeKind::Other)
    {
        change.kind = DtChangeKind::Modified;
        change.owner = ownerOf(path, change.oldHash);
    }
    myDifferences.push_back(change);
}

// The file is in the last manifest and was not made this time.
void DtOutputStage::compareMissing(const std::string& path, const DtOutputEntry& entry)
{
    const DtNodeKind kind = myTree.status(path).kind;
    if (kind == DtNodeKind::Nothing || kind == DtNodeKind::Folder)
        return; // the user has removed it
    const std::string hash = myTree.hash(path);
    myDifferences.push_back(
        {path, DtChangeKind::Removed, hash == entry.sha256 ? DtFileOwner::Program : DtFileOwner::Edited, hash});
}

DtFileOwner DtOutputStage::ownerOf(const std::string& path, const std::string& hash) const
{
    const DtOutputEntry* const entry = myLastManifest.find(path);
    if (entry == nullptr)
        return DtFileOwner::Unknown;
    return entry->sha256 == hash ? DtFileOwner::Program : DtFileOwner::Edited;
}

void DtOutputStage::commit()
{
    if (!myCanCommit)
        DT_THROW("output is committed once, and with a lock");
    myCanCommit = false;
    const DtOutputJournal plan = journal();
    if (plan.changes.empty() && hasEqualManifest())
        return;
    testObstacles(plan);
    stageFile(DtStageFolder::theManifest, myManifest.text(), DtCommitStep::ManifestStaged);
    stageFile(DtStageFolder::theJournal, plan.text(), DtCommitStep::JournalStaged);
    DtOutputCommit::sync(myStage.path());
    const DtSignalHold hold;
    writeJournal();
    DtOutputCommit(myTree.directory(), plan, myHook).finish();
}

DtOutputJournal DtOutputStage::journal()
{
    DtOutputJournal journal;
    journal.stage = myStage.path().filename().native();
    for (const DtOutputChange& change : differences())
        if (change.changesFolder())
            journal.changes.push_back(change);
    return journal;
}

void DtOutputStage::testObstacles(const DtOutputJournal& journal) const
{
    DtOutputObstacles obstacles(myTree, myStage.path());
    obstacles.testPut(DtOutputManifest::theFileName);
    obstacles.testPut(DtOutputJournal::theFileName);
    for (const DtOutputChange& change : journal.changes)
        if (change.kind == DtChangeKind::Removed)
            obstacles.testRemove(change.path);
        else
            obstacles.testPut(change.path);
}

bool DtOutputStage::hasEqualManifest() const
{
    const DtNodeStatus old = myTree.status(DtOutputManifest::theFileName);
    return old.kind == DtNodeKind::File && myLastManifest.damage().empty() &&
           myTree.read(DtOutputManifest::theFileName) == myManifest.text();
}

void DtOutputStage::stageFile(const char* name, const std::string& text, DtCommitStep step) const
{
    const std::filesystem::path path = myStage.path() / name;
    errno = 0;
    if (!DtReplaceFile(path.native(), text))
        throw DtOutputException::ofSystem(path, "cannot be written");
    tell(step, path);
}

void DtOutputStage::writeJournal()
{
    const std::filesystem::path path = myTree.absolute(DtOutputJournal::theFileName);
    if (rename((myStage.path() / DtStageFolder::theJournal).c_str(), path.c_str()) != 0)
        throw DtOutputException::ofSystem(path, "cannot be written");
    myStage.release(); // belongs to the journal now
    DtOutputCommit::sync(myTree.directory());
    tell(DtCommitStep::JournalWritten, path);
}

void DtOutputStage::tell(DtCommitStep step, const std::filesystem::path& path) const
{
    if (myHook)
        myHook(step, path);
}
