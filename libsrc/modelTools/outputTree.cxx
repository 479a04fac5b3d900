#include "modelTools/outputTree.h"

#include "foundation/fileUtils.h"
#include "modelTools/outputException.h"
#include "modelTools/outputManifest.h"

#include <algorithm>
#include <sys/stat.h>

namespace
{
DtNodeStatus statusOf(const std::filesystem::path& path)
{
    struct stat status = {};
    if (lstat(path.c_str(), &status) != 0)
    {
        if (errno == ENOENT || errno == ENOTDIR)
            return {};
        throw DtOutputException::ofSystem(path, "cannot be looked at");
    }
    const DtNodeKind kind = S_ISREG(status.st_mode)   ? DtNodeKind::File
                            : S_ISDIR(status.st_mode) ? DtNodeKind::Folder
                                                      : DtNodeKind::Other;
    return {kind, static_cast<std::uint64_t>(status.st_size), status.st_mode & 0777};
}
} // namespace

DtNodeStatus DtOutputTree::status(const std::string& path) const
{
    return hasRealParents(path) ? statusOf(absolute(path)) : DtNodeStatus();
}

bool DtOutputTree::hasRealParents(const std::string& path) const
{
    for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1))
        if (statusOf(absolute(path.substr(0, slash))).kind != DtNodeKind::Folder)
            return false;
    return true;
}

std::vector<std::string> DtOutputTree::list() const
{
    namespace fs = std::filesystem;
    std::vector<std::string> paths;
    std::error_code error;
    const std::size_t start = (myDirectory / "").native().size();
    for (fs::recursive_directory_iterator each(myDirectory, error), end; !error && each != end; each.increment(error))
        if (statusOf(each->path()).kind != DtNodeKind::Folder)
            paths.push_back(each->path().native().substr(start));
    if (error)
        throw DtOutputException::ofSystem(myDirectory, "cannot be listed", error.value());
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string DtOutputTree::read(const std::string& path) const
{
    std::string content;
    errno = 0;
    if (!DtReadFile(absolute(path).native(), content))
        throw DtOutputException::ofSystem(absolute(path), "cannot be read");
    return content;
}

std::string DtOutputTree::hash(const std::string& path) const
{
    if (status(path).kind != DtNodeKind::File)
        return std::string();
    return DtOutputManifest::entryOf(read(path)).sha256;
}

std::string DtOutputTree::parent(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}
