#ifndef MODEL_TOOLS_OUTPUT_LOCK_H
#define MODEL_TOOLS_OUTPUT_LOCK_H

#include "modelTools/signalCleanup.h"

#include <filesystem>
#include <functional>
#include <string>

enum class DtLockWait
{
    Wait,
    NoWait
};

// Keeps two runs out of one output folder: while it lives, every other lock on the folder waits or fails.
//
// The lock is one of the system on the file ".qxgen-lock" in the folder, so it ends with the process however that ends,
// and a file that a killed run leaves behind holds nobody up. The file goes with the lock. The folder is made if
// missing, and goes with the lock too if it is still empty then and no other run waits for it. Ctrl-C and TERM take
// both along, but for the file of a run that this one is waiting for.
class DtOutputLock : private DtSignalCleanup
{
public:
    // Called once, ahead of waiting, with the number of the process that holds the lock as text ("?" if not known).
    using Notice = std::function<void(const std::string& holder)>;

    // Throws DtOutputException when the folder or the file cannot be made, and with NoWait when the lock is held.
    explicit DtOutputLock(const std::filesystem::path& directory, DtLockWait wait = DtLockWait::Wait,
                          const Notice& notice = Notice());
    ~DtOutputLock() override;

    const std::filesystem::path& directory() const { return myDirectory; }

    static constexpr const char* theFileName = ".qxgen-lock";

private:
    bool tryToTake(DtLockWait wait, const Notice& notice);
    void makeDirectory();
    void openFile();
    void lockFile(DtLockWait wait, const Notice& notice);
    bool isStillInPlace() const;
    void writeHolder();
    std::string holder() const;
    void closeFile();
    void removeMadeFolders();
    void cleanUp() override;

    std::filesystem::path myDirectory;
    std::filesystem::path myPath;
    std::string myMadeFolder;            // the folder while it is to go with the lock, then those above it
    std::size_t myLengthOfTopFolder = 0; // of the uppermost folder that was missing; 0 when none was
    int myFile = -1;
    int myOpenFailures = 0;
    bool myHasTold = false;
};

#endif
