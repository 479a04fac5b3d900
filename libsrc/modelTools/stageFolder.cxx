#include "modelTools/stageFolder.h"

#include "modelTools/outputException.h"
#include "modelTools/outputFolderRemoval.h"
#include "modelTools/outputPath.h"
#include "modelTools/signalHold.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace
{
constexpr int theMakeLimit = 1000;

std::string prefixOf(DtStageKind kind)
{
    return std::string(theReservedPrefix) + (kind == DtStageKind::Compare ? "compare-" : "");
}

bool isOfMkdtemp(char letter)
{
    return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
}

bool isNameOf(DtStageKind kind, const std::string& name)
{
    constexpr std::size_t theRandomLetters = 6;
    const std::string prefix = prefixOf(kind);
    return name.size() == prefix.size() + theRandomLetters && name.compare(0, prefix.size(), prefix) == 0 &&
           std::all_of(name.begin() + static_cast<std::ptrdiff_t>(prefix.size()), name.end(), isOfMkdtemp);
}

bool hasMark(const std::filesystem::path& stage)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(std::filesystem::symlink_status(stage / DtStageFolder::theMark, ignored));
}

int openFolder(const char* path)
{
    return ::open(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

// The mark goes last: without it nobody takes what stays for a stage.
bool emptyStage(int folder)
{
    return DtEmptyFolder(folder, DtStageFolder::theMark) &&
           (unlinkat(folder, DtStageFolder::theMark, 0) == 0 || errno == ENOENT);
}

bool isOwn(int folder)
{
    struct stat status = {};
    return fstat(folder, &status) == 0 && status.st_uid == geteuid();
}

// Empties a stage whose run has died, which its lock tells. One without a mark is as good as empty or is none.
void emptyLeftover(int folder)
{
    const int mark = openat(folder, DtStageFolder::theMark, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (mark < 0)
        return;
    if (flock(mark, LOCK_EX | LOCK_NB) == 0)
        emptyStage(folder);
    ::close(mark);
}
} // namespace

DtStageFolder::DtStageFolder(const std::filesystem::path& parent, DtStageKind kind)
{
    for (int tries = 1; !tryToMake(parent, kind); ++tries)
        if (tries == theMakeLimit)
            throw DtOutputException(parent, "a folder that is made here does not stay");
}

DtStageFolder::~DtStageFolder()
{
    if (!myIsReleased)
        remove(myPath);
    disarm();
    closeMark();
}

void DtStageFolder::release()
{
    disarm();
    myIsReleased = true;
}

// False when another run has taken the new folder for one that was left over: until the mark is there and locked, it
// looks like one.
bool DtStageFolder::tryToMake(const std::filesystem::path& parent, DtStageKind kind)
{
    const DtSignalHold hold;
    std::string name = (parent / (prefixOf(kind) + "XXXXXX")).native();
    if (mkdtemp(name.data()) == nullptr) // QTemporaryDir takes names as text, which a folder's name need not be
        throw DtOutputException::ofSystem(parent, "a folder cannot be made here");
    try
    {
        myPath = name;
        if (!lockMark())
            return false;
        const std::filesystem::path files = myPath / theFiles;
        if (mkdir(files.c_str(), 0777) != 0)
            throw DtOutputException::ofSystem(files, "the folder cannot be made");
    }
    catch (...)
    {
        remove(myPath);
        closeMark();
        throw;
    }
    arm();
    return true;
}

bool DtStageFolder::lockMark()
{
    const std::filesystem::path mark = myPath / theMark;
    myMark = ::open(mark.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (myMark < 0 && errno == ENOENT)
        return false;
    if (myMark < 0)
        throw DtOutputException::ofSystem(mark, "cannot be made");
    // Where the file system knows no locks, nobody can take the stage for a leftover.
    const bool isTaken = flock(myMark, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    struct stat status = {};
    if (!isTaken && fstat(myMark, &status) == 0 && status.st_nlink > 0)
        return true;
    closeMark();
    return false;
}

void DtStageFolder::closeMark()
{
    if (myMark < 0)
        return;
    flock(myMark, LOCK_UN); // closing alone leaves the lock to a child process that has the file too
    ::close(myMark);
    myMark = -1;
}

void DtStageFolder::cleanUp()
{
    remove(myPath);
}

bool DtStageFolder::isName(const std::string& name)
{
    return isNameOf(DtStageKind::Commit, name);
}

bool DtStageFolder::isOne(const std::filesystem::path& path)
{
    std::error_code ignored;
    if (!isName(path.filename().native()) ||
        !std::filesystem::is_directory(std::filesystem::symlink_status(path, ignored)))
        return false;
    return hasMark(path) || std::filesystem::is_empty(path, ignored);
}

// Called within the handler of a signal too.
bool DtStageFolder::remove(const std::filesystem::path& stage)
{
    const int folder = openFolder(stage.c_str());
    if (folder < 0)
        return false;
    const bool isEmpty = emptyStage(folder);
    ::close(folder);
    return isEmpty && rmdir(stage.c_str()) == 0;
}

// Only an empty folder can be removed, so whatever stands at the path by then is safe.
void DtStageFolder::removeLeftovers(const std::filesystem::path& parent)
{
    std::vector<std::filesystem::path> stages;
    std::error_code error;
    for (std::filesystem::directory_iterator each(parent, error), end; !error && each != end; each.increment(error))
        if (isNameOf(DtStageKind::Compare, each->path().filename().native()))
            stages.push_back(each->path());
    for (const std::filesystem::path& stage : stages)
    {
        const int folder = openFolder(stage.c_str());
        if (folder < 0)
            continue;
        const bool mayGo = isOwn(folder);
        if (mayGo)
            emptyLeftover(folder);
        ::close(folder);
        if (mayGo)
            rmdir(stage.c_str());
    }
}
