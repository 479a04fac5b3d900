#include "modelTools/outputRecovery.h"

#include "foundation/fileUtils.h"
#include "modelTools/outputException.h"
#include "modelTools/outputLock.h"
#include "modelTools/signalHold.h"
#include "modelTools/stageFolder.h"

#include <optional>
#include <stdexcept>

DtOutputRecovery::DtOutputRecovery(const DtOutputLock& lock, const DtCommitHook& hook)
    : myDirectory(lock.directory()), myHook(hook)
{
    if (isNeeded(myDirectory))
        finishCommit();
    removeStages();
}

bool DtOutputRecovery::isNeeded(const std::filesystem::path& directory)
{
    return DtOutputTree(directory).status(DtOutputJournal::theFileName).kind != DtNodeKind::Nothing;
}

void DtOutputRecovery::finishCommit()
{
    const std::filesystem::path path = myDirectory / DtOutputJournal::theFileName;
    std::optional<DtOutputJournal> journal;
    try
    {
        journal = readJournal();
    }
    catch (const std::exception& error)
    {
        myNotices.push_back(path.native() + " is damaged (" + error.what() +
                            ") and is removed: the run that was cut off cannot be finished. The next run that writes "
                            "makes its files anew.");
        std::error_code failure;
        std::filesystem::remove(path, failure);
        if (failure)
            throw DtOutputException::ofSystem(path, "is damaged and cannot be removed", failure.value());
        return;
    }
    const DtSignalHold hold;
    collectChanges(*journal);
    DtOutputCommit(myDirectory, *journal, myHook).finish();
    myHasFinishedCommit = true;
}

DtOutputJournal DtOutputRecovery::readJournal() const
{
    std::string text;
    if (!DtReadFile((myDirectory / DtOutputJournal::theFileName).native(), text))
        throw std::runtime_error("it cannot be read");
    const DtOutputJournal journal = DtOutputJournal::parsed(text);
    if (!DtStageFolder::isOne(myDirectory / journal.stage))
        throw std::runtime_error("the folder " + journal.stage + " that it names is not there");
    return journal;
}

void DtOutputRecovery::collectChanges(const DtOutputJournal& journal)
{
    const DtOutputTree tree(myDirectory);
    const DtOutputTree staged(myDirectory / journal.stage / DtStageFolder::theFiles);
    for (DtOutputChange change : journal.changes)
    {
        const bool isRemoval = change.kind == DtChangeKind::Removed;
        const bool isOpen = (isRemoval ? tree : staged).status(change.path).kind == DtNodeKind::File;
        const std::string hash = isOpen ? tree.hash(change.path) : std::string();
        if (!hash.empty() && hash != change.oldHash)
            change.owner = DtFileOwner::Edited;
        if (isOpen)
            myChanges.push_back(change);
    }
}

void DtOutputRecovery::removeStages()
{
    std::vector<std::filesystem::path> stages;
    std::error_code error;
    for (std::filesystem::directory_iterator each(myDirectory, error), end; !error && each != end;
         each.increment(error))
        if (DtStageFolder::isOne(each->path()))
            stages.push_back(each->path());
    if (error)
        throw DtOutputException::ofSystem(myDirectory, "cannot be listed", error.value());
    for (const std::filesystem::path& stage : stages)
        if (!DtStageFolder::remove(stage))
            myNotices.push_back(stage.native() + " is left over from a run that was cut off and cannot be removed; "
                                                 "remove it by hand.");
}
