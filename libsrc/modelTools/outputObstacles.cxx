#include "modelTools/outputObstacles.h"

#include "modelTools/outputException.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// Qt and the standard library know nothing of mounts and of the attributes that chattr sets, so the system is asked.

namespace
{
struct statx systemStatus(const std::filesystem::path& path)
{
    unsigned int wanted = STATX_BASIC_STATS;
#ifdef STATX_MNT_ID
    wanted |= STATX_MNT_ID;
#endif
    struct statx status = {};
    if (statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &status) != 0)
        throw DtOutputException::ofSystem(path, "cannot be looked at");
    return status;
}

// Two mounts of one file system have its device number in common, and yet nothing can be renamed between them.
bool isSameMount(const struct statx& left, const struct statx& right)
{
    if (left.stx_dev_major != right.stx_dev_major || left.stx_dev_minor != right.stx_dev_minor)
        return false;
#ifdef STATX_MNT_ID
    if ((left.stx_mask & right.stx_mask & STATX_MNT_ID) != 0)
        return left.stx_mnt_id == right.stx_mnt_id;
#endif
    return true;
}
} // namespace

void DtOutputObstacles::testPut(const std::string& path)
{
    testFolder(DtOutputTree::parent(path));
    const DtNodeKind kind = myTree.status(path).kind;
    if (kind == DtNodeKind::Folder)
        throw DtOutputException(myTree.absolute(path), "a folder stands where a file is to be written");
    if (kind != DtNodeKind::Nothing)
        testNode(myTree.absolute(path));
}

void DtOutputObstacles::testRemove(const std::string& path)
{
    testFolder(DtOutputTree::parent(path));
    testNode(myTree.absolute(path));
}

// A folder that is missing will be made in the nearest one above it that is there, which is the one that counts.
void DtOutputObstacles::testFolder(const std::string& folder)
{
    if (!myTestedFolders.insert(folder).second)
        return;
    const std::filesystem::path path =
        myTree.absolute(folder); // ends in a slash at the top, so a link is followed there
    switch (folder.empty() ? DtNodeKind::Folder : myTree.status(folder).kind)
    {
    case DtNodeKind::Nothing:
        return testFolder(DtOutputTree::parent(folder));
    case DtNodeKind::File:
        throw DtOutputException(path, "a file stands where a folder is needed");
    case DtNodeKind::Other:
        throw DtOutputException(path, "a symbolic link or a special file stands where a folder is needed");
    case DtNodeKind::Folder:
        break;
    }
    if (faccessat(AT_FDCWD, path.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        throw DtOutputException::ofSystem(path, "cannot be written to");
    testNode(path);
}

void DtOutputObstacles::testNode(const std::filesystem::path& path) const
{
    const struct statx status = systemStatus(path);
    if (!isSameMount(status, systemStatus(myStage)))
        throw DtOutputException(path, "lies on another file system than the output folder, so files cannot be moved "
                                      "there in one step");
    if ((status.stx_attributes & STATX_ATTR_IMMUTABLE) != 0)
        throw DtOutputException(path, "is marked immutable (lsattr shows it) and cannot be changed");
    if ((status.stx_attributes & STATX_ATTR_APPEND) != 0)
        throw DtOutputException(path, "is marked append-only (lsattr shows it) and cannot be replaced");
}
