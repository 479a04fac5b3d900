#ifndef MODEL_TOOLS_OUTPUT_TREE_H
#define MODEL_TOOLS_OUTPUT_TREE_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

enum class DtNodeKind
{
    Nothing,
    File, // a regular one
    Folder,
    Other // symbolic link, pipe, device
};

struct DtNodeStatus
{
    DtNodeKind kind = DtNodeKind::Nothing;
    std::uint64_t size = 0;
    mode_t mode = 0; // permissions only
};

// A folder with the files below it by their output paths. No operation follows a symbolic link below the folder, so
// none touches anything outside; the folder itself may be named by a link.
class DtOutputTree
{
public:
    explicit DtOutputTree(const std::filesystem::path& directory) : myDirectory(directory) {}

    const std::filesystem::path& directory() const { return myDirectory; }
    std::filesystem::path absolute(const std::string& path) const { return myDirectory / path; }

    // What stands at the path; Nothing also when one of the folders above it is no folder.
    DtNodeStatus status(const std::string& path) const;
    // All that is below the folder but folders, sorted by bytes.
    std::vector<std::string> list() const;
    // The content of a regular file. Throws DtOutputException when it cannot be read.
    std::string read(const std::string& path) const;
    // SHA-256 of a regular file; empty for anything else.
    std::string hash(const std::string& path) const;

    // The folder that holds the path; empty at the top.
    static std::string parent(const std::string& path);

private:
    bool hasRealParents(const std::string& path) const;

    std::filesystem::path myDirectory;
};

#endif
