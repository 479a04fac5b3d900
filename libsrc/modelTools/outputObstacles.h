#ifndef MODEL_TOOLS_OUTPUT_OBSTACLES_H
#define MODEL_TOOLS_OUTPUT_OBSTACLES_H

#include "modelTools/outputTree.h"

#include <set>

// Finds, ahead of a commit and without changing anything, what would stop it half-way: a file where a folder is needed
// and the reverse, folders that cannot be written to or lie on another file system than the stage, files and folders
// that are immutable. The functions throw DtOutputException on the first obstacle.
class DtOutputObstacles
{
public:
    // stage: the folder that files are renamed out of.
    DtOutputObstacles(const DtOutputTree& tree, const std::filesystem::path& stage) : myTree(tree), myStage(stage) {}

    // A file is to be put at the path.
    void testPut(const std::string& path);
    // The regular file at the path is to be removed.
    void testRemove(const std::string& path);

private:
    void testFolder(const std::string& folder);
    void testNode(const std::filesystem::path& path) const;

    const DtOutputTree& myTree;
    std::filesystem::path myStage;
    std::set<std::string> myTestedFolders;
};

#endif
