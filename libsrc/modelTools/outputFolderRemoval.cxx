#include "modelTools/outputFolderRemoval.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace
{
bool isIn(const char* name, const char* const (&names)[3])
{
    for (const char* const each : names)
        if (std::strcmp(name, each) == 0)
            return true;
    return false;
}

bool removeEntry(int folder, const char* name)
{
    if (unlinkat(folder, name, 0) == 0)
        return true;
    const int inner = openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (inner < 0)
        return false;
    const bool isEmpty = DtEmptyFolder(inner, "");
    close(inner);
    return isEmpty && unlinkat(folder, name, AT_REMOVEDIR) == 0;
}

// What one reading of the folder came to.
struct DtPass
{
    bool hasRemoved = false;
    bool hasFailed = false;
};

DtPass removeEntries(int folder, const char* keptName)
{
    DtPass pass;
    alignas(dirent64) char entries[2048];
    ssize_t size = lseek(folder, 0, SEEK_SET) == 0 ? 0 : -1;
    while (size >= 0 && (size = getdents64(folder, entries, sizeof entries)) > 0)
    {
        for (ssize_t at = 0; at < size;)
        {
            const auto* const entry = reinterpret_cast<const dirent64*>(entries + at);
            at += entry->d_reclen;
            if (isIn(entry->d_name, {".", "..", keptName}))
                continue;
            const bool isRemoved = removeEntry(folder, entry->d_name);
            pass.hasRemoved = pass.hasRemoved || isRemoved;
            pass.hasFailed = pass.hasFailed || !isRemoved;
        }
    }
    pass.hasFailed = pass.hasFailed || size < 0;
    return pass;
}
} // namespace

// A file system may pass over entries while others are removed, so the folder is read until there is nothing to do.
bool DtEmptyFolder(int folder, const char* keptName)
{
    DtPass pass;
    do
        pass = removeEntries(folder, keptName);
    while (pass.hasRemoved);
    return !pass.hasFailed;
}
