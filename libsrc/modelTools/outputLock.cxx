#include "modelTools/outputLock.h"

#include "modelTools/outputException.h"
#include "modelTools/signalHold.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// QLockFile is not used: it takes names as text, which a folder's name need not be, and judges a lock of a dead process
// by its number. flock() is given up by the system itself when the process goes.

namespace
{
constexpr int theOpenLimit = 1000;

std::filesystem::path withoutTrailingSlash(const std::filesystem::path& path)
{
    return path.has_filename() || !path.has_relative_path() ? path : path.parent_path();
}

std::filesystem::path topMissingFolder(std::filesystem::path folder)
{
    std::filesystem::path missing;
    std::error_code ignored;
    while (!folder.empty() && !std::filesystem::exists(std::filesystem::symlink_status(folder, ignored)))
    {
        missing = folder;
        folder = folder.parent_path();
    }
    return missing;
}
} // namespace

DtOutputLock::DtOutputLock(const std::filesystem::path& directory, DtLockWait wait, const Notice& notice)
    : myDirectory(withoutTrailingSlash(directory)), myPath(myDirectory / theFileName)
{
    try
    {
        while (!tryToTake(wait, notice))
            closeFile();
    }
    catch (...)
    {
        const DtSignalHold hold;
        closeFile();
        removeMadeFolders();
        throw;
    }
}

DtOutputLock::~DtOutputLock()
{
    const DtSignalHold hold;
    unlink(myPath.c_str()); // while the lock is held: a waiting run sees that its file is not in place any more
    closeFile();
    removeMadeFolders();
}

// False when the run that held the lock has removed the file, or the folder with it, in the meantime.
bool DtOutputLock::tryToTake(DtLockWait wait, const Notice& notice)
{
    {
        const DtSignalHold hold;
        makeDirectory();
        openFile();
        if (myFile < 0)
            return false;
        arm();
    }
    lockFile(wait, notice);
    if (!isStillInPlace())
        return false;
    writeHolder();
    return true;
}

void DtOutputLock::makeDirectory()
{
    if (myDirectory.empty())
        throw DtOutputException(myDirectory, "the name of the output folder is empty");
    const std::filesystem::path missing = topMissingFolder(myDirectory);
    if (!missing.empty())
    {
        myMadeFolder = myDirectory.native();
        myLengthOfTopFolder = missing.native().size();
    }
    std::error_code error; // tells the reason, which DtMakeDirectory() does not
    std::filesystem::create_directories(myDirectory, error);
    if (error)
        throw DtOutputException::ofSystem(myDirectory, "the folder cannot be made", error.value());
}

void DtOutputLock::openFile()
{
    myFile = ::open(myPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
    // Another run may remove the folder that it has made between our two steps; the limit is for a folder that cannot
    // hold files, such as a working directory that has been removed.
    if (myFile < 0 && (errno != ENOENT || ++myOpenFailures > theOpenLimit))
        throw DtOutputException::ofSystem(myPath, "the lock cannot be made");
}

void DtOutputLock::lockFile(DtLockWait wait, const Notice& notice)
{
    if (flock(myFile, LOCK_EX | LOCK_NB) == 0)
        return;
    if (errno != EWOULDBLOCK)
        throw DtOutputException::ofSystem(myPath, "cannot be locked");
    if (wait == DtLockWait::NoWait)
        throw DtOutputException(myPath, "another run (process " + holder() + ") is writing to this folder");
    if (notice && !myHasTold)
        notice(holder());
    myHasTold = true;
    while (flock(myFile, LOCK_EX) != 0)
        if (errno != EINTR)
            throw DtOutputException::ofSystem(myPath, "cannot be locked");
}

bool DtOutputLock::isStillInPlace() const
{
    struct stat opened = {}, named = {};
    return fstat(myFile, &opened) == 0 && lstat(myPath.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

// For the notice of other runs only, so a full disk is no reason to fail.
void DtOutputLock::writeHolder()
{
    const std::string process = std::to_string(getpid()) + "\n";
    const bool isWritten =
        ftruncate(myFile, 0) == 0 && pwrite(myFile, process.data(), process.size(), 0) == ssize_t(process.size());
    static_cast<void>(isWritten);
}

std::string DtOutputLock::holder() const
{
    char text[16];
    const ssize_t length = pread(myFile, text, sizeof text, 0);
    const std::string content(text, length > 0 ? static_cast<std::size_t>(length) : 0);
    const std::string number = content.substr(0, content.find_first_not_of("0123456789"));
    return number.empty() ? "?" : number;
}

void DtOutputLock::closeFile()
{
    if (myFile < 0)
        return;
    disarm();
    flock(myFile, LOCK_UN); // closing alone leaves the lock to a child process that has the file too
    ::close(myFile);
    myFile = -1;
}

// Only empty folders can go, so what the run has put there stays. Shortens the name in place, as the handler of a
// signal has to.
void DtOutputLock::removeMadeFolders()
{
    char* const name = myMadeFolder.data();
    std::size_t length = myMadeFolder.size();
    while (myLengthOfTopFolder > 0 && length >= myLengthOfTopFolder && rmdir(name) == 0)
    {
        while (length > 0 && name[length - 1] != '/')
            --length;
        while (length > 0 && name[length - 1] == '/')
            --length;
        name[length] = '\0';
    }
    myLengthOfTopFolder = 0;
}

// The lock that a waiting run has opened is another one's; only the holder gets it once more.
void DtOutputLock::cleanUp()
{
    if (flock(myFile, LOCK_EX | LOCK_NB) == 0 && isStillInPlace())
        unlink(myPath.c_str());
    removeMadeFolders();
}
