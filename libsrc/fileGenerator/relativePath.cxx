#include "fileGenerator/relativePath.h"

#include "foundation/filename.h"

bool staysBelow(const DtString& name, const DtString& directory)
{
    DtFilename parent(directory);
    parent.stripFilename();
    if (name.startsWith("/") && parent.length() == directory.length())
        return false;
    const DtString path = directory + name;
    if (path.stdString().find("..", parent.length()) == std::string::npos)
        return true;
    const std::string root = DtFilename::normalized(parent).stdString();
    const std::string start = root.empty() || root == "/" ? root : root + "/";
    const std::string normal = DtFilename::normalized(path).stdString();
    if (normal.compare(0, start.size(), start) != 0)
        return false;
    const std::string rest = normal.substr(start.size());
    return rest != ".." && rest.compare(0, 3, "../") != 0;
}
