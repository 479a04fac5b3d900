#include "codeGenApp/keepFile.h"

#include "foundation/fileUtils.h"

#include <cstdio>

namespace
{
DtFilename copyName(const DtFilename& file, int number)
{
    return number == 1 ? file + "~" : file + "~" + DtString(number) + "~";
}
} // namespace

bool DtKeepFile(const DtFilename& file)
{
    if (!file.exists())
        return true;
    int number = 1;
    while (copyName(file, number).exists())
        ++number;
    std::string present;
    if (!DtReadFile(file, present)) // what cannot be copied is put aside as it is
        return file.isRegularFile() && rename(file.c_str(), copyName(file, number).c_str()) == 0;
    std::string newest;
    if (number > 1 && DtReadFile(copyName(file, number - 1), newest) && newest == present)
        return true;
    return DtReplaceFile(copyName(file, number), present);
}
