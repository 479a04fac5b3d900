#include "codeGenApp/projectBackup.h"

#include "foundation/fileUtils.h"

namespace
{
DtFilename copyName(const DtFilename& projectFile, int number)
{
    return number == 1 ? projectFile + "~" : projectFile + "~" + DtString(number) + "~";
}
} // namespace

bool DtKeepProjectFile(const DtFilename& projectFile)
{
    std::string present;
    if (!DtReadFile(projectFile, present))
        return !projectFile.exists();
    int number = 1;
    while (copyName(projectFile, number).exists())
        ++number;
    std::string newest;
    if (number > 1 && DtReadFile(copyName(projectFile, number - 1), newest) && newest == present)
        return true;
    return DtReplaceFile(copyName(projectFile, number), present);
}
